#pragma once

#include "desktop/editor/pagelayout.h"

#include <QtCore/QThreadPool>
#include <QtWidgets/QAbstractScrollArea>

#include <memory>

namespace vl::desktop {

/// A text as its pages will look in print, with margins, header and page numbers. The pages are
/// filled by another thread and appear as they come; they are there to be read, a double click goes
/// back to writing at that place. Writing itself stays on the endless page, where no line jumps to
/// the next sheet under the hands.
class PageView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PageView(QWidget *parent = nullptr);
    ~PageView() override;

    void setSetup(const PageSetup &setup);
    /// Shows a text; keeps the place if it is the same document's.
    void setText(const QString &title, const QString &text);
    /// Forgets the text; nothing is laid out while the view is hidden.
    void clear();
    /// Scrolls to the page on which a place of the text stands, at once or when it is laid out.
    void goTo(qsizetype place);
    int pageCount() const { return int(m_pages.size()); }

Q_SIGNALS:
    /// The user wants to write at this place of the text.
    void placeChosen(qsizetype place);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Filling;

    void fill();
    void cancel();
    void take(const std::shared_ptr<Filling> &filling, std::vector<Page> pages);
    void updateScrollBar();
    qreal zoom() const;
    qreal pageStep() const;
    qsizetype placeOfPage(size_t page) const;
    void paintPage(QPainter &painter, size_t number);

    PageSetup m_setup;
    QString m_title;
    QString m_text;
    std::shared_ptr<Filling> m_filling;
    std::vector<Page> m_pages;
    qsizetype m_wanted = -1; ///< the place to go to when its page is there
    QThreadPool m_threads;
};

} // namespace vl::desktop
