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
    const bool isExempt =
        !focused || focused->isWindow() || focused->property(exemptProperty).toBool();
    if (isExempt) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame)
        m_frame = new QFocusFrame;
    m_frame->setWidget(focused);
}

} // namespace vl::desktop
