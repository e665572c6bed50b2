#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

class QMenu;

namespace vl::app {
class Prompts;
class Settings;
} // namespace vl::app

namespace vl::desktop {

class ActionRegistry;
class Notices;
class PanelHost;

/// The user's own layouts of the panels, kept under their names, and the one of the last session.
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
    void askAndSave();
    void askAndRemove();
    void keep(const QString &name, const QByteArray &state);

    PanelHost &m_panels;
    app::Settings &m_settings;
    app::Prompts &m_prompts;
    Notices &m_notices;
};

} // namespace vl::desktop
