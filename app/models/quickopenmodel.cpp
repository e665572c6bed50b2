#include "app/models/quickopenmodel.h"

#include "app/models/objectpath.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/content/document.h"
#include "core/content/entity.h"

#include <QtCore/QCollator>
#include <QtCore/QSet>

#include <algorithm>

namespace vl::app {

using core::ContentId;
using core::Document;
using core::Entity;

namespace {

constexpr QChar commandSign = u'>';
constexpr QChar tagSign = u'#';
constexpr QChar headingSign = u'@';
constexpr QChar tagEnd = u'/'; // between a tag and what is searched among its objects
constexpr int recentWorth = 30;
constexpr int commandCost = 8;
constexpr int keywordCost = 24;
constexpr int disabledCost = 40;

/// How much more what was used lately is worth than what matches as well, by its place from 0.
int recentBonus(qsizetype place)
{
    return int(std::max<qsizetype>(recentWorth - place, 1));
}

} // namespace

QuickOpenModel::QuickOpenModel(Workspace &workspace, Settings &settings, QObject *parent)
    : QAbstractListModel(parent)
    , m_workspace(workspace)
    , m_index(workspace)
    , m_recents(workspace, settings)
{
}

void QuickOpenModel::start(QList<QuickOpenCommand> commands)
{
    m_workspace.flush(); // a heading just typed is listed too
    m_commands = std::move(commands);
    m_commandFaces.clear();
    for (const QuickOpenCommand &command : std::as_const(m_commands)) {
        std::vector<FuzzyText> faces;
        faces.emplace_back(command.text);
        faces.emplace_back(command.id);
        const auto keywords = QStringView(command.keywords).split(u',', Qt::SkipEmptyParts);
        for (const QStringView keyword : keywords)
            faces.emplace_back(keyword.trimmed());
        m_commandFaces.push_back(std::move(faces));
    }
    m_tags = m_index.tags();
    m_headings.clear();
    if (const auto *document = m_workspace.project().find<Document>(m_recents.lastDocument()))
        m_headings = textHeadings(document->body(), document->documentKind());

    m_recentBonus.clear();
    const QList<ContentId> &items = m_recents.items();
    for (qsizetype i = 0; i < items.size(); ++i)
        m_recentBonus.insert(items[i], recentBonus(i));
    m_recentCommandBonus.clear();
    const QStringList &ids = m_recents.commands();
    for (qsizetype i = 0; i < ids.size(); ++i)
        m_recentCommandBonus.insert(ids[i], recentBonus(i));
    setQuery({});
}

void QuickOpenModel::setQuery(const QString &query)
{
    beginResetModel();
    m_query = query;
    m_rows.clear();
    const QString typed = query.trimmed();
    const QChar sign = typed.isEmpty() ? QChar() : typed.front();
    const bool isSigned = sign == commandSign || sign == tagSign || sign == headingSign;
    m_words = fuzzyWords(isSigned ? QStringView(typed).mid(1) : QStringView(typed));
    if (sign == commandSign) {
        addCommands();
    } else if (sign == tagSign) {
        if (!addTagged(typed.mid(1)))
            addTags();
    } else if (sign == headingSign) {
        addHeadings();
    } else if (m_words.isEmpty()) {
        addRecent();
    } else {
        addObjects();
        addCommands();
    }
    if (sign != headingSign && !(m_words.isEmpty() && !isSigned))
        sortAndCut();
    endResetModel();
}

void QuickOpenModel::addRecent()
{
    const core::Project &project = m_workspace.project();
    const QList<ContentId> &selection = m_workspace.selection();
    QSet<ContentId> listed;
    const auto append = [&](const ContentId &id) {
        if (int(m_rows.size()) < maximumRows && !listed.contains(id)) {
            listed.insert(id);
            m_rows.push_back({kindOf(id), id});
        }
    };
    // Not where the user is already: the first row leads back to what came before.
    for (const ContentId &id : m_recents.items())
        if (!selection.contains(id) && (project.find<Document>(id) || project.find<Entity>(id)))
            append(id);
    for (const auto &place : project.documentTree().inOrder())
        append(place.document->id());
    for (const Entity *entity : project.all<Entity>())
        append(entity->id());
    m_total = qsizetype(project.all<Document>().size() + project.all<Entity>().size());
}

void QuickOpenModel::add(const QuickOpenIndex::Hit &hit)
{
    Row row{kindOf(hit.id), hit.id};
    row.alias = hit.alias;
    row.score = hit.score + m_recentBonus.value(hit.id);
    row.length = m_index.nameOf(hit.id).size();
    m_rows.push_back(row);
}

void QuickOpenModel::addObjects()
{
    for (const QuickOpenIndex::Hit &hit : m_index.find(m_words))
        add(hit);
}

void QuickOpenModel::addCommands()
{
    for (int i = 0; i < int(m_commands.size()); ++i) {
        const std::vector<FuzzyText> &faces = m_commandFaces[size_t(i)];
        int total = -commandCost;
        bool matches = true;
        for (const FuzzyWord &word : m_words) {
            std::optional<int> best;
            for (size_t face = 0; face < faces.size(); ++face) {
                const std::optional<int> score = word.score(faces[face]);
                const int cost = face == 0 ? 0 : keywordCost;
                if (score && (!best || *score - cost > *best))
                    best = *score - cost;
            }
            matches = matches && best;
            total += best.value_or(0);
        }
        if (!matches)
            continue;
        const QuickOpenCommand &command = m_commands[i];
        Row row{Kind::Command, {}, i};
        row.score =
            total + m_recentCommandBonus.value(command.id) - (command.isEnabled ? 0 : disabledCost);
        row.length = m_words.isEmpty() ? 0 : command.text.size();
        m_rows.push_back(row);
    }
}

bool QuickOpenModel::addTagged(const QString &query)
{
    // A tag may hold the sign itself: the longest that fits is meant.
    int chosen = -1;
    for (int i = 0; i < int(m_tags.size()); ++i)
        if (query.startsWith(m_tags[i].name + tagEnd, Qt::CaseInsensitive)
            && (chosen < 0 || m_tags[i].name.size() > m_tags[chosen].name.size()))
            chosen = i;
    if (chosen < 0)
        return false;
    const QString &tag = m_tags[chosen].name;
    m_words = fuzzyWords(QStringView(query).mid(tag.size() + 1));
    for (const QuickOpenIndex::Hit &hit : m_index.findTagged(tag, m_words))
        add(hit);
    return true;
}

void QuickOpenModel::addTags()
{
    for (int i = 0; i < int(m_tags.size()); ++i) {
        const FuzzyText name(m_tags[i].name);
        Row row{Kind::Tag, {}, i};
        bool matches = true;
        for (const FuzzyWord &word : std::as_const(m_words)) {
            const std::optional<int> score = word.score(name);
            matches = matches && score;
            row.score += score.value_or(0);
        }
        if (!matches)
            continue;
        row.length = m_words.isEmpty() ? 0 : m_tags[i].name.size();
        m_rows.push_back(row);
    }
}

void QuickOpenModel::addHeadings()
{
    // They stay in the order of the text, which is how the writer knows them.
    for (int i = 0; i < int(m_headings.size()); ++i) {
        const FuzzyText text(m_headings[i].text);
        if (std::all_of(m_words.cbegin(), m_words.cend(),
                        [&text](const FuzzyWord &word) { return word.score(text).has_value(); }))
            m_rows.push_back({Kind::Heading, {}, i});
    }
    m_total = qsizetype(m_rows.size());
}

void QuickOpenModel::sortAndCut()
{
    m_total = qsizetype(m_rows.size());
    const auto isBetter = [](const Row &a, const Row &b) {
        return a.score != b.score ? a.score > b.score : a.length < b.length;
    };
    if (m_rows.size() > size_t(maximumRows)) {
        std::nth_element(m_rows.begin(), m_rows.begin() + maximumRows, m_rows.end(), isBetter);
        m_rows.resize(maximumRows);
    }
    QCollator byName;
    byName.setNumericMode(true);
    byName.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, Row>> keyed;
    keyed.reserve(m_rows.size());
    for (const Row &row : m_rows)
        keyed.emplace_back(byName.sortKey(textOf(row)), row);
    std::sort(keyed.begin(), keyed.end(), [&](const auto &a, const auto &b) {
        if (isBetter(a.second, b.second) || isBetter(b.second, a.second))
            return isBetter(a.second, b.second);
        const int order = a.first.compare(b.first);
        return order != 0 ? order < 0 : a.second.id < b.second.id;
    });
    for (size_t i = 0; i < keyed.size(); ++i)
        m_rows[i] = keyed[i].second;
}

QString QuickOpenModel::emptyText() const
{
    const QString typed = m_query.trimmed();
    if (typed.startsWith(headingSign))
        return m_headings.isEmpty() ? tr("The current document has no headings.")
                                    : tr("No heading matches.");
    if (typed.startsWith(tagSign))
        return m_tags.isEmpty() ? tr("Nothing in this project has a tag.") : tr("No tag matches.");
    if (typed.startsWith(commandSign))
        return tr("No command matches.");
    return typed.isEmpty() ? tr("This project has no documents or entities yet.")
                           : tr("Nothing matches “%1”.").arg(typed);
}

QuickOpenModel::Choice QuickOpenModel::choose(int row)
{
    if (row < 0 || row >= rowCount())
        return {};
    const Row chosen = m_rows[size_t(row)];
    switch (chosen.kind) {
    case Kind::Command: {
        const QuickOpenCommand &command = m_commands[chosen.item];
        if (!command.isEnabled)
            return {};
        m_recents.noteCommand(command.id);
        return {Choice::Next::Trigger, chosen.kind, command.id};
    }
    case Kind::Tag:
        return {Choice::Next::Query, chosen.kind, tagSign + m_tags[chosen.item].name + tagEnd};
    case Kind::Heading: {
        const TextHeading &heading = m_headings[chosen.item];
        m_workspace.reveal(m_recents.lastDocument(), heading.position, heading.length);
        return {Choice::Next::ShowText, chosen.kind, {}};
    }
    default:
        m_recents.noteItem(chosen.id);
        m_workspace.select(chosen.id);
        return {Choice::Next::ShowObject, chosen.kind, {}};
    }
}

int QuickOpenModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant QuickOpenModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[size_t(index.row())];
    const bool isCommand = row.kind == Kind::Command;
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row);
    case Qt::AccessibleTextRole:
        return QStringList{textOf(row), detailOf(row)}.join(QLatin1String(", "));
    case Qt::ToolTipRole:
        return plainToolTip(QStringList{textOf(row), detailOf(row)}.join(u'\n'));
    case KindRole:
        return int(row.kind);
    case DetailRole:
        return detailOf(row);
    case MarksRole:
        return QVariant::fromValue(marksOf(row));
    case ShortcutRole:
        return isCommand ? m_commands[row.item].shortcut : QString();
    case IsEnabledRole:
        return !isCommand || m_commands[row.item].isEnabled;
    case LevelRole:
        return row.kind == Kind::Heading ? m_headings[row.item].level - 1 : 0;
    default:
        return {};
    }
}

