#include "desktop/panels/editorpanel.h"

#include "app/base/settingskeys.h"
#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "app/models/prompts.h"
#include "app/models/workspace.h"
#include "core/content/document.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/editor/distractionfree.h"
#include "desktop/editor/editorlayout.h"
#include "desktop/editor/editorpictures.h"
#include "desktop/editor/editorsession.h"
#include "desktop/editor/findstrip.h"
#include "desktop/editor/pageview.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/widgets/elidedlabel.h"
#include "desktop/widgets/emptystate.h"
#include "desktop/widgets/focusring.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextBlock>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int pageFillMilliseconds = 400;
constexpr int emptyPage = 0;
constexpr int textPage = 1;

/// The words between two places, from what each line knows of itself.
qsizetype wordsBetween(const QTextDocument &document, int from, int to)
{
    const QTextBlock first = document.findBlock(from);
    const QTextBlock last = document.findBlock(to);
    if (first == last)
        return app::countWords(
            QStringView(first.text()).sliced(from - first.position(), to - from));
    qsizetype words = app::countWords(QStringView(first.text()).sliced(from - first.position()))
                      + app::countWords(QStringView(last.text()).first(to - last.position()));
    for (QTextBlock block = first.next(); block.isValid() && block != last; block = block.next())
        if (const EditorLine *line = EditorLine::of(block))
            words += line->words();
    return words;
}

/// A file as it is, or a copy of it whose name can stand in Markdown, which takes no blanks and no
/// parentheses.
QString withTellableName(const QString &file, const QTemporaryDir &dir)
{
    static const QRegularExpression untellable(QStringLiteral("[\\s()\\[\\]]+"));
    QString name = QFileInfo(file).fileName();
    if (!untellable.match(name).hasMatch())
        return file;
    name.replace(untellable, QStringLiteral("-"));
    const QString copy = dir.filePath(name);
    return QFile::copy(file, copy) ? copy : file;
}

} // namespace

