#pragma once

#include "app/storage/autobackups.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QThreadPool>

#include <atomic>
#include <memory>

namespace vl::app {

/// The backups of a project, the newest first. What stands in each is counted on another thread and
/// appears when it is known.
class BackupsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        DateColumn,
        ReasonColumn,
        ScenesColumn,
        WordsColumn,
        SizeColumn,
        ColumnCount
    };

    explicit BackupsModel(AutoBackups backups, QObject *parent = nullptr);
    ~BackupsModel() override;

    /// Reads the list anew.
    void refresh();
    /// The backup in a row.
    const BackupInfo &backupAt(int row) const { return m_rows[std::size_t(row)].backup; }
    /// Waits until everything is counted; the counts appear with the next events.
    void finish() { m_pool.waitForDone(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// What a backup was made for, in words.
    static QString reasonText(BackupReason reason);

private:
    struct Row
    {
        BackupInfo backup;
        std::optional<BackupSummary> summary;
        QString fault; ///< why it cannot be read
    };

    void count(const BackupInfo &backup);
    void setSummary(const QString &path, const Result<BackupSummary> &summary);
    QString text(const Row &row, int column) const;

    AutoBackups m_backups;
    std::vector<Row> m_rows;
    QThreadPool m_pool;
    std::shared_ptr<std::atomic<bool>> m_isStopped;
};

} // namespace vl::app
