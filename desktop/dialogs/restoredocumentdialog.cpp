#include "desktop/dialogs/restoredocumentdialog.h"

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

constexpr int placeRole = Qt::UserRole;

} // namespace

RestoreDocumentDialog::RestoreDocumentDialog(QList<app::BackupDocument> documents,
                                             const core::ContentId &wanted, QWidget *parent)
    : QDialog(parent)
    , m_documents(std::move(documents))
    , m_tree(new QTreeWidget(this))
    , m_difference(new DifferenceView(this))
    , m_restore(new QPushButton(tr("&Restore"), this))
{
    setWindowTitle(tr("Restore This Document"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    auto *intro = new QLabel(tr("Choose a document. Restoring it is one step that you can undo; "
                                "what goes is marked “−”, what comes back “+”."),
                             this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    m_tree->setAccessibleName(tr("Documents in the backup"));
    m_tree->setHeaderLabels({tr("Title"), tr("Words"), tr("State")});
    m_tree->setUniformRowHeights(true);
    m_tree->setItemDelegate(new RowDelegate(m_tree));
    m_tree->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    auto *split = new QSplitter(this);
    split->setChildrenCollapsible(false);
    split->addWidget(m_tree);
    split->addWidget(m_difference);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 3);
    layout->addWidget(split, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(m_restore, QDialogButtonBox::AcceptRole);
    m_restore->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &RestoreDocumentDialog::showChosen);
    fill(wanted);
    sizeDialog(this, 220, 130);
}

void RestoreDocumentDialog::fill(const core::ContentId &wanted)
{
    QList<QTreeWidgetItem *> open; // the way down to the last one
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < m_documents.size(); ++i) {
        const app::BackupDocument &document = m_documents.at(i);
        while (open.size() > document.depth)
            open.removeLast();
        auto *item =
            open.isEmpty() ? new QTreeWidgetItem(m_tree) : new QTreeWidgetItem(open.constLast());
        item->setText(0, document.title);
        item->setText(1, QLocale().toString(document.words));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        switch (document.standing) {
        case app::DocumentStanding::Same:
            item->setText(2, tr("unchanged"));
            break;
        case app::DocumentStanding::Changed:
            item->setText(2, tr("changed since"));
            break;
        case app::DocumentStanding::Missing:
            item->setText(2, tr("not there any more"));
            break;
        }
        item->setData(0, placeRole, i);
        if ((!first || document.id == wanted) && document.standing != app::DocumentStanding::Same)
            first = item;
        open.append(item);
    }
    m_tree->expandAll();
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_tree->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    m_tree->setCurrentItem(first ? first : m_tree->topLevelItem(0));
    showChosen();
}

core::ContentId RestoreDocumentDialog::chosen() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? m_documents.at(item->data(0, placeRole).toInt()).id : core::ContentId();
}

void RestoreDocumentDialog::showChosen()
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    if (!item) {
        m_difference->showPlain(tr("There are no documents in this backup."));
        m_restore->setEnabled(false);
        return;
    }
    const app::BackupDocument &document = m_documents.at(item->data(0, placeRole).toInt());
    if (document.standing == app::DocumentStanding::Missing)
        m_difference->showPlain(document.after);
    else
        m_difference->show(document.before, document.after);
    m_restore->setEnabled(document.standing != app::DocumentStanding::Same);
}

} // namespace vl::desktop
