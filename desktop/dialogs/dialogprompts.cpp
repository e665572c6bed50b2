#include "desktop/dialogs/dialogprompts.h"

#include "app/storage/lock.h"
#include "desktop/dialogs/damagedprojectdialog.h"
#include "desktop/widgets/breakable.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtGui/QScreen>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace vl::desktop {

namespace {

const QLatin1String bundleSuffix(".vellum");
constexpr int boxSteps = 80; ///< the least width of the text in a box
constexpr int fieldSteps = 90;

/// A question or notice. Names that the user gave stand in it, so that nothing is taken for markup.
class Box final : public QMessageBox
{
public:
    Box(Icon icon, const QString &title, const QString &text, const QString &detail,
        QWidget *window)
        : QMessageBox(icon, title, breakable(text), NoButton, window)
    {
        setTextFormat(Qt::PlainText);
        auto *first = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        if (!detail.isEmpty()) {
            QFont bold = first->font();
            bold.setBold(true);
            first->setFont(bold);
        }
        // With a least width the box would not know that a longer text has to be wrapped.
        if (first->sizeHint().width() < grid(boxSteps))
            first->setMinimumWidth(grid(boxSteps));
        if (detail.isEmpty())
            return;
        setInformativeText(breakable(detail));
        // It would guess for itself what the text is.
        findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"))
            ->setTextFormat(Qt::PlainText);
    }

    /// Asks; the way out is the "Cancel" that is added to the buttons.
    QAbstractButton *ask(QAbstractButton *atHand = nullptr)
    {
        QPushButton *cancel = addButton(Cancel);
        setDefaultButton(atHand ? qobject_cast<QPushButton *>(atHand) : cancel);
        setEscapeButton(cancel);
        // A box grows no wider than this, and would cut long answers.
        auto *buttons = findChild<QDialogButtonBox *>();
        if (buttons->sizeHint().width() > screen()->availableSize().width() / 2)
            buttons->setOrientation(Qt::Vertical);
        exec();
        return clickedButton();
    }
};

/// Shows the label of the field as it is.
void setLabel(QInputDialog &dialog, const QString &text)
{
    dialog.setLabelText(text); // which makes the label
    auto *label = dialog.findChild<QLabel *>();
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(QString(text).replace(u'&', QLatin1String("&&")));
}

} // namespace

app::Prompts::Unsaved DialogPrompts::askUnsaved(const QString &projectName)
{
    Box box(QMessageBox::Question, tr("Unsaved Changes"),
            tr("“%1” has changes that are not saved.").arg(projectName),
            tr("What you wrote since the last save is lost if you discard it."), m_window);
    auto *save = box.addButton(tr("&Save"), QMessageBox::AcceptRole);
    const auto *discard = box.addButton(tr("&Discard Changes"), QMessageBox::DestructiveRole);
    const QAbstractButton *answer = box.ask(save);
    if (answer == save)
        return Unsaved::Save;
    return answer == discard ? Unsaved::Discard : Unsaved::Cancel;
}

bool DialogPrompts::confirm(const QString &question, const QString &detail, const QString &action)
{
    Box box(QMessageBox::Question, QCoreApplication::applicationName(), question, detail, m_window);
    // The way out has no letter of its own, so that any will do.
    const auto *go =
        box.addButton(action.contains(u'&') ? action : u'&' + action, QMessageBox::DestructiveRole);
    return box.ask() == go;
}

QDir DialogPrompts::place() const
{
    const QDir place(m_place ? m_place() : QString());
    return !place.isRelative() && place.exists() ? place : QDir::home();
}

QString DialogPrompts::chooseProjectToOpen()
{
    return QFileDialog::getOpenFileName(m_window, tr("Open Project"), place().path(),
                                        tr("Ivorel projects (*.vellum)"));
}

QString DialogPrompts::chooseProjectFolderToOpen()
{
    return QFileDialog::getExistingDirectory(m_window, tr("Open Project Folder"), place().path());
}

