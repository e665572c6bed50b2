#pragma once

#include "app/models/recentlydeleted.h"

#include <QtWidgets/QDialog>

class QPushButton;
class QTreeWidget;

namespace vl::desktop {

class DifferenceView;

/// What was deleted from the project in the last days, to be brought back.
class RecentlyDeletedDialog final : public QDialog
{
    Q_OBJECT

public:
    RecentlyDeletedDialog(std::vector<app::DeletedGroup> groups, QWidget *parent);

    /// What is to come back: a group, and the path of one item in it or, for all of it, nothing.
    const app::DeletedGroup *chosenGroup() const;
    QString chosenPath() const;

private:
    void fill();
    void showChosen();

    std::vector<app::DeletedGroup> m_groups;
    QTreeWidget *m_tree;
    DifferenceView *m_text;
    QPushButton *m_restore;
};

} // namespace vl::desktop
