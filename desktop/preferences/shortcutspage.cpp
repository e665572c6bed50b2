#include "desktop/preferences/shortcutspage.h"

#include "desktop/actions/actionregistry.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int keysSteps = 44;

enum Column
{
    NameColumn,
    KeysColumn
};

QString sectionOf(Menu menu)
{
    switch (menu) {
    case Menu::File:
    case Menu::Recent:
    case Menu::Leave:
        return ShortcutsPage::tr("File");
    case Menu::Import:
        return ShortcutsPage::tr("Import");
    case Menu::Export:
        return ShortcutsPage::tr("Export");
    case Menu::Edit:
        return ShortcutsPage::tr("Edit");
    case Menu::View:
    case Menu::Layouts:
        return ShortcutsPage::tr("View");
    case Menu::Ai:
        return ShortcutsPage::tr("AI");
    case Menu::Help:
        return ShortcutsPage::tr("Help");
    case Menu::None:
        break;
    }
    return ShortcutsPage::tr("In panels");
}

} // namespace

ShortcutsPage::ShortcutsPage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
    , m_filter(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
    , m_label(new QLabel(this))
    , m_keys(new QKeySequenceEdit(this))
    , m_none(new QPushButton(tr("&No Shortcut"), this))
    , m_reset(new QPushButton(tr("&Built-in Shortcut"), this))
    , m_conflict(new QLabel(this))
    , m_take(new QPushButton(tr("&Use It Here"), this))
{
    column()->setSpacing(grid(2));
    m_filter->setPlaceholderText(tr("Find an action or keys"));
    m_filter->setAccessibleName(tr("Find an action or keys"));
    m_filter->setClearButtonEnabled(true);
    column()->addWidget(m_filter);
    buildTree();
    buildEditor();
    connect(m_filter, &QLineEdit::textChanged, this, &ShortcutsPage::filter);
    connect(&context.actions, &ActionRegistry::keysChanged, this, &ShortcutsPage::showKeys);
    showKeys();
    showCurrent();
}

void ShortcutsPage::buildTree()
{
    m_tree->setAccessibleName(tr("Actions and their shortcuts"));
    m_tree->setHeaderLabels({tr("Action"), tr("Shortcut")});
    m_tree->setUniformRowHeights(true);
    m_tree->setItemDelegate(new RowDelegate(m_tree));
    m_tree->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_tree->header()->resizeSection(KeysColumn, grid(keysSteps));
    m_tree->header()->setStretchLastSection(false);
    QHash<QString, QTreeWidgetItem *> sections;
    for (const ActionRow &row : actionCatalogue()) {
        const QString section = sectionOf(row.menu);
        QTreeWidgetItem *&parent = sections[section];
        if (!parent) {
            parent = new QTreeWidgetItem(m_tree, {section});
            parent->setFlags(Qt::ItemIsEnabled);
        }
        auto *item = new QTreeWidgetItem(parent, {ActionRegistry::title(QLatin1String(row.id))});
        item->setData(NameColumn, Qt::UserRole, QByteArray(row.id));
        item->setToolTip(NameColumn, QLatin1String(row.id));
        m_items.append(item);
    }
    m_tree->expandAll();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &ShortcutsPage::showCurrent);
    column()->addWidget(m_tree, 1);
}

void ShortcutsPage::buildEditor()
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setBuddy(m_keys);
    m_keys->setAccessibleName(tr("New shortcut"));
    m_keys->setClearButtonEnabled(false);
    column()->addWidget(m_label);
    auto *row = new QHBoxLayout;
    row->setSpacing(grid(2));
    row->addWidget(m_keys, 1);
    row->addWidget(m_none);
    row->addWidget(m_reset);
    column()->addLayout(row);
    auto *conflict = new QHBoxLayout;
    conflict->setSpacing(grid(2));
    m_conflict->setTextFormat(Qt::PlainText);
    m_conflict->setWordWrap(true);
    conflict->addWidget(m_conflict, 1);
    conflict->addWidget(m_take);
    column()->addLayout(conflict);

    m_keys->installEventFilter(this);
    connect(m_keys, &QKeySequenceEdit::editingFinished, this, &ShortcutsPage::record);
    connect(m_none, &QPushButton::clicked, this, [this] { take({}); });
    connect(m_take, &QPushButton::clicked, this, [this] { take(m_keys->keySequence()); });
    connect(m_reset, &QPushButton::clicked, this, [this] {
        context().actions.resetKeys(current().constData());
        showCurrent();
    });
}

