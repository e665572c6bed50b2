#include "app/models/externalchangesmodel.h"

#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "app/storage/jsonmerge.h"
#include "app/storage/ownform.h"
#include "app/storage/projectpaths.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace vl::app {

namespace {

const QLatin1String beginMark("<<<<<<< ");
const QLatin1String middleMark("=======");
const QLatin1String endMark(">>>>>>> ");

bool isConflictIn(const ReconcileEntry &entry)
{
    return isConflict(entry.state);
}

QJsonObject objectIn(const QByteArray &bytes)
{
    return QJsonDocument::fromJson(bytes).object();
}

std::optional<QByteArray> asBytes(const std::optional<QString> &text)
{
    return text ? std::optional(text->toUtf8()) : std::nullopt;
}

QByteArray bytesOf(const std::optional<QString> &text)
{
    return asBytes(text).value_or(QByteArray());
}

} // namespace

ExternalChangesModel::ExternalChangesModel(const OutsideState &state,
                                           std::vector<ReconcileEntry> entries,
                                           const Workspace *workspace, QObject *parent)
    : QAbstractTableModel(parent)
    , m_workspace(workspace)
{
    std::stable_partition(entries.begin(), entries.end(), isConflictIn);
    for (ReconcileEntry &entry : entries) {
        Row row;
        const auto file = std::find_if(
            state.files.begin(), state.files.end(),
            [&entry](const OutsideFile &candidate) { return candidate.path == entry.path; });
        if (file != state.files.end()) {
            row.isCopy = file->isCopy;
            row.base = file->base.value_or(QByteArray());
        }
        const std::optional<QString> &named = entry.localText ? entry.localText : entry.remoteText;
        row.title = entry.path == recordsPath() ? tr("Project settings and lists")
                                                : readableName(entry.path, bytesOf(named));
        if (!isConflict(entry.state))
            row.choice = entry.state == ReconcileState::Merged ? Choice::Merged : Choice::Theirs;
        row.original = entry;
        row.entry = std::move(entry);
        findEditableText(row);
        m_rows.push_back(std::move(row));
    }
}

/// A text of several lines is edited by itself, not as JSON writes it.
void ExternalChangesModel::findEditableText(Row &row)
{
    if (row.original.state != ReconcileState::ConflictEdited)
        return;
    const JsonMerge merge =
        JsonMerge::merge(objectIn(row.base), objectIn(bytesOf(row.original.localText)),
                         objectIn(bytesOf(row.original.remoteText)));
    if (merge.textKey.isEmpty())
        return;
    row.textKey = merge.textKey;
    row.markedText = merge.markedText;
}

int ExternalChangesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ExternalChangesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ExternalChangesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    if (role == Qt::ToolTipRole)
        return plainToolTip(index.column() == File ? row.entry.path
                                                   : data(index, Qt::DisplayRole).toString());
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case File:
        return row.title;
    case State:
        return stateText(row);
    default:
        return choiceText(row);
    }
}

QVariant ExternalChangesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case File:
        return tr("File");
    case State:
        return tr("What happened");
    default:
        return tr("Decision");
    }
}

QString ExternalChangesModel::stateText(const Row &row) const
{
    using enum ReconcileState;
    if (row.isCopy)
        return tr("A sync client's second version of it");
    switch (row.original.localText || row.original.remoteText ? row.original.state : Unchanged) {
    case Unchanged:
        return tr("The same on both sides");
    case LocalChanged:
        return tr("Changed by you");
    case RemoteChanged:
        return tr("Changed on disk");
    case Merged:
    case ConflictEdited:
        return tr("Changed by you and on disk");
    case AddedLocally:
        return tr("Added by you");
    case AddedRemotely:
        return tr("Added on disk");
    case ConflictAdded:
        return tr("Added by you and on disk");
    case DeletedLocally:
        return tr("Deleted by you");
    case DeletedRemotely:
        return tr("Deleted on disk");
    case ConflictDeleted:
        return row.original.localText ? tr("Changed by you, deleted on disk")
                                      : tr("Deleted by you, changed on disk");
    }
    return {};
}

QString ExternalChangesModel::choiceText(const Row &row)
{
    switch (row.choice) {
    case Choice::Undecided:
        return tr("⚠ To be decided");
    case Choice::Mine:
        return row.entry.localText ? tr("Keep your version") : tr("Stays deleted");
    case Choice::Theirs:
        return row.entry.remoteText ? tr("Take the on-disk version") : tr("Delete it here too");
    case Choice::Merged:
        return tr("Both, merged");
    case Choice::ByHand:
        return tr("Both, edited by you");
    }
    return {};
}

ReadableVersions ExternalChangesModel::versions(int row) const
{
    const ReconcileEntry &original = m_rows[std::size_t(row)].original;
    return readableVersions(asBytes(original.localText), asBytes(original.remoteText),
                            m_workspace ? &m_workspace->project() : nullptr);
}

void ExternalChangesModel::chooseMine(int row)
{
    Row &chosen = m_rows[std::size_t(row)];
    chosen.entry.takeLocal();
    chosen.choice = Choice::Mine;
    rowChanged(row);
}

void ExternalChangesModel::chooseTheirs(int row)
{
    Row &chosen = m_rows[std::size_t(row)];
    chosen.entry.takeRemote();
    chosen.choice = Choice::Theirs;
    rowChanged(row);
}

QString ExternalChangesModel::editableText(int row) const
{
    return m_rows[std::size_t(row)].markedText;
}

void ExternalChangesModel::keepText(int row, const QString &text)
{
    m_rows[std::size_t(row)].markedText = text;
}

Result<> ExternalChangesModel::chooseText(int row, const QString &text)
{
    Row &chosen = m_rows[std::size_t(row)];
    keepText(row, text); // it is there again when the text is opened again
    for (const QStringView line : QStringView(text).split(u'\n'))
        if (line.startsWith(beginMark) || line == middleMark || line.startsWith(endMark))
            return failure(tr("There are still lines with marks in the text."));
    JsonMerge merge =
        JsonMerge::merge(objectIn(chosen.base), objectIn(bytesOf(chosen.original.localText)),
                         objectIn(bytesOf(chosen.original.remoteText)));
    merge.object.insert(chosen.textKey, text);
    JsonParser parser;
    const ProjectFile own =
        inOwnForm(parser, {chosen.entry.path, QJsonDocument(merge.object).toJson()});
    chosen.entry.takeText(QString::fromUtf8(own.bytes));
    chosen.choice = Choice::ByHand;
    rowChanged(row);
    return {};
}

int ExternalChangesModel::undecided() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(),
                             [](const Row &row) { return row.choice == Choice::Undecided; }));
}

std::vector<ReconcileEntry> ExternalChangesModel::resolution() const
{
    std::vector<ReconcileEntry> entries;
    entries.reserve(m_rows.size());
    for (const Row &row : m_rows)
        entries.push_back(row.entry);
    return entries;
}

void ExternalChangesModel::rowChanged(int row)
{
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

} // namespace vl::app
