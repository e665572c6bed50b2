#pragma once

#include <QtWidgets/QDialog>

class QLineEdit;
class QListView;
class QPushButton;
class QSortFilterProxyModel;

namespace vl::desktop {

/// One of a list of names, found by typing a part of it.
class PickDialog final : public QDialog
{
    Q_OBJECT

public:
    PickDialog(const QString &title, const QString &label, const QStringList &names,
               const QString &action, QWidget *parent);

    /// The place in the list of what is chosen, -1 while nothing is.
    int chosen() const;
    /// Asks; -1 when it is called off.
    static int pick(const QString &title, const QString &label, const QStringList &names,
                    const QString &action, QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QSortFilterProxyModel *m_filtered;
    QLineEdit *m_filter;
    QListView *m_list;
    QPushButton *m_go;
};

} // namespace vl::desktop
