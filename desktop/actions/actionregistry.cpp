#include "desktop/actions/actionregistry.h"

#include "app/base/settings.h"

#include <QtWidgets/QMenu>

namespace vl::desktop {

namespace {

QList<QKeySequence> keysOf(const ActionRow &row, const app::Settings &settings)
{
    const QString own = QLatin1String("shortcuts/") + QLatin1String(row.id);
    if (settings.contains(own))
        return {QKeySequence(settings.text(own))};
    if (row.standardKey != QKeySequence::UnknownKey)
        return QKeySequence::keyBindings(row.standardKey);
    return {QKeySequence(QLatin1String(row.keys))};
}

} // namespace

ActionRegistry::ActionRegistry(const app::Settings &settings, QObject *parent)
    : QObject(parent)
{
    for (const ActionRow &row : actionCatalogue()) {
        auto *action = new QAction(QCoreApplication::translate("Actions", row.text), this);
        action->setObjectName(QLatin1String(row.id));
        action->setShortcuts(keysOf(row, settings));
        if (row.toolTip)
            action->setToolTip(QCoreApplication::translate("Actions", row.toolTip));
        action->setEnabled(false);
        m_actions.emplace(row.id, action);
    }
}

QAction *ActionRegistry::action(const char *id) const
{
    const auto found = m_actions.find(std::string_view(id));
    Q_ASSERT(found != m_actions.end());
    return found->second;
}

std::vector<QAction *> ActionRegistry::all() const
{
    std::vector<QAction *> list;
    for (const ActionRow &row : actionCatalogue())
        list.push_back(action(row.id));
    return list;
}

void ActionRegistry::fill(QMenu *menu, Menu which) const
{
    for (const ActionRow &row : actionCatalogue()) {
        if (row.menu != which)
            continue;
        if (row.startsGroup)
            menu->addSeparator();
        menu->addAction(action(row.id));
    }
}

} // namespace vl::desktop
