#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>

namespace vl::desktop {

/// Lets the caret stand still, and visible, once nobody has typed or clicked for a while: a program
/// that is left alone draws nothing.
class CaretRest final : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole program from now on; the patience is in milliseconds. A desktop whose
    /// caret does not blink keeps it so.
    explicit CaretRest(int patience = 10'000);
    ~CaretRest() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    int m_patience;
    int m_flashTime; ///< ms, as the desktop has it
    bool m_isResting = false;
    QBasicTimer m_timer;
};

} // namespace vl::desktop
