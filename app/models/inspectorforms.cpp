#include "app/models/inspectorforms.h"

#include "app/models/codexoperations.h"
#include "app/models/objectsummary.h"
#include "app/models/objecttexts.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/workcommands.h"
#include "core/commands/worldcommands.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace vl::app {

using core::ContentId;
using core::ContentKind;
using core::ContentObject;
using core::Document;
using core::Entity;
using core::StringSet;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::InspectorForms)
};

// --- values of the model as variants, and back

QVariant raw(const QString &text)
{
    return text;
}
QVariant raw(bool value)
{
    return value;
}
QVariant raw(qint32 number)
{
    return number;
}
QVariant raw(const std::optional<qint64> &instant)
{
    return instant ? QVariant(qlonglong(*instant)) : QVariant();
}
QVariant raw(const StringSet &texts)
{
    return QStringList(texts.begin(), texts.end());
}
QVariant raw(const QStringList &texts)
{
    return texts;
}

template<typename Value>
Value fromRaw(const QVariant &value)
{
    if constexpr (std::is_same_v<Value, std::optional<qint64>>)
        return value.isValid() ? std::optional<qint64>(value.toLongLong()) : std::nullopt;
    else
        return value.value<Value>();
}

/// The list of one object after the list that several share was edited: what was taken away goes,
/// what is new comes to the end, and what only this object has stays.
QStringList edited(QStringList own, const QVariant &value, const QVariant &before)
{
    QStringList now = value.toStringList();
    const QStringList shared = before.toStringList();
    if (own == shared)
        return now;
    own.removeIf([&](const QString &text) { return shared.contains(text) && !now.contains(text); });
    for (const QString &text : now)
        if (!own.contains(text))
            own.append(text);
    return own;
}

// --- accesses

template<auto Getter, typename SetCommand>
InspectorAccess member(InspectorField field)
{
    using Object = typename SetCommand::Object;
    using Value = typename SetCommand::Value;
    return {std::move(field),
            [](const ContentObject &object) {
                return raw((static_cast<const Object &>(object).*Getter)());
            },
            [](ContentObject &object, const QVariant &value,
               const QVariant &before) -> std::unique_ptr<core::Command> {
                auto &target = static_cast<Object &>(object);
                if constexpr (std::is_same_v<Value, StringSet>) {
                    const QStringList list =
                        edited(raw((target.*Getter)()).toStringList(), value, before);
                    return std::make_unique<SetCommand>(target,
                                                        StringSet(list.begin(), list.end()));
                } else if constexpr (std::is_same_v<Value, QStringList>) {
                    return std::make_unique<SetCommand>(target,
                                                        edited((target.*Getter)(), value, before));
                } else {
                    return std::make_unique<SetCommand>(target, fromRaw<Value>(value));
                }
            }};
}

/// A member of a record that is set as a whole.
template<typename Object, auto Member, typename SetCommand>
InspectorAccess part(InspectorField field)
{
    return {std::move(field),
            [](const ContentObject &object) {
                return raw(static_cast<const Object &>(object).data().*Member);
            },
            [](ContentObject &object, const QVariant &value,
               const QVariant &) -> std::unique_ptr<core::Command> {
                auto &target = static_cast<Object &>(object);
                auto data = target.data();
                data.*Member = fromRaw<std::remove_cvref_t<decltype(data.*Member)>>(value);
                return std::make_unique<SetCommand>(target, data);
            }};
}

template<auto Member>
InspectorAccess lifespanEnd(InspectorField field)
{
    return {std::move(field),
            [](const ContentObject &object) {
                return raw(static_cast<const Entity &>(object).lifespan().*Member);
            },
            [](ContentObject &object, const QVariant &value,
               const QVariant &) -> std::unique_ptr<core::Command> {
                auto &entity = static_cast<Entity &>(object);
                core::Lifespan lifespan = entity.lifespan();
                lifespan.*Member = fromRaw<std::optional<qint64>>(value);
                return std::make_unique<core::SetEntityLifespanCommand>(entity, lifespan);
            }};
}

InspectorAccess note(const QString &key, const QString &label, FieldEditing editing,
                     const QString &group = {})
{
    return {{key, label, editing, {}, {}, false, group},
            [](const ContentObject &) { return QVariant(); },
            nullptr};
}

QList<FieldOption> plainOptions(const QStringList &values)
{
    QList<FieldOption> options{{QString(), QString()}};
    for (const QString &value : values)
        options.append({value, value});
    return options;
}

// --- entities

