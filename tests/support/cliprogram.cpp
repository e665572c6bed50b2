#include "tests/support/cliprogram.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>

namespace vl::test {

Outcome runCli(const QString &program, const QStringList &arguments, const QByteArray &input,
               const QString &workingFolder)
{
    QProcess process;
    if (!workingFolder.isEmpty())
        process.setWorkingDirectory(workingFolder);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError()).trimmed()};
}

bool writeTestFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
           && file.write(bytes) == bytes.size();
}

} // namespace vl::test
