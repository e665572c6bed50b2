#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QList>

namespace vl::core {

struct MediaAnnotation
{
    QString type;
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    QString color;
    QString text;

    bool operator==(const MediaAnnotation &) const = default;
};

/// The part of a picture that is shown; all zero while the picture is whole.
struct MediaCrop
{
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;

    bool operator==(const MediaCrop &) const = default;
};

/// An imported picture, sound or film.
class Media final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Media;

    Media(const ContentId &id, const QString &mediaKind, const QString &assetPath)
        : ContentObject(id, staticKind)
        , m_mediaKind(mediaKind)
        , m_assetPath(assetPath)
    {
    }

    const QString &mediaKind() const { return m_mediaKind; }
    void setMediaKind(const QString &kind) { m_mediaKind = kind; }

    const QString &caption() const { return m_caption; }
    void setCaption(const QString &caption) { m_caption = caption; }

    /// The path of the file, under "assets/".
    const QString &assetPath() const { return m_assetPath; }
    void setAssetPath(const QString &path) { m_assetPath = path; }

    const QList<MediaAnnotation> &annotations() const { return m_annotations; }
    void setAnnotations(const QList<MediaAnnotation> &annotations) { m_annotations = annotations; }

    const MediaCrop &crop() const { return m_crop; }
    void setCrop(const MediaCrop &crop) { m_crop = crop; }

private:
    QString m_mediaKind;
    QString m_caption;
    QString m_assetPath;
    QList<MediaAnnotation> m_annotations;
    MediaCrop m_crop;
};

} // namespace vl::core
