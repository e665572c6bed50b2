#include "desktop/editor/findstrip.h"

#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/editor/editorsession.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/elidedlabel.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace vl::desktop {

namespace {

constexpr int fieldSteps = 40; // the least width of a field beside its buttons
constexpr int editPauseMilliseconds = 250;
constexpr int problemPauseMilliseconds = 700;
constexpr qsizetype longestTaken = 200; // of a selection that becomes the pattern

} // namespace

FindStrip::FindStrip(const PanelContext &context, EditorSession *session, EditorTextWidget *text,
                     QWidget *parent)
    : QWidget(parent)
    , m_workspace(context.workspace)
    , m_session(session)
    , m_text(text)
{
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // it fits what there is
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(grid(2), grid(1), grid(2), grid(1));
    rows->setSpacing(grid(1));
    rows->addLayout(makeFindRow());
    m_problem = new QLabel(this);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->hide();
    rows->addWidget(m_problem);
    rows->addWidget(makeReplaceRow());
    hide();

    m_threads.setMaxThreadCount(2); // one that is given up may still come to its end
    // Half an expression is no fault yet, and the text would jump at each bracket.
    m_problemPause.setSingleShot(true);
    m_problemPause.setInterval(problemPauseMilliseconds);
    connect(&m_problemPause, &QTimer::timeout, m_problem, &QWidget::show);
    m_again.setSingleShot(true);
    m_again.setInterval(editPauseMilliseconds);
    connect(&m_again, &QTimer::timeout, this, [this] { search(AfterSearch::Stay); });
    connect(m_session, &EditorSession::opened, this, &FindStrip::followDocument);
    connect(m_text, &QPlainTextEdit::selectionChanged, this, &FindStrip::updateCount);
    context.actions.bind("edit.find", this, &FindStrip::showFind);
    context.actions.bind("edit.replace", this, &FindStrip::showReplace);
    context.actions.bind("edit.findNext", this, &FindStrip::findNext);
    context.actions.bind("edit.findPrevious", this, &FindStrip::findPrevious);
}

FindStrip::~FindStrip()
{
    cancelSearch();
    m_threads.waitForDone();
}

QToolButton *FindStrip::makeToggle(const char *iconName, const QString &toolTip,
                                   const QString &keys)
{
    auto *toggle = new QToolButton(this);
    toggle->setIcon(icon(QLatin1String(iconName)));
    toggle->setCheckable(true);
    toggle->setAutoRaise(true);
    toggle->setShortcut(QKeySequence(keys));
    toggle->setAccessibleName(toolTip);
    toggle->setToolTip(QStringLiteral("%1 (%2)").arg(
        toolTip, toggle->shortcut().toString(QKeySequence::NativeText)));
    return toggle;
}

QLayout *FindStrip::makeFindRow()
{
    m_pattern = new QLineEdit(this);
    m_pattern->setPlaceholderText(tr("Find"));
    m_pattern->setAccessibleName(tr("Find"));
    m_pattern->installEventFilter(this);
    connect(m_pattern, &QLineEdit::textChanged, this, [this] { search(AfterSearch::GoToFirst); });

    m_case = makeToggle("case", tr("Match case"), QStringLiteral("Alt+C"));
    m_words = makeToggle("word", tr("Whole words"), QStringLiteral("Alt+W"));
    m_expression = makeToggle("regex", tr("Regular expression"), QStringLiteral("Alt+R"));
    m_inSelection = makeToggle("field", tr("In the selection only"), QStringLiteral("Alt+S"));
    for (QToolButton *toggle : {m_case, m_words, m_expression})
        connect(toggle, &QToolButton::toggled, this, [this] { search(AfterSearch::GoToFirst); });
    connect(m_inSelection, &QToolButton::toggled, this, &FindStrip::restrictToSelection);

    m_count = new ElidedLabel({}, this);
    m_count->setAccessibleName(tr("Hits"));
    m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_count->setMinimumWidth(grid(24));
    const auto button = [this](const char *name, const QString &text, auto slot) {
        auto *made = new QToolButton(this);
        made->setIcon(icon(QLatin1String(name)));
        made->setAutoRaise(true);
        made->setToolTip(text);
        made->setAccessibleName(text);
        connect(made, &QToolButton::clicked, this, slot);
        return made;
    };
    auto *tools = new QHBoxLayout;
    tools->setSpacing(grid(1));
    for (QToolButton *toggle : {m_case, m_words, m_expression, m_inSelection})
        tools->addWidget(toggle);
    tools->addWidget(m_count, 1);
    tools->addWidget(button("up", tr("Previous (Shift+Enter)"), &FindStrip::findPrevious));
    tools->addWidget(button("down", tr("Next (Enter)"), &FindStrip::findNext));
    tools->addWidget(button("close", tr("Close (Esc)"), &FindStrip::leave));
    m_findBox = new QBoxLayout(QBoxLayout::LeftToRight);
    m_findBox->setSpacing(grid(1));
    m_findBox->addWidget(m_pattern, 3);
    m_findBox->addLayout(tools, 1);
    return m_findBox;
}

