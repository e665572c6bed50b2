#pragma once

#include "app/storage/json/jsonfields.h"
#include "core/content/contentobject.h"

namespace vl::app {

/// The keys that objects of every kind have. Reading leaves out "id" and "type", which must be
/// known before there is an object.
std::span<const JsonField<core::ContentObject>> objectFields();

/// Writes the file of an object: its common keys and those of its kind, sorted together.
template<typename T>
void writeObjectFields(JsonWriter &json, const core::ContentObject &object,
                       std::span<const JsonField<T>> kindFields, const T &record)
{
    const auto common = objectFields();
    std::size_t next = 0;
    const auto writeCommonBefore = [&](std::string_view key) {
        for (; next < common.size() && (key.empty() || common[next].key < key); ++next)
            common[next].write(json, common[next].key, object);
    };
    json.beginObject();
    for (const JsonField<T> &field : kindFields) {
        writeCommonBefore(field.key);
        field.write(json, field.key, record);
    }
    writeCommonBefore({});
    json.endObject();
}

/// Writes the object when it is of the class; its fields are those of the class.
template<typename T, typename Fields>
bool writeAs(JsonWriter &json, const core::ContentObject &object, const Fields &fields)
{
    const T *cast = core::contentCast<T>(&object);
    if (cast)
        writeObjectFields<T>(json, object, fields, *cast);
    return cast;
}

/// The same for a class whose fields form one record, its data().
template<typename T, typename Fields>
bool writeDataOf(JsonWriter &json, const core::ContentObject &object, const Fields &fields)
{
    using Data = std::remove_cvref_t<decltype(std::declval<const T &>().data())>;
    const T *cast = core::contentCast<T>(&object);
    if (cast)
        writeObjectFields<Data>(json, object, fields, cast->data());
    return cast;
}

/// Makes an object of such a class.
template<typename T, typename Fields>
std::unique_ptr<core::ContentObject> readDataOf(const core::ContentId &id, const JsonValue &json,
                                                const Fields &fields)
{
    using Data = std::remove_cvref_t<decltype(std::declval<const T &>().data())>;
    Data data;
    readFields<Data>(json, fields, data);
    return std::make_unique<T>(id, std::move(data));
}

} // namespace vl::app
