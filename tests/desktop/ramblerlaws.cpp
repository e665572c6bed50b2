#include "tests/desktop/rambler.h"

#include "app/models/codexmodel.h"
#include "app/models/documentsmodel.h"
#include "app/models/editortext.h"
#include "app/models/workspace.h"
#include "app/storage/openproject.h"
#include "core/content/document.h"
#include "desktop/editor/livedocument.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/panels/objecttree.h"
#include "tests/support/uiwalk.h"

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtGui/QDesktopServices>
#include <QtGui/QImage>
#include <QtGui/QTextBlock>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

namespace vl::test {

namespace {

constexpr const char *schemes[] = {"http", "https", "file", "mailto"};

QStringList warnings;

void hear(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // What the toolkit tells and nobody can help.
    static const QStringList known{
        QStringLiteral("This plugin does not support"), // the platform without a screen
        QStringLiteral("occurs outside target window"), // a drag ends outside one
        // A cell took its own table away by what was written in it.
        QStringLiteral("an editor that does not belong to this view"),
    };
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(message)); // and it ends here
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    for (const QString &text : known)
        if (message.contains(text))
            return;
    warnings.append(message);
}

/// The first files that differ, each with the place where it begins to.
QStringList differences(const QString &what, const FileMap &before, const FileMap &after)
{
    QStringList list;
    for (const QString &path : before.keys() + after.keys()) {
        const QByteArray left = before.value(path, "(none)");
        const QByteArray right = after.value(path, "(none)");
        qsizetype at = 0;
        while (at < left.size() && at < right.size() && left[at] == right[at])
            ++at;
        at = qMax(qsizetype(0), at - 40);
        if (left != right && list.size() < 4)
            list.append(QStringLiteral("%1: %2: “%3” became “%4”")
                            .arg(what, path, QString::fromUtf8(left.mid(at, 160)),
                                 QString::fromUtf8(right.mid(at, 160))));
    }
    return list;
}

QStringList rowsOf(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QString line;
        for (int column = 0; column < model.columnCount(parent); ++column)
            line += model.index(row, column, parent).data().toString() + u'|';
        lines.append(line);
        for (const QString &below : rowsOf(model, model.index(row, 0, parent)))
            lines.append(u' ' + below);
    }
    return lines;
}

} // namespace

Rambler::Rambler(quint32 seed, const QString &project, bool tells)
    : m_settings(m_dir.filePath(QStringLiteral("settings.ini")))
    , m_window(m_settings)
    , m_workspace(m_window.workspace())
    , m_text(m_window.findChild<desktop::EditorTextWidget *>())
    , m_seed(seed)
    , m_dice(seed)
    , m_tells(tells)
{
    warnings.clear();
    qInstallMessageHandler(&hear);
    QDir::setCurrent(m_dir.path());
    for (const char *scheme : schemes)
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "visit");
    connect(&m_workspace, &app::Workspace::projectReplaced, this, &Rambler::startProject);
    const FileMap files = filesUnder(project);
    QImage picture(24, 16, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    picture.save(m_dir.filePath(QStringLiteral("picture.png")));
    QDir(m_dir.path()).mkdir(QStringLiteral("Folder"));
    putFiles(m_dir.filePath(QStringLiteral("Other")), files);
    const QString folder = m_dir.filePath(QStringLiteral("The Low Lamps"));
    putFiles(folder, files);
    m_window.actions()["file.quit"]->setEnabled(false);
    m_window.show();
    QApplication::setActiveWindow(&m_window);
    if (!QTest::qWaitForWindowActive(&m_window) || !m_window.openProject(folder)
        || !m_workspace.current().saveAsBundle(m_dir.filePath(QStringLiteral("One.vellum")))
        || !m_window.openProject(folder))
        qFatal("the window does not show the project");
    QTimer::singleShot(0, this, &Rambler::attend);
}

Rambler::~Rambler()
{
    for (const char *scheme : schemes)
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    qInstallMessageHandler(nullptr);
}

void Rambler::startProject()
{
    m_start = filesOf(m_workspace.project());
    m_isTouched = false;
    m_word.clear();
    note(QStringLiteral("now open: %1").arg(m_workspace.current().path()));
}

bool Rambler::isWordThere() const
{
    app::PendingTexts texts;
    Q_EMIT m_workspace.peekRequested(texts);
    for (const app::PendingText &text : texts)
        if (text.typed.contains(m_word))
            return true;
    for (const auto *document : m_workspace.project().all<core::Document>())
        if (document->body().contains(m_word))
            return true;
    // Its beginning may stand in the model and its end not yet.
    return m_text->text().contains(m_word);
}

QString Rambler::lossAtOnce() const
{
    struct Open : QPlainTextEdit
    {
        using QPlainTextEdit::firstVisibleBlock;
    };
    if (!m_word.isEmpty() && !isWordThere())
        return QStringLiteral("The word %1 is lost").arg(m_word);
    // Where a row has no room, the last place to scroll to is behind the text.
    const bool hasRoom = m_text->isVisible() && m_text->viewport()->height() > 200;
    if (hasRoom && m_text->live() && !(m_text->*&Open::firstVisibleBlock)().isValid())
        return QStringLiteral("The editor looks at a line that is not there");
    return {};
}

