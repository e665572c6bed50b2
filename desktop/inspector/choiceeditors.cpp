#include "desktop/inspector/choiceeditors.h"

#include "app/models/inspectormodel.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

namespace vl::desktop {

namespace {

constexpr int mostWords = 10'000'000;
constexpr int wordSteps = 100;
constexpr int fewestCharacters = 8;

/// As narrow as the panel wants it, whatever its entries need.
void letShrink(QComboBox *box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(fewestCharacters);
}

bool saysYes(const QString &text)
{
    return text.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0
           || text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || text == u"1";
}

bool saysNo(const QString &text)
{
    return text.compare(QLatin1String("no"), Qt::CaseInsensitive) == 0
           || text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0 || text == u"0";
}

} // namespace

ChoiceFieldEditor::ChoiceFieldEditor(const app::InspectorField &field,
                                     const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_box(new QComboBox(this))
{
    letShrink(m_box);
    if (field.editing == app::FieldEditing::YesNo) {
        m_box->addItem(QString(), QString());
        m_box->addItem(tr("Yes"), QStringLiteral("yes"));
        m_box->addItem(tr("No"), QStringLiteral("no"));
    }
    for (const app::FieldOption &option : field.options)
        m_box->addItem(option.label, option.value);
    connect(m_box, &QComboBox::activated, this, [this] {
        touch();
        commit();
        reload();
    });
    setControl(m_box);
}

void ChoiceFieldEditor::showValue()
{
    QString value = model().value(key()).toString();
    if (field().editing == app::FieldEditing::YesNo)
        value = saysYes(value)  ? QStringLiteral("yes")
                : saysNo(value) ? QStringLiteral("no")
                                : value;
    m_box->setPlaceholderText(emptyText());
    int place = isMixed() ? -1 : m_box->findData(value);
    if (place < 0 && !isMixed()) {
        // A value that is no option any more stands there until another is chosen.
        const int known =
            int(field().options.size()) + (field().editing == app::FieldEditing::YesNo ? 3 : 0);
        while (m_box->count() > known)
            m_box->removeItem(m_box->count() - 1);
        m_box->addItem(tr("%1 (no option)").arg(value), value);
        place = m_box->count() - 1;
    }
    m_box->setCurrentIndex(place);
}

QVariant ChoiceFieldEditor::typed() const
{
    return m_box->currentData();
}

// --- suggestions

OpenChoiceFieldEditor::OpenChoiceFieldEditor(const app::InspectorField &field,
                                             const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_box(new QComboBox(this))
{
    letShrink(m_box);
    m_box->setEditable(true);
    m_box->setInsertPolicy(QComboBox::NoInsert);
    m_box->setAccessibleName(field.label);
    m_box->completer()->setFilterMode(Qt::MatchContains);
    m_box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_box->installEventFilter(this);
    connect(m_box->lineEdit(), &QLineEdit::textEdited, this, &OpenChoiceFieldEditor::touch);
    connect(m_box, &QComboBox::activated, this, [this] {
        touch();
        commit();
        reload();
    });
    setControl(m_box, m_box->lineEdit());
}

bool OpenChoiceFieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    // The list costs a look at all documents: it is made when it may be wanted.
    if (event->type() == QEvent::FocusIn
        || (watched == m_box && event->type() == QEvent::MouseButtonPress))
        fillSuggestions();
    return FieldEditor::eventFilter(watched, event);
}

void OpenChoiceFieldEditor::fillSuggestions()
{
    QStringList now{QString()};
    now += model().suggestions(key());
    QStringList before;
    for (int row = 0; row < m_box->count(); ++row)
        before.append(m_box->itemText(row));
    if (now == before)
        return;
    const QString text = m_box->currentText();
    m_box->clear();
    m_box->addItems(now);
    m_box->setEditText(text);
}

void OpenChoiceFieldEditor::showValue()
{
    const QString text = model().value(key()).toString();
    if (m_box->currentText() != text) {
        const int caret = m_box->lineEdit()->cursorPosition();
        m_box->setEditText(text);
        m_box->lineEdit()->setCursorPosition(
            m_box->lineEdit()->hasFocus() ? qMin(caret, int(text.size())) : 0);
    }
    m_box->lineEdit()->setPlaceholderText(emptyText());
}

QVariant OpenChoiceFieldEditor::typed() const
{
    return m_box->currentText();
}

// --- yes or no

CheckFieldEditor::CheckFieldEditor(const app::InspectorField &field,
                                   const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_box(new QCheckBox(this))
    , m_text(new QLabel(field.label, this))
{
    // Texts of check boxes do not wrap, and the panel may be narrow.
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->installEventFilter(this);
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid(1));
    layout->addWidget(m_box, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    connect(m_box, &QCheckBox::clicked, this, [this] {
        m_box->setTristate(false);
        touch();
        commit();
    });
    setControl(row, m_box);
}

bool CheckFieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_text)
        return FieldEditor::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        m_box->click();
    return false;
}

void CheckFieldEditor::showValue()
{
    m_box->setTristate(isMixed());
    m_box->setCheckState(isMixed()                       ? Qt::PartiallyChecked
                         : model().value(key()).toBool() ? Qt::Checked
                                                         : Qt::Unchecked);
}

QVariant CheckFieldEditor::typed() const
{
    return m_box->isChecked();
}

// --- levels

LevelFieldEditor::LevelFieldEditor(const app::InspectorField &field,
                                   const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_text(new QLabel(this))
{
    m_slider->setRange(0, 10);
    m_slider->setPageStep(1);
    m_slider->setTickPosition(QSlider::TicksBelow);
    m_slider->setTickInterval(1);
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_text->setMinimumWidth(fontMetrics().horizontalAdvance(tr("not set")));
    m_text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid(2));
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_text);
    connect(m_slider, &QSlider::valueChanged, this, [this] {
        touch();
        updateText();
    });
    connect(m_slider, &QSlider::sliderReleased, this, &LevelFieldEditor::commit);
    setControl(row, m_slider);
}

