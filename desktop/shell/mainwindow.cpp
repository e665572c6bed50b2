#include "desktop/shell/mainwindow.h"

#include "app/base/diskroom.h"
#include "app/base/settingskeys.h"
#include "app/models/objecttexts.h"
#include "desktop/dialogs/projecttools.h"
#include "desktop/preferences/preferencesdialog.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/layouts.h"
#include "desktop/shell/maintoolbar.h"
#include "desktop/shell/notices.h"
#include "desktop/shell/panelhost.h"
#include "desktop/shell/projectcare.h"
#include "desktop/shell/safekeeping.h"
#include "desktop/shell/windowmenus.h"
#include "desktop/widgets/elidedlabel.h"

#include <QtCore/QDir>
#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

const QLatin1String geometryKey("general/geometry");
constexpr QSize smallScreen(1280, 800);
constexpr int windowEdges = 48; // room for the frame that the desktop puts round the window

/// The entry of a step: what it does, then what it does it to, in plain text.
QString stepText(const QString &verb, const QString &step)
{
    QString escaped = step;
    escaped.replace(u'&', QLatin1String("&&"));
    return step.isEmpty() ? verb : QStringLiteral("%1 %2").arg(verb, escaped);
}

} // namespace

MainWindow::MainWindow(app::Settings &settings, app::Prompts *prompts)
    : m_settings(settings)
    , m_dialogs(this, [this] { return usualPlace(); })
    , m_prompts(prompts ? *prompts : m_dialogs)
    , m_flows(m_workspace, m_prompts, settings)
    , m_actions(settings)
{
    buildCentre();
    m_tools = std::make_unique<ProjectTools>(
        PanelContext{m_workspace, m_actions, m_settings, m_prompts, *m_notices}, m_flows, *m_panels,
        this);
    bindActions();
    buildMenus();
    m_saveFault = new ElidedLabel({}, this);
    m_saveFault->setAccessibleName(tr("Why the project was not saved"));
    statusBar()->addPermanentWidget(m_saveFault);
    m_saveFault->hide();
    for (QAction *action : m_actions.all())
        addAction(action);

    connect(&m_workspace, &app::Workspace::historyChanged, this, [this] {
        updateTitle();
        updateSteps();
    });
    connect(&m_workspace, &app::Workspace::typed, m_actions["edit.undo"],
            [this] { m_actions["edit.undo"]->setEnabled(true); });
    connect(&m_workspace, &app::Workspace::locationChanged, this, &MainWindow::updateTitle);
    connect(&m_workspace, &app::Workspace::saved, this, &MainWindow::tellSaved);
    connect(&m_workspace, &app::Workspace::saveFailed, this, &MainWindow::tellSaveFailed);
    connect(&m_workspace, &app::Workspace::projectReplaced, m_saveFault, &QWidget::hide);
    // Once the panels show it. The text is what a project is opened for; one without any begins in
    // the manuscript.
    const auto focus = [this] {
        m_panels->focusSide(m_workspace.selection().isEmpty() ? DockSide::Left : DockSide::Center);
    };
    connect(&m_workspace, &app::Workspace::projectReplaced, this, focus, Qt::QueuedConnection);
    m_safeKeeping = std::make_unique<SafeKeeping>(
        PanelContext{m_workspace, m_actions, m_settings, m_prompts, *m_notices}, this);
    m_care = std::make_unique<ProjectCare>(
        PanelContext{m_workspace, m_actions, m_settings, m_prompts, *m_notices}, m_flows, this);
    updateTitle();
    updateSteps();
    restoreWindow();
    m_panels->focusSide(DockSide::Left);
}

MainWindow::~MainWindow()
{
    // The panels go before what they were handed.
    delete takeCentralWidget();
}

bool MainWindow::openProject(const QString &path)
{
    return m_flows.open(path);
}

void MainWindow::buildCentre()
{
    auto *centre = new QWidget;
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setCentralWidget(centre);
    auto *questions = new NoticeBar(centre);
    layout->addWidget(questions);
    m_notices = new Notices(statusBar(), questions, m_workspace, this);
    m_appearance = new Appearance(m_settings, this);
    m_panels = new PanelHost(
        centre, PanelContext{m_workspace, m_actions, m_settings, m_prompts, *m_notices});
    layout->setStretch(layout->count() - 1, 1); // what the questions do not need is the panels'
    m_layouts = new Layouts(*m_panels, m_settings, m_prompts, *m_notices, this);
}

