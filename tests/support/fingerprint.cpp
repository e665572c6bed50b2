#include "tests/support/fingerprint.h"

#include "tests/support/modelmembers.h"

namespace vl::test {

using namespace vl::core;

namespace {

template<typename Tag>
void print(QString &out, const Id<Tag> &id)
{
    out += id.toString();
}
void print(QString &out, const QString &text)
{
    // The length keeps two neighbours from running into each other.
    out += QString::number(text.size()) + QLatin1Char(':') + text;
}
void print(QString &out, double number)
{
    out += QString::number(number, 'g', 17);
}
template<typename T>
requires(std::is_integral_v<T> || std::is_enum_v<T>) void print(QString &out, T number)
{
    out += QString::number(qint64(number));
}
void print(QString &out, const QDate &date)
{
    out += QString::number(date.toJulianDay());
}
void print(QString &out, const QDateTime &time)
{
    out += time.toUTC().toString(Qt::ISODateWithMs);
}
template<typename T>
void print(QString &out, const std::optional<T> &value);
template<Record T>
void print(QString &out, const T &record);
template<typename A, typename B>
void print(QString &out, const std::pair<A, B> &pair);
/// Lists, sets and maps.
template<typename T>
requires(requires(const T &list) { list.begin(); }
         && !std::same_as<T, QString>) void print(QString &out, const T &list)
{
    out += QLatin1Char('[');
    for (const auto &item : list) {
        print(out, item);
        out += QLatin1Char(',');
    }
    out += QLatin1Char(']');
}
template<typename T>
void print(QString &out, const std::optional<T> &value)
{
    if (value)
        print(out, *value);
    else
        out += QLatin1String("none");
}
template<typename A, typename B>
void print(QString &out, const std::pair<A, B> &pair)
{
    print(out, pair.first);
    out += QLatin1Char('=');
    print(out, pair.second);
}
template<Record T>
void print(QString &out, const T &record)
{
    out += QLatin1Char('{');
    std::apply([&](const auto &...member) { ((print(out, member), out += QLatin1Char(',')), ...); },
               members(record));
    out += QLatin1Char('}');
}

template<typename... Values>
QStringList lines(const Values &...values)
{
    QStringList list;
    const auto add = [&list](const auto &value) {
        QString line;
        print(line, value);
        list.append(line);
    };
    (add(values), ...);
    return list;
}

// One overload a class; which one serves an object is chosen by its kind.
QStringList own(const Document &d)
{
    return lines(d.documentKind(), d.title(), d.body(), d.synopsis(), d.status(), d.pointOfView(),
                 d.tensionLevel(), d.sceneInstant(), d.wordCountTarget(), d.parentId(),
                 d.sortIndex(), d.sourceIds(), d.plotThreadIds(), d.revisionBaseline(),
                 d.versions(), d.variants(), d.footnotes());
}
QStringList own(const Entity &e)
{
    return lines(e.categoryId(), e.name(), e.values(), e.aliases(), e.gallery(), e.lifespan(),
                 e.timedValues());
}
QStringList own(const Spreadsheet &s)
{
    return lines(s.title(), s.grid(), s.formats(), s.sizes(), s.linkedCategoryId());
}
QStringList own(const Map &m)
{
    return lines(m.title(), m.imageAssetPath(), m.pins(), m.regions(), m.routes(), m.tokens(),
                 m.grid(), m.travelSettings());
}
QStringList own(const Timeline &t)
{
    return lines(t.title(), t.description(), t.sortIndex());
}
QStringList own(const Media &m)
{
    return lines(m.mediaKind(), m.caption(), m.assetPath(), m.annotations(), m.crop());
}
QStringList own(const Task &t)
{
    return lines(t.title(), t.description(), t.isDone(), t.board(), t.priority(), t.dueDate(),
                 t.status(), t.targetId(), t.sortIndex(), t.submission());
}
QStringList own(const Canvas &c)
{
    return lines(c.title(), c.cards(), c.connections());
}
QStringList own(const Comment &c)
{
    return lines(c.targetId(), c.data());
}
template<typename Whole>
requires(requires(const Whole &object) { object.data(); }) QStringList own(const Whole &object)
{
    return lines(object.data());
}

template<typename... Kinds>
QStringList ownOfAnyKind(const ContentObject &object)
{
    QStringList list;
    const auto take = [&](const auto *cast) {
        if (cast)
            list = own(*cast);
    };
    (take(contentCast<Kinds>(&object)), ...);
    return list;
}

} // namespace

QStringList fingerprint(const ContentObject &object)
{
    return lines(object.id(), object.kind(), object.visibleTo(), object.tags(),
                 object.isAiExcluded())
           + ownOfAnyKind<Document, Entity, Spreadsheet, Chart, Map, Timeline, TimelineEvent, Media,
                          Source, Task, Canvas, Comment, Language, RandomTable, StatBlock>(object);
}

QString fingerprint(const Category &category)
{
    QString text;
    print(text, category);
    return text;
}

ProjectPrint fingerprint(const Project &project)
{
    ProjectPrint result;
    for (const auto &[id, object] : project.objects())
        result.objects[id] = fingerprint(*object).join(QLatin1Char('\n'));
    for (const ContentId &id : project.taxonomy().ids())
        result.categories[id] = fingerprint(*project.taxonomy().find(id));
    const auto record = [&result](ProjectRecord name, const auto &value) {
        print(result.records[name], value);
    };
    record(ProjectRecord::Pinned, project.pinned());
    record(ProjectRecord::SavedSearches, project.savedSearches());
    record(ProjectRecord::EntityTemplates, project.entityTemplates());
    record(ProjectRecord::Audiences, project.audiences());
    record(ProjectRecord::PlotThreads, project.plotThreads());
    record(ProjectRecord::ContinuityRules, project.continuityRules());
    record(ProjectRecord::TimelineEras, project.timelineEras());
    record(ProjectRecord::TimelineMarkers, project.timelineMarkers());
    record(ProjectRecord::TimelineBookmarks, project.timelineBookmarks());
    record(ProjectRecord::BeatSheet, project.beatSheet());
    record(ProjectRecord::Mounts, project.mounts());
    record(ProjectRecord::WritingLog, project.writingLog());
    record(ProjectRecord::WritingGoal, project.writingGoal());
    record(ProjectRecord::Calendar, project.calendar());
    record(ProjectRecord::Reckonings, project.reckonings());
    record(ProjectRecord::TimelineView, project.timelineView());
    record(ProjectRecord::TimelineViewPresets, project.timelineViewPresets());
    return result;
}

} // namespace vl::test
