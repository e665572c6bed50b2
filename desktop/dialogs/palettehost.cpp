#include "desktop/dialogs/palettehost.h"

#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/palette.h"
#include "desktop/dialogs/palettewords.h"
#include "desktop/panels/catalogue.h"
#include "desktop/shell/panelhost.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <algorithm>

namespace vl::desktop {

namespace {

const QLatin1String panelPrefix("panel.");
const QLatin1String menuPrefix("menu.");
const QString pathSeparator = QStringLiteral(" › ");

/// The palette leads to a panel instead of closing one that is open.
bool isPanelToggle(const QAction &action)
{
    const auto rows = panelCatalogue();
    return action.isCheckable()
           && std::any_of(rows.begin(), rows.end(), [&action](const PanelRow &row) {
                  return ActionRegistry::withoutMnemonic(action.text())
                         == QCoreApplication::translate("Panels", row.title);
              });
}

bool hasPanel(QLatin1String objectName)
{
    const auto rows = panelCatalogue();
    return std::any_of(rows.begin(), rows.end(), [objectName](const PanelRow &row) {
        return QLatin1String(row.objectName) == objectName;
    });
}

} // namespace

PaletteHost::PaletteHost(const PanelContext &context, PanelHost &panels, QMainWindow *window)
    : m_context(context)
    , m_panels(panels)
    , m_window(window)
    , m_model(context.workspace, context.settings)
{
    context.actions.bind("file.quickOpen", this, &PaletteHost::open);
}

void PaletteHost::open()
{
    if (!m_palette)
        m_palette = new Palette(
            m_model, [this](const auto &choice) { carryOut(choice); }, m_window);
    m_model.start(commands());
    m_palette->start();
}

QList<app::QuickOpenCommand> PaletteHost::commands()
{
    QList<app::QuickOpenCommand> list;
    m_actions.clear();
    // The menus tell where an action is found the next time; the rest have only their keys.
    const auto menus = m_window->menuBar()->actions();
    for (const QAction *entry : menus)
        if (const QMenu *menu = entry->menu())
            addMenu(*menu, ActionRegistry::withoutMnemonic(entry->text()), list);
    for (QAction *action : m_context.actions.all())
        add(action, action->objectName(), {}, list);
    for (const PanelRow &row : panelCatalogue()) {
        app::QuickOpenCommand command;
        command.id = panelPrefix + QLatin1String(row.objectName);
        command.text = tr("Go to Panel: %1").arg(QCoreApplication::translate("Panels", row.title));
        command.keywords = tr("show, open");
        list.append(command);
    }
    return list;
}

void PaletteHost::addMenu(const QMenu &menu, const QString &path,
                          QList<app::QuickOpenCommand> &list)
{
    const auto entries = menu.actions();
    for (QAction *entry : entries) {
        const QString text = ActionRegistry::withoutMnemonic(entry->text());
        if (const QMenu *below = entry->menu())
            addMenu(*below, path + pathSeparator + text, list);
        else if (!entry->objectName().isEmpty())
            add(entry, entry->objectName(), path, list);
        else if (!entry->isSeparator() && !isPanelToggle(*entry))
            add(entry, menuPrefix + path + u'/' + text, path, list);
    }
}

void PaletteHost::add(QAction *action, const QString &id, const QString &group,
                      QList<app::QuickOpenCommand> &list)
{
    if (id == u"file.quickOpen" || m_actions.contains(id))
        return;
    // What nobody carries out stays in its menu; here it would only stand in the way.
    if (!action->objectName().isEmpty() && !action->property("bound").toBool())
        return;
    app::QuickOpenCommand command;
    command.id = id;
    command.text = ActionRegistry::withoutMnemonic(action->text());
    command.group = group;
    command.keywords = paletteWords(id);
    command.shortcut = action->shortcut().toString(QKeySequence::NativeText);
    command.isEnabled = action->isEnabled();
    if (!command.isEnabled)
        command.reason = tr("Not possible at the moment");
    list.append(command);
    m_actions.insert(id, action);
}

void PaletteHost::carryOut(const app::QuickOpenModel::Choice &choice)
{
    using Next = app::QuickOpenModel::Choice::Next;
    if (choice.next == Next::ShowText
        || (choice.next == Next::ShowObject && choice.kind != app::QuickOpenModel::Kind::Entity)) {
        m_panels.showPanel(QStringLiteral("editor"));
    } else if (choice.next == Next::ShowObject) {
        for (const QLatin1String panel : {QLatin1String("inspector"), QLatin1String("codex")})
            if (hasPanel(panel))
                return m_panels.showPanel(panel);
    } else if (choice.text.startsWith(panelPrefix)) {
        m_panels.showPanel(choice.text.mid(panelPrefix.size()));
    } else if (QAction *action = m_actions.value(choice.text)) {
        action->trigger();
    }
}

} // namespace vl::desktop
