#include "desktop/widgets/menubutton.h"

#include <QtWidgets/QToolButton>

namespace vl::desktop {

QToolButton *makeMenuButton(const QString &text, const QString &name, QMenu *menu, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    button->setMenu(menu);
    return button;
}

} // namespace vl::desktop