FieldEditing editingOf(core::FieldType type)
{
    switch (type) {
    case core::FieldType::Text:
        return FieldEditing::Text;
    case core::FieldType::Number:
        return FieldEditing::Number;
    case core::FieldType::Boolean:
        return FieldEditing::YesNo;
    case core::FieldType::Date:
        return FieldEditing::Date;
    case core::FieldType::Reference:
        return FieldEditing::Reference;
    case core::FieldType::Choice:
        return FieldEditing::Choice;
    case core::FieldType::Url:
        break;
    }
    return FieldEditing::Url;
}

InspectorAccess codexField(const core::FieldDefinition &definition, const QString &group)
{
    InspectorField field{QStringLiteral("field:") + definition.key,
                         definition.label.isEmpty() ? definition.key : definition.label,
                         editingOf(definition.type),
                         definition.description,
                         {},
                         definition.required,
                         group};
    if (field.editing == FieldEditing::Choice)
        field.options = plainOptions(definition.options);
    const QString key = definition.key;
    return {field,
            [key](const ContentObject &object) {
                return static_cast<const Entity &>(object).value(key).value_or(QString());
            },
            [key](ContentObject &object, const QVariant &value,
                  const QVariant &) -> std::unique_ptr<core::Command> {
                return std::make_unique<core::SetFieldValueCommand>(static_cast<Entity &>(object),
                                                                    key, value.toString());
            }};
}

InspectorAccess categoryField(const core::Project &project)
{
    InspectorField field{
        QStringLiteral("category"), Texts::tr("Category"), FieldEditing::Choice, {}, {}, false, {}};
    field.options.append({QString(), Texts::tr("(none)")});
    for (const core::Taxonomy::Place &place : project.taxonomy().inTreeOrder())
        field.options.append(
            {place.category->id.toString(), categoryPathText(project, place.category->id)});
    return {field,
            [](const ContentObject &object) {
                const ContentId &id = static_cast<const Entity &>(object).categoryId();
                return QVariant(id.isNull() ? QString() : id.toString());
            },
            [](ContentObject &object, const QVariant &value,
               const QVariant &) -> std::unique_ptr<core::Command> {
                return std::make_unique<core::SetEntityCategoryCommand>(
                    static_cast<Entity &>(object), ContentId::fromString(value.toString()));
            }};
}

/// The fields that all of the entities have, in the order of the first one's.
QList<core::FieldDefinition> sharedFields(const core::Project &project,
                                          const QList<ContentObject *> &objects)
{
    QSet<ContentId> categories;
    for (const ContentObject *object : objects)
        categories.insert(static_cast<const Entity *>(object)->categoryId());
    QList<core::FieldDefinition> shared =
        codexFields(project, static_cast<const Entity *>(objects.first())->categoryId());
    for (const ContentId &category : std::as_const(categories)) {
        QHash<QString, core::FieldType> own;
        for (const core::FieldDefinition &field : codexFields(project, category))
            own.insert(field.key, field.type);
        shared.removeIf([&](const core::FieldDefinition &field) {
            return !own.contains(field.key) || own.value(field.key) != field.type;
        });
    }
    return shared;
}

void addEntityFields(QList<InspectorAccess> &form, const core::Project &project,
                     const QList<ContentObject *> &objects)
{
    using enum FieldEditing;
    form.append(member<&Entity::name, core::SetEntityNameCommand>(
        {QStringLiteral("name"), Texts::tr("Name"), Line, {}, {}, true, {}}));
    form.append(categoryField(project));
    form.append(member<&Entity::aliases, core::SetEntityAliasesCommand>(
        {QStringLiteral("aliases"),
         Texts::tr("Aliases"),
         Tokens,
         Texts::tr("Other names, under which the manuscript may speak of it."),
         {},
         false,
         {}}));

    const QString details = Texts::tr("Details");
    QSet<QString> known;
    for (const core::FieldDefinition &field : sharedFields(project, objects)) {
        form.append(codexField(field, details));
        known.insert(field.key);
    }
    if (objects.size() == 1) {
        for (const auto &[key, value] : static_cast<const Entity *>(objects.first())->values()) {
            if (known.contains(key) || value.isEmpty())
                continue;
            form.append(codexField({key,
                                    key,
                                    core::FieldType::Text,
                                    false,
                                    {},
                                    Texts::tr("Kept from before: the category has no such field.")},
                                   Texts::tr("Other values")));
        }
    }
    const QString life = Texts::tr("Life");
    form.append(lifespanEnd<&core::Lifespan::birthInstant>(
        {QStringLiteral("birth"), Texts::tr("Born or begun"), Instant, {}, {}, false, life}));
    form.append(lifespanEnd<&core::Lifespan::deathInstant>(
        {QStringLiteral("death"), Texts::tr("Died or ended"), Instant, {}, {}, false, life}));
    if (objects.size() == 1) {
        form.append(note(QStringLiteral("timed"), Texts::tr("State over time"), TimedValues, life));
        form.append(note(QStringLiteral("gallery"), Texts::tr("Pictures"), Pictures,
                         Texts::tr("Pictures")));
    }
}

