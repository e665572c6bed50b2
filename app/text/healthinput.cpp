#include "app/text/healthreport.h"

#include "app/text/manuscript.h"
#include "core/content/entity.h"
#include "core/project.h"

#include <algorithm>

namespace vl::app {

HealthInput readHealthInput(const core::Project &project, const QString &title)
{
    HealthInput input;
    input.title = title;
    const Manuscript manuscript = readManuscript(project);
    input.documents.reserve(manuscript.entries.size());
    for (const ManuscriptEntry &entry : manuscript.entries) {
        HealthDocument document{entry.title, entry.text, QString(), QString()};
        if (const auto *source = project.find<core::Document>(entry.documentId)) {
            document.pointOfView = source->pointOfView();
            document.status = source->status();
        }
        input.documents.append(document);
    }

    const auto places = project.taxonomy().inTreeOrder();
    std::map<core::ContentId, size_t> rankOf;
    for (size_t rank = 0; rank < places.size(); ++rank)
        rankOf.emplace(places[rank].category->id, rank);
    struct Ranked
    {
        size_t rank;
        const core::Entity *entity;
    };
    std::vector<Ranked> entities;
    for (const core::Entity *entity : project.all<core::Entity>()) {
        const auto rank = rankOf.find(entity->categoryId());
        entities.push_back({rank == rankOf.end() ? places.size() : rank->second, entity});
    }
    std::stable_sort(entities.begin(), entities.end(), [](const Ranked &a, const Ranked &b) {
        if (a.rank != b.rank)
            return a.rank < b.rank;
        return a.entity->name().compare(b.entity->name(), Qt::CaseInsensitive) < 0;
    });
    for (const Ranked &ranked : entities) {
        const QString category =
            ranked.rank < places.size() ? places[ranked.rank].category->name : QString();
        input.entities.append({ranked.entity->name(), ranked.entity->aliases(), category});
    }
    return input;
}

} // namespace vl::app
