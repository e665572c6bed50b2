#pragma once

#include "app/storage/json/jsonvalue.h"
#include "app/storage/json/jsonwriter.h"
#include "core/project.h"

namespace vl::app {

/// Reads the records of a project from its "project.json"; what is missing keeps its default.
void readProjectRecords(const JsonValue &json, core::Project &project);
/// Writes the text of "project.json".
void writeProjectRecords(JsonWriter &json, const core::Project &project);

} // namespace vl::app
