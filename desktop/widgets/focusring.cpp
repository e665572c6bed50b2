#include "desktop/widgets/focusring.h"

#include <QtCore/QVariant>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFocusFrame>

namespace vl::desktop {

namespace {

constexpr const char *exemptProperty = "ivorelShowsFocusItself";

} // namespace

FocusRing::FocusRing(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget * /*old*/, QWidget *now) { follow(now); });
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

void FocusRing::leaveTo(QWidget *widget)
{
    widget->setProperty(exemptProperty, true);
}

void FocusRing::follow(QWidget *focused)
{
    if (m_focused)
        m_focused->removeEventFilter(this);
    m_focused = focused;
    if (focused)
        focused->installEventFilter(this);
    const bool isExempt =
        !focused || focused->isWindow() || focused->property(exemptProperty).toBool();
    if (isExempt) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame)
        m_frame = new QFocusFrame;
    lay();
    // What is out of sight is scrolled to once it has the focus.
    if (m_frame->isHidden())
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_focused && m_frame && m_frame->widget() == m_focused)
                    lay();
            },
            Qt::QueuedConnection);
}

void FocusRing::lay()
{
    m_frame->setWidget(nullptr);
    m_frame->setWidget(m_focused);
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    // A style sheet that is laid anew, as with another theme, takes the ring away.
    if (event->type() == QEvent::StyleChange && watched == m_focused)
        QMetaObject::invokeMethod(
            this, [this] { follow(m_focused); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

} // namespace vl::desktop