QWidget *FindStrip::makeReplaceRow()
{
    m_replaceRow = new QWidget(this);
    m_replacement = new QLineEdit(m_replaceRow);
    m_replacement->setPlaceholderText(tr("Replace with"));
    m_replacement->setAccessibleName(tr("Replace with"));
    m_replacement->installEventFilter(this);
    m_keepsCase =
        makeToggle("keepCase", tr("Keep the case of what is replaced"), QStringLiteral("Alt+K"));
    m_keepsCase->setAccessibleDescription(tr("“Tide” becomes “Ebb” and “TIDE” becomes “EBB”."));
    m_keepsCase->setToolTip(m_keepsCase->toolTip() + u'\n' + m_keepsCase->accessibleDescription());
    auto *one = new QPushButton(tr("Re&place"), m_replaceRow);
    connect(one, &QPushButton::clicked, this, &FindStrip::replaceOne);
    m_replaceAll = new QPushButton(tr("Replace A&ll"), m_replaceRow);
    connect(m_replaceAll, &QPushButton::clicked, this, &FindStrip::replaceAll);
    m_replaceBox = new QBoxLayout(QBoxLayout::LeftToRight, m_replaceRow);
    m_replaceBox->setContentsMargins(0, 0, 0, 0);
    m_replaceBox->setSpacing(grid(1));
    auto *field = new QHBoxLayout;
    field->addWidget(m_replacement, 1);
    field->addWidget(m_keepsCase);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(one);
    buttons->addWidget(m_replaceAll);
    m_replaceBox->addLayout(field, 1);
    m_replaceBox->addLayout(buttons);
    for (QLayout *part : {field, buttons})
        part->setSpacing(grid(1));
    // What is typed and pressed each time comes before what is seldom switched.
    const QList<QWidget *> order{m_pattern, m_replacement, one, m_replaceAll, m_keepsCase};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    m_replaceRow->hide();
    return m_replaceRow;
}

void FindStrip::showFind()
{
    if (!m_session->live())
        return;
    takeSelection();
    m_replaceRow->show();
    show();
    if (!isVisible()) // the editor is closed, or behind another panel
        m_workspace.write();
    m_pattern->setFocus();
    m_pattern->selectAll();
    search(AfterSearch::GoToFirst);
}

void FindStrip::showReplace()
{
    showFind();
    if (!isVisible() || m_pattern->text().isEmpty())
        return;
    m_replacement->setFocus();
    m_replacement->selectAll();
}

void FindStrip::takeSelection()
{
    const QTextCursor cursor = m_text->textCursor();
    m_showsHit = false;
    m_origin = m_session->live()->toShown(cursor.selectionStart());
    const QString selected = cursor.selectedText();
    if (selected.isEmpty() || m_pattern->hasFocus() || m_replacement->hasFocus())
        return;
    if (selected.contains(QChar(QChar::ParagraphSeparator)) || selected.size() > longestTaken) {
        m_inSelection->setChecked(true);
        return;
    }
    const QSignalBlocker blocker(m_pattern);
    m_pattern->setText(m_expression->isChecked() ? QRegularExpression::escape(selected) : selected);
}

void FindStrip::restrictToSelection(bool isOn)
{
    const QTextCursor cursor = m_text->textCursor();
    m_from = 0;
    m_to = -1;
    if (isOn && cursor.hasSelection() && m_session->live()) {
        m_from = m_session->live()->toShown(cursor.selectionStart());
        m_to = m_session->live()->toShown(cursor.selectionEnd());
    } else if (isOn) {
        m_inSelection->setChecked(false); // there is none
        return;
    }
    search(AfterSearch::GoToFirst);
}

