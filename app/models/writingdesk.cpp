#include "app/models/writingdesk.h"

#include "app/base/files.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace vl::app {

namespace {

constexpr qsizetype mostPlaces = 500;
constexpr size_t mostDays = 800;
constexpr qint64 largestDesk = 1024 * 1024; // bytes

const QLatin1String caretKey("caret");
const QLatin1String anchorKey("anchor");
const QLatin1String topKey("top");
const QLatin1String documentKey("document");
const QLatin1String placesKey("places");
const QLatin1String daysKey("days");
const QLatin1String lastKey("lastDocument");
const QLatin1String projectKey("project");

qsizetype number(const QJsonObject &object, QLatin1String key)
{
    return qsizetype(std::max<qint64>(0, object.value(key).toInteger()));
}

} // namespace

WritingDesk::WritingDesk(QString folder)
    : m_folder(std::move(folder))
{
}

QString WritingDesk::file() const
{
    const QByteArray sum =
        QCryptographicHash::hash(m_projectPath.toUtf8(), QCryptographicHash::Sha256).toHex();
    return m_folder + u'/' + QString::fromLatin1(sum.first(32)) + QStringLiteral(".json");
}

void WritingDesk::open(const QString &projectPath)
{
    save();
    m_projectPath = projectPath;
    m_places.clear();
    m_lastDocument = {};
    m_day = {};
    m_isChanged = false;
    if (!m_projectPath.isEmpty() && !m_folder.isEmpty())
        read();
}

void WritingDesk::moveTo(const QString &projectPath)
{
    if (projectPath == m_projectPath)
        return;
    m_projectPath = projectPath;
    m_isChanged = true;
}

void WritingDesk::read()
{
    const Result<QByteArray> bytes = readRegularFile(file(), QString(), largestDesk);
    if (!bytes)
        return;
    const QJsonObject desk = QJsonDocument::fromJson(*bytes).object();
    const QJsonArray places = desk.value(placesKey).toArray();
    for (const QJsonValue &value : places) {
        const QJsonObject place = value.toObject();
        const auto id = core::ContentId::fromString(place.value(documentKey).toString());
        if (!id.isNull() && m_places.size() < mostPlaces)
            m_places.append(
                {id, {number(place, caretKey), number(place, anchorKey), number(place, topKey)}});
    }
    m_lastDocument = core::ContentId::fromString(desk.value(lastKey).toString());
    const QJsonObject days = desk.value(daysKey).toObject();
    std::map<QDate, qsizetype> read;
    for (auto day = days.begin(); day != days.end(); ++day) {
        const QDate date = QDate::fromString(day.key(), Qt::ISODate);
        if (date.isValid())
            read[date] = qsizetype(day.value().toInteger());
    }
    m_day.setDays(std::move(read));
}

void WritingDesk::save()
{
    if (!m_isChanged || m_projectPath.isEmpty() || m_folder.isEmpty())
        return;
    m_isChanged = false;
    QJsonArray places;
    for (const Record &record : std::as_const(m_places))
        places.append(QJsonObject{{documentKey, record.id.toString()},
                                  {caretKey, qint64(record.place.caret)},
                                  {anchorKey, qint64(record.place.anchor)},
                                  {topKey, qint64(record.place.top)}});
    QJsonObject days;
    size_t left = m_day.days().size();
    for (const auto &[day, words] : m_day.days())
        if (left-- <= mostDays)
            days.insert(day.toString(Qt::ISODate), qint64(words));
    const QJsonObject desk{{projectKey, m_projectPath},
                           {placesKey, places},
                           {lastKey, m_lastDocument.toString()},
                           {daysKey, days}};
    if (!makePrivateFolder(m_folder))
        return;
    // Worth nothing on a crashed disk, so the disk is not waited for.
    const Result<> written =
        writeFile(file(), QJsonDocument(desk).toJson(), {}, Durability::Atomic);
    m_isChanged = !written;
}

WritingPlace WritingDesk::place(const core::ContentId &id) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [&id](const Record &record) { return record.id == id; });
    return found == m_places.end() ? WritingPlace() : found->place;
}

void WritingDesk::setPlace(const core::ContentId &id, const WritingPlace &place)
{
    m_isChanged = true;
    m_places.removeIf([&id](const Record &record) { return record.id == id; });
    m_places.prepend({id, place});
    if (m_places.size() > mostPlaces)
        m_places.resize(mostPlaces);
}

void WritingDesk::setLastDocument(const core::ContentId &id)
{
    m_isChanged |= id != m_lastDocument;
    m_lastDocument = id;
}

} // namespace vl::app
