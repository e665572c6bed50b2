#include "app/models/projectsearchmodel.h"

#include "app/models/objectpath.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/commands/command.h"
#include "core/content/comment.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/content/timeline.h"

#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>

namespace vl::app {

using namespace core;

namespace {

ProjectSearchModel::Kind kindOf(const Project &project, const ContentObject &object)
{
    using Kind = ProjectSearchModel::Kind;
    if (const auto *document = contentCast<Document>(&object)) {
        if (document->documentKind() == DocumentKind::Note)
            return Kind::Note;
        if (document->documentKind() == DocumentKind::Screenplay)
            return Kind::Screenplay;
        return project.documentTree().hasChildren(object.id()) ? Kind::Chapter : Kind::Document;
    }
    switch (object.kind()) {
    case ContentKind::Entity:
        return Kind::Entity;
    case ContentKind::Comment:
        return Kind::Comment;
    case ContentKind::Timeline:
    case ContentKind::TimelineEvent:
        return Kind::Timeline;
    default:
        return Kind::Other;
    }
}

} // namespace

QString textFieldName(TextField field)
{
    switch (field) {
    case TextField::Title:
        return ProjectSearchModel::tr("Title");
    case TextField::Body:
        return {};
    case TextField::Footnote:
        return ProjectSearchModel::tr("Footnote");
    case TextField::Variant:
        return ProjectSearchModel::tr("Variant");
    case TextField::Synopsis:
        return ProjectSearchModel::tr("Synopsis");
    case TextField::Status:
        return ProjectSearchModel::tr("Status");
    case TextField::PointOfView:
        return ProjectSearchModel::tr("Point of view");
    case TextField::Name:
        return ProjectSearchModel::tr("Name");
    case TextField::Alias:
        return ProjectSearchModel::tr("Alias");
    case TextField::Value:
        return ProjectSearchModel::tr("Field");
    case TextField::Comment:
        return ProjectSearchModel::tr("Comment");
    case TextField::Description:
        return ProjectSearchModel::tr("Description");
    case TextField::Label:
        return ProjectSearchModel::tr("Label");
    case TextField::Note:
        return ProjectSearchModel::tr("Note");
    case TextField::Caption:
        return ProjectSearchModel::tr("Caption");
    case TextField::Cell:
        return ProjectSearchModel::tr("Cell");
    case TextField::Entry:
        return ProjectSearchModel::tr("Entry");
    case TextField::Other:
        break;
    }
    return ProjectSearchModel::tr("Detail");
}

ProjectSearchModel::ProjectSearchModel(Workspace &workspace, QObject *parent)
    : QAbstractListModel(parent)
    , m_workspace(workspace)
{
    connect(&m_watcher, &QFutureWatcherBase::resultReadyAt, this, [this](int index) {
        if (m_isRunning)
            take(m_watcher.resultAt(index));
    });
    connect(&m_watcher, &QFutureWatcherBase::progressValueChanged, this,
            [this](int value) { Q_EMIT progressed(value, m_watcher.progressMaximum()); });
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &ProjectSearchModel::ended);
    connect(&workspace, &Workspace::changed, this, &ProjectSearchModel::follow);
    connect(&workspace, &Workspace::projectReplaced, this, [this] { start({}, m_scopes); });
}

ProjectSearchModel::~ProjectSearchModel()
{
    m_watcher.disconnect(this);
    m_watcher.cancel();
    m_watcher.waitForFinished();
}

void ProjectSearchModel::start(const SearchOptions &options, SearchScopes scopes)
{
    m_options = options;
    m_scopes = scopes;
    m_workspace.flush();
    begin({});
}

void ProjectSearchModel::restart()
{
    std::set<HitKey> unticked;
    for (const Group &group : m_groups)
        for (const Hit &hit : group.hits)
            if (!hit.isTicked && hit.isReplaceable)
                unticked.insert(keyOf(group, hit));
    begin(unticked);
}

