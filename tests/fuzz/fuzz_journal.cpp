// What must hold for a journal from any bytes: reading it ends, and what it says of a file comes
// from its own bytes. The checksums are made right, so that what lies behind them is reached.

#include "app/storage/journal.h"

#include <QtCore/QtEndian>

#include <cstdint>
#include <cstdlib>
#include <libdeflate.h>

using namespace vl::app;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

QByteArray number(quint32 value)
{
    const quint32 little = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&little), sizeof little);
}

QByteArray piece(const QByteArray &bytes)
{
    return number(quint32(bytes.size()))
           + number(libdeflate_crc32(0, bytes.constData(), size_t(bytes.size()))) + bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)parseJournal(bytes);
    // The same bytes as pieces behind a head, parted at each "|".
    static const QByteArray head = [] {
        LockHolder writer;
        writer.token = QStringLiteral("t");
        writer.process = 1;
        const QByteArray text = writer.toJson().replace('\n', "\\n").replace('"', "\\\"");
        const QByteArray json = "{\"path\":\"/a\",\"writer\":\"" + text + "\"}";
        return "IVOREL JOURNAL 1\n" + piece(number(quint32(json.size())) + json);
    }();
    QByteArray journal = head;
    for (const QByteArray &part : bytes.split('|'))
        journal += piece(part);
    const std::optional<Journal> read = parseJournal(journal);
    require(read.has_value());
    for (const auto &[path, file] : read->files) {
        require(file.change.path == path);
        if (file.change.bytes && !file.versions.empty())
            require(file.goesOnFrom(file.change.bytes));
    }
    return 0;
}
