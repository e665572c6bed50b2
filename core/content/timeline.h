#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QList>

namespace vl::core {

/// A line on which events stand.
class Timeline final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Timeline;

    Timeline(const ContentId &id, const QString &title)
        : ContentObject(id, staticKind)
        , m_title(title)
    {
    }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    const QString &description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }

    qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

private:
    QString m_title;
    QString m_description;
    qint32 m_sortIndex = 0;
};

/// How surely an event is dated.
enum class DateQualifier
{
    Exact,
    Circa,
    Before,
    After,
    During
};
inline constexpr auto dateQualifierTexts =
    makeEnumTexts<DateQualifier>("exact", "circa", "before", "after", "during");

/// A demand on the order of two events, told from the event that carries it.
struct EventConstraint
{
    ContentId otherId;
    QString kind; ///< "after", "before" or "during"

    bool operator==(const EventConstraint &) const = default;
};

/// Everything that is told of an event; edited as a whole.
struct TimelineEventData
{
    ContentId timelineId;
    QString title;
    qint64 startMinute = 0;     ///< minutes of story time
    qint64 durationMinutes = 0; ///< minutes; a negative one is kept as it is
    qint64 ordinal = 0;         ///< the place when events stand in order instead of to scale
    DateQualifier dateQualifier = DateQualifier::Exact;
    QList<ContentId> participants;
    ContentId locationId;
    ContentId parentId;
    bool collapsed = false;
    QList<EventConstraint> constraints;
    QList<ContentId> sceneIds;
    QString description;
    QString styleColor;
    QString styleLabel;
    QString layer;

    bool operator==(const TimelineEventData &) const = default;
};

/// Something that happens in story time.
class TimelineEvent final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::TimelineEvent;

    TimelineEvent(const ContentId &id, TimelineEventData data)
        : ContentObject(id, staticKind)
        , m_data(std::move(data))
    {
    }

    const TimelineEventData &data() const { return m_data; }
    void setData(const TimelineEventData &data) { m_data = data; }

private:
    TimelineEventData m_data;
};

} // namespace vl::core
