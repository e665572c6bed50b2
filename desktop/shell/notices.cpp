#include "desktop/shell/notices.h"

#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "desktop/widgets/elidedlabel.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>

namespace vl::desktop {

namespace {

constexpr int textMilliseconds = 5000;
constexpr int offerMilliseconds = 12000;

} // namespace

Notices::Notices(QStatusBar *foot, NoticeBar *top, app::Workspace &workspace, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_top(top)
    , m_row(new QWidget(foot))
    , m_text(new ElidedLabel({}, m_row))
    , m_standing(new ElidedLabel({}, foot))
    , m_button(new QToolButton(m_row))
{
    auto *layout = new QHBoxLayout(m_row);
    layout->setContentsMargins(grid(2), 0, grid(2), 0);
    layout->setSpacing(grid(2));
    layout->addWidget(m_text);
    layout->addWidget(m_button);
    layout->addStretch(1);
    m_button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_button->setText(tr("Undo"));
    foot->addWidget(m_row, 1);
    m_row->hide();
    m_standing->setAccessibleName(tr("What needs attention"));
    foot->addPermanentWidget(m_standing);
    m_standing->hide();

    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (isAttendedTo())
            m_timer.start(textMilliseconds);
        else
            clear();
    });
    connect(m_button, &QToolButton::clicked, this, [this] {
        const auto action = std::exchange(m_action, {});
        clear();
        if (action)
            action();
    });
    connect(&workspace, &app::Workspace::historyChanged, this, [this] {
        if (m_offeredAt >= 0 && m_workspace.history().undoCount() != m_offeredAt)
            clear();
    });
    connect(&workspace, &app::Workspace::projectReplaced, this, [this] {
        if (m_offeredAt >= 0)
            clear();
    });
}

void Notices::show(const QString &text, const QString &actionText,
                   const std::function<void()> &action)
{
    m_offeredAt = -1;
    m_text->setText(text);
    m_action = action;
    m_button->setText(actionText);
    m_button->setAccessibleDescription(text);
    m_button->setVisible(!actionText.isEmpty());
    m_row->show();
    m_timer.start(actionText.isEmpty() ? textMilliseconds : offerMilliseconds);
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Notices::remark(const QString &text)
{
    if (!m_action)
        show(text);
}

void Notices::showNext(const QString &text, const QString &actionText,
                       const std::function<void()> &action)
{
    if (m_offeredAt < 0)
        show(text, actionText, action);
    else
        m_next = [this, text, actionText, action] { show(text, actionText, action); };
}

void Notices::offerUndo(const QString &text)
{
    show(text, tr("Undo"), [this] { m_workspace.undo(); });
    m_offeredAt = qsizetype(m_workspace.history().undoCount());
}

void Notices::clear()
{
    m_timer.stop();
    m_offeredAt = -1;
    m_action = {};
    m_row->hide();
    if (const auto next = std::exchange(m_next, {}))
        next();
}

void Notices::stand(const QString &text, const QString &details)
{
    m_standing->setText(text);
    m_standing->setToolTip(app::plainToolTip(details));
    m_standing->setAccessibleDescription(details);
    m_standing->setVisible(!text.isEmpty());
}

void Notices::ask(const QString &id, const QString &text, const QList<NoticeAction> &answers)
{
    m_top->ask(id, text, answers);
}

void Notices::withdraw(const QString &id)
{
    m_top->withdraw(id);
}

bool Notices::isAttendedTo() const
{
    return m_row->underMouse() || m_button->hasFocus();
}

} // namespace vl::desktop
