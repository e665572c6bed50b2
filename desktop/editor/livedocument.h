#pragma once

#include "app/models/editortext.h"
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

    int toDocument(qsizetype shown) const;
    qsizetype toShown(int position) const;

    QString body;            ///< the model's body that the text was last brought in step with
    bool hasTyped = false;   ///< the text differs from the body by what was typed since
    app::WritingPlace place; ///< while another document is open

private:
    core::ContentId m_id;
    QTextDocument *m_document;
    EditorLayout *m_layout;
    bool m_hasPieces = false;
};

} // namespace vl::desktop
