#include "app/models/referencesmodel.h"

#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/content/entity.h"

#include <QtCore/QHash>

#include <algorithm>

namespace vl::app {

using core::Entity;

ReferencesModel::ReferencesModel(Workspace &workspace, QObject *parent)
    : QAbstractListModel(parent)
    , m_workspace(workspace)
{
    connect(&workspace, &Workspace::projectReplaced, this, [this] { m_isStale = true; });
    connect(&workspace, &Workspace::changed, this, [this](const core::ChangeSet &changes) {
        // An entity that went is none any more, so any removal may have been one.
        m_isStale = m_isStale || !changes.categories().empty()
                    || std::any_of(changes.objects().begin(), changes.objects().end(),
                                   [this](const auto &change) {
                                       const auto &project = m_workspace.project();
                                       return project.template find<Entity>(change.first)
                                              || !project.contains(change.first);
                                   });
    });
}

void ReferencesModel::refresh()
{
    if (!std::exchange(m_isStale, false))
        return;
    beginResetModel();
    m_rows.clear();
    const std::vector<Entity *> entities = m_workspace.project().all<Entity>();
    QHash<QString, int> bearers;
    for (const Entity *entity : entities)
        ++bearers[entity->name()];
    m_rows.reserve(entities.size());
    for (const Entity *entity : entities) {
        QString name = rowText(entity->name());
        if (bearers.value(entity->name()) > 1)
            name += QStringLiteral(" (%1)").arg(
                categoryPathText(m_workspace.project(), entity->categoryId()));
        m_rows.push_back({entity->id(), name});
    }
    std::sort(m_rows.begin(), m_rows.end(), [](const Row &a, const Row &b) {
        const int order = a.name.compare(b.name, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a.id < b.id;
    });
    endResetModel();
}

core::ContentId ReferencesModel::idAt(const QModelIndex &index) const
{
    return index.isValid() ? m_rows.at(std::size_t(index.row())).id : core::ContentId();
}

int ReferencesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ReferencesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return m_rows.at(std::size_t(index.row())).name;
}

} // namespace vl::app
