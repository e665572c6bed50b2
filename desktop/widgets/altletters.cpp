#include "desktop/widgets/altletters.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace vl::desktop {

AltLetters::AltLetters(QObject *parent)
    : QObject(parent)
{
#ifndef Q_OS_MACOS // there it makes other letters
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget * /*old*/, QWidget *now) { follow(now); });
    follow(QApplication::focusWidget());
#endif
}

void AltLetters::follow(QWidget *focused)
{
    if (m_focused)
        m_focused->removeEventFilter(this);
    m_focused = focused && focused->testAttribute(Qt::WA_InputMethodEnabled) ? focused : nullptr;
    if (m_focused)
        m_focused->installEventFilter(this);
}

bool AltLetters::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isForMenu = (key->modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
    return isForMenu && !key->text().isEmpty() && key->text().front().isPrint();
}

} // namespace vl::desktop
