#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace vl::desktop {

class UpdateCheck;

/// What the foot of the window shows of a newer version: the button that installs it, and how far
/// its download has come.
class UpdateStatus final : public QWidget
{
    Q_OBJECT

public:
    /// The check outlives it.
    explicit UpdateStatus(UpdateCheck &check, QWidget *parent = nullptr);

private:
    void showProgress(const QString &text, bool canBeCancelled);

    QPushButton *m_install;
    QLabel *m_text;
    QProgressBar *m_progress;
    QToolButton *m_cancel;
};

} // namespace vl::desktop
