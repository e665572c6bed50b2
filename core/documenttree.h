#pragma once

#include "core/content/document.h"

#include <QtCore/QHash>

#include <vector>

namespace vl::core {

/// The documents of a project by their parent, kept up to date as documents come, go and move.
/// It owns nothing; Project fills it.
class DocumentTree
{
public:
    DocumentTree() = default;
    DocumentTree(const DocumentTree &) = delete;
    DocumentTree &operator=(const DocumentTree &) = delete;

    /// The documents whose parent id this is, by sort index, equal ones in id order.
    /// The null id names the top level.
    std::vector<Document *> children(const ContentId &parentId) const;
    bool hasChildren(const ContentId &parentId) const { return m_children.contains(parentId); }

    /// All documents, depth first, each once: below the top level first, then those whose parent
    /// is lost, then those that only a cycle of parents holds. The depth is 0 at each root.
    struct Place
    {
        Document *document = nullptr;
        int depth = 0;
    };
    std::vector<Place> inOrder() const;

    void insert(Document &document);
    void remove(Document &document);

private:
    QHash<ContentId, std::vector<Document *>> m_children;
};

} // namespace vl::core