void ProjectSearchModel::begin(const std::set<HitKey> &unticked)
{
    m_isRunning = false; // what the search before still sends is not taken
    m_watcher.cancel();
    clear();
    m_unticked = unticked;
    if (!m_options.pattern.isEmpty()) {
        Result<SearchPattern> pattern = SearchPattern::compile(m_options);
        if (pattern) {
            m_texts = std::make_shared<const std::vector<SearchText>>(
                searchTexts(m_workspace.project(), m_scopes));
            m_isRunning = true;
            m_watcher.setFuture(QtConcurrent::run(
                [](QPromise<SearchBatch> &promise,
                   const std::shared_ptr<const std::vector<SearchText>> &texts,
                   const SearchPattern &compiled) {
                    runSearch(promise, *texts, compiled, maximumPlaces);
                },
                m_texts, *std::move(pattern)));
        } else {
            m_error = pattern.message();
        }
    }
    Q_EMIT stateChanged();
    Q_EMIT ticksChanged();
}

void ProjectSearchModel::cancel()
{
    if (!m_isRunning)
        return;
    m_watcher.cancel();
    m_isRunning = false;
    m_error = tr("The search was stopped.");
    Q_EMIT stateChanged();
}

void ProjectSearchModel::clear()
{
    beginResetModel();
    m_groups.clear();
    m_rows.clear();
    m_error.clear();
    m_isCut = false;
    m_placeCount = 0;
    m_tickedCount = 0;
    m_texts.reset();
    endResetModel();
}

void ProjectSearchModel::ended()
{
    if (!m_isRunning)
        return;
    m_isRunning = false;
    Q_EMIT stateChanged();
}

ProjectSearchModel::Group ProjectSearchModel::makeGroup(const SearchTarget &target) const
{
    const Project &project = m_workspace.project();
    Group group;
    group.target = target;
    switch (target.kind) {
    case SearchTarget::Kind::Object:
        if (const ContentObject *object = project.find(target.id)) {
            group.kind = kindOf(project, *object);
            group.path = pathLine(objectPath(project, target.id));
            if (const auto *comment = contentCast<Comment>(object)) {
                const auto *about = project.find<Document>(comment->targetId());
                group.title = about ? tr("Comment on “%1”").arg(about->title()) : tr("Comment");
            }
        }
        break;
    case SearchTarget::Kind::Category:
        group.kind = Kind::Category;
        break;
    case SearchTarget::Kind::Eras:
        group.kind = Kind::Timeline;
        group.title = tr("Eras");
        break;
    case SearchTarget::Kind::Markers:
        group.kind = Kind::Timeline;
        group.title = tr("Markers");
        break;
    case SearchTarget::Kind::PlotThreads:
        group.title = tr("Plot threads");
        break;
    }
    if (group.title.isEmpty()) {
        // What an object is called is the first of its texts.
        auto &walked = m_workspace.project();
        const std::vector<SearchText> texts = textsOf(walked, target);
        group.title = texts.empty() ? QString() : onOneLine(texts.front().text);
        if (group.title.isEmpty())
            group.title = tr("Untitled");
    }
    return group;
}

void ProjectSearchModel::take(const SearchBatch &batch)
{
    std::vector<Row> added;
    const auto firstGroup = int(m_groups.size());
    for (const SearchBatch::Finding &finding : batch.findings) {
        const SearchText &text = (*m_texts)[finding.text];
        if (m_groups.empty() || !(m_groups.back().target == text.target)) {
            m_groups.push_back(makeGroup(text.target));
            added.push_back({int(m_groups.size()) - 1, -1});
        }
        Group &group = m_groups.back();
        group.texts.try_emplace(text.number, text.text);
        Hit hit;
        hit.number = text.number;
        hit.ordinal = !group.hits.empty() && group.hits.back().number == text.number
                          ? group.hits.back().ordinal + 1
                          : 0;
        hit.field = text.field;
        hit.detail = text.detail;
        hit.match = finding.match;
        hit.before = finding.before;
        hit.matched = finding.matched;
        hit.after = finding.after;
        hit.isReplaceable = text.isReplaceable;
        hit.isTicked = text.isReplaceable && !m_unticked.contains(keyOf(group, hit));
        group.ticked += hit.isTicked;
        m_tickedCount += hit.isTicked;
        added.push_back({int(m_groups.size()) - 1, int(group.hits.size())});
        group.hits.push_back(std::move(hit));
        ++m_placeCount;
    }
    if (!added.empty()) {
        const auto first = int(m_rows.size());
        beginInsertRows({}, first, first + int(added.size()) - 1);
        m_rows.insert(m_rows.end(), added.begin(), added.end());
        endInsertRows();
        // The header of the group that goes on counts more places now.
        for (int row = first - 1; row >= 0 && firstGroup > 0; --row) {
            if (m_rows[size_t(row)].hit >= 0)
                continue;
            Q_EMIT dataChanged(index(row), index(row));
            break;
        }
    }
    m_isCut = m_isCut || batch.isCut;
    if (batch.tooComplex) {
        const QString title = makeGroup((*m_texts)[*batch.tooComplex].target).title;
        m_error = tr("The expression takes too many steps; the search stopped at “%1”.").arg(title);
    }
    Q_EMIT stateChanged();
    Q_EMIT ticksChanged();
}

