#pragma once

#include "desktop/editor/livedocument.h"

#include <memory>
#include <vector>

namespace vl::desktop {

/// The texts of the documents written last: coming back to one finds it laid out, with caret and
/// scroll position as they were. Only a bounded number is kept.
class LiveDocuments
{
public:
    /// The text of a document, as it was left or empty; the one asked for before may go then.
    LiveDocument *open(const core::ContentId &id);
    LiveDocument *find(const core::ContentId &id) const;
    void remove(const core::ContentId &id);
    void clear() { m_recent.clear(); }
    const std::vector<std::unique_ptr<LiveDocument>> &all() const { return m_recent; }

private:
    void dropOldest();

    std::vector<std::unique_ptr<LiveDocument>> m_recent; ///< the latest first
};

} // namespace vl::desktop
