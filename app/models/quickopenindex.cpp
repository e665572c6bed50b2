#include "app/models/quickopenindex.h"

#include "app/models/objectpath.h"
#include "app/models/workspace.h"
#include "core/content/document.h"
#include "core/content/entity.h"

#include <algorithm>
#include <map>

namespace vl::app {

using core::ContentId;
using core::Document;
using core::Entity;

namespace {

constexpr int aliasCost = 6;

} // namespace

QuickOpenIndex::QuickOpenIndex(Workspace &workspace, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
{
    connect(&workspace, &Workspace::changed, this, &QuickOpenIndex::apply);
    connect(&workspace, &Workspace::projectReplaced, this, [this] {
        m_isFilled = false;
        m_entries.clear();
        m_places.clear();
        m_categories.clear();
    });
}

void QuickOpenIndex::fill()
{
    if (m_isFilled)
        return;
    m_isFilled = true;
    const core::Project &project = m_workspace.project();
    refreshCategories();
    for (const Document *document : project.all<Document>())
        refresh(document->id());
    for (const Entity *entity : project.all<Entity>())
        refresh(entity->id());
}

void QuickOpenIndex::apply(const core::ChangeSet &changes)
{
    if (!m_isFilled)
        return;
    if (!changes.categories().empty())
        refreshCategories();
    for (const auto &[id, change] : changes.objects()) {
        if (change == core::ChangeSet::Change::Removed)
            remove(id);
        else
            refresh(id);
    }
}

void QuickOpenIndex::refresh(const ContentId &id)
{
    Entry entry;
    entry.id = id;
    const core::ContentObject *object = m_workspace.project().find(id);
    if (const auto *document = core::contentCast<Document>(object)) {
        entry.aboveId = document->parentId();
        entry.name = FuzzyText(document->title());
    } else if (const auto *entity = core::contentCast<Entity>(object)) {
        entry.aboveId = entity->categoryId();
        entry.name = FuzzyText(entity->name());
        for (const QString &alias : entity->aliases())
            entry.aliases.emplace_back(alias);
    } else {
        return;
    }
    const auto place = m_places.constFind(id);
    if (place != m_places.cend()) {
        m_entries[size_t(*place)] = std::move(entry);
        return;
    }
    m_places.insert(id, qsizetype(m_entries.size()));
    m_entries.push_back(std::move(entry));
}

void QuickOpenIndex::remove(const ContentId &id)
{
    const auto found = m_places.constFind(id);
    if (found == m_places.cend())
        return;
    const qsizetype place = *found;
    m_places.erase(found);
    if (place + 1 < qsizetype(m_entries.size())) {
        m_entries[size_t(place)] = std::move(m_entries.back());
        m_places[m_entries[size_t(place)].id] = place;
    }
    m_entries.pop_back();
}

void QuickOpenIndex::refreshCategories()
{
    m_categories.clear();
    const core::Taxonomy &taxonomy = m_workspace.project().taxonomy();
    for (const ContentId &id : taxonomy.ids())
        m_categories.insert(id, FuzzyText(taxonomy.find(id)->name));
}

const FuzzyText *QuickOpenIndex::nameAbove(const Entry &entry) const
{
    const auto category = m_categories.constFind(entry.aboveId);
    if (category != m_categories.cend())
        return &*category;
    const auto parent = m_places.constFind(entry.aboveId);
    return parent == m_places.cend() ? nullptr : &m_entries[size_t(*parent)].name;
}

bool QuickOpenIndex::match(const Entry &entry, const QList<FuzzyWord> &words, bool allowsMistake,
                           Hit &hit) const
{
    const auto scoreOf = [allowsMistake](const FuzzyWord &word, const FuzzyText &text) {
        return allowsMistake ? word.scoreWithMistake(text) : word.score(text);
    };
    bool matches = false;
    const auto aliases = int(entry.aliases.size());
    for (int alias = -1; alias < aliases; ++alias) {
        const FuzzyText &face = alias < 0 ? entry.name : entry.aliases[size_t(alias)];
        int total = alias < 0 ? 0 : -aliasCost;
        bool anyHere = false;
        bool all = true;
        for (const FuzzyWord &word : words) {
            std::optional<int> score = scoreOf(word, face);
            anyHere = anyHere || score;
            if (!score && words.size() > 1) {
                const FuzzyText *above = nameAbove(entry);
                score = above ? scoreOf(word, *above) : std::nullopt;
                if (score)
                    score = *score / 2;
            }
            if (!score) {
                all = false;
                break;
            }
            total += *score;
        }
        if (all && anyHere && (!matches || total > hit.score)) {
            matches = true;
            hit = {entry.id, total, alias};
        }
    }
    return matches;
}

std::vector<QuickOpenIndex::Hit> QuickOpenIndex::find(const QList<FuzzyWord> &words)
{
    fill();
    std::vector<Hit> hits;
    for (const bool allowsMistake : {false, true}) {
        Hit hit;
        for (const Entry &entry : m_entries)
            if (match(entry, words, allowsMistake, hit))
                hits.push_back(hit);
        if (!hits.empty())
            break;
    }
    return hits;
}

std::vector<QuickOpenIndex::Hit> QuickOpenIndex::findTagged(const QString &tag,
                                                            const QList<FuzzyWord> &words)
{
    fill();
    std::vector<Hit> hits;
    Hit hit;
    for (const Entry &entry : m_entries) {
        const core::ContentObject *object = m_workspace.project().find(entry.id);
        if (!object || !object->tags().contains(tag))
            continue;
        if (words.isEmpty())
            hits.push_back({entry.id, 0, -1});
        else if (match(entry, words, false, hit))
            hits.push_back(hit);
    }
    return hits;
}

QList<QuickOpenIndex::Tag> QuickOpenIndex::tags() const
{
    std::map<QString, int> counts;
    const auto count = [&counts](const core::ContentObject &object) {
        for (const QString &tag : object.tags())
            ++counts[tag];
    };
    for (const Document *document : m_workspace.project().all<Document>())
        count(*document);
    for (const Entity *entity : m_workspace.project().all<Entity>())
        count(*entity);
    QList<Tag> list;
    for (const auto &[name, objects] : counts)
        list.append({name, objects});
    return list;
}

QString QuickOpenIndex::nameOf(const ContentId &id) const
{
    const core::ContentObject *object = m_workspace.project().find(id);
    if (const auto *document = core::contentCast<Document>(object))
        return document->title();
    const auto *entity = core::contentCast<Entity>(object);
    return entity ? entity->name() : QString();
}

QStringList QuickOpenIndex::pathOf(const ContentId &id) const
{
    return objectPath(m_workspace.project(), id);
}

} // namespace vl::app
