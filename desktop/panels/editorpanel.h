#pragma once

#include "core/id.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QHash>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QLabel;
class QStackedWidget;

namespace vl::core {
class ChangeSet;
class Document;
} // namespace vl::core

namespace vl::desktop {

class EditorTextWidget;

/// The body of the selected document. What is typed becomes a step of the history at each pause,
/// and before everything that looks at the model: a save, an undo, another document.
class EditorPanel final : public QWidget
{
    Q_OBJECT

public:
    EditorPanel(const PanelContext &context, QWidget *parent);

    const core::ContentId &documentId() const { return m_documentId; }

private:
    struct View
    {
        int caret = 0;
        int scroll = 0;
    };

    void buildFooter(QLayout *layout);
    void openSelected();
    void open(const core::ContentId &id);
    void reveal(const core::ContentId &id, qsizetype position, qsizetype length);
    void handIn();
    void follow(const core::ChangeSet &changes);
    void forgetProject();
    void splitAtCaret();
    void updateCounts();
    core::Document *document() const;

    PanelContext m_context;
    EditorTextWidget *m_text;
    QStackedWidget *m_pages;
    QLabel *m_title;
    QLabel *m_counts;
    QTimer m_pause;
    core::ContentId m_documentId; ///< null while no document is open
    QString m_body; ///< the model's body that the widget was last brought in step with
    bool m_hasTyped = false;
    bool m_isFollowing = false; ///< while the widget takes over a change of the model
    QHash<core::ContentId, View> m_views;
};

} // namespace vl::desktop
