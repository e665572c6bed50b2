#include "desktop/actions/actionregistry.h"

#include "app/base/settings.h"
#include "desktop/shell/icons.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <optional>
#include <set>

namespace vl::desktop {

namespace {

/// The pictures of actions that stand in a tool bar.
constexpr std::pair<std::string_view, const char *> icons[] = {
    {"file.new", "newProject"},
    {"file.open", "open"},
    {"file.openFolder", "openFolder"},
    {"file.save", "save"},
    {"file.quickOpen", "quickOpen"},
    {"file.backUp", "backup"},
    {"edit.undo", "undo"},
    {"edit.redo", "redo"},
    {"edit.find", "replace"},
    {"edit.findInProject", "find"},
    {"edit.preferences", "settings"},
    {"doc.add", "document"},
    {"doc.addNote", "note"},
    {"view.distractionFree", "focus"},
    {"view.pageLayout", "page"},
};

QString keyOf(const char *id)
{
    return QLatin1String("shortcuts/") + QLatin1String(id);
}

/// The user's own keys for an action; nothing when there are none or they cannot be read.
std::optional<QKeySequence> ownKeys(const app::Settings &settings, const char *id)
{
    if (!settings.contains(keyOf(id)))
        return {};
    const QKeySequence keys =
        QKeySequence::fromString(settings.text(keyOf(id)), QKeySequence::PortableText);
    for (int i = 0; i < keys.count(); ++i)
        if (keys[i].key() == Qt::Key_unknown)
            return {};
    return keys;
}

QIcon iconOf(const char *id)
{
    const auto *found = std::find_if(std::begin(icons), std::end(icons),
                                     [id](const auto &row) { return row.first == id; });
    return found == std::end(icons) ? QIcon() : icon(QLatin1String(found->second));
}

} // namespace

ActionRegistry::ActionRegistry(app::Settings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    for (const ActionRow &row : actionCatalogue()) {
        auto *action = new QAction(QCoreApplication::translate("Actions", row.text), this);
        action->setObjectName(QLatin1String(row.id));
        if (row.toolTip)
            action->setToolTip(QCoreApplication::translate("Actions", row.toolTip));
        action->setIcon(iconOf(row.id));
        action->setIconVisibleInMenu(false);
        action->setEnabled(false);
        m_actions.emplace(row.id, action);
    }
    layKeys();
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

QString ActionRegistry::title(const QString &id)
{
    const auto rows = actionCatalogue();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const ActionRow &r) { return id == QLatin1String(r.id); });
    if (row == rows.end())
        return {};
    const QString text = withoutMnemonic(QCoreApplication::translate("Actions", row->text));
    return text.endsWith(u'…') ? text.chopped(1) : text;
}

QString ActionRegistry::withoutMnemonic(const QString &text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'&' && i + 1 < text.size())
            ++i;
        plain += text.at(i);
    }
    return plain;
}

QString ActionRegistry::describe(const QAction &action)
{
    QString text = action.toolTip();
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, keys);
}

QList<QKeySequence> ActionRegistry::builtInKeys(const ActionRow &row)
{
    if (row.standardKey != QKeySequence::UnknownKey)
        return QKeySequence::keyBindings(row.standardKey);
    return QKeySequence::listFromString(QLatin1String(row.keys), QKeySequence::PortableText);
}

bool ActionRegistry::hasOwnKeys(const char *id) const
{
    return ownKeys(m_settings, id).has_value();
}

void ActionRegistry::setKeys(const char *id, const QKeySequence &keys)
{
    // An own entry of another action would stand against this one; a built-in key gives way.
    if (const QAction *other = userOf(keys, id)) {
        const QByteArray otherId = other->objectName().toLatin1();
        if (hasOwnKeys(otherId.constData()))
            m_settings.set(keyOf(otherId.constData()), QString());
    }
    m_settings.set(keyOf(id), keys.toString(QKeySequence::PortableText));
    layKeys();
}

void ActionRegistry::resetKeys(const char *id)
{
    m_settings.remove(keyOf(id));
    layKeys();
}

void ActionRegistry::resetAllKeys()
{
    for (const ActionRow &row : actionCatalogue())
        m_settings.remove(keyOf(row.id));
    layKeys();
}

bool ActionRegistry::canTrigger(const QKeySequence &keys)
{
    if (keys.isEmpty())
        return true;
    for (const QKeySequence::StandardKey edit :
         {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste, QKeySequence::SelectAll})
        if (QKeySequence::keyBindings(edit).contains(QKeySequence(keys[0])))
            return false;
    const Qt::KeyboardModifiers modifiers = keys[0].keyboardModifiers();
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return true;
    const Qt::Key key = keys[0].key();
    const bool isFunctionKey = key >= Qt::Key_F1 && key <= Qt::Key_F35;
    const bool isOfMedia = key >= Qt::Key_Back && key <= Qt::Key_LaunchH;
    return isFunctionKey || isOfMedia;
}

QAction *ActionRegistry::userOf(const QKeySequence &keys, const char *exceptId) const
{
    if (keys.isEmpty())
        return nullptr;
    for (const ActionRow &row : actionCatalogue()) {
        QAction *candidate = action(row.id);
        if (candidate->objectName() != QLatin1String(exceptId)
            && candidate->shortcuts().contains(keys))
            return candidate;
    }
    return nullptr;
}

void ActionRegistry::layKeys()
{
    // The user's keys go first: a built-in one that they take would make both ambiguous.
    std::set<QKeySequence> taken;
    for (const ActionRow &row : actionCatalogue()) {
        const std::optional<QKeySequence> own = ownKeys(m_settings, row.id);
        if (!own)
            continue;
        const bool isFree = own->isEmpty() || taken.insert(*own).second;
        action(row.id)->setShortcuts(isFree && !own->isEmpty() ? QList{*own}
                                                               : QList<QKeySequence>());
    }
    for (const ActionRow &row : actionCatalogue()) {
        if (hasOwnKeys(row.id))
            continue;
        QList<QKeySequence> keys = builtInKeys(row);
        keys.removeIf([&](const QKeySequence &built) { return taken.contains(built); });
        action(row.id)->setShortcuts(keys);
    }
    Q_EMIT keysChanged();
}

} // namespace vl::desktop
