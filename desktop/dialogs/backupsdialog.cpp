#include "desktop/dialogs/backupsdialog.h"

#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QDir>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr double rowLines = 1.6;

} // namespace

BackupsDialog::BackupsDialog(const app::AutoBackups &backups, QWidget *parent)
    : QDialog(parent)
    , m_model(backups)
    , m_table(new QTableView(this))
    , m_empty(new QLabel(this))
    , m_openCopy(new QPushButton(tr("Open a &Copy…"), this))
    , m_restore(new QPushButton(tr("&Restore This Document…"), this))
{
    setWindowTitle(tr("Backups"));
    build(backups.folder());
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &BackupsDialog::updateButtons);
    connect(&m_model, &QAbstractItemModel::dataChanged, this, &BackupsDialog::updateButtons);
    connect(m_table, &QTableView::activated, m_restore, &QPushButton::click);
    connect(m_openCopy, &QPushButton::clicked, this,
            [this] { Q_EMIT openCopyRequested(chosen()); });
    connect(m_restore, &QPushButton::clicked, this,
            [this] { Q_EMIT restoreDocumentRequested(chosen()); });
    if (m_model.rowCount() > 0)
        m_table->selectRow(0);
    updateButtons();
}

void BackupsDialog::build(const QString &folder)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    auto *intro = new QLabel(tr("Ivorel makes a backup when you open a project, when you close it "
                                "and once a day, if anything changed."),
                             this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    m_table->setModel(&m_model);
    m_table->setAccessibleName(tr("Backups"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(int(fontMetrics().lineSpacing() * rowLines));
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(app::BackupsModel::ReasonColumn,
                                                      QHeaderView::Stretch);
    layout->addWidget(m_table, 1);
    m_empty->setText(tr("There are no backups of this project yet."));
    m_empty->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_empty, 1);

    auto *place = new QHBoxLayout;
    place->setSpacing(grid(2));
    auto *where = new QLabel(tr("They are in %1").arg(QDir::toNativeSeparators(folder)), this);
    where->setTextFormat(Qt::PlainText);
    where->setWordWrap(true);
    where->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *show = new QPushButton(tr("Show &Folder"), this);
    show->setAutoDefault(false);
    connect(show, &QPushButton::clicked, this,
            [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
    place->addWidget(where, 1);
    place->addWidget(show);
    layout->addLayout(place);

    auto *buttons = new QDialogButtonBox(this);
    auto *backUp = buttons->addButton(tr("&Back Up Now"), QDialogButtonBox::ActionRole);
    buttons->addButton(m_openCopy, QDialogButtonBox::ActionRole);
    buttons->addButton(m_restore, QDialogButtonBox::ActionRole);
    buttons->addButton(QDialogButtonBox::Close);
    connect(backUp, &QPushButton::clicked, this, &BackupsDialog::backUpRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    sizeDialog(this, 180, 110);
}

void BackupsDialog::refresh()
{
    m_model.refresh();
    if (m_model.rowCount() > 0)
        m_table->selectRow(0);
    updateButtons();
}

QString BackupsDialog::chosen() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : m_model.backupAt(rows.first().row()).path;
}

void BackupsDialog::updateButtons()
{
    const bool hasChoice = !chosen().isEmpty();
    m_openCopy->setEnabled(hasChoice);
    m_restore->setEnabled(hasChoice);
    m_empty->setVisible(m_model.rowCount() == 0);
    m_table->setVisible(m_model.rowCount() > 0);
}

} // namespace vl::desktop
