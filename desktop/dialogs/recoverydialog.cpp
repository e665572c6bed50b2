#include "desktop/dialogs/recoverydialog.h"

#include "app/models/objecttexts.h"
#include "desktop/dialogs/differenceview.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/grid.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

RecoveryDialog::RecoveryDialog(const app::Recovery &recovery, QWidget *parent)
    : QDialog(parent)
    , m_recovery(recovery)
    , m_tree(new QTreeWidget(this))
    , m_difference(new DifferenceView(this))
    , m_restore(new QPushButton(tr("&Restore"), this))
{
    setWindowTitle(tr("Unsaved Work"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    auto *intro = new QLabel(tr("Ivorel was cut off before this was saved. What you restore comes "
                                "into the open project as one step that you can undo; lines that "
                                "go are marked “−”, lines that come back “+”."),
                             this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    auto *split = new QSplitter(this);
    split->setChildrenCollapsible(false);
    split->addWidget(m_tree);
    split->addWidget(m_difference);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 3);
    layout->addWidget(split, 1);

    auto *buttons = new QDialogButtonBox(this);
    auto *discard = buttons->addButton(tr("&Discard All"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(tr("Decide &Later"), QDialogButtonBox::RejectRole);
    buttons->addButton(m_restore, QDialogButtonBox::AcceptRole);
    m_restore->setDefault(true);
    layout->addWidget(buttons);
    connect(discard, &QPushButton::clicked, this, [this] {
        m_answer = Answer::Discard;
        accept();
    });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        m_answer = Answer::Restore;
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    fill();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &RecoveryDialog::showChosen);
    connect(m_tree, &QTreeWidget::itemChanged, this, &RecoveryDialog::updateButtons);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    updateButtons();
    sizeDialog(this, 220, 130);
}

void RecoveryDialog::fill()
{
    m_tree->setAccessibleName(tr("Unsaved work"));
    m_tree->setHeaderLabels({tr("Title"), tr("State")});
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setItemDelegate(new RowDelegate(m_tree));
    const QStringList advised = m_recovery.advisedPaths();
    for (const app::RecoveredFile &file : m_recovery.files()) {
        auto *item = new QTreeWidgetItem(m_tree);
        item->setText(0, file.name);
        item->setData(0, Qt::UserRole, file.change.path);
        item->setCheckState(0, advised.contains(file.change.path) ? Qt::Checked : Qt::Unchecked);
        QString state = tr("changed");
        if (!file.change.bytes)
            state = tr("deleted");
        else if (file.before.isEmpty())
            state = tr("new");
        item->setText(1,
                      file.changedElsewhere ? tr("%1; the project’s is newer").arg(state) : state);
        item->setToolTip(0, app::plainToolTip(file.change.path));
    }
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
}

QStringList RecoveryDialog::chosenPaths() const
{
    QStringList paths;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = m_tree->topLevelItem(i);
        if (item->checkState(0) == Qt::Checked)
            paths.append(item->data(0, Qt::UserRole).toString());
    }
    return paths;
}

void RecoveryDialog::showChosen()
{
    const int row = m_tree->indexOfTopLevelItem(m_tree->currentItem());
    if (row < 0)
        return;
    const app::RecoveredFile &file = m_recovery.files()[std::size_t(row)];
    m_difference->show(file.before, file.after);
}

void RecoveryDialog::updateButtons()
{
    m_restore->setEnabled(!chosenPaths().isEmpty());
}

} // namespace vl::desktop
