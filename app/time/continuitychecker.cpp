#include "app/time/continuitychecker.h"

#include "app/time/eventpairs.h"
#include "app/time/instant.h"
#include "core/content/entity.h"
#include "core/content/map.h"
#include "core/content/timeline.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace vl::app {

using core::ContentId;
using core::Entity;
using core::EventConstraint;
using core::Project;
using core::TimelineEvent;

namespace {

/// One run of the checks over the events of a project. Entities that events and routes name are
/// numbered in the order of their ids; events by their place in the project.
class TimelineCheck
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ContinuityChecker)

public:
    TimelineCheck(const Project &project, const QList<const Project *> &mounted, qsizetype limit);

    QList<TimelineConflict> run();

    static QString nameOf(const Entity *entity)
    {
        return entity && !entity->name().isEmpty() ? entity->name() : tr("An entity");
    }

private:
    struct Event
    {
        const TimelineEvent *event = nullptr;
        Interval interval;
        int place = -1;             ///< -1 for none
        size_t participantsEnd = 0; ///< where its stretch of m_participants ends
    };

    void collect();
    int number(const ContentId &id);
    const Entity *resolve(const ContentId &id) const;
    void numberInIdOrder();
    void sortParticipants();
    void indexParticipants();

    void checkReferences();
    void checkPlaces(EventPairFinder &finder);
    void checkLifespans();
    void checkTravel(EventPairFinder &finder);
    void checkConstraints();
    void checkConstraint(const Event &event, const EventConstraint &constraint, const Event &other);

    std::span<const int> participants(size_t event) const;
    void placedEventsOf(size_t entity, std::vector<PlacedEvent> &placed) const;
    PlacedEvent placed(int event) const;
    QString title(const Event &event) const;
    bool isFull() const { return m_conflicts.size() >= m_limit; }
    void add(const QString &message, const QList<ContentId> &eventIds);

    const Project &m_project;
    const QList<const Project *> &m_mounted;
    const qsizetype m_limit;
    QList<TimelineConflict> m_conflicts;

    std::vector<Event> m_events;
    std::vector<int> m_participants; ///< of all events, each once an event, in order
    std::vector<TravelTable::Route> m_routes;
    QHash<ContentId, int> m_numbers;
    std::vector<ContentId> m_ids;
    std::vector<const Entity *> m_entities; ///< by number; null where the id leads nowhere
    std::vector<int> m_eventsOf;            ///< of all entities, in event order
    std::vector<size_t> m_eventsOfBegin;    ///< by entity, and the end of the last
};

TimelineCheck::TimelineCheck(const Project &project, const QList<const Project *> &mounted,
                             qsizetype limit)
    : m_project(project)
    , m_mounted(mounted)
    , m_limit(limit)
{
}

QList<TimelineConflict> TimelineCheck::run()
{
    collect();
    numberInIdOrder();
    sortParticipants();
    indexParticipants();
    const TravelTable routes(m_routes, int(m_ids.size()));
    EventPairFinder finder(routes, int(m_ids.size()));

    checkReferences();
    checkPlaces(finder);
    checkLifespans();
    if (!routes.isEmpty())
        checkTravel(finder);
    checkConstraints();
    return std::move(m_conflicts);
}

const Entity *TimelineCheck::resolve(const ContentId &id) const
{
    if (const Entity *entity = m_project.find<Entity>(id))
        return entity;
    for (const Project *library : m_mounted) {
        if (const Entity *entity = library->find<Entity>(id))
            return entity;
    }
    return nullptr;
}

/// The number of an id, for the time being in the order in which ids are met.
int TimelineCheck::number(const ContentId &id)
{
    int &position = m_numbers[id]; // from 1: a new entry holds 0
    if (position == 0) {
        m_ids.push_back(id);
        position = int(m_ids.size());
    }
    return position - 1;
}

void TimelineCheck::collect()
{
    const auto addRoutes = [this](const core::Map &map) {
        const double speed = map.travelSettings().travelSpeedPerHour;
        if (!(speed > 0))
            return;
        for (const core::MapRoute &route : map.routes()) {
            const double minutes = route.distance / speed * 60;
            if (route.fromEntityId.isNull() || route.toEntityId.isNull())
                continue;
            if (route.fromEntityId == route.toEntityId)
                continue;
            if (route.distance < 0 || std::isnan(minutes))
                continue;
            m_routes.push_back({number(route.fromEntityId), number(route.toEntityId), minutes});
        }
    };
    const auto addEvent = [this](const TimelineEvent &event) {
        const core::TimelineEventData &data = event.data();
        Event entry;
        entry.event = &event;
        entry.interval = {data.startMinute, saturatedSum(data.startMinute, data.durationMinutes)};
        if (!data.locationId.isNull())
            entry.place = number(data.locationId);
        for (const ContentId &id : data.participants) {
            if (!id.isNull())
                m_participants.push_back(number(id));
        }
        entry.participantsEnd = m_participants.size();
        m_events.push_back(entry);
    };
    for (const auto &[id, object] : m_project.objects()) {
        if (const auto *event = core::contentCast<TimelineEvent>(object.get()))
            addEvent(*event);
        else if (const auto *map = core::contentCast<core::Map>(object.get()))
            addRoutes(*map);
    }
}

