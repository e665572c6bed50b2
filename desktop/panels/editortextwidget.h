#pragma once

#include "app/models/textsearch.h"
#include "app/models/writingedits.h"
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
    void goToPlace();
    /// Whether a change that happens now is typed by key, as opposed to pasted, cut or dropped.
    bool isTyping() const { return !m_isCarrying; }
    /// Whether quotes, dashes and ellipses are set as they are typed.
    void setTypographic(bool isOn) { m_isTypographic = isOn; }
    /// Keeps the line that is written in the middle of the view.
    void setTypewriter(bool isOn);

    /// Tints these places of the shown text; they are in order.
    void setHits(std::vector<app::SearchHit> hits);
    /// Scrolls as far as it takes to see the caret with some lines round it.
    void showCaretWithin();

    void cutSelection();
    void deleteSelection();
    /// Puts marks of Markdown round the selection or the word, or takes them away.
    void toggleMarks(const QString &marks);
    /// Puts a text in place of the selection, as a step of its own.
    void insertStep(const QString &text);

Q_SIGNALS:
    /// The caret went elsewhere without typing.
    void caretJumped();
    void focusLost();
    /// What was typed until now is one step, and what comes another.
    void stepBegins();
    void stepEnds();
    /// Pictures came by clipboard or drag: files, or one without a file.
    void pictureFilesDropped(const QStringList &files);
    void picturePasted(const QImage &image);
    void menuRequested(const QPoint &globalPosition);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void beginOwnStep(const QKeyEvent *event);
    bool takeKey(QKeyEvent *event);
    bool takeReturn();
    bool takeTab(bool inwards);
    bool takeBackspace();
    bool takeTypographic(const QString &typed);
    bool isInCode() const;
    void editLine(const app::LineEdit &edit);
    void centreColumn();
    bool forwardToColumn(QEvent *event);
    QPointF onLine(const QPointF &point) const;
    void paintBlock(QPainter &painter, const QTextBlock &block, const QPointF &offset,
                    const QRect &clip, const QAbstractTextDocumentLayout::PaintContext &context);
    void paintPictures(QPainter &painter, const QTextBlock &block, const QPointF &offset);
    void paintHits(QPainter &painter, const QTextBlock &block, const QPointF &offset);
    void paintGround(QPainter &painter, const QTextBlock &block, const QPointF &offset, int from,
                     int to, const QColor &color);

    std::shared_ptr<const EditorStyle> m_style;
    EditorPictures *m_pictures = nullptr;
    LiveDocument *m_live = nullptr;
    QMetaObject::Connection m_edits;
    std::vector<app::SearchHit> m_hits;
    bool m_isPlacePending = false; ///< the text came while there was no size to show it in
    bool m_isTypographic = false;
    bool m_isTypewriter = false;
    bool m_isCarrying = false;
    int m_typographicEnd = -1;  ///< where the caret stood after the last typographic change
    QString m_typographicPlain; ///< what had been typed there
    qsizetype m_typographicLength = 0;
    bool m_isEditing = false; ///< while the caret moves because the text changes
};

} // namespace vl::desktop
