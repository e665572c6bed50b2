#include "desktop/editor/distractionfree.h"

#include "desktop/actions/actionregistry.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

DistractionFree::DistractionFree(const ActionRegistry &actions, QWidget *strip,
                                 EditorTextWidget *text, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_foot(new QLabel(this))
{
    setWindowTitle(tr("Distraction-Free Mode"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(strip);
    layout->addWidget(text, 1);
    m_foot->setAlignment(Qt::AlignCenter);
    m_foot->setBackgroundRole(QPalette::Base);
    m_foot->setForegroundRole(QPalette::PlaceholderText);
    m_foot->setContentsMargins(0, grid(1), 0, grid(2));
    m_foot->setAccessibleName(tr("Word count"));
    QSizePolicy policy = m_foot->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the text does not jump when it comes
    m_foot->setSizePolicy(policy);
    m_foot->hide();
    layout->addWidget(m_foot);
    text->installEventFilter(this);
    text->viewport()->installEventFilter(this);
    setMouseTracking(true);
    text->setMouseTracking(true);
    text->viewport()->setMouseTracking(true);
    installEventFilter(this);
    // The keys of the window behind work here as well.
    for (QAction *action : actions.all())
        addAction(action);
}

void DistractionFree::setFoot(const QString &text)
{
    m_foot->setText(text);
}

bool DistractionFree::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove) {
        const QPoint place =
            mapFromGlobal(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
        m_foot->setVisible(place.y() > height() - grid(16));
    } else if (event->type() == QEvent::KeyPress) {
        m_foot->hide();
    }
    return QWidget::eventFilter(watched, event);
}

void DistractionFree::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT leaveRequested();
    else
        QWidget::keyPressEvent(event);
}

void DistractionFree::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT leaveRequested();
}

} // namespace vl::desktop
