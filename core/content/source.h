#pragma once

#include "core/content/wholeobject.h"

#include <map>

namespace vl::core {

struct SourceData
{
    QString sourceType;
    QString title;
    QString citationKey;
    std::map<QString, QString> fields; ///< by the field's name

    bool operator==(const SourceData &) const = default;
};

/// A work that the author draws on.
using Source = WholeObject<SourceData, ContentKind::Source>;

} // namespace vl::core
