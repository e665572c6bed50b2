#pragma once

#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTextEdit>

namespace vl::test {

/// Where a widget stands, for a message.
inline QString placeOf(const QWidget *widget)
{
    QString text = QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget())
        text += QStringLiteral(" < %1 %2")
                    .arg(QLatin1String(parent->metaObject()->className()), parent->objectName());
    return text;
}

/// The parts of the toolkit and of the docking library that lie within a control of ours.
inline bool isPartOfAnother(const QWidget *widget)
{
    const auto *parent = widget->parentWidget();
    return QLatin1String(widget->metaObject()->className()).startsWith(QLatin1String("ads::"))
           || widget->objectName().startsWith(QLatin1String("qt_"))
           || qobject_cast<const QComboBox *>(parent)
           || qobject_cast<const QAbstractSpinBox *>(parent)
           || qobject_cast<const QLineEdit *>(parent) || widget->inherits("QComboBoxListView")
           || widget->inherits("QHeaderView") || widget->inherits("QTableCornerButton");
}

enum class Walk
{
    All,
    Visible
};

/// The controls of a window that a screen reader could not name.
inline QStringList unnamedControls(const QWidget *window, Walk walk = Walk::All)
{
    QStringList unnamed;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->window() != window->window())
            continue; // a dialog over it
        if (walk == Walk::Visible && !widget->isVisible())
            continue;
        const bool isControl =
            qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget)
            || qobject_cast<QAbstractItemView *>(widget) || qobject_cast<QComboBox *>(widget)
            || qobject_cast<QPlainTextEdit *>(widget) || qobject_cast<QTextEdit *>(widget)
            || qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QAbstractSlider *>(widget);
        if (!isControl || isPartOfAnother(widget) || widget->inherits("QScrollBar"))
            continue;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            unnamed.append(placeOf(widget));
    }
    return unnamed;
}

/// The visible texts of a window that have less room than they need.
inline QStringList clippedTexts(const QWidget *window)
{
    QStringList clipped;
    for (const QScrollArea *area : window->findChildren<QScrollArea *>()) {
        const bool mustFit = area->window()->inherits("QDialog")
                             || area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
        if (area->isVisible() && mustFit && area->window() == window->window()
            && area->horizontalScrollBar()->maximum() > 0)
            clipped.append(QStringLiteral("to be scrolled sideways by %1: %2")
                               .arg(area->horizontalScrollBar()->maximum())
                               .arg(placeOf(area)));
    }
    for (const auto *list : window->findChildren<QListView *>(QStringLiteral("pages")))
        if (list->isVisible() && list->sizeHintForColumn(0) > list->viewport()->width())
            clipped.append(QStringLiteral("names of pages: ") + placeOf(list));
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        if (!widget->isVisible() || widget->window() != window->window() || (!label && !button)
            || widget->inherits("ads::CElidingLabel")
            || widget->inherits("vl::desktop::ElidedLabel"))
            continue;
        const QString text = label ? label->text() : button->text();
        if (text.isEmpty() || widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            continue;
        const bool wraps = label && label->wordWrap();
        const int height =
            wraps ? label->heightForWidth(label->width()) : widget->minimumSizeHint().height();
        const bool isCut = (!wraps && widget->width() < widget->minimumSizeHint().width())
                           || widget->height() < height;
        if (isCut)
            clipped.append(QStringLiteral("“%1” %2x%3 of %4x%5: %6")
                               .arg(text)
                               .arg(widget->width())
                               .arg(widget->height())
                               .arg(widget->minimumSizeHint().width())
                               .arg(height)
                               .arg(placeOf(widget)));
    }
    return clipped;
}

} // namespace vl::test
