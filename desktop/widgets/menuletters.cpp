#include "desktop/widgets/menuletters.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QMenu>

namespace vl::desktop {

MenuLetters::MenuLetters(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
{
    menu->installEventFilter(this);
}

bool MenuLetters::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const QString typed = static_cast<QKeyEvent *>(event)->text();
    if (typed.size() != 1 || !typed.at(0).isLetter())
        return QObject::eventFilter(watched, event);
    const QKeySequence wanted = QKeySequence::mnemonic(u'&' + typed);
    QAction *only = nullptr;
    int sharing = 0;
    for (QAction *entry : m_menu->actions()) {
        if (!entry->isVisible() || QKeySequence::mnemonic(entry->text()) != wanted)
            continue;
        ++sharing;
        if (!entry->isEnabled())
            continue;
        if (only) // the menu moves between them
            return QObject::eventFilter(watched, event);
        only = entry;
    }
    if (!only || sharing < 2)
        return QObject::eventFilter(watched, event);
    m_menu->setActiveAction(only);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(m_menu, &enter);
    return true;
}

} // namespace vl::desktop
