#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/media.h"

namespace vl::app {

using core::Media;
using core::MediaAnnotation;
using core::MediaCrop;

template<>
struct JsonRecord<MediaAnnotation>
{
    static constexpr auto fields = sortedFields<MediaAnnotation>({
        member<MediaAnnotation, &MediaAnnotation::color>("color"),
        member<MediaAnnotation, &MediaAnnotation::text>("text"),
        member<MediaAnnotation, &MediaAnnotation::type>("type"),
        member<MediaAnnotation, &MediaAnnotation::x1>("x1"),
        member<MediaAnnotation, &MediaAnnotation::x2>("x2"),
        member<MediaAnnotation, &MediaAnnotation::y1>("y1"),
        member<MediaAnnotation, &MediaAnnotation::y2>("y2"),
    });
};

template<>
struct JsonRecord<MediaCrop>
{
    static constexpr auto fields = sortedFields<MediaCrop>({
        member<MediaCrop, &MediaCrop::x1>("x1"),
        member<MediaCrop, &MediaCrop::x2>("x2"),
        member<MediaCrop, &MediaCrop::y1>("y1"),
        member<MediaCrop, &MediaCrop::y2>("y2"),
    });
};

static constexpr auto fields = sortedFields<Media>({
    field<Media, &Media::annotations, &Media::setAnnotations>("annotations"),
    field<Media, &Media::assetPath, &Media::setAssetPath>("assetPath"),
    field<Media, &Media::caption, &Media::setCaption>("caption"),
    field<Media, &Media::crop, &Media::setCrop>("crop"),
    field<Media, &Media::mediaKind, &Media::setMediaKind>("kind"),
});

std::unique_ptr<core::ContentObject> readMedia(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Media>(id, QString(), QString());
    readFields<Media>(json, fields, *object);
    return object;
}

bool writeMedia(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Media>(json, object, fields);
}

} // namespace vl::app
