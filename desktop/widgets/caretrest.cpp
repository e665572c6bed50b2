#include "desktop/widgets/caretrest.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

namespace vl::desktop {

CaretRest::CaretRest(int patience)
    : m_patience(patience)
    , m_flashTime(QApplication::cursorFlashTime())
{
    if (m_flashTime <= 0)
        return;
    m_timer.start(m_patience, this);
    qApp->installEventFilter(this);
}

CaretRest::~CaretRest()
{
    if (m_isResting)
        QApplication::setCursorFlashTime(m_flashTime);
}

bool CaretRest::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::FocusIn:
        if (m_isResting) {
            m_isResting = false;
            QApplication::setCursorFlashTime(m_flashTime);
        }
        m_timer.start(m_patience, this);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void CaretRest::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_timer.stop();
    m_isResting = true;
    QApplication::setCursorFlashTime(0);
}

} // namespace vl::desktop
