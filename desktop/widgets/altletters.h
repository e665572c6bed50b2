#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QWidget;

namespace vl::desktop {

/// Keeps fields from writing a letter that is pressed with Alt: it was meant for a menu or a
/// button, also where none has it. Serves the whole application while it lives.
class AltLetters final : public QObject
{
    Q_OBJECT

public:
    explicit AltLetters(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *focused);

    QPointer<QWidget> m_focused;
};

} // namespace vl::desktop