QString DialogPrompts::chooseBundleToSave(const QString &suggestion)
{
    QString wanted = place().filePath(suggestion + bundleSuffix);
    // A copy is one more, and never takes the place of another.
    for (int i = 2; QDir::isAbsolutePath(suggestion) && QFileInfo::exists(wanted); ++i)
        wanted = QStringLiteral("%1 %2%3").arg(suggestion, QString::number(i), bundleSuffix);
    QString path = QFileDialog::getSaveFileName(m_window, tr("Save Project As"), wanted,
                                                tr("Ivorel projects (*.vellum)"));
    if (!path.isEmpty() && !path.endsWith(bundleSuffix, Qt::CaseInsensitive)) {
        path += bundleSuffix;
        // The dialog asked about another name.
        if (QFileInfo::exists(path)
            && !confirm(tr("“%1” exists already.").arg(QDir::toNativeSeparators(path)),
                        tr("Its contents are replaced."), tr("Replace")))
            return {};
    }
    return path;
}

QString DialogPrompts::chooseFolderToSave(const QString & /*suggestion*/)
{
    return QFileDialog::getExistingDirectory(m_window, tr("Save Project as Folder"),
                                             place().path());
}

std::optional<QString> DialogPrompts::askText(const QString &title, const QString &label,
                                              const QString &text)
{
    QInputDialog dialog(m_window);
    dialog.setWindowTitle(title);
    dialog.setTextValue(text);
    setLabel(dialog, label);
    dialog.resize(grid(fieldSteps), dialog.sizeHint().height());
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

QString DialogPrompts::chooseOne(const QString &title, const QString &label,
                                 const QStringList &texts)
{
    QInputDialog dialog(m_window);
    dialog.setWindowTitle(title);
    dialog.setComboBoxItems(texts);
    dialog.setComboBoxEditable(false);
    setLabel(dialog, label);
    dialog.resize(grid(fieldSteps), dialog.sizeHint().height());
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

int DialogPrompts::choose(const QString &title, const QString &question, const QStringList &answers)
{
    Box box(QMessageBox::Question, title, question, {}, m_window);
    QList<QAbstractButton *> buttons;
    for (const QString &answer : answers)
        buttons.append(box.addButton(answer, buttons.isEmpty() ? QMessageBox::AcceptRole
                                                               : QMessageBox::ActionRole));
    return int(buttons.indexOf(box.ask(buttons.value(0))));
}

void DialogPrompts::showInformation(const QString &title, const QString &message)
{
    Box(QMessageBox::Information, title, message, {}, m_window).exec();
}

void DialogPrompts::showError(const QString &title, const QString &message)
{
    Box(QMessageBox::Warning, title, message, {}, m_window).exec();
}

app::DamageAnswer DialogPrompts::askDamaged(const app::DamagedProject &project)
{
    DamagedProjectDialog dialog(project, m_window);
    dialog.exec();
    return dialog.answer();
}

app::Prompts::Locked DialogPrompts::askLocked(const QString &projectName,
                                              const app::LockHolder &holder, app::HolderState state)
{
    const QString since = QLocale().toString(holder.since.toLocalTime(), QLocale::ShortFormat);
    QString who = holder.token.isEmpty()
                      ? tr("Nobody knows who has it open: its lock cannot be read.")
                      : tr("%1 has it open on “%2” (process %3) since %4.")
                            .arg(holder.user, holder.host, QString::number(holder.process), since);
    if (state == app::HolderState::Unknown)
        who += QLatin1String("\n\n")
               + tr("If no program has it open any more, a crash or a broken connection left the "
                    "lock behind; then open it anyway.");
    Box box(QMessageBox::Information, tr("Open Project"),
            tr("“%1” is open already.").arg(projectName), who, m_window);
    const auto *copy = box.addButton(tr("Open a &Copy…"), QMessageBox::AcceptRole);
    QPushButton *readOnly = box.addButton(tr("Open &Read-Only"), QMessageBox::AcceptRole);
    const auto *anyway = state == app::HolderState::Unknown
                             ? box.addButton(tr("Open &Anyway"), QMessageBox::DestructiveRole)
                             : nullptr;
    const QAbstractButton *answer = box.ask(readOnly);
    if (answer == copy)
        return Locked::OpenCopy;
    if (answer == readOnly)
        return Locked::ReadOnly;
    return anyway && answer == anyway ? Locked::OpenAnyway : Locked::Cancel;
}

} // namespace vl::desktop
