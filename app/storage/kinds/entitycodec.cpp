#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/entity.h"

namespace vl::app {

using core::Entity;
using core::Lifespan;
using core::TimedValue;

template<>
struct JsonRecord<TimedValue>
{
    static constexpr auto fields = sortedFields<TimedValue>({
        member<TimedValue, &TimedValue::instant>("instant"),
        member<TimedValue, &TimedValue::key>("key"),
        member<TimedValue, &TimedValue::value>("value"),
    });
};

static constexpr auto fields = sortedFields<Entity>({
    field<Entity, &Entity::aliases, &Entity::setAliases>("aliases"),
    part<Entity, &Entity::lifespan, &Entity::setLifespan, &Lifespan::birthInstant,
         Presence::WhenSet>("birthInstant"),
    field<Entity, &Entity::categoryId, &Entity::setCategoryId>("categoryId"),
    part<Entity, &Entity::lifespan, &Entity::setLifespan, &Lifespan::deathInstant,
         Presence::WhenSet>("deathInstant"),
    field<Entity, &Entity::gallery, &Entity::setGallery>("gallery"),
    field<Entity, &Entity::name, &Entity::setName>("name"),
    field<Entity, &Entity::timedValues, &Entity::setTimedValues>("timedValues"),
    field<Entity, &Entity::values, &Entity::setValues>("values"),
});

std::unique_ptr<core::ContentObject> readEntity(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Entity>(id, core::ContentId(), QString());
    readFields<Entity>(json, fields, *object);
    return object;
}

bool writeEntity(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Entity>(json, object, fields);
}

} // namespace vl::app
