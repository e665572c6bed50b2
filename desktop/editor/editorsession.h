#pragma once

#include "app/models/writingdesk.h"
#include "desktop/editor/livedocuments.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <functional>

namespace vl::core {
class ChangeSet;
class Document;
} // namespace vl::core

namespace vl::desktop {

class EditorTextWidget;

/// Keeps the text field in step with the model. What is typed becomes a step of the history at each
/// pause, after some forty words, when the caret goes elsewhere, and before everything that looks
/// at the model: a save, an undo, another document. What others change is followed in place.
class EditorSession final : public QObject
{
    Q_OBJECT

public:
    EditorSession(const PanelContext &context, EditorTextWidget *text, QObject *parent);
    ~EditorSession() override;

    /// The text that is open, null while none is.
    LiveDocument *live() const { return m_live; }
    core::Document *document() const;
    core::ContentId documentId() const { return m_live ? m_live->id() : core::ContentId(); }

    void open(const core::ContentId &id);
    void reveal(const core::ContentId &id, qsizetype position, qsizetype length);
    /// Makes a step of what was typed.
    void handIn();
    /// Replaces the text of the open document by an edited one, as a step of its own; `placeAfter`
    /// tells where a place of the present text lies in it.
    void replaceText(const QString &text, const std::function<qsizetype(qsizetype)> &placeAfter);
    /// Words typed in this project today.
    qsizetype wordsToday();

Q_SIGNALS:
    /// Another document is open, or none.
    void opened();
    void titleChanged();
    void edited();

private:
    void openSelected();
    void noteEdit();
    void follow(const core::ChangeSet &changes);
    void followText(const core::Document &changed);
    void countStep();
    void showSteppedDocument(const core::ChangeSet &changes);
    void forgetRemoved(const core::ChangeSet &changes);
    void startProject();
    void notePlace();

    PanelContext m_context;
    EditorTextWidget *m_text;
    LiveDocuments m_documents;
    LiveDocument *m_live = nullptr;
    app::WritingDesk m_desk;
    QTimer m_pause;
    QTimer m_deskPause;
    qsizetype m_wordsSeen = 0;  ///< of the open text, when it was last looked at
    qsizetype m_burstWords = 0; ///< added since the last step
    qsizetype m_steps = 0;      ///< of the history, when it was last looked at
    bool m_isFollowing = false; ///< while the text takes over a change of the model
};

} // namespace vl::desktop
