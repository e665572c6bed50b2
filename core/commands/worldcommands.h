#pragma once

#include "core/commands/setmember.h"
#include "core/content/canvas.h"
#include "core/content/language.h"
#include "core/content/map.h"
#include "core/content/media.h"
#include "core/content/randomtable.h"
#include "core/content/source.h"
#include "core/content/statblock.h"
#include "core/content/timeline.h"

#include <optional>

namespace vl::core {

using SetTimelineTitleCommand =
    SetMember<&Timeline::title, &Timeline::setTitle,
              QT_TRANSLATE_NOOP("vl::core::Command", "Rename timeline")>;
using SetTimelineEventCommand =
    SetMember<&TimelineEvent::data, &TimelineEvent::setData,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit timeline event")>;
using SetLanguageCommand = SetMember<&Language::data, &Language::setData,
                                     QT_TRANSLATE_NOOP("vl::core::Command", "Edit language")>;
using SetRandomTableCommand =
    SetMember<&RandomTable::data, &RandomTable::setData,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit random table")>;
using SetSourceCommand = SetMember<&Source::data, &Source::setData,
                                   QT_TRANSLATE_NOOP("vl::core::Command", "Edit source")>;
using SetStatBlockCommand = SetMember<&StatBlock::data, &StatBlock::setData,
                                      QT_TRANSLATE_NOOP("vl::core::Command", "Edit stat block")>;

using SetMediaCaptionCommand = SetMember<&Media::caption, &Media::setCaption,
                                         QT_TRANSLATE_NOOP("vl::core::Command", "Edit caption")>;
using SetMediaCropCommand =
    SetMember<&Media::crop, &Media::setCrop, QT_TRANSLATE_NOOP("vl::core::Command", "Crop image")>;

using SetMapTitleCommand =
    SetMember<&Map::title, &Map::setTitle, QT_TRANSLATE_NOOP("vl::core::Command", "Rename map")>;
using SetMapImageCommand = SetMember<&Map::imageAssetPath, &Map::setImageAssetPath,
                                     QT_TRANSLATE_NOOP("vl::core::Command", "Set map image")>;
using SetMapPinsCommand =
    SetMember<&Map::pins, &Map::setPins, QT_TRANSLATE_NOOP("vl::core::Command", "Edit map pins")>;
using SetMapRegionsCommand = SetMember<&Map::regions, &Map::setRegions,
                                       QT_TRANSLATE_NOOP("vl::core::Command", "Edit map regions")>;
using SetMapRoutesCommand = SetMember<&Map::routes, &Map::setRoutes,
                                      QT_TRANSLATE_NOOP("vl::core::Command", "Edit map routes")>;
using SetMapTokensCommand = SetMember<&Map::tokens, &Map::setTokens,
                                      QT_TRANSLATE_NOOP("vl::core::Command", "Edit map tokens")>;
using SetMapGridCommand =
    SetMember<&Map::grid, &Map::setGrid, QT_TRANSLATE_NOOP("vl::core::Command", "Edit map grid")>;
using SetMapTravelSettingsCommand =
    SetMember<&Map::travelSettings, &Map::setTravelSettings,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set map travel settings")>;

using SetCanvasTitleCommand = SetMember<&Canvas::title, &Canvas::setTitle,
                                        QT_TRANSLATE_NOOP("vl::core::Command", "Rename canvas")>;

/// A command that changes one list of an object: the list as it was is kept whole.
template<typename Object, typename List>
class ListEdit : public Command
{
protected:
    explicit ListEdit(Object &object)
        : m_object(object)
    {
        touchObject(object.id());
    }

    Object &m_object;
    List m_old;
};

/// Lays a card on a canvas, or moves the one that its object has there already.
class SetCanvasCardCommand final : public ListEdit<Canvas, QList<CanvasCard>>
{
public:
    SetCanvasCardCommand(Canvas &canvas, const CanvasCard &card);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    CanvasCard m_card;
};

/// Takes a card off a canvas; its connections stay, for a caller to take away in the same group.
class RemoveCanvasCardCommand final : public ListEdit<Canvas, QList<CanvasCard>>
{
public:
    RemoveCanvasCardCommand(Canvas &canvas, const ContentId &objectId);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    ContentId m_objectId;
};

class AddCanvasConnectionCommand final : public ListEdit<Canvas, QList<CanvasConnection>>
{
public:
    AddCanvasConnectionCommand(Canvas &canvas, const CanvasConnection &connection);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    CanvasConnection m_connection;
};

/// Takes away the first connection that is this one.
class RemoveCanvasConnectionCommand final : public ListEdit<Canvas, QList<CanvasConnection>>
{
public:
    RemoveCanvasConnectionCommand(Canvas &canvas, const CanvasConnection &connection);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    CanvasConnection m_connection;
};

class AddMediaAnnotationCommand final : public ListEdit<Media, QList<MediaAnnotation>>
{
public:
    AddMediaAnnotationCommand(Media &media, const MediaAnnotation &annotation);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    MediaAnnotation m_annotation;
};

/// Takes away the annotation at a place in the list; nothing for a place outside it.
class RemoveMediaAnnotationCommand final : public ListEdit<Media, QList<MediaAnnotation>>
{
public:
    RemoveMediaAnnotationCommand(Media &media, int index);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    int m_index;
};

} // namespace vl::core
