#include "desktop/dialogs/findinproject.h"

#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/findinprojectdelegate.h"
#include "desktop/panels/catalogue.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/notices.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <iterator>

namespace vl::desktop {

namespace {

constexpr int typingMilliseconds = 250;
constexpr int settlingMilliseconds = 600;
constexpr int patienceMilliseconds = 200;
constexpr int widthSteps = 180;
constexpr int heightSteps = 150;

constexpr const char *scopeNames[] = {
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Manuscript"),
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Notes"),
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Synopses and Planning"),
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Codex"),
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Comments"),
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Timeline"),
    QT_TRANSLATE_NOOP("vl::desktop::FindInProject", "Everything Else"),
};

/// What is selected in the text that has the focus, as long as it is one line.
QString selectedText()
{
    const QWidget *focused = QApplication::focusWidget();
    QString text;
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(focused))
        text = edit->textCursor().selectedText();
    else if (const auto *line = qobject_cast<const QLineEdit *>(focused))
        text = line->selectedText();
    return text.contains(QChar::ParagraphSeparator) ? QString() : text;
}

} // namespace

void FindInProject::open(const PanelContext &context, const ShowPanel &showPanel, QWidget *window)
{
    const QString text = selectedText();
    auto *dialog = window->findChild<FindInProject *>(QString(), Qt::FindDirectChildrenOnly);
    if (!dialog)
        dialog = new FindInProject(context, showPanel, window);
    dialog->begin(text);
}

FindInProject::FindInProject(const PanelContext &context, ShowPanel showPanel, QWidget *window)
    : QDialog(window)
    , m_context(context)
    , m_showPanel(std::move(showPanel))
    , m_model(context.workspace)
    , m_pattern(new QLineEdit(this))
    , m_replaces(new QCheckBox(tr("&Replace with:"), this))
    , m_replacement(new QLineEdit(this))
    , m_progress(new QProgressBar(this))
    , m_stop(new QPushButton(tr("&Stop"), this))
    , m_list(new QListView(this))
    , m_hint(new QLabel(this))
    , m_pages(new QStackedWidget(this))
    , m_state(new QLabel(this))
    , m_replaceButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("findInProject"));
    setWindowTitle(tr("Find in Project"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(4), grid(4), grid(4), grid(4));
    layout->setSpacing(grid(2));
    auto *form = new QGridLayout;
    form->setHorizontalSpacing(grid(2));
    form->setVerticalSpacing(grid(2));
    buildFields(form);
    layout->addLayout(form);
    buildResults(layout);
    buildFoot(layout);

    for (QTimer *timer : {&m_typing, &m_settling, &m_patience})
        timer->setSingleShot(true);
    m_typing.setInterval(typingMilliseconds);
    m_settling.setInterval(settlingMilliseconds);
    m_patience.setInterval(patienceMilliseconds);
    connect(&m_typing, &QTimer::timeout, this, &FindInProject::search);
    connect(&m_settling, &QTimer::timeout, this, &FindInProject::searchAgain);
    connect(&m_patience, &QTimer::timeout, this, &FindInProject::updateState);
    connect(&m_model, &app::ProjectSearchModel::stateChanged, this, &FindInProject::updateState);
    connect(&m_model, &app::ProjectSearchModel::ticksChanged, this, &FindInProject::updateButton);
    connect(&m_model, &app::ProjectSearchModel::progressed, m_progress,
            [this](int done, int total) {
                m_progress->setRange(0, total);
                m_progress->setValue(done);
            });
    connect(&m_model, &app::ProjectSearchModel::outdated, this, [this] {
        if (isVisible())
            m_settling.start();
    });
    // What was replaced is taken back from here too.
    for (const char *id : {"edit.undo", "edit.redo", "file.save"})
        addAction(context.actions[id]);
    sizeDialog(this, widthSteps, heightSteps);
    updateScopes();
    updateReplacement();
    updateState();
}