void ProjectSearchModel::follow(const ChangeSet & /*changes*/)
{
    if (!m_isReplacing && !m_options.pattern.isEmpty())
        Q_EMIT outdated();
}

ProjectSearchModel::HitKey ProjectSearchModel::keyOf(const Group &group, const Hit &hit)
{
    return {int(group.target.kind), group.target.id, hit.number, hit.ordinal};
}

void ProjectSearchModel::setReplacement(const std::optional<QString> &replacement, bool keepsCase)
{
    if (replacement == m_replacement && keepsCase == m_keepsCase)
        return;
    m_replacement = replacement;
    m_keepsCase = keepsCase;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    Q_EMIT ticksChanged();
}

void ProjectSearchModel::setTicked(Group &group, Hit &hit, bool ticked)
{
    if (!hit.isReplaceable || hit.isTicked == ticked)
        return;
    hit.isTicked = ticked;
    group.ticked += ticked ? 1 : -1;
    m_tickedCount += ticked ? 1 : -1;
}

void ProjectSearchModel::tickAll(bool ticked)
{
    for (Group &group : m_groups)
        for (Hit &hit : group.hits)
            setTicked(group, hit, ticked);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
}

QString ProjectSearchModel::replacementOf(const Hit &hit) const
{
    return replacementFor(hit.match, hit.matched, m_replacement.value_or(QString()),
                          m_options.isExpression, m_keepsCase);
}

std::map<int, QString> ProjectSearchModel::newTexts(const Group &group, Replaced &result) const
{
    std::map<int, QString> texts;
    std::map<int, bool> isSame;
    for (const SearchText &now : textsOf(m_workspace.project(), group.target)) {
        const auto searched = group.texts.find(now.number);
        if (searched != group.texts.end())
            isSame[now.number] = searched->second == now.text;
    }
    // From the last place of a text to its first: those before it stay where they are.
    for (auto hit = group.hits.rbegin(); hit != group.hits.rend(); ++hit) {
        if (!hit->isTicked)
            continue;
        if (!isSame[hit->number]) {
            ++result.leftAlone;
            continue;
        }
        QString &text = texts.try_emplace(hit->number, group.texts.at(hit->number)).first->second;
        const QString matched = text.mid(hit->match.position, hit->match.length);
        text.replace(hit->match.position, hit->match.length,
                     replacementFor(hit->match, matched, *m_replacement, m_options.isExpression,
                                    m_keepsCase));
        ++result.places;
    }
    return texts;
}

ProjectSearchModel::Replaced ProjectSearchModel::replaceTicked()
{
    Replaced result;
    if (!m_replacement || m_isRunning)
        return result;
    m_workspace.flush();
    m_isReplacing = true;
    {
        const MacroScope macro(m_workspace, tr("Replace in project"));
        for (const Group &group : m_groups) {
            const std::map<int, QString> texts = newTexts(group, result);
            auto commands = replacementCommands(m_workspace.project(), group.target, texts);
            result.objects += commands.empty() ? 0 : 1;
            for (auto &command : commands)
                m_workspace.push(std::move(command));
        }
    }
    m_isReplacing = false;
    restart();
    return result;
}

std::optional<ProjectSearchModel::Place> ProjectSearchModel::placeAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    const Group &group = m_groups[size_t(m_rows[size_t(row)].group)];
    const int hit = m_rows[size_t(row)].hit;
    Place place{group.target, TextField::Title, {}};
    if (hit >= 0) {
        place.field = group.hits[size_t(hit)].field;
        place.match = group.hits[size_t(hit)].match;
    }
    return place;
}

