#pragma once

#include "desktop/shell/noticebar.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

class QStatusBar;
class QToolButton;

namespace vl::app {
class Workspace;
}

namespace vl::desktop {

class ElidedLabel;

/// Tells the user things without a box: in passing at the foot of the window, or, where an answer
/// is wanted sooner or later, in a bar across its top.
class Notices final : public QObject
{
    Q_OBJECT

public:
    /// The widgets and the workspace outlive it.
    Notices(QStatusBar *foot, NoticeBar *top, app::Workspace &workspace, QObject *parent = nullptr);

    /// Shows a text for a while, in place of the one before; with a button if there is something
    /// to offer, which takes the text away and then runs.
    void show(const QString &text, const QString &actionText = {},
              const std::function<void()> &action = {});
    /// Shows a text for a while, unless something is offered, which matters more.
    void remark(const QString &text);
    /// Shows a text like show(), once what was done last is not offered to be taken back any more.
    void showNext(const QString &text, const QString &actionText,
                  const std::function<void()> &action);
    /// Tells what was done last and offers to take it back, until something else is done.
    void offerUndo(const QString &text);
    /// Takes the passing text away.
    void clear();

    /// Shows a text quietly until it is given another, or an empty one; the details are its tool
    /// tip.
    void stand(const QString &text, const QString &details);

    /// Shows a question until it is answered, put off or withdrawn; one an id.
    void ask(const QString &id, const QString &text, const QList<NoticeAction> &answers);
    void withdraw(const QString &id);

private:
    bool isAttendedTo() const;

    app::Workspace &m_workspace;
    NoticeBar *m_top;
    QWidget *m_row;
    ElidedLabel *m_text;
    ElidedLabel *m_standing;
    QToolButton *m_button;
    std::function<void()> m_action;
    std::function<void()> m_next; ///< shows what waits for the end of an offer; null for nothing
    QTimer m_timer;
    qsizetype m_offeredAt = -1; ///< how many steps there were when the last could be taken back
};

} // namespace vl::desktop
