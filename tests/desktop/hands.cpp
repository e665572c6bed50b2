#include "tests/desktop/hands.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QInputMethodEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace vl::test::hands {

// The platform without a screen activates menus too, and gives nothing back when they go.
QWidget *take(QWidget *window)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *active = QApplication::activeWindow();
    if (modal && modal != active)
        QApplication::setActiveWindow(modal);
    else if (!active || active->windowType() == Qt::Popup || !active->isVisible())
        QApplication::setActiveWindow(window);
    active = QApplication::activeWindow();
    return modal ? modal : active ? active : window;
}

QList<QWidget *> controlsOf(const QWidget *window)
{
    QList<QWidget *> controls;
    for (QWidget *widget : window->findChildren<QWidget *>())
        if (widget->window() == window && widget->isVisible() && widget->isEnabled()
            && !widget->visibleRegion().isEmpty())
            controls.append(widget);
    return controls;
}

QString nameOf(const QWidget *widget)
{
    return QStringLiteral("%1 %2 “%3”")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
             widget->accessibleName());
}

QString nameOf(const QWidget *window, const QPoint &position)
{
    const QWidget *widget = window->childAt(position);
    return QStringLiteral("%1 at %2,%3 of %4")
        .arg(nameOf(widget ? widget : window))
        .arg(position.x())
        .arg(position.y())
        .arg(QLatin1String(window->metaObject()->className()));
}

void press(QWidget *window, QKeyCombination keys)
{
    const QPointer<QWindow> handle = window->windowHandle();
    const bool isCommand = keys.keyboardModifiers() & Qt::ControlModifier;
    const char sign = isCommand ? '\0' : QTest::keyToAscii(keys.key());
    const QString text = sign ? QString(QLatin1Char(sign)) : QString();
    for (const bool isPress : {true, false})
        if (handle)
            QTest::simulateEvent(handle, isPress, keys.key(), keys.keyboardModifiers(), text,
                                 false);
}

void type(QWidget *widget, const QString &text)
{
    const QPointer<QWidget> there = widget;
    for (qsizetype i = 0; i < text.size() && there && there == QApplication::focusWidget(); ++i) {
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size();
        const QString sign = text.mid(i, isPair ? 2 : 1);
        const bool isReturn = sign == u"\n";
        const int key = isReturn ? Qt::Key_Return : sign == u"\t" ? Qt::Key_Tab : Qt::Key_unknown;
        QKeyEvent event(QEvent::KeyPress, key, {}, isReturn ? QStringLiteral("\r") : sign);
        QCoreApplication::sendEvent(there, &event);
        if (key != Qt::Key_unknown)
            QCoreApplication::processEvents(); // it may end what is written here
        i += isPair ? 1 : 0;
    }
}

void compose(QWidget *widget, const QString &text)
{
    QInputMethodEvent seen(text.left(1), {});
    QCoreApplication::sendEvent(widget, &seen);
    QInputMethodEvent put;
    put.setCommitString(text);
    QCoreApplication::sendEvent(widget, &put);
}

void click(QWidget *window, const QPoint &position, Qt::MouseButton button,
           Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> handle = window->windowHandle();
    if (handle)
        QTest::mousePress(handle, button, modifiers, position);
    if (handle)
        QTest::mouseRelease(handle, button, modifiers, position);
}

void doubleClick(QWidget *window, const QPoint &position)
{
    const QPointer<QWindow> handle = window->windowHandle();
    click(window, position);
    if (!handle || !handle->isVisible())
        return;
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval; // each click adds it
    QTest::mousePress(handle, Qt::LeftButton, {}, position);
    if (handle)
        QTest::mouseRelease(handle, Qt::LeftButton, {}, position);
}

void drag(QWidget *window, const QPoint &from, const QPoint &to)
{
    const QPointer<QWindow> handle = window->windowHandle();
    if (handle)
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
    for (int i = 1; i <= 4 && handle; ++i)
        QTest::mouseMove(handle, from + (to - from) * i / 4);
    // A button that is let go nowhere would stay down.
    if (QWindow *last = handle ? handle.data() : QGuiApplication::focusWindow())
        QTest::mouseRelease(last, Qt::LeftButton, {}, to);
}

void drop(QWidget *widget, const QPoint &position, const QMimeData &data, Qt::DropAction action,
          bool isCalledOff)
{
    QDragEnterEvent enter(position, action, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &enter);
    QDragMoveEvent move(position, action, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &move);
    QDragLeaveEvent leave;
    QDropEvent let(position, action, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, isCalledOff ? static_cast<QEvent *>(&leave) : &let);
}

} // namespace vl::test::hands
