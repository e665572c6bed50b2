#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

class QListWidget;
class QListWidgetItem;

namespace vl::desktop {

/// The first sight: begin something new, open what there is, or look at the sample.
class WelcomeDialog final : public QDialog
{
    Q_OBJECT

public:
    enum class Choice
    {
        New,
        Open,
        OpenFolder,
        Sample,
        Import
    };
    /// What is not there is shown but cannot be chosen.
    struct Offers
    {
        QStringList recent; ///< paths, the latest first
        bool sample = false;
        bool import = false;
    };

    WelcomeDialog(const Offers &offers, QWidget *parent);

Q_SIGNALS:
    /// Comes after the dialog closed.
    void chosen(vl::desktop::WelcomeDialog::Choice choice);
    void recentChosen(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeHead();
    QListWidget *makeSteps(const Offers &offers);
    QListWidget *makeRecent(const QStringList &paths);
    void take(const QListWidgetItem *item);
};

} // namespace vl::desktop
