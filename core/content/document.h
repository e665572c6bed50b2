#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <optional>

namespace vl::core {

class DocumentTree;

enum class DocumentKind
{
    Prose,
    Screenplay,
    Note
};
inline constexpr auto documentKindTexts =
    makeEnumTexts<DocumentKind>("prose", "screenplay", "note");

/// A saved state of a document's body.
struct DocumentVersion
{
    QString label;
    QDateTime createdAt;
    QString body;

    bool operator==(const DocumentVersion &) const = default;
};

/// An alternative text of a document.
struct DocumentVariant
{
    QString name;
    QString body;

    bool operator==(const DocumentVariant &) const = default;
};

/// The alternative texts of a document and the one that is shown.
struct DocumentVariants
{
    QList<DocumentVariant> variants;
    QString activeVariant; ///< the name of the variant shown; empty for the main body

    bool operator==(const DocumentVariants &) const = default;
};

/// A note to the text; the body refers to it by its id.
struct Footnote
{
    QString id; ///< unique within the document
    QString text;
    bool endnote = false; ///< printed after the text, not below its page

    bool operator==(const Footnote &) const = default;
};

/// A piece of the manuscript, or a note beside it. Documents form a tree by parent and sort index.
class Document final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Document;

    Document(const ContentId &id, DocumentKind kind, const QString &title);
    ~Document() override;

    DocumentKind documentKind() const { return m_documentKind; }
    void setDocumentKind(DocumentKind kind) { m_documentKind = kind; }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    /// The text, as Markdown (screenplay text in a screenplay document).
    const QString &body() const { return m_body; }
    void setBody(const QString &body) { m_body = body; }

    const QString &synopsis() const { return m_synopsis; }
    void setSynopsis(const QString &synopsis) { m_synopsis = synopsis; }

    const QString &status() const { return m_status; }
    void setStatus(const QString &status) { m_status = status; }

    const QString &pointOfView() const { return m_pointOfView; }
    void setPointOfView(const QString &pointOfView) { m_pointOfView = pointOfView; }

    /// 0 while unset.
    qint32 tensionLevel() const { return m_tensionLevel; }
    void setTensionLevel(qint32 level) { m_tensionLevel = level; }

    /// When the scene takes place, in minutes of story time; absent while unset.
    const std::optional<qint64> &sceneInstant() const { return m_sceneInstant; }
    void setSceneInstant(const std::optional<qint64> &instant) { m_sceneInstant = instant; }

    /// Words to reach; 0 for no target.
    qint32 wordCountTarget() const { return m_wordCountTarget; }
    void setWordCountTarget(qint32 words) { m_wordCountTarget = words; }

    /// The document above, or the null id at the top level. It may name a document that is gone.
    const ContentId &parentId() const { return m_parentId; }
    void setParentId(const ContentId &parentId);

    /// The place among the siblings, ascending; equal indexes stand in id order.
    qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

    const QList<ContentId> &sourceIds() const { return m_sourceIds; }
    void setSourceIds(const QList<ContentId> &ids) { m_sourceIds = ids; }

    /// The names of the plot threads that the document belongs to.
    const QStringList &plotThreadIds() const { return m_plotThreadIds; }
    void setPlotThreadIds(const QStringList &names) { m_plotThreadIds = names; }

    /// The body as it was when the revision was marked; empty while none is.
    const QString &revisionBaseline() const { return m_revisionBaseline; }
    void setRevisionBaseline(const QString &body) { m_revisionBaseline = body; }

    /// Oldest first.
    const QList<DocumentVersion> &versions() const { return m_versions; }
    void setVersions(const QList<DocumentVersion> &versions) { m_versions = versions; }

    const DocumentVariants &variants() const { return m_variants; }
    void setVariants(const DocumentVariants &variants) { m_variants = variants; }

    const QList<Footnote> &footnotes() const { return m_footnotes; }
    void setFootnotes(const QList<Footnote> &footnotes) { m_footnotes = footnotes; }

private:
    friend class DocumentTree;

    DocumentKind m_documentKind;
    qint32 m_tensionLevel = 0;
    qint32 m_wordCountTarget = 0;
    qint32 m_sortIndex = 0;
    QString m_title;
    QString m_body;
    QString m_synopsis;
    QString m_status;
    QString m_pointOfView;
    std::optional<qint64> m_sceneInstant;
    ContentId m_parentId;
    QList<ContentId> m_sourceIds;
    QStringList m_plotThreadIds;
    QString m_revisionBaseline;
    QList<DocumentVersion> m_versions;
    DocumentVariants m_variants;
    QList<Footnote> m_footnotes;
    DocumentTree *m_tree =
        nullptr; ///< of the project that holds the document; told of a new parent
};

} // namespace vl::core
