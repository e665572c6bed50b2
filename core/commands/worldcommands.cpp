#include "core/commands/worldcommands.h"

#include <algorithm>

namespace vl::core {

SetCanvasCardCommand::SetCanvasCardCommand(Canvas &canvas, const CanvasCard &card)
    : ListEdit(canvas)
    , m_card(card)
{
}

void SetCanvasCardCommand::redo()
{
    m_old = m_object.cards();
    QList<CanvasCard> cards = m_old;
    const auto found = std::find_if(cards.begin(), cards.end(), [this](const CanvasCard &card) {
        return card.objectId == m_card.objectId;
    });
    if (found == cards.end())
        cards.append(m_card);
    else
        *found = m_card;
    m_object.setCards(cards);
}

void SetCanvasCardCommand::undo()
{
    m_object.setCards(m_old);
}

QString SetCanvasCardCommand::text() const
{
    return Command::tr("Move card");
}

RemoveCanvasCardCommand::RemoveCanvasCardCommand(Canvas &canvas, const ContentId &objectId)
    : ListEdit(canvas)
    , m_objectId(objectId)
{
}

void RemoveCanvasCardCommand::redo()
{
    m_old = m_object.cards();
    QList<CanvasCard> cards = m_old;
    cards.removeIf([this](const CanvasCard &card) { return card.objectId == m_objectId; });
    m_object.setCards(cards);
}

void RemoveCanvasCardCommand::undo()
{
    m_object.setCards(m_old);
}

QString RemoveCanvasCardCommand::text() const
{
    return Command::tr("Remove card");
}

AddCanvasConnectionCommand::AddCanvasConnectionCommand(Canvas &canvas,
                                                       const CanvasConnection &connection)
    : ListEdit(canvas)
    , m_connection(connection)
{
}

void AddCanvasConnectionCommand::redo()
{
    m_old = m_object.connections();
    m_object.setConnections(m_old + QList<CanvasConnection>{m_connection});
}

void AddCanvasConnectionCommand::undo()
{
    m_object.setConnections(m_old);
}

QString AddCanvasConnectionCommand::text() const
{
    return Command::tr("Connect cards");
}

RemoveCanvasConnectionCommand::RemoveCanvasConnectionCommand(Canvas &canvas,
                                                             const CanvasConnection &connection)
    : ListEdit(canvas)
    , m_connection(connection)
{
}

void RemoveCanvasConnectionCommand::redo()
{
    m_old = m_object.connections();
    QList<CanvasConnection> connections = m_old;
    connections.removeOne(m_connection);
    m_object.setConnections(connections);
}

void RemoveCanvasConnectionCommand::undo()
{
    m_object.setConnections(m_old);
}

QString RemoveCanvasConnectionCommand::text() const
{
    return Command::tr("Disconnect cards");
}

AddMediaAnnotationCommand::AddMediaAnnotationCommand(Media &media,
                                                     const MediaAnnotation &annotation)
    : ListEdit(media)
    , m_annotation(annotation)
{
}

void AddMediaAnnotationCommand::redo()
{
    m_old = m_object.annotations();
    m_object.setAnnotations(m_old + QList<MediaAnnotation>{m_annotation});
}

void AddMediaAnnotationCommand::undo()
{
    m_object.setAnnotations(m_old);
}

QString AddMediaAnnotationCommand::text() const
{
    return Command::tr("Add annotation");
}

RemoveMediaAnnotationCommand::RemoveMediaAnnotationCommand(Media &media, int index)
    : ListEdit(media)
    , m_index(index)
{
}

void RemoveMediaAnnotationCommand::redo()
{
    m_old = m_object.annotations();
    if (m_index < 0 || m_index >= m_old.size())
        return;
    QList<MediaAnnotation> annotations = m_old;
    annotations.removeAt(m_index);
    m_object.setAnnotations(annotations);
}

void RemoveMediaAnnotationCommand::undo()
{
    m_object.setAnnotations(m_old);
}

QString RemoveMediaAnnotationCommand::text() const
{
    return Command::tr("Remove annotation");
}

} // namespace vl::core
