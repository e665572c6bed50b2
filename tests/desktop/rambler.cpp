#include "tests/desktop/rambler.h"

#include "app/models/workspace.h"
#include "app/storage/openproject.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/panels/objecttree.h"
#include "tests/desktop/hands.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>

namespace vl::test {

namespace {

constexpr int trailLength = 40;
/// How many steps what waits for an answer still gets; kept at the window, which goes when it
/// likes.
constexpr const char *patienceName = "patience";
constexpr int deepest = 6;

/// Where a path stands, only it is changed by what keeps to the test's folder.
bool holdsPath(const QWidget *widget)
{
    const auto *line = qobject_cast<const QLineEdit *>(widget);
    return line && line->text().contains(u'/');
}

QWidget *openQuestion()
{
    QWidget *popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

bool isFileDialog(const QWidget *widget)
{
    return widget->inherits("QFileDialog");
}

} // namespace

// --- the walk

struct Rambler::Kind
{
    const char *name;
    int weight;
    void (Rambler::*run)();
    bool keepsWords; ///< nothing that was written goes by it
};

const QList<Rambler::Kind> &Rambler::kinds()
{
    static const QList<Kind> all{
        {"type", 32, &Rambler::type, false},
        {"keys", 22, &Rambler::pressKeys, false},
        {"action", 20, &Rambler::triggerAction, false},
        {"click", 20, &Rambler::click, false},
        {"drag", 5, &Rambler::drag, false},
        {"use", 14, &Rambler::useControl, false},
        {"drop rows", 4, &Rambler::dropRows, false},
        {"clipboard", 2, &Rambler::fillClipboard, true},
        {"select", 8, &Rambler::select, true},
        {"undo or redo", 8, &Rambler::undoOrRedo, false},
        {"save", 5, &Rambler::save, true},
        {"outside", 2, &Rambler::changeOutside, true},
        {"resize", 1, &Rambler::resize, true},
        {"wait", 3, &Rambler::wait, true},
    };
    return all;
}

QString Rambler::walk(int steps, int stride)
{
    for (int i = 1; i <= steps; ++i) {
        step();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QString loss = lossAtOnce(); !loss.isEmpty())
            return loss;
        if (i % stride != 0 && i != steps)
            continue;
        settle();
        if (const QStringList found = faults(); !found.isEmpty())
            return found.join(u'\n');
    }
    return {};
}

void Rambler::step()
{
    // What went another way once, for want of time, comes back to the same steps.
    m_dice = Dice(m_seed * 1000003U + quint32(++m_steps));
    if (QWidget *question = openQuestion(); question && m_dice.oneIn(2)) {
        attendTo(question);
        return;
    }
    int sum = 0;
    for (const Kind &kind : kinds())
        sum += kind.weight;
    int chosen = m_dice.below(sum);
    for (const Kind &kind : kinds()) {
        chosen -= kind.weight;
        if (chosen >= 0)
            continue;
        if (!kind.keepsWords)
            m_word.clear();
        note(QLatin1String(kind.name));
        hands::take(&m_window);
        (this->*kind.run)();
        return;
    }
}

void Rambler::note(const QString &text)
{
    m_trail.append(QStringLiteral("%1%2 %3")
                       .arg(QString(qsizetype(m_level) * 2, u' '))
                       .arg(m_steps)
                       .arg(text));
    while (m_trail.size() > trailLength)
        m_trail.removeFirst();
    if (m_tells)
        fprintf(stderr, "%s\n", qPrintable(m_trail.last()));
}

void Rambler::visit(const QUrl &url)
{
    note(url.toString());
}

// Nothing is left open, so that everything can be looked at.
void Rambler::settle()
{
    note(QStringLiteral("look"));
    m_isEnding = true;
    for (int i = 0; i < 20 && openQuestion(); ++i)
        attendTo(openQuestion());
    m_isEnding = false;
    m_window.show();
    m_workspace.flush();
    m_workspace.current().finishSaving();
    QCoreApplication::processEvents();
}

// --- what asks

// Whatever waits for an answer gets one, however deep its event loop. What waits for none gets the
// next step.
void Rambler::attend()
{
    QTimer::singleShot(1, this, &Rambler::attend); // first: what follows may wait itself
    QWidget *question = openQuestion();
    const int level = QThread::currentThread()->loopLevel();
    if (!question || level <= m_level)
        return; // it is being answered, or nobody waits for it
    const QScopedValueRollback<int> keep(m_level, level);
    attendTo(question);
}

void Rambler::attendTo(QWidget *window)
{
    const QPointer<QWidget> there = window;
    auto *dialog = qobject_cast<QDialog *>(window);
    m_word.clear(); // an answer may take it back
    hands::take(&m_window);
    const QVariant patience = window->property(patienceName);
    const int left = (patience.isValid() ? patience.toInt() : 1 + m_dice.below(6)) - 1;
    if (!patience.isValid())
        note(QStringLiteral("asked by %1 “%2”").arg(hands::nameOf(window), window->windowTitle()));
    window->setProperty(patienceName, left);
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    if (m_isEnding || m_level > deepest || left < -12) {
        window->close();
        if (there)
            window->hide();
    } else if (auto *files = qobject_cast<QFileDialog *>(window)) {
        const QString path = anyPath();
        note(QStringLiteral("choose %1").arg(path));
        files->selectFile(path);
        QMetaObject::invokeMethod(files, m_dice.oneIn(4) ? "reject" : "accept");
    } else if (left > 0) {
        const auto what =
            m_dice.of(QList{&Rambler::useControl, &Rambler::click, &Rambler::pressKeys});
        (this->*what)();
    } else if (!dialog) {
        hands::press(window, m_dice.oneIn(2) ? Qt::Key_Escape : Qt::Key_Return);
    } else if (buttons.isEmpty() || m_dice.oneIn(3)) {
        note(QStringLiteral("call it off"));
        dialog->reject();
    } else {
        QPushButton *button = m_dice.of(buttons);
        note(QStringLiteral("answer “%1”").arg(button->text()));
        if (button->isVisible())
            button->click();
    }
    if (there && !there->isVisible())
        there->setProperty(patienceName, {});
}

// --- what is taken

QWidget *Rambler::anyWindow()
{
    QWidget *top = hands::take(&m_window);
    QWidgetList shown{top};
    if (!openQuestion() && m_dice.oneIn(4))
        for (QWidget *widget : m_window.findChildren<QWidget *>())
            if (widget->isWindow() && widget->isVisible() && widget->windowHandle()
                && widget->windowType() != Qt::ToolTip)
                shown.append(widget);
    return isFileDialog(top) ? &m_window : m_dice.of(shown);
}

QPoint Rambler::anyPlace(QWidget *window)
{
    const QList<QWidget *> controls = hands::controlsOf(window);
    if (controls.isEmpty())
        return m_dice.in(window->rect());
    const QWidget *widget = m_dice.of(controls);
    return widget->mapTo(window, m_dice.in(widget->visibleRegion().boundingRect()));
}

QString Rambler::anyText()
{
    static const QStringList pieces =
        QStringLiteral(
            "a¦The lamps ¦x y ¦äöüß¦\U0001F600¦\U0001F468\u200d\U0001F469¦e\u0301¦\n¦\n\n¦"
            "# ¦**¦*¦[[¦]]¦> ¦- ¦1. ¦\"¦'¦--¦...¦`¦![p](q)¦\t¦\u2028¦\u00a0¦\u05d0\u05d1¦"
            "12¦-1¦<b>&¦%1¦Mara¦\\¦(¦1066-02-30¦, ")
            .split(u'¦');
    QString text;
    for (int i = 1 + m_dice.below(4); i > 0; --i)
        text += m_dice.of(pieces);
    return text;
}

QString Rambler::anyPath()
{
    static const QStringList names{
        QStringLiteral("The Low Lamps"), QStringLiteral("Other"),
        QStringLiteral("Folder"),        QStringLiteral("One.vellum"),
        QStringLiteral("Two.vellum"),    QStringLiteral("picture.png"),
    };
    return m_dir.filePath(m_dice.of(names));
}

core::ContentId Rambler::anyObject()
{
    // By name: the ids of what was added differ from walk to walk.
    QMap<QString, core::ContentId> named;
    for (const auto *document : m_workspace.project().all<core::Document>())
        named.insert(document->title(), document->id());
    for (const auto *entity : m_workspace.project().all<core::Entity>())
        named.insert(entity->name(), entity->id());
    return named.isEmpty() ? core::ContentId() : m_dice.of(named);
}

// --- what is done

void Rambler::type()
{
    if (!openQuestion() && m_dice.oneIn(3))
        m_text->setFocus();
    QWidget *widget = QApplication::focusWidget();
    if (!widget || holdsPath(widget) || isFileDialog(widget->window()))
        return;
    QString text = anyText();
    const bool isWord = widget == m_text && m_text->live() && !m_text->isReadOnly();
    if (isWord && m_dice.oneIn(2)) {
        text = QStringLiteral("qx"); // a word that stands nowhere else
        for (int number = m_steps; number > 0; number /= 26)
            text += QChar(u'a' + number % 26);
    }
    note(QStringLiteral("“%1” into %2").arg(text, hands::nameOf(widget)));
    if (m_dice.oneIn(3))
        hands::compose(widget, text);
    else
        hands::type(widget, text);
    if (isWord && text.startsWith(u"qx"))
        m_word = text;
}

void Rambler::pressKeys()
{
    static const QStringList all =
        QStringLiteral(
            "Left Right Up Down Home End PgDown PgUp Ctrl+Home Ctrl+End Del Del Backspace "
            "Backspace Ctrl+Backspace Ctrl+Del Tab Shift+Backtab F6 Ctrl+Tab Esc Return "
            "Enter Space F2 Ctrl+A Ctrl+C Ctrl+X Ctrl+V Ctrl+Z Ctrl+Shift+Z Shift+Right "
            "Shift+Down Shift+End Ctrl+Shift+Home Ctrl+Shift+Left Menu Shift+F10 "
            "Shift+Ins Alt+Down Alt+Up F3 Shift+Return Ctrl+Return + * Ctrl+Y Ctrl+K")
            .split(u' ');
    for (int i = 1 + m_dice.below(3); i > 0; --i) {
        QWidget *window = hands::take(&m_window);
        const QWidget *focus = QApplication::focusWidget();
        if (holdsPath(focus) || isFileDialog(window))
            return;
        const QString keys = m_dice.of(all);
        note(QStringLiteral("%1 in %2").arg(keys, hands::nameOf(focus ? focus : window)));
        hands::press(window, QKeySequence(keys)[0]);
    }
}

void Rambler::triggerAction()
{
    QList<QAction *> actions;
    for (QAction *action : m_window.actions().all())
        actions.append(action);
    if (m_dice.oneIn(6)) // recent projects, themes, panels
        for (QMenu *menu : m_window.menuBar()->findChildren<QMenu *>()) {
            Q_EMIT menu->aboutToShow();
            actions += menu->actions();
        }
    actions.removeIf([](const QAction *action) {
        return !action->isEnabled() || action->menu() || action->objectName() == u"file.quit";
    });
    QAction *action = m_dice.of(actions);
    note(action->text());
    QWidget *top = hands::take(&m_window);
    if (m_dice.oneIn(3) && !action->shortcut().isEmpty())
        hands::press(top, action->shortcut()[0]);
    else if (!openQuestion())
        action->trigger();
}

void Rambler::click()
{
    QWidget *window = anyWindow();
    const QPoint position = anyPlace(window);
    const int what = m_dice.below(20);
    note(QStringLiteral("%1 on %2").arg(what).arg(hands::nameOf(window, position)));
    if (what < 3)
        hands::doubleClick(window, position);
    else if (what < 7)
        hands::click(window, position, Qt::RightButton);
    else
        hands::click(window, position, Qt::LeftButton,
                     what == 7   ? Qt::ControlModifier
                     : what == 8 ? Qt::ShiftModifier
                                 : Qt::NoModifier);
}

void Rambler::drag()
{
    QWidget *window = anyWindow();
    const QPoint from = anyPlace(window);
    const QPoint to = anyPlace(window);
    note(QStringLiteral("%1 to %2,%3").arg(hands::nameOf(window, from)).arg(to.x()).arg(to.y()));
    hands::drag(window, from, to);
}

void Rambler::useControl()
{
    QWidget *window = anyWindow();
    QList<QWidget *> controls = hands::controlsOf(window);
    controls.removeIf([](const QWidget *widget) {
        return holdsPath(widget)
               || (widget->focusPolicy() == Qt::NoFocus && !widget->inherits("QAbstractButton"));
    });
    if (controls.isEmpty() || isFileDialog(window))
        return;
    const QPointer<QWidget> widget = m_dice.of(controls);
    const QPoint position = widget->mapTo(window, widget->visibleRegion().boundingRect().center());
    note(hands::nameOf(window, position));
    hands::click(window, position);
    if (!widget || QApplication::focusWidget() != widget)
        return;
    if (m_dice.oneIn(3))
        hands::press(window, Qt::CTRL | Qt::Key_A);
    if (m_dice.oneIn(2) && widget) {
        const QString text = anyText();
        note(QStringLiteral("write “%1” there").arg(text));
        hands::type(widget, text);
    }
    if (widget && widget->window() == window && window->isVisible())
        hands::press(window, m_dice.of(QList{Qt::Key_Down, Qt::Key_Up, Qt::Key_Space,
                                             Qt::Key_Return, Qt::Key_Tab, Qt::Key_Delete}));
}

void Rambler::dropRows()
{
    const auto trees = m_window.findChildren<desktop::ObjectTree *>();
    const desktop::ObjectTree *from = m_dice.of(trees);
    const QAbstractScrollArea *to = m_dice.of(trees);
    if (m_dice.oneIn(4))
        to = m_text;
    const QModelIndexList rows = from->selectionModel()->selectedRows();
    if (openQuestion() || rows.isEmpty() || !from->isVisible() || !to->isVisible())
        return;
    const std::unique_ptr<QMimeData> data(from->model()->mimeData(rows));
    const QPoint position = m_dice.in(to->viewport()->rect());
    note(QStringLiteral("%1 of %2 on %3")
             .arg(rows.size())
             .arg(hands::nameOf(from), hands::nameOf(to->viewport(), position)));
    if (data)
        hands::drop(to->viewport(), position, *data,
                    m_dice.oneIn(4) ? Qt::CopyAction : Qt::MoveAction, m_dice.oneIn(6));
}

void Rambler::fillClipboard()
{
    auto *data = new QMimeData;
    const int what = m_dice.below(4);
    note(QString::number(what));
    if (what == 0)
        data->setImageData(QImage(m_dir.filePath(QStringLiteral("picture.png"))));
    else if (what == 1)
        data->setHtml(QStringLiteral("<p>Some <b>bold</b> text</p><ul><li>one</li></ul>"));
    else
        data->setText(anyText() + QStringLiteral("\r\nline\0\ufdd0\ufffc end") + anyText());
    QGuiApplication::clipboard()->setMimeData(data);
}

void Rambler::select()
{
    QList<core::ContentId> ids;
    for (int i = m_dice.oneIn(5) ? 1 + m_dice.below(4) : 1; i > 0; --i)
        if (const core::ContentId id = anyObject(); !id.isNull() && !ids.contains(id))
            ids.append(id);
    note(QString::number(ids.size()));
    m_workspace.select(ids);
}

void Rambler::undoOrRedo()
{
    QAction *action = m_window.actions()[m_dice.oneIn(2) ? "edit.undo" : "edit.redo"];
    const int times = 1 + m_dice.below(m_dice.oneIn(4) ? 20 : 3);
    note(QStringLiteral("%1 %2 times").arg(action->text()).arg(times));
    for (int i = 0; i < times && !openQuestion(); ++i)
        action->trigger();
}

void Rambler::save()
{
    if (m_dice.oneIn(2) && !openQuestion())
        m_window.actions()["file.save"]->trigger();
    else if (m_workspace.current().hasLocation() && !m_workspace.history().isGroupOpen())
        m_workspace.current().saveInBackground();
}

void Rambler::changeOutside()
{
    const QString path = m_workspace.current().path() + QStringLiteral("/objects/")
                         + anyObject().toString() + QStringLiteral(".json");
    if (!m_workspace.current().hasLocation() || !QFile::exists(path))
        return;
    m_isTouched = true;
    const int what = m_dice.below(8);
    note(QStringLiteral("%1 of %2").arg(what).arg(path));
    QByteArray bytes = fileBytes(path);
    static const QByteArrayList keys{"title", "name", "body", "synopsis", "description"};
    const QByteArray key = '"' + m_dice.of(keys) + "\": \"";
    if (what < 4)
        putFile(path, bytes.replace(key, key + "theirs " + QByteArray::number(m_steps) + ' '));
    else if (what == 4)
        putFile(path, bytes.left(bytes.size() / 2)); // half written
    else if (what == 5)
        QFile::remove(path);
    else if (what == 6)
        putFile(path.chopped(5) + QStringLiteral(" (conflicted copy).json"), bytes + '\n');
    else
        putFile(path, bytes); // only touched
    if (m_dice.oneIn(2) && !openQuestion())
        m_window.actions()["file.checkExternal"]->trigger();
}

void Rambler::resize()
{
    const QSize size(640 + m_dice.below(900), 420 + m_dice.below(600));
    note(QStringLiteral("%1x%2").arg(size.width()).arg(size.height()));
    m_window.resize(size);
}

void Rambler::wait()
{
    QTest::qWait(m_dice.oneIn(4) ? 700 : 20);
}

} // namespace vl::test
