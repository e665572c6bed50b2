#pragma once

#include "app/time/continuitychecker.h"
#include "app/time/instant.h"
#include "app/time/interval.h"
#include "core/content/entity.h"
#include "core/content/map.h"
#include "core/content/timeline.h"
#include "core/project.h"

#include <map>
#include <set>

/// The timeline checks step after step over all pairs, to hold the fast ones against.
class SlowContinuity
{
public:
    using Id = vl::core::ContentId;
    using Event = vl::core::TimelineEvent;
    using Conflicts = QList<vl::app::TimelineConflict>;

    explicit SlowContinuity(const vl::core::Project &project)
        : m_project(project)
        , m_events(project.all<Event>())
    {
    }

    Conflicts run()
    {
        references();
        for (const Event *event : m_events)
            for (const Id &id : participants(*event))
                m_index[id].push_back(event);
        pairs(&SlowContinuity::places);
        lifespans();
        routes();
        pairs(&SlowContinuity::travel);
        constraints();
        return m_conflicts;
    }

private:
    static vl::app::Interval interval(const Event &e)
    {
        return {e.data().startMinute,
                vl::app::saturatedSum(e.data().startMinute, e.data().durationMinutes)};
    }
    static QString title(const Event &e)
    {
        return e.data().title.isEmpty() ? QStringLiteral("Untitled event") : e.data().title;
    }
    const vl::core::Entity *entity(const Id &id) const
    {
        return m_project.find<vl::core::Entity>(id);
    }
    QString name(const Id &id) const
    {
        return entity(id) && !entity(id)->name().isEmpty() ? entity(id)->name()
                                                           : QStringLiteral("An entity");
    }
    std::set<Id> participants(const Event &e) const
    {
        std::set<Id> ids;
        for (const Id &id : e.data().participants)
            if (entity(id))
                ids.insert(id);
        return ids;
    }
    static bool elsewhere(const Event &a, const Event &b)
    {
        const Id &first = a.data().locationId;
        const Id &second = b.data().locationId;
        return !first.isNull() && !second.isNull() && first != second;
    }
    void add(const QString &message, const QList<Id> &ids) { m_conflicts.append({message, ids}); }

    void references()
    {
        for (const Event *e : m_events) {
            if (!e->data().locationId.isNull() && !entity(e->data().locationId))
                add(QStringLiteral("\"%1\" happens at a location that no longer exists.")
                        .arg(title(*e)),
                    {e->id()});
            std::set<Id> missing;
            for (const Id &id : e->data().participants)
                if (!id.isNull() && !entity(id))
                    missing.insert(id);
            for (size_t i = 0; i < missing.size(); ++i)
                add(QStringLiteral("\"%1\" lists a participant that no longer exists.")
                        .arg(title(*e)),
                    {e->id()});
        }
    }
    void pairs(void (SlowContinuity::*check)(const Id &, const Event &, const Event &))
    {
        for (const auto &[id, events] : m_index)
            for (size_t i = 0; i < events.size(); ++i)
                for (size_t j = i + 1; j < events.size(); ++j)
                    if (elsewhere(*events[i], *events[j]))
                        (this->*check)(id, *events[i], *events[j]);
    }
    void places(const Id &id, const Event &a, const Event &b)
    {
        if (vl::app::intersectIntervals(interval(a), interval(b)))
            add(QStringLiteral("%1 is in two places at once: \"%2\" and \"%3\".")
                    .arg(name(id), title(a), title(b)),
                {a.id(), b.id()});
    }
    void lifespans()
    {
        for (const Event *e : m_events) {
            for (const Id &id : participants(*e)) {
                const vl::core::Lifespan &life = entity(id)->lifespan();
                if (life.birthInstant && interval(*e).start < *life.birthInstant)
                    add(QStringLiteral("%1 takes part in \"%2\" before being born.")
                            .arg(name(id), title(*e)),
                        {e->id()});
                if (life.deathInstant && interval(*e).end > *life.deathInstant)
                    add(QStringLiteral("%1 takes part in \"%2\" after death.")
                            .arg(name(id), title(*e)),
                        {e->id()});
            }
        }
    }
    void routes()
    {
        for (const vl::core::Map *map : m_project.all<vl::core::Map>()) {
            const double speed = map->travelSettings().travelSpeedPerHour;
            if (speed <= 0)
                continue;
            for (const vl::core::MapRoute &route : map->routes()) {
                const Id &a = std::min(route.fromEntityId, route.toEntityId);
                const Id &b = std::max(route.fromEntityId, route.toEntityId);
                if (a.isNull() || b.isNull() || a == b || route.distance < 0)
                    continue;
                const double minutes = route.distance / speed * 60;
                const auto entry = m_routes.emplace(std::pair(a, b), minutes).first;
                entry->second = std::min(entry->second, minutes);
            }
        }
    }
    void travel(const Id &id, const Event &a, const Event &b)
    {
        if (vl::app::intersectIntervals(interval(a), interval(b)))
            return;
        const bool isBFirst = interval(b).start < interval(a).start;
        const Event &earlier = isBFirst ? b : a;
        const Event &later = isBFirst ? a : b;
        const Id &from = earlier.data().locationId;
        const Id &to = later.data().locationId;
        const auto route = m_routes.find({std::min(from, to), std::max(from, to)});
        const qint64 gap =
            vl::app::saturatedDifference(interval(later).start, interval(earlier).end);
        if (route != m_routes.end() && route->second > double(gap))
            add(QStringLiteral("%1 cannot travel from %2 to %3 in time between \"%4\" and \"%5\".")
                    .arg(name(id), name(from), name(to), title(earlier), title(later)),
                {earlier.id(), later.id()});
    }
    void constraints()
    {
        for (const Event *e : m_events) {
            for (const vl::core::EventConstraint &constraint : e->data().constraints) {
                const Event *other = m_project.find<Event>(constraint.otherId);
                if (!other || other == e)
                    continue;
                const vl::app::Interval mine = interval(*e);
                const vl::app::Interval its = interval(*other);
                const std::map<QString, std::pair<bool, QString>> kinds = {
                    {QStringLiteral("after"),
                     {mine.start >= its.end, QStringLiteral("must start after")}},
                    {QStringLiteral("before"),
                     {mine.end <= its.start, QStringLiteral("must end before")}},
                    {QStringLiteral("during"),
                     {its.start <= mine.start && mine.end <= its.end,
                      QStringLiteral("must happen during")}},
                };
                const auto kind = kinds.find(constraint.kind);
                if (kind != kinds.end() && !kind->second.first)
                    add(QStringLiteral("\"%1\" %2 \"%3\", but does not.")
                            .arg(title(*e), kind->second.second, title(*other)),
                        {e->id(), other->id()});
            }
        }
    }

    const vl::core::Project &m_project;
    std::vector<Event *> m_events;
    std::map<Id, std::vector<const Event *>> m_index;
    std::map<std::pair<Id, Id>, double> m_routes;
    Conflicts m_conflicts;
};