std::optional<ProjectSearchModel::Kind> ProjectSearchModel::open(int row)
{
    const std::optional<Place> place = placeAt(row);
    if (!place || place->target.id.isNull())
        return {};
    const Project &project = m_workspace.project();
    const Kind kind = m_groups[size_t(m_rows[size_t(row)].group)].kind;
    if (const auto *comment = project.find<Comment>(place->target.id)) {
        m_workspace.select(comment->targetId());
        return kind;
    }
    if (place->target.kind == SearchTarget::Kind::Object && !project.contains(place->target.id))
        return {};
    if (project.find<Document>(place->target.id) && place->field == TextField::Body && place->match)
        m_workspace.reveal(place->target.id, place->match->position, place->match->length);
    else
        m_workspace.select(place->target.id);
    return kind;
}

int ProjectSearchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ProjectSearchModel::groupData(const Group &group, int role) const
{
    const auto replaceable = std::count_if(group.hits.begin(), group.hits.end(),
                                           [](const Hit &hit) { return hit.isReplaceable; });
    switch (role) {
    case Qt::DisplayRole:
        return group.title;
    case Qt::AccessibleTextRole:
        return tr("%1: %n place(s)", nullptr, int(group.hits.size())).arg(group.title);
    case Qt::ToolTipRole:
        return plainToolTip(group.path.isEmpty() ? group.title
                                                 : pathLine({group.path, group.title}));
    case Qt::CheckStateRole:
        if (!m_replacement || replaceable == 0)
            return {};
        return group.ticked == 0             ? Qt::Unchecked
               : group.ticked == replaceable ? Qt::Checked
                                             : Qt::PartiallyChecked;
    case IsHeaderRole:
        return true;
    case KindRole:
        return int(group.kind);
    case PathRole:
        return group.path;
    case CountRole:
        return int(group.hits.size());
    default:
        return {};
    }
}

QVariant ProjectSearchModel::hitData(const Hit &hit, int role) const
{
    const bool isReplaced = m_replacement && hit.isReplaceable;
    QString field = textFieldName(hit.field);
    if (hit.field == TextField::Value || field.isEmpty())
        field = hit.detail;
    else if (!hit.detail.isEmpty())
        field = tr("%1 “%2”").arg(field, hit.detail);
    switch (role) {
    case Qt::DisplayRole:
        return QString(hit.before + hit.matched + hit.after);
    case Qt::AccessibleTextRole:
        return isReplaced ? tr("%1, becomes “%2”")
                                .arg(hit.before + hit.matched + hit.after, replacementOf(hit))
                          : QString(hit.before + hit.matched + hit.after);
    case Qt::ToolTipRole:
        return m_replacement && !hit.isReplaceable ? tr("This text is not changed from here.")
                                                   : QString();
    case Qt::CheckStateRole:
        return isReplaced ? QVariant(hit.isTicked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case IsHeaderRole:
        return false;
    case FieldRole:
        return field;
    case BeforeRole:
        return hit.before;
    case MatchRole:
        return hit.matched;
    case AfterRole:
        return hit.after;
    case ReplacementRole:
        return isReplaced ? QVariant(onOneLine(replacementOf(hit))) : QVariant();
    case IsReplaceableRole:
        return hit.isReplaceable;
    default:
        return {};
    }
}

QVariant ProjectSearchModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[size_t(index.row())];
    const Group &group = m_groups[size_t(row.group)];
    return row.hit < 0 ? groupData(group, role) : hitData(group.hits[size_t(row.hit)], role);
}

bool ProjectSearchModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const Row row = m_rows[size_t(index.row())];
    Group &group = m_groups[size_t(row.group)];
    const bool ticked = value.toInt() != Qt::Unchecked;
    if (row.hit < 0) {
        for (Hit &hit : group.hits)
            setTicked(group, hit, ticked);
    } else {
        setTicked(group, group.hits[size_t(row.hit)], ticked);
    }
    const int header = row.hit < 0 ? index.row() : index.row() - row.hit - 1;
    Q_EMIT dataChanged(this->index(header), this->index(header + int(group.hits.size())),
                       {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
    return true;
}

Qt::ItemFlags ProjectSearchModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (index.isValid() && data(index, Qt::CheckStateRole).isValid())
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

} // namespace vl::app
