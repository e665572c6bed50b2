#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/comment.h"

namespace vl::app {

using core::Comment;
using core::CommentData;

static constexpr auto fields = sortedFields<Comment>({
    part<Comment, &Comment::data, &Comment::setData, &CommentData::anchor>("anchor"),
    part<Comment, &Comment::data, &Comment::setData, &CommentData::author>("author"),
    part<Comment, &Comment::data, &Comment::setData, &CommentData::body>("body"),
    part<Comment, &Comment::data, &Comment::setData, &CommentData::createdAt>("createdAt"),
    part<Comment, &Comment::data, &Comment::setData, &CommentData::parentId>("parentId"),
    part<Comment, &Comment::data, &Comment::setData, &CommentData::resolved>("resolved"),
    field<Comment, &Comment::targetId, &Comment::setTargetId>("targetId"),
    part<Comment, &Comment::data, &Comment::setData, &CommentData::updatedAt>("updatedAt"),
});

std::unique_ptr<core::ContentObject> readComment(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Comment>(id, core::ContentId());
    readFields<Comment>(json, fields, *object);
    return object;
}

bool writeComment(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Comment>(json, object, fields);
}

} // namespace vl::app
