#include "app/text/import/importeddocument.h"

#include <limits>
#include <utility>

namespace vl::app {

std::vector<ImportedDocument> nestDocuments(std::vector<LevelledDocument> documents)
{
    std::vector<ImportedDocument> roots;
    std::vector<LevelledDocument> open; // the last document read, with all those above it
    const auto closeDownTo = [&](int level) {
        while (!open.empty() && open.back().level >= level) {
            ImportedDocument done = std::move(open.back().document);
            open.pop_back();
            (open.empty() ? roots : open.back().document.children).push_back(std::move(done));
        }
    };
    for (LevelledDocument &next : documents) {
        closeDownTo(next.level);
        if (open.size() >= std::size_t(deepestImport))
            closeDownTo(open.back().level);
        open.push_back(std::move(next));
    }
    closeDownTo(std::numeric_limits<int>::min());
    return roots;
}

} // namespace vl::app
