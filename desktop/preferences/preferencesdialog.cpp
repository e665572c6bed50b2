#include "desktop/preferences/preferencesdialog.h"

#include "desktop/preferences/catalogue.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr double titleScale = 1.3;

bool isAbout(const QStringList &texts, const QString &words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    return std::all_of(wanted.begin(), wanted.end(), [&](const QString &word) {
        return std::any_of(texts.begin(), texts.end(), [&](const QString &text) {
            return text.contains(word, Qt::CaseInsensitive);
        });
    });
}

} // namespace

PreferencesDialog::PreferencesDialog(const PreferencesContext &context, QWidget *parent)
    : QDialog(parent)
    , m_search(new QLineEdit(this))
    , m_list(new QListWidget(this))
    , m_stack(new QStackedWidget(this))
    , m_title(new QLabel(this))
    , m_nothing(new QLabel(tr("No page has these words."), this))
{
    setWindowTitle(tr("Preferences"));
    m_search->setPlaceholderText(tr("Search preferences"));
    m_search->setAccessibleName(tr("Search preferences"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("pages"));
    m_list->setAccessibleName(tr("Pages"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_nothing->setWordWrap(true);
    m_nothing->hide();
    m_title->setContentsMargins(grid(1), 0, 0, 0); // where the texts of the pages begin

    auto *side = new QVBoxLayout;
    side->setSpacing(grid(2));
    side->addWidget(m_search);
    side->addWidget(m_list, 1);
    side->addWidget(m_nothing);
    auto *page = new QVBoxLayout;
    page->setSpacing(grid(4));
    page->addWidget(m_title);
    page->addWidget(m_stack, 1);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(grid(6));
    middle->addLayout(side, 2);
    middle->addLayout(page, 5);

    addPages(context); // before the buttons: Tab goes from the list into the page
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *reset = buttons->addButton(tr("&Reset Page"), QDialogButtonBox::ResetRole);
    reset->setAutoDefault(false);
    QPushButton *close = buttons->addButton(QDialogButtonBox::Close);
    close->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(4));
    layout->setSpacing(grid(4));
    layout->addLayout(middle, 1);
    layout->addWidget(buttons);

    connect(m_search, &QLineEdit::textChanged, this, &PreferencesDialog::find);
    connect(m_list, &QListWidget::currentRowChanged, this, &PreferencesDialog::showPage);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(reset, &QPushButton::clicked, this, [this] {
        if (PreferencesPage *shown = m_pages.value(m_stack->currentIndex()))
            shown->reset();
    });
    fitFont();
    m_list->setCurrentRow(0);
    m_search->setFocus();
    sizeDialog(this, 200, 144);
}

void PreferencesDialog::open(const PreferencesContext &context, QWidget *window)
{
    auto *dialog = window->findChild<PreferencesDialog *>(QString(), Qt::FindDirectChildrenOnly);
    if (!dialog) {
        dialog = new PreferencesDialog(context, window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void PreferencesDialog::addPages(const PreferencesContext &context)
{
    for (const PreferencesRow &row : preferencesCatalogue()) {
        auto *area = new QScrollArea(m_stack);
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setFocusPolicy(Qt::NoFocus);
        PreferencesPage *page = row.make(context, area);
        area->setWidget(page);
        m_stack->addWidget(area);
        m_pages.append(page);
        for (QPushButton *button : page->findChildren<QPushButton *>())
            button->setAutoDefault(false);
        m_list->addItem(new QListWidgetItem(icon(QLatin1String(row.icon)),
                                            QCoreApplication::translate("Preferences", row.title)));
    }
}

void PreferencesDialog::fitFont()
{
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * titleScale);
    m_title->setFont(larger);
    const int hint = fontMetrics().horizontalAdvance(m_search->placeholderText()) + grid(4);
    m_list->setMinimumWidth(qMax(hint, m_list->sizeHintForColumn(0) + 2 * m_list->frameWidth()));
}

void PreferencesDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    // The list hears of the font after the dialog.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        QMetaObject::invokeMethod(this, &PreferencesDialog::fitFont, Qt::QueuedConnection);
}

bool PreferencesDialog::eventFilter(QObject *watched, QEvent *event)
{
    // What the words found is gone through without leaving the field.
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown
            || key == Qt::Key_PageUp) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void PreferencesDialog::find(const QString &text)
{
    int first = -1;
    for (int i = 0; i < m_list->count(); ++i) {
        QStringList texts = m_pages.at(i)->searchTexts();
        texts.append(m_list->item(i)->text());
        const bool isFound = isAbout(texts, text);
        m_list->item(i)->setHidden(!isFound);
        if (isFound && first < 0)
            first = i;
    }
    m_nothing->setVisible(first < 0);
    if (first >= 0 && (m_list->currentRow() < 0 || m_list->currentItem()->isHidden()))
        m_list->setCurrentRow(first);
}

void PreferencesDialog::showPage(int index)
{
    if (index < 0)
        return;
    m_stack->setCurrentIndex(index);
    m_title->setText(m_list->item(index)->text());
}

} // namespace vl::desktop
