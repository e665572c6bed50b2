#pragma once

#include "app/models/workspace.h"
#include "app/storage/journal.h"
#include "core/content/document.h"

#include <memory>
#include <optional>

namespace vl::app {

/// A file of a project as it is to be written down. Documents may be long: they are held as they
/// stand, their texts shared with the project, and brought into bytes where nobody waits for it.
class UnwrittenFile
{
public:
    /// The object as it is now; the file goes when there is none.
    UnwrittenFile(const core::ContentId &id, const core::ContentObject *object);
    /// The document with what stands in an editor.
    UnwrittenFile(const core::Document &document, PendingText typed);
    UnwrittenFile(QString path, std::optional<QByteArray> bytes);

    /// Bytes that were made already; a document counts for nothing.
    qsizetype size() const { return m_bytes ? m_bytes->size() : 0; }
    /// To be called once; safe on any thread.
    FileChange take();

private:
    QString m_path;
    std::optional<QByteArray> m_bytes;
    std::shared_ptr<core::Document> m_document;
    std::optional<PendingText> m_typed;
};

} // namespace vl::app
