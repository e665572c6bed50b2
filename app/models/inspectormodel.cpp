#include "app/models/inspectormodel.h"

#include "app/base/wordcount.h"
#include "app/models/codexoperations.h"
#include "app/models/fieldsuggestions.h"
#include "app/models/inspectorforms.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "app/time/calendartext.h"
#include "app/time/dateparser.h"
#include "core/commands/codexcommands.h"
#include "core/commands/compositecommand.h"

#include <QtCore/QLocale>
#include <QtCore/QUrl>

#include <algorithm>

namespace vl::app {

using core::Category;
using core::ContentId;
using core::ContentObject;
using core::Entity;

namespace {

const QLatin1String nameKey("name");
const QLatin1String parentKey("parent");

bool isNumber(const QString &text)
{
    bool isPlain = false;
    QLocale::c().toDouble(text, &isPlain);
    bool isLocal = false;
    QLocale().toDouble(text, &isLocal);
    return isPlain || isLocal;
}

bool isWebAddress(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && (url.scheme() == u"http" || url.scheme() == u"https")
           && !url.host().isEmpty();
}

} // namespace

InspectorModel::InspectorModel(Workspace &workspace, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
{
    connect(&workspace, &Workspace::selectionChanged, this, &InspectorModel::showSelection);
    connect(&workspace, &Workspace::projectReplaced, this, &InspectorModel::forgetProject);
    connect(&workspace, &Workspace::changed, this, &InspectorModel::follow);
    showSelection();
}

InspectorModel::~InspectorModel() = default;

QList<ContentObject *> InspectorModel::objects() const
{
    QList<ContentObject *> list;
    list.reserve(m_ids.size());
    if (!m_isCategory)
        for (const ContentId &id : m_ids)
            if (ContentObject *object = m_workspace.project().find(id))
                list.append(object);
    return list;
}

const InspectorAccess *InspectorModel::access(const QString &key) const
{
    const auto found =
        std::find_if(m_accesses.begin(), m_accesses.end(),
                     [&](const InspectorAccess &access) { return access.field.key == key; });
    return found == m_accesses.end() ? nullptr : &*found;
}

// --- what is shown

void InspectorModel::showSelection()
{
    QList<ContentId> ids;
    const core::Project &project = m_workspace.project();
    const QList<ContentId> &selection = m_workspace.selection();
    for (const ContentId &id : selection)
        if (project.contains(id))
            ids.append(id);
    const bool isCategory =
        ids.isEmpty() && selection.size() == 1 && project.taxonomy().contains(selection.first());
    if (isCategory)
        ids.append(selection.first());
    if (ids == m_ids && isCategory == m_isCategory)
        return;
    Q_EMIT aboutToSwitch();
    m_ids = ids;
    m_isCategory = isCategory;
    rebuild();
    Q_EMIT formChanged();
}

void InspectorModel::forgetProject()
{
    m_ids.clear();
    m_isCategory = false;
    m_drafts.clear();
    rebuild();
    Q_EMIT formChanged();
}

bool InspectorModel::concerns(const core::ChangeSet &changes) const
{
    using core::ProjectRecord;
    for (const ProjectRecord record :
         {ProjectRecord::Calendar, ProjectRecord::Audiences, ProjectRecord::PlotThreads})
        if (changes.touches(record))
            return true;
    // The categories to choose from, and their fields.
    if (!changes.categories().empty())
        return true;
    return std::any_of(changes.objects().begin(), changes.objects().end(),
                       [this](const auto &row) { return m_related.contains(row.first); });
}

void InspectorModel::follow(const core::ChangeSet &changes)
{
    if (m_ids.isEmpty() || !concerns(changes))
        return;
    const QList<InspectorField> fieldsBefore = m_fields;
    const QHash<QString, State> before = m_states;
    const QString heading = m_heading;
    const qsizetype words = m_words;
    rebuild();
    if (m_fields != fieldsBefore || m_heading != heading) {
        Q_EMIT formChanged();
        return;
    }
    const QList<InspectorField> shown = m_fields; // a listener may change them
    for (const InspectorField &field : shown) {
        const bool isOther = m_states.value(field.key) != before.value(field.key);
        const bool isOwnView = field.editing == FieldEditing::TimedValues
                               || field.editing == FieldEditing::Pictures
                               || field.editing == FieldEditing::FieldList
                               || (field.editing == FieldEditing::Target && words != m_words);
        if (isOther || isOwnView)
            Q_EMIT fieldChanged(field.key);
    }
}

void InspectorModel::rebuild()
{
    m_accesses.clear();
    m_fields.clear();
    m_states.clear();
    m_words = 0;
    m_heading.clear();
    m_related = {m_ids.begin(), m_ids.end()};
    if (m_isCategory) {
        rebuildCategory();
        return;
    }
    const QList<ContentObject *> shown = objects();
    m_heading = headingFor(shown);
    m_accesses = inspectorForm(m_workspace.project(), shown);
    for (const InspectorAccess &access : std::as_const(m_accesses)) {
        m_fields.append(access.field);
        m_states.insert(access.field.key, stateOf(access, shown));
    }
    if (shown.size() == 1)
        if (const auto *document = core::contentCast<core::Document>(shown.first()))
            m_words = countWords(document->body());
}

void InspectorModel::rebuildCategory()
{
    const core::Taxonomy &taxonomy = m_workspace.project().taxonomy();
    const Category *category = taxonomy.find(m_ids.first());
    if (!category)
        return;
    m_heading = tr("Category");
    m_fields.append({nameKey, tr("Name"), FieldEditing::Line, {}, {}, true, {}});
    InspectorField parent{parentKey, tr("Under"), FieldEditing::Choice, {}, {}, false, {}};
    parent.options.append({QString(), tr("(top level)")});
    for (const core::Taxonomy::Place &place : taxonomy.inTreeOrder())
        if (!taxonomy.isWithin(place.category->id, category->id))
            parent.options.append({place.category->id.toString(),
                                   categoryPathText(m_workspace.project(), place.category->id)});
    m_fields.append(parent);
    m_fields.append({QStringLiteral("fields"),
                     tr("Fields of its entities"),
                     FieldEditing::FieldList,
                     {},
                     {},
                     false,
                     tr("Fields")});
    m_states.insert(nameKey, {category->name, category->name, false, {}});
    const QString above = category->parentId.isNull() ? QString() : category->parentId.toString();
    m_states.insert(parentKey, {above, above, false, {}});
    m_states.insert(QStringLiteral("fields"), {});
}

QString InspectorModel::headingFor(const QList<ContentObject *> &objects) const
{
    if (objects.isEmpty())
        return {};
    const core::ContentKind kind = objects.first()->kind();
    const bool isOneKind = std::all_of(objects.begin(), objects.end(),
                                       [&](const auto *object) { return object->kind() == kind; });
    const int count = int(objects.size());
    if (count == 1)
        return kindText(kind);
    if (isOneKind && kind == core::ContentKind::Entity)
        return tr("%n entity(ies)", nullptr, count);
    if (isOneKind && kind == core::ContentKind::Document)
        return tr("%n document(s)", nullptr, count);
    return tr("%n object(s)", nullptr, count);
}

InspectorModel::State InspectorModel::stateOf(const InspectorAccess &access,
                                              const QList<ContentObject *> &objects)
{
    State state;
    state.raw = access.read(*objects.first());
    const bool isTokens = access.field.editing == FieldEditing::Tokens;
    for (qsizetype i = 1; i < objects.size(); ++i) {
        const QVariant other = access.read(*objects[i]);
        if (other == state.raw)
            continue;
        state.isMixed = true;
        if (!isTokens) {
            state.raw = QVariant();
            break;
        }
        QStringList shared = state.raw.toStringList();
        const QStringList own = other.toStringList();
        shared.removeIf([&](const QString &text) { return !own.contains(text); });
        state.raw = shared;
    }
    if (!state.isMixed || isTokens)
        describe(state, access.field);
    const auto draft = m_drafts.constFind({m_ids.first(), access.field.key});
    if (draft != m_drafts.constEnd()) {
        state.value = *draft;
        state.isMixed = false;
        parsed(access.field, *draft, state.problem);
    }
    return state;
}

QString InspectorModel::shownInstant(const QVariant &raw) const
{
    return raw.isValid() ? formatInstant(m_workspace.project().calendar(), raw.toLongLong())
                         : QString();
}

void InspectorModel::describe(State &state, const InspectorField &field) const
{
    state.value = state.raw;
    const QString text = state.raw.toString();
    switch (field.editing) {
    case FieldEditing::Instant:
        state.value = shownInstant(state.raw);
        break;
    case FieldEditing::Reference: {
        const ContentId id = ContentId::fromString(text);
        const ContentObject *object = m_workspace.project().find(id);
        const_cast<QSet<ContentId> &>(m_related).insert(id);
        if (object)
            state.value = rowText(titleOf(*object));
        else if (!text.isEmpty())
            state.problem = id.isNull() ? tr("No entity is called so.")
                                        : tr("What it referred to was deleted.");
        break;
    }
    case FieldEditing::Date:
        if (!text.isEmpty() && !parseInstant(m_workspace.project().calendar(), text))
            state.problem = tr("Kept as written: no date of the calendar.");
        break;
    case FieldEditing::Number:
        if (!text.trimmed().isEmpty() && !isNumber(text.trimmed()))
            state.problem = tr("Kept as written: no number.");
        break;
    case FieldEditing::Url:
        if (!text.trimmed().isEmpty() && !isWebAddress(text.trimmed()))
            state.problem = tr("Kept as written: no web address.");
        break;
    default:
        break;
    }
    if (field.isRequired && text.trimmed().isEmpty() && state.problem.isEmpty())
        state.problem = tr("To be filled.");
}

// --- editing

std::optional<QVariant> InspectorModel::parsed(const InspectorField &field, const QVariant &typed,
                                               QString &problem) const
{
    QString text = typed.toString().trimmed();
    switch (field.editing) {
    case FieldEditing::Line:
        if ((field.key == nameKey || field.key == u"title") && field.isRequired && text.isEmpty()) {
            problem = tr("It needs a name.");
            return std::nullopt;
        }
        return text;
    case FieldEditing::Instant: {
        if (text.isEmpty())
            return QVariant();
        const core::Calendar &calendar = m_workspace.project().calendar();
        const std::optional<CalendarDate> date = parseInstant(calendar, text);
        if (!date) {
            problem =
                tr("No date of the calendar. Type one like “%1”.").arg(formatInstant(calendar, 0));
            return std::nullopt;
        }
        return QVariant(qlonglong(toInstant(calendar, *date)));
    }
    case FieldEditing::Reference:
        return text.isEmpty() ? QVariant(QString()) : parsedReference(text, problem);
    case FieldEditing::Number:
    case FieldEditing::Date:
    case FieldEditing::Url:
        return text;
    case FieldEditing::Level:
        return std::clamp(typed.toInt(), 0, 10);
    case FieldEditing::Target:
        return std::max(typed.toInt(), 0);
    default:
        return typed;
    }
}

std::optional<QVariant> InspectorModel::parsedReference(const QString &name, QString &problem) const
{
    const QString wanted = searchText(name).simplified();
    ContentId found;
    int count = 0;
    for (const bool byAlias : {false, true}) {
        for (const Entity *entity : m_workspace.project().all<Entity>()) {
            const QStringList names = byAlias ? entity->aliases() : QStringList{entity->name()};
            const bool matches = std::any_of(names.begin(), names.end(), [&](const QString &other) {
                return searchText(rowText(other)).simplified() == wanted;
            });
            if (!matches)
                continue;
            found = entity->id();
            ++count;
        }
        if (count > 0)
            break;
    }
    if (count == 1)
        return found.toString();
    problem =
        count == 0
            ? tr("No entity is called “%1”.").arg(rowText(name))
            : tr("Several entities are called “%1”: choose one from the list.").arg(rowText(name));
    return std::nullopt;
}

bool InspectorModel::setValue(const QString &key, const QVariant &value)
{
    if (m_ids.isEmpty())
        return false;
    if (m_isCategory)
        return setCategoryValue(key, value);
    const InspectorAccess *found = access(key);
    if (!found || !found->write || objects().isEmpty())
        return false;
    const InspectorAccess edited = *found; // the form may be made anew on the way
    const State before = m_states.value(key);
    QString problem;
    // What stands there as it was is no edit, also where the text is shorter than the value.
    const bool isSame = before.problem.isEmpty() && !before.isMixed && value == before.value;
    const std::optional<QVariant> raw =
        isSame ? std::optional(before.raw) : parsed(edited.field, value, problem);
    const Draft draft{m_ids.first(), key};
    if (!raw) {
        m_drafts.insert(draft, value);
        State &state = m_states[key];
        state.value = value;
        state.problem = problem;
        state.isMixed = false;
        Q_EMIT fieldChanged(key);
        return false;
    }
    const bool hadDraft = m_drafts.remove(draft) > 0;
    if (!isSame)
        write(edited, *raw);
    if (hadDraft && !m_ids.isEmpty()) {
        rebuild();
        Q_EMIT fieldChanged(key);
    }
    return true;
}

void InspectorModel::setReference(const QString &key, const ContentId &id)
{
    const InspectorAccess *found = access(key);
    if (!found || objects().isEmpty())
        return;
    const InspectorAccess edited = *found;
    m_drafts.remove({m_ids.first(), key});
    write(edited, id.isNull() ? QString() : id.toString());
    rebuild();
    Q_EMIT fieldChanged(key);
}

void InspectorModel::write(const InspectorAccess &access, const QVariant &raw)
{
    const QList<ContentObject *> targets = objects();
    const QVariant before = m_states.value(access.field.key).raw;
    std::vector<std::unique_ptr<core::Command>> commands;
    for (ContentObject *object : targets) {
        const bool isTokens = access.field.editing == FieldEditing::Tokens;
        if (isTokens ? raw == before : access.read(*object) == raw)
            continue;
        commands.push_back(access.write(*object, raw, before));
    }
    if (commands.size() == 1) {
        m_workspace.push(std::move(commands.front()));
    } else if (!commands.empty()) {
        auto step = std::make_unique<core::CompositeCommand>(commands.front()->text());
        for (auto &command : commands)
            step->append(std::move(command));
        m_workspace.push(std::move(step));
    }
}

bool InspectorModel::setCategoryValue(const QString &key, const QVariant &value)
{
    CodexOperations operations(m_workspace);
    if (key == nameKey) {
        if (value.toString().simplified().isEmpty()) {
            m_states[key].value = value;
            m_states[key].problem = tr("It needs a name.");
            Q_EMIT fieldChanged(key);
            return false;
        }
        operations.rename(m_ids.first(), value.toString());
    } else if (key == parentKey) {
        operations.move(m_ids, ContentId::fromString(value.toString()));
    }
    return true;
}

void InspectorModel::revert(const QString &key)
{
    if (m_ids.isEmpty())
        return;
    m_drafts.remove({m_ids.first(), key});
    rebuild();
    Q_EMIT fieldChanged(key);
}

ContentId InspectorModel::referenced(const QString &key) const
{
    const ContentId id = ContentId::fromString(m_states.value(key).raw.toString());
    return m_workspace.project().contains(id) ? id : ContentId();
}

QStringList InspectorModel::suggestions(const QString &key) const
{
    return suggestionsFor(m_workspace.project(), key);
}

} // namespace vl::app
