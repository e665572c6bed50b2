#include "app/text/manuscript.h"

#include "app/text/chapterheading.h"
#include "core/project.h"

#include <algorithm>
#include <vector>

namespace vl::app {

using core::Document;
using core::DocumentKind;
using core::DocumentTree;

namespace {

/// The text that the editor shows: the active variant, or the body when there is no such variant.
const QString &shownText(const Document &document)
{
    const core::DocumentVariants &variants = document.variants();
    if (!variants.activeVariant.isEmpty()) {
        for (const core::DocumentVariant &variant : variants.variants) {
            if (variant.name == variants.activeVariant)
                return variant.body;
        }
    }
    return document.body();
}

/// The tree without its notes: what stood below one moves up by a step.
std::vector<DocumentTree::Place> placesWithoutNotes(const DocumentTree &tree)
{
    std::vector<DocumentTree::Place> places;
    std::vector<int> noteDepths; // of the notes above the present place
    for (const DocumentTree::Place &place : tree.inOrder()) {
        while (!noteDepths.empty() && noteDepths.back() >= place.depth)
            noteDepths.pop_back();
        if (place.document->documentKind() == DocumentKind::Note)
            noteDepths.push_back(place.depth);
        else
            places.push_back({place.document, place.depth - int(noteDepths.size())});
    }
    return places;
}

bool isChapterTitle(const QString &title)
{
    const auto heading = readChapterHeading(title);
    if (!heading)
        return false;
    // "C" is a hundred as well as a letter, so that a mere number counts only where it begins
    return heading->rank == HeadingRank::Chapter
           || (heading->rank == HeadingRank::Numeral && heading->number == 1);
}

bool makesPart(const DocumentTree::Place &below)
{
    return below.depth > 1 || (below.depth == 1 && isChapterTitle(below.document->title()));
}

} // namespace

Manuscript readManuscript(const core::Project &project)
{
    const std::vector<DocumentTree::Place> places = placesWithoutNotes(project.documentTree());
    Manuscript manuscript;
    manuscript.entries.reserve(qsizetype(places.size()));
    int topLevel = 1;
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        if (place->depth == 0) {
            const auto next = std::find_if(place + 1, places.cend(),
                                           [](const auto &below) { return below.depth == 0; });
            topLevel = std::any_of(place + 1, next, makesPart) ? 0 : 1;
        }
        const Document &document = *place->document;
        manuscript.entries.append({std::min(2, topLevel + place->depth), document.title(),
                                   shownText(document), document.id(), document.documentKind()});
    }
    return manuscript;
}

} // namespace vl::app
