// Does one piece of work of the storage room and prints its outcome as a line of JSON. The test
// starts it with the library that makes file calls fail.

#include "app/storage/bundlestore.h"
#include "app/storage/folderstore.h"
#include "tests/app/storage/faultwork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdio>
#include <dlfcn.h>

using namespace vl::app;
using namespace vl::test;

namespace {

void arm()
{
    if (void *const function = dlsym(RTLD_DEFAULT, "ivorel_fault_arm"))
        reinterpret_cast<void (*)()>(function)();
}

bool hasFired()
{
    void *const function = dlsym(RTLD_DEFAULT, "ivorel_fault_fired");
    return function && reinterpret_cast<int (*)()>(function)() != 0;
}

struct Outcome
{
    bool succeeded = false;
    QString message;
};

template<typename T>
Outcome outcomeOf(const Result<T> &result)
{
    return result ? Outcome{true, {}} : Outcome{false, result.message()};
}

Outcome save(const FaultPaths &paths, const StorageLocations &locations)
{
    const Result<OpenedBundle> bundle = openBundle(paths.bundle, locations);
    if (!bundle)
        return {false, QStringLiteral("not even opened")};
    arm();
    const SaveReport report = saveBundle(
        {paths.bundle, bundle->workingFolder, newProjectFiles(), {}, bundle->known}, locations);
    return {report.outcome == SaveOutcome::Saved, report.message};
}

Outcome saveFolder(const FaultPaths &paths)
{
    FolderSave save;
    save.folder = paths.folder;
    for (const ProjectFile &file : newProjectFiles())
        save.writes.push_back({file.path, file.bytes, {}});
    save.removals.push_back({goneObject(), {}, {}});
    arm();
    return outcomeOf(commitFolderSave(save, OutsideChanges::Overwrite));
}

/// Succeeds when the last piece was written.
Outcome writeJournal(const FaultPaths &paths)
{
    JournalWriter journal(paths.journal, {paths.folder, LockHolder::current()},
                          [](const QString &) { return std::nullopt; });
    arm();
    bool isWritten = false;
    for (int i = 1; i <= journalPieces; ++i)
        isWritten = bool(journal.write(journalPiece(i)));
    return {isWritten, {}};
}

Outcome run(const QString &work, const FaultPaths &paths)
{
    StorageLocations locations;
    locations.root = paths.data;
    if (work == QLatin1String("save"))
        return save(paths, locations);
    if (work == QLatin1String("save folder"))
        return saveFolder(paths);
    if (work == QLatin1String("journal"))
        return writeJournal(paths);
    arm();
    if (work == QLatin1String("backup"))
        return outcomeOf(AutoBackups(paths.novel, locations, &nothingCounted)
                             .add({paths.novel, {}}, BackupReason::Opened));
    if (work == QLatin1String("open"))
        return outcomeOf(openBundle(paths.bundle, locations));
    if (work == QLatin1String("reload"))
        return outcomeOf(reloadBundle(paths.bundle, locations));
    if (work == QLatin1String("save as"))
        return outcomeOf(saveBundleAs({paths.otherBundle, {}, newProjectFiles(), {}, {}},
                                      paths.folder, locations));
    if (work == QLatin1String("pack"))
        return outcomeOf(packFolder(paths.folder, paths.otherBundle));
    if (work == QLatin1String("extract"))
        return outcomeOf(extractBundle(paths.bundle, paths.target));
    return {false, QStringLiteral("no such work")};
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    const Outcome outcome = run(arguments.at(1), FaultPaths(arguments.at(2)));
    const bool fired = hasFired();
    const QJsonObject line{{QStringLiteral("fired"), fired},
                           {QStringLiteral("succeeded"), outcome.succeeded},
                           {QStringLiteral("message"), outcome.message}};
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact);
    return std::fwrite(text.constData(), 1, size_t(text.size()), stdout) == size_t(text.size()) ? 0
                                                                                                : 1;
}
