#include "desktop/editor/pageview.h"

#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr size_t pagesAtATime = 32;

qreal pageGap()
{
    return grid(6);
}

} // namespace

/// What the thread that fills the pages works on; it outlives the wish for it.
struct PageView::Filling
{
    PageSetup setup;
    QString text;
    std::vector<PrintedParagraph> paragraphs;
    std::atomic_bool isCancelled = false;
};

PageView::PageView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Pages of the document"));
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(true);
    m_threads.setMaxThreadCount(1);
}

PageView::~PageView()
{
    cancel();
    m_threads.waitForDone();
}

void PageView::cancel()
{
    if (m_filling)
        m_filling->isCancelled = true;
    m_filling.reset();
}

void PageView::setSetup(const PageSetup &setup)
{
    m_setup = setup;
    if (!m_text.isNull())
        fill();
}

void PageView::setText(const QString &title, const QString &text)
{
    m_title = title;
    if (text == m_text && m_filling)
        return;
    m_text = text;
    fill();
}

void PageView::clear()
{
    cancel();
    m_text = QString();
    m_pages.clear();
    m_wanted = -1;
    verticalScrollBar()->setValue(0);
}

void PageView::fill()
{
    cancel();
    if (m_wanted < 0 && !m_pages.empty())
        m_wanted = placeOfPage(size_t(verticalScrollBar()->value() / qMax(1.0, pageStep())));
    m_pages.clear();
    auto filling = std::make_shared<Filling>();
    filling->setup = m_setup;
    filling->text = m_text;
    m_filling = filling;
    m_threads.start([this, filling] {
        filling->paragraphs = printedParagraphs(filling->text, filling->setup);
        std::vector<Page> ready;
        const auto hand = [&] {
            QMetaObject::invokeMethod(
                this, [this, filling, pages = std::exchange(ready, {})] { take(filling, pages); });
        };
        const auto receive = [&](Page page) {
            ready.push_back(std::move(page));
            if (ready.size() >= pagesAtATime)
                hand();
        };
        fillPages(filling->paragraphs, filling->setup, receive, filling->isCancelled);
        hand();
    });
    viewport()->update();
}

void PageView::take(const std::shared_ptr<Filling> &filling, std::vector<Page> pages)
{
    if (filling != m_filling)
        return;
    std::move(pages.begin(), pages.end(), std::back_inserter(m_pages));
    updateScrollBar();
    if (m_wanted >= 0)
        goTo(m_wanted);
    viewport()->update();
}

qreal PageView::zoom() const
{
    const qreal wide = (viewport()->width() - 2 * pageGap()) / m_setup.page.width();
    return std::clamp(wide, 0.3, fontScale() * 1.15);
}

qreal PageView::pageStep() const
{
    return m_setup.page.height() * zoom() + pageGap();
}

void PageView::updateScrollBar()
{
    const int height = qCeil(qreal(m_pages.size()) * pageStep() + pageGap());
    verticalScrollBar()->setRange(0, qMax(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(grid(10));
}

qsizetype PageView::placeOfPage(size_t page) const
{
    if (!m_filling || page >= m_pages.size() || m_pages[page].empty())
        return 0;
    return m_filling->paragraphs[size_t(m_pages[page].front().paragraph)].source;
}

void PageView::goTo(qsizetype place)
{
    m_wanted = place;
    for (size_t page = m_pages.size(); page-- > 0;) {
        if (placeOfPage(page) > place)
            continue;
        if (page + 1 < m_pages.size() || place < placeOfPage(page) + 2000)
            m_wanted = -1;
        verticalScrollBar()->setValue(qRound(qreal(page) * pageStep()));
        return;
    }
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBar();
}

void PageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = zoom();
    const qreal left = (viewport()->width() - m_setup.page.width() * scale) / 2;
    const auto first = size_t(qMax(0.0, verticalScrollBar()->value() / pageStep()));
    for (size_t page = first; page < m_pages.size(); ++page) {
        const qreal top = qreal(page) * pageStep() + pageGap() - verticalScrollBar()->value();
        if (top > event->rect().bottom())
            break;
        painter.save();
        painter.translate(left, top);
        painter.scale(scale, scale);
        paintPage(painter, page);
        painter.restore();
    }
    if (m_pages.empty() && m_filling)
        painter.drawText(viewport()->rect(), Qt::AlignCenter, tr("Laying out the pages…"));
}

void PageView::paintPage(QPainter &painter, size_t number)
{
    const QRectF sheet(QPointF(0, 0), m_setup.page);
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    painter.setPen(mix(text, base, 0.25));
    painter.setBrush(base);
    painter.drawRect(sheet);

    painter.setFont(m_setup.font);
    painter.setPen(mix(text, base, quietAmount));
    const QRectF header(m_setup.margin, m_setup.margin / 3, m_setup.room().width(),
                        m_setup.margin / 3);
    const QString pageNumber = QLocale().toString(qlonglong(number + 1));
    painter.drawText(header, Qt::AlignRight | Qt::AlignVCenter, pageNumber);
    const QFontMetricsF metrics(m_setup.font);
    painter.drawText(
        header, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics.elidedText(m_title, Qt::ElideMiddle,
                           header.width() - metrics.horizontalAdvance(pageNumber) * 3));

    painter.setPen(text);
    const QPointF corner(m_setup.margin, m_setup.margin);
    QTextLayout layout;
    int laidOut = -1;
    for (const PageRow &row : m_pages[number]) {
        if (row.paragraph != laidOut) {
            layOutParagraph(layout, m_filling->paragraphs[size_t(row.paragraph)], m_setup);
            laidOut = row.paragraph;
        }
        if (row.row < layout.lineCount())
            layout.lineAt(row.row).draw(&painter, corner + QPointF(0, row.y));
    }
}

void PageView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const qreal y = event->position().y() + verticalScrollBar()->value() - pageGap();
    const auto page = size_t(qMax(0.0, y / pageStep()));
    if (page >= m_pages.size() || !m_filling)
        return;
    const qreal inside = (y - qreal(page) * pageStep()) / zoom() - m_setup.margin;
    qsizetype place = placeOfPage(page);
    for (const PageRow &row : m_pages[page])
        if (row.y <= inside)
            place = m_filling->paragraphs[size_t(row.paragraph)].source;
    Q_EMIT placeChosen(place);
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    const auto page = size_t(verticalScrollBar()->value() / qMax(1.0, pageStep()));
    switch (event->key()) {
    case Qt::Key_Home:
        verticalScrollBar()->setValue(0);
        break;
    case Qt::Key_End:
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT placeChosen(placeOfPage(page));
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace vl::desktop
