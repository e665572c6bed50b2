#include "desktop/panels/editorpanel.h"

#include "app/base/settings.h"
#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/editor/editorlayout.h"
#include "desktop/editor/editorpictures.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/widgets/focusring.h"

#include <QtCore/QLocale>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int pauseMilliseconds = 2000;

} // namespace

EditorPanel::EditorPanel(const PanelContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_text(new EditorTextWidget(this))
    , m_pages(new QStackedWidget(this))
    , m_title(new QLabel(this))
    , m_counts(new QLabel(this))
    , m_pictures(new EditorPictures(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    FocusRing::leaveTo(m_text);
    m_text->setAccessibleName(tr("Text of the document"));
    auto *empty = new QLabel(tr("Select a document to write in it."), this);
    empty->setAlignment(Qt::AlignCenter);
    empty->setWordWrap(true);
    m_pages->addWidget(empty);
    m_pages->addWidget(m_text);
    layout->addWidget(m_pages, 1);
    buildFooter(layout);
    setFocusProxy(m_text);

    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &EditorPanel::handIn);
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_live || m_isFollowing)
            return;
        m_live->hasTyped = true;
        m_pause.start();
        updateCounts();
    });
    connect(m_text, &EditorTextWidget::caretJumped, this, &EditorPanel::handIn);
    connect(m_text, &EditorTextWidget::focusLost, this, &EditorPanel::handIn);
    connect(m_text, &QPlainTextEdit::selectionChanged, this, &EditorPanel::updateCounts);

    app::Workspace &workspace = m_context.workspace;
    connect(&workspace, &app::Workspace::flushRequested, this, &EditorPanel::handIn);
    connect(&workspace, &app::Workspace::selectionChanged, this, &EditorPanel::openSelected);
    connect(&workspace, &app::Workspace::revealRequested, this, &EditorPanel::reveal);
    connect(&workspace, &app::Workspace::changed, this, &EditorPanel::follow);
    connect(&workspace, &app::Workspace::projectReplaced, this, &EditorPanel::forgetProject);
    connect(&workspace, &app::Workspace::locationChanged, this,
            [this] { m_pictures->setFolder(m_context.workspace.current().folder()); });
    connect(&m_context.settings.changes(), &app::SettingsChanges::changed, this,
            [this](const QString &key) {
                if (key.startsWith(QLatin1String("editor/")))
                    restyle();
            });
    m_context.actions.bind("doc.split", this, &EditorPanel::splitAtCaret);
    m_text->setPictures(m_pictures);
    restyle();
    forgetProject();
}

EditorPanel::~EditorPanel()
{
    m_text->showDocument(nullptr); // before the texts go
}

void EditorPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        restyle();
}

void EditorPanel::restyle()
{
    m_text->setStyle(std::make_shared<EditorStyle>(m_context.settings, palette()));
}

void EditorPanel::buildFooter(QLayout *layout)
{
    auto *footer = new QWidget(this);
    auto *row = new QHBoxLayout(footer);
    row->setContentsMargins(8, 4, 8, 4);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_title->setAccessibleName(tr("Title of the document"));
    m_counts->setAccessibleName(tr("Word count"));
    row->addWidget(m_title, 1);
    row->addWidget(m_counts);
    layout->addWidget(footer);
}

core::Document *EditorPanel::document() const
{
    return m_context.workspace.project().find<core::Document>(documentId());
}

void EditorPanel::openSelected()
{
    const QList<core::ContentId> &selection = m_context.workspace.selection();
    if (selection.size() == 1
        && m_context.workspace.project().find<core::Document>(selection.first()))
        open(selection.first());
}

void EditorPanel::open(const core::ContentId &id)
{
    if (m_live && id == m_live->id())
        return;
    handIn();
    m_text->notePlace();
    m_pause.stop();

    const auto *opened = m_context.workspace.project().find<core::Document>(id);
    m_context.actions["doc.split"]->setEnabled(opened != nullptr);
    m_live = nullptr;
    if (opened) {
        const bool isNew = !m_documents.find(id);
        LiveDocument *live = m_documents.open(id);
        if (isNew)
            live->setText(app::shownText(opened->body()));
        else if (live->body != opened->body())
            live->apply(
                app::difference(app::shownText(live->body), app::shownText(opened->body())));
        live->body = opened->body();
        m_live = live;
    }
    m_text->showDocument(m_live);
    m_pages->setCurrentIndex(opened ? 1 : 0);
    m_title->setText(opened ? opened->title() : QString());
    updateCounts();
}

void EditorPanel::reveal(const core::ContentId &id, qsizetype position, qsizetype length)
{
    open(id); // the selection may have been there before, while something else was being written
    const core::Document *shown = document();
    if (!shown)
        return;
    m_text->select(app::shownPosition(shown->body(), position),
                   app::shownPosition(shown->body(), position + length));
    m_text->centerCursor();
}

void EditorPanel::handIn()
{
    if (m_isFollowing)
        return;
    m_pause.stop();
    core::Document *edited = document();
    if (!edited || !m_live->hasTyped)
        return;
    m_live->hasTyped = false;
    const QString body = app::bodyAfterEdit(edited->body(), m_live->text());
    if (body == edited->body())
        return;
    m_live->body = body; // so that the step is not taken for somebody else's
    m_context.workspace.push<core::SetDocumentBodyCommand>(*edited, body);
}

void EditorPanel::follow(const core::ChangeSet &changes)
{
    if (!m_live || !changes.objects().contains(m_live->id()))
        return;
    const core::Document *changed = document();
    if (!changed) {
        m_live->hasTyped = false;
        const core::ContentId gone = m_live->id();
        open({});
        m_documents.remove(gone);
        return;
    }
    m_title->setText(changed->title());
    if (changed->body() == m_live->body)
        return;

    const QString before = app::shownText(m_live->body);
    const QString after = app::shownText(changed->body());
    const app::TextEdit fromOutside = app::difference(before, after);
    m_live->body = changed->body();
    m_isFollowing = true;
    if (m_live->hasTyped) {
        m_live->apply(app::rebased(fromOutside, app::difference(before, m_live->text())));
    } else {
        m_text->setTextCursor(m_live->apply(fromOutside));
        m_pause.stop();
    }
    m_isFollowing = false;
    updateCounts();
}

void EditorPanel::forgetProject()
{
    if (m_live)
        m_live->hasTyped = false;
    open({});
    m_documents.clear();
    m_pictures->setFolder(m_context.workspace.current().folder());
}

void EditorPanel::splitAtCaret()
{
    handIn();
    const core::Document *cut = document();
    if (!cut)
        return;
    const core::ContentId added =
        app::DocumentOperations(m_context.workspace)
            .split(cut->id(), app::bodyPosition(cut->body(), m_text->caret()));
    if (!added.isNull())
        m_context.workspace.select(added);
}

void EditorPanel::updateCounts()
{
    if (!m_live) {
        m_counts->clear();
        return;
    }
    const QString words =
        tr("%1 words").arg(QLocale().toString(qlonglong(m_live->layout()->wordCount())));
    const QString selected = m_text->textCursor().selectedText();
    m_counts->setText(
        selected.isEmpty()
            ? words
            : tr("%1 of %2").arg(QLocale().toString(qlonglong(app::countWords(selected))), words));
}

} // namespace vl::desktop
