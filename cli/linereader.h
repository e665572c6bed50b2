#pragma once

#include <QtCore/QByteArray>

namespace vl::cli {

/// Cuts bytes that come in pieces into lines. A line beyond the limit is told as such and its bytes
/// are dropped as they come, so that memory stays bounded.
class LineReader
{
public:
    enum class Kind
    {
        Line,
        TooLong, ///< its bytes are not kept
        More     ///< no whole line is there yet
    };

    explicit LineReader(qsizetype limit)
        : m_limit(limit)
    {
    }

    void add(QByteArrayView bytes) { m_bytes.append(bytes); }
    /// Says that no more bytes come: what is left is a line as well.
    void end() { m_isEnded = true; }

    /// Gives the next line without its line feed.
    Kind next(QByteArray &line);

private:
    qsizetype m_limit;
    QByteArray m_bytes;
    qsizetype m_searched = 0; ///< so many of them are known to hold no line feed
    bool m_isSkipping = false;
    bool m_isEnded = false;
};

} // namespace vl::cli
