#include "desktop/dialogs/recentlydeleteddialog.h"

#include "app/models/objecttexts.h"
#include "desktop/dialogs/differenceview.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int groupRole = Qt::UserRole;
constexpr int pathRole = Qt::UserRole + 1;
constexpr int textRole = Qt::UserRole + 2;

} // namespace

RecentlyDeletedDialog::RecentlyDeletedDialog(std::vector<app::DeletedGroup> groups, QWidget *parent)
    : QDialog(parent)
    , m_groups(std::move(groups))
    , m_tree(new QTreeWidget(this))
    , m_text(new DifferenceView(this))
    , m_restore(new QPushButton(tr("&Restore"), this))
{
    setWindowTitle(tr("Recently Deleted"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    auto *intro = new QLabel(
        m_groups.empty()
            ? tr("Nothing was deleted from this project in the last %n day(s).", nullptr,
                 app::DeletedStore::keptDays)
            : tr("What was deleted in the last %n day(s) and is not there again. What lies below "
                 "a document comes back with it.",
                 nullptr, app::DeletedStore::keptDays),
        this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    m_tree->setAccessibleName(tr("Recently deleted"));
    m_tree->setHeaderLabels({tr("Title"), tr("Deleted")});
    m_tree->setUniformRowHeights(true);
    m_tree->setItemDelegate(new RowDelegate(m_tree));
    m_text->setAccessibleName(tr("Text of what was deleted"));
    auto *split = new QSplitter(this);
    split->setChildrenCollapsible(false);
    split->addWidget(m_tree);
    split->addWidget(m_text);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 1);
    layout->addWidget(split, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_restore, QDialogButtonBox::AcceptRole);
    m_restore->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    fill();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &RecentlyDeletedDialog::showChosen);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    showChosen();
    // Without anything to show there is but the sentence.
    split->setVisible(!m_groups.empty());
    m_restore->setVisible(!m_groups.empty());
    if (m_groups.empty())
        sizeDialog(this, 110, 30);
    else
        sizeDialog(this, 220, 130);
}

void RecentlyDeletedDialog::fill()
{
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        const app::DeletedGroup &group = m_groups[i];
        const QString date = group.time.isValid() ? QLocale().toString(group.time.toLocalTime(),
                                                                       QLocale::ShortFormat)
                                                  : tr("unknown");
        // One thing alone needs no row above it.
        QList<QTreeWidgetItem *> open;
        if (group.items.size() > 1) {
            auto *top = new QTreeWidgetItem(m_tree, {group.label, date});
            top->setData(0, groupRole, qulonglong(i));
            open.append(top);
        }
        const auto base = open.size();
        for (const app::DeletedItem &item : group.items) {
            while (open.size() > base + item.depth)
                open.removeLast();
            auto *row = open.isEmpty() ? new QTreeWidgetItem(m_tree)
                                       : new QTreeWidgetItem(open.constLast());
            row->setText(0, item.name);
            row->setText(1, base == 0 ? date : QString());
            row->setToolTip(0, app::plainToolTip(item.path));
            row->setData(0, groupRole, qulonglong(i));
            row->setData(0, pathRole, item.path);
            row->setData(0, textRole, item.text);
            open.append(row);
        }
    }
    m_tree->expandAll();
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
}

const app::DeletedGroup *RecentlyDeletedDialog::chosenGroup() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? &m_groups[item->data(0, groupRole).toULongLong()] : nullptr;
}

QString RecentlyDeletedDialog::chosenPath() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? item->data(0, pathRole).toString() : QString();
}

void RecentlyDeletedDialog::showChosen()
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    m_restore->setEnabled(item != nullptr);
    m_text->showPlain(item ? item->data(0, textRole).toString() : QString());
}

} // namespace vl::desktop
