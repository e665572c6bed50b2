#include "app/storage/deleted.h"

#include "app/base/files.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QUuid>

#include <atomic>

namespace vl::app {

namespace {

struct DeletedText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::DeletedStore)
};

} // namespace

DeletedStore::DeletedStore(const QString &key, const StorageLocations &locations)
    : m_folder(locations.workingFolder() + u'/' + key + QStringLiteral(".deleted"))
    , m_files(m_folder, QStringLiteral(".json"), locations.now)
{
}

Result<> DeletedStore::add(const DeletedStep &step) const
{
    const QString failed = DeletedText::tr("What was deleted could not be kept: %1");
    if (!makePrivateFolder(m_folder))
        return failure(withPath(failed, m_folder));
    QJsonArray files;
    for (const ProjectFile &file : step.files)
        files.append(QJsonObject{{QLatin1String("path"), file.path},
                                 {QLatin1String("text"), QString::fromUtf8(file.bytes)}});
    QJsonArray moves;
    for (const DeletedMove &move : step.moves)
        moves.append(QJsonObject{{QLatin1String("path"), move.path},
                                 {QLatin1String("from"), move.from},
                                 {QLatin1String("to"), move.to}});
    const QJsonObject json{{QLatin1String("label"), step.label},
                           {QLatin1String("files"), files},
                           {QLatin1String("moves"), moves},
                           {QLatin1String("pins"), QJsonArray::fromStringList(step.pins)}};
    // The number keeps the order of what was deleted at one instant.
    static std::atomic<quint32> count = 0;
    const QString number = QStringLiteral("%1").arg(++count, 10, 10, QLatin1Char('0'));
    const QString path =
        m_folder + u'/'
        + m_files.newName(number + u'-' + QUuid::createUuid().toString(QUuid::Id128));
    return writeFile(path, QJsonDocument(json).toJson(QJsonDocument::Compact), {failed, failed},
                     Durability::Atomic);
}

std::vector<DeletedStep> DeletedStore::list() const
{
    std::vector<DeletedStep> steps;
    for (const QString &name : m_files.names()) {
        const Result<QByteArray> bytes = readRegularFile(m_folder + u'/' + name, QString());
        if (!bytes)
            continue;
        const QJsonObject json = QJsonDocument::fromJson(*bytes).object();
        DeletedStep step;
        step.file = m_folder + u'/' + name;
        step.time = m_files.timeIn(name);
        step.label = json.value(QLatin1String("label")).toString();
        const QJsonArray files = json.value(QLatin1String("files")).toArray();
        for (const QJsonValue &file : files)
            step.files.push_back({file[QLatin1String("path")].toString(),
                                  file[QLatin1String("text")].toString().toUtf8()});
        const QJsonArray moves = json.value(QLatin1String("moves")).toArray();
        for (const QJsonValue &move : moves)
            step.moves.push_back({move[QLatin1String("path")].toString(),
                                  move[QLatin1String("from")].toString(),
                                  move[QLatin1String("to")].toString()});
        const QJsonArray pins = json.value(QLatin1String("pins")).toArray();
        for (const QJsonValue &pin : pins)
            step.pins.append(pin.toString());
        if (!step.files.empty())
            steps.push_back(std::move(step));
    }
    return steps;
}

void DeletedStore::remove(const DeletedStep &step) const
{
    removeFile(step.file, Durability::Atomic);
}

void DeletedStore::thin() const
{
    for (const QString &name : m_files.outworn(mostSteps))
        removeFile(m_folder + u'/' + name, Durability::Atomic);
}

void DeletedStore::copyFrom(const DeletedStore &other) const
{
    const QStringList names = other.m_files.names();
    if (names.isEmpty() || other.m_folder == m_folder || !makePrivateFolder(m_folder))
        return;
    for (const QString &name : names) {
        const Result<QByteArray> bytes = readRegularFile(other.m_folder + u'/' + name, QString());
        if (bytes)
            (void)writeFile(m_folder + u'/' + name, *bytes, {}, Durability::Atomic);
    }
}

void DeletedStore::clear() const
{
    QDir(m_folder).removeRecursively();
}

} // namespace vl::app