app::SearchTerms FindStrip::terms() const
{
    app::SearchTerms terms;
    terms.options.pattern = m_pattern->text();
    terms.options.isCaseSensitive = m_case->isChecked();
    terms.options.wholeWords = m_words->isChecked();
    terms.options.isExpression = m_expression->isChecked();
    terms.from = m_from;
    terms.to = m_to;
    return terms;
}

void FindStrip::cancelSearch()
{
    if (m_cancel)
        m_cancel->store(true);
    m_cancel.reset();
}

void FindStrip::search(AfterSearch next)
{
    cancelSearch();
    m_again.stop();
    m_next = next;
    if (!m_session->live() || m_pattern->text().isEmpty()) {
        take(++m_number, {});
        return;
    }
    m_cancel = std::make_shared<std::atomic_bool>(false);
    m_threads.start([this, number = ++m_number, text = m_session->live()->text(), terms = terms(),
                     cancel = m_cancel] {
        const app::SearchResult result = app::findAll(text, terms, cancel.get());
        QMetaObject::invokeMethod(this, [this, number, result] { take(number, result); });
    });
}

void FindStrip::take(quint64 number, const app::SearchResult &result)
{
    if (number != m_number)
        return;
    m_cancel.reset();
    m_hits = result.hits;
    m_told = {{}, result.isCut, result.error};
    m_text->setHits(isVisible() ? m_hits : std::vector<app::SearchHit>());
    const qsizetype caret = m_text->caret();
    switch (std::exchange(m_next, AfterSearch::Stay)) {
    case AfterSearch::Stay:
        break;
    case AfterSearch::GoToFirst:
        // What was found before more was typed must not stay selected, for the next key to replace.
        if (m_hits.empty() && std::exchange(m_showsHit, false) && m_session->live()
            && m_session->live()->toShown(m_text->textCursor().selectionStart()) == m_origin)
            m_text->select(m_origin, m_origin);
        goTo(app::hitFrom(m_hits, m_origin));
        break;
    case AfterSearch::GoToNext:
        goTo(app::hitFrom(m_hits, caret));
        break;
    case AfterSearch::GoToPrevious:
        goTo(app::hitBefore(m_hits, caret));
        break;
    case AfterSearch::ReplaceAll:
        replaceAll();
        return;
    }
    updateCount();
}

void FindStrip::followDocument()
{
    disconnect(m_edits);
    if (LiveDocument *live = m_session->live())
        m_edits =
            connect(live->document(), &QTextDocument::contentsChange, this, &FindStrip::noteEdit);
    m_inSelection->setChecked(false);
    m_origin = 0;
    m_hits.clear();
    if (isVisible())
        search(AfterSearch::Stay);
}

void FindStrip::noteEdit(int position, int removed, int added)
{
    if (!isVisible() || !m_session->live())
        return;
    // Until the pause in which they are looked for anew, the hits keep to their words.
    const qsizetype place = m_session->live()->toShown(position);
    app::moveHits(m_hits, place, removed, added);
    if (m_to >= 0 && place <= m_to)
        m_to = qMax(m_from, m_to + added - removed);
    m_text->setHits(m_hits);
    updateCount();
    cancelSearch();
    m_again.start();
}

void FindStrip::step(bool forward)
{
    if (!m_session->live())
        return;
    if (m_pattern->text().isEmpty()) {
        showFind();
        return;
    }
    if (!isVisible() || isSearching() || m_again.isActive()) {
        search(forward ? AfterSearch::GoToNext : AfterSearch::GoToPrevious);
        return;
    }
    const QTextCursor cursor = m_text->textCursor();
    const qsizetype from = m_session->live()->toShown(cursor.selectionStart());
    const qsizetype to = m_session->live()->toShown(cursor.selectionEnd());
    goTo(forward ? app::hitFrom(m_hits, to) : app::hitBefore(m_hits, from));
}

void FindStrip::goTo(qsizetype number)
{
    if (number < 0)
        return;
    const app::SearchHit &hit = m_hits[size_t(number)];
    m_text->select(hit.position, hit.position + hit.length);
    m_text->showCaretWithin();
    m_origin = hit.position;
    m_showsHit = true;
    updateCount();
}

