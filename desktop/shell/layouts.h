#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>

class QMenu;

namespace vl::app {
class Prompts;
class Settings;
} // namespace vl::app

namespace vl::desktop {

class ActionRegistry;
class Notices;
class PanelHost;

/// The layouts that come with the program, the user's own, kept under their names, and the one of
/// the last session.
class Layouts final : public QObject
{
    Q_OBJECT

public:
    /// All of it outlives the layouts.
    Layouts(PanelHost &panels, app::Settings &settings, app::Prompts &prompts, Notices &notices,
            QObject *parent = nullptr);

    void bind(ActionRegistry &actions);
    /// Keeps the menu filled with an entry a layout.
    void showIn(QMenu *menu);
    /// The names of the user's own.
    QStringList names() const;
    /// Keeps the present layout under the name, in place of an older one of that name.
    void save(const QString &name);
    void apply(const QString &name);
    void remove(const QString &name);

    void saveSession();
    /// Shows the layout of the last session, the first layout when there is none that fits.
    void restoreSession();

Q_SIGNALS:
    void changed();

private:
    void addTo(QMenu *menu, const QString &name, const std::function<void()> &apply);
    void askAndSave();
    void askAndRemove();
    void keep(const QString &name, const QByteArray &state);

    PanelHost &m_panels;
    app::Settings &m_settings;
    app::Prompts &m_prompts;
    Notices &m_notices;
};

} // namespace vl::desktop
