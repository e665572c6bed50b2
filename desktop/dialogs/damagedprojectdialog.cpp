#include "desktop/dialogs/damagedprojectdialog.h"

#include "app/models/objecttexts.h"
#include "app/models/readablefile.h"
#include "desktop/dialogs/differenceview.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtGui/QScreen>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace vl::desktop {

DamagedProjectDialog::DamagedProjectDialog(app::DamagedProject project, QWidget *parent)
    : QDialog(parent)
    , m_project(std::move(project))
{
    setWindowTitle(tr("Open Project"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(3));
    auto *what = new QLabel(tr("The project does not load. Nothing in it was changed."), this);
    QFont bold = what->font();
    bold.setBold(true);
    what->setFont(bold);
    auto *why = new QLabel(m_project.message, this);
    why->setTextFormat(Qt::PlainText);
    why->setWordWrap(true);
    why->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(what);
    layout->addWidget(why);
    if (m_project.isCutOff) {
        auto *more = new QLabel(tr("The list of what the file holds is damaged or missing too: "
                                   "more may be gone than can be named."),
                                this);
        more->setWordWrap(true);
        layout->addWidget(more);
    }
    if (m_project.leftOut.empty())
        static_cast<QVBoxLayout *>(layout)->addStretch(1);
    else
        addFiles(layout);
    addAnswers(layout);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    sizeDialog(this, 180, m_project.leftOut.empty() ? 60 : 140);
    // At large font scales the texts need more than that, and would be cut.
    const int needed = layout->totalMinimumHeightForWidth(width());
    resize(width(), std::clamp(needed, height(), screen()->availableSize().height()));
}

void DamagedProjectDialog::addFiles(QLayout *layout)
{
    const auto count = int(m_project.leftOut.size());
    auto *caption = new QLabel(tr("A repaired copy leaves out %n file(s):", nullptr, count), this);
    layout->addWidget(caption);
    auto *split = new QSplitter(Qt::Vertical, this);
    split->setChildrenCollapsible(false);
    m_files = new QListWidget(split);
    m_files->setAccessibleName(tr("Files that a repaired copy leaves out"));
    m_files->setUniformItemSizes(true);
    m_files->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_files->setItemDelegate(new RowDelegate(m_files));
    for (const app::LeftOutFile &file : m_project.leftOut) {
        const app::ConflictingCopy *conflict = conflictOf(file.path);
        const QString text = conflict ? tr("Conflicting copy of “%1” (%2)")
                                            .arg(app::rowText(app::readableName(
                                                     conflict->original, conflict->originalBytes)),
                                                 file.path)
                                      : rowOf(file);
        auto *item = new QListWidgetItem(text, m_files);
        item->setToolTip(app::plainToolTip(file.reason));
    }
    m_details = new DifferenceView(split);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 3);
    layout->addWidget(split);
    connect(m_files, &QListWidget::currentRowChanged, this, &DamagedProjectDialog::showFile);
    m_files->setCurrentRow(0);
}

const app::ConflictingCopy *DamagedProjectDialog::conflictOf(const QString &path) const
{
    const auto found =
        std::find_if(m_project.conflicts.begin(), m_project.conflicts.end(),
                     [&](const app::ConflictingCopy &copy) { return copy.path == path; });
    return found == m_project.conflicts.end() ? nullptr : &*found;
}

void DamagedProjectDialog::showFile(int row)
{
    if (row < 0)
        return;
    const app::LeftOutFile &file = m_project.leftOut[std::size_t(row)];
    const app::ConflictingCopy *conflict = conflictOf(file.path);
    m_details->setToolTip(
        conflict ? tr("The file that stays in red (−), the conflicting copy in green (+)")
                 : QString());
    if (conflict) {
        const app::ReadableVersions versions =
            app::readableVersions(conflict->originalBytes, conflict->bytes);
        m_details->show(versions.before, versions.after);
    } else {
        m_details->showPlain(detailsOf(file));
    }
}

/// What the file was, as far as the file itself or a backup tells that.
QString DamagedProjectDialog::rowOf(const app::LeftOutFile &file) const
{
    QString name = app::readableName(file.path, m_project.inBackup.value(file.path));
    if (name == file.path)
        name = app::readableName(file.path, file.bytes);
    return name == file.path ? file.path : tr("“%1” (%2)").arg(app::rowText(name), file.path);
}

QString DamagedProjectDialog::detailsOf(const app::LeftOutFile &file) const
{
    QStringList parts{file.reason};
    if (const QString remains = app::readableRemains(file.bytes); !remains.isEmpty())
        parts.append(tr("What can still be read of it:") + QStringLiteral("\n\n") + remains);
    if (const auto backup = m_project.inBackup.constFind(file.path);
        backup != m_project.inBackup.constEnd())
        parts.append(tr("In the newest backup:") + QStringLiteral("\n\n")
                     + app::readableFile(*backup));
    return parts.join(QStringLiteral("\n\n"));
}

/// What each answer does stands beside it, which leaves room for the files on small screens.
void DamagedProjectDialog::addAnswers(QBoxLayout *layout)
{
    auto *answers = new QGridLayout;
    answers->setHorizontalSpacing(grid(4));
    answers->setVerticalSpacing(grid(2));
    answers->setColumnStretch(1, 1);
    layout->addLayout(answers);
    if (m_project.hasBackup) {
        const QString date =
            m_project.newestBackup.isValid()
                ? QLocale().toString(m_project.newestBackup.toLocalTime(), QLocale::ShortFormat)
                : tr("unknown");
        addAnswer(answers, app::DamageAnswer::OpenBackup, tr("Open newest &backup"),
                  tr("As a copy in a place that you choose. It was made: %1").arg(date));
    }
    if (m_project.isRepairable) {
        QString explanation = tr("In a place that you choose; this project stays as it is.");
        if (!m_project.fromWorkingCopy.isEmpty())
            explanation += u' '
                           + tr("%n damaged file(s) can be taken from the working copy.", nullptr,
                                int(m_project.fromWorkingCopy.size()));
        addAnswer(answers, app::DamageAnswer::RepairedCopy,
                  tr("Make a &repaired copy without the damaged files"), explanation);
    }
    if (!m_project.conflicts.empty() && m_project.conflicts.size() == m_project.leftOut.size())
        addAnswer(
            answers, app::DamageAnswer::SetAside, tr("&Set the conflicting copies aside"),
            tr("They go into the folder “conflicting copies” of the project, then it opens."));
}

void DamagedProjectDialog::addAnswer(QGridLayout *answers, app::DamageAnswer answer,
                                     const QString &text, const QString &explanation)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    button->setAccessibleDescription(explanation);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        m_answer = answer;
        accept();
    });
    auto *label = new QLabel(explanation, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    const int row = answers->rowCount();
    answers->addWidget(button, row, 0);
    answers->addWidget(label, row, 1);
}

} // namespace vl::desktop
