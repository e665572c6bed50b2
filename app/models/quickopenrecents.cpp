#include "app/models/quickopenrecents.h"

#include "app/base/settingskeys.h"
#include "app/models/workspace.h"
#include "core/content/document.h"
#include "core/content/entity.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace vl::app {

using core::ContentId;

namespace {

constexpr int stayMilliseconds = 1500; // what is passed while walking a list is not used

QJsonObject storedItems(const Settings &settings)
{
    return QJsonDocument::fromJson(settings.text(settings::recentItems).toUtf8()).object();
}

} // namespace

QuickOpenRecents::QuickOpenRecents(Workspace &workspace, Settings &settings, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_settings(settings)
    , m_commands(settings.text(settings::recentCommands).split(u'\n', Qt::SkipEmptyParts))
{
    m_commands = m_commands.mid(0, maximum);
    m_stays.setSingleShot(true);
    m_stays.setInterval(stayMilliseconds);
    connect(&m_stays, &QTimer::timeout, this, &QuickOpenRecents::notePending);
    connect(&workspace, &Workspace::selectionChanged, this, &QuickOpenRecents::selectionChanged);
    connect(&workspace, &Workspace::projectReplaced, this, [this] {
        store();
        m_items.clear();
        m_lastDocument = {};
        m_pending = {};
        load();
    });
    connect(&workspace, &Workspace::locationChanged, this,
            [this] { m_projectPath = m_workspace.current().path(); });
    load();
    selectionChanged();
}

QuickOpenRecents::~QuickOpenRecents()
{
    store();
}

void QuickOpenRecents::selectionChanged()
{
    const QList<ContentId> &selection = m_workspace.selection();
    if (selection.size() != 1)
        return;
    const core::ContentObject *selected = m_workspace.project().find(selection.first());
    const bool isDocument = core::contentCast<core::Document>(selected) != nullptr;
    if (isDocument)
        m_lastDocument = selection.first();
    if (isDocument || core::contentCast<core::Entity>(selected)) {
        m_pending = selection.first();
        m_stays.start();
    }
}

void QuickOpenRecents::notePending()
{
    m_stays.stop();
    if (!m_pending.isNull())
        noteItem(std::exchange(m_pending, {}));
}

const QList<ContentId> &QuickOpenRecents::items()
{
    notePending();
    return m_items;
}

void QuickOpenRecents::noteItem(const ContentId &id)
{
    m_items.removeAll(id);
    m_items.prepend(id);
    if (m_items.size() > maximum)
        m_items.resize(maximum);
}

void QuickOpenRecents::noteCommand(const QString &id)
{
    m_commands.removeAll(id);
    m_commands.prepend(id);
    m_commands = m_commands.mid(0, maximum);
    m_settings.set(settings::recentCommands, m_commands.join(u'\n'));
}

void QuickOpenRecents::load()
{
    m_projectPath = m_workspace.current().path();
    const QJsonArray ids = storedItems(m_settings).value(m_projectPath).toArray();
    for (const QJsonValue &value : ids) {
        const ContentId id = ContentId::fromString(value.toString());
        if (!id.isNull() && !m_items.contains(id) && m_items.size() < maximum)
            m_items.append(id);
    }
}

void QuickOpenRecents::store()
{
    if (m_projectPath.isEmpty() || items().isEmpty())
        return;
    // Only projects that the program still remembers keep theirs.
    const QStringList known = m_settings.recentProjects();
    QJsonObject all;
    const QJsonObject stored = storedItems(m_settings);
    for (const QString &path : known)
        if (stored.contains(path))
            all.insert(path, stored.value(path));
    QJsonArray ids;
    for (const ContentId &id : std::as_const(m_items))
        ids.append(id.toString());
    all.insert(m_projectPath, ids);
    m_settings.set(settings::recentItems,
                   QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact)));
}

} // namespace vl::app
