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

/// Has the memory of the objects that come next brought near: most of the checks' time would go
/// into waiting for it.
void fetchSoon(const std::vector<const core::ContentObject *> &objects, size_t current)
{
    constexpr size_t lineSize = 64;
    constexpr size_t objectsAhead = 16;
    constexpr size_t participantsAhead = 8;
    if (current + objectsAhead < objects.size()) {
        const auto *begin = reinterpret_cast<const char *>(objects[current + objectsAhead]);
        for (size_t offset = 0; offset < sizeof(TimelineEvent); offset += lineSize)
            __builtin_prefetch(begin + offset);
    }
    if (current + participantsAhead < objects.size()) {
        const auto *event = core::contentCast<TimelineEvent>(objects[current + participantsAhead]);
        if (event)
            __builtin_prefetch(event->data().participants.constData());
    }
}

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

    struct Journey
    {
        const Entity *participant = nullptr;
        EventPair events;
    };

    void collect();
    int number(const ContentId &id);
    const Entity *resolve(const ContentId &id) const;
    void numberInIdOrder();
    void sortParticipants();
    void indexParticipants();

    void checkReferences();
    void checkPairs(const TravelTable &routes);
    void checkLifespans();
    void tellJourneys();
    void checkConstraints();
    void checkConstraint(const Event &event, const EventConstraint &constraint, const Event &other);

    std::span<const int> participants(size_t event) const;
    PlacedEvent placed(int event) const;
    QString title(const Event &event) const;
    bool isFull() const { return m_conflicts.size() >= m_limit; }
    void add(const QString &message, const QList<ContentId> &eventIds);

    const Project &m_project;
    const QList<const Project *> &m_mounted;
    const qsizetype m_limit;
    QList<TimelineConflict> m_conflicts;

    std::vector<Event> m_events;
    std::vector<ContentId> m_eventIds; ///< by event, ascending
    std::vector<int> m_constrained;    ///< the events that have constraints
    std::vector<int> m_participants;   ///< of all events, each once an event, in order
    std::vector<TravelTable::Route> m_routes;
    QHash<ContentId, int> m_numbers;
    std::vector<ContentId> m_ids;
    std::vector<const Entity *> m_entities; ///< by number; null where the id leads nowhere
    std::vector<PlacedEvent> m_placed;      ///< of all participants that exist
    std::vector<size_t> m_placedBegin;      ///< by entity, and the end of the last
    std::vector<Journey> m_journeys;        ///< that no route allows in time
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

    checkReferences();
    checkPairs(TravelTable(m_routes, int(m_ids.size())));
    checkLifespans();
    tellJourneys();
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
        if (!data.constraints.isEmpty())
            m_constrained.push_back(int(m_events.size()));
        m_events.push_back(entry);
        m_eventIds.push_back(event.id());
    };
    std::vector<const core::ContentObject *> objects;
    objects.reserve(size_t(m_project.size()));
    for (const auto &[id, object] : m_project.objects())
        objects.push_back(object.get());
    for (size_t i = 0; i < objects.size(); ++i) {
        fetchSoon(objects, i);
        if (const auto *event = core::contentCast<TimelineEvent>(objects[i]))
            addEvent(*event);
        else if (const auto *map = core::contentCast<core::Map>(objects[i]))
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

/// Lists the events that have a place by participant, in event order.
void TimelineCheck::indexParticipants()
{
    m_placedBegin.assign(m_entities.size() + 1, 0);
    const auto forEach = [this](auto use) {
        for (size_t i = 0; i < m_events.size(); ++i) {
            if (m_events[i].place < 0)
                continue;
            for (const int participant : participants(i)) {
                if (m_entities[size_t(participant)])
                    use(size_t(participant), int(i));
            }
        }
    };
    forEach([this](size_t participant, int) { ++m_placedBegin[participant + 1]; });
    for (size_t i = 1; i < m_placedBegin.size(); ++i)
        m_placedBegin[i] += m_placedBegin[i - 1];
    m_placed.resize(m_placedBegin.back());
    std::vector<size_t> next = m_placedBegin;
    forEach([this, &next](size_t participant, int event) {
        m_placed[next[participant]++] = placed(event);
    });
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
            add(tr(R"("%1" happens at a location that no longer exists.)").arg(title(event)),
                {event.event->id()});
        for (const int participant : participants(i)) {
            if (!m_entities[size_t(participant)])
                add(tr(R"("%1" lists a participant that no longer exists.)").arg(title(event)),
                    {event.event->id()});
        }
    }
}

