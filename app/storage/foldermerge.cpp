#include "app/storage/foldermerge.h"

#include "app/base/files.h"
#include "app/storage/projectpaths.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <array>
#include <set>

namespace vl::app {
namespace {

using Paths = std::map<QString, QString>;

constexpr int sides = 3; // base, local, remote

/// The text of a file when its bytes are UTF-8 and come back the same from the text.
std::optional<QString> textOf(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (decoder.hasError() || text.toUtf8() != bytes)
        return std::nullopt;
    return text;
}

const QString *find(const Paths &paths, const QString &path)
{
    const auto it = paths.find(path);
    return it == paths.end() ? nullptr : &it->second;
}

bool isAsset(const QString &path)
{
    return path.startsWith(assetsFolder() + QLatin1Char('/'));
}

} // namespace

Result<FolderMerge> FolderMerge::compare(const QString &base, const QString &local,
                                         const QString &remote)
{
    std::array<Paths, sides> found;
    const std::array<QString, sides> folders = {base, local, remote};
    for (size_t side = 0; side < sides; ++side) {
        const QDir folder(folders[side]);
        if (folders[side].isEmpty() || !folder.exists())
            return failure(withPath(tr("The project folder does not exist: %1"), folders[side]));
        QDirIterator it(folder.absolutePath(), QDir::Files | QDir::NoSymLinks,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            found[side].emplace(folder.relativeFilePath(path), path);
        }
    }
    FolderMerge merge;
    if (const Result<> compared = merge.compareFiles(found[0], found[1], found[2]); !compared)
        return compared.asFailure();
    return merge;
}

Result<> FolderMerge::compareFiles(const Paths &base, const Paths &local, const Paths &remote)
{
    std::set<QString> paths;
    for (const Paths *side : {&local, &remote}) {
        for (const auto &[path, file] : *side)
            paths.insert(path);
    }
    std::array<Reconcile::Files, sides> texts;
    for (const QString &path : paths) {
        const std::array<const QString *, sides> files = {find(base, path), find(local, path),
                                                          find(remote, path)};
        bool isText = !isAsset(path);
        std::array<QString, sides> contents;
        for (size_t side = 0; side < sides && isText; ++side) {
            if (!files[side])
                continue;
            const Result<QByteArray> bytes = readRegularFile(
                *files[side], tr("Cannot read file: %1"), defaultReadLimit, Links::Refuse);
            if (!bytes)
                return bytes.asFailure();
            std::optional<QString> text = textOf(*bytes);
            isText = text.has_value();
            contents[side] = std::move(text).value_or(QString());
        }
        if (!isText) {
            Result<> done = compareBinaryFile(path, files[0], files[1], files[2]);
            if (!done)
                return done;
            continue;
        }
        for (size_t side = 0; side < sides; ++side) {
            if (files[side])
                texts[side].emplace(path, std::move(contents[side]));
        }
    }
    m_texts = Reconcile::build(texts[0], texts[1], texts[2]);
    for (const ReconcileEntry &entry : m_texts)
        m_files.push_back({entry.path, entry.state});
    std::sort(m_files.begin(), m_files.end(),
              [](const auto &one, const auto &other) { return one.path < other.path; });
    return {};
}

Result<> FolderMerge::compareBinaryFile(const QString &path, const QString *base,
                                        const QString *local, const QString *remote)
{
    // Equal contents get equal numbers; at most two files are in memory at once.
    const std::array<const QString *, sides> files = {base, local, remote};
    std::array<int, sides> numbers = {0, 1, 2};
    for (size_t side = 1; side < sides; ++side) {
        for (size_t other = 0; other < side && numbers[side] == int(side); ++other) {
            if (!files[side] || !files[other])
                continue;
            if (QFileInfo(*files[side]).size() != QFileInfo(*files[other]).size())
                continue;
            const Result<QByteArray> bytes = readRegularFile(
                *files[side], tr("Cannot read file: %1"), defaultReadLimit, Links::Refuse);
            if (!bytes)
                return bytes.asFailure();
            if (fileHolds(*files[other], *bytes))
                numbers[side] = numbers[other];
        }
    }
    const auto number = [&](size_t side) { return files[side] ? &numbers[side] : nullptr; };
    const ReconcileState state = *reconcileState(number(0), number(1), number(2));
    m_files.push_back({path, state});
    if (!isDeletion(state)) {
        const bool fromDisk = state == ReconcileState::RemoteChanged || !local;
        m_binaries.emplace(path, fromDisk ? *remote : *local);
    }
    return {};
}

bool FolderMerge::hasConflicts() const
{
    return std::any_of(m_files.begin(), m_files.end(),
                       [](const FolderMergeFile &file) { return isConflict(file.state); });
}

Result<> FolderMerge::check() const
{
    if (hasConflicts())
        return Reconcile::conflictsFailure();
    const Result<ReconcileChanges> changes = Reconcile::apply(m_texts);
    return changes ? Result<>() : changes.asFailure();
}

Result<> FolderMerge::write(const QString &folder) const
{
    if (hasConflicts())
        return Reconcile::conflictsFailure();
    const Result<ReconcileChanges> changes = Reconcile::apply(m_texts);
    if (!changes)
        return changes.asFailure();
    if (!QDir(folder).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System)
        && QFileInfo::exists(folder))
        return failure(withPath(tr("The output folder is not empty: %1"), folder));

    FileBatch batch({tr("Cannot write file: %1"), tr("Failed to write file: %1")},
                    Durability::Synced);
    const auto add = [&](const QString &path, const QByteArray &bytes) -> Result<> {
        const QString file = folder + QLatin1Char('/') + path;
        const QString parent = QFileInfo(file).path();
        if (!makeFolder(parent))
            return failure(withPath(tr("Cannot create project folder: %1"), parent));
        return batch.addChanged(file, bytes);
    };
    if (!makeFolder(folder))
        return failure(withPath(tr("Cannot create project folder: %1"), folder));
    for (const auto &[path, text] : changes->write) {
        if (Result<> added = add(path, text.toUtf8()); !added)
            return added;
    }
    for (const auto &[path, source] : m_binaries) {
        const Result<QByteArray> bytes =
            readRegularFile(source, tr("Cannot read file: %1"), defaultReadLimit, Links::Refuse);
        if (!bytes)
            return bytes.asFailure();
        if (Result<> added = add(path, *bytes); !added)
            return added;
    }
    return batch.commit();
}

} // namespace vl::app
