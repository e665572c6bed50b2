#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QDateTime>

namespace vl::core {

/// What a comment says, apart from what it is about.
struct CommentData
{
    ContentId parentId; ///< the comment replied to; null for the first of a thread
    QString anchor;     ///< where in the target it stands
    QString author;
    QString body;
    QDateTime createdAt;
    QDateTime updatedAt;
    bool resolved = false;

    bool operator==(const CommentData &) const = default;
};

/// A remark on another object.
class Comment final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Comment;

    Comment(const ContentId &id, const ContentId &targetId)
        : ContentObject(id, staticKind)
        , m_targetId(targetId)
    {
    }

    const ContentId &targetId() const { return m_targetId; }
    void setTargetId(const ContentId &id) { m_targetId = id; }

    const CommentData &data() const { return m_data; }
    void setData(const CommentData &data) { m_data = data; }

private:
    ContentId m_targetId;
    CommentData m_data;
};

} // namespace vl::core
