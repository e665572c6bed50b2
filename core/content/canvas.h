#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QList>

namespace vl::core {

/// An object laid on a canvas; each object lies on it at most once.
struct CanvasCard
{
    ContentId objectId;
    double x = 0;
    double y = 0;

    bool operator==(const CanvasCard &) const = default;
};

/// A line between two cards, named by their objects.
struct CanvasConnection
{
    ContentId a;
    ContentId b;

    bool operator==(const CanvasConnection &) const = default;
};

/// A free surface on which objects are arranged.
class Canvas final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Canvas;

    Canvas(const ContentId &id, const QString &title)
        : ContentObject(id, staticKind)
        , m_title(title)
    {
    }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    const QList<CanvasCard> &cards() const { return m_cards; }
    void setCards(const QList<CanvasCard> &cards) { m_cards = cards; }

    const QList<CanvasConnection> &connections() const { return m_connections; }
    void setConnections(const QList<CanvasConnection> &connections) { m_connections = connections; }

private:
    QString m_title;
    QList<CanvasCard> m_cards;
    QList<CanvasConnection> m_connections;
};

} // namespace vl::core
