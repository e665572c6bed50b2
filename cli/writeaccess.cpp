#include "cli/writeaccess.h"

#include "app/base/files.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

namespace vl::cli {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::WriteAccess)
};

QString whoHasIt(const QString &path, const app::LockHolder &holder, app::HolderState state)
{
    QStringList sentences;
    if (holder.token.isEmpty()) {
        sentences.append(
            app::withPath(Texts::tr("The project may be open in another program: %1"), path));
        sentences.append(Texts::tr("Nobody knows who has it open: its lock cannot be read."));
    } else {
        sentences.append(
            app::withPath(Texts::tr("The project is open in another program: %1"), path));
        sentences.append(
            Texts::tr("%1 has it open on “%2” (process %3) since %4.")
                .arg(holder.user, holder.host, QString::number(holder.process),
                     QLocale().toString(holder.since.toLocalTime(), QLocale::ShortFormat)));
    }
    sentences.append(
        state == app::HolderState::Running
            ? Texts::tr("Close it there, then try again.")
            : Texts::tr("If no program has it open any more, try again with --anyway."));
    return sentences.join(u'\n');
}

} // namespace

app::Result<WriteAccess> WriteAccess::to(const QString &path, bool anyway)
{
    // An empty folder is taken as a whole, so nothing may be put into it, and nobody has it open.
    const QFileInfo info(path);
    if (info.isDir() && !QFileInfo::exists(app::ProjectLock::filePath(path))
        && QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                              | QDir::NoDotAndDotDot))
        return WriteAccess(nullptr);
    const app::LockHolder self = app::LockHolder::current();
    app::LockAttempt attempt = app::ProjectLock::take(path, self);
    if (attempt.holder && anyway && attempt.holderState == app::HolderState::Unknown)
        attempt = app::ProjectLock::takeOver(path, self);
    if (attempt.holder)
        return app::failure(whoHasIt(path, *attempt.holder, attempt.holderState));
    return WriteAccess(std::move(attempt.lock));
}

} // namespace vl::cli
