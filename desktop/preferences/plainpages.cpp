#include "desktop/preferences/plainpages.h"

#include "app/base/settingskeys.h"
#include "app/storage/workingcopy.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/shell/appearance.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace vl::desktop {

namespace {

constexpr int widestComboCharacters = 24;

} // namespace

GeneralPage::GeneralPage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
{
    addFlag(addGroup(tr("Start")), tr("Re&open the last project"), app::settings::reopenLast);

    QFormLayout *group = addGroup(tr("Language"));
    QList<Choice> choices{{QString(), tr("As the system")}};
    for (const InterfaceLanguage &language : interfaceLanguages())
        choices.append({QLatin1String(language.code), QString::fromUtf8(language.name)});
    QComboBox *box = addChoice(group, tr("&Interface language:"), app::settings::language, choices);
    auto *notice = new QLabel(this);
    notice->setWordWrap(true);
    notice->hide();
    group->addRow(notice);
    connect(box, &QComboBox::activated, notice, [this, notice] {
        const QString present = presentLanguage(settings());
        for (const InterfaceLanguage &language : interfaceLanguages())
            if (QLatin1String(language.code) == present)
                notice->setText(languageNotice(language));
        notice->show();
    });
}

EditorPage::EditorPage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
{
    QFormLayout *text = addGroup(tr("Text"));
    QList<Choice> families{{QString(), tr("Best installed reading font")}};
    for (const QString &family : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(family) && QFontDatabase::isSmoothlyScalable(family))
            families.append({family, family});
    addChoice(text, tr("&Font:"), app::settings::editorFontFamily, families)
        ->setMinimumContentsLength(widestComboCharacters);
    addNumber(text, tr("&Size:"), app::settings::editorFontSize, 6, 72, tr(" pt"));
    addNumber(text, tr("Line &width:"), app::settings::editorLineWidth, 40, 120, tr(" characters"));
    addNumber(text, tr("Line s&pacing:"), app::settings::editorLineSpacing, 100, 300, tr(" %"))
        ->setSingleStep(10);

    QFormLayout *typing = addGroup(tr("Typing"));
    const auto explain = [this, typing](const QString &text) {
        auto *hint = new QLabel(text, this);
        hint->setWordWrap(true);
        hint->setForegroundRole(QPalette::PlaceholderText);
        typing->addRow(hint);
    };
    addFlag(typing, tr("Typographic &quotes and dashes"), app::settings::editorSmartQuotes);
    explain(tr("Turns straight ones into them as you type."));
    addFlag(typing, tr("T&ypewriter scrolling"), app::settings::editorTypewriter);
    explain(tr("Keeps the line being written at the same height."));
}

BackupsPage::BackupsPage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
{
    QFormLayout *group = addGroup(tr("Made by themselves"));
    addFlag(group, tr("&Back up projects without being asked"), app::settings::backupsByThemselves);
    auto *about = new QLabel(
        tr("A project is backed up when it is opened, when it is closed and once a day, unless the "
           "newest backup holds the same. The last five are kept, one a day of the last week, one "
           "a week of the last two months, and those that you made yourself."),
        this);
    about->setWordWrap(true);
    group->addRow(about);
    addPlace();
}

void BackupsPage::addPlace()
{
    QFormLayout *place = addGroup(tr("Where they lie"));
    auto *path = new QLabel(this);
    path->setTextFormat(Qt::PlainText);
    path->setWordWrap(true);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    path->setAccessibleName(tr("Folder of the backups"));
    place->addRow(path);
    follow(app::settings::backupFolder, path,
           [this, path] { path->setText(QDir::toNativeSeparators(folder())); });

    auto *choose = new QPushButton(tr("&Choose…"), this);
    choose->setAccessibleDescription(tr("Folder of the backups"));
    connect(choose, &QPushButton::clicked, this, &BackupsPage::choose);
    auto *open = new QPushButton(tr("&Open Folder"), this);
    connect(open, &QPushButton::clicked, this, [this] {
        QDir().mkpath(folder());
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder()));
    });
    auto *list = new QPushButton(tr("Backups of This &Project…"), this);
    connect(list, &QPushButton::clicked, this->context().actions["file.backups"],
            &QAction::trigger);
    for (QPushButton *button : {choose, open, list}) {
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        place->addRow(button);
    }
}

QString BackupsPage::folder() const
{
    return app::StorageLocations::of(settings()).autoBackups();
}

void BackupsPage::choose()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Folder of the Backups"), folder());
    if (!chosen.isEmpty())
        settings().set(app::settings::backupFolder, chosen);
}

UpdatesPage::UpdatesPage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
{
    QFormLayout *group = addGroup(tr("New versions"));
    addFlag(group, tr("&Look for a new version once a day"), app::settings::autoUpdateCheck);
    auto *last = new QLabel(this);
    group->addRow(last);
    const auto show = [this, last] {
        const QDateTime time =
            QDateTime::fromString(settings().text(app::settings::lastUpdateCheck), Qt::ISODate);
        last->setText(
            time.isValid()
                ? tr("Last looked for on %1.").arg(QLocale().toString(time, QLocale::ShortFormat))
                : tr("Not looked for automatically yet."));
    };
    connect(&settings().changes(), &app::SettingsChanges::changed, last, show);
    show();

    auto *now = new QPushButton(tr("&Check Now"), this);
    QAction *check = this->context().actions["help.checkUpdates"];
    const auto enable = [now, check] { now->setEnabled(check->isEnabled()); };
    connect(check, &QAction::changed, now, enable);
    connect(now, &QPushButton::clicked, check, &QAction::trigger);
    enable();
    now->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    group->addRow(now);
}

} // namespace vl::desktop
