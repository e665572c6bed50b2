#include "desktop/panels/editorpanel.h"

#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/widgets/focusring.h"

#include <QtCore/QLocale>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
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
        m_hasTyped = true;
        m_pause.start();
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
    m_context.actions.bind("doc.split", this, &EditorPanel::splitAtCaret);
    open({});
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
    return m_context.workspace.project().find<core::Document>(m_documentId);
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
    if (!id.isNull() && id == m_documentId)
        return;
    handIn();
    if (!m_documentId.isNull())
        m_views.insert(m_documentId, {m_text->caret(), m_text->verticalScrollBar()->value()});

    m_documentId = id;
    const core::Document *opened = document();
    m_context.actions["doc.split"]->setEnabled(opened != nullptr);
    m_pages->setCurrentIndex(opened ? 1 : 0);
    m_title->setText(opened ? opened->title() : QString());
    m_body = opened ? opened->body() : QString();
    m_text->showText(app::shownText(m_body));
    m_hasTyped = false;
    m_pause.stop();
    if (opened) {
        const View view = m_views.value(id);
        m_text->setCaret(view.caret);
        m_text->verticalScrollBar()->setValue(view.scroll);
    }
    updateCounts();
}

void EditorPanel::reveal(const core::ContentId &id, qsizetype position, qsizetype length)
{
    open(id); // the selection may have been there before, while something else was being written
    const core::Document *shown = document();
    if (!shown)
        return;
    QTextCursor cursor = m_text->textCursor();
    cursor.setPosition(int(app::shownPosition(shown->body(), position)));
    cursor.setPosition(int(app::shownPosition(shown->body(), position + length)),
                       QTextCursor::KeepAnchor);
    m_text->setTextCursor(cursor);
    m_text->centerCursor();
}

void EditorPanel::handIn()
{
    if (m_isFollowing)
        return;
    m_pause.stop();
    core::Document *edited = document();
    if (!m_hasTyped || !edited)
        return;
    m_hasTyped = false;
    const QString body = app::bodyAfterEdit(edited->body(), m_text->text());
    if (body == edited->body())
        return;
    m_body = body; // so that the step is not taken for somebody else's
    m_context.workspace.push<core::SetDocumentBodyCommand>(*edited, body);
    updateCounts();
}

void EditorPanel::follow(const core::ChangeSet &changes)
{
    if (!changes.objects().contains(m_documentId))
        return;
    const core::Document *changed = document();
    if (!changed) {
        m_hasTyped = false;
        open({});
        return;
    }
    m_title->setText(changed->title());
    if (changed->body() == m_body)
        return;

    const QString before = app::shownText(m_body);
    const QString after = app::shownText(changed->body());
    const app::TextEdit fromOutside = app::difference(before, after);
    m_body = changed->body();
    const bool hasTyped = m_hasTyped;
    m_isFollowing = true;
    if (hasTyped)
        m_text->apply(app::rebased(fromOutside, app::difference(before, m_text->text())),
                      EditorTextWidget::Caret::Keep);
    else
        m_text->apply(fromOutside, EditorTextWidget::Caret::GoToEdit);
    m_isFollowing = false;
    m_hasTyped = hasTyped;
    if (!hasTyped)
        m_pause.stop();
    updateCounts();
}

void EditorPanel::forgetProject()
{
    m_hasTyped = false;
    m_documentId = {};
    m_views.clear();
    open({});
}

void EditorPanel::splitAtCaret()
{
    handIn();
    const core::Document *cut = document();
    if (!cut)
        return;
    const core::ContentId added =
        app::DocumentOperations(m_context.workspace)
            .split(m_documentId, app::bodyPosition(cut->body(), m_text->caret()));
    if (!added.isNull())
        m_context.workspace.select(added);
}

void EditorPanel::updateCounts()
{
    const core::Document *counted = document();
    if (!counted) {
        m_counts->clear();
        return;
    }
    const QString words =
        tr("%1 words").arg(QLocale().toString(qlonglong(app::countWords(counted->body()))));
    const QString selected = m_text->textCursor().selectedText();
    m_counts->setText(
        selected.isEmpty()
            ? words
            : tr("%1 of %2").arg(QLocale().toString(qlonglong(app::countWords(selected))), words));
}

} // namespace vl::desktop
