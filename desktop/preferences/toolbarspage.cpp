#include "desktop/preferences/toolbarspage.h"

#include "desktop/actions/actionregistry.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/shell/maintoolbar.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

ToolBarsPage::ToolBarsPage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
    , m_list(new QListWidget(this))
{
    auto *label = new QLabel(tr("&Entries of the tool bar “Main”:"), this);
    label->setBuddy(m_list);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_list->setAccessibleName(tr("Entries of the tool bar “Main”"));
    column()->addWidget(label);
    column()->addWidget(m_list, 1);
    for (const ToolBarRow &row : toolBarCatalogue()) {
        const QAction *action = context.actions[row.id];
        auto *item = new QListWidgetItem(action->icon(),
                                         ActionRegistry::title(action->objectName()), m_list);
        item->setData(Qt::UserRole, QLatin1String(row.id));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    }
    connect(&context.settings.changes(), &app::SettingsChanges::changed, this,
            [this](const QString &key) {
                if (key.startsWith(QLatin1String("toolbars/")))
                    show();
            });
    connect(m_list, &QListWidget::itemChanged, this, [this](const QListWidgetItem *item) {
        settings().set(toolBarKey(item->data(Qt::UserRole).toString().toLatin1().constData()),
                       item->checkState() == Qt::Checked ? QStringLiteral("1")
                                                         : QStringLiteral("0"));
    });
    show();
}

void ToolBarsPage::show()
{
    const QSignalBlocker quiet(m_list);
    const auto rows = toolBarCatalogue();
    for (size_t i = 0; i < rows.size(); ++i)
        m_list->item(int(i))->setCheckState(isInToolBar(settings(), rows[i].id) ? Qt::Checked
                                                                                : Qt::Unchecked);
}

void ToolBarsPage::reset()
{
    for (const ToolBarRow &row : toolBarCatalogue())
        settings().remove(toolBarKey(row.id));
}

QStringList ToolBarsPage::searchTexts() const
{
    QStringList texts = PreferencesPage::searchTexts();
    for (int i = 0; i < m_list->count(); ++i)
        texts.append(m_list->item(i)->text());
    return texts;
}

} // namespace vl::desktop
