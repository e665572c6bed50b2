#include "tests/app/models/autosavedesk.h"

#include <QtCore/QProcess>

#include <cstdio>
#include <functional>
#ifdef IVOREL_FAULT_SHIM
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

using namespace vl;
using Desk = test::AutosaveDesk;

/// The autosave where the disk, or somebody else, does not let it.
class TestAutosaveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void heldByOthers_data();
    void heldByOthers();
    void failingDisk_data();
    void failingDisk();
};

#ifdef IVOREL_FAULT_SHIM
namespace {

/// Runs a save by the timer to its end.
void tick(Desk &desk)
{
    desk.saved.clear();
    desk.failed.clear();
    desk.autosave.saveNow();
    QEventLoop loop;
    QObject::connect(&desk.autosave, &app::AutosaveController::saved, &loop, &QEventLoop::quit);
    QObject::connect(&desk.autosave, &app::AutosaveController::saveFailed, &loop,
                     &QEventLoop::quit);
    loop.exec();
}

/// What became of the saves while others held the project's files, in words; nothing when all is
/// as it should be.
QByteArray saveWhileHeld(Desk &desk, const std::function<void()> &hold,
                         const std::function<void()> &release)
{
    const QString before = desk.bodyOnDisk();
    hold();
    desk.write(QStringLiteral("Words."));
    for (int i = 0; i < 3; ++i) {
        tick(desk);
        if (desk.failed.size() != 1 || desk.failed.first().first().toString().isEmpty())
            return "no failure is told";
        if (!desk.project.isDirty())
            return "clean after a failure";
    }
    release();
    if (desk.bodyOnDisk() != before)
        return "something was written";
    tick(desk);
    if (desk.saved.size() != 1 || desk.project.isDirty() || desk.bodyOnDisk() != u"Words.")
        return "the next tick does not save";
    hold();
    desk.write(QStringLiteral("Elsewhere."));
    tick(desk);
    const bool hasFailed = desk.failed.size() == 1;
    const auto elsewhere =
        desk.project.saveAsBundle(desk.dir.filePath(QStringLiteral("other.vellum")));
    release();
    if (!hasFailed)
        return "no failure is told the second time";
    if (!elsewhere)
        return "it cannot be saved elsewhere: " + elsewhere.message().toUtf8();
    return desk.bodyOnDisk() == u"Elsewhere." ? QByteArray() : "not what was saved elsewhere";
}

/// Starts this program anew with a file call that goes wrong in a folder: what it tells.
QByteArray runChild(const QStringList &arguments, const QString &mode, const QString &root, int at)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(IVOREL_FAULT_SHIM));
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       QStringLiteral("verify_asan_link_order=0:detect_leaks=0"));
    environment.insert(QStringLiteral("TMPDIR"), root);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), root + QStringLiteral("/data"));
    environment.insert(QStringLiteral("IVOREL_FAULT_ROOT"), root);
    environment.insert(QStringLiteral("IVOREL_FAULT_AT"), QString::number(at));
    environment.insert(QStringLiteral("IVOREL_FAULT_MODE"), mode);
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    if (!child.waitForFinished(60000) || child.exitStatus() != QProcess::NormalExit)
        return "it did not come to its end";
    return child.readAllStandardOutput();
}

/// Forbids changes to a file, or to what is in a folder, to everybody; false where that cannot be.
bool setImmutable(const QString &path, bool isImmutable)
{
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    if (handle < 0)
        return false;
    bool isDone = ::ioctl(handle, FS_IOC_GETFLAGS, &flags) == 0;
    flags = isImmutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    isDone = isDone && ::ioctl(handle, FS_IOC_SETFLAGS, &flags) == 0;
    ::close(handle);
    return isDone;
}

} // namespace
#endif

void TestAutosaveFaults::heldByOthers_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<QString>("how");
    for (const char *how : {"immutable", "immutable folder", "locked", "busy"}) {
        QTest::addRow("folder, %s", how) << false << QString::fromLatin1(how);
        QTest::addRow("bundle, %s", how) << true << QString::fromLatin1(how);
    }
}

