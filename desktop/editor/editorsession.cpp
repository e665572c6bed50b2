#include "desktop/editor/editorsession.h"

#include "app/models/workspace.h"
#include "app/storage/workingcopy.h"
#include "core/commands/documentcommands.h"
#include "desktop/editor/editorlayout.h"
#include "desktop/panels/editortextwidget.h"

#include <QtCore/QScopedValueRollback>

namespace vl::desktop {

namespace {

constexpr int pauseMilliseconds = 2000;
constexpr int deskMilliseconds = 5000;
constexpr qsizetype wordsOfABurst = 40;

QString deskFolder()
{
    return app::StorageLocations::standard().root + QStringLiteral("/desks");
}

} // namespace

EditorSession::EditorSession(const PanelContext &context, EditorTextWidget *text, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_text(text)
    , m_desk(deskFolder())
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &EditorSession::handIn);
    m_deskPause.setSingleShot(true);
    m_deskPause.setInterval(deskMilliseconds);
    connect(&m_deskPause, &QTimer::timeout, this, [this] {
        notePlace();
        m_desk.save();
    });
    connect(m_text, &QPlainTextEdit::textChanged, this, &EditorSession::noteEdit);
    connect(m_text, &EditorTextWidget::caretJumped, this, [this] {
        handIn();
        if (!m_deskPause.isActive())
            m_deskPause.start();
    });
    connect(m_text, &EditorTextWidget::focusLost, this, &EditorSession::handIn);
    connect(m_text, &EditorTextWidget::stepBegins, this, &EditorSession::handIn);
    connect(m_text, &EditorTextWidget::stepEnds, this, &EditorSession::handIn);

    app::Workspace &workspace = m_context.workspace;
    connect(&workspace, &app::Workspace::flushRequested, this, &EditorSession::handIn);
    connect(&workspace, &app::Workspace::peekRequested, this, [this](app::PendingTexts &texts) {
        if (m_live && m_live->hasTyped)
            texts.append(m_live->pendingText());
    });
    connect(&workspace, &app::Workspace::selectionChanged, this, &EditorSession::openSelected);
    connect(&workspace, &app::Workspace::revealRequested, this, &EditorSession::reveal);
    connect(&workspace, &app::Workspace::changed, this, &EditorSession::follow);
    connect(&workspace, &app::Workspace::projectReplaced, this, &EditorSession::startProject);
    connect(&workspace, &app::Workspace::locationChanged, this,
            [this] { m_desk.moveTo(m_context.workspace.current().path()); });
    connect(&workspace, &app::Workspace::saved, this, [this] { m_desk.save(); });
}

EditorSession::~EditorSession()
{
    notePlace();
    m_desk.save();
    m_text->showDocument(nullptr); // before the texts go
}

core::Document *EditorSession::document() const
{
    return m_context.workspace.project().find<core::Document>(documentId());
}

void EditorSession::notePlace()
{
    if (!m_live)
        return;
    m_text->notePlace();
    if (!m_live->body.isEmpty())
        m_desk.setPlace(m_live->id(), m_live->place);
}

void EditorSession::openSelected()
{
    const QList<core::ContentId> &selection = m_context.workspace.selection();
    if (selection.size() == 1
        && m_context.workspace.project().find<core::Document>(selection.first()))
        open(selection.first());
}

void EditorSession::open(const core::ContentId &id)
{
    if (m_live && id == m_live->id())
        return;
    handIn();
    notePlace();

    const auto *toOpen = m_context.workspace.project().find<core::Document>(id);
    m_live = nullptr;
    if (toOpen) {
        const bool isNew = !m_documents.find(id);
        LiveDocument *live = m_documents.open(id);
        if (isNew) {
            live->setText(app::shownText(toOpen->body()));
            live->place = m_desk.place(id);
        } else if (live->body != toOpen->body()) {
            live->apply(
                app::difference(app::shownText(live->body), app::shownText(toOpen->body())));
        }
        live->noteInStep(toOpen->body());
        m_live = live;
        m_desk.setLastDocument(id);
    }
    m_text->showDocument(m_live);
    m_wordsSeen = m_live ? m_live->layout()->wordCount() : 0;
    m_burstWords = 0;
    Q_EMIT opened();
}

void EditorSession::reveal(const core::ContentId &id, qsizetype position, qsizetype length)
{
    open(id); // the selection may have been there before, while something else was being written
    const core::Document *shown = document();
    if (!shown)
        return;
    m_text->select(app::shownPosition(shown->body(), position),
                   app::shownPosition(shown->body(), position + length));
    m_text->centerCursor();
}

void EditorSession::noteEdit()
{
    if (!m_live)
        return;
    const qsizetype words = m_live->layout()->wordCount();
    const qsizetype added = words - std::exchange(m_wordsSeen, words);
    if (!m_isFollowing) {
        m_live->hasTyped = true;
        m_pause.start();
        Q_EMIT m_context.workspace.typed();
        if (m_text->isTyping())
            m_desk.day().type(QDate::currentDate(), added);
        m_burstWords += qMax<qsizetype>(0, added);
        const int caret = m_text->textCursor().position();
        if (m_burstWords >= wordsOfABurst && caret > 0
            && m_live->document()->characterAt(caret - 1).isSpace())
            handIn();
    }
    Q_EMIT edited();
}

