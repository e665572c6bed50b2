#pragma once

#include <QtCore/QByteArray>

#include <optional>
#include <vector>

namespace vl::test {

/// One entry of an archive made for a test. What is left unset is made to fit.
struct ZipEntry
{
    QByteArray name = {};
    QByteArray data = {}; ///< as it stands in the archive
    quint16 flags = 0;
    quint16 method = 0;
    quint32 externalAttributes = 0;
    QByteArray localExtra = {};
    QByteArray centralExtra = {};
    QByteArray trailer = {}; ///< bytes behind the data that belong to no header
    std::optional<quint32> crc = {};
    std::optional<quint32> storedSize = {};
    std::optional<quint32> size = {};
    std::optional<quint32> offset = {}; ///< of the local header, as the directory tells it
    std::optional<QByteArray> localName = {};
    std::optional<quint16> localMethod = {};
    std::optional<quint16> localFlags = {};
    std::optional<quint32> localCrc = {};
    std::optional<quint32> localStoredSize = {};
    std::optional<quint32> localSize = {};
};

/// An archive made for a test, valid unless its fields say otherwise.
struct ZipArchive
{
    std::vector<ZipEntry> entries;
    QByteArray prefix = {};         ///< before the first entry
    QByteArray afterDirectory = {}; ///< between the directory and its end record
    QByteArray comment = {};
    QByteArray garbage = {}; ///< behind the comment
    quint32 disks = 0;       ///< both disk numbers
    std::optional<quint16> countHere = {};
    std::optional<quint16> count = {};
    std::optional<quint32> directorySize = {};
    std::optional<quint32> directoryOffset = {};
    std::optional<quint16> commentSize = {};

    QByteArray bytes() const;
};

/// The CRC-32 of ZIP archives, bit by bit.
quint32 crc32(const QByteArray &bytes);

} // namespace vl::test
