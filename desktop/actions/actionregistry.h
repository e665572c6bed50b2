#pragma once

#include "desktop/actions/catalogue.h"

#include <QtCore/QObject>
#include <QtGui/QAction>

#include <functional>
#include <map>

class QMenu;

namespace vl::app {
class Settings;
}

namespace vl::desktop {

/// Makes the actions of the catalogue, lays the user's own keys over the built-in ones, and fills
/// the menus. An action is disabled until somebody binds it.
class ActionRegistry final : public QObject
{
    Q_OBJECT

public:
    explicit ActionRegistry(const app::Settings &settings, QObject *parent = nullptr);

    /// The action with this id, which must stand in the catalogue.
    QAction *action(const char *id) const;
    QAction *operator[](const char *id) const { return action(id); }
    std::vector<QAction *> all() const;

    /// Runs the slot whenever the action is triggered, as long as the context lives.
    template<typename Receiver, typename Slot>
    void bind(const char *id, Receiver *context, Slot slot)
    {
        QAction *bound = action(id);
        connect(bound, &QAction::triggered, context, slot);
        bound->setEnabled(true);
        bound->setProperty("bound", true);
    }
    /// Adds the actions of a menu in the order of the catalogue.
    void fill(QMenu *menu, Menu which) const;

private:
    std::map<std::string, QAction *, std::less<>> m_actions;
};

} // namespace vl::desktop
