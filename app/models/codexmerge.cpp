#include "app/models/codexmerge.h"

#include "app/models/codexoperations.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/commands/codexcommands.h"
#include "core/commands/compositecommand.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "core/commands/workcommands.h"
#include "core/commands/worldcommands.h"

#include <algorithm>

namespace vl::app {

using core::ContentId;
using core::Entity;

namespace {

/// Puts the target in the place of the source; whether the id was the source.
bool repoint(ContentId &id, const ContentId &source, const ContentId &target)
{
    if (id != source)
        return false;
    id = target;
    return true;
}

bool repoint(QList<ContentId> &ids, const ContentId &source, const ContentId &target)
{
    const qsizetype place = ids.indexOf(source);
    if (place < 0)
        return false;
    if (ids.contains(target))
        ids.removeAll(source);
    else
        ids[place] = target;
    return true;
}

} // namespace

Entity *CodexMerge::entity(const ContentId &id) const
{
    return m_workspace.project().find<Entity>(id);
}

QString CodexMerge::shown(const QString &value) const
{
    const core::ContentObject *object = m_workspace.project().find(ContentId::fromString(value));
    return rowText(object ? titleOf(*object) : value);
}

void CodexMerge::pushAll(const QString &label, Commands commands)
{
    auto step = std::make_unique<core::CompositeCommand>(label);
    for (auto &command : commands)
        step->append(std::move(command));
    m_workspace.push(std::move(step));
}

QList<MergeConflict> CodexMerge::conflicts(const ContentId &source, const ContentId &target) const
{
    QList<MergeConflict> list;
    const Entity *from = entity(source);
    const Entity *into = entity(target);
    if (!from || !into || from == into)
        return list;
    QHash<QString, QString> labels;
    for (const Entity *one : {from, into})
        for (const core::FieldDefinition &field :
             codexFields(m_workspace.project(), one->categoryId()))
            labels.insert(field.key, field.label);
    for (const auto &[key, value] : from->values()) {
        const QString kept = into->value(key).value_or(QString());
        if (!value.isEmpty() && !kept.isEmpty() && kept != value)
            list.append({key, labels.value(key, key), shown(kept), shown(value)});
    }
    return list;
}

void CodexMerge::merge(const ContentId &source, const ContentId &target,
                       const QSet<QString> &takenKeys)
{
    const Entity *from = entity(source);
    Entity *into = entity(target);
    if (!from || !into || from == into)
        return;
    core::Project &project = m_workspace.project();
    Commands commands;
    combine(*from, *into, takenKeys, commands);
    repointEntities(*from, *into, commands);
    repointObjects(*from, *into, commands);
    repointMaps(*from, *into, commands);
    repointCanvases(*from, *into, commands);
    repointRecords(*from, *into, commands);
    if (project.isPinned(source)) {
        commands.push_back(std::make_unique<core::SetPinnedCommand>(project, source, false));
        commands.push_back(std::make_unique<core::SetPinnedCommand>(project, target, true));
    }
    commands.push_back(std::make_unique<core::RemoveObjectCommand>(project, source));
    pushAll(tr("Merge entities"), std::move(commands));
}

void CodexMerge::combine(const Entity &source, Entity &target, const QSet<QString> &takenKeys,
                         Commands &commands) const
{
    for (const auto &[key, value] : source.values())
        if (!value.isEmpty() && value != source.id().toString()
            && (target.value(key).value_or(QString()).isEmpty() || takenKeys.contains(key)))
            commands.push_back(std::make_unique<core::SetFieldValueCommand>(target, key, value));

    QStringList aliases = target.aliases();
    for (const QString &name : QStringList{source.name()} + source.aliases())
        if (!name.isEmpty() && name != target.name() && !aliases.contains(name))
            aliases.append(name);
    if (aliases != target.aliases())
        commands.push_back(std::make_unique<core::SetEntityAliasesCommand>(target, aliases));

    core::StringSet tags = target.tags();
    tags.insert(source.tags().begin(), source.tags().end());
    if (tags != target.tags())
        commands.push_back(std::make_unique<core::SetObjectTagsCommand>(target, tags));

    QList<ContentId> gallery = target.gallery();
    for (const ContentId &id : source.gallery())
        if (!gallery.contains(id))
            gallery.append(id);
    if (gallery != target.gallery())
        commands.push_back(std::make_unique<core::SetEntityGalleryCommand>(target, gallery));

    core::Lifespan life = target.lifespan();
    if (!life.birthInstant)
        life.birthInstant = source.lifespan().birthInstant;
    if (!life.deathInstant)
        life.deathInstant = source.lifespan().deathInstant;
    if (life != target.lifespan())
        commands.push_back(std::make_unique<core::SetEntityLifespanCommand>(target, life));

    // Nothing that was withheld comes to light by a merge.
    core::StringSet audiences =
        target.visibleTo().empty() ? source.visibleTo() : target.visibleTo();
    if (!source.visibleTo().empty()) {
        core::StringSet both = audiences;
        std::erase_if(both,
                      [&](const QString &name) { return !source.visibleTo().contains(name); });
        if (!both.empty())
            audiences = both;
    }
    if (audiences != target.visibleTo())
        commands.push_back(std::make_unique<core::SetObjectVisibilityCommand>(target, audiences));
    if (source.isAiExcluded() && !target.isAiExcluded())
        commands.push_back(std::make_unique<core::SetAiExclusionCommand>(target, true));
}

void CodexMerge::repointEntities(const Entity &source, const Entity &target,
                                 Commands &commands) const
{
    const QString before = source.id().toString();
    const QString after = target.id().toString();
    for (Entity *other : m_workspace.project().all<Entity>()) {
        if (other == &source)
            continue;
        for (const auto &[key, value] : other->values())
            if (value == before)
                commands.push_back(
                    std::make_unique<core::SetFieldValueCommand>(*other, key, after));
        QList<core::TimedValue> timed = other->timedValues();
        if (other == &target)
            timed += source.timedValues();
        for (core::TimedValue &row : timed)
            if (row.value == before)
                row.value = after;
        if (timed != other->timedValues())
            commands.push_back(std::make_unique<core::SetEntityTimedValuesCommand>(*other, timed));
    }
}

void CodexMerge::repointObjects(const Entity &source, const Entity &target,
                                Commands &commands) const
{
    const core::Project &project = m_workspace.project();
    for (core::TimelineEvent *event : project.all<core::TimelineEvent>()) {
        core::TimelineEventData data = event->data();
        const bool participates = repoint(data.participants, source.id(), target.id());
        if (repoint(data.locationId, source.id(), target.id()) || participates)
            commands.push_back(std::make_unique<core::SetTimelineEventCommand>(*event, data));
    }
    for (core::Task *task : project.all<core::Task>())
        if (task->targetId() == source.id())
            commands.push_back(std::make_unique<core::SetTaskTargetCommand>(*task, target.id()));
    for (core::Comment *comment : project.all<core::Comment>())
        if (comment->targetId() == source.id())
            commands.push_back(
                std::make_unique<core::SetCommentTargetCommand>(*comment, target.id()));
    if (source.name().isEmpty() || source.name() == target.name())
        return;
    for (core::Document *document : project.all<core::Document>())
        if (document->pointOfView() == source.name())
            commands.push_back(
                std::make_unique<core::SetDocumentPointOfViewCommand>(*document, target.name()));
}

void CodexMerge::repointMaps(const Entity &source, const Entity &target, Commands &commands) const
{
    for (core::Map *map : m_workspace.project().all<core::Map>()) {
        QList<core::MapRegion> regions = map->regions();
        for (core::MapRegion &region : regions)
            repoint(region.linkedEntityId, source.id(), target.id());
        if (regions != map->regions())
            commands.push_back(std::make_unique<core::SetMapRegionsCommand>(*map, regions));
        QList<core::MapRoute> routes = map->routes();
        for (core::MapRoute &route : routes) {
            repoint(route.fromEntityId, source.id(), target.id());
            repoint(route.toEntityId, source.id(), target.id());
        }
        if (routes != map->routes())
            commands.push_back(std::make_unique<core::SetMapRoutesCommand>(*map, routes));
        QList<core::MapToken> tokens = map->tokens();
        for (core::MapToken &token : tokens)
            repoint(token.linkedEntityId, source.id(), target.id());
        if (tokens != map->tokens())
            commands.push_back(std::make_unique<core::SetMapTokensCommand>(*map, tokens));
    }
}

void CodexMerge::repointCanvases(const Entity &source, const Entity &target,
                                 Commands &commands) const
{
    for (core::Canvas *canvas : m_workspace.project().all<core::Canvas>()) {
        const auto cardOf = [&](const ContentId &id) {
            return std::find_if(canvas->cards().cbegin(), canvas->cards().cend(),
                                [&](const core::CanvasCard &card) { return card.objectId == id; });
        };
        const auto card = cardOf(source.id());
        if (card == canvas->cards().cend())
            continue;
        if (cardOf(target.id()) == canvas->cards().cend())
            commands.push_back(std::make_unique<core::SetCanvasCardCommand>(
                *canvas, core::CanvasCard{target.id(), card->x, card->y}));
        for (const core::CanvasConnection &line : canvas->connections()) {
            if (line.a != source.id() && line.b != source.id())
                continue;
            core::CanvasConnection moved = line;
            repoint(moved.a, source.id(), target.id());
            repoint(moved.b, source.id(), target.id());
            commands.push_back(
                std::make_unique<core::RemoveCanvasConnectionCommand>(*canvas, line));
            if (moved.a != moved.b && !canvas->connections().contains(moved))
                commands.push_back(
                    std::make_unique<core::AddCanvasConnectionCommand>(*canvas, moved));
        }
        commands.push_back(std::make_unique<core::RemoveCanvasCardCommand>(*canvas, source.id()));
    }
}

void CodexMerge::repointRecords(const Entity &source, const Entity &target,
                                Commands &commands) const
{
    core::Project &project = m_workspace.project();
    QList<core::PlotThread> threads = project.plotThreads();
    for (core::PlotThread &thread : threads)
        repoint(thread.characterId, source.id(), target.id());
    if (threads != project.plotThreads())
        commands.push_back(std::make_unique<core::SetPlotThreadsCommand>(project, threads));
    QList<core::ContinuityRule> rules = project.continuityRules();
    for (core::ContinuityRule &rule : rules)
        repoint(rule.entityId, source.id(), target.id());
    if (rules != project.continuityRules())
        commands.push_back(std::make_unique<core::SetContinuityRulesCommand>(project, rules));
}

ContentId CodexMerge::split(const ContentId &id, const QString &name, const QSet<QString> &keys,
                            const QStringList &aliases)
{
    Entity *whole = entity(id);
    if (!whole || name.simplified().isEmpty())
        return {};
    auto part =
        std::make_unique<Entity>(ContentId::create(), whole->categoryId(), name.simplified());
    const ContentId partId = part->id();
    Commands commands;
    for (const auto &[key, value] : whole->values()) {
        if (!keys.contains(key) || value.isEmpty())
            continue;
        part->setValue(key, value);
        commands.push_back(std::make_unique<core::SetFieldValueCommand>(*whole, key, QString()));
    }
    QList<core::TimedValue> staying;
    QList<core::TimedValue> going;
    for (const core::TimedValue &timed : whole->timedValues())
        (keys.contains(timed.key) ? going : staying).append(timed);
    part->setTimedValues(going);
    if (!going.isEmpty())
        commands.push_back(std::make_unique<core::SetEntityTimedValuesCommand>(*whole, staying));
    QStringList left = whole->aliases();
    left.removeIf([&](const QString &alias) { return aliases.contains(alias); });
    QStringList taken = whole->aliases();
    taken.removeIf([&](const QString &alias) {
        return !aliases.contains(alias) || alias == name.simplified();
    });
    part->setAliases(taken);
    if (left != whole->aliases())
        commands.push_back(std::make_unique<core::SetEntityAliasesCommand>(*whole, left));
    part->setTags(whole->tags());
    part->setVisibleTo(whole->visibleTo());
    part->setAiExcluded(whole->isAiExcluded());
    commands.push_back(
        std::make_unique<core::AddObjectCommand>(m_workspace.project(), std::move(part)));
    pushAll(tr("Split entity"), std::move(commands));
    return partId;
}

} // namespace vl::app
