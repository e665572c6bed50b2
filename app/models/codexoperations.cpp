#include "app/models/codexoperations.h"

#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/commands/codexcommands.h"
#include "core/commands/compositecommand.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "core/content/task.h"

#include <QtCore/QLocale>
#include <QtCore/QMimeData>
#include <QtCore/QSet>

#include <algorithm>

namespace vl::app {

using core::Category;
using core::ContentId;
using core::Entity;

namespace {

const QLatin1String cutMark("cut");

QSet<ContentId> setOf(const QList<ContentId> &ids)
{
    return {ids.cbegin(), ids.cend()};
}

/// A key of letters and digits that no field has yet: "Eye colour" gives "eyeColour".
QString freeKey(const QString &label, const QSet<QString> &taken)
{
    QString key;
    bool startsWord = false;
    for (const QChar c : label.simplified()) {
        if (!c.isLetterOrNumber() && !c.isSurrogate()) {
            startsWord = !key.isEmpty();
            continue;
        }
        key += startsWord ? c.toUpper() : key.isEmpty() ? c.toLower() : c;
        startsWord = false;
    }
    if (key.isEmpty())
        key = QStringLiteral("field");
    QString free = key;
    for (int number = 2; taken.contains(free); ++number)
        free = key + QString::number(number);
    return free;
}

} // namespace

QString codexMimeType()
{
    return QStringLiteral("application/x-ivorel-codex");
}

QList<core::FieldDefinition> codexFields(const core::Project &project, const ContentId &categoryId)
{
    QList<const Category *> path;
    for (const Category *category = project.taxonomy().find(categoryId);
         category && !path.contains(category);
         category = project.taxonomy().find(category->parentId))
        path.prepend(category);
    QList<core::FieldDefinition> fields;
    QHash<QString, qsizetype> places;
    for (const Category *category : std::as_const(path)) {
        for (const core::FieldDefinition &field : category->fields) {
            const auto known = places.constFind(field.key);
            if (known != places.constEnd()) {
                fields[*known] = field;
            } else {
                places.insert(field.key, fields.size());
                fields.append(field);
            }
        }
    }
    return fields;
}

Entity *CodexOperations::entity(const ContentId &id) const
{
    return m_workspace.project().find<Entity>(id);
}

bool CodexOperations::isCategory(const ContentId &id) const
{
    return m_workspace.project().taxonomy().contains(id);
}

ContentId CodexOperations::categoryAt(const ContentId &id) const
{
    if (isCategory(id))
        return id;
    const Entity *found = entity(id);
    return found && isCategory(found->categoryId()) ? found->categoryId() : ContentId();
}

CodexOperations::Ids CodexOperations::entitiesOf(const Ids &ids) const
{
    Ids list;
    QSet<ContentId> seen;
    for (const ContentId &id : ids) {
        if (entity(id) && !seen.contains(id))
            list.append(id);
        seen.insert(id);
    }
    return list;
}

CodexOperations::Ids CodexOperations::categoriesOf(const Ids &ids) const
{
    Ids list;
    for (const ContentId &id : ids)
        if (isCategory(id) && !list.contains(id))
            list.append(id);
    return list;
}

void CodexOperations::pushAll(const QString &label, Commands commands)
{
    if (commands.empty())
        return;
    // One command that holds them all, so that what shows them hears of it once.
    auto step = std::make_unique<core::CompositeCommand>(label);
    for (auto &command : commands)
        step->append(std::move(command));
    m_workspace.push(std::move(step));
}

// --- adding

ContentId CodexOperations::addCategory(const ContentId &parent, const QString &name)
{
    Category category;
    category.id = ContentId::create();
    category.name = name.isEmpty() ? tr("New Category") : name;
    category.parentId = isCategory(parent) ? parent : ContentId();
    m_workspace.push<core::AddCategoryCommand>(m_workspace.project(), category);
    return category.id;
}

ContentId CodexOperations::addEntity(const ContentId &category, const QString &name)
{
    Commands commands;
    auto added =
        std::make_unique<Entity>(ContentId::create(), isCategory(category) ? category : ContentId(),
                                 name.isEmpty() ? tr("New Entity") : name);
    const ContentId id = added->id();
    commands.push_back(
        std::make_unique<core::AddObjectCommand>(m_workspace.project(), std::move(added)));
    pushAll(tr("Add entity"), std::move(commands));
    return id;
}

ContentId CodexOperations::addFromTemplate(qsizetype position, const ContentId &otherwise)
{
    const QList<core::EntityTemplate> &templates = m_workspace.project().entityTemplates();
    if (position < 0 || position >= templates.size())
        return {};
    const core::EntityTemplate &chosen = templates.at(position);
    const ContentId category = isCategory(chosen.categoryId) ? chosen.categoryId
                               : isCategory(otherwise)       ? otherwise
                                                             : ContentId();
    auto added = std::make_unique<Entity>(ContentId::create(), category, chosen.name);
    added->setValues(chosen.fieldValues);
    const ContentId id = added->id();
    Commands commands;
    commands.push_back(
        std::make_unique<core::AddObjectCommand>(m_workspace.project(), std::move(added)));
    pushAll(tr("Add entity"), std::move(commands));
    return id;
}

ContentId CodexOperations::addTask(const ContentId &target, const QString &title)
{
    auto task = std::make_unique<core::Task>(ContentId::create(), title.simplified());
    task->setTargetId(target);
    qint32 last = -1;
    for (const core::Task *other : m_workspace.project().all<core::Task>())
        last = std::max(last, other->sortIndex());
    task->setSortIndex(last + 1);
    const ContentId id = task->id();
    Commands commands;
    commands.push_back(
        std::make_unique<core::AddObjectCommand>(m_workspace.project(), std::move(task)));
    pushAll(tr("Add task"), std::move(commands));
    return id;
}

bool CodexOperations::addField(const ContentId &category, core::FieldDefinition field)
{
    field.label = field.label.simplified();
    if (field.label.isEmpty() || !isCategory(category))
        return false;
    QSet<QString> taken;
    for (const core::FieldDefinition &other : codexFields(m_workspace.project(), category))
        taken.insert(other.key);
    field.key = freeKey(field.label, taken);
    m_workspace.push<core::AddFieldCommand>(m_workspace.project(), category, field);
    return true;
}

bool CodexOperations::rename(const ContentId &id, const QString &name)
{
    const QString text = name.simplified();
    if (text.isEmpty())
        return false;
    if (const Category *category = m_workspace.project().taxonomy().find(id)) {
        if (category->name == text)
            return false;
        m_workspace.push<core::RenameCategoryCommand>(m_workspace.project(), id, text);
        return true;
    }
    Entity *renamed = entity(id);
    if (!renamed || renamed->name() == text)
        return false;
    m_workspace.push<core::SetEntityNameCommand>(*renamed, text);
    return true;
}

// --- removing

QString CodexOperations::removalQuestion(const Ids &ids) const
{
    const Ids categories = categoriesOf(ids);
    const Ids entities = entitiesOf(ids);
    if (categories.size() == 1 && entities.isEmpty())
        return tr("Delete “%1”? Its entities move up to the parent. Edit › Undo will restore it.")
            .arg(rowText(m_workspace.project().taxonomy().find(categories.first())->name));
    if (categories.isEmpty() && entities.size() == 1)
        return tr("Delete “%1”?").arg(rowText(entity(entities.first())->name()));
    QStringList parts;
    if (!categories.isEmpty())
        parts.append(tr("%n category(ies)", nullptr, int(categories.size())));
    if (!entities.isEmpty())
        parts.append(tr("%n entity(ies)", nullptr, int(entities.size())));
    return parts.size() == 2 ? tr("Delete %1 and %2?").arg(parts.at(0), parts.at(1))
                             : tr("Delete %1?").arg(parts.value(0));
}

QString CodexOperations::removalDetail(const Ids &ids) const
{
    const Ids categories = categoriesOf(ids);
    if (categories.isEmpty())
        return tr("Edit › Undo will restore it.");
    const QSet<ContentId> gone = setOf(ids);
    int moving = 0;
    for (const Entity *other : m_workspace.project().all<Entity>())
        moving += gone.contains(other->categoryId()) && !gone.contains(other->id());
    const QString text = tr("%n entity(ies) move up.", nullptr, moving);
    const bool toldAlready = categories.size() == 1 && entitiesOf(ids).isEmpty();
    return toldAlready ? text : text + u' ' + tr("Edit › Undo will restore it.");
}

QString CodexOperations::removalAction(const Ids &ids) const
{
    const int categories = int(categoriesOf(ids).size());
    const int entities = int(entitiesOf(ids).size());
    if (categories > 0 && entities > 0)
        return tr("Delete %n Row(s)", nullptr, categories + entities);
    return categories > 0 ? tr("Delete %n Category(ies)", nullptr, categories)
                          : tr("Delete %n Entity(ies)", nullptr, entities);
}

void CodexOperations::remove(const Ids &ids)
{
    core::Project &project = m_workspace.project();
    const Ids categories = categoriesOf(ids);
    const Ids entities = entitiesOf(ids);
    const QSet<ContentId> gone = setOf(ids);
    Commands commands;
    for (const ContentId &id : entities) {
        if (project.isPinned(id))
            commands.push_back(std::make_unique<core::SetPinnedCommand>(project, id, false));
        commands.push_back(std::make_unique<core::RemoveObjectCommand>(project, id));
    }
    // The nearest category above that stays.
    QHash<ContentId, ContentId> heirs;
    for (const ContentId &id : categories) {
        QSet<ContentId> seen;
        const Category *heir = project.taxonomy().find(id);
        while (heir && gone.contains(heir->id) && !seen.contains(heir->id)) {
            seen.insert(heir->id);
            heir = project.taxonomy().find(heir->parentId);
        }
        heirs.insert(id, heir && !gone.contains(heir->id) ? heir->id : ContentId());
    }
    if (!categories.isEmpty())
        for (Entity *other : project.all<Entity>())
            if (heirs.contains(other->categoryId()) && !gone.contains(other->id()))
                commands.push_back(std::make_unique<core::SetEntityCategoryCommand>(
                    *other, heirs.value(other->categoryId())));
    for (const ContentId &id : categories)
        commands.push_back(std::make_unique<core::RemoveCategoryCommand>(project, id));
    pushAll(categories.isEmpty() ? tr("Delete %n entity(ies)", nullptr, int(entities.size()))
            : entities.isEmpty() ? tr("Delete %n category(ies)", nullptr, int(categories.size()))
                                 : tr("Delete from the codex"),
            std::move(commands));
}

// --- copies

ContentId CodexOperations::copyOf(const Entity &original, const ContentId &category,
                                  const QString &name, Commands &commands) const
{
    auto copy = std::make_unique<Entity>(ContentId::create(), category, name);
    copy->setValues(original.values());
    copy->setAliases(original.aliases());
    copy->setGallery(original.gallery());
    copy->setLifespan(original.lifespan());
    copy->setTimedValues(original.timedValues());
    copy->setTags(original.tags());
    copy->setVisibleTo(original.visibleTo());
    copy->setAiExcluded(original.isAiExcluded());
    const ContentId id = copy->id();
    commands.push_back(
        std::make_unique<core::AddObjectCommand>(m_workspace.project(), std::move(copy)));
    return id;
}

CodexOperations::Ids CodexOperations::duplicate(const Ids &ids)
{
    Commands commands;
    Ids copies;
    for (const ContentId &id : entitiesOf(ids)) {
        const Entity &original = *entity(id);
        copies.append(copyOf(original, original.categoryId(), tr("%1 (copy)").arg(original.name()),
                             commands));
    }
    pushAll(tr("Duplicate %n entity(ies)", nullptr, int(copies.size())), std::move(commands));
    return copies;
}

bool CodexOperations::canMove(const Ids &ids, const ContentId &category) const
{
    if (ids.isEmpty() || (!category.isNull() && !isCategory(category)))
        return false;
    return std::all_of(ids.begin(), ids.end(), [&](const ContentId &id) {
        return entity(id)
               || (isCategory(id) && !m_workspace.project().taxonomy().isWithin(category, id));
    });
}

void CodexOperations::move(const Ids &ids, const ContentId &category)
{
    if (!canMove(ids, category))
        return;
    core::Project &project = m_workspace.project();
    Commands commands;
    const Ids categories = categoriesOf(ids);
    const QSet<ContentId> moved = setOf(categories);
    // What lies in a category that moves travels along with it.
    const auto travels = [&](const ContentId &parent, const ContentId &self = {}) {
        return std::any_of(moved.begin(), moved.end(), [&](const ContentId &id) {
            return id != self && project.taxonomy().isWithin(parent, id);
        });
    };
    for (const ContentId &id : categories) {
        const ContentId parent = project.taxonomy().find(id)->parentId;
        if (parent != category && !travels(parent, id))
            commands.push_back(std::make_unique<core::MoveCategoryCommand>(project, id, category));
    }
    int count = int(commands.size());
    for (const ContentId &id : entitiesOf(ids)) {
        Entity &mover = *entity(id);
        if (mover.categoryId() == category || travels(mover.categoryId()))
            continue;
        commands.push_back(std::make_unique<core::SetEntityCategoryCommand>(mover, category));
        ++count;
    }
    pushAll(tr("Move %n codex row(s)", nullptr, count), std::move(commands));
}

QMimeData *CodexOperations::mimeData(const Ids &ids, bool isCut) const
{
    QByteArray list;
    QStringList names;
    if (isCut)
        list = QByteArray(cutMark.data()) + '\n';
    for (const ContentId &id : ids) {
        list += id.toString().toLatin1() + '\n';
        if (const Entity *named = entity(id))
            names.append(named->name());
        else if (const Category *category = m_workspace.project().taxonomy().find(id))
            names.append(category->name);
    }
    auto *data = new QMimeData;
    data->setData(codexMimeType(), list);
    data->setText(names.join(u'\n'));
    return data;
}

CodexOperations::Ids CodexOperations::idsFrom(const QMimeData *data)
{
    Ids ids;
    if (!data || !data->hasFormat(codexMimeType()))
        return ids;
    for (const QByteArray &line : data->data(codexMimeType()).split('\n')) {
        const auto id = ContentId::fromString(QString::fromLatin1(line));
        if (!id.isNull())
            ids.append(id);
    }
    return ids;
}

bool CodexOperations::canPaste(const QMimeData *data) const
{
    const Ids ids = idsFrom(data);
    return std::any_of(ids.begin(), ids.end(),
                       [this](const ContentId &id) { return entity(id) || isCategory(id); });
}

CodexOperations::Ids CodexOperations::paste(const QMimeData *data, const ContentId &category)
{
    const Ids ids = idsFrom(data);
    const bool isCut = data && data->data(codexMimeType()).startsWith(cutMark.data());
    if (isCut && canMove(ids, category)) {
        move(ids, category);
        return ids;
    }
    Commands commands;
    Ids copies;
    for (const ContentId &id : entitiesOf(ids)) {
        const Entity &original = *entity(id);
        const bool isBeside = original.categoryId() == category;
        copies.append(copyOf(original, category,
                             isBeside ? tr("%1 (copy)").arg(original.name()) : original.name(),
                             commands));
    }
    pushAll(tr("Paste %n entity(ies)", nullptr, int(copies.size())), std::move(commands));
    return copies;
}

// --- pins, tags, templates

void CodexOperations::togglePin(const Ids &ids)
{
    core::Project &project = m_workspace.project();
    const Ids entities = entitiesOf(ids);
    const bool allPinned = std::all_of(entities.begin(), entities.end(),
                                       [&](const ContentId &id) { return project.isPinned(id); });
    Commands commands;
    for (const ContentId &id : entities)
        if (project.isPinned(id) == allPinned)
            commands.push_back(std::make_unique<core::SetPinnedCommand>(project, id, !allPinned));
    if (!commands.empty()) {
        const QString label = commands.front()->text();
        pushAll(label, std::move(commands));
    }
}

core::StringSet CodexOperations::commonTags(const Ids &ids) const
{
    core::StringSet common;
    bool isFirst = true;
    for (const ContentId &id : entitiesOf(ids)) {
        const core::StringSet &tags = entity(id)->tags();
        if (std::exchange(isFirst, false))
            common = tags;
        else
            std::erase_if(common, [&](const QString &tag) { return !tags.contains(tag); });
    }
    return common;
}

void CodexOperations::setCommonTags(const Ids &ids, const core::StringSet &tags)
{
    const core::StringSet before = commonTags(ids);
    Commands commands;
    for (const ContentId &id : entitiesOf(ids)) {
        Entity &tagged = *entity(id);
        core::StringSet now = tagged.tags();
        for (const QString &tag : before)
            now.erase(tag);
        now.insert(tags.begin(), tags.end());
        if (now != tagged.tags())
            commands.push_back(std::make_unique<core::SetObjectTagsCommand>(tagged, now));
    }
    if (!commands.empty()) {
        const QString label = commands.front()->text();
        pushAll(label, std::move(commands));
    }
}

void CodexOperations::saveAsTemplate(const ContentId &id, const QString &name)
{
    const Entity *original = entity(id);
    const QString text = name.simplified();
    if (!original || text.isEmpty())
        return;
    QList<core::EntityTemplate> templates = m_workspace.project().entityTemplates();
    templates.removeIf([&](const core::EntityTemplate &other) { return other.name == text; });
    templates.append({text, original->categoryId(), original->values()});
    setTemplates(templates);
}

void CodexOperations::setTemplates(const QList<core::EntityTemplate> &templates)
{
    if (templates != m_workspace.project().entityTemplates())
        m_workspace.push<core::SetEntityTemplatesCommand>(m_workspace.project(), templates);
}

} // namespace vl::app