/// Gives all ids the numbers of their order, and looks up what they name.
void TimelineCheck::numberInIdOrder()
{
    std::vector<int> order(m_ids.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = int(i);
    std::sort(order.begin(), order.end(),
              [this](int a, int b) { return m_ids[size_t(a)] < m_ids[size_t(b)]; });
    std::vector<int> numbers(order.size());
    std::vector<ContentId> ids(order.size());
    m_entities.resize(order.size());
    for (size_t i = 0; i < order.size(); ++i) {
        numbers[size_t(order[i])] = int(i);
        ids[i] = m_ids[size_t(order[i])];
        m_entities[i] = resolve(ids[i]);
    }
    m_ids = std::move(ids);
    for (Event &event : m_events) {
        if (event.place >= 0)
            event.place = numbers[size_t(event.place)];
    }
    for (int &participant : m_participants)
        participant = numbers[size_t(participant)];
    for (TravelTable::Route &route : m_routes) {
        route.from = numbers[size_t(route.from)];
        route.to = numbers[size_t(route.to)];
    }
}

/// Brings each event's participants in order and lets each stand once.
void TimelineCheck::sortParticipants()
{
    auto kept = m_participants.begin();
    auto begin = m_participants.begin();
    for (Event &event : m_events) {
        const auto end = m_participants.begin() + qptrdiff(event.participantsEnd);
        std::sort(begin, end);
        kept = std::unique_copy(begin, end, kept);
        event.participantsEnd = size_t(kept - m_participants.begin());
        begin = end;
    }
    m_participants.erase(kept, m_participants.end());
}

void TimelineCheck::indexParticipants()
{
    m_eventsOfBegin.assign(m_entities.size() + 1, 0);
    for (const int participant : m_participants)
        ++m_eventsOfBegin[size_t(participant) + 1];
    for (size_t i = 1; i < m_eventsOfBegin.size(); ++i)
        m_eventsOfBegin[i] += m_eventsOfBegin[i - 1];
    m_eventsOf.resize(m_participants.size());
    std::vector<size_t> next = m_eventsOfBegin;
    for (size_t i = 0; i < m_events.size(); ++i) {
        for (const int participant : participants(i))
            m_eventsOf[next[size_t(participant)]++] = int(i);
    }
}

std::span<const int> TimelineCheck::participants(size_t event) const
{
    const size_t begin = event == 0 ? 0 : m_events[event - 1].participantsEnd;
    return std::span(m_participants).subspan(begin, m_events[event].participantsEnd - begin);
}

PlacedEvent TimelineCheck::placed(int event) const
{
    const Event &entry = m_events[size_t(event)];
    return {entry.interval, entry.place, event};
}

/// The events of an entity that have a place, in event order.
void TimelineCheck::placedEventsOf(size_t entity, std::vector<PlacedEvent> &placedEvents) const
{
    placedEvents.clear();
    for (size_t i = m_eventsOfBegin[entity]; i < m_eventsOfBegin[entity + 1]; ++i) {
        if (m_events[size_t(m_eventsOf[i])].place >= 0)
            placedEvents.push_back(placed(m_eventsOf[i]));
    }
}

QString TimelineCheck::title(const Event &event) const
{
    const QString &title = event.event->data().title;
    return title.isEmpty() ? tr("Untitled event") : title;
}

void TimelineCheck::add(const QString &message, const QList<ContentId> &eventIds)
{
    if (!isFull())
        m_conflicts.append({message, eventIds});
}

void TimelineCheck::checkReferences()
{
    for (size_t i = 0; i < m_events.size(); ++i) {
        const Event &event = m_events[i];
        if (event.place >= 0 && !m_entities[size_t(event.place)])
            add(tr("\"%1\" happens at a location that no longer exists.").arg(title(event)),
                {event.event->id()});
        for (const int participant : participants(i)) {
            if (!m_entities[size_t(participant)])
                add(tr("\"%1\" lists a participant that no longer exists.").arg(title(event)),
                    {event.event->id()});
        }
    }
}

void TimelineCheck::checkPlaces(EventPairFinder &finder)
{
    std::vector<PlacedEvent> events;
    for (size_t entity = 0; entity < m_entities.size() && !isFull(); ++entity) {
        if (!m_entities[entity])
            continue;
        placedEventsOf(entity, events);
        for (const auto &[i, j] :
             finder.inTwoPlaces(events, size_t(m_limit - m_conflicts.size()))) {
            const Event &first = m_events[size_t(i)];
            const Event &second = m_events[size_t(j)];
            add(tr("%1 is in two places at once: \"%2\" and \"%3\".")
                    .arg(nameOf(m_entities[entity]), title(first), title(second)),
                {first.event->id(), second.event->id()});
        }
    }
}

void TimelineCheck::checkLifespans()
{
    for (size_t i = 0; i < m_events.size(); ++i) {
        const Event &event = m_events[i];
        for (const int participant : participants(i)) {
            const Entity *entity = m_entities[size_t(participant)];
            if (!entity)
                continue;
            const core::Lifespan &lifespan = entity->lifespan();
            if (lifespan.birthInstant && event.interval.start < *lifespan.birthInstant)
                add(tr("%1 takes part in \"%2\" before being born.")
                        .arg(nameOf(entity), title(event)),
                    {event.event->id()});
            if (lifespan.deathInstant && event.interval.end > *lifespan.deathInstant)
                add(tr("%1 takes part in \"%2\" after death.").arg(nameOf(entity), title(event)),
                    {event.event->id()});
        }
    }
}

void TimelineCheck::checkTravel(EventPairFinder &finder)
{
    std::vector<PlacedEvent> events;
    for (size_t entity = 0; entity < m_entities.size() && !isFull(); ++entity) {
        if (!m_entities[entity])
            continue;
        placedEventsOf(entity, events);
        for (const auto &[i, j] :
             finder.tooFarApart(events, size_t(m_limit - m_conflicts.size()))) {
            const bool isInOrder = earlierOf(placed(i), placed(j)).event == i;
            const Event &earlier = m_events[size_t(isInOrder ? i : j)];
            const Event &later = m_events[size_t(isInOrder ? j : i)];
            add(tr("%1 cannot travel from %2 to %3 in time between \"%4\" and \"%5\".")
                    .arg(nameOf(m_entities[entity]), nameOf(m_entities[size_t(earlier.place)]),
                         nameOf(m_entities[size_t(later.place)]), title(earlier), title(later)),
                {earlier.event->id(), later.event->id()});
        }
    }
}

void TimelineCheck::checkConstraints()
{
    QHash<ContentId, size_t> numbers;
    const auto hasConstraints = [](const Event &e) {
        return !e.event->data().constraints.isEmpty();
    };
    if (std::none_of(m_events.begin(), m_events.end(), hasConstraints))
        return;
    numbers.reserve(qsizetype(m_events.size()));
    for (size_t i = 0; i < m_events.size(); ++i)
        numbers.insert(m_events[i].event->id(), i);

    for (const Event &event : m_events) {
        for (const EventConstraint &constraint : event.event->data().constraints) {
            if (constraint.otherId.isNull() || constraint.otherId == event.event->id())
                continue;
            const auto other = numbers.constFind(constraint.otherId);
            if (other != numbers.constEnd())
                checkConstraint(event, constraint, m_events[*other]);
        }
    }
}

void TimelineCheck::checkConstraint(const Event &event, const EventConstraint &constraint,
                                    const Event &other)
{
    QString phrase;
    const Interval &mine = event.interval;
    const Interval &its = other.interval;
    if (constraint.kind == QLatin1String("after")) {
        if (mine.start >= its.end)
            return;
        phrase = tr("must start after");
    } else if (constraint.kind == QLatin1String("before")) {
        if (mine.end <= its.start)
            return;
        phrase = tr("must end before");
    } else if (constraint.kind == QLatin1String("during")) {
        if (its.start <= mine.start && mine.end <= its.end)
            return;
        phrase = tr("must happen during");
    } else {
        return; // a kind that nobody knows asks for nothing
    }
    //: %1 and %3 are titles of events, %2 is one of the phrases "must start after" and so on.
    add(tr("\"%1\" %2 \"%3\", but does not.").arg(title(event), phrase, title(other)),
        {event.event->id(), other.event->id()});
}

} // namespace

