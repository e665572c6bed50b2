#include "app/storage/kindcodecs.h"

#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"

namespace vl::app {

using core::ContentKind;

static constexpr KindCodec codecs[] = {
    {ContentKind::Document, readDocument, writeDocument},
    {ContentKind::Entity, readEntity, writeEntity},
    {ContentKind::Spreadsheet, readSpreadsheet, writeSpreadsheet},
    {ContentKind::Chart, readChart, writeChart},
    {ContentKind::Map, readMap, writeMap},
    {ContentKind::Timeline, readTimeline, writeTimeline},
    {ContentKind::TimelineEvent, readTimelineEvent, writeTimelineEvent},
    {ContentKind::Media, readMedia, writeMedia},
    {ContentKind::Source, readSource, writeSource},
    {ContentKind::Task, readTask, writeTask},
    {ContentKind::Canvas, readCanvas, writeCanvas},
    {ContentKind::Comment, readComment, writeComment},
    {ContentKind::Language, readLanguage, writeLanguage},
    {ContentKind::RandomTable, readRandomTable, writeRandomTable},
    {ContentKind::StatBlock, readStatBlock, writeStatBlock},
};
static_assert(std::size(codecs) == core::contentKindTexts.size());

std::span<const KindCodec> kindCodecs()
{
    return codecs;
}

std::unique_ptr<core::ContentObject> readObject(const JsonValue &json)
{
    core::ContentId id;
    fromJson(json.member("id"), id);
    const std::optional<ContentKind> kind =
        core::contentKindTexts.value(json.member("type").text());
    if (id.isNull() || !kind)
        return nullptr;
    const KindCodec &codec = codecs[size_t(*kind)];
    Q_ASSERT(codec.kind == *kind);
    std::unique_ptr<core::ContentObject> object = codec.read(id, json);
    if (object)
        readFields<core::ContentObject>(json, objectFields(), *object);
    return object;
}

void writeObject(JsonWriter &json, const core::ContentObject &object)
{
    const bool written = codecs[size_t(object.kind())].write(json, object);
    Q_ASSERT(written);
    Q_UNUSED(written);
}

} // namespace vl::app
