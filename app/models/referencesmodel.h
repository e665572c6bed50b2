#pragma once

#include "core/id.h"

#include <QtCore/QAbstractListModel>

#include <vector>

namespace vl::app {

class Workspace;

/// The entities of the project by name, to choose one from; those of one name tell their category
/// too. It is filled when it is first asked for, and anew after the codex changed.
class ReferencesModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ReferencesModel(Workspace &workspace, QObject *parent = nullptr);

    /// Brings the list up to date; nothing happens while it is.
    void refresh();
    core::ContentId idAt(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        core::ContentId id;
        QString name;
    };

    Workspace &m_workspace;
    std::vector<Row> m_rows;
    bool m_isStale = true;
};

} // namespace vl::app