void FindStrip::replaceOne()
{
    const qsizetype caret = m_text->caret();
    const qsizetype number = app::hitBefore(m_hits, caret);
    const QTextCursor cursor = m_text->textCursor();
    const bool isAtHit =
        number >= 0 && !isSearching()
        && m_hits[size_t(number)].position == m_session->live()->toShown(cursor.selectionStart())
        && m_hits[size_t(number)].position + m_hits[size_t(number)].length == caret;
    if (!isAtHit) {
        step(true);
        return;
    }
    m_text->insertStep(app::replacementOf(m_session->live()->text(), m_hits[size_t(number)],
                                          terms().options, m_replacement->text(),
                                          m_keepsCase->isChecked()));
    m_origin = m_text->caret();
    search(AfterSearch::GoToNext);
}

void FindStrip::replaceAll()
{
    if (!m_session->live())
        return;
    if (isSearching() || m_again.isActive()) {
        search(AfterSearch::ReplaceAll);
        return;
    }
    const auto count = qlonglong(m_hits.size());
    if (count == 0)
        return;
    const QString text = m_session->live()->text();
    const app::SearchOptions options = terms().options;
    const QString replacement = m_replacement->text();
    const bool keepsCase = m_keepsCase->isChecked();
    const auto placeAfter = [&, hits = m_hits](qsizetype place) {
        return app::placeAfterReplacing(place, text, hits, options, replacement, keepsCase);
    };
    m_session->replaceText(app::replacedHits(text, m_hits, options, replacement, keepsCase),
                           placeAfter);
    m_again.stop();
    m_hits.clear();
    m_text->setHits({});
    m_count->setText(tr("%1 replaced").arg(QLocale().toString(count)));
}

void FindStrip::updateCount()
{
    if (!isVisible())
        return;
    QString told;
    const auto number = [](qsizetype value) { return QLocale().toString(qlonglong(value)); };
    m_problem->setText(m_told.error.isEmpty() ? QString() : QStringLiteral("⚠ ") + m_told.error);
    if (m_told.error.isEmpty()) {
        m_problemPause.stop();
        m_problem->hide();
    } else if (m_problem->isHidden()) {
        m_problemPause.start();
    }
    if (!m_told.error.isEmpty() || m_pattern->text().isEmpty() || isSearching())
        told = QString();
    else if (m_hits.empty())
        told = tr("Not found");
    else {
        const QTextCursor cursor = m_text->textCursor();
        const qsizetype from = m_session->live()->toShown(cursor.selectionStart());
        const qsizetype at = app::hitFrom(m_hits, from);
        const app::SearchHit &hit = m_hits[size_t(at)];
        const QString all = m_told.isCut ? tr("more than %1").arg(number(qsizetype(m_hits.size())))
                                         : number(qsizetype(m_hits.size()));
        const bool isAtHit =
            hit.position == from
            && hit.length == m_session->live()->toShown(cursor.selectionEnd()) - from;
        told = isAtHit ? tr("%1 of %2", "the hit that is shown, all hits").arg(number(at + 1), all)
                       : all;
    }
    m_count->setText(told);
}

void FindStrip::leave()
{
    hide();
    cancelSearch();
    m_again.stop();
    m_replaceRow->hide();
    m_inSelection->setChecked(false);
    m_hits.clear();
    m_text->setHits({});
    m_text->setFocus();
}

bool FindStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    if (watched == m_replacement)
        replaceOne();
    else
        step(!key->modifiers().testFlag(Qt::ShiftModifier));
    return true;
}

void FindStrip::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        leave();
    else
        QWidget::keyPressEvent(event);
}

/// Where the panel is narrow or the texts are large, the buttons stand below the fields.
void FindStrip::fitWidth()
{
    for (QBoxLayout *box : {m_findBox, m_replaceBox}) {
        const int needed = grid(fieldSteps) + box->itemAt(1)->minimumSize().width();
        box->setDirection(needed > contentsRect().width() ? QBoxLayout::TopToBottom
                                                          : QBoxLayout::LeftToRight);
    }
}

void FindStrip::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitWidth();
}

void FindStrip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The buttons hear of the font after the strip.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        QMetaObject::invokeMethod(this, &FindStrip::fitWidth, Qt::QueuedConnection);
}

void FindStrip::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_text->setHits(m_hits);
    updateCount();
}

} // namespace vl::desktop
