#include "core/content/entity.h"

namespace vl::core {

Entity::Entity(const ContentId &id, const ContentId &categoryId, const QString &name)
    : ContentObject(id, staticKind)
    , m_categoryId(categoryId)
    , m_name(name)
{
}

std::optional<QString> Entity::value(const QString &key) const
{
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

void Entity::setValue(const QString &key, const std::optional<QString> &value)
{
    if (value)
        m_values[key] = *value;
    else
        m_values.erase(key);
}

std::optional<QString> Entity::valueAt(const QString &key, qint64 instant) const
{
    const TimedValue *latest = nullptr;
    for (const TimedValue &timed : m_timedValues) {
        if (timed.key == key && timed.instant <= instant
            && (!latest || timed.instant >= latest->instant))
            latest = &timed;
    }
    return latest ? std::optional(latest->value) : value(key);
}

} // namespace vl::core
