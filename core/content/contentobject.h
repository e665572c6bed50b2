#pragma once

#include "core/contentkind.h"
#include "core/id.h"

#include <QtCore/QString>

#include <set>

namespace vl::core {

/// A sorted list of texts, each once.
using StringSet = std::set<QString>;

/// What all content of a project has in common. A project owns its objects; all else holds ids.
class ContentObject
{
public:
    virtual ~ContentObject();
    ContentObject(const ContentObject &) = delete;
    ContentObject &operator=(const ContentObject &) = delete;

    const ContentId &id() const { return m_id; }
    ContentKind kind() const { return m_kind; }

    /// The names of the audiences that may see the object; empty means everyone.
    const StringSet &visibleTo() const { return m_visibleTo; }
    void setVisibleTo(StringSet audiences) { m_visibleTo = std::move(audiences); }

    const StringSet &tags() const { return m_tags; }
    void setTags(StringSet tags) { m_tags = std::move(tags); }

    /// True keeps the object out of whatever goes to an AI service.
    bool isAiExcluded() const { return m_aiExcluded; }
    void setAiExcluded(bool excluded) { m_aiExcluded = excluded; }

protected:
    ContentObject(const ContentId &id, ContentKind kind);

private:
    ContentId m_id;
    ContentKind m_kind;
    bool m_aiExcluded = false;
    StringSet m_visibleTo;
    StringSet m_tags;
};

/// The object as its class, or null when it is of another kind (or null itself).
template<typename T>
T *contentCast(ContentObject *object)
{
    return object && object->kind() == T::staticKind ? static_cast<T *>(object) : nullptr;
}
template<typename T>
const T *contentCast(const ContentObject *object)
{
    return object && object->kind() == T::staticKind ? static_cast<const T *>(object) : nullptr;
}

} // namespace vl::core
