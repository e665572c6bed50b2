#pragma once

#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QFuture>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// Reads the files of a project folder one after another, with the next ones already being read on
/// another core.
class ReadAhead
{
public:
    /// Paths are relative to the folder, and are read in this order.
    ReadAhead(const QString &folder, std::vector<QByteArray> paths);
    ~ReadAhead();
    Q_DISABLE_COPY_MOVE(ReadAhead)

    /// The bytes of the next file.
    Result<QByteArray> next();

private:
    using Batch = std::vector<Result<QByteArray>>;

    void start();

    QString m_folder;
    std::vector<QByteArray> m_paths;
    size_t m_started = 0; ///< paths before this one are read or being read
    Batch m_ready;
    size_t m_taken = 0; ///< files taken from the batch that is ready
    QFuture<Batch> m_coming;
    bool m_isComing =
        false; ///< a batch is being read; a future does not tell once it was taken from
};

} // namespace vl::app