/// Looks for both sorts of contradicting pairs while a participant's events are at hand; those that
/// are too far apart are told later.
void TimelineCheck::checkPairs(const TravelTable &routes)
{
    EventPairFinder finder(routes, int(m_ids.size()));
    for (size_t entity = 0; entity < m_entities.size() && !isFull(); ++entity) {
        const std::span events = std::span(m_placed).subspan(
            m_placedBegin[entity], m_placedBegin[entity + 1] - m_placedBegin[entity]);
        if (events.size() < 2)
            continue;
        for (const auto &[i, j] :
             finder.inTwoPlaces(events, size_t(m_limit - m_conflicts.size()))) {
            const Event &first = m_events[size_t(i)];
            const Event &second = m_events[size_t(j)];
            add(tr(R"(%1 is in two places at once: "%2" and "%3".)")
                    .arg(nameOf(m_entities[entity]), title(first), title(second)),
                {first.event->id(), second.event->id()});
        }
        if (routes.isEmpty())
            continue;
        for (const EventPair &pair :
             finder.tooFarApart(events, size_t(m_limit) - m_journeys.size()))
            m_journeys.push_back({m_entities[entity], pair});
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
                add(tr(R"(%1 takes part in "%2" before being born.)")
                        .arg(nameOf(entity), title(event)),
                    {event.event->id()});
            if (lifespan.deathInstant && event.interval.end > *lifespan.deathInstant)
                add(tr(R"(%1 takes part in "%2" after death.)").arg(nameOf(entity), title(event)),
                    {event.event->id()});
        }
    }
}

void TimelineCheck::tellJourneys()
{
    for (const Journey &journey : m_journeys) {
        if (isFull())
            return;
        const auto [i, j] = journey.events;
        const bool isInOrder = earlierOf(placed(i), placed(j)).event == i;
        const Event &earlier = m_events[size_t(isInOrder ? i : j)];
        const Event &later = m_events[size_t(isInOrder ? j : i)];
        add(tr(R"(%1 cannot travel from %2 to %3 in time between "%4" and "%5".)")
                .arg(nameOf(journey.participant), nameOf(m_entities[size_t(earlier.place)]),
                     nameOf(m_entities[size_t(later.place)]), title(earlier), title(later)),
            {earlier.event->id(), later.event->id()});
    }
}

void TimelineCheck::checkConstraints()
{
    for (const int number : m_constrained) {
        const Event &event = m_events[size_t(number)];
        for (const EventConstraint &constraint : event.event->data().constraints) {
            if (constraint.otherId.isNull())
                continue;
            const auto other =
                std::lower_bound(m_eventIds.begin(), m_eventIds.end(), constraint.otherId);
            if (other == m_eventIds.end() || *other != constraint.otherId)
                continue;
            const auto position = other - m_eventIds.begin();
            if (position != number)
                checkConstraint(event, constraint, m_events[size_t(position)]);
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
    add(tr(R"("%1" %2 "%3", but does not.)").arg(title(event), phrase, title(other)),
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
    QList<TimelineConflict> conflicts;
    for (const core::ContinuityRule &rule : project.continuityRules()) {
        const QString name = rule.name.isEmpty() ? rule.fieldKey : rule.name;
        const Entity *entity = project.find<Entity>(rule.entityId);
        if (!entity) {
            conflicts.append(
                {TimelineCheck::tr(
                     "Rule \"%1\" refers to an entity that is no longer in the project.")
                     .arg(name),
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
        conflicts.append(
            {TimelineCheck::tr(R"(Rule "%1": %2's %3 %4 "%5", but is "%6".)")
                 .arg(name, TimelineCheck::nameOf(entity), rule.fieldKey,
                      notEquals ? TimelineCheck::tr("must not be") : TimelineCheck::tr("must be"),
                      rule.value, actual.value_or(TimelineCheck::tr("(unset)"))),
             {}});
    }
    return conflicts;
}

} // namespace vl::app
