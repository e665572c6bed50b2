#pragma once

#include "core/id.h"
#include "desktop/editor/livedocuments.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QLabel;
class QStackedWidget;

namespace vl::core {
class ChangeSet;
class Document;
} // namespace vl::core

namespace vl::desktop {

class EditorPictures;
class EditorTextWidget;

/// The body of the selected document. What is typed becomes a step of the history at each pause,
/// and before everything that looks at the model: a save, an undo, another document.
class EditorPanel final : public QWidget
{
    Q_OBJECT

public:
    EditorPanel(const PanelContext &context, QWidget *parent);

    ~EditorPanel() override;

    /// The document that is open, null when none is.
    core::ContentId documentId() const { return m_live ? m_live->id() : core::ContentId(); }

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildFooter(QLayout *layout);
    void openSelected();
    void open(const core::ContentId &id);
    void reveal(const core::ContentId &id, qsizetype position, qsizetype length);
    void handIn();
    void follow(const core::ChangeSet &changes);
    void forgetProject();
    void splitAtCaret();
    void updateCounts();
    void restyle();
    core::Document *document() const;

    PanelContext m_context;
    EditorTextWidget *m_text;
    QStackedWidget *m_pages;
    QLabel *m_title;
    QLabel *m_counts;
    QTimer m_pause;
    EditorPictures *m_pictures;
    LiveDocuments m_documents;
    LiveDocument *m_live = nullptr; ///< the one that is open, null while none is
    bool m_isFollowing = false;     ///< while the text takes over a change of the model
};

} // namespace vl::desktop