void MainWindow::bindActions()
{
    m_actions.bind("file.open", this, [this] { m_flows.chooseAndOpen(); });
    m_actions.bind("file.openFolder", this, [this] { m_flows.chooseAndOpenFolder(); });
    m_actions.bind("file.save", this, [this] {
        m_isAskedFor = m_flows.saveInBackground() && m_workspace.current().isSaving();
    });
    m_actions.bind("file.saveAs", this, [this] { tellPlace(m_flows.saveAs()); });
    m_actions.bind("file.saveAsFolder", this, [this] { tellPlace(m_flows.saveAsFolder()); });
    m_actions.bind("file.quit", this, &QWidget::close);
    m_actions.bind("edit.undo", this, [this] {
        m_workspace.undo();
        updateSteps(); // what was typed may have come to nothing
    });
    m_actions.bind("edit.redo", &m_workspace, &app::Workspace::redo);
    m_actions.bind("view.nextPanel", m_panels, &PanelHost::focusNext);
    m_actions.bind("view.previousPanel", m_panels, &PanelHost::focusPrevious);
    m_actions.bind("file.clearRecent", this, [this] { m_settings.clearRecentProjects(); });
    m_actions.bind("edit.preferences", this, [this] {
        PreferencesDialog::open({m_settings, m_actions, m_prompts}, this);
    });
    m_panels->bindFloating(m_actions);
    m_layouts->bind(m_actions);
}

void MainWindow::tellSaved()
{
    m_saveFault->hide();
    const QString text = tr("Saved “%1”.").arg(m_workspace.current().name());
    // A save that came by itself does not take an "Undo" away.
    if (std::exchange(m_isAskedFor, false))
        m_notices->show(text);
    else
        m_notices->remark(text);
}

void MainWindow::tellPlace(bool isSaved)
{
    if (isSaved)
        m_notices->show(
            tr("Saved as %1.").arg(QDir::toNativeSeparators(m_workspace.current().path())));
}

/// Where the user looks for a project first: beside this one, or beside the last.
QString MainWindow::usualPlace() const
{
    const QString path = m_workspace.current().path();
    const QString known = path.isEmpty() ? m_settings.recentProjects().value(0) : path;
    return known.isEmpty() ? QString() : QFileInfo(known).path();
}

void MainWindow::tellSaveFailed(const QString &reason)
{
    const QString message = app::isDiskFull(m_workspace.current().path())
                                ? tr("The disk is full. %1").arg(reason)
                                : reason;
    m_saveFault->setText(tr("⚠ Not saved: %1").arg(message));
    m_saveFault->setToolTip(app::plainToolTip(message));
    m_saveFault->show();
    // Who asked for a save is told at once, not only in passing.
    if (std::exchange(m_isAskedFor, false))
        m_prompts.showError(tr("Save Project"), message);
}

void MainWindow::buildMenus()
{
    auto *menus = new WindowMenus(
        this, {m_actions, m_settings, *m_appearance, *m_layouts, *m_panels, *m_notices});
    connect(menus, &WindowMenus::recentChosen, this,
            [this](const QString &path) { m_flows.openRecent(path); });
    addToolBar(new MainToolBar(m_actions, m_settings, this));
}

void MainWindow::restoreWindow()
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    // Nine tenths of a large screen, all of a small one.
    resize(QSize(qMax(smallScreen.width(), room.width() * 9 / 10),
                 qMax(smallScreen.height(), room.height() * 9 / 10))
               .boundedTo(room.size() - QSize(windowEdges, windowEdges)));
    restoreGeometry(m_settings.bytes(geometryKey));
    m_layouts->restoreSession();
}

void MainWindow::updateTitle()
{
    const app::OpenProject &current = m_workspace.current();
    QString name = current.name();
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // not the place of the mark
    setWindowTitle(tr("%1[*] – Ivorel").arg(name));
    setWindowFilePath(QString());
    setWindowModified(current.isDirty());
}

void MainWindow::updateSteps()
{
    const core::CommandStack &history = m_workspace.history();
    QAction *undo = m_actions["edit.undo"];
    QAction *redo = m_actions["edit.redo"];
    undo->setText(stepText(tr("&Undo"), history.undoText()));
    undo->setToolTip(stepText(tr("Undo"), history.undoText()));
    undo->setIconText(tr("Undo"));
    undo->setEnabled(m_workspace.canUndo());
    redo->setText(stepText(tr("&Redo"), history.redoText()));
    redo->setToolTip(stepText(tr("Redo"), history.redoText()));
    redo->setIconText(tr("Redo"));
    redo->setEnabled(history.canRedo());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_flows.mayClose()) {
        event->ignore();
        return;
    }
    keepLook();
    m_care->closing();
    event->accept();
}

void MainWindow::keepLook()
{
    m_settings.setBytes(geometryKey, saveGeometry());
    m_layouts->saveSession();
}

void MainWindow::keepAll()
{
    m_workspace.flush();
    m_care->cutOff();
    keepLook();
}

} // namespace vl::desktop
