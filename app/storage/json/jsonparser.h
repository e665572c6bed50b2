#pragma once

#include "app/storage/json/jsonvalue.h"

#include <QtCore/QByteArray>

#include <memory>
#include <optional>

namespace vl::app {

/// Reads JSON texts, one after the other; keeps its memory between them. It takes every text that
/// QJsonDocument takes, and reads it alike: of members with one name the last one counts, whole
/// numbers keep 64 bits, a text may hold half a surrogate pair. Nesting ends at 1024 levels.
class JsonParser
{
public:
    JsonParser();
    ~JsonParser();
    Q_DISABLE_COPY_MOVE(JsonParser)

    /// The object that the text consists of, good until the next call; nothing when the text is no
    /// JSON or its top level is no object. The bytes must stay alive for no longer than the call.
    std::optional<JsonValue> parseObject(const QByteArray &bytes);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace vl::app
