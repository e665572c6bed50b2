#pragma once

#include "app/models/prompts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include <functional>

class QWidget;

namespace vl::desktop {

/// Asks the user with dialogs over a window.
class DialogPrompts final : public app::Prompts
{
    Q_DECLARE_TR_FUNCTIONS(vl::desktop::DialogPrompts)

public:
    /// Projects are looked for first in the folder that `place` gives; without one, or when it is
    /// not there, in the user's own.
    explicit DialogPrompts(QWidget *window, std::function<QString()> place = {})
        : m_window(window)
        , m_place(std::move(place))
    {
    }

    Unsaved askUnsaved(const QString &projectName) override;
    bool confirm(const QString &question, const QString &detail, const QString &action) override;
    QString chooseProjectToOpen() override;
    QString chooseProjectFolderToOpen() override;
    QString chooseBundleToSave(const QString &suggestion) override;
    QString chooseFolderToSave(const QString &suggestion) override;
    std::optional<QString> askText(const QString &title, const QString &label,
                                   const QString &text) override;
    QString chooseOne(const QString &title, const QString &label,
                      const QStringList &texts) override;
    int choose(const QString &title, const QString &question, const QStringList &answers) override;
    void showInformation(const QString &title, const QString &message) override;
    void showError(const QString &title, const QString &message) override;
    app::DamageAnswer askDamaged(const app::DamagedProject &project) override;
    Locked askLocked(const QString &projectName, const app::LockHolder &holder,
                     app::HolderState state) override;

private:
    QDir place() const;

    QWidget *m_window;
    std::function<QString()> m_place;
};

} // namespace vl::desktop
