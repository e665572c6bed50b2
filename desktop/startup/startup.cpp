#include "desktop/startup/startup.h"

#include "app/base/settingskeys.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/notices.h"
#include "desktop/startup/endsignals.h"
#include "desktop/startup/handover.h"
#include "desktop/startup/updatecheck.h"
#include "desktop/startup/updatestatus.h"
#include "desktop/widgets/altletters.h"
#include "desktop/widgets/caretrest.h"
#include "desktop/widgets/focusring.h"
#include "desktop/widgets/programstyle.h"

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtCore/QTimer>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStatusBar>

namespace vl::desktop {

namespace {

constexpr int captureMilliseconds = 1500;
constexpr int settleMilliseconds = 1000; // after the start; nothing that can wait comes before
constexpr int paintMilliseconds = 1000;  // after which a window is taken for one nobody sees

} // namespace

Launch Launch::from(const QStringList &arguments)
{
    Launch launch{parseCommandLine(arguments),
                  optionValue(arguments, QLatin1String(languageOption)).value_or(QString()),
                  optionValue(arguments, QLatin1String(captureOption)).value_or(QString())};
    if (!launch.options.projectPath.isEmpty())
        launch.options.projectPath =
            QDir::cleanPath(QFileInfo(launch.options.projectPath).absoluteFilePath());
    return launch;
}

StartUp::StartUp(Launch launch, app::Settings &settings, app::Prompts *prompts)
    : m_launch(std::move(launch))
    , m_settings(settings)
    , m_prompts(prompts)
{
}

StartUp::~StartUp() = default;

void StartUp::identify(const QString &version)
{
    QCoreApplication::setApplicationName(QStringLiteral("Ivorel"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quessel Games"));
    QCoreApplication::setApplicationVersion(version);
    QGuiApplication::setDesktopFileName(QStringLiteral("ivorel"));
    QGuiApplication::setWindowIcon(applicationIcon());
}

bool StartUp::handOver(const QString &serverName)
{
    if (!m_launch.captureFile.isEmpty())
        return false;
    m_server =
        handOverOrListen(serverName, m_launch.options.projectPath, m_launch.options.newInstance);
    return m_server == nullptr;
}

void StartUp::applyLook()
{
    QApplication::setStyle(new ProgramStyle); // the application owns it
    Appearance::apply(m_settings);
    m_focusRing = std::make_unique<FocusRing>();
    m_caretRest = std::make_unique<CaretRest>();
    m_altLetters = std::make_unique<AltLetters>();
}

void StartUp::showWindow()
{
    const QLocale locale = interfaceLocale(m_launch.language, m_settings);
    QLocale::setDefault(locale);
    m_translations = std::make_unique<Translations>(locale);
    applyLook();

    m_window = std::make_unique<MainWindow>(m_settings, m_prompts);
    m_handOver = new HandOver(
        m_window.get(), m_window->prompts(),
        [this](const QString &path) { m_window->flows().openHere(path); }, startNewInstance,
        m_window.get());
    if (m_server && m_server->isListening())
        connect(m_server.get(), &SingleInstanceServer::messageReceived, m_handOver,
                &HandOver::receive);
    offerUpdates();
    m_endSignals = std::make_unique<EndSignals>();
    connect(m_endSignals.get(), &EndSignals::asked, this, [this] {
        // Nobody is there to answer a question: what is not saved is offered the next time.
        m_window->keepAll();
        QCoreApplication::exit();
    });

    m_window->installEventFilter(this);
    QTimer::singleShot(paintMilliseconds, this, &StartUp::afterFirstPaint);
    m_window->show();
}

void StartUp::offerUpdates()
{
    UpdateService service = UpdateService::ofThisProgram();
    service.leave = [this] {
        // The program ends when the installer has been started, not with the window.
        QGuiApplication::setQuitOnLastWindowClosed(false);
        const bool isClosed = m_window->close();
        QGuiApplication::setQuitOnLastWindowClosed(!isClosed);
        return isClosed;
    };
    service.comeBack = [this] {
        m_window->show();
        QGuiApplication::setQuitOnLastWindowClosed(true);
    };
    m_updates =
        new UpdateCheck(std::move(service), m_settings, m_window->prompts(), m_window.get());
    m_window->statusBar()->addPermanentWidget(new UpdateStatus(*m_updates, m_window->statusBar()));
    m_window->actions().bind("help.checkUpdates", m_updates,
                             [this] { m_updates->check(UpdateCheck::Asked::ByUser); });
}

bool StartUp::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        m_window->removeEventFilter(this);
        // The window is painted when this event has been dealt with, and on the screen soon after.
        QTimer::singleShot(0, this, &StartUp::afterFirstPaint);
    }
    return QObject::eventFilter(watched, event);
}

void StartUp::afterFirstPaint()
{
    if (std::exchange(m_hasPainted, true))
        return;
    open();
    m_updates->schedule();
    QTimer::singleShot(settleMilliseconds, this, &StartUp::tellOfSettings);
    Q_EMIT done();
}

void StartUp::tellOfSettings()
{
    const QString place = QDir::toNativeSeparators(m_settings.place());
    if (!m_settings.areKept())
        m_window->notices().ask(QStringLiteral("settings"),
                                tr("Settings are not kept: %1 cannot be written to. What you set "
                                   "lasts until Ivorel is closed.")
                                    .arg(place),
                                {});
    else if (const QString copy = m_settings.damagedCopy(); !copy.isEmpty())
        m_window->notices().ask(QStringLiteral("settings"),
                                tr("The settings file was damaged. What could be read of it is in "
                                   "use; it is kept as %1.")
                                    .arg(QDir::toNativeSeparators(copy)),
                                {});
    Q_EMIT settled();
}

void StartUp::open()
{
    const bool isCapture = !m_launch.captureFile.isEmpty();
    // Its time begins when the project stands there, or a message about it that nobody answers.
    if (isCapture)
        QMetaObject::invokeMethod(
            this, [this] { QTimer::singleShot(captureMilliseconds, this, &StartUp::capture); },
            Qt::QueuedConnection);
    const QString &path = m_launch.options.projectPath;
    const bool isOpen = !path.isEmpty() && m_window->openProject(path);
    if (!isCapture && !isOpen) {
        reopenLast();
        welcome();
    }
}

void StartUp::reopenLast()
{
    if (!m_settings.flag(app::settings::reopenLast))
        return;
    const QString latest = m_settings.recentProjects().value(0);
    // What has just been asked for and told not to open is not tried once more.
    const QString asked = QDir::cleanPath(m_launch.options.projectPath);
    if (!latest.isEmpty() && QDir::cleanPath(latest) != asked && QFileInfo::exists(latest))
        m_window->openProject(latest);
}

void StartUp::welcome()
{
    if (m_settings.contains(QLatin1String(app::settings::welcomed.name)))
        return;
    m_window->actions().action("help.welcome")->trigger();
}

void StartUp::capture()
{
    const bool isSaved = m_window->grab().save(m_launch.captureFile);
    if (!isSaved)
        qWarning("The picture could not be saved: %s", qUtf8Printable(m_launch.captureFile));
    QCoreApplication::exit(isSaved ? 0 : 1);
}

} // namespace vl::desktop
