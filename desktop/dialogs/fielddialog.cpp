#include "desktop/dialogs/fielddialog.h"

#include "desktop/widgets/grid.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 100;
constexpr int optionLines = 5;

} // namespace

QString fieldTypeText(core::FieldType type)
{
    static const char *const names[] = {
        QT_TRANSLATE_NOOP("FieldTypes", "Text"),        QT_TRANSLATE_NOOP("FieldTypes", "Number"),
        QT_TRANSLATE_NOOP("FieldTypes", "Yes or no"),   QT_TRANSLATE_NOOP("FieldTypes", "Date"),
        QT_TRANSLATE_NOOP("FieldTypes", "Reference"),   QT_TRANSLATE_NOOP("FieldTypes", "Choice"),
        QT_TRANSLATE_NOOP("FieldTypes", "Web address"),
    };
    return QCoreApplication::translate("FieldTypes", names[std::size_t(type)]);
}

FieldDialog::FieldDialog(const QString &title, const core::FieldDefinition &field,
                         const QString &action, QWidget *parent)
    : QDialog(parent)
    , m_field(field)
    , m_label(new QLineEdit(field.label, this))
    , m_type(new QComboBox(this))
    , m_optionsLabel(new QLabel(tr("&Options, one a line:"), this))
    , m_options(new QPlainTextEdit(field.options.join(u'\n'), this))
    , m_required(new QCheckBox(tr("To be filled for every &entity"), this))
    , m_description(new QLineEdit(field.description, this))
{
    setWindowTitle(title);
    for (std::size_t type = 0; type < core::fieldTypeTexts.size(); ++type)
        m_type->addItem(fieldTypeText(core::FieldType(type)));
    m_type->setCurrentIndex(int(field.type));
    m_required->setChecked(field.required);
    m_options->setFixedHeight(fontMetrics().lineSpacing() * optionLines + grid(4));
    m_options->setTabChangesFocus(true);
    m_optionsLabel->setBuddy(m_options);
    m_options->setAccessibleName(tr("Options, one a line"));
    m_label->setAccessibleName(tr("Label of the field"));
    m_type->setAccessibleName(tr("Type of the field"));
    m_description->setAccessibleName(tr("What to fill in"));

    auto *form = new QFormLayout;
    form->setHorizontalSpacing(grid(2));
    form->setVerticalSpacing(grid(2));
    form->addRow(tr("&Label:"), m_label);
    form->addRow(tr("&Type:"), m_type);
    form->addRow(m_optionsLabel, m_options);
    form->addRow(tr("&Help text:"), m_description);
    form->addRow(QString(), m_required);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_go = buttons->addButton(action, QDialogButtonBox::AcceptRole);
    m_go->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_label, &QLineEdit::textChanged, this, &FieldDialog::update);
    connect(m_type, &QComboBox::currentIndexChanged, this, &FieldDialog::update);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(buttons);
    setMinimumWidth(grid(widthSteps));
    m_label->setFocus();
    update();
}

void FieldDialog::update()
{
    const bool isChoice = m_type->currentIndex() == int(core::FieldType::Choice);
    m_optionsLabel->setVisible(isChoice);
    m_options->setVisible(isChoice);
    m_go->setEnabled(!m_label->text().simplified().isEmpty());
}

core::FieldDefinition FieldDialog::field() const
{
    core::FieldDefinition told = m_field;
    told.label = m_label->text().simplified();
    told.type = core::FieldType(m_type->currentIndex());
    told.required = m_required->isChecked();
    told.description = m_description->text().simplified();
    told.options.clear();
    if (told.type == core::FieldType::Choice)
        for (const QString &line : m_options->toPlainText().split(u'\n'))
            if (const QString option = line.simplified();
                !option.isEmpty() && !told.options.contains(option))
                told.options.append(option);
    return told;
}

std::optional<core::FieldDefinition> FieldDialog::askNew(const QString &categoryName,
                                                         QWidget *parent)
{
    FieldDialog dialog(tr("New Field of “%1”").arg(categoryName), {}, tr("Add Field"), parent);
    return dialog.exec() == Accepted ? std::optional(dialog.field()) : std::nullopt;
}

std::optional<core::FieldDefinition> FieldDialog::askChanged(const core::FieldDefinition &field,
                                                             QWidget *parent)
{
    FieldDialog dialog(tr("Field “%1”").arg(field.label), field, tr("Change Field"), parent);
    return dialog.exec() == Accepted ? std::optional(dialog.field()) : std::nullopt;
}

} // namespace vl::desktop
