#pragma once

#include "core/id.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QList>

namespace vl::app {

/// A tree of the open project's objects of which a filter shows a part: what a view that follows
/// the selection of the window has to know of it.
class ObjectTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;
    ~ObjectTreeModel() override;

    /// The object in a row, the null id for the invisible root.
    virtual core::ContentId idAt(const QModelIndex &index) const = 0;
    /// Its row, if it has one and passes the filter.
    virtual QModelIndex indexOf(const core::ContentId &id, int column = 0) const = 0;

    /// Shows only what holds all words of the text, without regard to case and accents, and what
    /// stands above it. An empty text shows everything.
    virtual void setFilter(const QString &text) = 0;
    virtual bool isFiltered() const = 0;
    /// The first row that passes the filter by itself, not by what lies below it.
    virtual QModelIndex firstMatch() const = 0;
    /// The objects that may have rows below them, in no order.
    virtual QList<core::ContentId> branches() const = 0;
};

} // namespace vl::app
