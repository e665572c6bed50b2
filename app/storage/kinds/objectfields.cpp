#include "app/storage/kinds/objectfields.h"

namespace vl::app {

using core::ContentObject;

static constexpr JsonField<ContentObject> idField{
    "id",
    [](JsonWriter &json, std::string_view key, const ContentObject &object) {
        json.name(key);
        toJson(json, object.id());
    },
    [](const JsonValue &, ContentObject &) {}};

static constexpr JsonField<ContentObject> typeField{
    "type",
    [](JsonWriter &json, std::string_view key, const ContentObject &object) {
        json.name(key);
        json.string(QString(core::contentKindTexts.text(object.kind())));
    },
    [](const JsonValue &, ContentObject &) {}};

static constexpr auto fields = sortedFields<ContentObject>({
    fieldWhenSet<ContentObject, &ContentObject::isAiExcluded, &ContentObject::setAiExcluded>(
        "aiExcluded"),
    idField,
    fieldWhenSet<ContentObject, &ContentObject::tags, &ContentObject::setTags>("tags"),
    typeField,
    fieldWhenSet<ContentObject, &ContentObject::visibleTo, &ContentObject::setVisibleTo>(
        "visibleTo"),
});

std::span<const JsonField<ContentObject>> objectFields()
{
    return fields;
}

} // namespace vl::app
