#pragma once

#include "app/storage/json/jsonconvert.h"

#include <QtCore/QVarLengthArray>

#include <array>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

namespace vl::app {

/// One key of a record or object: how its value is written, and how it is read. Tables of these are
/// made by sortedFields(), so that each key of a file stands in one place.
template<typename T>
struct JsonField
{
    std::string_view key;
    /// Writes key and value; nothing when the key is to be left out.
    void (*write)(JsonWriter &json, std::string_view key, const T &object);
    /// Puts the value in place of the default that the object holds.
    void (*read)(const JsonValue &json, T &object);
};

/// Whether a key stands in the file at all times.
enum class Presence
{
    Always,
    WhenSet, ///< left out while the value is empty, absent, null or false
};

template<typename Value>
void writeMember(JsonWriter &json, std::string_view key, const Value &value, Presence presence)
{
    if (presence == Presence::WhenSet && value == Value())
        return;
    json.name(key);
    toJson(json, value);
}

/// A value with a getter and a setter.
template<typename T, auto Getter, auto Setter>
constexpr JsonField<T> field(std::string_view key)
{
    return {key,
            [](JsonWriter &json, std::string_view name, const T &object) {
                writeMember(json, name, (object.*Getter)(), Presence::Always);
            },
            [](const JsonValue &json, T &object) {
                auto value = (std::as_const(object).*Getter)();
                fromJson(json, value);
                (object.*Setter)(std::move(value));
            }};
}
/// The same; its key is left out while the value is empty, absent, null or false.
template<typename T, auto Getter, auto Setter>
constexpr JsonField<T> fieldWhenSet(std::string_view key)
{
    JsonField<T> result = field<T, Getter, Setter>(key);
    result.write = [](JsonWriter &json, std::string_view name, const T &object) {
        writeMember(json, name, (object.*Getter)(), Presence::WhenSet);
    };
    return result;
}

/// A member of the record that a getter gives and a setter takes.
template<typename T, auto Getter, auto Setter, auto Member, Presence presence = Presence::Always>
constexpr JsonField<T> part(std::string_view key)
{
    return {key,
            [](JsonWriter &json, std::string_view name, const T &object) {
                writeMember(json, name, (object.*Getter)().*Member, presence);
            },
            [](const JsonValue &json, T &object) {
                auto record = (std::as_const(object).*Getter)();
                fromJson(json, record.*Member);
                (object.*Setter)(std::move(record));
            }};
}

/// A member of a record, or of what the record is derived from.
template<typename T, auto Member, Presence presence = Presence::Always>
constexpr JsonField<T> member(std::string_view key)
{
    return {key,
            [](JsonWriter &json, std::string_view name, const T &record) {
                writeMember(json, name, record.*Member, presence);
            },
            [](const JsonValue &json, T &record) { fromJson(json, record.*Member); }};
}

/// The table, which must list its keys in ascending order.
template<typename T, std::size_t N>
consteval std::array<JsonField<T>, N> sortedFields(const JsonField<T> (&fields)[N])
{
    for (std::size_t i = 1; i < N; ++i)
        if (!(fields[i - 1].key < fields[i].key))
            throw "the keys of a table stand in ascending order"; // fails to compile
    return std::to_array(fields);
}

/// Reads the members that the table lists; of those with one key the last. Others are ignored.
template<typename T>
void readFields(const JsonValue &json, std::span<const JsonField<T>> fields, T &object)
{
    QVarLengthArray<JsonValue, 32> values(qsizetype(fields.size()));
    std::size_t next = 0; // files mostly have the keys in the order of the table
    for (const JsonValue::Member entry : json.members()) {
        for (std::size_t tried = 0; tried < fields.size(); ++tried, ++next) {
            if (next == fields.size())
                next = 0;
            if (entry.name.equals(fields[next].key)) {
                values[qsizetype(next++)] = entry.value;
                break;
            }
        }
    }
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (values[qsizetype(i)].exists())
            fields[i].read(values[qsizetype(i)], object);
}

/// Writes the members that the table lists.
template<typename T>
void writeFields(JsonWriter &json, std::span<const JsonField<T>> fields, const T &object)
{
    for (const JsonField<T> &field : fields)
        field.write(json, field.key, object);
}

/// The table of a record, as `static constexpr auto fields`; one specialisation each.
template<typename Record>
struct JsonRecord;

template<typename Record>
concept HasJsonRecord = requires
{
    JsonRecord<Record>::fields;
};

template<HasJsonRecord Record>
void toJson(JsonWriter &json, const Record &record)
{
    json.beginObject();
    writeFields<Record>(json, JsonRecord<Record>::fields, record);
    json.endObject();
}
template<HasJsonRecord Record>
void fromJson(const JsonValue &json, Record &record)
{
    readFields<Record>(json, JsonRecord<Record>::fields, record);
}

} // namespace vl::app
