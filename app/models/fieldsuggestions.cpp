#include "app/models/fieldsuggestions.h"

#include "app/models/objecttexts.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <set>

namespace vl::app {

using core::ContentId;
using core::Document;
using core::Entity;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::FieldSuggestions)
};

/// Whether entities of the category can tell a story: by its name, or by one of those above it.
bool holdsCharacters(const core::Project &project, const ContentId &id)
{
    const QStringList marks =
        searchText(Texts::tr("character;people;person;cast",
                             "parts of the names of categories that hold characters"))
            .split(u';', Qt::SkipEmptyParts);
    const QString path = searchText(categoryPathText(project, id));
    return std::any_of(marks.begin(), marks.end(),
                       [&](const QString &mark) { return path.contains(mark); });
}

void addCharacters(std::set<QString> &found, const core::Project &project)
{
    QHash<ContentId, bool> known;
    for (const Entity *entity : project.all<Entity>()) {
        const ContentId &category = entity->categoryId();
        auto place = known.find(category);
        if (place == known.end())
            place = known.insert(category, holdsCharacters(project, category));
        if (*place && !entity->name().isEmpty())
            found.insert(entity->name());
    }
}

} // namespace

QStringList suggestionsFor(const core::Project &project, const QString &key)
{
    std::set<QString> found;
    if (key == u"status" || key == u"pointOfView") {
        for (const Document *document : project.all<Document>())
            found.insert(key == u"status" ? document->status() : document->pointOfView());
        if (key == u"pointOfView")
            addCharacters(found, project);
    } else if (key == u"tags") {
        for (const auto &[id, object] : project.objects())
            found.insert(object->tags().begin(), object->tags().end());
    } else if (key == u"visibleTo") {
        return project.audiences();
    } else if (key == u"threads") {
        for (const core::PlotThread &thread : project.plotThreads())
            found.insert(thread.name);
    }
    found.erase(QString());
    QStringList list(found.begin(), found.end());
    list.sort(Qt::CaseInsensitive);
    return list;
}

} // namespace vl::app
