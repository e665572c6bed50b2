#include "app/storage/json/jsonwriter.h"

#include <QtCore/QLocale>

#include <array>
#include <cmath>
#include <cstring>

namespace vl::app {

namespace {

constexpr int indentWidth = 4;
/// The most bytes that one UTF-16 unit becomes: an escape.
constexpr qsizetype longestUnit = 6;
/// Long texts are converted in pieces of this many units, so that the buffer grows with need.
constexpr qsizetype pieceSize = 4096;

/// Whether an ASCII character stands for itself inside a JSON string.
constexpr auto isPlain = [] {
    std::array<bool, 128> plain{};
    for (std::size_t c = 0x20; c < plain.size(); ++c)
        plain[c] = c != '"' && c != '\\';
    return plain;
}();

char *putUnicodeEscape(char *out, char16_t unit)
{
    constexpr char digits[] = "0123456789abcdef";
    *out++ = '\\';
    *out++ = 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        *out++ = digits[(unit >> shift) & 0xF];
    return out;
}

char *putAsciiEscape(char *out, char16_t unit)
{
    char letter = 0;
    switch (unit) {
    case '"':
    case '\\':
        letter = char(unit);
        break;
    case '\b':
        letter = 'b';
        break;
    case '\f':
        letter = 'f';
        break;
    case '\n':
        letter = 'n';
        break;
    case '\r':
        letter = 'r';
        break;
    case '\t':
        letter = 't';
        break;
    default:
        return putUnicodeEscape(out, unit);
    }
    *out++ = '\\';
    *out++ = letter;
    return out;
}

char *putUtf8(char *out, char32_t c)
{
    if (c < 0x800) {
        *out++ = char(0xC0 | (c >> 6));
    } else {
        if (c < 0x10000) {
            *out++ = char(0xE0 | (c >> 12));
        } else {
            *out++ = char(0xF0 | (c >> 18));
            *out++ = char(0x80 | ((c >> 12) & 0x3F));
        }
        *out++ = char(0x80 | ((c >> 6) & 0x3F));
    }
    *out++ = char(0x80 | (c & 0x3F));
    return out;
}

/// Converts the units from `at` up to `stop`, or one more where a pair would be cut; `end` is the
/// end of the whole text. Moves `at` behind what it took.
char *putPiece(char *out, const char16_t *&at, const char16_t *stop, const char16_t *end)
{
    while (at < stop) {
        const char16_t unit = *at++;
        if (unit < 0x80) {
            if (isPlain[unit])
                *out++ = char(unit);
            else
                out = putAsciiEscape(out, unit);
        } else if (!QChar::isSurrogate(unit)) {
            out = putUtf8(out, unit);
        } else if (QChar::isHighSurrogate(unit) && at < end && QChar::isLowSurrogate(*at)) {
            out = putUtf8(out, QChar::surrogateToUcs4(unit, *at++));
        } else {
            out = putUnicodeEscape(out, unit); // half a pair has no UTF-8 form
        }
    }
    return out;
}

} // namespace

char *JsonWriter::reserve(qsizetype count)
{
    if (m_buffer.size() - m_size < count)
        m_buffer.resize(qMax(m_size + count, qMax<qsizetype>(4096, m_buffer.size() * 2)));
    return m_buffer.data() + m_size;
}

void JsonWriter::append(std::string_view text)
{
    if (text.empty()) // which may have no address
        return;
    std::memcpy(reserve(qsizetype(text.size())), text.data(), text.size());
    m_size += qsizetype(text.size());
}

void JsonWriter::beginLine()
{
    const qsizetype width = 1 + qsizetype(m_depth) * indentWidth;
    char *out = reserve(width);
    *out = '\n';
    std::memset(out + 1, ' ', size_t(width - 1));
    m_size += width;
}

void JsonWriter::beginValue()
{
    if (m_hasName) {
        m_hasName = false;
        return;
    }
    if (m_depth == 0)
        return;
    if (!m_isFirst)
        put(',');
    m_isFirst = false;
    beginLine();
}

void JsonWriter::open(char bracket)
{
    beginValue();
    put(bracket);
    ++m_depth;
    m_isFirst = true;
}

void JsonWriter::close(char bracket)
{
    Q_ASSERT(m_depth > 0 && !m_hasName);
    --m_depth;
    beginLine();
    put(bracket);
    m_isFirst = false;
}

void JsonWriter::name(std::string_view ascii)
{
    plainString(ascii);
    append(": ");
    m_hasName = true;
}

void JsonWriter::name(QStringView text)
{
    string(text);
    append(": ");
    m_hasName = true;
}

void JsonWriter::literal(std::string_view text)
{
    beginValue();
    append(text);
}

void JsonWriter::plainString(std::string_view ascii)
{
    beginValue();
    put('"');
    append(ascii);
    put('"');
}

void JsonWriter::string(QStringView text)
{
    beginValue();
    put('"');
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    while (at < end) {
        const char16_t *const stop = at + qMin<qsizetype>(pieceSize, end - at);
        // A pair that is cut takes four bytes for two units, so there is room for it.
        char *const begin = reserve((stop - at) * longestUnit);
        m_size += putPiece(begin, at, stop, end) - begin;
    }
    put('"');
}

void JsonWriter::integer(qint64 value)
{
    beginValue();
    // Room for any 64-bit number with its sign; written from the end.
    char digits[20];
    char *const end = digits + sizeof digits;
    char *at = end;
    quint64 rest = value < 0 ? 0 - quint64(value) : quint64(value);
    do {
        *--at = char('0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (value < 0)
        *--at = '-';
    append({at, size_t(end - at)});
}

void JsonWriter::number(double value)
{
    constexpr double exactIntegers = 9007199254740992.0; // 2^53
    if (!std::isfinite(value)) {
        literal("null");
    } else if (std::abs(value) <= exactIntegers && value == std::trunc(value)) {
        integer(qint64(value));
    } else {
        const QByteArray text = QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
        literal({text.constData(), size_t(text.size())});
    }
}

QByteArray JsonWriter::finish()
{
    Q_ASSERT(m_depth == 0 && !m_hasName);
    put('\n');
    QByteArray text(m_buffer.constData(), m_size);
    m_size = 0;
    return text;
}

} // namespace vl::app
