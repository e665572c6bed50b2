#pragma once

#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtCore/Qt>

class QMimeData;
class QWidget;

/// What hands do to a window. Whatever they touch may go by it.
namespace vl::test::hands {

/// What has the hands now: a menu, else a dialog that must be answered, else the window. It is made
/// active, as a desktop does.
QWidget *take(QWidget *window);
/// The controls that can be reached in a window, in the order in which they were made.
QList<QWidget *> controlsOf(const QWidget *window);
/// For a message: a widget, or what of it lies at a place.
QString nameOf(const QWidget *widget);
QString nameOf(const QWidget *window, const QPoint &position);

void press(QWidget *window, QKeyCombination keys);
/// Key by key into what has the focus, as long as it has it.
void type(QWidget *widget, const QString &text);
/// By an input method, as on a phone or in Chinese: seen first, then put in.
void compose(QWidget *widget, const QString &text);

void click(QWidget *window, const QPoint &position, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = {});
void doubleClick(QWidget *window, const QPoint &position);
void drag(QWidget *window, const QPoint &from, const QPoint &to);
/// Lets data go over a widget, or carries them over it and away.
void drop(QWidget *widget, const QPoint &position, const QMimeData &data, Qt::DropAction action,
          bool isCalledOff);

} // namespace vl::test::hands
