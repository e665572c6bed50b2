#include "app/storage/archive.h"

#include <QtCore/QUtf8StringView>
#include <QtCore/QtEndian>

#include <libdeflate.h>

#include <algorithm>
#include <memory>

namespace vl::app {

namespace {

constexpr quint32 localSignature = 0x04034B50;
constexpr quint32 centralSignature = 0x02014B50;
constexpr quint32 endSignature = 0x06054B50;
constexpr qint64 localSize = 30;
constexpr qint64 centralSize = 46;
constexpr qint64 endSize = 22;
constexpr qint64 maxNameSize = 65535;
constexpr qint64 maxCommentSize = 65535;

constexpr quint16 version = 20;
constexpr quint16 fixedDate = 33; // 1980-01-01
constexpr quint16 methodStored = 0;
constexpr quint16 methodDeflated = 8;

// Flags that change nothing for a reader of the directory: how hard the packer tried, sizes
// repeated behind the data, names in UTF-8. Encryption and patches are none of them.
constexpr quint16 harmlessFlags = 0x0002 | 0x0004 | 0x0008 | 0x0800;
constexpr quint16 sizesFollowFlag = 0x0008;

// Deflate cannot expand further than this.
constexpr qint64 maxExpansion = 1032;
// What all files together may take when an archive is unpacked: so much, and so much a byte of it.
constexpr qint64 unsuspectedBytes = qint64(256) << 20;
constexpr qint64 unsuspectedExpansion = 100;

template<typename T>
void put(QByteArray &out, T value)
{
    const T little = qToLittleEndian(value);
    out.append(reinterpret_cast<const char *>(&little), sizeof little);
}

template<typename T>
T get(const QByteArray &bytes, qint64 offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

quint32 crcOf(QByteArrayView bytes)
{
    return libdeflate_crc32(0, bytes.data(), size_t(bytes.size()));
}

/// The fields from "version needed" to "extra length", which both headers share.
void putCommonFields(QByteArray &out, quint32 crc, quint32 size, quint16 nameSize)
{
    put<quint16>(out, version);
    put<quint16>(out, 0); // flags
    put<quint16>(out, methodStored);
    put<quint16>(out, 0); // time
    put<quint16>(out, fixedDate);
    put<quint32>(out, crc);
    put<quint32>(out, size);
    put<quint32>(out, size);
    put<quint16>(out, nameSize);
    put<quint16>(out, 0); // extra length
}

QByteArrayView cutName(QByteArrayView name)
{
    return name.first(qMin<qsizetype>(name.size(), maxNameSize));
}

/// The order of bytes, but with "/" before every other: what lies in a folder follows it directly.
bool folderFirst(QByteArrayView a, QByteArrayView b)
{
    const auto [left, right] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    if (left == a.end() || right == b.end())
        return left == a.end() && right != b.end();
    if (*left == '/' || *right == '/')
        return *left == '/';
    return uchar(*left) < uchar(*right);
}

bool isFolderName(QByteArrayView name)
{
    return name.endsWith('/');
}

/// Whether the attributes, which carry a Unix mode above, are those of a file or a folder.
bool isPlainMode(quint32 attributes, bool folder)
{
    const quint32 type = attributes >> 28;
    return type == 0 || type == (folder ? 4U : 8U);
}

struct FreeDecompressor
{
    void operator()(libdeflate_decompressor *it) const { libdeflate_free_decompressor(it); }
};

/// The unpacked bytes; nothing unless exactly `size` come out of exactly all of `packed`.
std::optional<QByteArray> inflate(QByteArrayView packed, qint64 size)
{
    const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(
        libdeflate_alloc_decompressor());
    if (!decompressor)
        return std::nullopt;
    QByteArray bytes(size, Qt::Uninitialized);
    size_t taken = 0;
    size_t given = 0;
    const libdeflate_result result =
        libdeflate_deflate_decompress_ex(decompressor.get(), packed.data(), size_t(packed.size()),
                                         bytes.data(), size_t(size), &taken, &given);
    if (result != LIBDEFLATE_SUCCESS || taken != size_t(packed.size()) || given != size_t(size))
        return std::nullopt;
    return bytes;
}

} // namespace

bool isSafeEntryName(QByteArrayView name)
{
    if (name.isEmpty() || name.contains('\0') || name.contains('\\')
        || !QUtf8StringView(name.data(), name.size()).isValidUtf8())
        return false;
    const char first = char(name[0] | 0x20);
    if (name.size() >= 2 && name[1] == ':' && first >= 'a' && first <= 'z')
        return false;
#ifdef Q_OS_WIN
    if (name.contains(':')) // would name a stream inside a file
        return false;
#endif
    qsizetype start = 0;
    while (start <= name.size()) {
        const qsizetype slash = name.indexOf('/', start);
        const QByteArrayView part = name.sliced(start, (slash < 0 ? name.size() : slash) - start);
        if (part.isEmpty() || part == "." || part == "..")
            return false;
        if (slash < 0)
            break;
        start = slash + 1;
    }
    return true;
}

bool areDistinctNames(std::vector<QByteArrayView> names)
{
    std::sort(names.begin(), names.end(), folderFirst);
    for (size_t i = 1; i < names.size(); ++i) {
        const QByteArrayView before = names[i - 1];
        const QByteArrayView name = names[i];
        if (name == before)
            return false;
        const bool inside = !isFolderName(before) && name.size() > before.size()
                            && name.startsWith(before) && name[before.size()] == '/';
        if (inside)
            return false;
    }
    return true;
}

ArchiveWriter::ArchiveWriter(Sink sink)
    : m_sink(std::move(sink))
{
}

bool ArchiveWriter::fits(QByteArrayView name, qint64 size) const
{
    const qint64 nameSize = cutName(name).size();
    return m_count < maxEntries && size < maxBytes
           && m_offset + localSize + nameSize + size + m_directory.size() + centralSize + nameSize
                      + endSize
                  <= maxBytes;
}

Result<> ArchiveWriter::add(QByteArrayView name, QByteArrayView bytes)
{
    Q_ASSERT(fits(name, bytes.size()));
    name = cutName(name);
    const quint32 crc = crcOf(bytes);
    const auto size = quint32(bytes.size());
    const auto nameSize = quint16(name.size());

    QByteArray header;
    header.reserve(localSize + name.size());
    put(header, localSignature);
    putCommonFields(header, crc, size, nameSize);
    header.append(name);

    put(m_directory, centralSignature);
    put(m_directory, version); // made by
    putCommonFields(m_directory, crc, size, nameSize);
    put<quint16>(m_directory, 0); // comment length
    put<quint16>(m_directory, 0); // disk number
    put<quint16>(m_directory, 0); // internal attributes
    put<quint32>(m_directory, 0); // external attributes
    put(m_directory, quint32(m_offset));
    m_directory.append(name);

    m_offset += header.size() + bytes.size();
    ++m_count;
    if (Result<> written = m_sink(header); !written)
        return written;
    return m_sink(bytes);
}

Result<> ArchiveWriter::finish()
{
    const auto size = quint32(m_directory.size());
    put(m_directory, endSignature);
    put<quint16>(m_directory, 0); // this disk
    put<quint16>(m_directory, 0); // the directory's disk
    put(m_directory, quint16(m_count));
    put(m_directory, quint16(m_count));
    put(m_directory, size);
    put(m_directory, quint32(m_offset));
    put<quint16>(m_directory, 0); // comment length
    return m_sink(std::exchange(m_directory, {}));
}

/// Where the directory lies, as the end record has it.
struct Archive::Directory
{
    qint64 offset = 0;
    qint64 end = 0;
    int count = 0;
};

std::optional<Archive> Archive::parse(QByteArray bytes)
{
    Archive archive(std::move(bytes));
    const std::optional<Directory> directory = archive.findDirectory();
    if (!directory || !archive.readDirectory(*directory))
        return std::nullopt;
    return archive;
}

std::optional<Archive::Directory> Archive::findDirectory() const
{
    const qint64 last = m_bytes.size() - endSize;
    const qint64 first = qMax<qint64>(0, last - maxCommentSize);
    for (qint64 at = last; at >= first; --at) {
        if (get<quint32>(m_bytes, at) != endSignature)
            continue;
        const quint16 commentSize = get<quint16>(m_bytes, at + 20);
        const quint16 count = get<quint16>(m_bytes, at + 10);
        Directory directory;
        directory.count = count;
        directory.offset = get<quint32>(m_bytes, at + 16);
        directory.end = directory.offset + get<quint32>(m_bytes, at + 12);
        // The directory ends where its end record begins. The records of the 64-bit extensions
        // would lie between the two, so an archive that has them is refused here.
        const bool consistent = get<quint32>(m_bytes, at + 4) == 0 // both disk numbers
                                && get<quint16>(m_bytes, at + 8) == count && directory.end == at
                                && at + endSize + commentSize <= m_bytes.size()
                                && count * centralSize <= directory.end - directory.offset;
        if (consistent)
            return directory;
    }
    return std::nullopt;
}

bool Archive::readDirectory(const Directory &directory)
{
    struct Extent
    {
        qint64 start;
        qint64 end;
    };
    std::vector<Extent> extents;
    extents.reserve(size_t(directory.count));
    std::vector<Entry> all;
    all.reserve(size_t(directory.count));

    qint64 at = directory.offset;
    qint64 total = 0;
    for (int i = 0; i < directory.count; ++i) {
        if (directory.end - at < centralSize || get<quint32>(m_bytes, at) != centralSignature)
            return false;
        const quint16 flags = get<quint16>(m_bytes, at + 8);
        const quint16 method = get<quint16>(m_bytes, at + 10);
        const quint16 nameSize = get<quint16>(m_bytes, at + 28);
        const qint64 next = at + centralSize + nameSize + get<quint16>(m_bytes, at + 30)
                            + get<quint16>(m_bytes, at + 32);
        if (next > directory.end || (method != methodStored && method != methodDeflated))
            return false;

        Entry entry;
        entry.name = m_bytes.mid(at + centralSize, nameSize);
        entry.crc = get<quint32>(m_bytes, at + 16);
        entry.storedSize = get<quint32>(m_bytes, at + 20);
        entry.size = get<quint32>(m_bytes, at + 24);
        entry.deflated = method == methodDeflated;
        const qint64 header = get<quint32>(m_bytes, at + 42);
        const bool folder = isFolderName(entry.name);
        const bool sizesFit = entry.deflated ? entry.size <= entry.storedSize * maxExpansion
                                             : entry.size == entry.storedSize;
        total += entry.size;
        if ((flags & ~harmlessFlags) != 0 || !sizesFit || (folder && entry.size != 0)
            || get<quint16>(m_bytes, at + 34) != 0 // disk number
            || !isPlainMode(get<quint32>(m_bytes, at + 38), folder)
            || !isSafeEntryName(QByteArrayView(entry.name).chopped(folder ? 1 : 0))
            || !agreesWithLocalHeader(entry, flags, header, directory.offset))
            return false;
        extents.push_back({header, entry.offset + entry.storedSize});
        all.push_back(std::move(entry));
        at = next;
    }
    std::vector<QByteArrayView> names;
    names.reserve(all.size());
    for (const Entry &entry : all)
        names.emplace_back(entry.name);
    if (at != directory.end || total > unsuspectedBytes + unsuspectedExpansion * m_bytes.size()
        || !areDistinctNames(std::move(names)))
        return false;

    std::sort(extents.begin(), extents.end(),
              [](const Extent &a, const Extent &b) { return a.start < b.start; });
    for (size_t i = 1; i < extents.size(); ++i) {
        if (extents[i].start < extents[i - 1].end)
            return false;
    }
    std::erase_if(all, [](const Entry &entry) { return isFolderName(entry.name); });
    std::sort(all.begin(), all.end(),
              [](const Entry &a, const Entry &b) { return a.name < b.name; });
    m_entries = std::move(all);
    return true;
}

/// Compares the entry with the header before its data, which must end before `end`, and learns
/// where the data begins.
bool Archive::agreesWithLocalHeader(Entry &entry, quint16 flags, qint64 header, qint64 end) const
{
    if (header > end - localSize || get<quint32>(m_bytes, header) != localSignature
        || get<quint16>(m_bytes, header + 6) != flags
        || get<quint16>(m_bytes, header + 8) != (entry.deflated ? methodDeflated : methodStored))
        return false;
    const quint32 crc = get<quint32>(m_bytes, header + 14);
    const quint32 storedSize = get<quint32>(m_bytes, header + 18);
    const quint32 size = get<quint32>(m_bytes, header + 22);
    const bool toFollow =
        (flags & sizesFollowFlag) != 0 && crc == 0 && storedSize == 0 && size == 0;
    if (!toFollow && (crc != entry.crc || storedSize != entry.storedSize || size != entry.size))
        return false;
    const quint16 nameSize = get<quint16>(m_bytes, header + 26);
    entry.offset = header + localSize + nameSize + get<quint16>(m_bytes, header + 28);
    return entry.offset + entry.storedSize <= end
           && entry.name == QByteArrayView(m_bytes).sliced(header + localSize, nameSize);
}

const Archive::Entry *Archive::find(QByteArrayView name) const
{
    const auto it = std::lower_bound(m_entries.begin(), m_entries.end(), name,
                                     [](const Entry &entry, QByteArrayView wanted) {
                                         return QByteArrayView(entry.name) < wanted;
                                     });
    return it != m_entries.end() && it->name == name ? &*it : nullptr;
}

std::optional<QByteArray> Archive::content(const Entry &entry) const
{
    QByteArray bytes =
        QByteArray::fromRawData(m_bytes.constData() + entry.offset, entry.storedSize);
    if (entry.deflated) {
        std::optional<QByteArray> inflated = inflate(bytes, entry.size);
        if (!inflated)
            return std::nullopt;
        bytes = std::move(*inflated);
    }
    if (crcOf(bytes) != entry.crc)
        return std::nullopt;
    return bytes;
}

bool Archive::isSound() const
{
    return std::all_of(m_entries.begin(), m_entries.end(),
                       [this](const Entry &entry) { return content(entry).has_value(); });
}

} // namespace vl::app
