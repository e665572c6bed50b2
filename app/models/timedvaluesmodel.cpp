#include "app/models/timedvaluesmodel.h"

#include "app/models/codexoperations.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "app/time/calendartext.h"
#include "app/time/dateparser.h"
#include "core/commands/codexcommands.h"

#include <algorithm>

namespace vl::app {

using core::ContentId;
using core::Entity;

TimedValuesModel::TimedValuesModel(Workspace &workspace, QObject *parent)
    : QAbstractTableModel(parent)
    , m_workspace(workspace)
{
    connect(&workspace, &Workspace::projectReplaced, this, [this] {
        m_unfinished.clear();
        m_id = {};
        refresh();
    });
}

Entity *TimedValuesModel::entity() const
{
    return m_workspace.project().find<Entity>(m_id);
}

void TimedValuesModel::show(const ContentId &entity)
{
    m_id = entity;
    refresh();
}

void TimedValuesModel::refresh()
{
    const Entity *shown = entity();
    QList<core::FieldDefinition> fields;
    std::vector<Row> rows;
    if (shown) {
        fields = codexFields(m_workspace.project(), shown->categoryId());
        for (qsizetype i = 0; i < shown->timedValues().size(); ++i) {
            const core::TimedValue &timed = shown->timedValues()[i];
            rows.push_back({timed.key, timed.value, {}, timed.instant, int(i)});
        }
        for (const Row &row : m_unfinished.value(m_id)) {
            if (row.place < 0)
                rows.push_back(row);
            else if (row.place < shown->timedValues().size()
                     && rows[std::size_t(row.place)].instant == row.instant)
                rows[std::size_t(row.place)] = row;
        }
    }
    if (fields == m_fields && rows.size() == m_rows.size()) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (rows[row] == m_rows[row])
                continue;
            m_rows[row] = rows[row];
            Q_EMIT dataChanged(index(int(row), 0), index(int(row), ColumnCount - 1));
        }
        return;
    }
    beginResetModel();
    m_fields = fields;
    m_rows = std::move(rows);
    endResetModel();
}

int TimedValuesModel::addRow()
{
    if (!entity())
        return -1;
    const int row = int(m_rows.size());
    beginInsertRows({}, row, row);
    m_rows.push_back({m_fields.isEmpty() ? QString() : m_fields.first().key, {}, {}, {}, -1});
    m_unfinished[m_id].push_back(m_rows.back());
    endInsertRows();
    return row;
}

void TimedValuesModel::removeRows(QList<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<>());
    for (const int row : std::as_const(rows)) {
        if (row < 0 || row >= int(m_rows.size()))
            continue;
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }
    write();
}

void TimedValuesModel::write()
{
    Entity *target = entity();
    if (!target)
        return;
    QList<core::TimedValue> values;
    std::vector<Row> unfinished;
    for (Row row : m_rows) {
        const bool isWhole = row.date.isEmpty() && !row.key.isEmpty() && row.instant;
        if (!isWhole) {
            // What was written once stays as it was until it is understood again.
            const bool wasWritten = row.place >= 0 && row.place < target->timedValues().size();
            const int place = wasWritten ? int(values.size()) : -1;
            if (wasWritten)
                values.append(target->timedValues().at(row.place));
            row.place = place;
            unfinished.push_back(row);
        } else {
            values.append({row.key, row.value, *row.instant});
        }
    }
    m_unfinished[m_id] = unfinished;
    if (values != target->timedValues())
        m_workspace.push<core::SetEntityTimedValuesCommand>(*target, values);
    refresh();
}

const core::FieldDefinition *TimedValuesModel::field(const QString &key) const
{
    const auto found =
        std::find_if(m_fields.cbegin(), m_fields.cend(),
                     [&](const core::FieldDefinition &field) { return field.key == key; });
    return found == m_fields.cend() ? nullptr : &*found;
}

QString TimedValuesModel::shownValue(const Row &row) const
{
    const core::FieldDefinition *of = field(row.key);
    if (of && of->type == core::FieldType::Reference)
        if (const auto *object = m_workspace.project().find(ContentId::fromString(row.value)))
            return rowText(titleOf(*object));
    return row.value;
}

QString TimedValuesModel::problemOf(const Row &row) const
{
    if (row.key.isEmpty())
        return tr("Which field has the value?");
    if (!row.date.isEmpty())
        return tr("“%1” is no date of the calendar.").arg(rowText(row.date));
    return row.instant ? QString() : tr("From when on? Type a date.");
}

int TimedValuesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int TimedValuesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant TimedValuesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows.at(std::size_t(index.row()));
    const core::FieldDefinition *of = field(row.key);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (index.column() == FieldColumn)
            return role == Qt::EditRole || !of ? row.key : of->label;
        if (index.column() == ValueColumn)
            return shownValue(row);
        if (!row.date.isEmpty())
            return QString(role == Qt::DisplayRole ? QStringLiteral("⚠ ") : QString()) + row.date;
        return row.instant ? formatInstant(m_workspace.project().calendar(), *row.instant)
                           : QString();
    case Qt::ToolTipRole: {
        const QString problem = problemOf(row);
        return plainToolTip(problem.isEmpty() ? data(index, Qt::DisplayRole).toString() : problem);
    }
    case ProblemRole:
        return problemOf(row);
    case FieldTypeRole:
        return int(of ? of->type : core::FieldType::Text);
    case OptionsRole:
        return of ? of->options : QStringList();
    default:
        return {};
    }
}

QVariant TimedValuesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case FieldColumn:
        return tr("Field");
    case ValueColumn:
        return tr("Value");
    case FromColumn:
        return tr("From");
    default:
        return {};
    }
}

bool TimedValuesModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || value == data(index, Qt::EditRole))
        return false;
    Row &row = m_rows.at(std::size_t(index.row()));
    const QString text = value.toString().trimmed();
    if (index.column() == FieldColumn) {
        row.key = text;
    } else if (index.column() == ValueColumn) {
        row.value = value.toString();
    } else {
        const core::Calendar &calendar = m_workspace.project().calendar();
        const std::optional<CalendarDate> date = parseInstant(calendar, text);
        row.date = date ? QString() : text;
        if (date)
            row.instant = toInstant(calendar, *date);
        else if (row.place < 0)
            row.instant = {};
    }
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), ColumnCount - 1));
    write();
    return true;
}

Qt::ItemFlags TimedValuesModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable
                           : Qt::NoItemFlags;
}

} // namespace vl::app
