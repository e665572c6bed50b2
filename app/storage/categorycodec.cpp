#include "app/storage/categorycodec.h"

#include "app/storage/json/jsonfields.h"

namespace vl::app {

using core::Category;
using core::FieldDefinition;
using core::FieldType;

template<>
struct JsonEnum<FieldType>
{
    static constexpr const auto &texts = core::fieldTypeTexts;
};

template<>
struct JsonRecord<FieldDefinition>
{
    static constexpr auto fields = sortedFields<FieldDefinition>({
        member<FieldDefinition, &FieldDefinition::description>("description"),
        member<FieldDefinition, &FieldDefinition::key>("key"),
        member<FieldDefinition, &FieldDefinition::label>("label"),
        member<FieldDefinition, &FieldDefinition::options>("options"),
        member<FieldDefinition, &FieldDefinition::required>("required"),
        member<FieldDefinition, &FieldDefinition::type>("type"),
    });
};

template<>
struct JsonRecord<Category>
{
    static constexpr auto fields = sortedFields<Category>({
        member<Category, &Category::fields>("fields"),
        member<Category, &Category::id>("id"),
        member<Category, &Category::name>("name"),
        member<Category, &Category::parentId>("parentId"),
    });
};

CategoryFault readCategory(const JsonValue &json, Category &category)
{
    fromJson(json, category);
    if (category.id.isNull())
        return CategoryFault::Category;
    // A field without its type would show and sort the entities' values as something else.
    for (const JsonValue field : json.member("fields").elements())
        if (!core::fieldTypeTexts.value(field.member("type").text()))
            return CategoryFault::Field;
    return CategoryFault::None;
}

void writeCategory(JsonWriter &json, const Category &category)
{
    toJson(json, category);
}

} // namespace vl::app
