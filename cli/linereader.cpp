#include "cli/linereader.h"

namespace vl::cli {

LineReader::Kind LineReader::next(QByteArray &line)
{
    const qsizetype lineEnd = m_bytes.indexOf('\n', m_searched);
    if (lineEnd < 0 && !m_isEnded) {
        m_isSkipping = m_isSkipping || m_bytes.size() > m_limit;
        if (m_isSkipping)
            m_bytes.clear();
        m_searched = m_bytes.size();
        return Kind::More;
    }
    if (lineEnd < 0 && m_bytes.isEmpty() && !m_isSkipping)
        return Kind::More; // the end
    const qsizetype length = lineEnd < 0 ? m_bytes.size() : lineEnd;
    const bool isTooLong = m_isSkipping || length > m_limit;
    line = isTooLong ? QByteArray() : m_bytes.first(length);
    m_bytes.remove(0, lineEnd < 0 ? length : length + 1);
    m_searched = 0;
    m_isSkipping = false;
    return isTooLong ? Kind::TooLong : Kind::Line;
}

} // namespace vl::cli
