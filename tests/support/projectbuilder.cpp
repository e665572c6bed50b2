#include "tests/support/projectbuilder.h"

#include "core/content/canvas.h"
#include "core/content/chart.h"
#include "core/content/comment.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/content/language.h"
#include "core/content/map.h"
#include "core/content/media.h"
#include "core/content/randomtable.h"
#include "core/content/source.h"
#include "core/content/spreadsheet.h"
#include "core/content/statblock.h"
#include "core/content/task.h"
#include "core/content/timeline.h"

#include <limits>
#include <random>

namespace vl::test {

using namespace core;

namespace {

/// Values that are never the default of a field.
class Values
{
public:
    explicit Values(quint32 seed)
        : m_random(seed)
    {
    }

    QString text()
    {
        static const QString words[] = {
            QStringLiteral("lantern"),
            QStringLiteral("“Ça va?”"),
            QStringLiteral("two\nlines"),
            QStringLiteral("tab\tand \"quotes\" and \\"),
            QStringLiteral("море"),
            QStringLiteral("\U0001F409 dragon"),
            QStringLiteral("bell\a"),
            QStringLiteral("a & b < c / d"),
            QStringLiteral("half ") + QChar(0xD83D) + QStringLiteral(" a pair"),
        };
        return words[below(int(std::size(words)))] + QString::number(below(1000));
    }
    QStringList texts() { return {text(), text()}; }
    StringSet textSet() { return {text(), text()}; }
    std::map<QString, QString> entries() { return {{text(), text()}, {text(), QString()}}; }
    qint32 int32()
    {
        return oneOf<qint32>(
            {std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()});
    }
    qint64 int64()
    {
        return oneOf<qint64>({std::numeric_limits<qint64>::max(),
                              std::numeric_limits<qint64>::min(), 9007199254740993LL,
                              -12345678901234LL});
    }
    double number() { return oneOf<double>({0.1, -1e-7, 1e21, 1.5, 9007199254740993.0}); }
    QDate date() { return QDate(2026, 1, 1).addDays(below(3000)); }
    QDateTime dateTime()
    {
        const QTime time(below(24), below(60), below(60), below(1000));
        return below(2) == 0
                   ? QDateTime(date(), time, Qt::UTC)
                   : QDateTime(date(), time, Qt::OffsetFromUTC, 3600 * (below(25) - 12) + 1800);
    }
    ContentId id() { return numberedId(1000000 + quint32(below(1000000))); }
    QList<ContentId> ids() { return {id(), id()}; }
    int below(int limit) { return int(m_random() % quint32(limit)); }

private:
    /// One of the values, or a small number.
    template<typename T>
    T oneOf(std::initializer_list<T> values)
    {
        const int place = below(int(values.size()) + 2);
        return place < int(values.size()) ? values.begin()[place] : T(4 + below(1000));
    }

    std::mt19937 m_random;
};

class Builder
{
public:
    explicit Builder(quint32 seed)
        : m_values(seed)
        , m_nextId(seed * 1000)
        , m_project(std::make_unique<Project>())
    {
    }

    std::unique_ptr<Project> build()
    {
        addManuscript();
        addCodex();
        addTimelines();
        addSurfaces();
        addSheets();
        addReference();
        setLists();
        setTimelineRecords();
        return std::move(m_project);
    }

private:
    ContentId nextId() { return numberedId(++m_nextId); }
    void add(std::unique_ptr<ContentObject> object)
    {
        object->setTags(m_values.textSet());
        object->setVisibleTo(m_values.textSet());
        object->setAiExcluded(true);
        m_project->add(std::move(object));
    }

    void addManuscript();
    void addCodex();
    void addTimelines();
    void addSurfaces();
    void addSheets();
    void addReference();
    void setLists();
    void setTimelineRecords();
    TimelineViewSettings viewSettings();
    Calendar calendar();