bool ShortcutsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_keys || event->type() != QEvent::KeyPress)
        return PreferencesPage::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (key->modifiers() != Qt::NoModifier || (key->key() != Qt::Key_Escape && !isEnter))
        return PreferencesPage::eventFilter(watched, event);
    // These two answer here as they do everywhere, and are no keys for an action.
    const bool isOpen = !m_conflict->text().isEmpty();
    if (isEnter && m_take->isVisible())
        m_take->click();
    else if (!isEnter && isOpen)
        showCurrent();
    else if (!isEnter)
        window()->close();
    return true;
}

QByteArray ShortcutsPage::current() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? item->data(NameColumn, Qt::UserRole).toByteArray() : QByteArray();
}

void ShortcutsPage::showKeys()
{
    for (QTreeWidgetItem *item : std::as_const(m_items)) {
        const QByteArray id = item->data(NameColumn, Qt::UserRole).toByteArray();
        QStringList keys;
        for (const QKeySequence &sequence : context().actions[id.constData()]->shortcuts())
            keys.append(sequence.toString(QKeySequence::NativeText));
        item->setText(KeysColumn, keys.join(QLatin1String(", ")));
        QFont font = m_tree->font();
        font.setBold(context().actions.hasOwnKeys(id.constData()));
        item->setFont(KeysColumn, font);
    }
}

void ShortcutsPage::filter(const QString &text)
{
    for (QTreeWidgetItem *item : std::as_const(m_items)) {
        const bool isFound = item->text(NameColumn).contains(text, Qt::CaseInsensitive)
                             || item->text(KeysColumn).contains(text, Qt::CaseInsensitive);
        item->setHidden(!isFound);
    }
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *section = m_tree->topLevelItem(i);
        bool isEmpty = true;
        for (int child = 0; child < section->childCount(); ++child)
            isEmpty = isEmpty && section->child(child)->isHidden();
        section->setHidden(isEmpty);
    }
}

void ShortcutsPage::showCurrent()
{
    const QByteArray id = current();
    const QSignalBlocker quiet(m_keys);
    m_keys->setEnabled(!id.isEmpty());
    m_none->setEnabled(!id.isEmpty() && !context().actions[id.constData()]->shortcuts().isEmpty());
    m_reset->setEnabled(!id.isEmpty() && context().actions.hasOwnKeys(id.constData()));
    m_conflict->clear();
    m_take->hide();
    if (id.isEmpty()) {
        m_label->setText(tr("Select an action to change its shortcut."));
        m_keys->clear();
        return;
    }
    const QAction *action = context().actions[id.constData()];
    m_label->setText(
        tr("Press the new shortcut for “%1”:").arg(m_tree->currentItem()->text(NameColumn)));
    m_keys->setKeySequence(action->shortcut());
}

void ShortcutsPage::record()
{
    const QByteArray id = current();
    const QKeySequence keys = m_keys->keySequence();
    if (id.isEmpty() || keys == context().actions[id.constData()]->shortcut())
        return;
    if (!ActionRegistry::canTrigger(keys)) {
        m_conflict->setText(tr("“%1” writes, moves or copies in texts and cannot be a shortcut.")
                                .arg(keys.toString(QKeySequence::NativeText)));
        m_take->hide();
        return;
    }
    const QAction *other = context().actions.userOf(keys, id.constData());
    if (!other) {
        take(keys);
        return;
    }
    m_conflict->setText(tr("“%1” belongs to “%2” now.")
                            .arg(keys.toString(QKeySequence::NativeText),
                                 ActionRegistry::title(other->objectName())));
    m_take->show();
}

void ShortcutsPage::take(const QKeySequence &keys)
{
    context().actions.setKeys(current().constData(), keys);
    showCurrent();
}

void ShortcutsPage::reset()
{
    context().actions.resetAllKeys();
    showCurrent();
}

QStringList ShortcutsPage::searchTexts() const
{
    QStringList texts = PreferencesPage::searchTexts();
    for (const QTreeWidgetItem *item : m_items)
        texts.append(item->text(NameColumn));
    return texts;
}

} // namespace vl::desktop
