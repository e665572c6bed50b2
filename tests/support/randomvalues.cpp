#include "tests/support/randomvalues.h"

namespace vl::test {

using namespace vl::core;

void RandomValues::fill(QString &value)
{
    static const QStringList pieces = {
        QString(),
        QStringLiteral("The sea"),
        QStringLiteral("a\nb\r\nc"),
        QStringLiteral("%1 \"quoted\" \\ {x}"),
        QStringLiteral("é ß 漢字 \U0001F600"),
        QStringLiteral("name"),
    };
    value = pieces.at(below(int(pieces.size())));
    if (oneIn(2))
        value += QString::number(below(50));
}

namespace {

std::unique_ptr<ContentObject> randomDocument(RandomValues &random, const ContentId &id,
                                              const QList<ContentId> &parents)
{
    auto document =
        std::make_unique<Document>(id, random.make<DocumentKind>(), random.make<QString>());
    document->setBody(random.make<QString>());
    document->setSynopsis(random.make<QString>());
    document->setSceneInstant(random.make<std::optional<qint64>>());
    document->setFootnotes(random.make<QList<Footnote>>());
    document->setVersions(random.make<QList<DocumentVersion>>());
    document->setVariants(random.make<DocumentVariants>());
    document->setSortIndex(random.below(4));
    if (!parents.isEmpty())
        document->setParentId(parents.at(random.below(int(parents.size()))));
    return document;
}

std::unique_ptr<ContentObject> randomSpreadsheet(RandomValues &random, const ContentId &id)
{
    auto sheet = std::make_unique<Spreadsheet>(id, random.make<QString>());
    sheet->setGrid(random.make<SpreadsheetGrid>());
    sheet->setFormats(random.make<CellFormats>());
    sheet->setSizes(random.make<SpreadsheetSizes>());
    return sheet;
}

std::unique_ptr<ContentObject> randomMap(RandomValues &random, const ContentId &id)
{
    auto map = std::make_unique<Map>(id, random.make<QString>());
    map->setPins(random.make<QList<MapPin>>());
    map->setRegions(random.make<QList<MapRegion>>());
    map->setRoutes(random.make<QList<MapRoute>>());
    map->setTokens(random.make<QList<MapToken>>());
    map->setGrid(random.make<MapGrid>());
    return map;
}

std::unique_ptr<ContentObject> randomTask(RandomValues &random, const ContentId &id)
{
    auto task = std::make_unique<Task>(id, random.make<QString>());
    task->setSubmission(random.make<TaskSubmission>());
    task->setDueDate(random.make<QDate>());
    task->setSortIndex(random.below(4));
    if (random.oneIn(4))
        task->setBoard(QStringLiteral("Submissions"));
    return task;
}

std::unique_ptr<ContentObject> randomCanvas(RandomValues &random, const ContentId &id)
{
    auto canvas = std::make_unique<Canvas>(id, random.make<QString>());
    canvas->setCards(random.make<QList<CanvasCard>>());
    canvas->setConnections(random.make<QList<CanvasConnection>>());
    return canvas;
}

std::unique_ptr<ContentObject> randomMedia(RandomValues &random, const ContentId &id)
{
    auto media = std::make_unique<Media>(id, random.make<QString>(), random.make<QString>());
    media->setAnnotations(random.make<QList<MediaAnnotation>>());
    return media;
}

std::unique_ptr<ContentObject> ofKind(RandomValues &random, ContentKind kind, const ContentId &id,
                                      const QList<ContentId> &parents)
{
    switch (kind) {
    case ContentKind::Document:
        return randomDocument(random, id, parents);
    case ContentKind::Entity: {
        auto entity =
            std::make_unique<Entity>(id, random.make<ContentId>(), random.make<QString>());
        entity->setValues(random.make<FieldValues>());
        return entity;
    }
    case ContentKind::Spreadsheet:
        return randomSpreadsheet(random, id);
    case ContentKind::Chart:
        return std::make_unique<Chart>(id, random.make<ChartData>());
    case ContentKind::Map:
        return randomMap(random, id);
    case ContentKind::Timeline:
        return std::make_unique<Timeline>(id, random.make<QString>());
    case ContentKind::TimelineEvent:
        return std::make_unique<TimelineEvent>(id, random.make<TimelineEventData>());
    case ContentKind::Media:
        return randomMedia(random, id);
    case ContentKind::Source:
        return std::make_unique<Source>(id, random.make<SourceData>());
    case ContentKind::Task:
        return randomTask(random, id);
    case ContentKind::Canvas:
        return randomCanvas(random, id);
    case ContentKind::Comment: {
        auto comment = std::make_unique<Comment>(id, random.make<ContentId>());
        comment->setData(random.make<CommentData>());
        return comment;
    }
    case ContentKind::Language:
        return std::make_unique<Language>(id, random.make<LanguageData>());
    case ContentKind::RandomTable:
        return std::make_unique<RandomTable>(id, random.make<RandomTableData>());
    case ContentKind::StatBlock:
        return std::make_unique<StatBlock>(id, random.make<StatBlockData>());
    }
    return nullptr;
}

} // namespace

std::unique_ptr<ContentObject> randomObject(RandomValues &random, ContentKind kind,
                                            const QList<ContentId> &parents)
{
    std::unique_ptr<ContentObject> object = ofKind(random, kind, random.newId(), parents);
    if (random.oneIn(4)) {
        object->setTags(random.make<StringSet>());
        object->setVisibleTo(random.make<StringSet>());
        object->setAiExcluded(random.make<bool>());
    }
    return object;
}

void fillRandomly(Project &project, RandomValues &random)
{
    QList<ContentId> parents{ContentId()};
    for (int round = 0; round < 2; ++round)
        for (int kind = 0; kind < int(contentKindTexts.size()); ++kind) {
            auto object = randomObject(random, ContentKind(kind), parents);
            if (object->kind() == ContentKind::Document)
                parents.append(object->id());
            project.add(std::move(object));
        }
    QList<ContentId> above{ContentId()};
    for (int i = 0; i < 4; ++i) {
        auto category = random.make<Category>();
        category.id = random.newId();
        category.parentId = above.at(random.below(int(above.size())));
        for (qsizetype f = 0; f < category.fields.size(); ++f)
            category.fields[f].key = QStringLiteral("field%1").arg(f);
        project.editTaxonomy().add(category);
        above.append(category.id);
    }
    project.setPinned(random.make<std::set<ContentId>>());
    project.setSavedSearches(random.make<QList<SavedSearch>>());
    project.setEntityTemplates(random.make<QList<EntityTemplate>>());
    project.setAudiences(random.make<QStringList>());
    project.setPlotThreads(random.make<QList<PlotThread>>());
    project.setContinuityRules(random.make<QList<ContinuityRule>>());
    project.setTimelineEras(random.make<QList<TimelineEra>>());
    project.setTimelineMarkers(random.make<QList<TimelineMarker>>());
    project.setTimelineBookmarks(random.make<QList<TimelineBookmark>>());
    project.setBeatSheet(random.make<BeatSheet>());
    project.setMounts(random.make<QList<LibraryMount>>());
    project.setWritingLog(random.make<WritingLog>());
    project.setWritingGoal(random.make<WritingGoal>());
    project.setCalendar(random.make<Calendar>());
    project.setReckonings(random.make<QList<Reckoning>>());
    project.setTimelineView(random.make<TimelineViewSettings>());
    project.setTimelineViewPresets(random.make<QList<TimelineViewPreset>>());
}

} // namespace vl::test
