#pragma once

#include "desktop/panels/rowdelegate.h"

#include <QtWidgets/QTreeView>

namespace vl::desktop {

/// A tree in whose cells is written. When the row goes in which that happens, the base class takes
/// itself for still at it and would open no other cell.
class CellTree : public QTreeView
{
public:
    using QTreeView::edit;
    using QTreeView::QTreeView;

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override
    {
        const auto *rows = qobject_cast<const RowDelegate *>(itemDelegate());
        if (state() == EditingState && rows && !rows->isOpen())
            setState(NoState);
        return QTreeView::edit(index, trigger, event);
    }
};

} // namespace vl::desktop