EditorPanel::EditorPanel(const PanelContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_text(new EditorTextWidget(this))
    , m_session(new EditorSession(context, m_text, this))
    , m_strip(new FindStrip(context, m_session, m_text, this))
    , m_pictures(new EditorPictures(this))
    , m_pages(new QStackedWidget(this))
    , m_pageView(new PageView(this))
    , m_title(new ElidedLabel({}, this))
    , m_counts(new QLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    FocusRing::leaveTo(m_text);
    m_text->setAccessibleName(tr("Text of the document"));
    m_pages->addWidget(makeEmptyPage());
    m_pages->addWidget(m_text);
    m_pages->addWidget(m_pageView);
    layout->addWidget(m_strip);
    layout->addWidget(m_pages, 1);
    buildFooter(layout);
    setFocusProxy(m_text);

    connect(m_session, &EditorSession::opened, this, &EditorPanel::showOpened);
    m_pageFill.setSingleShot(true);
    m_pageFill.setInterval(pageFillMilliseconds);
    connect(&m_pageFill, &QTimer::timeout, this, &EditorPanel::fillPages);
    connect(m_session, &EditorSession::edited, this, [this] {
        if (m_pages->currentWidget() == m_pageView)
            m_pageFill.start();
    });
    connect(m_pageView, &PageView::placeChosen, this, [this](qsizetype place) {
        m_context.actions["view.pageLayout"]->setChecked(false);
        m_text->select(place, place);
        m_text->centerCursor();
        m_text->setFocus();
    });
    connect(m_session, &EditorSession::titleChanged, this, &EditorPanel::showTitle);
    connect(m_session, &EditorSession::edited, this, &EditorPanel::updateCounts);
    connect(m_text, &QPlainTextEdit::selectionChanged, this, &EditorPanel::updateCounts);
    connect(m_text, &EditorTextWidget::menuRequested, this, &EditorPanel::showMenu);
    connect(m_text, &EditorTextWidget::pictureFilesDropped, this, &EditorPanel::insertPictureFiles);
    connect(m_text, &EditorTextWidget::picturePasted, this, &EditorPanel::insertPicture);
    const auto readFolder = [this] {
        m_pictures->setFolder(m_context.workspace.current().folder());
    };
    connect(&m_context.workspace, &app::Workspace::projectReplaced, this, readFolder);
    connect(&m_context.workspace, &app::Workspace::locationChanged, this, readFolder);
    readFolder();
    connect(&m_context.settings.changes(), &app::SettingsChanges::changed, this,
            [this](const QString &key) {
                if (key.startsWith(QLatin1String("editor/")))
                    restyle();
            });
    m_text->setPictures(m_pictures);
    bindActions();
    restyle();
    showOpened();
}

EditorPanel::~EditorPanel()
{
    // The text may lie in the window without distractions, which goes with its parent, this.
    delete m_strip; // both look at the text field
    delete m_session;
}

QWidget *EditorPanel::makeEmptyPage()
{
    auto *empty = new EmptyState(tr("Select a document to write in it."), tr("New Document"), this);
    connect(empty, &EmptyState::activated, m_context.actions["doc.add"], &QAction::trigger);
    return empty;
}

void EditorPanel::buildFooter(QLayout *layout)
{
    auto *footer = new QWidget(this);
    auto *row = new QHBoxLayout(footer);
    row->setContentsMargins(grid(2), grid(1), grid(2), grid(1));
    row->setSpacing(grid(4));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_title->setAccessibleName(tr("Title of the document"));
    m_counts->setAccessibleName(tr("Word count"));
    row->addWidget(m_title, 1);
    row->addWidget(m_counts);
    layout->addWidget(footer);
}

void EditorPanel::bindActions()
{
    m_context.actions.bind("doc.split", this, &EditorPanel::splitAtCaret);
    // On and off, as their ticks say.
    for (const auto &[id, slot] :
         {std::pair("view.distractionFree", &EditorPanel::setDistractionFree),
          std::pair("view.pageLayout", &EditorPanel::showPages)}) {
        m_context.actions[id]->setCheckable(true);
        m_context.actions.bind(id, this, [] {});
        connect(m_context.actions[id], &QAction::toggled, this, slot);
    }
    m_context.actions.bind("text.strong", this,
                           [this] { m_text->toggleMarks(QStringLiteral("**")); });
    m_context.actions.bind("text.emphasis", this,
                           [this] { m_text->toggleMarks(QStringLiteral("*")); });
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
    m_text->setTypographic(m_context.settings.flag(app::settings::editorSmartQuotes));
    m_text->setTypewriter(m_distractionFree
                          || m_context.settings.flag(app::settings::editorTypewriter));
    setUpPages();
}

void EditorPanel::showOpened()
{
    const bool isOpen = m_session->live() != nullptr;
    for (const char *id :
         {"doc.split", "text.strong", "text.emphasis", "edit.find", "edit.replace", "edit.findNext",
          "edit.findPrevious", "view.distractionFree", "view.pageLayout"})
        m_context.actions[id]->setEnabled(isOpen);
    if (m_distractionFree && !isOpen)
        m_context.actions["view.distractionFree"]->setChecked(false);
    const bool showsPages = m_context.actions["view.pageLayout"]->isChecked();
    if (!m_distractionFree && !(isOpen && showsPages))
        m_pages->setCurrentIndex(isOpen ? textPage : emptyPage);
    else if (!m_distractionFree)
        m_pages->setCurrentWidget(m_pageView);
    m_pageView->clear();
    fillPages();
    showTitle();
    updateCounts();
}

void EditorPanel::showTitle()
{
    const core::Document *shown = m_session->document();
    m_title->setText(shown ? shown->title() : QString());
}

void EditorPanel::splitAtCaret()
{
    m_session->handIn();
    const core::Document *cut = m_session->document();
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
    if (!m_session->live()) {
        m_counts->clear();
        return;
    }
    const auto number = [](qsizetype value) { return QLocale().toString(qlonglong(value)); };
    QString words = tr("%Ln word(s)", nullptr, int(m_session->live()->layout()->wordCount()));
    const QTextCursor cursor = m_text->textCursor();
    if (cursor.hasSelection())
        words = tr("%1 of %2")
                    .arg(number(wordsBetween(*m_text->document(), cursor.selectionStart(),
                                             cursor.selectionEnd())),
                         words);
    m_counts->setText(tr("Today %1 · %2", "words typed today, words of the document")
                          .arg(number(m_session->wordsToday()), words));
    if (m_distractionFree)
        m_distractionFree->setFoot(m_counts->text());
    m_counts->setToolTip(tr("Today: words typed less words deleted. Pasted text is not counted."));
}

void EditorPanel::showMenu(const QPoint &globalPosition)
{
    QMenu menu(this);
    const bool hasSelection = m_text->textCursor().hasSelection();
    const auto add = [&menu, this](const QString &text, const QKeySequence &keys, bool isEnabled,
                                   auto slot) {
        QAction *entry = menu.addAction(text);
        entry->setShortcut(keys);
        entry->setEnabled(isEnabled);
        connect(entry, &QAction::triggered, m_text, slot);
    };
    menu.addAction(m_context.actions["edit.undo"]);
    menu.addAction(m_context.actions["edit.redo"]);
    menu.addSeparator();
    add(tr("Cu&t"), QKeySequence::Cut, hasSelection, &EditorTextWidget::cutSelection);
    add(tr("&Copy"), QKeySequence::Copy, hasSelection, &QPlainTextEdit::copy);
    add(tr("&Paste"), QKeySequence::Paste, m_text->canPaste(), &QPlainTextEdit::paste);
    add(tr("&Delete"), QKeySequence(), hasSelection, &EditorTextWidget::deleteSelection);
    add(tr("Select &All"), QKeySequence::SelectAll, true, &QPlainTextEdit::selectAll);
    menu.addSeparator();
    for (const char *id : {"text.strong", "text.emphasis"})
        menu.addAction(m_context.actions[id]);
    menu.addSeparator();
    for (const char *id : {"edit.find", "doc.split"})
        menu.addAction(m_context.actions[id]);
    menu.exec(globalPosition);
}

void EditorPanel::insertPictureFiles(const QStringList &files)
{
    QStringList lines;
    const QTemporaryDir renamed;
    for (const QString &file : files) {
        const app::Result<QString> path =
            m_context.workspace.current().addMedia(withTellableName(file, renamed));
        if (!path) {
            m_context.prompts.showError(tr("Insert Picture"), path.message());
            continue;
        }
        lines.append(QStringLiteral("![](%1)").arg(*path));
    }
    if (lines.isEmpty())
        return;
    const QTextCursor cursor = m_text->textCursor();
    const QString before = cursor.atBlockStart() ? QString() : QStringLiteral("\n\n");
    m_text->insertStep(before + lines.join(QStringLiteral("\n\n")) + QStringLiteral("\n\n"));
}

void EditorPanel::insertPicture(const QImage &image)
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("picture.png"));
    if (!image.isNull() && image.save(file))
        insertPictureFiles({file});
}

