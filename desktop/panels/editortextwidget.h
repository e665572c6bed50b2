#pragma once

#include "desktop/editor/editorstyle.h"

#include <QtWidgets/QPlainTextEdit>

#include <memory>

namespace vl::desktop {

class EditorPictures;
class LiveDocument;

/// The text field of the editor: Markdown in a centred column. Undo and redo are the window's.
class EditorTextWidget final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EditorTextWidget(QWidget *parent = nullptr);
    ~EditorTextWidget() override;

    void setStyle(std::shared_ptr<const EditorStyle> style);
    const EditorStyle *style() const { return m_style.get(); }
    void setPictures(EditorPictures *pictures);

    /// Shows a text where the writer left it, without telling of it; null for none. The text must
    /// stay until another one is shown.
    void showDocument(LiveDocument *live);
    LiveDocument *live() const { return m_live; }
    /// The text with "\n" between lines.
    QString text() const;
    /// Where the writer is, in places of the shown text.
    qsizetype caret() const;
    /// Selects a part of the shown text, with the caret at its end.
    void select(qsizetype anchor, qsizetype caret);
    /// Keeps the place of the writer in the document that is shown.
    void notePlace();

Q_SIGNALS:
    /// The caret went elsewhere without typing.
    void caretJumped();
    void focusLost();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void centreColumn();
    void goToPlace();
    bool forwardToColumn(QEvent *event);
    QPointF onLine(const QPointF &point) const;
    void paintBlock(QPainter &painter, const QTextBlock &block, const QPointF &offset,
                    const QRect &clip, const QAbstractTextDocumentLayout::PaintContext &context);
    void paintPictures(QPainter &painter, const QTextBlock &block, const QPointF &offset);
    void paintSelection(QPainter &painter, const QTextBlock &block, const QPointF &offset, int from,
                        int to);

    std::shared_ptr<const EditorStyle> m_style;
    EditorPictures *m_pictures = nullptr;
    LiveDocument *m_live = nullptr;
    QMetaObject::Connection m_edits;
    bool m_isEditing = false; ///< while the caret moves because the text changes
};

} // namespace vl::desktop
