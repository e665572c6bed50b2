#pragma once

#include <QtCore/QObject>

class QMenu;

namespace vl::desktop {

/// Lets a letter that several entries of a menu share run the only one of them that can be run; a
/// menu by itself counts those that are off, and only moves between them.
class MenuLetters final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the menu.
    explicit MenuLetters(QMenu *menu);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMenu *m_menu;
};

} // namespace vl::desktop
