#pragma once

#include <optional>
#include <span>
#include <vector>

namespace vl::app {

/// The direct ways between places, each place a number from 0, with the minutes they take.
class TravelTable
{
public:
    struct Route
    {
        int from = 0;
        int to = 0;
        double minutes = 0;
    };
    struct Neighbour
    {
        int place = 0;
        double minutes = 0;
    };

    /// Routes go both ways; of several between two places the shortest counts.
    TravelTable(std::vector<Route> routes, int placeCount);

    bool isEmpty() const { return m_neighbours.empty(); }
    /// The places at the other end of a place's routes, in ascending order.
    std::span<const Neighbour> neighbours(int place) const;
    /// The minutes of the direct route; nothing when there is none.
    std::optional<double> minutes(int from, int to) const;

private:
    std::vector<Neighbour> m_neighbours; ///< grouped by the place they belong to
    std::vector<size_t> m_begin; ///< where each place's group begins, and the end of the last
};

} // namespace vl::app
