#include "desktop/shell/mainwindow.h"

#include "app/base/settingskeys.h"
#include "desktop/shell/notices.h"
#include "desktop/shell/panelhost.h"
#include "desktop/shell/safekeeping.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/elidedlabel.h"

#include <QtGui/QActionGroup>
#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

const QLatin1String layoutKey("general/layout");
const QLatin1String geometryKey("general/geometry");
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
    , m_dialogs(this)
    , m_prompts(prompts ? *prompts : m_dialogs)
    , m_flows(m_workspace, m_prompts, settings)
    , m_actions(settings)
{
    buildCentre();
    bindActions();
    buildMenus();
    buildToolBar();
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
    connect(&m_workspace, &app::Workspace::locationChanged, this, &MainWindow::updateTitle);
    connect(&m_workspace, &app::Workspace::saved, this, &MainWindow::tellSaved);
    connect(&m_workspace, &app::Workspace::saveFailed, this, &MainWindow::tellSaveFailed);
    connect(&m_workspace, &app::Workspace::projectReplaced, m_saveFault, &QWidget::hide);
    m_safeKeeping = std::make_unique<SafeKeeping>(m_workspace);
    updateTitle();
    updateSteps();
    restoreWindow();
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
    m_panels = new PanelHost(
        centre, PanelContext{m_workspace, m_actions, m_settings, m_prompts, *m_notices});
}

void MainWindow::bindActions()
{
    m_actions.bind("file.new", this, [this] { m_flows.newProject(); });
    m_actions.bind("file.open", this, [this] { m_flows.chooseAndOpen(); });
    m_actions.bind("file.openFolder", this, [this] { m_flows.chooseAndOpenFolder(); });
    m_actions.bind("file.save", this, [this] { m_tellsFailure = m_flows.saveInBackground(); });
    m_actions.bind("file.saveAs", this, [this] { m_flows.saveAs(); });
    m_actions.bind("file.saveAsFolder", this, [this] { m_flows.saveAsFolder(); });
    m_actions.bind("file.quit", this, &QWidget::close);
    m_actions.bind("edit.undo", &m_workspace, &app::Workspace::undo);
    m_actions.bind("edit.redo", &m_workspace, &app::Workspace::redo);
    m_actions.bind("view.nextPanel", m_panels, &PanelHost::focusNext);
    m_actions.bind("view.previousPanel", m_panels, &PanelHost::focusPrevious);
    m_actions.bind("view.resetLayout", m_panels, &PanelHost::resetLayout);
    m_actions.bind("help.about", this, &MainWindow::showAbout);
}

void MainWindow::tellSaved()
{
    m_saveFault->hide();
    m_tellsFailure = false;
    m_notices->show(tr("Saved “%1”.").arg(m_workspace.current().name()));
}

void MainWindow::tellSaveFailed(const QString &message)
{
    m_saveFault->setText(tr("⚠ Not saved: %1").arg(message));
    m_saveFault->setToolTip(message);
    m_saveFault->show();
    // Who asked for a save is told at once, not only in passing.
    if (std::exchange(m_tellsFailure, false))
        m_prompts.showError(tr("Save Project"), message);
}

void MainWindow::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    m_actions.fill(file, Menu::File);
    file->addSeparator();
    m_actions.fill(file->addMenu(tr("&Import")), Menu::Import);
    m_actions.fill(file->addMenu(tr("&Export")), Menu::Export);
    m_actions.fill(file->addMenu(tr("&Recent Projects")), Menu::Recent);
    m_actions.fill(file, Menu::Leave);
    m_actions.fill(menuBar()->addMenu(tr("&Edit")), Menu::Edit);
    QMenu *view = menuBar()->addMenu(tr("&View"));
    m_actions.fill(view, Menu::View);
    view->addSeparator();
    QMenu *themeMenu = view->addMenu(tr("&Theme"));
    auto *group = new QActionGroup(themeMenu);
    const Theme &present = themeNamed(m_settings.text(app::settings::theme));
    for (const Theme &theme : themes()) {
        QAction *entry = themeMenu->addAction(QCoreApplication::translate("Themes", theme.name));
        entry->setCheckable(true);
        entry->setChecked(&theme == &present);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, &theme] {
            applyTheme(theme);
            m_settings.set(app::settings::theme, QLatin1String(theme.name));
        });
    }
    m_actions.fill(view, Menu::Layouts);
    view->addSeparator();
    m_panels->addToggles(view);
    m_actions.fill(menuBar()->addMenu(tr("&AI")), Menu::Ai);
    m_actions.fill(menuBar()->addMenu(tr("&Help")), Menu::Help);
}

void MainWindow::buildToolBar()
{
    QToolBar *bar = addToolBar(tr("Main"));
    bar->setObjectName(QStringLiteral("primaryToolBar"));
    bar->setMovable(false);
    for (const char *id : {"file.open", "file.save", "edit.undo", "edit.redo"})
        bar->addAction(m_actions[id]);
}

void MainWindow::restoreWindow()
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    resize(qMin(1400, room.width() - windowEdges), qMin(900, room.height() - windowEdges));
    restoreGeometry(m_settings.bytes(geometryKey));
    m_panels->restoreLayout(m_settings.bytes(layoutKey));
}

void MainWindow::updateTitle()
{
    const app::OpenProject &current = m_workspace.current();
    setWindowTitle(tr("%1[*] – Ivorel").arg(current.name()));
    setWindowFilePath(QString());
    setWindowModified(current.isDirty());
}

void MainWindow::updateSteps()
{
    const core::CommandStack &history = m_workspace.history();
    QAction *undo = m_actions["edit.undo"];
    QAction *redo = m_actions["edit.redo"];
    // Undo stays reachable without a step: what is being typed becomes one when it is asked for.
    undo->setText(stepText(tr("&Undo"), history.undoText()));
    undo->setToolTip(stepText(tr("Undo"), history.undoText()));
    undo->setIconText(tr("Undo"));
    redo->setText(stepText(tr("&Redo"), history.redoText()));
    redo->setToolTip(stepText(tr("Redo"), history.redoText()));
    redo->setIconText(tr("Redo"));
    redo->setEnabled(history.canRedo());
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About Ivorel"),
                       tr("<h3>Ivorel %1</h3><p>A workspace for writing and worldbuilding.</p>")
                           .arg(QCoreApplication::applicationVersion().toHtmlEscaped()));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_flows.mayClose()) {
        event->ignore();
        return;
    }
    m_settings.setBytes(geometryKey, saveGeometry());
    m_settings.setBytes(layoutKey, m_panels->saveLayout());
    event->accept();
}

} // namespace vl::desktop
