#include "app/storage/readahead.h"

#include "app/storage/projectfolder.h"

#include <QtConcurrent/QtConcurrentRun>

namespace vl::app {

namespace {

/// Files in one batch, at most.
constexpr size_t batchFiles = 256;
/// A batch ends when it holds this many bytes.
constexpr qsizetype batchBytes = 4 << 20;

std::vector<Result<QByteArray>> readBatch(const QString &folder, const QByteArray *paths,
                                          size_t count)
{
    std::vector<Result<QByteArray>> files;
    files.reserve(count);
    qsizetype bytes = 0;
    for (size_t i = 0; i < count && bytes < batchBytes; ++i) {
        files.push_back(readProjectFile(folder, paths[i]));
        if (!files.back())
            break;
        bytes += files.back()->size();
    }
    return files;
}

} // namespace

ReadAhead::ReadAhead(const QString &folder, std::vector<QByteArray> paths)
    : m_folder(folder)
    , m_paths(std::move(paths))
{
    start();
}

ReadAhead::~ReadAhead()
{
    if (m_isComing)
        m_coming.waitForFinished();
}

void ReadAhead::start()
{
    const size_t count = qMin(batchFiles, m_paths.size() - m_started);
    m_isComing = count > 0;
    if (m_isComing)
        m_coming = QtConcurrent::run(readBatch, m_folder, m_paths.data() + m_started, count);
}

Result<QByteArray> ReadAhead::next()
{
    if (m_taken == m_ready.size()) {
        Q_ASSERT(m_started < m_paths.size());
        m_ready = m_coming.takeResult();
        m_isComing = false;
        m_taken = 0;
        m_started += m_ready.size();
        if (m_ready.back()) // after a failure nobody asks for more
            start();
    }
    return std::move(m_ready[m_taken++]);
}

} // namespace vl::app
