#include "desktop/dialogs/dialogprompts.h"

#include "app/storage/lock.h"
#include "desktop/dialogs/damagedprojectdialog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace vl::desktop {

namespace {

const QLatin1String bundleSuffix(".vellum");

} // namespace

app::Prompts::Unsaved DialogPrompts::askUnsaved(const QString &projectName)
{
    QMessageBox box(QMessageBox::Question, tr("Unsaved Changes"),
                    tr("“%1” has changes that are not saved.").arg(projectName),
                    QMessageBox::NoButton, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("What you wrote since the last save is lost if you discard it."));
    const auto *save = box.addButton(tr("&Save"), QMessageBox::AcceptRole);
    const auto *discard = box.addButton(tr("&Discard Changes"), QMessageBox::DestructiveRole);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(qobject_cast<QPushButton *>(box.buttons().constFirst()));
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == save)
        return Unsaved::Save;
    return box.clickedButton() == discard ? Unsaved::Discard : Unsaved::Cancel;
}

bool DialogPrompts::confirm(const QString &question, const QString &detail, const QString &action)
{
    QMessageBox box(QMessageBox::Question, QCoreApplication::applicationName(), question,
                    QMessageBox::NoButton, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(detail);
    const auto *go = box.addButton(action, QMessageBox::DestructiveRole);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == go;
}

QString DialogPrompts::chooseProjectToOpen()
{
    return QFileDialog::getOpenFileName(m_window, tr("Open Project"), QDir::homePath(),
                                        tr("Ivorel projects (*.vellum)"));
}

QString DialogPrompts::chooseProjectFolderToOpen()
{
    return QFileDialog::getExistingDirectory(m_window, tr("Open Project Folder"), QDir::homePath());
}

QString DialogPrompts::chooseBundleToSave(const QString &suggestion)
{
    QString path = QFileDialog::getSaveFileName(m_window, tr("Save Project As"),
                                                QDir::home().filePath(suggestion + bundleSuffix),
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
                                             QDir::homePath());
}

std::optional<QString> DialogPrompts::askText(const QString &title, const QString &label,
                                              const QString &text)
{
    bool isTyped = false;
    const QString typed =
        QInputDialog::getText(m_window, title, label, QLineEdit::Normal, text, &isTyped);
    return isTyped ? std::optional(typed) : std::nullopt;
}

QString DialogPrompts::chooseOne(const QString &title, const QString &label,
                                 const QStringList &texts)
{
    bool isChosen = false;
    const QString text = QInputDialog::getItem(m_window, title, label, texts, 0, false, &isChosen);
    return isChosen ? text : QString();
}

int DialogPrompts::choose(const QString &title, const QString &question, const QStringList &answers)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::NoButton, m_window);
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton *> buttons;
    for (const QString &answer : answers)
        buttons.append(box.addButton(answer, buttons.isEmpty() ? QMessageBox::AcceptRole
                                                               : QMessageBox::ActionRole));
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    if (!buttons.isEmpty())
        box.setDefaultButton(qobject_cast<QPushButton *>(buttons.constFirst()));
    box.setEscapeButton(cancel);
    box.exec();
    return int(buttons.indexOf(box.clickedButton()));
}

void DialogPrompts::showInformation(const QString &title, const QString &message)
{
    QMessageBox box(QMessageBox::Information, title, message, QMessageBox::Ok, m_window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void DialogPrompts::showError(const QString &title, const QString &message)
{
    QMessageBox box(QMessageBox::Warning, title, message, QMessageBox::Ok, m_window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
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
    QMessageBox box(QMessageBox::Information, tr("Open Project"),
                    tr("“%1” is open already.").arg(projectName), QMessageBox::NoButton, m_window);
    box.setTextFormat(Qt::PlainText);
    const QString since = QLocale().toString(holder.since.toLocalTime(), QLocale::ShortFormat);
    QString who = holder.token.isEmpty()
                      ? tr("Nobody knows who has it open: its lock cannot be read.")
                      : tr("%1 has it open on “%2” (process %3) since %4.")
                            .arg(holder.user, holder.host, QString::number(holder.process), since);
    if (state == app::HolderState::Unknown)
        who += QLatin1String("\n\n")
               + tr("If no program has it open any more, a crash or a broken connection left the "
                    "lock behind; then open it anyway.");
    box.setInformativeText(who);
    const auto *copy = box.addButton(tr("Open a &Copy…"), QMessageBox::AcceptRole);
    QPushButton *readOnly = box.addButton(tr("Open &Read-Only"), QMessageBox::AcceptRole);
    const auto *anyway = state == app::HolderState::Unknown
                             ? box.addButton(tr("Open &Anyway"), QMessageBox::DestructiveRole)
                             : nullptr;
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(readOnly);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == copy)
        return Locked::OpenCopy;
    if (box.clickedButton() == readOnly)
        return Locked::ReadOnly;
    return anyway && box.clickedButton() == anyway ? Locked::OpenAnyway : Locked::Cancel;
}

} // namespace vl::desktop
