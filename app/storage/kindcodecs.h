#pragma once

#include "app/storage/json/jsonvalue.h"
#include "app/storage/json/jsonwriter.h"
#include "core/content/contentobject.h"

#include <memory>
#include <span>

namespace vl::app {

/// How the objects of one kind are read and written.
struct KindCodec
{
    core::ContentKind kind;
    /// Makes the object from the members of its file; null when it refuses them.
    std::unique_ptr<core::ContentObject> (*read)(const core::ContentId &id, const JsonValue &json);
    /// Writes the whole object of the file; false, writing nothing, for one of another kind.
    bool (*write)(JsonWriter &json, const core::ContentObject &object);
};

/// One row for each kind of content, in the order of ContentKind.
std::span<const KindCodec> kindCodecs();

/// The object that a file describes; null when its id, its type or its kind's own reader refuses.
std::unique_ptr<core::ContentObject> readObject(const JsonValue &json);
/// The text of an object's file.
void writeObject(JsonWriter &json, const core::ContentObject &object);

} // namespace vl::app