void EditorPanel::setDistractionFree(bool isOn)
{
    if (isOn == (m_distractionFree != nullptr) || (isOn && !m_session->live()))
        return;
    m_text->notePlace();
    if (isOn) {
        m_context.actions["view.pageLayout"]->setChecked(false);
        m_pages->setCurrentIndex(emptyPage);
        m_distractionFree = new DistractionFree(m_context.actions, m_strip, m_text, this);
        connect(m_distractionFree, &DistractionFree::leaveRequested, this,
                [this] { m_context.actions["view.distractionFree"]->setChecked(false); });
        m_distractionFree->setGeometry(screen()->geometry());
        m_distractionFree->showFullScreen();
    } else {
        static_cast<QVBoxLayout *>(layout())->insertWidget(0, m_strip);
        m_pages->insertWidget(textPage, m_text);
        m_pages->setCurrentIndex(m_session->live() ? textPage : emptyPage);
        std::exchange(m_distractionFree, nullptr)->deleteLater();
        window()->activateWindow();
    }
    m_text->show();
    m_text->goToPlace();
    m_text->setTypewriter(isOn || m_context.settings.flag(app::settings::editorTypewriter));
    m_text->setFocus();
    updateCounts();
}

void EditorPanel::showPages(bool isOn)
{
    if (!m_session->live())
        return;
    if (isOn) {
        m_context.actions["view.distractionFree"]->setChecked(false);
        m_session->handIn();
        m_pages->setCurrentWidget(m_pageView);
        fillPages();
        m_pageView->goTo(m_text->caret());
        m_pageView->setFocus();
        setFocusProxy(m_pageView);
    } else {
        m_pages->setCurrentIndex(textPage);
        m_pageView->clear();
        setFocusProxy(m_text);
        m_text->setFocus();
    }
}

void EditorPanel::fillPages()
{
    const core::Document *shown = m_session->document();
    if (shown && m_context.actions["view.pageLayout"]->isChecked())
        m_pageView->setText(shown->title(), m_session->live()->text());
}

void EditorPanel::setUpPages()
{
    const EditorStyle *style = m_text->style();
    m_pageView->setSetup(PageSetup::standard(style->font().family(), style->lineSpacing()));
}

} // namespace vl::desktop