QStringList Rambler::faultsOfHistory()
{
    const core::CommandStack &history = m_workspace.history();
    const auto redone = history.redoCount();
    const auto steps = history.undoCount();
    const FileMap now = filesOf(m_workspace.project());
    if (history.isGroupOpen())
        return {QStringLiteral("A group of steps was left open")};
    for (auto i = steps; i > 0; --i)
        m_workspace.undo();
    if (history.canUndo() || history.redoCount() != steps + redone)
        return {QStringLiteral("Undoing is a step itself")};
    QStringList list =
        differences(QStringLiteral("undone"), m_start, filesOf(m_workspace.project()));
    for (auto i = steps + redone; i > 0; --i)
        m_workspace.redo();
    for (auto i = redone; i > 0; --i)
        m_workspace.undo();
    list += differences(QStringLiteral("redone"), now, filesOf(m_workspace.project()));
    if (history.redoCount() != redone || history.undoCount() != steps)
        list.append(QStringLiteral("Redoing is a step itself"));
    return list;
}

QStringList Rambler::faultsOfFiles()
{
    app::OpenProject &current = m_workspace.current();
    if (!current.hasLocation() || current.isReadOnly())
        return {};
    if (m_isTouched || (current.isDirty() && m_dice.oneIn(4))) {
        if (const app::Result<> saved = current.save(app::OutsideChanges::Overwrite); !saved)
            return {QStringLiteral("not saved: ") + saved.message()};
        m_isTouched = false;
        // What a sync client left beside a file is the user's to look at.
        const QDir objects(current.path() + QStringLiteral("/objects"));
        for (const QString &copy : objects.entryList({QStringLiteral("*(conflicted copy)*")}))
            QFile::remove(objects.filePath(copy));
    }
    if (current.isDirty())
        return {};
    const auto read = app::OpenProject::openReadOnly(current.path());
    if (!read)
        return {QStringLiteral("not read: ") + read.message()};
    return differences(QStringLiteral("saved"), filesOf(m_workspace.project()),
                       filesOf((*read)->project()));
}

QStringList Rambler::faultsOfTrees() const
{
    QStringList list;
    for (const desktop::ObjectTree *tree : m_window.findChildren<desktop::ObjectTree *>()) {
        std::unique_ptr<app::ObjectTreeModel> fresh;
        if (qobject_cast<app::DocumentsModel *>(tree->objects()))
            fresh = std::make_unique<app::DocumentsModel>(m_workspace);
        else
            fresh = std::make_unique<app::CodexModel>(m_workspace);
        if (tree->objects()->isFiltered())
            continue;
        const QStringList shown = rowsOf(*tree->objects());
        const QStringList wanted = rowsOf(*fresh);
        if (shown != wanted)
            list.append(QStringLiteral("%1 shows\n%2\nnot\n%3")
                            .arg(tree->objectName(), shown.join(u'\n'), wanted.join(u'\n')));
    }
    return list;
}

QStringList Rambler::faultsOfWindow() const
{
    QStringList list;
    const app::OpenProject &current = m_workspace.current();
    if (m_window.isWindowModified() != current.isDirty())
        list.append(QStringLiteral("The title lies about unsaved changes"));
    if (!m_window.windowTitle().startsWith(current.name()))
        list.append(QStringLiteral("The title is of another project: ") + m_window.windowTitle());
    if (const desktop::LiveDocument *live = m_text->live()) {
        const auto *document = m_workspace.project().find<core::Document>(live->id());
        if (!document)
            list.append(QStringLiteral("The editor shows a document that is gone"));
        else if (m_text->text() != app::shownText(document->body()))
            list.append(QStringLiteral("The editor shows “%1”, not “%2”")
                            .arg(m_text->text(), app::shownText(document->body())));
    }
    for (const core::ContentId &id : m_workspace.selection())
        if (!m_workspace.project().find(id) && !m_workspace.project().taxonomy().find(id))
            list.append(QStringLiteral("What is gone is selected"));
    for (const QWidget *widget : QApplication::allWidgets())
        if (widget->windowHandle() && !widget->isWindow())
            list.append(QStringLiteral("A window of the system within one: ") + placeOf(widget));
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::ToolTip)
            list += unnamedControls(window, Walk::Visible);
    return list;
}

QStringList Rambler::faults()
{
    QStringList list = faultsOfWindow();
    list += faultsOfTrees();
    list += faultsOfHistory();
    QCoreApplication::processEvents();
    list += faultsOfFiles();
    QCoreApplication::processEvents();
    list += faultsOfWindow();
    list += faultsOfTrees();
    list += warnings;
    warnings.clear();
    list.removeDuplicates();
    return list;
}

} // namespace vl::test
