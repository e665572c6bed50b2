// The small files that the program keeps for itself, and what other programs of this user hand to
// it: whatever stands in them is read to an end, and is written back as the same.

#include "app/base/settings.h"
#include "app/models/writingdesk.h"
#include "app/storage/autobackups.h"
#include "app/storage/deleted.h"
#include "app/storage/lock.h"
#include "app/storage/workingcopy.h"
#include "desktop/startup/singleinstance.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <cstdint>
#include <cstdlib>

using namespace vl::app;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

QString folder()
{
    static const QTemporaryDir made(QStringLiteral("/dev/shm/ivorel-fuzz-XXXXXX"));
    require(made.isValid());
    return made.path();
}

void write(const QString &path, const QByteArray &bytes)
{
    require(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

StorageLocations locations()
{
    StorageLocations here{.root = folder()};
    here.now = [] { return QDateTime::fromMSecsSinceEpoch(1'700'000'000'000, Qt::UTC); };
    return here;
}

void checkLock(const QByteArray &bytes)
{
    const std::optional<LockHolder> holder = LockHolder::fromJson(bytes);
    if (!holder)
        return;
    const std::optional<LockHolder> again = LockHolder::fromJson(holder->toJson());
    require(again && again->token == holder->token && again->process == holder->process
            && again->place == holder->place);
    (void)stateOf(*holder, LockHolder::current());
}

void checkDeleted(const QByteArray &bytes)
{
    const QString name = QStringLiteral("/20231101T101112345Z-0000000001-a.json");
    write(locations().workingFolder() + QStringLiteral("/key.deleted") + name, bytes);
    const DeletedStore store(QStringLiteral("key"), locations());
    const std::vector<DeletedStep> steps = store.list();
    require(steps.size() <= 1);
    if (steps.empty())
        return;
    require(bool(store.add(steps.front())));
    const std::vector<DeletedStep> both = store.list();
    require(both.size() == 2 && both[0].files == both[1].files && both[0].label == both[1].label
            && both[0].moves == both[1].moves && both[0].pins == both[1].pins);
    store.clear();
}

void checkDays(const QByteArray &bytes)
{
    const QString kept = locations().workingFolder() + QStringLiteral("/days.deleted");
    write(kept + QStringLiteral("/20200101T101112345Z-0000000001-a.json"), "{}");
    write(kept + QStringLiteral("/days.txt"), bytes);
    DeletedStore(QStringLiteral("days"), locations()).thin();
}

void checkDesk(const QByteArray &bytes)
{
    const QString project = QStringLiteral("/p");
    static const QString file = [&] {
        WritingDesk desk(folder() + QStringLiteral("/desk"));
        desk.open(project);
        desk.touch();
        desk.save();
        return QDir(folder() + QStringLiteral("/desk")).entryList(QDir::Files).value(0);
    }();
    write(folder() + QStringLiteral("/desk/") + file, bytes);
    WritingDesk desk(folder() + QStringLiteral("/desk"));
    desk.open(project);
    const vl::core::ContentId last = desk.lastDocument();
    const WritingPlace place = desk.place(last);
    require(place.caret >= 0 && place.anchor >= 0 && place.top >= 0);
    desk.touch();
    desk.save();
    WritingDesk again(folder() + QStringLiteral("/desk"));
    again.open(project);
    require(again.lastDocument() == last && again.place(last) == place);
}

void checkBackup(const QByteArray &bytes)
{
    // A name from anywhere has a time or none, and what is remembered of a backup is plausible.
    const QString text = QString::fromUtf8(bytes);
    const QDateTime time = Backups::timeOf(
        QStringLiteral("/b/a-") + text + QStringLiteral(".vellum"), QStringLiteral("a"));
    require(!time.isValid() || time.timeSpec() == Qt::UTC);
    const QString path = folder() + QStringLiteral("/a-20231101-101112.vellum");
    write(path + QStringLiteral(".json"), bytes);
    const AutoBackups backups(folder() + QStringLiteral("/a.vellum"), locations(),
                              [](const vl::core::Project &) { return BackupSummary(); });
    const auto summary = backups.summary({.path = path, .time = {}, .size = 3});
    require(!summary || (summary->documents >= 0 && summary->scenes >= 0 && summary->words >= 0));
    (void)WorkingCopy::of(folder() + u'/' + text.left(40), locations());
    require(!bundleBaseName(text).contains(u'/'));
}

void checkMarker(const QByteArray &bytes)
{
    const WorkingCopy copy = WorkingCopy::of(folder() + QStringLiteral("/m.vellum"), locations());
    write(copy.folder() + QStringLiteral(".json"), bytes);
    const QByteArray sum(64, 'a');
    (void)copy.markerMatches(sum);
    require(bool(copy.writeMarker(sum)) && copy.markerMatches(sum));
    require(copy.removeMarker() && !copy.markerMatches(sum));
}

void checkSettings(const QByteArray &bytes)
{
    static int number = 0; // the toolkit remembers what it read from a path
    const QString path = folder() + QStringLiteral("/s%1.ini").arg(++number);
    write(path, bytes);
    Settings settings(path);
    if (!settings.damagedCopy().isEmpty()) {
        QFile copy(settings.damagedCopy());
        require(copy.open(QIODevice::ReadOnly) && copy.readAll() == bytes);
        copy.remove();
    }
    settings.addRecentProject(QStringLiteral("/p"));
    require(settings.recentProjects().value(0) == QLatin1String("/p"));
    require(settings.recentProjects().size() <= 8 && settings.areKept());
    QFile::remove(path);
}

void checkHandOver(const QByteArray &bytes)
{
    const QString message = vl::desktop::decodeHandOver(bytes);
    require(!message.contains(u'\n'));
    if (!message.endsWith(u'\r'))
        require(vl::desktop::decodeHandOver(vl::desktop::encodeHandOver(message)) == message);
    const QString name = vl::desktop::singleInstanceServerName(message);
    require(!name.contains(u'/') && !name.contains(QChar(0)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    using Check = void (*)(const QByteArray &);
    static const Check checks[] = {checkLock,   checkDeleted, checkDays,     checkDesk,
                                   checkBackup, checkMarker,  checkSettings, checkHandOver};
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    checks[data[0] % std::size(checks)](bytes);
    return 0;
}
