#include "core/content/document.h"

#include "core/documenttree.h"

namespace vl::core {

Document::Document(const ContentId &id, DocumentKind kind, const QString &title)
    : ContentObject(id, staticKind)
    , m_documentKind(kind)
    , m_title(title)
{
}

Document::~Document() = default;

void Document::setParentId(const ContentId &parentId)
{
    if (parentId == m_parentId)
        return;
    DocumentTree *tree = m_tree;
    if (tree)
        tree->remove(*this);
    m_parentId = parentId;
    if (tree)
        tree->insert(*this);
}

} // namespace vl::core
