#pragma once

#include "app/time/interval.h"
#include "app/time/traveltable.h"

#include <span>
#include <utility>
#include <vector>

namespace vl::app {

/// An event that has a place, reduced to what the checks of pairs ask.
struct PlacedEvent
{
    Interval interval;
    int place = 0; ///< from 0
    int event = 0; ///< its number in the list of all events
};

/// The numbers of two events, the smaller first.
using EventPair = std::pair<int, int>;

/// Whether the two events are at different places and their intervals meet.
bool areInTwoPlaces(const PlacedEvent &a, const PlacedEvent &b);

/// Of two events, the one that starts first; of equal starts the one with the smaller number.
const PlacedEvent &earlierOf(const PlacedEvent &a, const PlacedEvent &b);

/// Whether the two events are at different places and do not meet, but the direct route from the
/// earlier to the later takes longer than the time between them.
bool areTooFarApart(const TravelTable &routes, const PlacedEvent &a, const PlacedEvent &b);

/// Finds the pairs among one participant's events that contradict each other. The work grows with
/// the events and the findings, not with the pairs; only an event that ends before it starts is
/// compared with all that lie between its end and its start.
class EventPairFinder
{
public:
    /// The table outlives the finder; the places of all events to come are in it.
    EventPairFinder(const TravelTable &routes, int placeCount);

    /// The pairs in two places at once, in ascending order, at most `limit` of them. The events
    /// come in the order of their numbers. The list stays good until the next call.
    const std::vector<EventPair> &inTwoPlaces(std::span<const PlacedEvent> events, size_t limit);

    /// The pairs too far apart for their routes, likewise.
    const std::vector<EventPair> &tooFarApart(std::span<const PlacedEvent> events, size_t limit);

private:
    /// The events at one place, as stretches of m_byStart and m_byEnd.
    struct Group
    {
        int place = 0;
        size_t begin = 0;
        size_t reversed = 0; ///< where those begin that end before they start
        size_t end = 0;
    };

    void addPair(const PlacedEvent &a, const PlacedEvent &b);
    template<typename Check>
    void compareAll(std::span<const PlacedEvent> events, size_t limit, Check check);
    template<typename Check>
    const std::vector<EventPair> &finish(std::span<const PlacedEvent> events, size_t limit,
                                         Check check);
    void sweep(size_t limit);
    void meetActive(const PlacedEvent &event);
    void activate(const PlacedEvent &event);
    void mark(int place);
    void deactivateAll();
    bool areJoined(std::span<const PlacedEvent> events);
    void groupByPlace(std::span<const PlacedEvent> events);
    void travel(const Group &few, const Group &many, double minutes, size_t limit);
    void travelReversed(const Group &group, const Group &other, double minutes, size_t limit);

    const TravelTable &m_routes;
    std::vector<EventPair> m_pairs;
    std::vector<PlacedEvent> m_byStart;
    std::vector<PlacedEvent> m_byEnd;
    std::vector<Group> m_groups;
    std::vector<int> m_places; ///< the places in use just now
    std::vector<int>
        m_positionOf; ///< by place: where it stands in m_places or m_groups, or 0; -1 when unused
    std::vector<std::vector<PlacedEvent>> m_active; ///< by place: events that may still go on
};

} // namespace vl::app
