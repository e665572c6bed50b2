#include "app/models/backupsmodel.h"

#include "app/models/objecttexts.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QDir>
#include <QtCore/QLocale>

#include <algorithm>

namespace vl::app {

BackupsModel::BackupsModel(AutoBackups backups, QObject *parent)
    : QAbstractTableModel(parent)
    , m_backups(std::move(backups))
    , m_isStopped(std::make_shared<std::atomic<bool>>(false))
{
    m_pool.setMaxThreadCount(1);
    refresh();
}

BackupsModel::~BackupsModel()
{
    *m_isStopped = true;
    m_pool.waitForDone();
}

void BackupsModel::refresh()
{
    beginResetModel();
    std::vector<Row> before = std::exchange(m_rows, {});
    for (BackupInfo &backup : m_backups.list()) {
        const auto known = std::find_if(before.begin(), before.end(), [&](const Row &row) {
            return row.backup.path == backup.path;
        });
        m_rows.push_back(known == before.end() ? Row{std::move(backup), {}, {}} : *known);
    }
    endResetModel();
    for (const Row &row : m_rows) {
        if (!row.summary && row.fault.isEmpty())
            count(row.backup);
    }
}

void BackupsModel::count(const BackupInfo &backup)
{
    QtConcurrent::run(&m_pool, [backups = m_backups, backup, stopped = m_isStopped] {
        return *stopped ? Result<BackupSummary>(failure(QString())) : backups.summary(backup);
    }).then(this, [this, path = backup.path](const Result<BackupSummary> &summary) {
        setSummary(path, summary);
    });
}

void BackupsModel::setSummary(const QString &path, const Result<BackupSummary> &summary)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].backup.path != path)
            continue;
        if (summary)
            m_rows[i].summary = *summary;
        else
            m_rows[i].fault = summary.message();
        Q_EMIT dataChanged(index(int(i), 0), index(int(i), ColumnCount - 1));
    }
}

int BackupsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int BackupsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString BackupsModel::reasonText(BackupReason reason)
{
    switch (reason) {
    case BackupReason::Opened:
        return tr("When opened");
    case BackupReason::Closed:
        return tr("When closed");
    case BackupReason::Daily:
        return tr("Once a day");
    case BackupReason::ByHand:
        return tr("By hand");
    case BackupReason::Replaced:
        break;
    }
    return tr("Before something took its place");
}

QString BackupsModel::text(const Row &row, int column) const
{
    const QLocale locale;
    const auto number = [&](qint64 BackupSummary::*figure) {
        if (!row.fault.isEmpty())
            return tr("damaged");
        return row.summary ? locale.toString((*row.summary).*figure) : QStringLiteral("…");
    };
    switch (column) {
    case DateColumn:
        return row.backup.time.isValid()
                   ? locale.toString(row.backup.time.toLocalTime(), QLocale::ShortFormat)
                   : tr("unknown");
    case ReasonColumn:
        return reasonText(row.backup.reason);
    case ScenesColumn:
        return number(&BackupSummary::scenes);
    case WordsColumn:
        return number(&BackupSummary::words);
    case SizeColumn:
        return locale.formattedDataSize(row.backup.size, 1);
    default:
        return {};
    }
}

QVariant BackupsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::TextAlignmentRole:
        return index.column() >= ScenesColumn ? int(Qt::AlignRight | Qt::AlignVCenter)
                                              : int(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return plainToolTip(row.fault.isEmpty() ? QDir::toNativeSeparators(row.backup.path)
                                                : row.fault);
    default:
        return {};
    }
}

QVariant BackupsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return section >= ScenesColumn ? int(Qt::AlignRight | Qt::AlignVCenter)
                                       : int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case DateColumn:
        return tr("Date");
    case ReasonColumn:
        return tr("Made");
    case ScenesColumn:
        return tr("Scenes");
    case WordsColumn:
        return tr("Words");
    case SizeColumn:
        return tr("Size");
    default:
        return {};
    }
}

} // namespace vl::app
