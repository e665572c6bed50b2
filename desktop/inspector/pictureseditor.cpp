#include "desktop/inspector/pictureseditor.h"

#include "app/models/inspectormodel.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/commands/codexcommands.h"
#include "core/content/media.h"
#include "desktop/dialogs/pickdialog.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QDir>
#include <QtCore/QFutureWatcher>
#include <QtGui/QImageReader>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace vl::desktop {

using core::ContentId;

namespace {

constexpr int thumbnailSteps = 20;
constexpr int largestThumbnail = 512;

/// A small copy of the picture; a null image for what is none.
QImage readThumbnail(const QString &path, int size)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (!whole.isValid())
        return {};
    reader.setScaledSize(whole.scaled(size, size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

} // namespace

PicturesEditor::PicturesEditor(const app::InspectorField &field, const FieldEditorContext &context,
                               QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_strip(new QListWidget(this))
    , m_hint(quietLabel({}, this))
    , m_add(new QToolButton(this))
    , m_cover(new QToolButton(this))
    , m_remove(new QToolButton(this))
{
    const int size = grid(thumbnailSteps);
    m_strip->setViewMode(QListView::IconMode);
    m_strip->setFlow(QListView::LeftToRight);
    m_strip->setWrapping(false);
    m_strip->setMovement(QListView::Static);
    m_strip->setIconSize(QSize(size, size));
    m_strip->setSpacing(grid(1));
    m_strip->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_strip->setFixedHeight(size + grid(12));

    auto *bar = new QHBoxLayout;
    bar->setSpacing(grid(1));
    bar->addWidget(m_hint, 1);
    const auto prepare = [&](QToolButton *button, const char *iconName, const QString &text,
                             void (PicturesEditor::*slot)()) {
        button->setIcon(icon(QLatin1String(iconName)));
        button->setAutoRaise(true);
        button->setAccessibleName(text);
        button->setToolTip(text);
        connect(button, &QToolButton::clicked, this, slot);
        bar->addWidget(button, 0, Qt::AlignTop);
    };
    prepare(m_add, "add", tr("Add a picture of the project"), &PicturesEditor::add);
    prepare(m_cover, "star", tr("Make it the cover"), &PicturesEditor::makeCover);
    prepare(m_remove, "remove", tr("Take the picture away; it stays in the project"),
            &PicturesEditor::removePicture);
    setControl(m_strip);
    column()->insertLayout(2, bar);
    connect(m_strip, &QListWidget::currentRowChanged, this, &PicturesEditor::update);
    connect(m_strip, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem *item) {
        Q_EMIT openRequested(ContentId::fromString(item->data(Qt::UserRole).toString()));
    });
}

void PicturesEditor::showValue()
{
    const app::Workspace &workspace = context().panel.workspace;
    const auto *entity = workspace.project().find<core::Entity>(model().only());
    const int row = m_strip->currentRow();
    m_strip->clear();
    if (entity) {
        for (const ContentId &id : entity->gallery()) {
            const auto *media = workspace.project().find<core::Media>(id);
            const QString caption = media ? app::rowText(media->caption()) : tr("(missing)");
            auto *item = new QListWidgetItem(icon(QStringLiteral("image")), caption, m_strip);
            item->setToolTip(app::plainToolTip(caption));
            item->setData(Qt::UserRole, id.toString());
            item->setData(Qt::AccessibleTextRole,
                          caption.isEmpty() ? tr("Picture without a caption") : caption);
            if (media && !workspace.current().folder().isEmpty())
                loadThumbnail(id, QDir(workspace.current().folder()).filePath(media->assetPath()));
        }
    }
    m_strip->setCurrentRow(qMin(row, m_strip->count() - 1));
    update();
}

void PicturesEditor::loadThumbnail(const ContentId &id, const QString &path)
{
    const auto put = [this](const QString &idText, const QIcon &picture) {
        for (int row = 0; row < m_strip->count(); ++row)
            if (m_strip->item(row)->data(Qt::UserRole).toString() == idText)
                m_strip->item(row)->setIcon(picture);
    };
    const auto known = m_thumbnails.constFind(path);
    if (known != m_thumbnails.constEnd()) {
        put(id.toString(), *known);
        return;
    }
    const int size =
        qMin(qRound(m_strip->iconSize().width() * devicePixelRatioF()), largestThumbnail);
    auto *watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcherBase::finished, this,
            [this, watcher, path, put, idText = id.toString()] {
                watcher->deleteLater();
                const QImage image = watcher->result();
                if (image.isNull())
                    return;
                m_thumbnails.insert(path, QIcon(QPixmap::fromImage(image)));
                put(idText, m_thumbnails.value(path));
            });
    watcher->setFuture(QtConcurrent::run(readThumbnail, path, size));
}

void PicturesEditor::update()
{
    const int row = m_strip->currentRow();
    m_strip->setVisible(m_strip->count() > 0);
    takeFocusBy(m_strip->count() > 0, m_strip, m_add);
    m_cover->setEnabled(row > 0);
    m_remove->setEnabled(row >= 0);
    m_hint->setText(m_strip->count() == 0 ? tr("No picture yet.")
                                          : tr("The first one is the cover."));
}

void PicturesEditor::setGallery(const QList<ContentId> &ids)
{
    app::Workspace &workspace = context().panel.workspace;
    if (auto *entity = workspace.project().find<core::Entity>(model().only()))
        workspace.push<core::SetEntityGalleryCommand>(*entity, ids);
}

void PicturesEditor::add()
{
    const app::Workspace &workspace = context().panel.workspace;
    const auto *entity = workspace.project().find<core::Entity>(model().only());
    if (!entity)
        return;
    QStringList names;
    QList<ContentId> ids;
    for (const core::Media *media : workspace.project().all<core::Media>()) {
        if (entity->gallery().contains(media->id()))
            continue;
        names.append(media->caption().isEmpty() ? media->assetPath()
                                                : app::rowText(media->caption()));
        ids.append(media->id());
    }
    const int chosen = PickDialog::pick(tr("Add Picture"), tr("Picture of the project:"), names,
                                        tr("Add"), window());
    entity = workspace.project().find<core::Entity>(model().only());
    if (chosen >= 0 && entity)
        setGallery(entity->gallery() + QList<ContentId>{ids.at(chosen)});
}

void PicturesEditor::makeCover()
{
    const auto *entity = context().panel.workspace.project().find<core::Entity>(model().only());
    const int row = m_strip->currentRow();
    if (!entity || row <= 0 || row >= entity->gallery().size())
        return;
    QList<ContentId> ids = entity->gallery();
    ids.move(row, 0);
    setGallery(ids);
    m_strip->setCurrentRow(0);
}

void PicturesEditor::removePicture()
{
    const auto *entity = context().panel.workspace.project().find<core::Entity>(model().only());
    const int row = m_strip->currentRow();
    if (!entity || row < 0 || row >= entity->gallery().size())
        return;
    QList<ContentId> ids = entity->gallery();
    ids.removeAt(row);
    setGallery(ids);
}

bool PicturesEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_strip && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        removePicture();
        return true;
    }
    return FieldEditor::eventFilter(watched, event);
}

} // namespace vl::desktop
