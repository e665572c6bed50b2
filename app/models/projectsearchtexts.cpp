#include "app/models/projectsearchtexts.h"

#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/projectcommands.h"
#include "core/commands/workcommands.h"
#include "core/commands/worldcommands.h"
#include "core/project.h"

#include <algorithm>

namespace vl::app {

using namespace core;

namespace {

using Scope = SearchScope;
using Field = TextField;

// One walk over the texts of each kind serves both ways. It names each editable part (a field, or
// a record or list that one command sets whole), how to set it, and the texts in it. Collecting
// reads the part where it is; replacing works on a copy and makes the command for it.

class Collector
{
public:
    Collector(std::vector<SearchText> &list, const SearchTarget &target, SearchScopes scopes,
              bool wantsEmpty)
        : m_list(list)
        , m_target(target)
        , m_scopes(scopes)
        , m_wantsEmpty(wantsEmpty)
    {
    }

    template<typename Value, typename Make, typename Visit>
    void part(const Value &value, Make, Visit visit)
    {
        visit(value, *this);
    }
    void operator()(const QString &text, Field field, Scope scope, const QString &detail = {},
                    bool isReplaceable = true)
    {
        const int number = m_number++;
        if (m_wantsEmpty || (m_scopes.testFlag(scope) && !text.isEmpty()))
            m_list.push_back({m_target, number, field, scope, detail, text, isReplaceable});
    }

private:
    std::vector<SearchText> &m_list;
    SearchTarget m_target;
    SearchScopes m_scopes;
    bool m_wantsEmpty;
    int m_number = 0;
};

class Replacer
{
public:
    explicit Replacer(const std::map<int, QString> &texts)
        : m_texts(texts)
    {
    }

    template<typename Value, typename Make, typename Visit>
    void part(const Value &value, Make make, Visit visit)
    {
        Value copy = value;
        m_changes = false;
        visit(copy, *this);
        if (m_changes)
            commands.push_back(make(copy));
    }
    void operator()(QString &text, Field, Scope, const QString & = {}, bool isReplaceable = true)
    {
        const auto found = m_texts.find(m_number++);
        if (found == m_texts.end() || !isReplaceable || found->second == text)
            return;
        text = found->second;
        m_changes = true;
    }