QList<TimelineConflict> findTimelineConflicts(const Project &project,
                                              const QList<const Project *> &mounted,
                                              qsizetype limit)
{
    return TimelineCheck(project, mounted, limit).run();
}

QList<TimelineConflict> checkContinuityRules(const Project &project)
{
    const auto tr = [](const char *text) { return TimelineCheck::tr(text); };
    QList<TimelineConflict> conflicts;
    for (const core::ContinuityRule &rule : project.continuityRules()) {
        const QString name = rule.name.isEmpty() ? rule.fieldKey : rule.name;
        const Entity *entity = project.find<Entity>(rule.entityId);
        if (!entity) {
            conflicts.append(
                {tr("Rule \"%1\" refers to an entity that is no longer in the project.").arg(name),
                 {}});
            continue;
        }
        const std::optional<QString> actual = rule.instant
                                                  ? entity->valueAt(rule.fieldKey, *rule.instant)
                                                  : entity->value(rule.fieldKey);
        const bool notEquals = rule.comparison == core::RuleComparison::NotEquals;
        const bool isEqual = actual && *actual == rule.value;
        if (isEqual != notEquals)
            continue;
        conflicts.append({tr("Rule \"%1\": %2's %3 %4 \"%5\", but is \"%6\".")
                              .arg(name, TimelineCheck::nameOf(entity), rule.fieldKey,
                                   notEquals ? tr("must not be") : tr("must be"), rule.value,
                                   actual.value_or(tr("(unset)"))),
                          {}});
    }
    return conflicts;
}

} // namespace vl::app
