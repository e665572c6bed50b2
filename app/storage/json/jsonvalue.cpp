#include "app/storage/json/jsonvalue.h"

#include <QtCore/QStringDecoder>

#include <algorithm>
#include <cmath>

namespace vl::app {

namespace {

/// Shorter texts are not worth a second allocation to give back what conversion left over.
constexpr qsizetype squeezeFrom = 64;

QString fromUtf8(const char *utf8, qsizetype length)
{
    const QByteArrayView bytes(utf8, length);
    if (bytes.startsWith(
            "\xEF\xBB\xBF")) { // a text's own first character, not a mark to be cut off
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        return decoder(bytes);
    }
    QString text = QString::fromUtf8(bytes);
    if (length >= squeezeFrom && text.size() < length - length / 4)
        text.squeeze();
    return text;
}

} // namespace

std::optional<qint64> JsonValue::integer() const
{
    if (is(JsonNode::Type::Integer))
        return m_node->integer;
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (is(JsonNode::Type::Number) && m_node->number >= -limit && m_node->number < limit
        && m_node->number == std::trunc(m_node->number))
        return qint64(m_node->number);
    return std::nullopt;
}

std::optional<double> JsonValue::number() const
{
    if (is(JsonNode::Type::Integer))
        return double(m_node->integer);
    return is(JsonNode::Type::Number) ? std::optional(m_node->number) : std::nullopt;
}

QString JsonValue::text() const
{
    if (is(JsonNode::Type::Utf8Text))
        return fromUtf8(m_node->utf8, m_node->length);
    if (is(JsonNode::Type::Utf16Text))
        return QStringView(m_node->utf16, qsizetype(m_node->length)).toString();
    return {};
}

bool JsonValue::equals(std::string_view ascii) const
{
    if (is(JsonNode::Type::Utf8Text))
        return std::string_view(m_node->utf8, m_node->length) == ascii;
    if (is(JsonNode::Type::Utf16Text))
        return std::equal(ascii.begin(), ascii.end(), m_node->utf16,
                          m_node->utf16 + m_node->length);
    return false;
}

JsonValue JsonValue::member(std::string_view asciiName) const
{
    JsonValue found;
    for (const Member &member : members())
        if (member.name.equals(asciiName))
            found = member.value;
    return found;
}

} // namespace vl::app
