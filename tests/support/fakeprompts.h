#pragma once

#include "app/models/prompts.h"
#include "app/models/repairflow.h"
#include "app/storage/lock.h"

#include <QtCore/QEventLoop>

namespace vl::test {

/// Answers as the test set it up, and remembers what was asked.
class FakePrompts final : public app::Prompts
{
public:
    Unsaved unsaved = Unsaved::Cancel;
    bool confirms = false;
    int choice = 0; ///< which of several texts or answers is chosen
    QString path;   ///< what every choice of a place gives
    QString text;   ///< what is typed; null leaves what is suggested
    bool isTextCalledOff = false;
    bool leavesErrors = false; ///< they stand there until the program ends
    QStringList questions;
    QStringList errors;
    QStringList notices;

    Unsaved askUnsaved(const QString &projectName) override
    {
        questions.append(projectName);
        return unsaved;
    }
    bool confirm(const QString &question, const QString &, const QString &) override
    {
        questions.append(question);
        return confirms;
    }
    QString chooseProjectToOpen() override { return path; }
    QString chooseProjectFolderToOpen() override { return path; }
    QString chooseBundleToSave(const QString &) override { return path; }
    QString chooseFolderToSave(const QString &) override { return path; }
    std::optional<QString> askText(const QString &, const QString &,
                                   const QString &suggestion) override
    {
        if (isTextCalledOff)
            return std::nullopt;
        return text.isNull() ? suggestion : text;
    }
    QString chooseOne(const QString &, const QString &, const QStringList &texts) override
    {
        return texts.value(choice);
    }
    app::DamageAnswer damageAnswer = app::DamageAnswer::Close;
    QList<app::DamagedProject> damaged; ///< what was told
    app::DamageAnswer askDamaged(const app::DamagedProject &project) override
    {
        damaged.append(project);
        return damageAnswer;
    }
    Locked lockedAnswer = Locked::Cancel;
    QList<app::LockHolder> holders; ///< who was said to have the project open
    Locked askLocked(const QString &, const app::LockHolder &holder, app::HolderState) override
    {
        holders.append(holder);
        return lockedAnswer;
    }
    int choose(const QString &, const QString &question, const QStringList &) override
    {
        questions.append(question);
        return choice;
    }
    void showInformation(const QString &, const QString &message) override
    {
        notices.append(message);
    }
    void showError(const QString &, const QString &message) override
    {
        errors.append(message);
        if (leavesErrors)
            QEventLoop().exec();
    }
};

} // namespace vl::test
