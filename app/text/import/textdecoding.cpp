#include "app/text/import/textdecoding.h"

#include <QtCore/QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace vl::app {

namespace {

// Windows-1252 from 0x80 to 0x9F; everything above is as in Unicode. The five places that it leaves
// open are the replacement character.
constexpr std::array<char16_t, 32> windows1252{
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

constexpr qsizetype sampleSize = 0x10000;

QChar fromWindows1252(uchar byte)
{
    return {byte >= 0x80 && byte < 0xA0 ? windows1252[byte - 0x80] : char16_t(byte)};
}

/// The length of the UTF-8 sequence of a character beyond ASCII at `at`; 0 when there is none.
qsizetype utf8Length(QByteArrayView bytes, qsizetype at)
{
    const auto byte = [&](qsizetype i) { return i < bytes.size() ? uchar(bytes[i]) : uchar(0); };
    const auto follows = [&](qsizetype i) { return (byte(i) & 0xC0) == 0x80; };
    const uchar first = byte(at);
    const uchar second = byte(at + 1);
    if (first >= 0xC2 && first <= 0xDF)
        return follows(at + 1) ? 2 : 0;
    if (first >= 0xE0 && first <= 0xEF) {
        const bool isInRange =
            !(first == 0xE0 && second < 0xA0) && !(first == 0xED && second > 0x9F);
        return isInRange && follows(at + 1) && follows(at + 2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const bool isInRange =
            !(first == 0xF0 && second < 0x90) && !(first == 0xF4 && second > 0x8F);
        return isInRange && follows(at + 1) && follows(at + 2) && follows(at + 3) ? 4 : 0;
    }
    return 0;
}

struct Utf8Count
{
    qsizetype good = 0; ///< characters beyond ASCII
    qsizetype bad = 0;  ///< runs of bytes that belong to none
};

Utf8Count countUtf8(QByteArrayView bytes)
{
    Utf8Count count;
    qsizetype badEnd = -1;
    for (qsizetype i = 0; i < bytes.size();) {
        if (uchar(bytes[i]) < 0x80) {
            ++i;
            continue;
        }
        const qsizetype length = utf8Length(bytes, i);
        if (length > 0)
            ++count.good;
        else if (std::exchange(badEnd, i + 1) != i)
            ++count.bad;
        i += std::max<qsizetype>(1, length);
    }
    return count;
}

/// UTF-8 with each bad byte read as Windows-1252.
QString fromDamagedUtf8(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    qsizetype runStart = 0;
    qsizetype i = 0;
    while (i < bytes.size()) {
        const qsizetype length = uchar(bytes[i]) < 0x80 ? 1 : utf8Length(bytes, i);
        if (length == 0) {
            text += QString::fromUtf8(bytes.sliced(runStart, i - runStart));
            text += fromWindows1252(uchar(bytes[i]));
            runStart = i + 1;
        }
        i += std::max<qsizetype>(1, length);
    }
    return text + QString::fromUtf8(bytes.sliced(runStart));
}

QString fromSingleBytes(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.cbegin(), bytes.cend(), text.begin(),
                   [](char byte) { return fromWindows1252(uchar(byte)); });
    return text;
}

/// UTF-16 without a byte order mark shows itself by zero bytes on one side of the pairs only, as
/// Latin letters, blanks and line feeds have them.
std::optional<QStringDecoder::Encoding> utf16WithoutMark(QByteArrayView bytes)
{
    const QByteArrayView sample = bytes.first(std::min(bytes.size(), sampleSize) / 2 * 2);
    qsizetype evenZeros = 0;
    qsizetype oddZeros = 0;
    for (qsizetype i = 0; i + 1 < sample.size(); i += 2) {
        evenZeros += sample[i] == 0 ? 1 : 0;
        oddZeros += sample[i + 1] == 0 ? 1 : 0;
    }
    const qsizetype many = std::max<qsizetype>(3, sample.size() / 2 / 10); // a tenth of the pairs
    if (oddZeros >= many && evenZeros * 20 <= oddZeros)
        return QStringDecoder::Utf16LE;
    if (evenZeros >= many && oddZeros * 20 <= evenZeros)
        return QStringDecoder::Utf16BE;
    return std::nullopt;
}

struct Marked
{
    QStringDecoder::Encoding encoding;
    qsizetype markSize;
};

std::optional<Marked> byteOrderMark(QByteArrayView bytes)
{
    const auto startsWith = [&](std::initializer_list<int> mark) {
        return bytes.size() >= qsizetype(mark.size())
               && std::equal(mark.begin(), mark.end(), bytes.begin(),
                             [](int a, char b) { return a == uchar(b); });
    };
    if (startsWith({0xEF, 0xBB, 0xBF}))
        return Marked{QStringDecoder::Utf8, 3};
    if (startsWith({0xFF, 0xFE, 0, 0}) && bytes.size() % 4 == 0)
        return Marked{QStringDecoder::Utf32LE, 4};
    if (startsWith({0, 0, 0xFE, 0xFF}))
        return Marked{QStringDecoder::Utf32BE, 4};
    if (startsWith({0xFF, 0xFE}))
        return Marked{QStringDecoder::Utf16LE, 2};
    if (startsWith({0xFE, 0xFF}))
        return Marked{QStringDecoder::Utf16BE, 2};
    return std::nullopt;
}

QString fromBytes(QByteArrayView bytes)
{
    std::optional<QStringDecoder::Encoding> wide;
    if (const auto mark = byteOrderMark(bytes)) {
        bytes = bytes.sliced(mark->markSize);
        if (mark->encoding == QStringDecoder::Utf8)
            return fromDamagedUtf8(bytes);
        wide = mark->encoding;
    } else {
        wide = utf16WithoutMark(bytes);
    }
    if (wide) {
        QStringDecoder decoder(*wide, QStringDecoder::Flag::Stateless
                                          | QStringDecoder::Flag::ConvertInitialBom);
        return decoder.decode(bytes);
    }
    const Utf8Count count = countUtf8(bytes);
    return count.good >= count.bad ? fromDamagedUtf8(bytes) : fromSingleBytes(bytes);
}

} // namespace

QString decodeText(QByteArrayView bytes)
{
    const QString raw = fromBytes(bytes);
    QString text;
    text.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const char16_t unit = raw[i].unicode();
        if (unit == u'\r') {
            if (i + 1 >= raw.size() || raw[i + 1] != QLatin1Char('\n'))
                text += QLatin1Char('\n');
        } else if (unit == 0x85 || unit == 0x2028) { // line ends of other systems
            text += QLatin1Char('\n');
        } else if (unit == u'\f' || unit == 0x2029) { // ends of pages and paragraphs
            text += QLatin1String("\n\n");
        } else if (QChar::isSurrogate(unit)) {
            const bool isPair =
                raw[i].isHighSurrogate() && i + 1 < raw.size() && raw[i + 1].isLowSurrogate();
            text += isPair ? raw[i] : QChar(QChar::ReplacementCharacter);
            if (isPair)
                text += raw[++i];
        } else if (unit >= 0x20 || unit == u'\n' || unit == u'\t') {
            text += raw[i];
        }
    }
    return text;
}

bool looksBinary(QByteArrayView bytes)
{
    const QByteArrayView sample = bytes.first(std::min(bytes.size(), sampleSize));
    if (sample.isEmpty() || byteOrderMark(sample) || utf16WithoutMark(sample))
        return false;
    const auto controls = std::count_if(sample.cbegin(), sample.cend(), [](char byte) {
        const auto c = uchar(byte);
        return c < 0x20 && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != 0x1A;
    });
    return controls * 100 > sample.size();
}

} // namespace vl::app
