#pragma once

#include "app/text/markdownstyle.h"

#include <QtCore/QStringList>
#include <QtGui/QTextBlock>
#include <QtWidgets/QPlainTextDocumentLayout>

#include <memory>

namespace vl::desktop {

class EditorPictures;
class EditorStyle;

/// What the editor knows of one line of the text. It counts its words in the total of the document,
/// as long as the line lives.
class EditorLine final : public QTextBlockUserData
{
public:
    explicit EditorLine(std::shared_ptr<qsizetype> total)
        : m_total(std::move(total))
    {
    }
    ~EditorLine() override { *m_total -= m_words; }
    Q_DISABLE_COPY_MOVE(EditorLine)

    static EditorLine *of(const QTextBlock &block)
    {
        return static_cast<EditorLine *>(block.userData());
    }

    qsizetype words() const { return m_words; }
    void setWords(qsizetype words)
    {
        *m_total += words - m_words;
        m_words = words;
    }

    app::MarkdownLineState before; ///< what the lines above leave to this one
    app::MarkdownLineState after;
    app::MarkdownLineKind kind = app::MarkdownLineKind::Paragraph;
    quint8 level = 0;
    bool isStyled = false;      ///< the layout has the formats of the present text
    bool continuesLine = false; ///< one line of the text with the block before it
    qreal height = 0;           ///< of all lines with their spacing, without pictures
    QStringList pictures;       ///< paths of the pictures to show below the line

private:
    std::shared_ptr<qsizetype> m_total;
    qsizetype m_words = 0;
};

/// Lays the paragraphs of a plain text out with Markdown styles, line spacing and hanging indents,
/// each when it is first shown. Changes are followed paragraph by paragraph.
class EditorLayout final : public QPlainTextDocumentLayout
{
    Q_OBJECT

public:
    explicit EditorLayout(QTextDocument *document);
    ~EditorLayout() override;

    /// Shows everything in another style.
    void setStyle(std::shared_ptr<const EditorStyle> style);
    const EditorStyle *style() const { return m_style.get(); }
    /// Where the pictures of the text come from; null for a text without any.
    void setPictures(EditorPictures *pictures);
    /// The width that lines may take, in pixels.
    void setWidth(int width);
    /// Guesses the heights of paragraphs that were not shown yet, for the scroll bar.
    void estimateLines();

    /// The words of the whole text.
    qsizetype wordCount() const { return *m_words; }

    QRectF blockBoundingRect(const QTextBlock &block) const override;
    QSizeF documentSize() const override;
    /// Where a picture of the line stands, from the line's top left corner.
    QRectF pictureRect(const QTextBlock &block, int number) const;

protected:
    void documentChanged(int from, int removed, int added) override;

private:
    EditorLine &lineOf(const QTextBlock &block) const;
    void read(const QTextBlock &block);
    void applyStyles(const QTextBlock &block) const;
    void layOut(const QTextBlock &block) const;
    qreal layLines(const QTextBlock &block, const EditorLine &line) const;
    qreal hangingIndent(const QTextBlock &block, const EditorLine &line) const;
    qreal picturesHeight(const EditorLine &line) const;
    qreal textWidth() const;
    void relayOneBlock(const QTextBlock &block);
    void forgetLayouts();
    void tellSize() const;

    std::shared_ptr<qsizetype> m_words = std::make_shared<qsizetype>(0);
    std::shared_ptr<const EditorStyle> m_style;
    EditorPictures *m_pictures = nullptr;
    int m_width = 0;
    int m_blockCount = 0;
    bool m_isInChange = false;
    mutable bool m_tellsSize = false;
    mutable QTextBlock m_restyled; ///< the block whose formats are being set
};

} // namespace vl::desktop