QuickOpenModel::Kind QuickOpenModel::kindOf(const ContentId &id) const
{
    const auto *document = m_workspace.project().find<Document>(id);
    if (!document)
        return Kind::Entity;
    switch (document->documentKind()) {
    case core::DocumentKind::Screenplay:
        return Kind::Screenplay;
    case core::DocumentKind::Note:
        return Kind::Note;
    case core::DocumentKind::Prose:
        break;
    }
    return m_workspace.project().documentTree().hasChildren(id) ? Kind::Chapter : Kind::Document;
}

QString QuickOpenModel::textOf(const Row &row) const
{
    switch (row.kind) {
    case Kind::Command:
        return m_commands[row.item].text;
    case Kind::Tag:
        return m_tags[row.item].name;
    case Kind::Heading:
        return m_headings[row.item].text;
    default:
        return m_index.nameOf(row.id);
    }
}

QString QuickOpenModel::detailOf(const Row &row) const
{
    switch (row.kind) {
    case Kind::Command: {
        const QuickOpenCommand &command = m_commands[row.item];
        return command.isEnabled || command.reason.isEmpty() ? command.group : command.reason;
    }
    case Kind::Tag:
        return tr("%n object(s)", nullptr, m_tags[row.item].objects);
    case Kind::Heading:
        return {};
    default:
        break;
    }
    QString path = pathLine(m_index.pathOf(row.id));
    const auto *entity = m_workspace.project().find<Entity>(row.id);
    if (row.alias < 0 || !entity || row.alias >= entity->aliases().size())
        return path;
    return tr("%1 – also “%2”").arg(path, entity->aliases().at(row.alias));
}

QList<int> QuickOpenModel::marksOf(const Row &row) const
{
    const FuzzyText text(textOf(row));
    QList<int> marks;
    for (const FuzzyWord &word : m_words)
        marks += word.places(text);
    std::sort(marks.begin(), marks.end());
    marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
    return marks;
}

} // namespace vl::app
