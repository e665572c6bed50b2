#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/document.h"

namespace vl::app {

using core::Document;
using core::DocumentKind;
using core::DocumentVariant;
using core::DocumentVariants;
using core::DocumentVersion;
using core::Footnote;

template<>
struct JsonEnum<DocumentKind>
{
    static constexpr const auto &texts = core::documentKindTexts;
};

template<>
struct JsonRecord<DocumentVersion>
{
    static constexpr auto fields = sortedFields<DocumentVersion>({
        member<DocumentVersion, &DocumentVersion::body>("body"),
        member<DocumentVersion, &DocumentVersion::createdAt>("createdAt"),
        member<DocumentVersion, &DocumentVersion::label>("label"),
    });
};

template<>
struct JsonRecord<DocumentVariant>
{
    static constexpr auto fields = sortedFields<DocumentVariant>({
        member<DocumentVariant, &DocumentVariant::body>("body"),
        member<DocumentVariant, &DocumentVariant::name>("name"),
    });
};

template<>
struct JsonRecord<Footnote>
{
    static constexpr auto fields = sortedFields<Footnote>({
        member<Footnote, &Footnote::endnote>("endnote"),
        member<Footnote, &Footnote::id>("id"),
        member<Footnote, &Footnote::text>("text"),
    });
};

static constexpr auto fields = sortedFields<Document>({
    part<Document, &Document::variants, &Document::setVariants, &DocumentVariants::activeVariant>(
        "activeVariant"),
    field<Document, &Document::body, &Document::setBody>("body"),
    field<Document, &Document::footnotes, &Document::setFootnotes>("footnotes"),
    field<Document, &Document::documentKind, &Document::setDocumentKind>("kind"),
    fieldWhenSet<Document, &Document::parentId, &Document::setParentId>("parentId"),
    field<Document, &Document::plotThreadIds, &Document::setPlotThreadIds>("plotThreadIds"),
    field<Document, &Document::pointOfView, &Document::setPointOfView>("pointOfView"),
    field<Document, &Document::revisionBaseline, &Document::setRevisionBaseline>(
        "revisionBaseline"),
    fieldWhenSet<Document, &Document::sceneInstant, &Document::setSceneInstant>("sceneInstant"),
    field<Document, &Document::sortIndex, &Document::setSortIndex>("sortIndex"),
    field<Document, &Document::sourceIds, &Document::setSourceIds>("sourceIds"),
    field<Document, &Document::status, &Document::setStatus>("status"),
    field<Document, &Document::synopsis, &Document::setSynopsis>("synopsis"),
    field<Document, &Document::tensionLevel, &Document::setTensionLevel>("tensionLevel"),
    field<Document, &Document::title, &Document::setTitle>("title"),
    part<Document, &Document::variants, &Document::setVariants, &DocumentVariants::variants>(
        "variants"),
    field<Document, &Document::versions, &Document::setVersions>("versions"),
    field<Document, &Document::wordCountTarget, &Document::setWordCountTarget>("wordCountTarget"),
});

/// Refuses a text that names no kind, and one that is missing: a document has no kind by default.
std::unique_ptr<core::ContentObject> readDocument(const core::ContentId &id, const JsonValue &json)
{
    const auto kind = core::documentKindTexts.value(json.member("kind").text());
    if (!kind)
        return nullptr;
    auto document = std::make_unique<Document>(id, *kind, QString());
    readFields<Document>(json, fields, *document);
    return document;
}

bool writeDocument(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Document>(json, object, fields);
}

} // namespace vl::app
