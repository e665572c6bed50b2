#include "app/storage/archivesalvage.h"

#include "app/storage/archive.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QtEndian>

#include <libdeflate.h>

#include <optional>
#include <utility>

namespace vl::app {

namespace {

const char localSignature[] = {'P', 'K', 3, 4};
const char centralSignature[] = {'P', 'K', 1, 2};
constexpr qint64 localSize = 30;
/// Summing what false headers claim ends after so many times the size of the archive.
constexpr qint64 maxPasses = 8;
/// What is left of a damaged file is for reading; no text is longer.
constexpr qint64 maxRemains = 1 << 20;
constexpr qsizetype mostRemains = 1000;

quint32 crcOf(QByteArrayView bytes)
{
    return libdeflate_crc32(0, bytes.data(), size_t(bytes.size()));
}

/// One header found by its signature, believed only as far as it can be checked.
struct LocalHeader
{
    QByteArray name;
    qint64 begin = 0; ///< of the data
    qint64 size = 0;
    quint32 crc = 0;
    bool isStored = false;

    static std::optional<LocalHeader> at(const QByteArray &bytes, qint64 offset)
    {
        if (offset + localSize > bytes.size())
            return std::nullopt;
        const auto number16 = [&](qint64 place) {
            return qFromLittleEndian<quint16>(bytes.constData() + offset + place);
        };
        const auto number32 = [&](qint64 place) {
            return qFromLittleEndian<quint32>(bytes.constData() + offset + place);
        };
        LocalHeader header;
        const qint64 nameSize = number16(26);
        header.begin = offset + localSize + nameSize + number16(28);
        if (header.begin > bytes.size())
            return std::nullopt;
        header.name = bytes.mid(offset + localSize, nameSize);
        header.crc = number32(14);
        header.size = number32(18);
        constexpr quint16 sizesFollow = 8;
        header.isStored =
            number16(8) == 0 && !(number16(6) & sizesFollow) && header.size == number32(22);
        return isSafeEntryName(header.name) ? std::optional(header) : std::nullopt;
    }
};

bool hasSignature(const QByteArray &bytes, qint64 offset, const char (&signature)[4])
{
    return QByteArrayView(bytes).sliced(offset).startsWith(QByteArrayView(signature, 4));
}

class Salvage
{
public:
    explicit Salvage(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_budget(maxPasses * bytes.size())
    {
    }

    SalvagedArchive fromDirectory(const Archive &archive)
    {
        m_result.isComplete = true;
        for (const Archive::Entry &entry : archive.entries()) {
            std::optional<QByteArray> content = archive.content(entry);
            if (content) {
                content->detach(); // from the archive, which goes away
                m_result.files.push_back({QString::fromUtf8(entry.name), *std::move(content)});
            } else {
                m_result.damaged.append(QString::fromUtf8(entry.name));
            }
        }
        return std::move(m_result);
    }

    SalvagedArchive bySearch()
    {
        const QByteArray mark(localSignature, 4);
        qint64 offset = m_bytes.indexOf(mark);
        while (offset >= 0 && m_budget >= 0)
            offset = m_bytes.indexOf(mark, take(offset));
        // What was found whole is not missing, and one that only looks like another's folder is
        // none of ours.
        QSet<QString> found;
        for (const ProjectFile &file : m_result.files)
            found.insert(file.path);
        m_result.damaged.removeIf([&](const QString &name) { return found.contains(name); });
        m_result.damaged.removeDuplicates();
        return std::move(m_result);
    }

private:
    /// Takes the file whose header may stand there; where to look for the next one.
    qint64 take(qint64 offset)
    {
        const std::optional<LocalHeader> header = LocalHeader::at(m_bytes, offset);
        if (!header)
            return offset + 1;
        const QString name = QString::fromUtf8(header->name);
        const qint64 end = header->begin + header->size;
        if (!header->isStored || end > m_bytes.size()) {
            m_result.damaged.append(name);
            if (header->isStored)
                keepRemains(name, QByteArrayView(m_bytes).sliced(header->begin));
            return offset + 1;
        }
        m_budget -= header->size;
        const QByteArrayView data = QByteArrayView(m_bytes).sliced(header->begin, header->size);
        if (crcOf(data) == header->crc) {
            keep(name, data);
            return end;
        }
        m_result.damaged.append(name);
        keepRemains(name, data);
        // The header is a true one when another follows where it says that its data ends; then
        // what lies between is that file's, even where it looks like files of its own.
        const bool isTrue = hasSignature(m_bytes, end, localSignature)
                            || hasSignature(m_bytes, end, centralSignature);
        return isTrue ? end : offset + 1;
    }

    /// What was appended to an archive is newer than what it repeats.
    void keep(const QString &name, QByteArrayView data)
    {
        const auto known = m_places.constFind(name);
        if (known == m_places.constEnd()) {
            m_places.insert(name, m_result.files.size());
            m_result.files.push_back({name, data.toByteArray()});
        } else if (QByteArray &bytes = m_result.files[*known].bytes; bytes != data) {
            m_result.repeated.push_back({name, std::exchange(bytes, data.toByteArray())});
        }
    }

    void keepRemains(const QString &name, QByteArrayView data)
    {
        if (data.size() <= maxRemains && m_result.remains.size() < mostRemains)
            m_result.remains.insert(name, data.toByteArray());
    }

    const QByteArray &m_bytes;
    qint64 m_budget;                      ///< bytes that may still be summed
    QHash<QString, std::size_t> m_places; ///< among the files
    SalvagedArchive m_result;
};

} // namespace

SalvagedArchive salvageArchive(const QByteArray &bytes)
{
    const std::optional<Archive> archive = Archive::parse(bytes);
    return archive ? Salvage(bytes).fromDirectory(*archive) : Salvage(bytes).bySearch();
}

} // namespace vl::app
