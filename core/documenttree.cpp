#include "core/documenttree.h"

#include <QtCore/QSet>

#include <algorithm>

namespace vl::core {

namespace {

bool standsBefore(const Document *a, const Document *b)
{
    return a->sortIndex() != b->sortIndex() ? a->sortIndex() < b->sortIndex() : a->id() < b->id();
}

} // namespace

std::vector<Document *> DocumentTree::children(const ContentId &parentId) const
{
    const auto found = m_children.constFind(parentId);
    if (found == m_children.constEnd())
        return {};
    std::vector<Document *> siblings = *found;
    std::sort(siblings.begin(), siblings.end(), standsBefore);
    return siblings;
}

std::vector<DocumentTree::Place> DocumentTree::inOrder() const
{
    std::vector<Place> places;
    QSet<ContentId> seen;
    std::vector<Place> stack; // the next document to visit stands at the end

    const auto visitFrom = [&](Document *root) {
        stack.push_back({root, 0});
        while (!stack.empty()) {
            const Place place = stack.back();
            stack.pop_back();
            if (seen.contains(place.document->id()))
                continue;
            seen.insert(place.document->id());
            places.push_back(place);
            std::vector<Document *> below = children(place.document->id());
            for (auto child = below.rbegin(); child != below.rend(); ++child)
                stack.push_back({*child, place.depth + 1});
        }
    };

    for (Document *root : children(ContentId()))
        visitFrom(root);

    std::vector<Document *> rest;
    for (const auto &siblings : m_children)
        for (Document *document : siblings)
            if (!seen.contains(document->id()))
                rest.push_back(document);
    if (rest.empty())
        return places;

    std::sort(rest.begin(), rest.end(), standsBefore);
    QSet<ContentId> unreached;
    for (const Document *document : rest)
        unreached.insert(document->id());
    for (Document *document : rest)
        if (!unreached.contains(document->parentId()))
            visitFrom(document); // its parent is gone
    for (Document *document : rest)
        if (!seen.contains(document->id()))
            visitFrom(document); // its parents form a cycle, opened here
    return places;
}

void DocumentTree::insert(Document &document)
{
    document.m_tree = this;
    m_children[document.parentId()].push_back(&document);
}

void DocumentTree::remove(Document &document)
{
    document.m_tree = nullptr;
    const auto found = m_children.find(document.parentId());
    Q_ASSERT(found != m_children.end());
    std::vector<Document *> &siblings = *found;
    siblings.erase(std::find(siblings.begin(), siblings.end(), &document));
    if (siblings.empty())
        m_children.erase(found);
}

} // namespace vl::core
