#pragma once

#include "core/enumtexts.h"
#include "core/id.h"

#include <QtCore/QDate>
#include <QtCore/QList>
#include <QtCore/QString>

#include <map>
#include <optional>

namespace vl::core {

struct SavedSearch
{
    QString name;
    QString query;

    bool operator==(const SavedSearch &) const = default;
};

/// What a new entity of a category starts with.
struct EntityTemplate
{
    QString name;
    ContentId categoryId;
    std::map<QString, QString> fieldValues;

    bool operator==(const EntityTemplate &) const = default;
};

struct PlotThread
{
    QString name;
    QString description;
    ContentId characterId; ///< null: a thread of no one person
    QString color;

    bool operator==(const PlotThread &) const = default;
};

enum class RuleComparison
{
    Equals,
    NotEquals
};
inline constexpr auto ruleComparisonTexts = makeEnumTexts<RuleComparison>("equals", "notEquals");

/// What an entity's field must, or must not, be.
struct ContinuityRule
{
    QString name;
    ContentId entityId;
    QString fieldKey;
    QString value;
    RuleComparison comparison = RuleComparison::Equals;
    std::optional<qint64> instant; ///< minutes of story time; absent for the plain value

    bool operator==(const ContinuityRule &) const = default;
};

struct TimelineEra
{
    QString name;
    QString color;
    qint64 startMinute = 0;
    qint64 endMinute = 0;

    bool operator==(const TimelineEra &) const = default;
};

struct TimelineMarker
{
    QString name;
    qint64 instant = 0;
    bool isNow = false; ///< stands for the story's present

    bool operator==(const TimelineMarker &) const = default;
};

/// A stretch of the timeline to come back to.
struct TimelineBookmark
{
    QString name;
    qint64 startMinute = 0;
    qint64 endMinute = 0;

    bool operator==(const TimelineBookmark &) const = default;
};

/// A document put on a beat of the story structure, the beat by its name.
struct BeatAssignment
{
    ContentId documentId;
    QString beatName;

    bool operator==(const BeatAssignment &) const = default;
};

struct BeatSheet
{
    QString templateId; ///< empty while no structure is chosen
    QList<BeatAssignment> assignments;

    bool operator==(const BeatSheet &) const = default;
};

/// A shared library of entities that the project reads.
struct LibraryMount
{
    QString path;
    bool writable = false;

    bool operator==(const LibraryMount &) const = default;
};

/// Words written by day.
using WritingLog = std::map<QDate, qint32>;

struct WritingGoal
{
    qint32 dailyWordTarget = 0;
    qint32 manuscriptWordTarget = 0;
    QDate deadline; ///< invalid for none

    bool operator==(const WritingGoal &) const = default;
};

/// The order and state of one lane in one grouping of the timeline.
struct LaneArrangement
{
    QString groupBy = QStringLiteral("none");
    QString label;
    bool hidden = false;
    bool collapsed = false;

    bool operator==(const LaneArrangement &) const = default;
};

struct SeriesArrangement
{
    QString label;
    bool hidden = false;

    bool operator==(const SeriesArrangement &) const = default;
};

/// How the timeline is drawn.
struct TimelineViewSettings
{
    QString colorBy = QStringLiteral("none");
    QString groupBy = QStringLiteral("none");
    QString density = QStringLiteral("comfortable");
    double rowHeight = 32;
    double eventSize = 16;
    bool showLabels = true;
    QString labelPlacement = QStringLiteral("auto");
    QString labelFormat = QStringLiteral("titleOnly");
    bool showGridlines = true;
    bool showDensityStrip = false;
    bool showConflictMarks = true;
    bool ordinalMode = false;
    QString seriesShape = QStringLiteral("line");
    QList<LaneArrangement> laneArrangements;
    QList<SeriesArrangement> seriesArrangements;

    bool operator==(const TimelineViewSettings &) const = default;
};

struct TimelineViewPreset
{
    QString name;
    TimelineViewSettings settings;

    bool operator==(const TimelineViewPreset &) const = default;
};

} // namespace vl::core
