#pragma once

#include <QtCore/QString>

class QMenu;
class QToolButton;
class QWidget;

namespace vl::desktop {

/// A button of a panel's bar that opens the menu; the name is its tool tip, too. The parent owns
/// it.
QToolButton *makeMenuButton(const QString &text, const QString &name, QMenu *menu, QWidget *parent);

} // namespace vl::desktop