// --- documents

void addDocumentFields(QList<InspectorAccess> &form, const core::Project &project)
{
    using enum FieldEditing;
    form.append(member<&Document::title, core::SetDocumentTitleCommand>(
        {QStringLiteral("title"), Texts::tr("Title"), Line, {}, {}, true, {}}));
    InspectorField kind{QStringLiteral("kind"), Texts::tr("Kind"), Choice, {}, {}, false, {}};
    kind.options = {{QStringLiteral("0"), Texts::tr("Prose")},
                    {QStringLiteral("1"), Texts::tr("Screenplay")},
                    {QStringLiteral("2"), Texts::tr("Note")}};
    form.append({kind,
                 [](const ContentObject &object) {
                     return QString::number(
                         int(static_cast<const Document &>(object).documentKind()));
                 },
                 [](ContentObject &object, const QVariant &value,
                    const QVariant &) -> std::unique_ptr<core::Command> {
                     return std::make_unique<core::SetDocumentKindCommand>(
                         static_cast<Document &>(object), core::DocumentKind(value.toInt()));
                 }});
    form.append(member<&Document::synopsis, core::SetDocumentSynopsisCommand>(
        {QStringLiteral("synopsis"), Texts::tr("Synopsis"), Text, {}, {}, false, {}}));
    form.append(member<&Document::status, core::SetDocumentStatusCommand>(
        {QStringLiteral("status"), Texts::tr("Status"), OpenChoice, {}, {}, false, {}}));
    form.append(member<&Document::pointOfView, core::SetDocumentPointOfViewCommand>(
        {QStringLiteral("pointOfView"),
         Texts::tr("Point of view"),
         OpenChoice,
         {},
         {},
         false,
         {}}));
    form.append(member<&Document::tensionLevel, core::SetDocumentTensionLevelCommand>(
        {QStringLiteral("tension"),
         Texts::tr("Tension"),
         Level,
         Texts::tr("0 stands for not set."),
         {},
         false,
         {}}));
    form.append(member<&Document::sceneInstant, core::SetDocumentSceneInstantCommand>(
        {QStringLiteral("sceneInstant"), Texts::tr("Scene date"), Instant, {}, {}, false, {}}));
    form.append(member<&Document::wordCountTarget, core::SetDocumentTargetCommand>(
        {QStringLiteral("target"), Texts::tr("Word-count target"), Target, {}, {}, false, {}}));
    if (!project.plotThreads().isEmpty())
        form.append(member<&Document::plotThreadIds, core::SetDocumentPlotThreadsCommand>(
            {QStringLiteral("threads"), Texts::tr("Plot threads"), Tokens, {}, {}, false, {}}));
}

// --- the other kinds

