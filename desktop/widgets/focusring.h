#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QFocusFrame;
class QWidget;

namespace vl::desktop {

/// Lays a ring round the control that has the focus, in whichever window of the program it is.
class FocusRing final : public QObject
{
    Q_OBJECT

public:
    explicit FocusRing(QObject *parent = nullptr);
    ~FocusRing() override;

    /// For a text that fills its panel: the caret shows well enough that it has the focus.
    static void leaveTo(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *focused);
    void lay();

    QPointer<QWidget> m_focused;

    QPointer<QFocusFrame> m_frame; ///< goes with the window it lies in
};

} // namespace vl::desktop
