#include "desktop/dialogs/welcome.h"

#include "app/models/objecttexts.h"
#include "desktop/dialogs/carddelegate.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 200;
constexpr int heightSteps = 130;
constexpr int pictureSteps = 16;
constexpr double titleScale = 1.8;
constexpr int choiceRole = Qt::UserRole;
constexpr int pathRole = Qt::UserRole + 1;

QLabel *heading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

void setUp(QListWidget *list)
{
    list->setItemDelegate(new CardDelegate(list));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setResizeMode(QListView::Adjust);
}

} // namespace

WelcomeDialog::WelcomeDialog(const Offers &offers, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("welcome"));
    setWindowTitle(tr("Welcome"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    layout->addWidget(makeHead());

    auto *columns = new QHBoxLayout;
    columns->setSpacing(grid(4));
    auto *left = new QVBoxLayout;
    left->setSpacing(grid(2));
    auto *right = new QVBoxLayout;
    right->setSpacing(grid(2));
    QListWidget *steps = makeSteps(offers);
    QListWidget *recent = makeRecent(offers.recent);
    left->addWidget(heading(tr("Begin"), this));
    left->addWidget(steps, 1);
    right->addWidget(heading(tr("Recent projects"), this));
    if (offers.recent.isEmpty()) {
        recent->hide();
        auto *none = new QLabel(tr("Projects that you open stand here the next time."), this);
        none->setAlignment(Qt::AlignCenter);
        none->setWordWrap(true);
        none->setForegroundRole(QPalette::PlaceholderText);
        right->addWidget(none, 1);
    } else {
        right->addWidget(recent, 1);
    }
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    layout->addLayout(columns, 1);

    auto *foot = new QHBoxLayout;
    auto *again = new QLabel(tr("You find this again under Help › Welcome."), this);
    again->setTextFormat(Qt::PlainText);
    again->setForegroundRole(QPalette::PlaceholderText);
    auto *close = new QPushButton(tr("&Close"), this);
    close->setAutoDefault(false);
    foot->addWidget(again, 1);
    foot->addWidget(close);
    layout->addLayout(foot);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    for (const QListWidget *list : {steps, recent}) {
        connect(list, &QListWidget::itemActivated, this, &WelcomeDialog::take);
        connect(list, &QListWidget::itemClicked, this, &WelcomeDialog::take);
    }
    for (QListWidget *list : {steps, recent})
        list->installEventFilter(this);
    steps->setFocus();
    sizeDialog(this, widthSteps, heightSteps);
}

QWidget *WelcomeDialog::makeHead()
{
    auto *head = new QWidget(this);
    auto *row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(grid(4));
    auto *picture = new QLabel(head);
    picture->setPixmap(applicationIcon().pixmap(grid(pictureSteps), grid(pictureSteps)));
    auto *title = new QLabel(tr("Welcome to Ivorel"), head);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    title->setFont(font);
    auto *line = new QLabel(
        tr("A desk for your manuscript and the world it plays in. Everything stays on your own "
           "machine, as plain text."),
        head);
    line->setWordWrap(true);
    line->setForegroundRole(QPalette::PlaceholderText);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(grid(1));
    texts->addStretch(1);
    texts->addWidget(title);
    texts->addWidget(line);
    texts->addStretch(1);
    row->addWidget(picture);
    row->addLayout(texts, 1);
    return head;
}

QListWidget *WelcomeDialog::makeSteps(const Offers &offers)
{
    auto *list = new QListWidget(this);
    list->setObjectName(QStringLiteral("welcomeSteps"));
    list->setAccessibleName(tr("Begin"));
    setUp(list);
    const auto add = [list](Choice choice, const char *iconName, const QString &title,
                            const QString &detail, bool isThere) {
        auto *item = new QListWidgetItem(icon(QLatin1String(iconName)), title, list);
        item->setData(CardDelegate::DetailRole, detail);
        item->setData(Qt::AccessibleDescriptionRole, detail);
        item->setData(choiceRole, int(choice));
        if (!isThere)
            item->setFlags(Qt::NoItemFlags);
    };
    add(Choice::New, "newProject", tr("New Project"),
        tr("Blank, or prepared for a novel, a series, a screenplay or a campaign."), true);
    add(Choice::Open, "open", tr("Open a Project"), tr("A “.vellum” file."), true);
    add(Choice::OpenFolder, "openFolder", tr("Open a Project Folder"),
        tr("A folder of text files."), true);
    add(Choice::Sample, "star", tr("Look at the Sample"),
        offers.sample ? tr("A small world to try everything on; you work on a copy of your own.")
                      : tr("It is not installed."),
        offers.sample);
    add(Choice::Import, "import", tr("Import"), tr("A manuscript that you wrote elsewhere."),
        offers.import);
    list->setCurrentRow(0);
    return list;
}

QListWidget *WelcomeDialog::makeRecent(const QStringList &paths)
{
    auto *list = new QListWidget(this);
    list->setObjectName(QStringLiteral("welcomeRecent"));
    list->setAccessibleName(tr("Recent projects"));
    setUp(list);
    for (const QString &path : paths) {
        const QFileInfo info(path);
        const bool isThere = info.exists();
        auto *item = new QListWidgetItem(
            icon(info.isDir() ? QStringLiteral("openFolder") : QStringLiteral("manuscript")),
            info.completeBaseName(), list);
        const QString shown = QDir::toNativeSeparators(path);
        item->setData(CardDelegate::DetailRole, isThere ? shown : tr("Not found: %1").arg(shown));
        item->setData(CardDelegate::IsPathRole, true);
        item->setData(Qt::AccessibleDescriptionRole, item->data(CardDelegate::DetailRole));
        item->setData(pathRole, path);
        item->setToolTip(app::plainToolTip(shown));
        item->setData(CardDelegate::IsDimRole, !isThere);
    }
    return list;
}

bool WelcomeDialog::eventFilter(QObject *watched, QEvent *event)
{
    // One row is lit, in the list that has the keys: it is what Enter takes.
    if (auto *list = qobject_cast<QListWidget *>(watched);
        list && event->type() == QEvent::FocusIn) {
        for (QListWidget *other : findChildren<QListWidget *>())
            if (other != list)
                other->setCurrentRow(-1);
        list->setCurrentRow(qMax(0, list->currentRow()));
    }
    return QDialog::eventFilter(watched, event);
}

void WelcomeDialog::take(const QListWidgetItem *item)
{
    if (!isVisible() || !item->flags().testFlag(Qt::ItemIsEnabled))
        return; // a double click is a click first, which closed the dialog
    const QString path = item->data(pathRole).toString();
    const auto choice = Choice(item->data(choiceRole).toInt());
    accept();
    if (path.isEmpty())
        Q_EMIT chosen(choice);
    else
        Q_EMIT recentChosen(path);
}

} // namespace vl::desktop
