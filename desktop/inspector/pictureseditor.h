#pragma once

#include "desktop/inspector/fieldeditor.h"

#include <QtCore/QHash>
#include <QtGui/QIcon>

class QListWidget;
class QToolButton;

namespace vl::desktop {

/// The pictures of an entity as a strip, the cover first.
class PicturesEditor final : public FieldEditor
{
    Q_OBJECT

public:
    PicturesEditor(const app::InspectorField &field, const FieldEditorContext &context,
                   QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override { return {}; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add();
    void makeCover();
    void removePicture();
    void setGallery(const QList<core::ContentId> &ids);
    void update();
    void loadThumbnail(const core::ContentId &id, const QString &path);

    QListWidget *m_strip;
    QLabel *m_hint;
    QToolButton *m_add;
    QToolButton *m_cover;
    QToolButton *m_remove;
    QHash<QString, QIcon> m_thumbnails; ///< by the path of the file
};

} // namespace vl::desktop
