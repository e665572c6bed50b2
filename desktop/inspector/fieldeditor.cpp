#include "desktop/inspector/fieldeditor.h"

#include "app/models/inspectormodel.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "desktop/inspector/choiceeditors.h"
#include "desktop/inspector/fieldlisteditor.h"
#include "desktop/inspector/pictureseditor.h"
#include "desktop/inspector/texteditors.h"
#include "desktop/inspector/timedvalueseditor.h"
#include "desktop/inspector/tokenseditor.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

using app::FieldEditing;

namespace {

constexpr int pauseMilliseconds = 2000;

} // namespace

QLabel *quietLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

FieldEditor::FieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                         QWidget *parent)
    : QWidget(parent)
    , m_field(field)
    , m_context(context)
    , m_column(new QVBoxLayout(this))
    , m_label(quietLabel(field.label, this))
    , m_problem(quietLabel({}, this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(grid(1));
    m_column->addWidget(m_label);
    m_column->addWidget(m_problem);
    m_problem->hide();
    m_label->setToolTip(app::plainToolTip(field.help));
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &FieldEditor::commit);
}

void FieldEditor::setControl(QWidget *control, QWidget *focused)
{
    QWidget *target = focused ? focused : control;
    m_column->insertWidget(1, control);
    if (target->accessibleName().isEmpty())
        target->setAccessibleName(m_field.label);
    target->setAccessibleDescription(m_field.help);
    if (!m_field.help.isEmpty())
        target->setToolTip(app::plainToolTip(m_field.help));
    m_label->setBuddy(target);
    // No mark of a shortcut is meant in a label that the user named.
    m_label->setText(QString(m_field.label).replace(u'&', QLatin1String("&&")));
    // A control under the wheel must not take the focus by it, and the turns of the wheel then.
    for (QWidget *part : {control, target})
        if (part->focusPolicy() == Qt::WheelFocus)
            part->setFocusPolicy(Qt::StrongFocus);
    target->installEventFilter(this);
    setFocusProxy(target);
    // A check box bears its label itself.
    m_label->setVisible(m_field.editing != FieldEditing::Check);
}

void FieldEditor::takeFocusBy(bool hasEntries, QWidget *list, QWidget *begin)
{
    // The focus handed to what is hidden goes nowhere, and Tab with it.
    setFocusProxy(hasEntries ? list : begin);
}

bool FieldEditor::isMixed() const
{
    return m_context.model.isMixed(m_field.key);
}

QString FieldEditor::emptyText() const
{
    return isMixed() ? tr("(mixed)") : m_field.help;
}

void FieldEditor::refresh()
{
    // The text that is being handed in stands there already, under the caret of its writer.
    if (!m_isTyping && !(m_isHandingIn && focusProxy() && focusProxy()->hasFocus())) {
        m_isShowing = true;
        showValue();
        m_isShowing = false;
    }
    updateProblem();
}

void FieldEditor::reload()
{
    m_pause.stop();
    m_isTyping = false;
    refresh();
}

void FieldEditor::touch()
{
    if (m_isShowing)
        return;
    m_isTyping = true;
    Q_EMIT m_context.panel.workspace.typed();
    if (takesPauses())
        m_pause.start();
}

void FieldEditor::commit()
{
    m_pause.stop();
    if (!m_isTyping || m_isHandingIn)
        return;
    m_isTyping = false;
    m_isHandingIn = true;
    m_context.model.setValue(m_field.key, typed());
    m_isHandingIn = false;
    updateProblem();
}

void FieldEditor::revert()
{
    m_pause.stop();
    m_isTyping = false;
    m_context.model.revert(m_field.key);
    refresh();
}

void FieldEditor::updateProblem()
{
    const QString problem = m_context.model.problem(m_field.key);
    if (!problem.isEmpty())
        m_problem->setText(QStringLiteral("⚠ ") + problem);
    m_problem->setVisible(!problem.isEmpty());
}

bool FieldEditor::keyPressed(int key, bool isLine)
{
    if (key == Qt::Key_Escape && (m_isTyping || !m_context.model.problem(m_field.key).isEmpty())) {
        revert();
        return true;
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && isLine && m_isTyping) {
        commit();
        reload();
        return true;
    }
    return false;
}

bool FieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        focusArrived();
        break;
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
            commit();
            refresh(); // a date, for one, is written out now
        }
        break;
    case QEvent::ShortcutOverride: {
        // Undo and redo are those of the window: every edit here is a step of its history.
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
        break;
    }
    case QEvent::KeyPress:
        if (keyPressed(static_cast<QKeyEvent *>(event)->key(),
                       qobject_cast<QLineEdit *>(watched) != nullptr))
            return true;
        break;
    case QEvent::Wheel:
        // Scrolling through the form must not change what happens to lie under the pointer.
        if (auto *widget = qobject_cast<QWidget *>(watched);
            widget && !widget->hasFocus() && !qobject_cast<QLineEdit *>(widget)
            && !widget->inherits("QPlainTextEdit")) {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

FieldEditor *makeFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                             QWidget *parent)
{
    switch (field.editing) {
    case FieldEditing::Line:
    case FieldEditing::Number:
    case FieldEditing::Date:
    case FieldEditing::Instant:
        return new LineFieldEditor(field, context, parent);
    case FieldEditing::Url:
        return new UrlFieldEditor(field, context, parent);
    case FieldEditing::Reference:
        return new ReferenceFieldEditor(field, context, parent);
    case FieldEditing::Text:
        return new TextFieldEditor(field, context, parent);
    case FieldEditing::YesNo:
    case FieldEditing::Choice:
        return new ChoiceFieldEditor(field, context, parent);
    case FieldEditing::OpenChoice:
        return new OpenChoiceFieldEditor(field, context, parent);
    case FieldEditing::Check:
        return new CheckFieldEditor(field, context, parent);
    case FieldEditing::Level:
        return new LevelFieldEditor(field, context, parent);
    case FieldEditing::Target:
        return new TargetFieldEditor(field, context, parent);
    case FieldEditing::Tokens:
        return new TokensFieldEditor(field, context, parent);
    case FieldEditing::TimedValues:
        return new TimedValuesEditor(field, context, parent);
    case FieldEditing::Pictures:
        return new PicturesEditor(field, context, parent);
    case FieldEditing::FieldList:
        return new FieldListEditor(field, context, parent);
    case FieldEditing::Note:
        break;
    }
    return new NoteFieldEditor(field, context, parent);
}

} // namespace vl::desktop