void LevelFieldEditor::showValue()
{
    m_slider->setValue(model().value(key()).toInt());
    updateText();
}

void LevelFieldEditor::updateText()
{
    m_text->setText(isMixed() && !isTyping() ? tr("(mixed)")
                    : m_slider->value() == 0 ? tr("not set")
                                             : QLocale().toString(m_slider->value()));
}

QVariant LevelFieldEditor::typed() const
{
    return m_slider->value();
}

// --- targets

TargetFieldEditor::TargetFieldEditor(const app::InspectorField &field,
                                     const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_words(new QSpinBox(this))
    , m_progress(new QProgressBar(this))
{
    m_words->setRange(0, mostWords);
    m_words->setSingleStep(wordSteps);
    m_words->setGroupSeparatorShown(true);
    m_words->setSpecialValueText(tr("none"));
    m_words->setKeyboardTracking(true);
    m_words->setFocusPolicy(Qt::StrongFocus);
    m_progress->setAccessibleName(tr("Words written against the target"));
    m_progress->setTextVisible(true);
    connect(m_words, &QSpinBox::valueChanged, this, &TargetFieldEditor::touch);
    setControl(m_words);
    column()->insertWidget(2, m_progress);
}

bool TargetFieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_words->interpretText();
            commit();
            reload();
            return true;
        }
    }
    return FieldEditor::eventFilter(watched, event);
}

void TargetFieldEditor::showValue()
{
    const int target = model().value(key()).toInt();
    m_words->setValue(target);
    if (auto *line = m_words->findChild<QLineEdit *>(); line && isMixed()) {
        line->clear();
        line->setPlaceholderText(tr("(mixed)"));
    }
    const bool isOne = target > 0 && !model().only().isNull();
    m_progress->setVisible(isOne);
    if (!isOne)
        return;
    const auto words = int(qMin<qsizetype>(model().words(), mostWords));
    m_progress->setRange(0, target);
    m_progress->setValue(qMin(words, target));
    m_progress->setFormat(
        tr("%1 of %2 words").arg(QLocale().toString(words), QLocale().toString(target)));
}

QVariant TargetFieldEditor::typed() const
{
    return m_words->value();
}

} // namespace vl::desktop
