#include "desktop/inspector/texteditors.h"

#include "app/models/editortext.h"
#include "app/models/inspectormodel.h"
#include "app/models/objectsummary.h"
#include "app/models/referencesmodel.h"
#include "app/models/workspace.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QAbstractProxyModel>
#include <QtCore/QUrl>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QDesktopServices>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

namespace vl::desktop {

namespace {

constexpr int mostLines = 10;
constexpr int longestCompletion = 14;

QToolButton *sideButton(const QString &iconName, const QString &text)
{
    auto *button = new QToolButton;
    button->setIcon(icon(iconName));
    button->setAutoRaise(true);
    button->setAccessibleName(text);
    button->setToolTip(text);
    return button;
}

} // namespace

// --- one line

LineFieldEditor::LineFieldEditor(const app::InspectorField &field,
                                 const FieldEditorContext &context, QWidget *parent)
    : LineFieldEditor(field, context, parent, nullptr)
{
}

LineFieldEditor::LineFieldEditor(const app::InspectorField &field,
                                 const FieldEditorContext &context, QWidget *parent,
                                 QToolButton *beside)
    : FieldEditor(field, context, parent)
    , m_line(new QLineEdit(this))
{
    connect(m_line, &QLineEdit::textEdited, this, &LineFieldEditor::touch);
    if (!beside) {
        setControl(m_line);
        return;
    }
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid(1));
    layout->addWidget(m_line, 1);
    layout->addWidget(beside);
    setControl(row, m_line);
}

void LineFieldEditor::showValue()
{
    const QString text = model().value(key()).toString();
    if (m_line->text() != text) {
        const int caret = m_line->cursorPosition();
        m_line->setText(text);
        m_line->setCursorPosition(m_line->hasFocus() ? qMin(caret, int(text.size())) : 0);
    }
    m_line->setPlaceholderText(emptyText());
}

QVariant LineFieldEditor::typed() const
{
    return m_line->text();
}

bool LineFieldEditor::takesPauses() const
{
    // Half a date is another date.
    return field().editing != app::FieldEditing::Instant;
}

// --- web addresses

UrlFieldEditor::UrlFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                               QWidget *parent)
    : UrlFieldEditor(field, context, parent,
                     sideButton(QStringLiteral("link"), tr("Open the address in the browser")))
{
}

UrlFieldEditor::UrlFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                               QWidget *parent, QToolButton *open)
    : LineFieldEditor(field, context, parent, open)
    , m_open(open)
{
    connect(line(), &QLineEdit::textChanged, this, &UrlFieldEditor::updateButton);
    connect(m_open, &QToolButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl(line()->text().trimmed())); });
}

void UrlFieldEditor::showValue()
{
    LineFieldEditor::showValue();
    updateButton();
}

void UrlFieldEditor::updateButton()
{
    // Nothing but pages: the address may come out of somebody else's project.
    const QUrl url(line()->text().trimmed(), QUrl::StrictMode);
    m_open->setEnabled(url.isValid() && (url.scheme() == u"http" || url.scheme() == u"https"));
}

// --- references

ReferenceFieldEditor::ReferenceFieldEditor(const app::InspectorField &field,
                                           const FieldEditorContext &context, QWidget *parent)
    : ReferenceFieldEditor(field, context, parent,
                           sideButton(QStringLiteral("next"), tr("Go to what is named here")))
{
}

ReferenceFieldEditor::ReferenceFieldEditor(const app::InspectorField &field,
                                           const FieldEditorContext &context, QWidget *parent,
                                           QToolButton *open)
    : LineFieldEditor(field, context, parent, open)
    , m_open(open)
{
    connect(m_open, &QToolButton::clicked, this,
            [this] { Q_EMIT openRequested(model().referenced(key())); });
}

void ReferenceFieldEditor::showValue()
{
    LineFieldEditor::showValue();
    m_open->setEnabled(!model().referenced(key()).isNull());
}

void ReferenceFieldEditor::focusArrived()
{
    context().references.refresh();
    if (m_completer)
        return;
    m_completer = new QCompleter(&context().references, this);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setMaxVisibleItems(longestCompletion);
    m_completer->popup()->setAccessibleName(tr("Entities"));
    line()->setCompleter(m_completer);
    connect(m_completer, qOverload<const QModelIndex &>(&QCompleter::activated), this,
            [this](const QModelIndex &index) {
                const auto *shown =
                    qobject_cast<const QAbstractProxyModel *>(m_completer->completionModel());
                const core::ContentId id =
                    context().references.idAt(shown ? shown->mapToSource(index) : index);
                reload(); // the name that the completer put in is not typed
                model().setReference(key(), id);
            });
}

// --- long texts

TextFieldEditor::TextFieldEditor(const app::InspectorField &field,
                                 const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_text(new QPlainTextEdit(this))
{
    m_text->setTabChangesFocus(true);
    m_text->setUndoRedoEnabled(false);
    m_text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_text->document()->setDocumentMargin(grid(1));
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] {
        touch();
        fitHeight();
    });
    setControl(m_text);
    fitHeight();
}

void TextFieldEditor::showValue()
{
    const QString value = model().value(key()).toString();
    m_text->setPlaceholderText(emptyText());
    const QString text = app::shownText(value);
    m_shownValue = value;
    if (m_text->toPlainText() == text)
        return;
    const int caret = m_text->textCursor().position();
    m_text->setPlainText(text);
    if (m_text->hasFocus()) {
        QTextCursor cursor = m_text->textCursor();
        cursor.setPosition(qMin(caret, int(text.size())));
        m_text->setTextCursor(cursor);
    }
    fitHeight();
}

QVariant TextFieldEditor::typed() const
{
    return app::bodyAfterEdit(m_shownValue, m_text->toPlainText());
}

void TextFieldEditor::fitHeight()
{
    const int lines = qBound(1, int(m_text->document()->size().height()), mostLines);
    const int height = lines * m_text->fontMetrics().lineSpacing()
                       + int(2 * m_text->document()->documentMargin()) + 2 * m_text->frameWidth();
    if (m_text->height() != height || m_text->minimumHeight() != height)
        m_text->setFixedHeight(height);
    m_text->setVerticalScrollBarPolicy(lines == mostLines ? Qt::ScrollBarAsNeeded
                                                          : Qt::ScrollBarAlwaysOff);
}

bool TextFieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(this, &TextFieldEditor::fitHeight, Qt::QueuedConnection);
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Return && key->modifiers().testFlag(Qt::ControlModifier)) {
            commit();
            return true;
        }
    }
    return FieldEditor::eventFilter(watched, event);
}

// --- notes

NoteFieldEditor::NoteFieldEditor(const app::InspectorField &field,
                                 const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_text(new QLabel(this))
{
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setControl(m_text);
}

void NoteFieldEditor::showValue()
{
    const core::Project &project = context().panel.workspace.project();
    const core::ContentObject *object = project.find(model().only());
    m_text->setText(object ? app::summaryOf(project, *object) : QString());
}

} // namespace vl::desktop
