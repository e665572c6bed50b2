#include "desktop/shell/noticebar.h"

#include "desktop/shell/icons.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QAccessible>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <utility>

namespace vl::desktop {

namespace {

constexpr int againMilliseconds = 100;

/// One question; a quiet tint and a line of the highlight colour set it off from the panels.
class NoticeRow final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        const QColor highlight = palette().color(QPalette::Highlight);
        painter.fillRect(rect(), mix(highlight, palette().color(QPalette::Window), noticeTint));
        painter.fillRect(QRect(0, height() - 1, width(), 1), highlight);
    }
};

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *old, QWidget *now) {
        if (old && now && isAncestorOf(now) && !isAncestorOf(old))
            m_before = old;
    });
    m_later.setSingleShot(true);
    m_later.setInterval(againMilliseconds);
    connect(&m_later, &QTimer::timeout, this, &NoticeBar::settle);
    hide();
}

void NoticeBar::ask(const QString &id, const QString &text, const QList<NoticeAction> &answers)
{
    withdraw(id);
    QWidget *row = makeRow(id, text, answers);
    m_rows.emplace(id, row);
    m_layout->addWidget(row);
    row->hide();
    settle();
}

void NoticeBar::withdraw(const QString &id)
{
    const auto found = m_rows.find(id);
    if (found == m_rows.end())
        return;
    // Who answers in the middle of a sentence goes on with it.
    const QWidget *focused = window()->focusWidget();
    if (m_before && focused && found->second->isAncestorOf(focused))
        m_before->setFocus(Qt::OtherFocusReason);
    found->second->setEnabled(false);
    m_gone.append(found->second);
    m_rows.erase(found);
    settle();
}

/// Moves nothing while a mouse button is down: a drag would end at another place than it aims at.
void NoticeBar::settle()
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        m_later.start();
        return;
    }
    for (QWidget *row : std::exchange(m_gone, {})) {
        row->hide();
        row->deleteLater(); // it may be the sender
    }
    setVisible(!m_rows.empty());
    for (const auto &[id, row] : m_rows) {
        if (!row->isHidden())
            continue;
        row->show(); // at once, also where another question stands already
        QAccessibleEvent alert(row, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

QWidget *NoticeBar::makeRow(const QString &id, const QString &text,
                            const QList<NoticeAction> &answers)
{
    auto *row = new NoticeRow(this);
    row->setAccessibleName(text);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(grid(4), grid(2), grid(2), grid(2));
    layout->setSpacing(grid(2));
    auto *label = new QLabel(text, row);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label, 1);
    for (const NoticeAction &answer : answers) {
        auto *button = new QPushButton(answer.text, row);
        button->setAccessibleDescription(text);
        connect(button, &QPushButton::clicked, this, [this, id, run = answer.run] {
            withdraw(id);
            if (run)
                run();
        });
        layout->addWidget(button);
    }
    auto *later = new QToolButton(row);
    later->setAutoRaise(true);
    later->setIcon(icon(QStringLiteral("close")));
    later->setToolTip(tr("Not Now"));
    later->setAccessibleName(tr("Not Now"));
    later->setAccessibleDescription(text);
    connect(later, &QToolButton::clicked, this, [this, id] { withdraw(id); });
    layout->addWidget(later);
    return row;
}

} // namespace vl::desktop
