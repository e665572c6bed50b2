#pragma once

#include "app/storage/json/jsonvalue.h"
#include "app/storage/json/jsonwriter.h"
#include "core/taxonomy.h"

namespace vl::app {

enum class CategoryFault
{
    None,
    Category, ///< there is no valid id
    Field,    ///< a field's type is missing or unknown; the category's name is read
};

/// Reads the category that a file describes.
CategoryFault readCategory(const JsonValue &json, core::Category &category);
/// Writes the text of a category's file.
void writeCategory(JsonWriter &json, const core::Category &category);

} // namespace vl::app
