#pragma once

#include "app/storage/json/jsonvalue.h"
#include "app/storage/json/jsonwriter.h"
#include "core/content/contentobject.h"

#include <memory>

namespace vl::app {

// The reader and the writer of each kind; kindcodecs.cpp tells what they promise.

std::unique_ptr<core::ContentObject> readCanvas(const core::ContentId &id, const JsonValue &json);
bool writeCanvas(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readChart(const core::ContentId &id, const JsonValue &json);
bool writeChart(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readComment(const core::ContentId &id, const JsonValue &json);
bool writeComment(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readDocument(const core::ContentId &id, const JsonValue &json);
bool writeDocument(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readEntity(const core::ContentId &id, const JsonValue &json);
bool writeEntity(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readLanguage(const core::ContentId &id, const JsonValue &json);
bool writeLanguage(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readMap(const core::ContentId &id, const JsonValue &json);
bool writeMap(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readMedia(const core::ContentId &id, const JsonValue &json);
bool writeMedia(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readRandomTable(const core::ContentId &id,
                                                     const JsonValue &json);
bool writeRandomTable(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readSource(const core::ContentId &id, const JsonValue &json);
bool writeSource(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readSpreadsheet(const core::ContentId &id,
                                                     const JsonValue &json);
bool writeSpreadsheet(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readStatBlock(const core::ContentId &id,
                                                   const JsonValue &json);
bool writeStatBlock(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readTask(const core::ContentId &id, const JsonValue &json);
bool writeTask(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readTimeline(const core::ContentId &id, const JsonValue &json);
bool writeTimeline(JsonWriter &json, const core::ContentObject &object);

std::unique_ptr<core::ContentObject> readTimelineEvent(const core::ContentId &id,
                                                       const JsonValue &json);
bool writeTimelineEvent(JsonWriter &json, const core::ContentObject &object);

} // namespace vl::app