void FindInProject::buildFields(QGridLayout *form)
{
    auto *find = new QLabel(tr("&Find:"), this);
    find->setBuddy(m_pattern);
    m_pattern->setObjectName(QStringLiteral("findInProjectPattern"));
    m_pattern->setAccessibleName(tr("Text to find"));
    m_pattern->setClearButtonEnabled(true);
    m_pattern->installEventFilter(this);
    m_case = makeOption(QStringLiteral("case"), tr("Match case"), QStringLiteral("Alt+C"));
    m_words = makeOption(QStringLiteral("word"), tr("Whole words"), QStringLiteral("Alt+W"));
    m_expression =
        makeOption(QStringLiteral("regex"), tr("Regular expression"), QStringLiteral("Alt+X"));
    form->addWidget(find, 0, 0);
    form->addWidget(m_pattern, 0, 1);
    form->addWidget(m_case, 0, 2);
    form->addWidget(m_words, 0, 3);
    form->addWidget(m_expression, 0, 4);

    m_replacement->setObjectName(QStringLiteral("findInProjectReplacement"));
    m_replacement->setAccessibleName(tr("Text to replace it with"));
    m_replacement->setClearButtonEnabled(true);
    m_keepCase = makeOption(QStringLiteral("keepCase"), tr("Keep the case of what is replaced"),
                            QStringLiteral("Alt+K"));
    m_scopeButton = makeScopes();
    form->addWidget(m_replaces, 1, 0);
    form->addWidget(m_replacement, 1, 1);
    form->addWidget(m_keepCase, 1, 2);

    auto *in = new QLabel(tr("&In:"), this);
    in->setBuddy(m_scopeButton);
    auto *row = new QHBoxLayout;
    row->setSpacing(grid(2));
    row->addWidget(m_scopeButton);
    row->addStretch(1);
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("How far the search is"));
    m_progress->setMaximumWidth(grid(40));
    m_progress->setMaximumHeight(grid(2));
    row->addWidget(m_progress);
    row->addWidget(m_stop);
    form->addWidget(in, 2, 0);
    form->addLayout(row, 2, 1, 1, 4);
    form->setColumnStretch(1, 1);

    m_stop->setAutoDefault(false);
    connect(m_stop, &QPushButton::clicked, &m_model, &app::ProjectSearchModel::cancel);
    connect(m_pattern, &QLineEdit::textChanged, &m_typing, qOverload<>(&QTimer::start));
    connect(m_replaces, &QCheckBox::toggled, this, [this](bool replaces) {
        updateReplacement();
        if (replaces)
            m_replacement->setFocus();
    });
    connect(m_replacement, &QLineEdit::textChanged, this, &FindInProject::updateReplacement);
    connect(m_keepCase, &QToolButton::toggled, this, &FindInProject::updateReplacement);
    for (const QToolButton *option : {m_case, m_words, m_expression})
        connect(option, &QToolButton::toggled, this, &FindInProject::search);
}

QToolButton *FindInProject::makeOption(const QString &iconName, const QString &text,
                                       const QString &keys)
{
    auto *option = new QToolButton(this);
    option->setCheckable(true);
    option->setAutoRaise(true);
    option->setIcon(icon(iconName));
    option->setIconSize({grid(4), grid(4)});
    option->setAccessibleName(text);
    option->setShortcut(QKeySequence(keys));
    option->setToolTip(
        tr("%1 (%2)").arg(text, option->shortcut().toString(QKeySequence::NativeText)));
    return option;
}

QToolButton *FindInProject::makeScopes()
{
    auto *button = new QToolButton(this);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::StrongFocus);
    auto *menu = new QMenu(button);
    QAction *all = menu->addAction(tr("Everywhere"));
    connect(all, &QAction::triggered, this, [this] {
        for (QAction *scope : std::as_const(m_scopes))
            scope->setChecked(true);
    });
    menu->addSeparator();
    for (const char *name : scopeNames) {
        QAction *scope = menu->addAction(tr(name));
        scope->setCheckable(true);
        scope->setChecked(true);
        connect(scope, &QAction::toggled, this, [this] {
            updateScopes();
            m_typing.start();
        });
        m_scopes.append(scope);
    }
    button->setMenu(menu);
    return button;
}

void FindInProject::buildResults(QLayout *layout)
{
    m_list->setObjectName(QStringLiteral("findInProjectList"));
    m_list->setAccessibleName(tr("Places found"));
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new FindInProjectDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setMargin(grid(6));
    m_pages->addWidget(m_list);
    m_pages->addWidget(m_hint);
    layout->addWidget(m_pages);
    connect(m_list, &QListView::activated, this, &FindInProject::openRow);
}

void FindInProject::buildFoot(QLayout *layout)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(grid(2));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    m_state->setAccessibleName(tr("How much was found"));
    auto *close = new QPushButton(tr("&Close"), this);
    close->setAutoDefault(false);
    m_replaceButton->setAutoDefault(false);
    row->addWidget(m_state, 1);
    row->addWidget(m_replaceButton);
    row->addWidget(close);
    static_cast<QVBoxLayout *>(layout)->addLayout(row);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(m_replaceButton, &QPushButton::clicked, this, &FindInProject::replace);
}

void FindInProject::begin(const QString &text)
{
    if (!text.isEmpty())
        m_pattern->setText(text);
    show();
    raise();
    activateWindow();
    m_pattern->setFocus(Qt::ShortcutFocusReason);
    m_pattern->selectAll();
    search();
}

app::SearchScopes FindInProject::scopes() const
{
    app::SearchScopes chosen;
    for (qsizetype i = 0; i < m_scopes.size(); ++i)
        if (m_scopes[i]->isChecked())
            chosen |= app::SearchScope(1 << i);
    return chosen;
}

void FindInProject::updateScopes()
{
    QStringList names;
    for (const QAction *scope : std::as_const(m_scopes))
        if (scope->isChecked())
            names.append(scope->text());
    QString text = names.join(tr(", "));
    if (names.size() == m_scopes.size())
        text = tr("Everywhere");
    else if (names.isEmpty())
        text = tr("Nowhere");
    else if (names.size() > 3)
        text = tr("%1 and %n more", nullptr, int(names.size()) - 2)
                   .arg(names.mid(0, 2).join(tr(", ")));
    m_scopeButton->setText(text + QStringLiteral(" ▾"));
    m_scopeButton->setAccessibleName(tr("Where to search: %1").arg(text));
}