    std::vector<std::unique_ptr<Command>> commands;

private:
    const std::map<int, QString> &m_texts;
    int m_number = 0;
    bool m_changes = false;
};

/// Makes the command of a part from its new value.
template<typename C, typename Object>
auto with(Object &object)
{
    return [&object](const auto &value) -> std::unique_ptr<Command> {
        return std::make_unique<C>(object, value);
    };
}

/// For parts that no command sets; nothing in them is replaceable.
constexpr auto unset = [](const auto &) -> std::unique_ptr<Command> {
    Q_UNREACHABLE();
    return nullptr;
};

/// Visits a part that is one text.
auto single(Field field, Scope scope, bool isReplaceable = true)
{
    return [=](auto &value, auto &text) { text(value, field, scope, {}, isReplaceable); };
}

template<typename Sink>
void walk(Sink &sink, Project &, Document &document)
{
    const Scope scope =
        document.documentKind() == DocumentKind::Note ? Scope::Notes : Scope::Manuscript;
    sink.part(document.title(), with<SetDocumentTitleCommand>(document),
              single(Field::Title, scope));
    sink.part(document.body(), with<SetDocumentBodyCommand>(document), single(Field::Body, scope));
    sink.part(document.footnotes(), with<SetDocumentFootnotesCommand>(document),
              [scope](auto &footnotes, auto &text) {
                  for (auto &footnote : footnotes)
                      text(footnote.text, Field::Footnote, scope);
              });
    sink.part(document.variants(), with<SetDocumentVariantsCommand>(document),
              [scope](auto &variants, auto &text) {
                  for (auto &variant : variants.variants)
                      text(variant.body, Field::Variant, scope, variant.name);
              });
    sink.part(document.synopsis(), with<SetDocumentSynopsisCommand>(document),
              single(Field::Synopsis, Scope::Synopses));
    sink.part(document.status(), with<SetDocumentStatusCommand>(document),
              single(Field::Status, Scope::Synopses));
    sink.part(document.pointOfView(), with<SetDocumentPointOfViewCommand>(document),
              single(Field::PointOfView, Scope::Synopses));
}

/// The definition of a field in the entity's category or in one above it.
const FieldDefinition *definitionOf(const Taxonomy &taxonomy, const ContentId &categoryId,
                                    const QString &key)
{
    constexpr int deepest = 64; // parents in a circle end somewhere
    const Category *category = taxonomy.find(categoryId);
    for (int depth = 0; category && depth < deepest; ++depth) {
        for (const FieldDefinition &field : category->fields)
            if (field.key == key)
                return &field;
        category = taxonomy.find(category->parentId);
    }
    return nullptr;
}

/// Passes the value of an entity's field on, unless it is no text: ids and flags are not searched,
/// and what must keep its form is not replaced.
template<typename String, typename Text>
void fieldText(const Project &project, const Entity &entity, const QString &key, String &value,
               Text &text)
{
    const FieldDefinition *field = definitionOf(project.taxonomy(), entity.categoryId(), key);
    const FieldType type = field ? field->type : FieldType::Text;
    if (type == FieldType::Reference || type == FieldType::Boolean)
        return;
    const QString label = field && !field->label.isEmpty() ? field->label : key;
    text(value, Field::Value, Scope::Codex, label, type == FieldType::Text);
}

template<typename Sink>
void walk(Sink &sink, Project &project, Entity &entity)
{
    sink.part(entity.name(), with<SetEntityNameCommand>(entity), single(Field::Name, Scope::Codex));
    sink.part(entity.aliases(), with<SetEntityAliasesCommand>(entity),
              [](auto &aliases, auto &text) {
                  for (auto &alias : aliases)
                      text(alias, Field::Alias, Scope::Codex);
              });
    for (const auto &[key, value] : entity.values()) {
        const QString &name = key;
        sink.part(
            value,
            [&entity, &name](const QString &changed) -> std::unique_ptr<Command> {
                return std::make_unique<SetFieldValueCommand>(entity, name, changed);
            },
            [&](auto &text, auto &sinkText) { fieldText(project, entity, name, text, sinkText); });
    }
    sink.part(entity.timedValues(), with<SetEntityTimedValuesCommand>(entity),
              [&](auto &values, auto &text) {
                  for (auto &timed : values)
                      fieldText(project, entity, timed.key, timed.value, text);
              });
}

template<typename Sink>
void walk(Sink &sink, Project &, Comment &comment)
{
    sink.part(comment.data(), with<SetCommentCommand>(comment), [](auto &data, auto &text) {
        text(data.body, Field::Comment, Scope::Comments, data.author);
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, Timeline &timeline)
{
    sink.part(timeline.title(), with<SetTimelineTitleCommand>(timeline),
              single(Field::Title, Scope::Timeline));
    sink.part(timeline.description(), unset, single(Field::Description, Scope::Timeline, false));
}

template<typename Sink>
void walk(Sink &sink, Project &, TimelineEvent &event)
{
    sink.part(event.data(), with<SetTimelineEventCommand>(event), [](auto &data, auto &text) {
        text(data.title, Field::Title, Scope::Timeline);
        text(data.description, Field::Description, Scope::Timeline);
        text(data.styleLabel, Field::Label, Scope::Timeline);
        text(data.layer, Field::Other, Scope::Timeline, {}, false); // events share its name
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, Task &task)
{
    sink.part(task.title(), with<SetTaskTitleCommand>(task), single(Field::Title, Scope::Others));
    sink.part(task.description(), with<SetTaskDescriptionCommand>(task),
              single(Field::Description, Scope::Others));
    sink.part(task.submission(), with<SetTaskSubmissionCommand>(task),
              [](auto &submission, auto &text) {
                  text(submission.recipient, Field::Other, Scope::Others);
                  text(submission.notes, Field::Note, Scope::Others);
              });
}

template<typename Sink>
void walk(Sink &sink, Project &, Source &source)
{
    sink.part(source.data(), with<SetSourceCommand>(source), [](auto &data, auto &text) {
        text(data.title, Field::Title, Scope::Others);
        text(data.citationKey, Field::Other, Scope::Others, {}, false); // what texts refer to
        for (auto &[key, value] : data.fields)
            text(value, Field::Value, Scope::Others, key);
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, Map &map)
{
    sink.part(map.title(), with<SetMapTitleCommand>(map), single(Field::Title, Scope::Others));
    sink.part(map.pins(), with<SetMapPinsCommand>(map), [](auto &pins, auto &text) {
        for (auto &pin : pins) {
            text(pin.label, Field::Label, Scope::Others);
            text(pin.note, Field::Note, Scope::Others, pin.label);
        }
    });
    sink.part(map.regions(), with<SetMapRegionsCommand>(map), [](auto &regions, auto &text) {
        for (auto &region : regions)
            text(region.label, Field::Label, Scope::Others);
    });
    sink.part(map.tokens(), with<SetMapTokensCommand>(map), [](auto &tokens, auto &text) {
        for (auto &token : tokens)
            text(token.label, Field::Label, Scope::Others);
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, Canvas &canvas)
{
    sink.part(canvas.title(), with<SetCanvasTitleCommand>(canvas),
              single(Field::Title, Scope::Others));
}

template<typename Sink>
void walk(Sink &sink, Project &, Media &media)
{
    sink.part(media.caption(), with<SetMediaCaptionCommand>(media),
              single(Field::Caption, Scope::Others));
    sink.part(media.annotations(), unset, [](auto &annotations, auto &text) {
        for (auto &annotation : annotations)
            text(annotation.text, Field::Note, Scope::Others, {}, false);
    });
}

/// The name of a cell as sheets show it: "A1", "AB12".
QString cellName(const CellPosition &position)
{
    QString column;
    for (qint64 rest = position.column; rest >= 0; rest = rest / 26 - 1)
        column.prepend(QChar(char16_t(u'A' + rest % 26)));
    return column + QString::number(qint64(position.row) + 1);
}

template<typename Sink>
void walk(Sink &sink, Project &, Spreadsheet &sheet)
{
    sink.part(sheet.title(), with<SetSpreadsheetTitleCommand>(sheet),
              single(Field::Title, Scope::Others));
    sink.part(sheet.grid(), with<SetSpreadsheetGridCommand>(sheet), [](auto &grid, auto &text) {
        for (auto &[position, cell] : grid.cells)
            text(cell, Field::Cell, Scope::Others, cellName(position));
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, Chart &chart)
{
    sink.part(chart.data(), with<SetChartCommand>(chart), [](auto &data, auto &text) {
        text(data.title, Field::Title, Scope::Others);
        for (auto &category : data.categories)
            text(category, Field::Label, Scope::Others);
        for (auto &series : data.series)
            text(series.name, Field::Label, Scope::Others);
        text(data.valueAxisTitle, Field::Label, Scope::Others);
        text(data.categoryAxisTitle, Field::Label, Scope::Others);
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, Language &language)
{
    sink.part(language.data(), with<SetLanguageCommand>(language), [](auto &data, auto &text) {
        text(data.name, Field::Name, Scope::Others);
        text(data.grammarNotes, Field::Note, Scope::Others);
        for (auto &entry : data.lexicon) {
            text(entry.word, Field::Entry, Scope::Others);
            text(entry.gloss, Field::Entry, Scope::Others, entry.word);
            text(entry.notes, Field::Note, Scope::Others, entry.word);
        }
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, RandomTable &table)
{
    sink.part(table.data(), with<SetRandomTableCommand>(table), [](auto &data, auto &text) {
        text(data.title, Field::Title, Scope::Others);
        for (auto &entry : data.entries)
            text(entry.text, Field::Entry, Scope::Others);
    });
}

template<typename Sink>
void walk(Sink &sink, Project &, StatBlock &block)
{
    sink.part(block.data(), with<SetStatBlockCommand>(block), [](auto &data, auto &text) {
        text(data.title, Field::Title, Scope::Others);
        text(data.notes, Field::Note, Scope::Others);
        for (auto &stat : data.stats) {
            text(stat.label, Field::Label, Scope::Others);
            text(stat.value, Field::Entry, Scope::Others, stat.label);
        }
        for (auto &action : data.actions) {
            text(action.name, Field::Label, Scope::Others);
            text(action.text, Field::Entry, Scope::Others, action.name);
        }
    });
}

template<typename Sink>
void walkCategory(Sink &sink, Project &project, const Category &category)
{
    sink.part(
        category.name,
        [&](const QString &name) -> std::unique_ptr<Command> {
            return std::make_unique<RenameCategoryCommand>(project, category.id, name);
        },
        single(Field::Name, Scope::Codex));
}

template<typename Sink>
void walkRecord(Sink &sink, Project &project, SearchTarget::Kind kind)
{
    const auto names = [](auto &list, auto &text) {
        for (auto &item : list)
            text(item.name, Field::Name, Scope::Timeline);
    };
    switch (kind) {
    case SearchTarget::Kind::Eras:
        sink.part(project.timelineEras(), with<SetTimelineErasCommand>(project), names);
        break;
    case SearchTarget::Kind::Markers:
        sink.part(project.timelineMarkers(), with<SetTimelineMarkersCommand>(project), names);
        break;
    case SearchTarget::Kind::PlotThreads:
        sink.part(project.plotThreads(), with<SetPlotThreadsCommand>(project),
                  [](auto &threads, auto &text) {
                      for (auto &thread : threads) {
                          // Documents name their threads: a name is changed where those follow.
                          text(thread.name, Field::Name, Scope::Others, {}, false);
                          text(thread.description, Field::Description, Scope::Others, thread.name);
                      }
                  });
        break;
    case SearchTarget::Kind::Object:
    case SearchTarget::Kind::Category:
        break;
    }
}

template<typename Sink>
void walkObject(Sink &sink, Project &project, ContentObject &object)
{
    const auto as = [&]<typename T>(T *typed) { walk(sink, project, *typed); };
    switch (object.kind()) {
    case ContentKind::Document:
        return as(contentCast<Document>(&object));
    case ContentKind::Entity:
        return as(contentCast<Entity>(&object));
    case ContentKind::Spreadsheet:
        return as(contentCast<Spreadsheet>(&object));
    case ContentKind::Chart:
        return as(contentCast<Chart>(&object));
    case ContentKind::Map:
        return as(contentCast<Map>(&object));
    case ContentKind::Timeline:
        return as(contentCast<Timeline>(&object));
    case ContentKind::TimelineEvent:
        return as(contentCast<TimelineEvent>(&object));
    case ContentKind::Media:
        return as(contentCast<Media>(&object));
    case ContentKind::Source:
        return as(contentCast<Source>(&object));
    case ContentKind::Task:
        return as(contentCast<Task>(&object));
    case ContentKind::Canvas:
        return as(contentCast<Canvas>(&object));
    case ContentKind::Comment:
        return as(contentCast<Comment>(&object));
    case ContentKind::Language:
        return as(contentCast<Language>(&object));
    case ContentKind::RandomTable:
        return as(contentCast<RandomTable>(&object));
    case ContentKind::StatBlock:
        return as(contentCast<StatBlock>(&object));
    }
}

template<typename Sink>
void walkTarget(Sink &sink, Project &project, const SearchTarget &target)
{
    if (target.kind == SearchTarget::Kind::Object) {
        if (ContentObject *object = project.find(target.id))
            walkObject(sink, project, *object);
    } else if (target.kind == SearchTarget::Kind::Category) {
        if (const Category *category = project.taxonomy().find(target.id))
            walkCategory(sink, project, *category);
    } else {
        walkRecord(sink, project, target.kind);
    }
}

/// Entities by category and name, as the codex shows them.
std::vector<Entity *> entitiesInOrder(const Project &project)
{
    std::map<ContentId, int> ranks;
    for (const auto &place : project.taxonomy().inTreeOrder())
        ranks.emplace(place.category->id, int(ranks.size()));
    struct Ranked
    {
        int rank;
        Entity *entity;
    };
    std::vector<Ranked> ranked;
    for (Entity *entity : project.all<Entity>()) {
        const auto rank = ranks.find(entity->categoryId());
        ranked.push_back({rank == ranks.end() ? int(ranks.size()) : rank->second, entity});
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const Ranked &a, const Ranked &b) {
        return a.rank != b.rank
                   ? a.rank < b.rank
                   : a.entity->name().compare(b.entity->name(), Qt::CaseInsensitive) < 0;
    });
    std::vector<Entity *> entities;
    for (const Ranked &each : ranked)
        entities.push_back(each.entity);
    return entities;
}

} // namespace

std::vector<SearchText> searchTexts(const Project &project, SearchScopes scopes)
{
    std::vector<SearchText> list;
    // The walk serves the replacing too; nothing is changed through a collector.
    auto &walked = const_cast<Project &>(project); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    const auto collect = [&](const SearchTarget &target) {
        Collector sink(list, target, scopes, false);
        walkTarget(sink, walked, target);
    };
    using Kind = SearchTarget::Kind;
    for (const auto &place : project.documentTree().inOrder())
        collect({Kind::Object, place.document->id()});
    for (const auto &place : project.taxonomy().inTreeOrder())
        collect({Kind::Category, place.category->id});
    for (const Entity *entity : entitiesInOrder(project))
        collect({Kind::Object, entity->id()});
    for (const Kind kind : {Kind::Eras, Kind::Markers, Kind::PlotThreads})
        collect({kind, {}});
    for (const auto &[id, object] : project.objects())
        if (object->kind() != ContentKind::Document && object->kind() != ContentKind::Entity)
            collect({Kind::Object, id});
    return list;
}

std::vector<SearchText> textsOf(Project &project, const SearchTarget &target)
{
    std::vector<SearchText> list;
    Collector sink(list, target, everywhere, true);
    walkTarget(sink, project, target);
    return list;
}

std::vector<std::unique_ptr<Command>> replacementCommands(Project &project,
                                                          const SearchTarget &target,
                                                          const std::map<int, QString> &newTexts)
{
    Replacer sink(newTexts);
    walkTarget(sink, project, target);
    return std::move(sink.commands);
}

} // namespace vl::app
