#include "app/models/recovery.h"

#include "app/base/files.h"
#include "app/models/readablefile.h"
#include "app/models/workspace.h"

#include <QtCore/QLocale>

#include <map>

namespace vl::app {

namespace {

constexpr int namedAtMost = 3;

} // namespace

Recovery Recovery::read(const QStringList &journals, const Workspace &workspace)
{
    const OpenProject &project = workspace.current();
    std::map<QString, JournalFile> files;
    for (const QString &path : journals) {
        if (Result<Journal> journal = readJournal(path)) {
            for (auto &[name, file] : journal->files)
                files[name] = std::move(file);
        }
    }
    Recovery recovery;
    for (const auto &[path, file] : files) {
        const std::optional<QByteArray> present = presentFile(project.project(), path);
        if (present == file.change.bytes)
            continue;
        RecoveredFile recovered;
        recovered.change = file.change;
        recovered.name = readableName(path, file.change.bytes ? *file.change.bytes
                                                              : present.value_or(QByteArray()));
        recovered.before = present ? readableFile(*present) : QString();
        recovered.after = file.change.bytes ? readableFile(*file.change.bytes) : QString();
        if (project.hasLocation()) {
            const Result<QByteArray> onDisk =
                readRegularFile(project.folder() + u'/' + path, QString());
            recovered.changedElsewhere =
                !file.goesOnFrom(onDisk ? std::optional(*onDisk) : std::nullopt);
        }
        recovery.m_files.push_back(std::move(recovered));
    }
    return recovery;
}

QStringList Recovery::advisedPaths() const
{
    QStringList paths;
    for (const RecoveredFile &file : m_files) {
        if (!file.changedElsewhere)
            paths.append(file.change.path);
    }
    return paths;
}

QString Recovery::summary() const
{
    QStringList names;
    for (const RecoveredFile &file : m_files) {
        if (names.size() < namedAtMost && file.name != file.change.path)
            names.append(tr("“%1”").arg(file.name));
    }
    const QString all = QLocale().createSeparatedList(names);
    const int others = int(m_files.size()) - int(names.size());
    if (names.isEmpty())
        return tr("%n change(s)", nullptr, others);
    return others > 0 ? tr("%1 and %n other(s)", nullptr, others).arg(all) : all;
}

bool Recovery::restore(Workspace &workspace, const QStringList &paths) const
{
    std::vector<FileChange> changes;
    for (const RecoveredFile &file : m_files) {
        if (paths.contains(file.change.path))
            changes.push_back(file.change);
    }
    ReadContents read = contentsOf(changes);
    if (read.contents.isEmpty())
        return false;
    workspace.flush();
    workspace.push<core::ReplaceContentsCommand>(workspace.project(), std::move(read.contents),
                                                 tr("Restore unsaved work"));
    return true;
}

} // namespace vl::app
