// What must hold for what is salvaged from any bytes: it ends, takes no more memory than there was,
// and every name may be written below a folder and comes once. Of an archive that can be read as a
// whole nothing is lost.

#include "app/storage/archive.h"
#include "app/storage/archivesalvage.h"

#include <cstdint>
#include <cstdlib>
#include <set>

using namespace vl::app;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const SalvagedArchive salvaged = salvageArchive(bytes);
    std::set<QString> names;
    qint64 total = 0;
    for (const ProjectFile &file : salvaged.files) {
        require(isSafeEntryName(file.path.toUtf8()) && names.insert(file.path).second);
        total += file.bytes.size();
    }
    for (const QString &name : salvaged.damaged)
        require(isSafeEntryName(name.toUtf8()) && !names.contains(name));
    if (!salvaged.isComplete)
        require(total <= bytes.size());
    const std::optional<Archive> archive = Archive::parse(bytes);
    require(salvaged.isComplete == archive.has_value());
    if (archive && archive->isSound())
        require(salvaged.files.size() == archive->entries().size());
    return 0;
}
