#include "app/storage/json/jsonparser.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstring>
#include <deque>
#include <limits>
#include <simdjson.h>
#include <vector>

namespace vl::app {

namespace {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
constexpr qsizetype byteOrderMarkSize = 3;

} // namespace

struct JsonParser::Data
{
    simdjson::dom::parser parser;
    QByteArray padded; ///< a copy of the text with the room behind it that the parser reads
    std::vector<JsonNode> nodes;
    std::deque<QString> texts; ///< what nodes point to when the toolkit has read the text

    bool parseFast(const QByteArray &bytes);
    bool parseTolerant(const QByteArray &bytes);
    void add(const simdjson::dom::element &element);
    void add(const QJsonValue &value);
    void addText(const QString &text);

    size_t begin(JsonNode::Type type)
    {
        nodes.emplace_back().type = type;
        return nodes.size() - 1;
    }
    void end(size_t node, quint32 length)
    {
        nodes[node].length = length;
        nodes[node].span = quint32(nodes.size() - node);
    }
};

JsonParser::JsonParser()
    : d(std::make_unique<Data>())
{
}

JsonParser::~JsonParser() = default;

std::optional<JsonValue> JsonParser::parseObject(const QByteArray &bytes)
{
    // Spans and lengths are counted in 32 bits.
    if (bytes.size() > std::numeric_limits<qint32>::max())
        return std::nullopt;
    d->nodes.clear();
    d->texts.clear();
    if (!d->parseFast(bytes) && !d->parseTolerant(bytes))
        return std::nullopt;
    const JsonValue root(d->nodes.data());
    return root.isObject() ? std::optional(root) : std::nullopt;
}

bool JsonParser::Data::parseFast(const QByteArray &bytes)
{
    const char *text = bytes.constData();
    qsizetype size = bytes.size();
    if (bytes.startsWith(byteOrderMark)) {
        text += byteOrderMarkSize;
        size -= byteOrderMarkSize;
    }
    constexpr auto padding = qsizetype(simdjson::SIMDJSON_PADDING);
    if (text - bytes.constData() + size + padding > bytes.capacity()) {
        if (padded.size() < size + padding)
            padded.resize(qMax(size + padding, padded.size() * 2));
        std::memcpy(padded.data(), text, size_t(size));
        text = padded.constData();
    }
    simdjson::dom::element root;
    if (parser.parse(text, size_t(size), false).get(root) != simdjson::SUCCESS)
        return false;
    add(root);
    return true;
}

// The toolkit's reader is more forgiving: control characters inside texts, lone surrogates, numbers
// such as "1." are fine with it. What it accepts must open.
bool JsonParser::Data::parseTolerant(const QByteArray &bytes)
{
    // It would take a text's own first character for a byte order mark and drop it; not when that
    // is escaped.
    QByteArray text = bytes;
    text.replace(QByteArrayLiteral("\"\xEF\xBB\xBF"), QByteArrayLiteral("\"\\ufeff"));
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return false;
    add(QJsonValue(document.object()));
    return true;
}

void JsonParser::Data::add(const simdjson::dom::element &element)
{
    using simdjson::dom::element_type;
    const auto addUtf8 = [this](std::string_view text) {
        nodes.push_back({.type = JsonNode::Type::Utf8Text,
                         .length = quint32(text.size()),
                         .utf8 = text.data()});
    };
    // The types are known here, so that the unchecked getters do not throw.
    switch (element.type()) {
    case element_type::OBJECT: {
        const size_t node = begin(JsonNode::Type::Object);
        quint32 count = 0;
        for (const auto member : simdjson::dom::object(element)) {
            addUtf8(member.key);
            add(member.value);
            ++count;
        }
        end(node, count);
        break;
    }
    case element_type::ARRAY: {
        const size_t node = begin(JsonNode::Type::Array);
        quint32 count = 0;
        for (const auto child : simdjson::dom::array(element)) {
            add(child);
            ++count;
        }
        end(node, count);
        break;
    }
    case element_type::STRING:
        addUtf8(std::string_view(element));
        break;
    case element_type::INT64:
        nodes.push_back({.type = JsonNode::Type::Integer, .integer = qint64(int64_t(element))});
        break;
    case element_type::UINT64:
    case element_type::DOUBLE:
        nodes.push_back({.type = JsonNode::Type::Number, .number = double(element)});
        break;
    case element_type::BOOL:
        nodes.push_back({.type = JsonNode::Type::Boolean, .boolean = bool(element)});
        break;
    case element_type::NULL_VALUE:
        nodes.push_back({});
        break;
    }
}

void JsonParser::Data::addText(const QString &text)
{
    const QString &kept = texts.emplace_back(text);
    nodes.push_back({.type = JsonNode::Type::Utf16Text,
                     .length = quint32(kept.size()),
                     .utf16 = reinterpret_cast<const char16_t *>(kept.utf16())});
}

void JsonParser::Data::add(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Object: {
        const size_t node = begin(JsonNode::Type::Object);
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            addText(member.key());
            add(member.value());
        }
        end(node, quint32(object.size()));
        break;
    }
    case QJsonValue::Array: {
        const size_t node = begin(JsonNode::Type::Array);
        const QJsonArray array = value.toArray();
        for (const QJsonValue child : array)
            add(child);
        end(node, quint32(array.size()));
        break;
    }
    case QJsonValue::String:
        addText(value.toString());
        break;
    case QJsonValue::Double: {
        // Only a value that is kept as an integer comes back the same from both.
        const qint64 integer = value.toInteger();
        if (integer != 0 && QJsonValue(integer) == value)
            nodes.push_back({.type = JsonNode::Type::Integer, .integer = integer});
        else
            nodes.push_back({.type = JsonNode::Type::Number, .number = value.toDouble()});
        break;
    }
    case QJsonValue::Bool:
        nodes.push_back({.type = JsonNode::Type::Boolean, .boolean = value.toBool()});
        break;
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        nodes.push_back({});
        break;
    }
}

} // namespace vl::app
