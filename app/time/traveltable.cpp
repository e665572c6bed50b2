#include "app/time/traveltable.h"

#include <algorithm>
#include <tuple>

namespace vl::app {

TravelTable::TravelTable(std::vector<Route> routes, int placeCount)
{
    const size_t oneWay = routes.size();
    for (size_t i = 0; i < oneWay; ++i)
        routes.push_back({routes[i].to, routes[i].from, routes[i].minutes});
    std::sort(routes.begin(), routes.end(), [](const Route &a, const Route &b) {
        return std::tie(a.from, a.to, a.minutes) < std::tie(b.from, b.to, b.minutes);
    });
    const auto isSame = [](const Route &a, const Route &b) {
        return a.from == b.from && a.to == b.to;
    };
    routes.erase(std::unique(routes.begin(), routes.end(), isSame), routes.end());

    m_begin.reserve(size_t(placeCount) + 1);
    auto route = routes.cbegin();
    for (int place = 0; place <= placeCount; ++place) {
        m_begin.push_back(m_neighbours.size());
        for (; route != routes.cend() && route->from == place; ++route)
            m_neighbours.push_back({route->to, route->minutes});
    }
}

std::span<const TravelTable::Neighbour> TravelTable::neighbours(int place) const
{
    const size_t begin = m_begin[size_t(place)];
    return std::span(m_neighbours).subspan(begin, m_begin[size_t(place) + 1] - begin);
}

std::optional<double> TravelTable::minutes(int from, int to) const
{
    const std::span<const Neighbour> list = neighbours(from);
    const auto found =
        std::lower_bound(list.begin(), list.end(), to,
                         [](const Neighbour &n, int place) { return n.place < place; });
    if (found == list.end() || found->place != to)
        return std::nullopt;
    return found->minutes;
}

} // namespace vl::app
