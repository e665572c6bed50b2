#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QHashFunctions>

namespace vl::app {

/// Tells within one run of the program whether a file still has the bytes it had: its size and a
/// hash of 64 bits. Not for storing, and no proof against someone who wants two files to look
/// alike.
struct FileStamp
{
    qint64 size = 0;
    quint64 hash = 0;

    static FileStamp of(QByteArrayView bytes)
    {
        constexpr size_t seed = 0x5ee5;
        return {bytes.size(), qHashBits(bytes.data(), size_t(bytes.size()), seed)};
    }

    bool operator==(const FileStamp &) const = default;
};

} // namespace vl::app
