#pragma once

#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <functional>
#include <optional>
#include <vector>

namespace vl::app {

/// Whether a path inside an archive stays inside any folder it is unpacked into and names a file
/// there: relative, parts divided by "/", none of them empty, "." or "..", no backslash, no drive
/// letter, no NUL, valid UTF-8.
bool isSafeEntryName(QByteArrayView name);

/// Whether no name comes twice and none is also the folder of another. A name that ends in "/" is
/// that of a folder.
bool areDistinctNames(std::vector<QByteArrayView> names);

/// Writes a ZIP archive of stored entries piece by piece into a sink. The same entries give the
/// same bytes at any time: dates are fixed and nothing is compressed.
class ArchiveWriter
{
public:
    /// Takes the next bytes of the archive; its failure ends the writing and is handed on.
    using Sink = std::function<Result<>(QByteArrayView)>;

    /// The most entries and bytes that an archive without 64-bit extensions holds.
    static constexpr qint64 maxEntries = 65535;
    static constexpr qint64 maxBytes = 0xFFFFFFFF;

    explicit ArchiveWriter(Sink sink);

    /// Whether one more entry leaves the archive within the limits.
    bool fits(QByteArrayView name, qint64 size) const;
    /// Appends an entry, which must fit. Callers add in ascending order of the names' bytes; a name
    /// is cut to its first 65535 bytes.
    Result<> add(QByteArrayView name, QByteArrayView bytes);
    /// Writes the directory. Nothing can be added afterwards.
    Result<> finish();

private:
    Sink m_sink;
    QByteArray m_directory;
    qint64 m_offset = 0;
    int m_count = 0;
};

/// A ZIP archive in memory, read with distrust: an archive that parses has only safe, distinct
/// names of regular files, none of them also a folder, and entries that do not overlap.
class Archive
{
public:
    /// One file of the archive.
    struct Entry
    {
        QByteArray name;
        qint64 offset = 0;     ///< of its data in the archive
        qint64 storedSize = 0; ///< bytes in the archive
        qint64 size = 0;       ///< bytes of the file
        quint32 crc = 0;
        bool deflated = false;
    };

    /// Reads the directory and checks everything but the entries' contents; nothing when the bytes
    /// are no archive that could be unpacked as a whole.
    static std::optional<Archive> parse(QByteArray bytes);

    /// The files in ascending order of their names' bytes. Entries for folders are left out.
    const std::vector<Entry> &entries() const { return m_entries; }
    /// The entry of that name, or null.
    const Entry *find(QByteArrayView name) const;
    /// The bytes of one file; nothing when they do not have the size and checksum they should. A
    /// stored entry's bytes are those of the archive itself and live no longer than it.
    std::optional<QByteArray> content(const Entry &entry) const;
    /// Whether every entry's content can be had.
    bool isSound() const;

    const QByteArray &bytes() const { return m_bytes; }

private:
    explicit Archive(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    struct Directory;
    std::optional<Directory> findDirectory() const;
    bool readDirectory(const Directory &directory);
    bool agreesWithLocalHeader(Entry &entry, quint16 flags, qint64 header, qint64 end) const;

    QByteArray m_bytes;
    std::vector<Entry> m_entries;
};

} // namespace vl::app
