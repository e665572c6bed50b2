#include "desktop/shell/maintoolbar.h"

#include "app/base/settings.h"
#include "app/base/settingskeys.h"
#include "desktop/actions/actionregistry.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QToolTip>

namespace vl::desktop {

namespace {

constexpr ToolBarRow rows[] = {
    {"file.new", false},           {"file.open", false},        {"file.save", false},
    {"edit.undo", true},           {"edit.redo", false},        {"doc.add", true},
    {"doc.addNote", false},        {"file.quickOpen", true},    {"edit.find", false},
    {"edit.findInProject", false}, {"file.backUp", true},       {"view.distractionFree", true},
    {"view.pageLayout", false},    {"edit.preferences", false},
};

} // namespace

std::span<const ToolBarRow> toolBarCatalogue()
{
    return rows;
}

QString toolBarKey(const char *actionId)
{
    return QLatin1String("toolbars/") + QLatin1String(actionId);
}

bool isInToolBar(const app::Settings &settings, const char *actionId)
{
    return settings.text(toolBarKey(actionId)) != u"0";
}

MainToolBar::MainToolBar(const ActionRegistry &actions, const app::Settings &settings,
                         QWidget *parent)
    : QToolBar(tr("Main"), parent)
    , m_actions(actions)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("primaryToolBar"));
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    connect(&settings.changes(), &app::SettingsChanges::changed, this, [this](const QString &key) {
        if (key.startsWith(QLatin1String("toolbars/")))
            fill();
    });
    // Whoever applies the scale goes first.
    connect(
        &settings.changes(), &app::SettingsChanges::changed, this,
        [this](const QString &key) {
            const int side = style()->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, this);
            if (key == QLatin1String(app::settings::fontScale.name))
                setIconSize({side, side});
        },
        Qt::QueuedConnection);
    fill();
}

void MainToolBar::fill()
{
    clear();
    bool isGroupStarted = false;
    for (const ToolBarRow &row : rows) {
        isGroupStarted = isGroupStarted || row.startsGroup;
        if (!isInToolBar(m_settings, row.id))
            continue;
        if (isGroupStarted && !actions().isEmpty())
            addSeparator();
        isGroupStarted = false;
        QAction *action = m_actions[row.id];
        addAction(action);
        widgetForAction(action)->installEventFilter(this);
    }
}

bool MainToolBar::eventFilter(QObject *watched, QEvent *event)
{
    const auto *button = qobject_cast<QToolButton *>(watched);
    if (event->type() != QEvent::ToolTip || !button || !button->defaultAction())
        return QToolBar::eventFilter(watched, event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       ActionRegistry::describe(*button->defaultAction()));
    return true;
}

} // namespace vl::desktop
