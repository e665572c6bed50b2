#include "app/time/eventpairs.h"

#include "app/time/instant.h"

#include <algorithm>
#include <tuple>

namespace vl::app {

namespace {

constexpr size_t fewEvents = 8; ///< up to here all pairs are compared sooner than sorted

bool isReversed(const PlacedEvent &event)
{
    return event.interval.end < event.interval.start;
}

qint64 firstMinute(const PlacedEvent &event)
{
    return std::min(event.interval.start, event.interval.end);
}

/// The last minute at which an event that is not reversed meets one that starts then.
qint64 lastMinute(const PlacedEvent &event)
{
    return event.interval.isPoint() ? event.interval.start : event.interval.end - 1;
}

bool startsBefore(const PlacedEvent &a, const PlacedEvent &b)
{
    return a.interval.start < b.interval.start;
}

bool beginsBefore(const PlacedEvent &event, qint64 minute)
{
    return event.interval.start < minute;
}

bool endsAfter(qint64 minute, const PlacedEvent &event)
{
    return minute < event.interval.end;
}

bool takesLonger(double minutes, const PlacedEvent &earlier, const PlacedEvent &later)
{
    return minutes > double(saturatedDifference(later.interval.start, earlier.interval.end));
}

} // namespace

bool areInTwoPlaces(const PlacedEvent &a, const PlacedEvent &b)
{
    return a.place != b.place && intersectIntervals(a.interval, b.interval);
}

const PlacedEvent &earlierOf(const PlacedEvent &a, const PlacedEvent &b)
{
    return std::tie(a.interval.start, a.event) < std::tie(b.interval.start, b.event) ? a : b;
}

bool areTooFarApart(const TravelTable &routes, const PlacedEvent &a, const PlacedEvent &b)
{
    if (a.place == b.place || intersectIntervals(a.interval, b.interval))
        return false;
    const std::optional<double> minutes = routes.minutes(a.place, b.place);
    const bool isAEarlier = &earlierOf(a, b) == &a;
    return minutes && takesLonger(*minutes, isAEarlier ? a : b, isAEarlier ? b : a);
}

EventPairFinder::EventPairFinder(const TravelTable &routes, int placeCount)
    : m_routes(routes)
    , m_positionOf(size_t(placeCount), -1)
    , m_active(size_t(placeCount))
{
}

void EventPairFinder::addPair(const PlacedEvent &a, const PlacedEvent &b)
{
    m_pairs.emplace_back(std::min(a.event, b.event), std::max(a.event, b.event));
}

/// Compares all pairs, in their order, until the limit is reached.
template<typename Check>
void EventPairFinder::compareAll(std::span<const PlacedEvent> events, size_t limit, Check check)
{
    m_pairs.clear();
    for (size_t i = 0; i < events.size(); ++i) {
        for (size_t j = i + 1; j < events.size(); ++j) {
            if (m_pairs.size() >= limit)
                return;
            if (check(events[i], events[j]))
                addPair(events[i], events[j]);
        }
    }
}

/// Puts the pairs that were found in order. More than the limit are found again from the beginning:
/// those that come first are wanted, not those that were met first.
template<typename Check>
const std::vector<EventPair> &EventPairFinder::finish(std::span<const PlacedEvent> events,
                                                      size_t limit, Check check)
{
    if (m_pairs.size() > limit)
        compareAll(events, limit, check);
    else
        std::sort(m_pairs.begin(), m_pairs.end());
    return m_pairs;
}

const std::vector<EventPair> &EventPairFinder::inTwoPlaces(std::span<const PlacedEvent> events,
                                                           size_t limit)
{
    if (events.size() <= fewEvents) {
        compareAll(events, limit, areInTwoPlaces);
        return m_pairs;
    }
    m_pairs.clear();
    m_byStart.assign(events.begin(), events.end());
    std::sort(m_byStart.begin(), m_byStart.end(), [](const PlacedEvent &a, const PlacedEvent &b) {
        const qint64 first = firstMinute(a);
        const qint64 second = firstMinute(b);
        return first != second ? first < second : isReversed(a) && !isReversed(b);
    });
    sweep(limit);
    return finish(events, limit, areInTwoPlaces);
}

/// Walks along time and meets each event with those that go on at its first minute. They are kept
/// by place, so that the many that may go on at the event's own place cost nothing. An event that
/// ends before it starts meets only longer ones that began before its end: it is met, but never
/// kept.
void EventPairFinder::sweep(size_t limit)
{
    qint64 lastOfAll = 0;
    for (const PlacedEvent &event : m_byStart) {
        if (firstMinute(event) > lastOfAll)
            deactivateAll();
        meetActive(event);
        if (m_pairs.size() > limit)
            break;
        if (isReversed(event))
            continue;
        lastOfAll = m_places.empty() ? lastMinute(event) : std::max(lastOfAll, lastMinute(event));
        activate(event);
    }
    deactivateAll();
}

/// Each event that is looked at either goes on, or is over and never looked at again.
void EventPairFinder::meetActive(const PlacedEvent &event)
{
    for (size_t i = 0; i < m_places.size();) {
        const int place = m_places[i];
        if (place == event.place) {
            ++i;
            continue;
        }
        std::vector<PlacedEvent> &active = m_active[size_t(place)];
        for (size_t j = 0; j < active.size();) {
            if (lastMinute(active[j]) >= firstMinute(event)) {
                if (intersectIntervals(active[j].interval, event.interval))
                    addPair(active[j], event);
                ++j;
            } else {
                active[j] = active.back();
                active.pop_back();
            }
        }
        if (active.empty()) {
            m_positionOf[size_t(place)] = -1;
            m_places[i] = m_places.back();
            m_places.pop_back();
        } else {
            ++i;
        }
    }
}

void EventPairFinder::activate(const PlacedEvent &event)
{
    m_active[size_t(event.place)].push_back(event);
    mark(event.place);
}

void EventPairFinder::mark(int place)
{
    if (m_positionOf[size_t(place)] >= 0)
        return;
    m_positionOf[size_t(place)] = 0;
    m_places.push_back(place);
}

void EventPairFinder::deactivateAll()
{
    for (const int place : m_places) {
        m_active[size_t(place)].clear();
        m_positionOf[size_t(place)] = -1;
    }
    m_places.clear();
}

/// Whether a route joins two of the places at which the events happen.
bool EventPairFinder::areJoined(std::span<const PlacedEvent> events)
{
    for (const PlacedEvent &event : events)
        mark(event.place);
    const bool isJoined = std::any_of(m_places.begin(), m_places.end(), [this](int place) {
        const std::span<const TravelTable::Neighbour> list = m_routes.neighbours(place);
        return std::any_of(list.begin(), list.end(),
                           [this](const TravelTable::Neighbour &neighbour) {
                               return m_positionOf[size_t(neighbour.place)] >= 0;
                           });
    });
    deactivateAll();
    return isJoined;
}

void EventPairFinder::groupByPlace(std::span<const PlacedEvent> events)
{
    m_byStart.assign(events.begin(), events.end());
    std::sort(m_byStart.begin(), m_byStart.end(), [](const PlacedEvent &a, const PlacedEvent &b) {
        if (a.place != b.place)
            return a.place < b.place;
        if (isReversed(a) != isReversed(b))
            return isReversed(b);
        return startsBefore(a, b);
    });
    m_byEnd = m_byStart;
    m_groups.clear();
    for (size_t begin = 0; begin < m_byStart.size();) {
        Group group{m_byStart[begin].place, begin, begin, begin};
        for (; group.end < m_byStart.size() && m_byStart[group.end].place == group.place;
             ++group.end)
            group.reversed += isReversed(m_byStart[group.end]) ? 0 : 1;
        std::sort(m_byEnd.begin() + qptrdiff(begin), m_byEnd.begin() + qptrdiff(group.reversed),
                  [](const PlacedEvent &a, const PlacedEvent &b) {
                      return a.interval.end < b.interval.end;
                  });
        m_groups.push_back(group);
        begin = group.end;
    }
}

const std::vector<EventPair> &EventPairFinder::tooFarApart(std::span<const PlacedEvent> events,
                                                           size_t limit)
{
    m_pairs.clear();
    if (!areJoined(events))
        return m_pairs;

    groupByPlace(events);
    for (size_t i = 0; i < m_groups.size(); ++i)
        m_positionOf[size_t(m_groups[i].place)] = int(i);
    for (const Group &group : m_groups) {
        for (const TravelTable::Neighbour &neighbour : m_routes.neighbours(group.place)) {
            const int position = m_positionOf[size_t(neighbour.place)];
            if (position < 0 || neighbour.place < group.place)
                continue; // seen from the other end
            const Group &other = m_groups[size_t(position)];
            const bool isFewer = group.reversed - group.begin < other.reversed - other.begin;
            travel(isFewer ? group : other, isFewer ? other : group, neighbour.minutes, limit);
            travelReversed(group, other, neighbour.minutes, limit);
            travelReversed(other, group, neighbour.minutes, limit);
        }
    }
    for (const Group &group : m_groups)
        m_positionOf[size_t(group.place)] = -1;
    return finish(events, limit, [this](const PlacedEvent &a, const PlacedEvent &b) {
        return areTooFarApart(m_routes, a, b);
    });
}

/// Finds the pairs that are too close in time for the way between two places: from each event of
/// the place with fewer outward among those of the other, until the way takes no longer.
void EventPairFinder::travel(const Group &few, const Group &many, double minutes, size_t limit)
{
    const auto startBegin = m_byStart.cbegin() + qptrdiff(many.begin);
    const auto startEnd = m_byStart.cbegin() + qptrdiff(many.reversed);
    const auto endBegin = m_byEnd.cbegin() + qptrdiff(many.begin);
    const auto endEnd = m_byEnd.cbegin() + qptrdiff(many.reversed);
    for (size_t i = few.begin; i < few.reversed && m_pairs.size() <= limit; ++i) {
        const PlacedEvent &event = m_byStart[i];
        auto later = std::lower_bound(startBegin, startEnd, event.interval.end, beginsBefore);
        for (; later != startEnd && takesLonger(minutes, event, *later); ++later) {
            if (startsBefore(event, *later))
                addPair(event, *later);
        }
        auto earlier = std::upper_bound(endBegin, endEnd, event.interval.start, endsAfter);
        for (; earlier != endBegin && takesLonger(minutes, *(earlier - 1), event); --earlier) {
            if (startsBefore(*(earlier - 1), event))
                addPair(*(earlier - 1), event);
        }
    }
}

/// Finds the same among pairs with events of the first place that end before they start. Such an
/// event may be too far from one that began before it and still goes on.
void EventPairFinder::travelReversed(const Group &group, const Group &other, double minutes,
                                     size_t limit)
{
    const auto at = [](const std::vector<PlacedEvent> &list, size_t position) {
        return list.cbegin() + qptrdiff(position);
    };
    for (size_t i = group.reversed; i < group.end && m_pairs.size() <= limit; ++i) {
        const PlacedEvent &event = m_byStart[i];
        const auto [from, until] = event.interval;
        const auto addLater = [&, this](auto begin, auto end) {
            for (auto later = std::lower_bound(begin, end, event, startsBefore);
                 later != end && takesLonger(minutes, event, *later); ++later) {
                if (&earlierOf(event, *later) == &event)
                    addPair(event, *later);
            }
        };
        addLater(at(m_byStart, other.begin), at(m_byStart, other.reversed));
        addLater(at(m_byStart, other.reversed), at(m_byStart, other.end));

        const auto firstEnd = at(m_byEnd, other.begin);
        auto over = std::upper_bound(firstEnd, at(m_byEnd, other.reversed), from, endsAfter);
        for (; over != firstEnd && takesLonger(minutes, *(over - 1), event); --over) {
            if (&earlierOf(event, *(over - 1)) != &event)
                addPair(event, *(over - 1));
        }
        const auto lastStart = at(m_byStart, other.reversed);
        auto goingOn = std::lower_bound(at(m_byStart, other.begin), lastStart, until, beginsBefore);
        for (; goingOn != lastStart && goingOn->interval.start <= from; ++goingOn) {
            if (goingOn->interval.end > from && &earlierOf(event, *goingOn) != &event)
                addPair(event, *goingOn);
        }
    }
}

} // namespace vl::app
