#include "desktop/dialogs/codexdialogs.h"

#include "app/models/codexmerge.h"
#include "app/models/objecttexts.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 140;
constexpr int usualHeightSteps = 90;
constexpr int lowSteps = 1; // no higher than its text
constexpr int longestValue = 60;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::desktop::CodexDialogs)
};

/// A dialog with a text at its head and, at its foot, the button that does it beside "Cancel".
class Sheet final : public QDialog
{
public:
    Sheet(const QString &title, const QString &text, const QString &action, QWidget *parent)
        : QDialog(parent)
        , m_column(new QVBoxLayout)
    {
        setWindowTitle(title);
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
        layout->setSpacing(grid(4));
        auto *label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
        m_column->setSpacing(grid(2));
        layout->addLayout(m_column, 1);
        m_go = new QPushButton(action, this);
        m_go->setDefault(true);
    }
    QVBoxLayout *column() const { return m_column; }
    QPushButton *go() const { return m_go; }

    /// Adds the buttons, which Tab reaches after all that was put in between, and asks.
    bool ask(QWidget *focused, int heightSteps = usualHeightSteps)
    {
        auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
        buttons->addButton(m_go, QDialogButtonBox::AcceptRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout()->addWidget(buttons);
        sizeDialog(this, widthSteps, heightSteps);
        if (heightSteps == lowSteps)
            resize(width(), layout()->totalHeightForWidth(width()));
        focused->setFocus();
        return exec() == QDialog::Accepted;
    }

private:
    QVBoxLayout *m_column;
    QPushButton *m_go;
};

QString buttonText(const QString &value)
{
    QString text = value.size() > longestValue ? value.left(longestValue) + u'…' : value;
    return text.replace(u'&', QLatin1String("&&"));
}

} // namespace

std::optional<QSet<QString>> askMerge(const QString &source, const QString &target,
                                      const QList<app::MergeConflict> &conflicts, QWidget *parent)
{
    Sheet sheet(Texts::tr("Merge Entities"),
                conflicts.isEmpty()
                    ? Texts::tr("“%1” becomes a part of “%2”: its name stays as an alias, and what "
                                "refers to it refers to “%2”.")
                          .arg(source, target)
                    : Texts::tr("“%1” becomes a part of “%2”. Where both have a value, which one "
                                "stays?")
                          .arg(source, target),
                Texts::tr("Merge"), parent);
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(grid(1), grid(1), grid(1), grid(1)); // for the focus ring
    column->setSpacing(grid(1));
    QList<std::pair<QString, QRadioButton *>> choices;
    QRadioButton *first = nullptr;
    for (const app::MergeConflict &conflict : conflicts) {
        auto *label = new QLabel(conflict.label, page);
        label->setTextFormat(Qt::PlainText);
        auto *kept = new QRadioButton(buttonText(conflict.kept), page);
        auto *other = new QRadioButton(buttonText(conflict.other), page);
        kept->setToolTip(app::plainToolTip(conflict.kept));
        other->setToolTip(app::plainToolTip(conflict.other));
        kept->setAccessibleDescription(conflict.label);
        other->setAccessibleDescription(conflict.label);
        auto *group = new QButtonGroup(page);
        group->addButton(kept);
        group->addButton(other);
        kept->setChecked(true);
        first = first ? first : kept;
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        column->addWidget(label);
        column->addWidget(kept);
        column->addWidget(other);
        column->addSpacing(grid(2));
        choices.append({conflict.key, other});
    }
    column->addStretch(1);
    auto *scroll = new QScrollArea(&sheet);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(page);
    scroll->setVisible(!conflicts.isEmpty());
    sheet.column()->addWidget(scroll, 1);
    scroll->setFocusPolicy(Qt::NoFocus);
    const bool isAgreed = conflicts.isEmpty() ? sheet.ask(sheet.go(), lowSteps) : sheet.ask(first);
    if (!isAgreed)
        return std::nullopt;
    QSet<QString> taken;
    for (const auto &[key, button] : choices)
        if (button->isChecked())
            taken.insert(key);
    return taken;
}

