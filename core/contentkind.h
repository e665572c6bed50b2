#pragma once

#include "core/enumtexts.h"

namespace vl::core {

/// What a content object is; it never turns into something else.
enum class ContentKind
{
    Document,
    Entity,
    Spreadsheet,
    Chart,
    Map,
    Timeline,
    TimelineEvent,
    Media,
    Source,
    Task,
    Canvas,
    Comment,
    Language,
    RandomTable,
    StatBlock,
};

/// The stored type text of each kind.
inline constexpr auto contentKindTexts = makeEnumTexts<ContentKind>(
    "document", "entity", "spreadsheet", "chart", "map", "timeline", "timeline_event", "media",
    "source", "task", "canvas", "comment", "language", "random_table", "stat_block");

} // namespace vl::core
