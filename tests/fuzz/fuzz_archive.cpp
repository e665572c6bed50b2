// What must hold for an archive from anywhere: the reader ends, takes no more memory than the
// archive justifies, and what it lets through can be unpacked without leaving a folder or meeting
// itself.

#include "app/storage/archive.h"

#include <QtCore/QByteArray>

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

/// What is packed again must be read again, with the same files.
void packAgain(const Archive &archive)
{
    QByteArray bytes;
    ArchiveWriter writer([&bytes](QByteArrayView piece) {
        bytes += piece;
        return Result<>();
    });
    for (const Archive::Entry &entry : archive.entries()) {
        const std::optional<QByteArray> content = archive.content(entry);
        require(writer.fits(entry.name, content->size()));
        require(bool(writer.add(entry.name, *content)));
    }
    require(bool(writer.finish()));
    const std::optional<Archive> again = Archive::parse(bytes);
    require(again && again->isSound() && again->entries().size() == archive.entries().size());
    for (const Archive::Entry &entry : archive.entries()) {
        const Archive::Entry *found = again->find(entry.name);
        require(found && !found->deflated && again->content(*found) == archive.content(entry));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const std::optional<Archive> archive = Archive::parse(bytes);
    if (!archive)
        return 0;
    std::set<QByteArray> names;
    qint64 total = 0;
    for (const Archive::Entry &entry : archive->entries()) {
        require(isSafeEntryName(entry.name) && names.insert(entry.name).second);
        require(archive->find(entry.name) == &entry);
        require(entry.offset >= 0 && entry.storedSize >= 0
                && entry.offset + entry.storedSize <= bytes.size());
        const std::optional<QByteArray> content = archive->content(entry);
        require(!content || content->size() == entry.size);
        total += entry.size;
    }
    require(total <= (qint64(256) << 20) + 100 * bytes.size());
    for (const QByteArray &name : names) {
        for (qsizetype slash = name.indexOf('/'); slash > 0; slash = name.indexOf('/', slash + 1))
            require(!names.contains(name.left(slash)));
    }
    if (archive->isSound())
        packAgain(*archive);
    return 0;
}
