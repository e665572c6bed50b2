#pragma once

#include "core/commands/command.h"
#include "core/id.h"

#include <QtCore/QFlags>
#include <QtCore/QString>

#include <map>
#include <memory>
#include <vector>

namespace vl::core {
class Project;
}

namespace vl::app {

/// The parts of a project among which a search can choose.
enum class SearchScope
{
    Manuscript = 1, ///< titles, texts, footnotes and variants of prose and screenplays
    Notes = 2,      ///< the same of notes
    Synopses = 4,   ///< synopses, statuses and points of view
    Codex = 8,      ///< entities and categories
    Comments = 16,
    Timeline = 32, ///< timelines, events, eras, markers
    Others = 64,   ///< everything else that has a text
};
Q_DECLARE_FLAGS(SearchScopes, SearchScope)
Q_DECLARE_OPERATORS_FOR_FLAGS(SearchScopes)

inline constexpr SearchScopes everywhere = SearchScopes(0x7f);

/// What a text is to what it belongs to.
enum class TextField
{
    Title,
    Body,
    Footnote,
    Variant,
    Synopsis,
    Status,
    PointOfView,
    Name,
    Alias,
    Value,
    Comment,
    Description,
    Label,
    Note,
    Caption,
    Cell,
    Entry,
    Other
};

/// What a text belongs to: an object or category by its id, or a record of the project.
struct SearchTarget
{
    enum class Kind
    {
        Object,
        Category,
        Eras,
        Markers,
        PlotThreads
    };
    Kind kind = Kind::Object;
    core::ContentId id; ///< null for a record

    bool operator==(const SearchTarget &) const = default;
};

/// One text of a project as it was when it was collected.
struct SearchText
{
    SearchTarget target;
    int number = 0; ///< among the texts of the target, from 0
    TextField field = TextField::Title;
    SearchScope scope = SearchScope::Manuscript;
    QString detail; ///< which one, where there are several: the label of a field, a cell
    QString text;
    bool isReplaceable = true;
};

/// All texts of a project that the scopes ask for and that are not empty: documents in the order of
/// the manuscript, then categories, entities and the other kinds, each target's texts together.
/// The texts share their data with the project, so this is quick, and may go to another thread.
std::vector<SearchText> searchTexts(const core::Project &project, SearchScopes scopes);

/// The commands that put new texts in the places of these texts of a target, by their numbers.
/// Texts that cannot be replaced, and those that are the same, give none.
std::vector<std::unique_ptr<core::Command>>
replacementCommands(core::Project &project, const SearchTarget &target,
                    const std::map<int, QString> &newTexts);

/// The texts of one target as they are now, empty ones too, by number; to see what changed.
std::vector<SearchText> textsOf(core::Project &project, const SearchTarget &target);

} // namespace vl::app
