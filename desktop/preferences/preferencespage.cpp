#include "desktop/preferences/preferencespage.h"

#include "desktop/widgets/grid.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

PreferencesPage::PreferencesPage(const PreferencesContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(grid(1), grid(1), grid(1), grid(1)); // room for the focus ring
    m_column->setSpacing(grid(4));
}

void PreferencesPage::reset()
{
    for (const QString &key : std::as_const(m_keys))
        settings().remove(key);
}

QStringList PreferencesPage::searchTexts() const
{
    QStringList texts;
    for (const QLabel *label : findChildren<QLabel *>())
        texts.append(label->text());
    for (const QAbstractButton *button : findChildren<QAbstractButton *>())
        texts.append(button->text());
    for (const QGroupBox *group : findChildren<QGroupBox *>())
        texts.append(group->title());
    texts.replaceInStrings(QStringLiteral("&"), QString());
    return texts;
}

QFormLayout *PreferencesPage::addGroup(const QString &title)
{
    auto *group = new QWidget(this);
    auto *form = new QFormLayout(group);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(grid(3));
    form->setVerticalSpacing(grid(2));
    // Labels stand above their fields where texts are large; the policy that wraps by itself
    // squeezes tall rows.
    form->setRowWrapPolicy(fontScale() > 1.5 ? QFormLayout::WrapAllRows
                                             : QFormLayout::DontWrapRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    if (!title.isEmpty()) {
        auto *heading = new QLabel(title, group);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        form->addRow(heading);
    }
    if (m_column->count() == 0)
        m_column->addStretch(1);
    m_column->insertWidget(m_column->count() - 1, group);
    return form;
}

QCheckBox *PreferencesPage::addFlag(QFormLayout *group, const QString &text,
                                    const app::SettingKey &key)
{
    auto *box = new QCheckBox(text, this);
    group->addRow(box);
    follow(key, box, [this, box, key] {
        const QSignalBlocker quiet(box);
        box->setChecked(settings().flag(key));
    });
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) { settings().set(key, on); });
    return box;
}

QSpinBox *PreferencesPage::addNumber(QFormLayout *group, const QString &label,
                                     const app::SettingKey &key, int least, int most,
                                     const QString &suffix)
{
    auto *box = new QSpinBox(this);
    box->setRange(least, most);
    box->setSuffix(suffix);
    box->setKeyboardTracking(false);
    box->setMinimumWidth(grid(36));
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    group->addRow(label, box);
    follow(key, box, [this, box, key] {
        const QSignalBlocker quiet(box);
        bool isNumber = false;
        const int value = settings().text(key).toInt(&isNumber);
        box->setValue(isNumber ? value : QByteArray(key.defaultValue).toInt());
    });
    connect(box, &QSpinBox::valueChanged, this,
            [this, key](int value) { settings().set(key, QString::number(value)); });
    return box;
}

QComboBox *PreferencesPage::addChoice(QFormLayout *group, const QString &label,
                                      const app::SettingKey &key, const QList<Choice> &choices)
{
    auto *box = new QComboBox(this);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const Choice &choice : choices)
        box->addItem(choice.text, choice.value);
    group->addRow(label, box);
    follow(key, box, [this, box, key] {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(qMax(0, box->findData(settings().text(key))));
    });
    connect(box, &QComboBox::activated, this,
            [this, box, key] { settings().set(key, box->currentData().toString()); });
    return box;
}

void PreferencesPage::follow(const app::SettingKey &key, QObject *control,
                             const std::function<void()> &show)
{
    const QString name = QLatin1String(key.name);
    m_keys.append(name);
    connect(&settings().changes(), &app::SettingsChanges::changed, control,
            [name, show](const QString &changed) {
                if (changed == name)
                    show();
            });
    show();
}

} // namespace vl::desktop
