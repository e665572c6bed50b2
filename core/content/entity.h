#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <map>
#include <optional>

namespace vl::core {

/// When an entity lived, in minutes of story time; an end that is absent is not known.
struct Lifespan
{
    std::optional<qint64> birthInstant;
    std::optional<qint64> deathInstant;

    bool operator==(const Lifespan &) const = default;
};

/// From the instant on, the field has the value.
struct TimedValue
{
    QString key;
    QString value;
    qint64 instant = 0; ///< minutes of story time

    bool operator==(const TimedValue &) const = default;
};

/// The values of an entity by the key of the field; only filled fields have an entry.
using FieldValues = std::map<QString, QString>;

/// A character, a place, an item: one thing of the invented world.
class Entity final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Entity;

    Entity(const ContentId &id, const ContentId &categoryId, const QString &name);

    const ContentId &categoryId() const { return m_categoryId; }
    void setCategoryId(const ContentId &id) { m_categoryId = id; }

    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    const FieldValues &values() const { return m_values; }
    void setValues(FieldValues values) { m_values = std::move(values); }
    /// The value under the key, or nothing while the field is not filled.
    std::optional<QString> value(const QString &key) const;
    /// Sets the value, or empties the field when there is none.
    void setValue(const QString &key, const std::optional<QString> &value);
    /// The value that the field has at an instant: that of the latest timed value up to it (of
    /// equal instants the one that stands later in the list), else the plain value.
    std::optional<QString> valueAt(const QString &key, qint64 instant) const;

    const QStringList &aliases() const { return m_aliases; }
    void setAliases(const QStringList &aliases) { m_aliases = aliases; }

    /// The media that show the entity, the cover first.
    const QList<ContentId> &gallery() const { return m_gallery; }
    void setGallery(const QList<ContentId> &ids) { m_gallery = ids; }

    const Lifespan &lifespan() const { return m_lifespan; }
    void setLifespan(const Lifespan &lifespan) { m_lifespan = lifespan; }

    const QList<TimedValue> &timedValues() const { return m_timedValues; }
    void setTimedValues(const QList<TimedValue> &values) { m_timedValues = values; }

private:
    ContentId m_categoryId;
    QString m_name;
    FieldValues m_values;
    QStringList m_aliases;
    QList<ContentId> m_gallery;
    Lifespan m_lifespan;
    QList<TimedValue> m_timedValues;
};

} // namespace vl::core