std::optional<SplitChoice> askSplit(const QString &entity,
                                    const QList<std::pair<QString, QString>> &values,
                                    const QStringList &aliases, QWidget *parent)
{
    Sheet sheet(Texts::tr("Split Entity"),
                Texts::tr("A part of “%1” becomes an entity of its own. What does it take along?")
                    .arg(entity),
                Texts::tr("Split"), parent);
    auto *name = new QLineEdit(&sheet);
    name->setPlaceholderText(Texts::tr("Name of the new entity"));
    name->setAccessibleName(name->placeholderText());
    sheet.column()->addWidget(name);
    auto *list = new QListWidget(&sheet);
    list->setAccessibleName(Texts::tr("Fields and aliases"));
    list->setItemDelegate(new RowDelegate(list));
    const auto add = [&](const QString &text, const QString &key, bool isAlias) {
        auto *item = new QListWidgetItem(text, list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
        item->setData(Qt::UserRole, key);
        item->setData(Qt::UserRole + 1, isAlias);
    };
    for (const QString &alias : aliases)
        add(Texts::tr("Alias: %1").arg(alias), alias, true);
    for (const auto &[key, text] : values)
        add(text, key, false);
    sheet.column()->addWidget(list, 1);
    sheet.go()->setEnabled(false);
    QObject::connect(name, &QLineEdit::textChanged, &sheet, [&](const QString &text) {
        sheet.go()->setEnabled(!text.simplified().isEmpty());
    });
    if (!sheet.ask(name))
        return std::nullopt;
    SplitChoice choice;
    choice.name = name->text().simplified();
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem *item = list->item(row);
        if (item->checkState() != Qt::Checked)
            continue;
        const QString key = item->data(Qt::UserRole).toString();
        if (item->data(Qt::UserRole + 1).toBool())
            choice.aliases.append(key);
        else
            choice.keys.insert(key);
    }
    return choice;
}

std::optional<QList<core::EntityTemplate>>
askTemplates(const QList<core::EntityTemplate> &templates, QWidget *parent)
{
    Sheet sheet(Texts::tr("Manage Entity Templates"),
                Texts::tr("Rename a template in the list; drag to put it elsewhere."),
                Texts::tr("Apply"), parent);
    auto *list = new QListWidget(&sheet);
    list->setAccessibleName(Texts::tr("Entity templates"));
    list->setItemDelegate(new RowDelegate(list));
    list->setDragDropMode(QAbstractItemView::InternalMove);
    for (int place = 0; place < int(templates.size()); ++place) {
        auto *item = new QListWidgetItem(templates.at(place).name, list);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setData(Qt::UserRole, place);
    }
    list->setCurrentRow(0);
    sheet.column()->addWidget(list, 1);
    auto *bar = new QHBoxLayout;
    auto *rename = new QPushButton(Texts::tr("&Rename"), &sheet);
    auto *remove = new QPushButton(Texts::tr("Re&move"), &sheet);
    bar->addWidget(rename);
    bar->addWidget(remove);
    bar->addStretch(1);
    sheet.column()->addLayout(bar);
    QObject::connect(rename, &QPushButton::clicked, list, [list] {
        if (list->currentItem())
            list->editItem(list->currentItem());
    });
    QObject::connect(remove, &QPushButton::clicked, list,
                     [list] { delete list->takeItem(list->currentRow()); });
    if (!sheet.ask(list))
        return std::nullopt;
    QList<core::EntityTemplate> kept;
    for (int row = 0; row < list->count(); ++row) {
        core::EntityTemplate one = templates.at(list->item(row)->data(Qt::UserRole).toInt());
        if (const QString name = list->item(row)->text().simplified(); !name.isEmpty())
            one.name = name;
        kept.append(one);
    }
    return kept;
}

} // namespace vl::desktop
