#pragma once

#include "app/models/editortext.h"
#include "app/models/workspace.h"
#include "app/models/writingdesk.h"
#include "core/id.h"

#include <QtCore/QObject>
#include <QtGui/QTextCursor>

class QTextDocument;

namespace vl::desktop {

class EditorLayout;

/// The text of one document as the editor holds it while others are written.
///
/// Lines that are too long to be laid out at every key are held in pieces of some ten thousand
/// characters, each a block of its own. "Shown" places and texts know nothing of the pieces.
class LiveDocument final : public QObject
{
    Q_OBJECT

public:
    explicit LiveDocument(const core::ContentId &id, QObject *parent = nullptr);

    const core::ContentId &id() const { return m_id; }
    QTextDocument *document() const { return m_document; }
    EditorLayout *layout() const { return m_layout; }

    /// The shown text with "\n" between lines; unlike toPlainText() it keeps no-break spaces.
    QString text() const;
    /// The part of it between two places of the document.
    QString textBetween(int from, int to) const;
    void setText(const QString &text);
    /// Applies an edit in shown places; what is not touched keeps its layout. A cursor behind what
    /// was put in.
    QTextCursor apply(const app::TextEdit &edit);
    /// Puts a text in place of the cursor's selection.
    void insert(QTextCursor &cursor, const QString &text);

    /// The text is the shown one of this body now.
    void noteInStep(const QString &body);
    /// What is typed and not in the body; costs as much as was typed, however long the text is.
    app::PendingText pendingText() const;

    int toDocument(qsizetype shown) const;
    qsizetype toShown(int position) const;

    QString body;            ///< the model's body that the text was last brought in step with
    bool hasTyped = false;   ///< the text differs from the body by what was typed since
    app::WritingPlace place; ///< while another document is open

private:
    void noteEdit(int position, int added);

    core::ContentId m_id;
    QTextDocument *m_document;
    EditorLayout *m_layout;
    bool m_hasPieces = false;
    int m_editedHead = 0; ///< places of the document before what was edited since it was in step
    int m_editedTail = 0; ///< and behind it
};

} // namespace vl::desktop
