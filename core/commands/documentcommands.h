#pragma once

#include "core/commands/setmember.h"

namespace vl::core {

using SetDocumentTitleCommand =
    SetMember<&Document::title, &Document::setTitle,
              QT_TRANSLATE_NOOP("vl::core::Command", "Rename document")>;
using SetDocumentKindCommand =
    SetMember<&Document::documentKind, &Document::setDocumentKind,
              QT_TRANSLATE_NOOP("vl::core::Command", "Change document kind")>;
using SetDocumentSynopsisCommand =
    SetMember<&Document::synopsis, &Document::setSynopsis,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit synopsis")>;
using SetDocumentStatusCommand = SetMember<&Document::status, &Document::setStatus,
                                           QT_TRANSLATE_NOOP("vl::core::Command", "Edit status")>;
using SetDocumentPointOfViewCommand =
    SetMember<&Document::pointOfView, &Document::setPointOfView,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit point of view")>;
using SetDocumentTensionLevelCommand =
    SetMember<&Document::tensionLevel, &Document::setTensionLevel,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit tension")>;
using SetDocumentSceneInstantCommand =
    SetMember<&Document::sceneInstant, &Document::setSceneInstant,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set scene date")>;
using SetDocumentTargetCommand =
    SetMember<&Document::wordCountTarget, &Document::setWordCountTarget,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set word-count target")>;
using SetDocumentSourcesCommand = SetMember<&Document::sourceIds, &Document::setSourceIds,
                                            QT_TRANSLATE_NOOP("vl::core::Command", "Cite source")>;
using SetDocumentPlotThreadsCommand =
    SetMember<&Document::plotThreadIds, &Document::setPlotThreadIds,
              QT_TRANSLATE_NOOP("vl::core::Command", "Tag scene plot threads")>;
using SetDocumentRevisionBaselineCommand =
    SetMember<&Document::revisionBaseline, &Document::setRevisionBaseline,
              QT_TRANSLATE_NOOP("vl::core::Command", "Mark screenplay revision")>;
using SetDocumentVersionsCommand =
    SetMember<&Document::versions, &Document::setVersions,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit version history")>;
using SetDocumentVariantsCommand =
    SetMember<&Document::variants, &Document::setVariants,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit document variants")>;
using SetDocumentFootnotesCommand =
    SetMember<&Document::footnotes, &Document::setFootnotes,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit footnotes")>;

/// Sets the body. Once it ran it holds only what differs between the two texts, so that a long
/// history of a long document stays small.
class SetDocumentBodyCommand final : public Command
{
public:
    SetDocumentBodyCommand(Document &document, const QString &body);

    void redo() override;
    void undo() override;
    QString text() const override;

    /// Where the two texts differ, in UTF-16 units from the start; 0 before the first redo().
    qsizetype position() const { return m_position; }
    const QString &removedText() const { return m_removed; }
    const QString &insertedText() const { return m_inserted; }

private:
    void keepDifference(const QString &before, const QString &after);

    Document &m_document;
    QString m_body; ///< the whole new text, until the first redo()
    bool m_hasRun = false;
    qsizetype m_position = 0;
    QString m_removed;
    QString m_inserted;
};

/// Moves a document under another parent, or among its siblings, and numbers both families anew.
class MoveDocumentCommand final : public Command
{
public:
    /// A position that is negative or past the end appends.
    MoveDocumentCommand(Project &project, const ContentId &documentId, const ContentId &newParentId,
                        int newPosition);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    struct Place
    {
        Document *document = nullptr;
        ContentId parentId;
        qint32 sortIndex = 0;
    };

    bool isPossible() const;
    void renumber(const std::vector<Document *> &siblings);

    Project &m_project;
    ContentId m_documentId;
    ContentId m_newParentId;
    int m_newPosition;
    std::vector<Place> m_snapshot; ///< where everything stood that the move may touch
};

} // namespace vl::core
