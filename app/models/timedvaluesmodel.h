#pragma once

#include "core/content/entity.h"
#include "core/taxonomy.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QHash>

#include <vector>

namespace vl::app {

class Workspace;

/// The values of one entity that change over story time, as a table. A row is written when all of
/// it can be understood; until then it stays here, told as unfinished, also while another entity
/// is shown.
class TimedValuesModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        FieldColumn,
        ValueColumn,
        FromColumn,
        ColumnCount
    };
    enum Role
    {
        ProblemRole = Qt::UserRole, ///< what is missing or wrong in the row; empty when nothing is
        FieldTypeRole,              ///< the type of the row's field (int)
        OptionsRole,                ///< what a choice field allows
    };

    explicit TimedValuesModel(Workspace &workspace, QObject *parent = nullptr);

    void show(const core::ContentId &entity);
    /// Reads the entity anew; rows that are the same stay as they are.
    void refresh();
    /// The fields that can have such values, and how the rows name them.
    const QList<core::FieldDefinition> &fields() const { return m_fields; }

    /// Adds an unfinished row; gives its place.
    int addRow();
    void removeRows(QList<int> rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Takes the key of a field, a value, or a date as it is typed.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        QString key;
        QString value;
        QString date; ///< as typed, while it cannot be understood
        std::optional<qint64> instant;
        int place = -1; ///< in the entity's list; -1 while the row is not written there

        bool operator==(const Row &) const = default;
    };

    QString problemOf(const Row &row) const;
    const core::FieldDefinition *field(const QString &key) const;
    QString shownValue(const Row &row) const;
    void write();
    core::Entity *entity() const;

    Workspace &m_workspace;
    core::ContentId m_id;
    QList<core::FieldDefinition> m_fields;
    std::vector<Row> m_rows;
    QHash<core::ContentId, std::vector<Row>> m_unfinished;
};

} // namespace vl::app