    Values m_values;
    quint32 m_nextId;
    std::unique_ptr<Project> m_project;
};

void Builder::addManuscript()
{
    Values &v = m_values;
    ContentId parentId = v.id();
    for (const DocumentKind kind :
         {DocumentKind::Screenplay, DocumentKind::Note, DocumentKind::Prose}) {
        auto document = std::make_unique<Document>(nextId(), kind, v.text());
        document->setBody(v.text());
        document->setSynopsis(v.text());
        document->setStatus(v.text());
        document->setPointOfView(v.text());
        document->setTensionLevel(v.int32());
        document->setSceneInstant(v.int64());
        document->setWordCountTarget(v.int32());
        document->setParentId(parentId);
        document->setSortIndex(v.int32());
        document->setSourceIds(v.ids());
        document->setPlotThreadIds(v.texts());
        document->setRevisionBaseline(v.text());
        document->setVersions(
            {{v.text(), v.dateTime(), v.text()}, {v.text(), v.dateTime(), v.text()}});
        document->setVariants({{{v.text(), v.text()}, {v.text(), v.text()}}, v.text()});
        document->setFootnotes({{v.text(), v.text(), true}, {v.text(), v.text(), false}});
        parentId = document->id();
        add(std::move(document));
    }
    auto comment = std::make_unique<Comment>(nextId(), parentId);
    comment->setData({v.id(), v.text(), v.text(), v.text(), v.dateTime(), v.dateTime(), true});
    add(std::move(comment));
}

void Builder::addCodex()
{
    Values &v = m_values;
    ContentId parentId = v.id();
    for (int i = 0; i < 2; ++i) {
        Category category{nextId(), v.text(), parentId, {}};
        for (std::size_t type = 0; type < fieldTypeTexts.size(); ++type)
            category.fields.append(
                {v.text(), v.text(), FieldType(type), type % 2 == 0, v.texts(), v.text()});
        m_project->editTaxonomy().add(category);
        parentId = category.id;
    }
    auto entity = std::make_unique<Entity>(nextId(), parentId, v.text());
    entity->setValues(v.entries());
    entity->setAliases(v.texts());
    entity->setGallery(v.ids());
    entity->setLifespan({v.int64(), v.int64()});
    entity->setTimedValues({{v.text(), v.text(), v.int64()}, {v.text(), v.text(), v.int64()}});
    add(std::move(entity));

    add(std::make_unique<Language>(nextId(),
                                   LanguageData{v.text(),
                                                v.text(),
                                                v.text(),
                                                v.text(),
                                                v.int32(),
                                                v.int32(),
                                                v.text(),
                                                {{v.text(), v.text(), v.text(), v.text()}}}));
}

void Builder::addTimelines()
{
    Values &v = m_values;
    auto timeline = std::make_unique<Timeline>(nextId(), v.text());
    timeline->setDescription(v.text());
    timeline->setSortIndex(v.int32());
    const ContentId timelineId = timeline->id();
    add(std::move(timeline));
    for (const DateQualifier qualifier : {DateQualifier::Circa, DateQualifier::Before,
                                          DateQualifier::After, DateQualifier::During}) {
        TimelineEventData data;
        data.timelineId = timelineId;
        data.title = v.text();
        data.startMinute = v.int64();
        data.durationMinutes = v.int64();
        data.ordinal = v.int64();
        data.dateQualifier = qualifier;
        data.participants = v.ids();
        data.locationId = v.id();
        data.parentId = v.id();
        data.collapsed = true;
        data.constraints = {{v.id(), QStringLiteral("after")},
                            {v.id(), QStringLiteral("before")},
                            {v.id(), QStringLiteral("during")}};
        data.sceneIds = v.ids();
        data.description = v.text();
        data.styleColor = v.text();
        data.styleLabel = v.text();
        data.layer = v.text();
        add(std::make_unique<TimelineEvent>(nextId(), data));
    }
}

void Builder::addSurfaces()
{
    Values &v = m_values;
    auto canvas = std::make_unique<Canvas>(nextId(), v.text());
    canvas->setCards({{v.id(), v.number(), v.number()}, {v.id(), v.number(), v.number()}});
    canvas->setConnections({{v.id(), v.id()}});
    add(std::move(canvas));

    auto map = std::make_unique<Map>(nextId(), v.text());
    map->setImageAssetPath(v.text());
    map->setPins({{v.number(), v.number(), v.text(), v.text()}});
    map->setRegions({{v.text(),
                      {{v.number(), v.number()}, {v.number(), v.number()}},
                      true,
                      v.text(),
                      v.id(),
                      v.id()}});
    map->setRoutes({{v.id(), v.id(), v.number()}});
    map->setTokens({{v.number(), v.number(), v.text(), v.text(), v.id()}});
    map->setGrid({v.below(2) == 0 ? MapGridKind::Square : MapGridKind::Hex, v.int32()});
    map->setTravelSettings({v.number(), v.text(), v.number()});
    add(std::move(map));

    auto media = std::make_unique<Media>(nextId(), v.text(), v.text());
    media->setCaption(v.text());
    media->setAnnotations(
        {{v.text(), v.number(), v.number(), v.number(), v.number(), v.text(), v.text()}});
    media->setCrop({v.number(), v.number(), v.number(), v.number()});
    add(std::move(media));
}

void Builder::addSheets()
{
    Values &v = m_values;
    auto sheet = std::make_unique<Spreadsheet>(nextId(), v.text());
    sheet->setGrid({v.int32(), v.int32(), {{{0, 2}, v.text()}, {{3, 1}, v.text()}, {{3, 2}, {}}}});
    CellFormat format;
    format.bold = format.italic = format.underline = format.strikeOut = true;
    format.fontFamily = v.text();
    format.fontPointSize = v.int32();
    format.textColor = v.text();
    format.backgroundColor = v.text();
    format.decimalPlaces = v.int32();
    CellFormats formats;
    for (int i = 1; i < 5; ++i) {
        format.alignment = CellAlignment(1 + i % 3);
        format.numberFormat = CellNumberFormat(i);
        formats[{i, v.below(100)}] = format;
    }
    sheet->setFormats(formats);
    sheet->setSizes({{{1, v.int32()}, {7, v.int32()}}, {{2, v.int32()}}});
    sheet->setLinkedCategoryId(v.id());
    add(std::move(sheet));

    add(std::make_unique<Chart>(
        nextId(), ChartData{v.text(),
                            v.text(),
                            v.texts(),
                            {{v.text(), {v.number(), 0, v.number()}}, {v.text(), {v.number()}}},
                            v.text(),
                            v.text()}));
    add(std::make_unique<RandomTable>(
        nextId(), RandomTableData{v.text(), {{v.text(), v.int32()}, {v.text(), 0}}}));
    add(std::make_unique<StatBlock>(
        nextId(),
        StatBlockData{
            v.text(), v.text(), v.text(), {{v.text(), v.text()}}, {{v.text(), v.text()}}}));
}

void Builder::addReference()
{
    Values &v = m_values;
    add(std::make_unique<Source>(nextId(), SourceData{v.text(), v.text(), v.text(), v.entries()}));
    auto task = std::make_unique<Task>(nextId(), v.text());
    task->setDescription(v.text());
    task->setDone(true);
    task->setBoard(v.text());
    task->setPriority(v.text());
    task->setDueDate(v.date());
    task->setStatus(v.text());
    task->setTargetId(v.id());
    task->setSortIndex(v.int32());
    task->setSubmission({v.text(), v.text(), v.date(), v.text()});
    add(std::move(task));
}

void Builder::setLists()
{
    Values &v = m_values;
    Project &project = *m_project;
    project.setPinned({v.id(), v.id()});
    project.setSavedSearches({{v.text(), v.text()}, {v.text(), v.text()}});
    project.setEntityTemplates({{v.text(), v.id(), v.entries()}, {v.text(), {}, v.entries()}});
    project.setAudiences(v.texts());
    project.setPlotThreads({{v.text(), v.text(), v.id(), v.text()}, {v.text(), v.text(), {}, {}}});
    project.setContinuityRules(
        {{v.text(), v.id(), v.text(), v.text(), RuleComparison::NotEquals, v.int64()},
         {v.text(), v.id(), v.text(), v.text(), RuleComparison::Equals, std::nullopt}});
    project.setBeatSheet({v.text(), {{v.id(), v.text()}, {v.id(), v.text()}}});
    project.setMounts({{v.text(), true}, {v.text(), false}});
    project.setWritingLog({{v.date(), v.int32()}, {v.date(), v.int32()}});
    project.setWritingGoal({v.int32(), v.int32(), v.date()});
}

Calendar Builder::calendar()
{
    Values &v = m_values;
    return {v.text(), {{v.text(), v.int32()}, {v.text(), 0}}, v.texts(), v.text()};
}

TimelineViewSettings Builder::viewSettings()
{
    Values &v = m_values;
    TimelineViewSettings settings;
    settings.colorBy = v.text();
    settings.groupBy = v.text();
    settings.density = v.text();
    settings.rowHeight = v.number();
    settings.eventSize = v.number();
    settings.showLabels = !settings.showLabels;
    settings.labelPlacement = v.text();
    settings.labelFormat = v.text();
    settings.showGridlines = !settings.showGridlines;
    settings.showDensityStrip = !settings.showDensityStrip;
    settings.showConflictMarks = !settings.showConflictMarks;
    settings.ordinalMode = !settings.ordinalMode;
    settings.seriesShape = v.text();
    settings.laneArrangements = {{v.text(), v.text(), true, true}};
    settings.seriesArrangements = {{v.text(), true}};
    return settings;
}

void Builder::setTimelineRecords()
{
    Values &v = m_values;
    Project &project = *m_project;
    project.setTimelineEras({{v.text(), v.text(), v.int64(), v.int64()}});
    project.setTimelineMarkers({{v.text(), v.int64(), true}, {v.text(), v.int64(), false}});
    project.setTimelineBookmarks({{v.text(), v.int64(), v.int64()}});
    project.setCalendar(calendar());
    project.setReckonings({{v.text(), v.int64(), calendar()}, {v.text(), v.int64(), calendar()}});
    project.setTimelineView(viewSettings());
    project.setTimelineViewPresets({{v.text(), viewSettings()}, {v.text(), viewSettings()}});
}

} // namespace

ContentId numberedId(quint32 number)
{
    // Spread by an odd factor, so that the ids do not stand in the order of their numbers.
    return ContentId(QUuid(number * 2654435761U, ushort(number), ushort(0x4000 | (number % 0xFFF)),
                           0x80, 1, 2, 3, 4, 5, 6, 7));
}

std::unique_ptr<Project> fullProject(quint32 seed)
{
    return Builder(seed).build();
}

} // namespace vl::test