void FindInProject::search()
{
    m_typing.stop();
    m_settling.stop();
    m_row = -1;
    m_patience.start();
    m_model.start(
        {m_pattern->text(), m_case->isChecked(), m_words->isChecked(), m_expression->isChecked()},
        scopes());
}

void FindInProject::searchAgain()
{
    m_row = m_list->currentIndex().row();
    m_scroll = m_list->verticalScrollBar()->value();
    m_patience.start();
    m_model.restart();
}

void FindInProject::updateReplacement()
{
    const bool replaces = m_replaces->isChecked();
    m_replacement->setEnabled(replaces);
    m_keepCase->setEnabled(replaces);
    m_replaceButton->setVisible(replaces);
    m_model.setReplacement(replaces ? std::optional(m_replacement->text()) : std::nullopt,
                           m_keepCase->isChecked());
}

void FindInProject::updateState()
{
    const bool isRunning = m_model.isRunning();
    const bool isSlow = isRunning && !m_patience.isActive();
    m_progress->setVisible(isSlow);
    m_stop->setVisible(isSlow);
    const int places = m_model.placeCount();
    // While a search begins the old answer stays; a page that comes and goes is unrest.
    if (!isRunning || places > 0)
        m_pages->setCurrentIndex(places > 0 ? 0 : 1);
    const QLocale locale;
    QString text;
    if (places > 0 && m_model.isCut())
        text = tr("The first %1 places are listed.").arg(locale.toString(places));
    else if (places > 0)
        text = tr("%n place(s) in %1", nullptr, places)
                   .arg(tr("%n object(s)", nullptr, m_model.objectCount()));
    if (!m_model.error().isEmpty())
        text = text.isEmpty() ? m_model.error() : text + u' ' + m_model.error();
    m_state->setText(text);
    if (!isRunning) {
        if (m_pattern->text().isEmpty())
            m_hint->setText(tr("Find a word in the manuscript, the notes, the codex, the comments "
                               "and all other texts of the project."));
        else
            m_hint->setText(m_model.error().isEmpty()
                                ? tr("“%1” is nowhere to be found.").arg(m_pattern->text())
                                : m_model.error());
        if (m_row >= 0 && m_model.rowCount() > 0) {
            m_list->setCurrentIndex(m_model.index(qMin(m_row, m_model.rowCount() - 1)));
            m_list->verticalScrollBar()->setValue(m_scroll);
            m_row = -1;
        }
    }
    updateButton();
}

void FindInProject::updateButton()
{
    const int ticked = m_model.tickedCount();
    m_replaceButton->setText(tr("Replace %n &Place(s)", nullptr, ticked));
    m_replaceButton->setEnabled(m_model.replaces() && ticked > 0 && !m_model.isRunning());
}

void FindInProject::openRow(const QModelIndex &index)
{
    using Kind = app::ProjectSearchModel::Kind;
    const std::optional<Kind> kind = m_model.open(index.row());
    if (!kind)
        return;
    const auto rows = panelCatalogue();
    const auto shows = [rows](const char *panel) {
        return std::any_of(rows.begin(), rows.end(), [panel](const PanelRow &row) {
            return qstrcmp(row.objectName, panel) == 0;
        });
    };
    const bool isWorld = kind == Kind::Entity || kind == Kind::Category;
    const bool isText = kind == Kind::Document || kind == Kind::Chapter || kind == Kind::Note
                        || kind == Kind::Screenplay;
    if (isText)
        m_showPanel(QStringLiteral("editor"));
    else if (isWorld && shows("codex"))
        m_showPanel(QStringLiteral("codex"));
    else if (kind == Kind::Timeline && shows("timeline"))
        m_showPanel(QStringLiteral("timeline"));
    else if (kind == Kind::Comment && shows("comments"))
        m_showPanel(QStringLiteral("comments"));
    if (isText)
        parentWidget()->activateWindow();
}

void FindInProject::replace()
{
    const app::ProjectSearchModel::Replaced replaced = m_model.replaceTicked();
    m_row = 0;
    if (replaced.places > 0)
        m_context.notices.offerUndo(tr("Replaced %n place(s) in %1.", nullptr, replaced.places)
                                        .arg(tr("%n object(s)", nullptr, replaced.objects)));
    if (replaced.leftAlone > 0)
        m_context.notices.show(
            tr("%n place(s) had changed since the search and stayed as they are.", nullptr,
               replaced.leftAlone));
}

bool FindInProject::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_pattern && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (m_typing.isActive())
                search();
            else if (m_model.rowCount() > 0)
                m_list->setFocus(Qt::TabFocusReason);
            return true;
        }
        if (key == Qt::Key_Down && m_model.rowCount() > 0) {
            m_list->setFocus(Qt::TabFocusReason);
            if (!m_list->currentIndex().isValid())
                m_list->setCurrentIndex(m_model.index(0));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FindInProject::hideEvent(QHideEvent *event)
{
    m_typing.stop();
    m_settling.stop();
    m_model.cancel();
    QDialog::hideEvent(event);
}

} // namespace vl::desktop
