#pragma once

#include "app/base/settings.h"
#include "desktop/startup/commandline.h"
#include "desktop/startup/singleinstance.h"
#include "desktop/startup/translations.h"

#include <QtCore/QObject>

#include <memory>
#include <optional>

namespace vl::app {
class Prompts;
}

namespace vl::desktop {

class AltLetters;
class CaretRest;
class EndSignals;
class FocusRing;
class HandOver;
class MainWindow;
class UpdateCheck;

/// What one launch was asked for, with everything that depends on where it was made filled in.
struct Launch
{
    CommandLineOptions options; ///< the path is absolute, or empty
    QString language;           ///< empty when not asked for
    QString captureFile;        ///< empty unless a picture of the window was asked for

    static Launch from(const QStringList &arguments);
};

/// One run of the program, from its launch to the end of the window; the steps stand in the order
/// in which they are to be called.
class StartUp final : public QObject
{
    Q_OBJECT

public:
    /// The settings and prompts outlive it; without prompts the window asks with dialogs.
    StartUp(Launch launch, app::Settings &settings, app::Prompts *prompts = nullptr);
    ~StartUp() override;

    /// Gives the application its name and picture, before anything else.
    static void identify(const QString &version);
    /// Hands the project over to a running instance: true when one took it and this process is to
    /// end. Else listens for later launches, unless it only takes a picture.
    bool handOver(const QString &serverName);
    /// Makes the window in the user's language and look, and shows it. What it is to open is opened
    /// as soon as it has been painted once.
    void showWindow();
    MainWindow &window() { return *m_window; }

Q_SIGNALS:
    /// The projects are open and everything the start brings was shown.
    void done();
    /// What could wait was done too.
    void settled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyLook();
    void offerUpdates();
    void afterFirstPaint();
    void open();
    void reopenLast();
    void welcome();
    void tellOfSettings();
    void capture();

    Launch m_launch;
    app::Settings &m_settings;
    app::Prompts *m_prompts;
    // The order in which they go at the end is the opposite of this one.
    std::unique_ptr<SingleInstanceServer> m_server;
    std::unique_ptr<Translations> m_translations;
    std::unique_ptr<FocusRing> m_focusRing;
    std::unique_ptr<CaretRest> m_caretRest;
    std::unique_ptr<AltLetters> m_altLetters;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<EndSignals> m_endSignals;
    HandOver *m_handOver = nullptr;
    UpdateCheck *m_updates = nullptr;
    bool m_hasPainted = false;
};

} // namespace vl::desktop
