#include "desktop/dialogs/palette.h"

#include "desktop/dialogs/palettedelegate.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int widthSteps = 160;
constexpr int heightSteps = 108;
constexpr int marginSteps = 6;

} // namespace

Palette::Palette(app::QuickOpenModel &model, Handler handler, QWidget *window)
    : QFrame(window)
    , m_model(model)
    , m_handler(std::move(handler))
    , m_field(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_empty(new QLabel(this))
    , m_pages(new QStackedWidget(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("palette"));
    setAccessibleName(tr("Command palette"));
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Raised);
    setAutoFillBackground(true);
    hide();

    m_field->setObjectName(QStringLiteral("paletteField"));
    m_field->setPlaceholderText(tr("Search documents and entities…"));
    m_field->setAccessibleName(tr("Search documents and entities…"));
    m_field->setClearButtonEnabled(true);
    m_field->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("paletteList"));
    m_list->setAccessibleName(tr("What was found"));
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new PaletteDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    m_pages->addWidget(m_list);
    m_pages->addWidget(m_empty);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(2), grid(2), grid(2), grid(2));
    layout->setSpacing(grid(2));
    layout->addWidget(m_field);
    layout->addWidget(m_pages, 1);
    layout->addWidget(makeHint());

    connect(m_field, &QLineEdit::textChanged, this, &Palette::search);
    connect(m_list, &QListView::clicked, this,
            [this](const QModelIndex &index) { choose(index.row()); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *now) {
        if (isVisible() && now && !isAncestorOf(now))
            hide();
    });
    window->installEventFilter(this);
}

QWidget *Palette::makeHint()
{
    auto *hint = new QWidget(this);
    auto *row = new QHBoxLayout(hint);
    row->setContentsMargins(grid(1), 0, grid(1), 0);
    auto *signs =
        new QLabel(tr("> commands    # tags    @ headings    Ctrl+Enter: show and go on"), hint);
    signs->setTextFormat(Qt::PlainText);
    signs->setForegroundRole(QPalette::PlaceholderText);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_count->setAccessibleName(tr("How much was found"));
    row->addWidget(signs, 1);
    row->addWidget(m_count);
    return hint;
}

void Palette::start()
{
    if (!isVisible())
        m_before = QApplication::focusWidget();
    m_field->clear();
    search({});
    placeOverWindow();
    show();
    raise();
    m_field->setFocus(Qt::ShortcutFocusReason);
}

void Palette::search(const QString &query)
{
    m_model.setQuery(query);
    const int rows = m_model.rowCount();
    m_pages->setCurrentIndex(rows > 0 ? 0 : 1);
    m_empty->setText(m_model.emptyText());
    const QLocale locale;
    m_count->setText(
        rows < m_model.totalCount()
            ? tr("%1 of %2").arg(locale.toString(rows), locale.toString(m_model.totalCount()))
            : locale.toString(rows));
    moveTo(0);
    m_list->scrollToTop();
}

void Palette::moveTo(int row)
{
    const int rows = m_model.rowCount();
    if (rows == 0)
        return;
    const int chosen = qBound(0, row, rows - 1);
    m_list->setCurrentIndex(m_model.index(chosen));
    // The focus stays in the field; what reads the screen aloud is told where the choice is.
    QAccessibleEvent event(m_list, QAccessible::Focus);
    event.setChild(chosen);
    QAccessible::updateAccessibility(&event);
}

void Palette::choose(int row, bool goesOn)
{
    const app::QuickOpenModel::Choice choice = m_model.choose(row);
    switch (choice.next) {
    case app::QuickOpenModel::Choice::Next::Nothing:
        return;
    case app::QuickOpenModel::Choice::Next::Query:
        m_field->setText(choice.text);
        return;
    case app::QuickOpenModel::Choice::Next::ShowObject:
    case app::QuickOpenModel::Choice::Next::ShowText:
        if (goesOn) // the panels show it already
            return;
        [[fallthrough]];
    case app::QuickOpenModel::Choice::Next::Trigger:
        leave();
        m_handler(choice);
    }
}

void Palette::leave()
{
    hide();
    if (m_before)
        m_before->setFocus(Qt::OtherFocusReason);
}

bool Palette::handleKey(const QKeyEvent &event)
{
    const int current = m_list->currentIndex().row();
    const int page = qMax(1, m_list->viewport()->height() / qMax(1, m_list->sizeHintForRow(0)) - 1);
    const int rows = m_model.rowCount();
    switch (event.key()) {
    case Qt::Key_Escape:
        leave();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(current, event.modifiers().testFlag(Qt::ControlModifier));
        return true;
    case Qt::Key_Down:
    case Qt::Key_Tab:
        moveTo(current + 1 < rows ? current + 1 : 0);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        moveTo(current > 0 ? current - 1 : rows - 1);
        return true;
    case Qt::Key_PageDown:
        moveTo(current + page);
        return true;
    case Qt::Key_PageUp:
        moveTo(current - page);
        return true;
    default:
        return false;
    }
}

bool Palette::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field) {
        if (event->type() == QEvent::KeyPress)
            return handleKey(*static_cast<QKeyEvent *>(event));
        if (event->type() == QEvent::ShortcutOverride
            && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            event->accept();
    } else if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        placeOverWindow();
    }
    return QFrame::eventFilter(watched, event);
}

void Palette::placeOverWindow()
{
    const QRect room = parentWidget()->rect();
    const int width = qMin(grid(widthSteps), room.width() - 2 * grid(marginSteps));
    const int height = qMin(grid(heightSteps), room.height() - 2 * grid(marginSteps));
    setGeometry((room.width() - width) / 2, qMin(grid(2 * marginSteps), room.height() - height),
                width, height);
}

} // namespace vl::desktop
