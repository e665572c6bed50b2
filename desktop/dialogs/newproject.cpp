#include "desktop/dialogs/newproject.h"

#include "app/story/projecttemplates.h"
#include "desktop/dialogs/carddelegate.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/breakable.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QDir>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include <algorithm>
#include <iterator>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 170;
constexpr int heightSteps = 130;

struct CardIcon
{
    const char *templateId;
    const char *icon;
};
constexpr CardIcon cardIcons[] = {{"blank", "page"},
                                  {"novel", "manuscript"},
                                  {"series", "codex"},
                                  {"screenplay", "scene"},
                                  {"campaign", "map"}};

QIcon iconOf(const QString &templateId)
{
    const auto *found =
        std::find_if(std::begin(cardIcons), std::end(cardIcons), [&](const CardIcon &row) {
            return templateId == QLatin1String(row.templateId);
        });
    return icon(found == std::end(cardIcons) ? QStringLiteral("page") : QLatin1String(found->icon));
}

} // namespace

NewProjectDialog::NewProjectDialog(const QString &place, Make make, QWidget *parent)
    : QDialog(parent)
    , m_make(std::move(make))
    , m_cards(new QListWidget(this))
    , m_name(new QLineEdit(this))
    , m_place(new QLineEdit(QDir::toNativeSeparators(place), this))
    , m_file(new QRadioButton(tr("A single &file"), this))
    , m_folder(new QRadioButton(tr("A f&older of text files"), this))
    , m_result(new QLabel(this))
{
    setObjectName(QStringLiteral("newProject"));
    setWindowTitle(tr("New Project"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    buildCards();
    layout->addWidget(m_cards, 1);
    layout->addLayout(makeForm());
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    m_result->setForegroundRole(QPalette::PlaceholderText);
    m_result->setAccessibleName(tr("Where the project will stand"));
    layout->addWidget(m_result);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_create = buttons->addButton(tr("&Create"), QDialogButtonBox::AcceptRole);
    m_create->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewProjectDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_cards, &QListWidget::itemActivated, m_name, qOverload<>(&QWidget::setFocus));
    for (QLineEdit *field : {m_name, m_place})
        connect(field, &QLineEdit::textChanged, this, &NewProjectDialog::update);
    connect(m_file, &QRadioButton::toggled, this, &NewProjectDialog::update);
    m_name->setFocus();
    sizeDialog(this, widthSteps, heightSteps);
    update();
}

void NewProjectDialog::buildCards()
{
    m_cards->setObjectName(QStringLiteral("newProjectTemplates"));
    m_cards->setAccessibleName(tr("Templates"));
    m_cards->setItemDelegate(new CardDelegate(m_cards));
    m_cards->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_cards->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_cards->setResizeMode(QListView::Adjust);
    for (const app::ProjectTemplate &each : app::projectTemplates()) {
        auto *card = new QListWidgetItem(iconOf(each.id), each.name, m_cards);
        card->setData(CardDelegate::DetailRole, each.description);
        card->setData(Qt::UserRole, each.id);
        card->setData(Qt::AccessibleDescriptionRole, each.description);
    }
    m_cards->setCurrentRow(1); // most who come are writing a novel
}

QLayout *NewProjectDialog::makeForm()
{
    auto *form = new QGridLayout;
    form->setHorizontalSpacing(grid(2));
    form->setVerticalSpacing(grid(2));
    auto *name = new QLabel(tr("&Name:"), this);
    name->setBuddy(m_name);
    m_name->setAccessibleName(tr("Name of the project"));
    m_name->setPlaceholderText(tr("What you call the work for now"));
    auto *where = new QLabel(tr("&Place:"), this);
    where->setBuddy(m_place);
    m_place->setAccessibleName(tr("Folder that the project is made in"));
    auto *browse = new QPushButton(tr("C&hoose…"), this);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &NewProjectDialog::choosePlace);
    m_file->setChecked(true);
    m_file->setToolTip(tr("One file that is easy to copy and to send."));
    m_folder->setToolTip(tr("One small file a document: suits version control and sync."));
    auto *kinds = new QHBoxLayout;
    kinds->setSpacing(grid(4));
    kinds->addWidget(m_file);
    kinds->addWidget(m_folder);
    kinds->addStretch(1);
    form->addWidget(name, 0, 0);
    form->addWidget(m_name, 0, 1, 1, 2);
    form->addWidget(where, 1, 0);
    form->addWidget(m_place, 1, 1);
    form->addWidget(browse, 1, 2);
    form->addWidget(new QLabel(tr("Saved as:"), this), 2, 0);
    form->addLayout(kinds, 2, 1, 1, 2);
    form->setColumnStretch(1, 1);
    setTabOrder(m_place, browse);
    setTabOrder(browse, m_file);
    return form;
}

app::NewProject NewProjectDialog::wanted() const
{
    app::NewProject wanted;
    if (const QListWidgetItem *card = m_cards->currentItem())
        wanted.templateId = card->data(Qt::UserRole).toString();
    wanted.name = m_name->text().trimmed();
    wanted.place = QDir::fromNativeSeparators(m_place->text().trimmed());
    wanted.isFolder = m_folder->isChecked();
    return wanted;
}

void NewProjectDialog::accept()
{
    if (m_make(wanted()))
        QDialog::accept();
}

void NewProjectDialog::choosePlace()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Place of the Project"), wanted().place);
    if (!folder.isEmpty())
        m_place->setText(QDir::toNativeSeparators(folder));
}

void NewProjectDialog::update()
{
    const app::Result<QString> path = app::ProjectMaker::pathFor(wanted());
    m_create->setEnabled(bool(path));
    if (m_name->text().trimmed().isEmpty())
        m_result->setText(tr("Give the project a name; it can be changed later."));
    else
        m_result->setText(breakable(path ? QDir::toNativeSeparators(*path) : path.message()));
}

} // namespace vl::desktop
