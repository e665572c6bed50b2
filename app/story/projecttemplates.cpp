#include "app/story/projecttemplates.h"

#include "app/story/storytemplates.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <iterator>

namespace vl::app {

namespace {

struct TemplateRow
{
    const char *id;
    const char *name;
    const char *description;
    void (*fill)(TemplateBuilder &builder);
};

void fillNothing(TemplateBuilder &) {}

constexpr TemplateRow rows[] = {
    {"blank", QT_TRANSLATE_NOOP("ProjectTemplates", "Blank"),
     QT_TRANSLATE_NOOP("ProjectTemplates", "Nothing but room to write."), fillNothing},
    {"novel", QT_TRANSLATE_NOOP("ProjectTemplates", "Novel"),
     QT_TRANSLATE_NOOP("ProjectTemplates",
                       "Three acts with chapters and scenes on a beat sheet, sheets for characters "
                       "and places, plot threads, and a list for the revision."),
     fillNovel},
    {"series", QT_TRANSLATE_NOOP("ProjectTemplates", "Series"),
     QT_TRANSLATE_NOOP("ProjectTemplates",
                       "Several books over one world: what is settled, what is promised, and how "
                       "each character stands at the end of each book."),
     fillSeries},
    {"screenplay", QT_TRANSLATE_NOOP("ProjectTemplates", "Screenplay"),
     QT_TRANSLATE_NOOP("ProjectTemplates",
                       "Sequences in screenplay form, logline and treatment, cast and locations."),
     fillScreenplay},
    {"campaign", QT_TRANSLATE_NOOP("ProjectTemplates", "Tabletop Campaign"),
     QT_TRANSLATE_NOOP("ProjectTemplates",
                       "Sessions, quests and factions, secrets that only the game master sees, and "
                       "random tables."),
     fillCampaign},
};

} // namespace

QList<ProjectTemplate> projectTemplates()
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("ProjectTemplates", source);
    };
    QList<ProjectTemplate> list;
    for (const TemplateRow &row : rows)
        list.append({QLatin1String(row.id), text(row.name), text(row.description)});
    return list;
}

bool fillFromTemplate(const QString &id, core::Project &project)
{
    const auto *row =
        std::find_if(std::begin(rows), std::end(rows),
                     [&id](const TemplateRow &each) { return id == QLatin1String(each.id); });
    if (row == std::end(rows))
        return false;
    TemplateBuilder builder(project);
    row->fill(builder);
    return true;
}

} // namespace vl::app
