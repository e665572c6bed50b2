#pragma once

#include "app/base/files.h"
#include "app/base/result.h"
#include "app/storage/archive.h"
#include "app/storage/projectfiles.h"
#include "app/storage/projectfolder.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace vl::app {

/// What is known of a bundle on disk since it was last read or written.
struct KnownBundle
{
    QByteArray sha256;     ///< of its bytes, 64 lower-case hexadecimal digits; empty when unknown
    FileIdentity identity; ///< while this stays the same the bytes need not be read again
};

/// A bundle in memory, checked whole: every path is safe, every checksum is right, and
/// "project.json" is there.
struct ReadBundle
{
    Archive archive;
    FileIdentity identity; ///< none when the file changed while it was read
};

/// The most bytes that a bundle may have: an archive and the longest comment behind it.
inline constexpr qint64 maxBundleBytes = ArchiveWriter::maxBytes + 65535;

/// Reads a bundle: "Could not open the project file: %1" or "Not a valid Ivorel project file: %1".
Result<ReadBundle> readBundle(const QString &path);

/// The files in the bundle that the project is read from, in ascending order of their paths.
ProjectFiles projectFilesIn(const Archive &archive);

/// What goes into a bundle: files in memory, files of a folder, or both.
class BundleSource
{
public:
    /// Every file under the folder; "project.json" must be among them.
    static Result<BundleSource> ofFolder(const QString &folder);
    /// These files of the folder, by their paths in it, and those in memory, "project.json" among
    /// either.
    static Result<BundleSource> ofFiles(const QString &folder, std::vector<QByteArray> paths,
                                        ProjectFiles files);
    /// The files in memory, which are all of the model's, and from the folder those that are not
    /// made from the model: "assets/" and whatever else lies there. Left out are files of ids that
    /// are gone, and `readPaths`, the paths that the project was read from; at another place, where
    /// repositories are left out, all that a project is read from. An empty folder name carries
    /// nothing along.
    static Result<BundleSource> ofProject(ProjectFiles files, const QString &folder,
                                          const QStringList &readPaths,
                                          Repositories repositories = Repositories::Keep);

    /// Hands the archive to the sink, piece by piece; `path` is that of the bundle, for messages.
    Result<> packInto(const ArchiveWriter::Sink &sink, const QString &path) const;
    /// Leaves out the file with this full path: the bundle itself, if it lies in the folder.
    void leaveOut(const QString &path);

    /// The files in memory.
    const ProjectFiles &files() const { return m_files; }
    /// Full paths of files in the folder that the project no longer has.
    const QStringList &goneFiles() const { return m_gone; }

private:
    struct Item
    {
        QByteArray path;
        int file = -1; ///< its place among the files in memory; -1 for a file of the folder
    };

    Result<> checkItems() const;

    QString m_folder;
    ProjectFiles m_files;
    QStringList m_gone;
    std::vector<Item> m_items; ///< in ascending order of the paths' bytes
};

/// A bundle being written: the old one stays until the new one is committed as a whole.
class BundleWriter
{
public:
    explicit BundleWriter(const QString &path);

    /// Packs the source and puts it in the bundle's place, making the parent folder when needed.
    Result<> write(const BundleSource &source);
    /// Puts these bytes, which are an archive, in the bundle's place.
    Result<> write(QByteArrayView bytes);
    /// What stands under the bundle's name now; nothing while that is still the old one. May be
    /// told after a failure too, when the new bundle stands but is not known to be on the disk.
    std::optional<KnownBundle> written() const;

private:
    Result<> begin();

    QString m_path;
    AtomicFile m_file;
    QByteArray m_sha256;
};

/// The archive of all files under the folder.
Result<QByteArray> packFolder(const QString &folder);
/// Packs all files under the folder into a bundle, which replaces an old one only when it is whole.
Result<> packFolder(const QString &folder, const QString &bundlePath);

/// Writes the bytes of an archive as a bundle.
Result<> writeBundle(const QString &path, const QByteArray &bytes);

/// Unpacks a bundle into a folder that is absent or empty. On failure nothing is left in it.
Result<> extractBundle(const QString &bundlePath, const QString &folder);
/// The same from memory.
Result<> extractArchive(const Archive &archive, const QString &folder);

/// How the files under a folder stand to an archive.
enum class FolderComparison
{
    Same,       ///< packing it gives exactly the bytes of the archive
    Different,  ///< packing it gives others
    Unreadable, ///< it cannot be packed
};

FolderComparison compareFolder(const QString &folder, const Archive &archive);

} // namespace vl::app