void EditorSession::handIn()
{
    if (m_isFollowing)
        return;
    m_pause.stop();
    m_burstWords = 0;
    core::Document *written = document();
    if (!written || !m_live->hasTyped)
        return;
    const QString body = app::bodyAfterEdit(written->body(), m_live->text());
    m_live->noteInStep(body); // so that the step is not taken for somebody else's
    if (body == written->body())
        return;
    m_context.workspace.push<core::SetDocumentBodyCommand>(*written, body);
    m_desk.day().stepMade(m_steps);
    m_desk.touch();
    if (!m_deskPause.isActive())
        m_deskPause.start();
}

void EditorSession::replaceText(const QString &text,
                                const std::function<qsizetype(qsizetype)> &placeAfter)
{
    handIn();
    core::Document *written = document();
    if (!written)
        return;
    const QString body = app::bodyAfterEdit(written->body(), text);
    if (body == written->body())
        return;
    m_text->notePlace();
    const qsizetype caret = placeAfter(m_live->place.caret);
    const app::WritingPlace place{caret, caret, placeAfter(m_live->place.top)};
    m_context.workspace.push<core::SetDocumentBodyCommand>(*written, body);
    m_live->place = place;
    m_text->goToPlace();
}

void EditorSession::countStep()
{
    const core::CommandStack &history = m_context.workspace.history();
    const qsizetype steps = history.undoCount() + (history.isGroupOpen() ? 1 : 0);
    const qsizetype before = std::exchange(m_steps, steps);
    if (!m_context.workspace.isStepping())
        m_desk.day().otherStepMade(steps);
    else if (steps < before)
        m_desk.day().stepUndone(QDate::currentDate(), steps);
    else
        m_desk.day().stepRedone(QDate::currentDate(), steps);
}

void EditorSession::follow(const core::ChangeSet &changes)
{
    countStep();
    forgetRemoved(changes);
    if (!m_live || !changes.objects().contains(m_live->id())) {
        if (m_context.workspace.isStepping()) {
            showSteppedDocument(changes);
            Q_EMIT edited(); // the words of the day
        }
        return;
    }
    const core::Document *changed = document();
    if (!changed)
        return;
    Q_EMIT titleChanged();
    if (changed->body() != m_live->body)
        followText(*changed);
}

/// Whoever takes a step back sees what goes, wherever it was written.
void EditorSession::showSteppedDocument(const core::ChangeSet &changes)
{
    for (const auto &[id, change] : changes.objects()) {
        const LiveDocument *live = m_documents.find(id);
        const auto *stepped = m_context.workspace.project().find<core::Document>(id);
        if (!live || !stepped || live->body == stepped->body())
            continue;
        const QString before = app::shownText(live->body);
        const app::TextEdit edit = app::difference(before, app::shownText(stepped->body()));
        m_context.workspace.select(id);
        const qsizetype caret = edit.position + edit.inserted.size();
        m_text->select(caret, caret);
        m_text->ensureCursorVisible();
        return;
    }
}

void EditorSession::forgetRemoved(const core::ChangeSet &changes)
{
    for (const auto &[id, change] : changes.objects()) {
        if (change != core::ChangeSet::Change::Removed)
            continue;
        if (m_live && id == m_live->id()) {
            m_live->hasTyped = false;
            open({});
        }
        m_documents.remove(id);
    }
}

void EditorSession::followText(const core::Document &changed)
{
    const QString before = app::shownText(m_live->body);
    const QString after = app::shownText(changed.body());
    m_live->body = changed.body();
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    if (m_live->hasTyped) {
        m_live->apply(
            app::rebased(app::difference(before, after), app::difference(before, m_live->text())));
    } else {
        m_pause.stop();
        const QTextCursor edit = m_live->apply(app::difference(before, after, m_text->caret()));
        m_live->noteInStep(changed.body());
        // Only a step back or forth leads to what it changes; what others did leaves the writer
        // where she is.
        if (m_context.workspace.isStepping()) {
            m_text->setTextCursor(edit);
            m_text->ensureCursorVisible();
        }
    }
}

void EditorSession::startProject()
{
    if (m_live)
        m_live->hasTyped = false; // the project that it was typed in is gone
    open({});
    m_documents.clear();
    m_desk.open(m_context.workspace.current().path());
    m_desk.day().forgetSteps();
    m_steps = 0;
    const core::ContentId last = m_desk.lastDocument();
    if (m_context.workspace.project().find<core::Document>(last))
        m_context.workspace.select(last);
}

qsizetype EditorSession::wordsToday()
{
    return m_desk.day().wordsOn(QDate::currentDate());
}

} // namespace vl::desktop