void TestAutosaveFaults::heldByOthers()
{
#ifndef IVOREL_FAULT_SHIM
    QSKIP("what holds files here is not known");
#else
    QFETCH(bool, asBundle);
    QFETCH(QString, how);
    if (how == QLatin1String("busy")) {
        const QTemporaryDir data;
        QCOMPARE(runChild({QStringLiteral("--held"),
                           asBundle ? QStringLiteral("bundle") : QStringLiteral("folder")},
                          how, data.path(), 1),
                 QByteArray("survived"));
        return;
    }
    Desk desk(asBundle);
    const QString file = asBundle ? desk.project.path() : desk.file();
    if (how == QLatin1String("locked")) {
        // A lock of the system is a request: whoever reads goes on reading what was there, and
        // nobody's work is lost by a save.
        const QByteArray before = test::fileBytes(file);
        const int handle = ::open(QFile::encodeName(file).constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(handle >= 0 && ::flock(handle, LOCK_EX) == 0);
        desk.write(QStringLiteral("Words."));
        tick(desk);
        QByteArray read(before.size(), '\0');
        const auto size = ::read(handle, read.data(), size_t(read.size()));
        ::close(handle);
        QCOMPARE(size, ssize_t(before.size()));
        QCOMPARE(read, before);
        QCOMPARE(desk.saved.size(), 1);
        QCOMPARE(desk.bodyOnDisk(), QStringLiteral("Words."));
        return;
    }
    const QString path = how == QLatin1String("immutable") ? file : QFileInfo(file).path();
    if (!setImmutable(path, true))
        QSKIP("files cannot be made immutable here");
    const auto release = [&path] { setImmutable(path, false); };
    const QByteArray told = saveWhileHeld(
        desk, [&path] { setImmutable(path, true); }, release);
    release();
    QVERIFY2(told.isEmpty(), told.constData());
#endif
}

void TestAutosaveFaults::failingDisk_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<QString>("mode");
    for (const char *mode : {"once", "full", "refused"}) {
        QTest::addRow("folder, %s", mode) << false << QString::fromLatin1(mode);
        QTest::addRow("bundle, %s", mode) << true << QString::fromLatin1(mode);
    }
}

/// A save by the timer is done again and again with its first, second, third… file call going
/// wrong, until it ends undisturbed.
void TestAutosaveFaults::failingDisk()
{
#ifndef IVOREL_FAULT_SHIM
    QSKIP("there is no library here that makes file calls fail");
#else
    QFETCH(bool, asBundle);
    QFETCH(QString, mode);
    const QString memory = QStringLiteral("/dev/shm");
    const QString place = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    int at = 1;
    for (;; ++at) {
        QVERIFY2(at < 500, "it never ends undisturbed");
        const QTemporaryDir root(place + QStringLiteral("/ivorel fàults-XXXXXX"));
        const QByteArray told =
            runChild({QStringLiteral("--fail"),
                      asBundle ? QStringLiteral("bundle") : QStringLiteral("folder")},
                     mode, root.path(), at);
        if (told == "undisturbed")
            break;
        QVERIFY2(told == "survived", told.constData());
    }
    QVERIFY2(at > 4, "hardly anything was disturbed");
#endif
}

namespace {

#ifdef IVOREL_FAULT_SHIM
/// One save with a file call that fails: what became of it, in words; then, once the disk is well
/// again, the save by the next tick.
QByteArray saveOnFailingDisk(bool asBundle)
{
    const auto arm = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "ivorel_fault_arm"));
    const auto hasFired = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "ivorel_fault_fired"));
    if (!arm || !hasFired)
        return "nothing makes calls fail";
    const QString words = QStringLiteral("Words.");
    Desk desk(asBundle);
    desk.write(words);
    arm();
    tick(desk);
    const bool isDisturbed = hasFired() != 0;
    qputenv("IVOREL_FAULT_AT", "0");
    arm();
    if (desk.saved.size() + desk.failed.size() != 1)
        return "it did not tell how it ended";
    if (desk.document().body() != words)
        return "the words are not in the window any more";
    if (!desk.failed.isEmpty()) {
        if (!desk.project.isDirty())
            return "clean after a failure";
        if (desk.failed.first().first().toString().isEmpty())
            return "no message";
        tick(desk);
        if (desk.saved.isEmpty())
            return "the next tick failed: " + desk.failed.first().first().toString().toUtf8();
    }
    if (desk.project.isDirty() || desk.bodyOnDisk() != words)
        return "a false success";
    return isDisturbed ? "survived" : "undisturbed";
}

/// Saves while every call that changes something in the project's folder fails.
QByteArray saveInHeldFolder(bool asBundle)
{
    const auto arm = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "ivorel_fault_arm"));
    if (!arm)
        return "nothing makes calls fail";
    Desk desk(asBundle);
    qputenv("IVOREL_FAULT_ROOT", QFile::encodeName(desk.dir.filePath(QStringLiteral("held"))));
    const auto set = [arm](const char *at) {
        qputenv("IVOREL_FAULT_AT", at);
        arm();
    };
    const QByteArray told = saveWhileHeld(
        desk, [&set] { set("1"); }, [&set] { set("0"); });
    return told.isEmpty() ? "survived" : told;
}
#endif

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
#ifdef IVOREL_FAULT_SHIM
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--fail")
        || arguments.value(1) == QLatin1String("--held")) {
        const bool asBundle = arguments.value(2) == QLatin1String("bundle");
        const QByteArray told = arguments.value(1) == QLatin1String("--held")
                                    ? saveInHeldFolder(asBundle)
                                    : saveOnFailingDisk(asBundle);
        return std::fwrite(told.constData(), 1, size_t(told.size()), stdout) == size_t(told.size())
                   ? 0
                   : 1;
    }
#endif
    TestAutosaveFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_autosavefaults.moc"
