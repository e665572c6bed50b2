#include "desktop/editor/livedocuments.h"

#include <QtGui/QTextDocument>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr size_t mostDocuments = 20;
constexpr qint64 mostCharacters = 16'000'000; // of all together, but for the one that is open

} // namespace

LiveDocument *LiveDocuments::find(const core::ContentId &id) const
{
    const auto found = std::find_if(m_recent.begin(), m_recent.end(),
                                    [&id](const auto &live) { return live->id() == id; });
    return found == m_recent.end() ? nullptr : found->get();
}

LiveDocument *LiveDocuments::open(const core::ContentId &id)
{
    const auto found = std::find_if(m_recent.begin(), m_recent.end(),
                                    [&id](const auto &live) { return live->id() == id; });
    if (found == m_recent.end())
        m_recent.insert(m_recent.begin(), std::make_unique<LiveDocument>(id));
    else
        std::rotate(m_recent.begin(), found, found + 1);
    dropOldest();
    return m_recent.front().get();
}

void LiveDocuments::dropOldest()
{
    qint64 characters = 0;
    size_t kept = 0;
    // The one shown until now is still in use: two stay in any case.
    for (; kept < m_recent.size() && kept < mostDocuments; ++kept) {
        characters += kept == 0 ? 0 : m_recent[kept]->document()->characterCount();
        if (kept > 1 && characters > mostCharacters)
            break;
    }
    m_recent.resize(kept);
}

void LiveDocuments::remove(const core::ContentId &id)
{
    std::erase_if(m_recent, [&id](const auto &live) { return live->id() == id; });
}

} // namespace vl::desktop
