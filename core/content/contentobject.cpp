#include "core/content/contentobject.h"

namespace vl::core {

ContentObject::ContentObject(const ContentId &id, ContentKind kind)
    : m_id(id)
    , m_kind(kind)
{
}

ContentObject::~ContentObject() = default;

} // namespace vl::core