void addOtherFields(QList<InspectorAccess> &form, ContentKind kind)
{
    using enum FieldEditing;
    const auto text = [](const char *key, const QString &label, FieldEditing editing = Line) {
        return InspectorField{QLatin1String(key), label, editing, {}, {}, false, {}};
    };
    const InspectorField title = text("title", Texts::tr("Title"));
    const InspectorField description = text("description", Texts::tr("Description"), Text);
    switch (kind) {
    case ContentKind::Spreadsheet:
        form.append(member<&core::Spreadsheet::title, core::SetSpreadsheetTitleCommand>(title));
        break;
    case ContentKind::Chart:
        form.append(part<core::Chart, &core::ChartData::title, core::SetChartCommand>(title));
        break;
    case ContentKind::Map:
        form.append(member<&core::Map::title, core::SetMapTitleCommand>(title));
        break;
    case ContentKind::Timeline:
        form.append(member<&core::Timeline::title, core::SetTimelineTitleCommand>(title));
        break;
    case ContentKind::TimelineEvent: {
        using Event = core::TimelineEvent;
        using Data = core::TimelineEventData;
        using Set = core::SetTimelineEventCommand;
        form.append(part<Event, &Data::title, Set>(title));
        form.append(part<Event, &Data::description, Set>(description));
        form.append(part<Event, &Data::layer, Set>(text("layer", Texts::tr("Layer"))));
        break;
    }
    case ContentKind::Media:
        form.append(member<&core::Media::caption, core::SetMediaCaptionCommand>(
            text("title", Texts::tr("Caption"), Text)));
        break;
    case ContentKind::Source:
        form.append(part<core::Source, &core::SourceData::title, core::SetSourceCommand>(title));
        form.append(part<core::Source, &core::SourceData::citationKey, core::SetSourceCommand>(
            text("citationKey", Texts::tr("Citation key"))));
        break;
    case ContentKind::Task:
        form.append(member<&core::Task::title, core::SetTaskTitleCommand>(title));
        form.append(member<&core::Task::description, core::SetTaskDescriptionCommand>(description));
        form.append(member<&core::Task::status, core::SetTaskStatusCommand>(
            text("taskStatus", Texts::tr("Status"))));
        form.append(member<&core::Task::priority, core::SetTaskPriorityCommand>(
            text("priority", Texts::tr("Priority"))));
        break;
    case ContentKind::Canvas:
        form.append(member<&core::Canvas::title, core::SetCanvasTitleCommand>(title));
        break;
    case ContentKind::Comment:
        form.append(part<core::Comment, &core::CommentData::body, core::SetCommentCommand>(
            text("body", Texts::tr("Comment"), Text)));
        form.append(part<core::Comment, &core::CommentData::resolved, core::SetCommentCommand>(
            text("resolved", Texts::tr("Resolved"), Check)));
        break;
    case ContentKind::Language:
        form.append(
            part<core::Language, &core::LanguageData::name, core::SetLanguageCommand>(title));
        form.append(
            part<core::Language, &core::LanguageData::grammarNotes, core::SetLanguageCommand>(
                text("notes", Texts::tr("Grammar notes"), Text)));
        break;
    case ContentKind::RandomTable:
        form.append(
            part<core::RandomTable, &core::RandomTableData::title, core::SetRandomTableCommand>(
                title));
        break;
    case ContentKind::StatBlock:
        form.append(
            part<core::StatBlock, &core::StatBlockData::title, core::SetStatBlockCommand>(title));
        form.append(part<core::StatBlock, &core::StatBlockData::notes, core::SetStatBlockCommand>(
            text("notes", Texts::tr("Notes"), Text)));
        break;
    case ContentKind::Document:
    case ContentKind::Entity:
        break;
    }
}

void addCommonFields(QList<InspectorAccess> &form, const core::Project &project)
{
    using enum FieldEditing;
    const QString group = Texts::tr("Everywhere");
    form.append(member<&ContentObject::tags, core::SetObjectTagsCommand>(
        {QStringLiteral("tags"), Texts::tr("Tags"), Tokens, {}, {}, false, group}));
    if (!project.audiences().isEmpty())
        form.append(member<&ContentObject::visibleTo, core::SetObjectVisibilityCommand>(
            {QStringLiteral("visibleTo"),
             Texts::tr("Audiences"),
             Tokens,
             Texts::tr("Without any, everybody sees it."),
             {},
             false,
             group}));
    form.append(member<&ContentObject::isAiExcluded, core::SetAiExclusionCommand>(
        {QStringLiteral("aiExcluded"),
         Texts::tr("Withhold from AI services"),
         Check,
         {},
         {},
         false,
         group}));
}

} // namespace

QList<InspectorAccess> inspectorForm(core::Project &project, const QList<ContentObject *> &objects)
{
    QList<InspectorAccess> form;
    if (objects.isEmpty())
        return form;
    const ContentKind kind = objects.first()->kind();
    const bool isOneKind = std::all_of(objects.begin(), objects.end(),
                                       [&](const auto *object) { return object->kind() == kind; });
    if (isOneKind && kind == ContentKind::Entity)
        addEntityFields(form, project, objects);
    else if (isOneKind && kind == ContentKind::Document)
        addDocumentFields(form, project);
    else if (isOneKind)
        addOtherFields(form, kind);
    addCommonFields(form, project);
    if (objects.size() == 1 && kind != ContentKind::Entity && kind != ContentKind::Document
        && !summaryOf(project, *objects.first()).isEmpty())
        form.append(note(QStringLiteral("summary"), Texts::tr("Contents"), FieldEditing::Note,
                         Texts::tr("Contents")));
    return form;
}

} // namespace vl::app
