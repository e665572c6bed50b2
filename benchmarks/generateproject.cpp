#include "app/storage/projectwriter.h"
#include "benchmarks/support/generatedproject.h"

#include <QtCore/QString>

#include <cstdio>
#include <cstdlib>

/// Writes a generated project into a folder: generateproject OBJECTS FOLDER.
int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fputs("Usage: generateproject OBJECTS FOLDER\n", stderr);
        return 2;
    }
    const auto project = vl::bench::generateProject(std::atoi(argv[1]));
    const vl::app::Result<> saved = vl::app::saveProject(*project, QString::fromLocal8Bit(argv[2]),
                                                         vl::app::Durability::Atomic);
    if (!saved)
        std::fprintf(stderr, "%s\n", qUtf8Printable(saved.message()));
    return saved ? 0 : 3;
}
