#include "desktop/dialogs/about.h"

#include "app/storage/workingcopy.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/elidedlabel.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtGui/QTextBlock>
#include <QtGui/QTextTable>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 160;
constexpr int heightSteps = 140;
constexpr int pictureSteps = 16;
constexpr double titleScale = 1.8;

} // namespace

AboutDialog::AboutDialog(const app::StorageLocations &locations, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("about"));
    setWindowTitle(tr("About Ivorel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(4));
    layout->addWidget(makeHead());
    layout->addWidget(makeFolders(locations));
    layout->addWidget(makeLicences(), 1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    sizeDialog(this, widthSteps, heightSteps);
}

QWidget *AboutDialog::makeHead()
{
    auto *head = new QWidget(this);
    auto *row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(grid(4));
    auto *picture = new QLabel(head);
    picture->setPixmap(applicationIcon().pixmap(grid(pictureSteps), grid(pictureSteps)));
    auto *title =
        new QLabel(tr("Ivorel %1").arg(QCoreApplication::applicationVersion()).trimmed(), head);
    title->setTextFormat(Qt::PlainText);
    title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    title->setFont(font);
    auto *line = new QLabel(tr("A workspace for writing and worldbuilding."), head);
    auto *toolkit = new QLabel(tr("Runs with Qt %1.").arg(QLatin1String(qVersion())), head);
    toolkit->setForegroundRole(QPalette::PlaceholderText);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(grid(1));
    for (QLabel *label : {title, line, toolkit})
        texts->addWidget(label);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    return head;
}

QWidget *AboutDialog::makeFolders(const app::StorageLocations &locations)
{
    auto *folders = new QWidget(this);
    auto *form = new QGridLayout(folders);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(grid(2));
    form->setVerticalSpacing(grid(2));
    const std::pair<QString, QString> rows[] = {
        {tr("Backups"), locations.autoBackups()},
        {tr("Replaced versions"), locations.backupFolder()}, // put away before others took over
        {tr("Settings"), QFileInfo(QSettings().fileName()).absolutePath()}};
    int row = 0;
    for (const auto &[name, path] : rows) {
        auto *label = new QLabel(tr("%1:").arg(name), folders);
        auto *shown = new ElidedLabel(QDir::toNativeSeparators(path), folders);
        auto *open = new QPushButton(tr("Open"), folders);
        open->setAutoDefault(false);
        open->setAccessibleName(tr("Open the folder: %1").arg(name));
        open->setEnabled(QFileInfo::exists(path));
        connect(open, &QPushButton::clicked, this,
                [folder = path] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
        form->addWidget(label, row, 0);
        form->addWidget(shown, row, 1);
        form->addWidget(open, row, 2);
        ++row;
    }
    form->setColumnStretch(1, 1);
    return folders;
}

QWidget *AboutDialog::makeLicences()
{
    auto *licences = new QTextBrowser(this);
    licences->setAccessibleName(tr("Third-party software and its licences"));
    licences->setOpenLinks(false);
    QFile file(QStringLiteral(":/licences/THIRD-PARTY.md"));
    if (file.open(QIODevice::ReadOnly))
        licences->setMarkdown(QString::fromUtf8(file.readAll()));
    licences->document()->setDocumentMargin(grid(3));
    // Quiet rows instead of boxes in boxes.
    for (QTextFrame *frame : licences->document()->rootFrame()->childFrames()) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorder(0);
        format.setCellSpacing(0);
        format.setCellPadding(grid(1));
        format.setTopMargin(grid(2));
        format.setBottomMargin(grid(2));
        table->setFormat(format);
    }
    for (QTextBlock block = licences->document()->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0) {
            QTextCursor heading(block);
            heading.select(QTextCursor::BlockUnderCursor);
            QTextCharFormat format;
            format.setProperty(QTextFormat::FontSizeAdjustment, 1); // one step over the text
            heading.mergeCharFormat(format);
        }
    return licences;
}

} // namespace vl::desktop
