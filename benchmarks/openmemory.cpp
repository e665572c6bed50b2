// Opens a project folder and prints its bytes beside the peak memory of having it open; without an
// argument a folder of 10 000 objects, made by a process of its own. The aim is at most 2.5 times
// the bytes plus 30 MB.

#include "app/storage/folderstore.h"
#include "app/storage/projectwriter.h"
#include "benchmarks/support/generatedproject.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <cstdio>

using namespace vl::app;

namespace {

double peakMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).chopped(3).trimmed().toDouble() * 1024 / 1e6;
    return 0;
}

int openAndPrint(const QString &folder)
{
    const double before = peakMegabytes();
    FolderStore store(folder);
    const auto project = store.load();
    if (!project) {
        std::fprintf(stderr, "%s\n", qPrintable(project.message()));
        return 1;
    }
    const double peak = peakMegabytes();
    double bytes = 0;
    QDirIterator at(folder, QDir::Files, QDirIterator::Subdirectories);
    while (at.hasNext()) {
        at.next();
        bytes += double(at.fileInfo().size()) / 1e6;
    }
    std::printf("objects %lld, folder %.1f MB, peak %.1f MB (%.1f before opening), limit %.1f MB\n",
                static_cast<long long>((*project)->size()), bytes, peak, before, 2.5 * bytes + 30);
    return peak <= 2.5 * bytes + 30 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--make") == 0)
        return saveProject(*vl::bench::generateProject(10000), QFile::decodeName(argv[2]),
                           Durability::Atomic)
                   ? 0
                   : 1;
    if (argc == 2)
        return openAndPrint(QFile::decodeName(argv[1]));
    const QTemporaryDir folder;
    const QString project = folder.filePath(QStringLiteral("project"));
    const QString program = QFile::decodeName(argv[0]);
    if (QProcess::execute(program, {QStringLiteral("--make"), project}) != 0)
        return 1;
    return openAndPrint(project);
}
