#include "desktop/dialogs/recoverydialog.h"

#include "app/models/objecttexts.h"
#include "app/storage/keptfiles.h"
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

namespace {

using Way = app::RecoveredFile::Way;

QString stateOf(const app::RecoveredFile &file)
{
    switch (file.way) {
    case Way::Merged:
        return RecoveryDialog::tr("merged");
    case Way::Beside:
        return RecoveryDialog::tr("beside the newer one");
    case Way::Instead:
        return RecoveryDialog::tr("the project’s is newer");
    case Way::AsItWas:
        break;
    }
    if (!file.change.bytes)
        return RecoveryDialog::tr("deleted");
    return file.versions.before.isEmpty() ? RecoveryDialog::tr("new")
                                          : RecoveryDialog::tr("changed");
}

QString explanationOf(const app::RecoveredFile &file)
{
    switch (file.way) {
    case Way::Merged:
        return RecoveryDialog::tr("It was changed since in other places. Both are kept in it.");
    case Way::Beside:
        return RecoveryDialog::tr("It was changed since in the same places. The unsaved work comes "
                                  "back beside it, as “%1 (unsaved work)”.")
            .arg(file.name);
    case Way::Instead:
        return file.change.bytes ? RecoveryDialog::tr("It was changed since. Restoring puts the "
                                                      "unsaved work in place of that.")
                                 : RecoveryDialog::tr("It was deleted before the program was cut "
                                                      "off, and changed since. Restoring deletes "
                                                      "it.");
    case Way::AsItWas:
        break;
    }
    if (!file.change.bytes)
        return RecoveryDialog::tr("It was deleted. Restoring deletes it again.");
    return file.versions.before.isEmpty() ? RecoveryDialog::tr("It is not in the project.")
                                          : RecoveryDialog::tr("Nobody changed it since.");
}

} // namespace

RecoveryDialog::RecoveryDialog(app::Recovery recovery, Occasion occasion, QWidget *parent)
    : QDialog(parent)
    , m_recovery(std::move(recovery))
    , m_tree(new QTreeWidget(this))
    , m_way(new QLabel(this))
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
    auto *right = new QWidget(split);
    auto *column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(grid(2));
    m_way->setWordWrap(true);
    m_way->setTextFormat(Qt::PlainText);
    column->addWidget(m_way);
    column->addWidget(m_difference, 1);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 3);
    layout->addWidget(split, 1);

    addButtons(layout, occasion);
    fill();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &RecoveryDialog::showChosen);
    connect(m_tree, &QTreeWidget::itemChanged, this, &RecoveryDialog::updateButtons);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    updateButtons();
    sizeDialog(this, 220, 130);
}

void RecoveryDialog::addButtons(QVBoxLayout *layout, Occasion occasion)
{
    auto *buttons = new QDialogButtonBox(this);
    if (occasion == Occasion::AfterCrash) {
        auto *discard = buttons->addButton(tr("&Discard All"), QDialogButtonBox::DestructiveRole);
        discard->setToolTip(tr("It can be brought back for %n day(s) by File › Unsaved Work….",
                               nullptr, app::KeptFiles::days));
        connect(discard, &QPushButton::clicked, this, [this] {
            m_answer = Answer::Discard;
            accept();
        });
        buttons->addButton(tr("Decide &Later"), QDialogButtonBox::RejectRole);
    } else {
        buttons->addButton(QDialogButtonBox::Close);
    }
    buttons->addButton(m_restore, QDialogButtonBox::AcceptRole);
    m_restore->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        m_answer = Answer::Restore;
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
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
        item->setText(1, stateOf(file));
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
    m_way->setText(explanationOf(file));
    m_difference->show(file.versions.before, file.versions.after);
}

void RecoveryDialog::updateButtons()
{
    m_restore->setEnabled(!chosenPaths().isEmpty());
}

} // namespace vl::desktop
