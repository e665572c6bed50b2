#pragma once

#include "app/storage/json/jsonvalue.h"
#include "app/storage/json/jsonwriter.h"
#include "core/id.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>

#include <map>
#include <optional>
#include <set>

namespace vl::app {

// How values stand in the files: `toJson` writes a value, `fromJson` reads one into a variable that
// holds its default. What is of another type, or out of its range, leaves the default: files come
// from other programs and from merges, and one odd value must not cost the rest of the file.

/// The stored texts of an enumeration, its first value being the default; one specialisation each.
template<typename Enum>
struct JsonEnum;

inline void toJson(JsonWriter &json, const QString &value)
{
    json.string(value);
}
inline void toJson(JsonWriter &json, bool value)
{
    json.boolean(value);
}
inline void toJson(JsonWriter &json, qint32 value)
{
    json.integer(value);
}
inline void toJson(JsonWriter &json, qint64 value)
{
    json.integer(value);
}
inline void toJson(JsonWriter &json, double value)
{
    json.number(value);
}
/// The null id is the empty text.
void toJson(JsonWriter &json, const core::ContentId &id);
/// "yyyy-MM-dd"; the empty text when invalid or outside the years 1 to 9999.
void toJson(JsonWriter &json, const QDate &date);
/// ISO 8601 with milliseconds and, unless it is local time, "Z" or the offset; the empty text when
/// invalid.
void toJson(JsonWriter &json, const QDateTime &dateTime);

void fromJson(const JsonValue &json, QString &value);
void fromJson(const JsonValue &json, bool &value);
void fromJson(const JsonValue &json, qint32 &value);
void fromJson(const JsonValue &json, qint64 &value);
void fromJson(const JsonValue &json, double &value);
/// A text that is no id reads as the null id.
void fromJson(const JsonValue &json, core::ContentId &id);
/// A text that is no date reads as an invalid one; so for date and time.
void fromJson(const JsonValue &json, QDate &date);
void fromJson(const JsonValue &json, QDateTime &dateTime);

/// Whether the value may be an element of a list. Elements of another type than the list's are
/// dropped, and so are null ids; in a list of numbers, where the place counts, they read as 0.
inline bool isElement(const JsonValue &json, const QString &)
{
    return json.isText();
}
inline bool isElement(const JsonValue &, double)
{
    return true;
}
inline bool isElement(const JsonValue &, const core::ContentId &id)
{
    return !id.isNull();
}
template<typename T>
bool isElement(const JsonValue &json, const T &)
{
    return json.isObject();
}

template<typename Enum>
requires std::is_enum_v<Enum>
void toJson(JsonWriter &json, Enum value)
{
    const QLatin1String text = JsonEnum<Enum>::texts.text(value);
    const QLatin1String known = text.isEmpty() ? JsonEnum<Enum>::texts.text(Enum()) : text;
    json.plainString({known.data(), size_t(known.size())});
}
template<typename Enum>
requires std::is_enum_v<Enum>
void fromJson(const JsonValue &json, Enum &value)
{
    if (const std::optional<Enum> known = JsonEnum<Enum>::texts.value(json.text()))
        value = *known;
}

template<typename T>
void toJson(JsonWriter &json, const QList<T> &list)
{
    json.beginArray();
    for (const T &element : list)
        toJson(json, element);
    json.endArray();
}
template<typename T>
void fromJson(const JsonValue &json, QList<T> &list)
{
    if (!json.isArray())
        return;
    list.clear();
    list.reserve(json.length());
    for (const JsonValue element : json.elements()) {
        T value{};
        fromJson(element, value);
        if (isElement(element, value))
            list.append(std::move(value));
    }
}

void toJson(JsonWriter &json, const std::set<QString> &texts);
void fromJson(const JsonValue &json, std::set<QString> &texts);
void toJson(JsonWriter &json, const std::set<core::ContentId> &ids);
void fromJson(const JsonValue &json, std::set<core::ContentId> &ids);
/// An object whose members are the entries; members that are no texts are dropped.
void toJson(JsonWriter &json, const std::map<QString, QString> &entries);
void fromJson(const JsonValue &json, std::map<QString, QString> &entries);

/// Only for a value that is there: the key of an absent one is left out.
void toJson(JsonWriter &json, const std::optional<qint64> &value);
void fromJson(const JsonValue &json, std::optional<qint64> &value);

} // namespace vl::app
