#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <functional>
#include <map>

class QVBoxLayout;

namespace vl::desktop {

/// How much of the highlight colour the ground of a notice has.
inline constexpr double noticeTint = 0.16;

/// What the user may do about a notice.
struct NoticeAction
{
    QString text;
    std::function<void()> run;
};

/// The bar across the top of the window: one row for each question that waits for an answer.
class NoticeBar final : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /// Shows a question, in place of the one with the same id. An answer takes it away and then
    /// runs; the row's own button puts it off, which runs nothing.
    void ask(const QString &id, const QString &text, const QList<NoticeAction> &answers);
    void withdraw(const QString &id);
    bool isAsking(const QString &id) const { return m_rows.contains(id); }

private:
    void settle();
    QWidget *makeRow(const QString &id, const QString &text, const QList<NoticeAction> &answers);

    QVBoxLayout *m_layout;
    std::map<QString, QWidget *> m_rows;
    QList<QWidget *> m_gone; ///< rows that are answered and still shown
    QTimer m_later;
    QPointer<QWidget> m_before; ///< where the focus was before it came here
};

} // namespace vl::desktop
