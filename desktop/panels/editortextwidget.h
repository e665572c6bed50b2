#pragma once

#include "app/models/editortext.h"

#include <QtWidgets/QPlainTextEdit>

namespace vl::desktop {

/// The text field of the editor: plain text in a centred column. Undo and redo are the window's.
class EditorTextWidget final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EditorTextWidget(QWidget *parent = nullptr);

    /// The text with "\n" between paragraphs; unlike toPlainText() it keeps no-break spaces.
    QString text() const;
    /// Replaces the whole text without telling of it.
    void showText(const QString &text);
    enum class Caret
    {
        Keep,
        GoToEdit
    };
    /// Applies an edit in place; what is not touched keeps its layout.
    void apply(const app::TextEdit &edit, Caret caret);

    int caret() const { return textCursor().position(); }
    void setCaret(int position);

Q_SIGNALS:
    /// The caret went elsewhere without typing.
    void caretJumped();
    void focusLost();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void centreColumn();

    bool m_isEditing = false; ///< while the caret moves because the text changes
};

} // namespace vl::desktop
