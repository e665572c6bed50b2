#pragma once

#include <QtWidgets/QWidget>

class QLabel;

namespace vl::desktop {

class ActionRegistry;
class EditorTextWidget;

/// The whole screen for the text alone. It borrows the text field, so the window behind it stays
/// exactly as it was; Esc, or closing it, calls for the end.
class DistractionFree final : public QWidget
{
    Q_OBJECT

public:
    /// Takes the text and the strip above it until it is left; all of them outlive it.
    DistractionFree(const ActionRegistry &actions, QWidget *strip, EditorTextWidget *text,
                    QWidget *parent);

    /// What shows at the foot while the pointer is there.
    void setFoot(const QString &text);

Q_SIGNALS:
    void leaveRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QLabel *m_foot;
};

} // namespace vl::desktop
