#include "desktop/dialogs/externalchangesdialog.h"

#include "desktop/dialogs/differenceview.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/flowlayout.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

ExternalChangesDialog::ExternalChangesDialog(const app::OutsideState &state,
                                             std::vector<app::ReconcileEntry> entries,
                                             const app::Workspace *workspace, QWidget *parent)
    : QDialog(parent)
    , m_model(state, std::move(entries), workspace)
    , m_files(new QTreeView(this))
    , m_pages(new QStackedWidget(this))
    , m_differences(new DifferenceView(this))
    , m_text(new QPlainTextEdit(this))
    , m_textFault(new QLabel(this))
    , m_undecided(new QLabel(this))
    , m_mine(new QPushButton(tr("&Keep my version"), this))
    , m_theirs(new QPushButton(tr("&Take on-disk version"), this))
    , m_edit(new QPushButton(tr("&Edit merged text…"), this))
    , m_apply(new QPushButton(tr("&Apply Resolution"), this))
{
    setWindowTitle(tr("External Changes"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    auto *intro = new QLabel(tr("These files changed outside Ivorel while the project was open. "
                                "Decide which version counts. The project is backed up before "
                                "anything is applied, and applying it is one step that you can "
                                "undo."),
                             this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    buildFiles();
    m_pages->addWidget(buildDifferences());
    m_pages->addWidget(buildEditor());
    auto *split = new QSplitter(Qt::Vertical, this);
    split->setChildrenCollapsible(false);
    split->addWidget(m_files);
    split->addWidget(m_pages);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 5);
    split->setSizes({grid(40), grid(80)});
    layout->addWidget(split, 1);
    buildButtons(layout);

    connect(&m_model, &QAbstractItemModel::dataChanged, this, &ExternalChangesDialog::updateState);
    connect(m_files->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ExternalChangesDialog::showFile);
    m_files->setCurrentIndex(m_model.index(0, 0));
    showFile();
    updateState();
    sizeDialog(this, 230, 165);
    m_files->setFocus();
}

void ExternalChangesDialog::buildFiles()
{
    m_files->setModel(&m_model);
    m_files->setAccessibleName(tr("Changed files"));
    m_files->setRootIsDecorated(false);
    m_files->setUniformRowHeights(true);
    m_files->setItemDelegate(new RowDelegate(m_files));
    m_files->setAllColumnsShowFocus(true);
    m_files->header()->setStretchLastSection(false);
    m_files->header()->setSectionResizeMode(app::ExternalChangesModel::File, QHeaderView::Stretch);
    for (const int column : {app::ExternalChangesModel::State, app::ExternalChangesModel::Decision})
        m_files->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

QWidget *ExternalChangesDialog::buildDifferences()
{
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, grid(2), 0, 0);
    layout->setSpacing(grid(2));
    auto *caption = new QLabel(tr("Differences for the selected file — your version in red (−), "
                                  "the on-disk version in green (+):"),
                               page);
    caption->setWordWrap(true);
    caption->setBuddy(m_differences);
    layout->addWidget(caption);
    layout->addWidget(m_differences, 1);
    auto *row = new FlowLayout;
    for (QPushButton *button : {m_mine, m_theirs, m_edit}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    layout->addLayout(row);
    connect(m_mine, &QPushButton::clicked, this, &ExternalChangesDialog::chooseMine);
    connect(m_theirs, &QPushButton::clicked, this, &ExternalChangesDialog::chooseTheirs);
    connect(m_edit, &QPushButton::clicked, this, &ExternalChangesDialog::edit);
    return page;
}

QWidget *ExternalChangesDialog::buildEditor()
{
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, grid(2), 0, 0);
    layout->setSpacing(grid(2));
    auto *caption = new QLabel(tr("Where both changed the text, your lines stand first and those "
                                  "on disk after them, with marks around them. Make one text of "
                                  "it and remove the marks:"),
                               page);
    caption->setWordWrap(true);
    caption->setBuddy(m_text);
    m_text->setAccessibleName(tr("Merged text"));
    m_text->setTabChangesFocus(true);
    m_textFault->setWordWrap(true);
    m_textFault->hide();
    layout->addWidget(caption);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_textFault);
    auto *row = new FlowLayout;
    auto *use = new QPushButton(tr("&Use this text"), page);
    auto *back = new QPushButton(tr("&Back to the differences"), page);
    for (QPushButton *button : {use, back}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    layout->addLayout(row);
    connect(use, &QPushButton::clicked, this, &ExternalChangesDialog::useText);
    connect(back, &QPushButton::clicked, this, &ExternalChangesDialog::showFile);
    return page;
}

void ExternalChangesDialog::buildButtons(QBoxLayout *layout)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(grid(2));
    m_undecided->setWordWrap(true);
    row->addWidget(m_undecided, 1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(m_apply, QDialogButtonBox::AcceptRole);
    m_apply->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    row->addWidget(buttons);
    layout->addLayout(row);
}

int ExternalChangesDialog::row() const
{
    return m_files->currentIndex().row();
}

void ExternalChangesDialog::reject()
{
    if (m_editedRow >= 0)
        showFile();
    else
        QDialog::reject();
}

void ExternalChangesDialog::showFile()
{
    if (m_editedRow >= 0)
        m_model.keepText(std::exchange(m_editedRow, -1), m_text->toPlainText());
    m_pages->setCurrentIndex(0);
    const int current = row();
    const bool isThere = current >= 0;
    m_mine->setEnabled(isThere);
    m_theirs->setEnabled(isThere);
    m_edit->setEnabled(isThere && m_model.canEdit(current));
    m_edit->setToolTip(m_edit->isEnabled()
                           ? QString()
                           : tr("The versions of this file cannot be edited into one text."));
    if (isThere) {
        const app::ReadableVersions versions = m_model.versions(current);
        m_differences->show(versions.before, versions.after);
    }
}

void ExternalChangesDialog::chooseMine()
{
    m_model.chooseMine(row());
    goOn();
}

void ExternalChangesDialog::chooseTheirs()
{
    m_model.chooseTheirs(row());
    goOn();
}

void ExternalChangesDialog::edit()
{
    m_editedRow = row();
    m_text->setPlainText(m_model.editableText(m_editedRow));
    m_textFault->hide();
    m_pages->setCurrentIndex(1);
    m_text->setFocus();
}

void ExternalChangesDialog::useText()
{
    const app::Result<> used = m_model.chooseText(m_editedRow, m_text->toPlainText());
    if (used) {
        showFile();
        goOn();
        return;
    }
    m_textFault->setText(tr("⚠ %1").arg(used.message()));
    m_textFault->show();
}

/// The next file that waits for a decision is the one to look at.
void ExternalChangesDialog::goOn()
{
    m_files->setFocus();
    for (int step = 1; step < m_model.rowCount(); ++step) {
        const int next = (row() + step) % m_model.rowCount();
        if (m_model.choice(next) == app::ExternalChangesModel::Choice::Undecided) {
            m_files->setCurrentIndex(m_model.index(next, 0));
            return;
        }
    }
}

void ExternalChangesDialog::updateState()
{
    const int undecided = m_model.undecided();
    m_apply->setEnabled(undecided == 0 && m_model.rowCount() > 0);
    m_undecided->setText(undecided == 0
                             ? tr("Every file is decided.")
                             : tr("⚠ %n file(s) still to be decided.", nullptr, undecided));
}

} // namespace vl::desktop
