#pragma once

#include "app/models/fuzzy.h"
#include "core/id.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <vector>

namespace vl::core {
class ChangeSet;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// The names of the documents and entities of the open project, ready to be searched at each key.
/// It is made on first use and then follows the history object by object.
class QuickOpenIndex final : public QObject
{
    Q_OBJECT

public:
    /// A document or entity that answers a query.
    struct Hit
    {
        core::ContentId id;
        int score = 0;  ///< the higher the better
        int alias = -1; ///< which of the entity's aliases matched; -1 for the name or title itself
    };
    struct Tag
    {
        QString name;
        int objects = 0; ///< how many documents and entities carry it
    };

    explicit QuickOpenIndex(Workspace &workspace, QObject *parent = nullptr);

    /// Everything that all words match, in no order. A word may match the name, an alias or, if
    /// another one does, the name of the parent or category. Only when nothing matches as it is
    /// typed are words with one mistake tried.
    std::vector<Hit> find(const QList<FuzzyWord> &words);
    /// The same among the objects that carry a tag.
    std::vector<Hit> findTagged(const QString &tag, const QList<FuzzyWord> &words);
    /// All tags of documents and entities by name.
    QList<Tag> tags() const;

    /// The name of an object, empty for one that is not in the project.
    QString nameOf(const core::ContentId &id) const;
    /// What stands above it, from the outside in: parents of a document, categories of an entity.
    QStringList pathOf(const core::ContentId &id) const;

private:
    struct Entry
    {
        core::ContentId id;
        core::ContentId aboveId; ///< the parent document or the category
        FuzzyText name;
        std::vector<FuzzyText> aliases;
    };

    void fill();
    void apply(const core::ChangeSet &changes);
    void refresh(const core::ContentId &id);
    void remove(const core::ContentId &id);
    void refreshCategories();
    const FuzzyText *nameAbove(const Entry &entry) const;
    bool match(const Entry &entry, const QList<FuzzyWord> &words, bool allowsMistake,
               Hit &hit) const;

    Workspace &m_workspace;
    bool m_isFilled = false;
    std::vector<Entry> m_entries;
    QHash<core::ContentId, qsizetype> m_places; ///< of the entries
    QHash<core::ContentId, FuzzyText> m_categories;
};

} // namespace vl::app
