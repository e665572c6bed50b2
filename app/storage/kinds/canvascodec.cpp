#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/canvas.h"

namespace vl::app {

using core::Canvas;
using core::CanvasCard;
using core::CanvasConnection;

template<>
struct JsonRecord<CanvasCard>
{
    static constexpr auto fields = sortedFields<CanvasCard>({
        member<CanvasCard, &CanvasCard::objectId>("objectId"),
        member<CanvasCard, &CanvasCard::x>("x"),
        member<CanvasCard, &CanvasCard::y>("y"),
    });
};

template<>
struct JsonRecord<CanvasConnection>
{
    static constexpr auto fields = sortedFields<CanvasConnection>({
        member<CanvasConnection, &CanvasConnection::a>("a"),
        member<CanvasConnection, &CanvasConnection::b>("b"),
    });
};

static constexpr auto fields = sortedFields<Canvas>({
    field<Canvas, &Canvas::cards, &Canvas::setCards>("cards"),
    field<Canvas, &Canvas::connections, &Canvas::setConnections>("connections"),
    field<Canvas, &Canvas::title, &Canvas::setTitle>("title"),
});

std::unique_ptr<core::ContentObject> readCanvas(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Canvas>(id, QString());
    readFields<Canvas>(json, fields, *object);
    return object;
}

bool writeCanvas(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Canvas>(json, object, fields);
}

} // namespace vl::app
