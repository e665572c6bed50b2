#pragma once

#include <QtCore/QString>

#include <cstddef>
#include <optional>
#include <string_view>

namespace vl::app {

/// One value of a parsed text; the values inside it follow right behind it.
struct JsonNode
{
    enum class Type : quint8
    {
        Null,
        Boolean,
        Integer,
        Number,
        Utf8Text,
        Utf16Text,
        Array,
        Object
    };

    Type type = Type::Null;
    quint32 span = 1;   ///< nodes in this value, itself counted: the next value stands there
    quint32 length = 0; ///< of a text in units, of an array in elements, of an object in members
    union {
        qint64 integer = 0;
        double number;
        bool boolean;
        const char *utf8;
        const char16_t *utf16;
    };
};

/// A value of a parsed JSON text. A view: good until its parser reads another text.
class JsonValue
{
public:
    JsonValue() = default;
    explicit JsonValue(const JsonNode *node)
        : m_node(node)
    {
    }

    /// Whether this is a value at all, null included.
    bool exists() const { return m_node; }
    bool isObject() const { return is(JsonNode::Type::Object); }
    bool isArray() const { return is(JsonNode::Type::Array); }
    bool isText() const { return is(JsonNode::Type::Utf8Text) || is(JsonNode::Type::Utf16Text); }

    /// The truth value; nothing when it is of another type.
    std::optional<bool> boolean() const
    {
        return is(JsonNode::Type::Boolean) ? std::optional(m_node->boolean) : std::nullopt;
    }
    /// A number without a fraction that 64 bits hold, however it is written (1000, 1e3, 1000.0).
    std::optional<qint64> integer() const;
    std::optional<double> number() const;
    /// The text; empty when the value is of another type.
    QString text() const;
    /// Whether the value is this text, which is plain ASCII.
    bool equals(std::string_view ascii) const;
    /// The number of UTF-8 or UTF-16 units of a text, of elements or of members; else 0.
    quint32 length() const { return m_node ? m_node->length : 0; }

    struct Member;
    template<typename Item>
    struct Range;
    /// The elements of an array; none when the value is of another type.
    Range<JsonValue> elements() const;
    /// The members of an object in the order of the text; none when the value is of another type.
    Range<Member> members() const;
    /// The value under the name, the last one when there are several; nothing when there is none.
    JsonValue member(std::string_view asciiName) const;

private:
    bool is(JsonNode::Type type) const { return m_node && m_node->type == type; }

    const JsonNode *m_node = nullptr;
};

struct JsonValue::Member
{
    JsonValue name;
    JsonValue value;
};

/// What a range-based loop runs over.
template<typename Item>
struct JsonValue::Range
{
    struct Iterator
    {
        const JsonNode *node = nullptr;

        Item operator*() const
        {
            if constexpr (std::is_same_v<Item, JsonValue>)
                return JsonValue(node);
            else
                return {JsonValue(node), JsonValue(node + 1)};
        }
        Iterator &operator++()
        {
            Q_ASSERT(node);
            if constexpr (!std::is_same_v<Item, JsonValue>)
                ++node; // the name
            node += node->span;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return node != other.node; }
    };

    Iterator begin() const { return {first}; }
    Iterator end() const { return {last}; }

    const JsonNode *first = nullptr;
    const JsonNode *last = nullptr;
};

inline JsonValue::Range<JsonValue> JsonValue::elements() const
{
    return isArray() ? Range<JsonValue>{m_node + 1, m_node + m_node->span} : Range<JsonValue>{};
}

inline JsonValue::Range<JsonValue::Member> JsonValue::members() const
{
    return isObject() ? Range<Member>{m_node + 1, m_node + m_node->span} : Range<Member>{};
}

} // namespace vl::app
