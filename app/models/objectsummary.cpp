#include "app/models/objectsummary.h"

#include "app/models/objecttexts.h"
#include "app/time/calendartext.h"
#include "core/content/canvas.h"
#include "core/content/chart.h"
#include "core/content/comment.h"
#include "core/content/language.h"
#include "core/content/map.h"
#include "core/content/media.h"
#include "core/content/randomtable.h"
#include "core/content/source.h"
#include "core/content/spreadsheet.h"
#include "core/content/statblock.h"
#include "core/content/task.h"
#include "core/content/timeline.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

namespace vl::app {

using core::ContentId;
using core::ContentKind;
using core::ContentObject;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ObjectSummary)
};

QString number(qsizetype value)
{
    return QLocale().toString(qlonglong(value));
}

QString nameOf(const core::Project &project, const ContentId &id)
{
    const ContentObject *object = project.find(id);
    return object ? rowText(titleOf(*object)) : Texts::tr("(missing)");
}

QString eventSummary(const core::Project &project, const core::TimelineEventData &event)
{
    QStringList lines{formatInstant(project.calendar(), event.startMinute)};
    if (!event.locationId.isNull())
        lines.append(Texts::tr("Place: %1").arg(nameOf(project, event.locationId)));
    QStringList names;
    for (const ContentId &id : event.participants)
        names.append(nameOf(project, id));
    if (!names.isEmpty())
        lines.append(Texts::tr("With %1").arg(names.join(QLatin1String(", "))));
    return lines.join(u'\n');
}

} // namespace

QString summaryOf(const core::Project &project, const ContentObject &object)
{
    const auto lines = [](std::initializer_list<QString> list) {
        return QStringList(list).join(u'\n');
    };
    switch (object.kind()) {
    case ContentKind::Spreadsheet: {
        const auto &sheet = static_cast<const core::Spreadsheet &>(object);
        return Texts::tr("%n cell(s)", nullptr, int(sheet.grid().cells.size()));
    }
    case ContentKind::Chart: {
        const core::ChartData &chart = static_cast<const core::Chart &>(object).data();
        return lines(
            {chart.kind, Texts::tr("%n row(s) of figures", nullptr, int(chart.series.size()))});
    }
    case ContentKind::Map: {
        const auto &map = static_cast<const core::Map &>(object);
        return lines({Texts::tr("%n pin(s)", nullptr, int(map.pins().size())),
                      Texts::tr("%n region(s)", nullptr, int(map.regions().size())),
                      Texts::tr("%n route(s)", nullptr, int(map.routes().size()))});
    }
    case ContentKind::Timeline: {
        int events = 0;
        for (const auto *event : project.all<core::TimelineEvent>())
            events += event->data().timelineId == object.id();
        return Texts::tr("%n event(s)", nullptr, events);
    }
    case ContentKind::TimelineEvent:
        return eventSummary(project, static_cast<const core::TimelineEvent &>(object).data());
    case ContentKind::Media:
        return static_cast<const core::Media &>(object).assetPath();
    case ContentKind::Source:
        return static_cast<const core::Source &>(object).data().sourceType;
    case ContentKind::Task: {
        const auto &task = static_cast<const core::Task &>(object);
        QStringList list{task.isDone() ? Texts::tr("Done") : Texts::tr("Not done"), task.board()};
        if (task.dueDate().isValid())
            list.append(
                Texts::tr("Due %1").arg(QLocale().toString(task.dueDate(), QLocale::ShortFormat)));
        if (!task.targetId().isNull())
            list.append(Texts::tr("About %1").arg(nameOf(project, task.targetId())));
        return list.join(u'\n');
    }
    case ContentKind::Canvas:
        return Texts::tr("%n card(s)", nullptr,
                         int(static_cast<const core::Canvas &>(object).cards().size()));
    case ContentKind::Comment: {
        const auto &comment = static_cast<const core::Comment &>(object);
        return lines(
            {comment.data().author, Texts::tr("On %1").arg(nameOf(project, comment.targetId()))});
    }
    case ContentKind::Language:
        return Texts::tr("%n word(s) in the lexicon", nullptr,
                         int(static_cast<const core::Language &>(object).data().lexicon.size()));
    case ContentKind::RandomTable:
        return Texts::tr("%n line(s) to roll", nullptr,
                         int(static_cast<const core::RandomTable &>(object).data().entries.size()));
    case ContentKind::StatBlock: {
        const core::StatBlockData &block = static_cast<const core::StatBlock &>(object).data();
        return lines(
            {block.system, Texts::tr("%1 figures, %2 actions")
                               .arg(number(block.stats.size()), number(block.actions.size()))});
    }
    case ContentKind::Document:
    case ContentKind::Entity:
        break;
    }
    return {};
}

} // namespace vl::app
