#include "desktop/dialogs/pickdialog.h"

#include "desktop/panels/rowdelegate.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QStringListModel>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 90;
constexpr int heightSteps = 90;
constexpr int mostWidthSteps = 220;
constexpr int frameSteps = 20; ///< what stands beside a name: the margins and a scroll bar

} // namespace

PickDialog::PickDialog(const QString &title, const QString &label, const QStringList &names,
                       const QString &action, QWidget *parent)
    : QDialog(parent)
    , m_filtered(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_list(new QListView(this))
{
    setWindowTitle(title);
    m_filtered->setSourceModel(new QStringListModel(names, this));
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_list->setModel(m_filtered);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setAccessibleName(label);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter the list"));
    m_filter->setClearButtonEnabled(true);
    if (auto *clear = m_filter->findChild<QToolButton *>())
        clear->setAccessibleName(tr("Clear the filter"));
    m_filter->installEventFilter(this);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_go = buttons->addButton(action, QDialogButtonBox::AcceptRole);
    m_go->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QAbstractItemView::activated, this, &QDialog::accept);
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filtered->setFilterFixedString(text);
        m_list->setCurrentIndex(m_filtered->index(0, 0));
    });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { m_go->setEnabled(chosen() >= 0); });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(6), grid(6), grid(6), grid(6));
    layout->setSpacing(grid(2));
    auto *caption = new QLabel(label, this);
    caption->setTextFormat(Qt::PlainText);
    caption->setWordWrap(true);
    layout->addWidget(caption);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addSpacing(grid(2));
    layout->addWidget(buttons);
    // Long names are read, not scrolled, where the screen is wide enough.
    const int stepsForNames = m_list->sizeHintForColumn(0) / grid(1) + frameSteps;
    sizeDialog(this, qBound(widthSteps, stepsForNames, mostWidthSteps), heightSteps);
    m_list->setCurrentIndex(m_filtered->index(0, 0));
    m_go->setEnabled(chosen() >= 0);
}

int PickDialog::chosen() const
{
    const QModelIndex current = m_filtered->mapToSource(m_list->currentIndex());
    return current.isValid() ? current.row() : -1;
}

int PickDialog::pick(const QString &title, const QString &label, const QStringList &names,
                     const QString &action, QWidget *parent)
{
    PickDialog dialog(title, label, names, action, parent);
    return dialog.exec() == QDialog::Accepted ? dialog.chosen() : -1;
}

bool PickDialog::eventFilter(QObject *watched, QEvent *event)
{
    // The list is walked through while the filter has the focus.
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown
            || key == Qt::Key_PageUp) {
            QApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace vl::desktop
