#include "tests/support/zipbuilder.h"

#include <QtCore/QtEndian>

namespace vl::test {

namespace {

class Bytes
{
public:
    Bytes &u16(quint32 value) { return append(qToLittleEndian(quint16(value))); }
    Bytes &u32(quint32 value) { return append(qToLittleEndian(value)); }
    Bytes &raw(const QByteArray &bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    const QByteArray &all() const { return m_bytes; }

private:
    template<typename T>
    Bytes &append(T value)
    {
        m_bytes.append(reinterpret_cast<const char *>(&value), sizeof value);
        return *this;
    }

    QByteArray m_bytes;
};

} // namespace

quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

QByteArray ZipArchive::bytes() const
{
    QByteArray out = prefix;
    Bytes directory;
    for (const ZipEntry &entry : entries) {
        const quint32 crc = entry.crc.value_or(crc32(entry.data));
        const quint32 storedSize = entry.storedSize.value_or(quint32(entry.data.size()));
        const quint32 size = entry.size.value_or(storedSize);
        const QByteArray localName = entry.localName.value_or(entry.name);
        const auto offset = quint32(out.size());

        Bytes local;
        local.raw("PK\x03\x04").u16(20).u16(entry.localFlags.value_or(entry.flags));
        local.u16(entry.localMethod.value_or(entry.method)).u16(0).u16(33);
        local.u32(entry.localCrc.value_or(crc)).u32(entry.localStoredSize.value_or(storedSize));
        local.u32(entry.localSize.value_or(size)).u16(quint32(localName.size()));
        local.u16(quint32(entry.localExtra.size())).raw(localName).raw(entry.localExtra);
        out += local.all() + entry.data + entry.trailer;

        directory.raw("PK\x01\x02").u16(20).u16(20).u16(entry.flags).u16(entry.method);
        directory.u16(0).u16(33).u32(crc).u32(storedSize).u32(size);
        directory.u16(quint32(entry.name.size())).u16(quint32(entry.centralExtra.size()));
        directory.u16(0).u16(0).u16(0).u32(entry.externalAttributes);
        directory.u32(entry.offset.value_or(offset)).raw(entry.name).raw(entry.centralExtra);
    }
    Bytes end;
    end.raw("PK\x05\x06").u32(disks);
    end.u16(countHere.value_or(quint16(entries.size())))
        .u16(count.value_or(quint16(entries.size())));
    end.u32(directorySize.value_or(quint32(directory.all().size())));
    end.u32(directoryOffset.value_or(quint32(out.size())));
    end.u16(commentSize.value_or(quint16(comment.size()))).raw(comment);
    return out + directory.all() + afterDirectory + end.all() + garbage;
}

} // namespace vl::test
