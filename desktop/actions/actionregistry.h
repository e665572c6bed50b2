#pragma once

#include "desktop/actions/catalogue.h"

#include <QtCore/QList>
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
    /// The settings outlive it.
    explicit ActionRegistry(app::Settings &settings, QObject *parent = nullptr);

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

    /// The name of the action outside a menu: no mnemonic, no dots, and nothing of what it would
    /// be done to now. Empty for an unknown id.
    static QString title(const QString &id);
    /// A text of a menu as it reads there.
    static QString withoutMnemonic(const QString &text);
    /// What the tool tip of the action says, and its first key behind it.
    static QString describe(const QAction &action);

    /// The keys that an action has without the user's doing.
    static QList<QKeySequence> builtInKeys(const ActionRow &row);
    /// Whether the user gave the action keys of its own, if only none.
    bool hasOwnKeys(const char *id) const;
    /// Gives the action these keys, from now on and at every start; empty ones leave it without.
    /// Whatever else had the keys loses them.
    void setKeys(const char *id, const QKeySequence &keys);
    /// Gives the action its built-in keys back.
    void resetKeys(const char *id);
    void resetAllKeys();
    /// Whether the keys can trigger an action: not those that write, move or copy in every text, as
    /// nobody could write with them any more.
    static bool canTrigger(const QKeySequence &keys);
    /// The other action that these keys trigger, null when they are free.
    QAction *userOf(const QKeySequence &keys, const char *exceptId) const;

Q_SIGNALS:
    void keysChanged();

private:
    void layKeys();

    app::Settings &m_settings;
    std::map<std::string, QAction *, std::less<>> m_actions;
};

} // namespace vl::desktop
