#pragma once

#include "app/base/settings.h"

#include <QtWidgets/QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSpinBox;
class QVBoxLayout;

namespace vl::app {
class Prompts;
}

namespace vl::desktop {

class ActionRegistry;

/// What the pages are handed; all of it outlives them.
struct PreferencesContext
{
    app::Settings &settings;
    ActionRegistry &actions;
    app::Prompts &prompts;
};

/// One page of the preferences. Its controls show settings and change them at once.
class PreferencesPage : public QWidget
{
    Q_OBJECT

public:
    PreferencesPage(const PreferencesContext &context, QWidget *parent);

    /// Brings everything on the page back to what it is without the user's doing.
    virtual void reset();
    /// All texts that a search finds the page by.
    virtual QStringList searchTexts() const;

protected:
    /// A choice: the value in the settings and the text that stands for it.
    struct Choice
    {
        QString value;
        QString text;
    };

    app::Settings &settings() const { return m_context.settings; }
    const PreferencesContext &context() const { return m_context; }
    /// The layout of the page; groups come below each other.
    QVBoxLayout *column() const { return m_column; }
    /// A new group with a title, or none, whose rows are fields with their labels.
    QFormLayout *addGroup(const QString &title);

    QCheckBox *addFlag(QFormLayout *group, const QString &text, const app::SettingKey &key);
    /// A whole number between the two, with a suffix such as " pt".
    QSpinBox *addNumber(QFormLayout *group, const QString &label, const app::SettingKey &key,
                        int least, int most, const QString &suffix);
    QComboBox *addChoice(QFormLayout *group, const QString &label, const app::SettingKey &key,
                         const QList<Choice> &choices);
    /// Runs now and whenever the setting changes; a reset of the page removes the setting.
    void follow(const app::SettingKey &key, QObject *control, const std::function<void()> &show);

private:
    PreferencesContext m_context;
    QVBoxLayout *m_column;
    QStringList m_keys;
};

} // namespace vl::desktop
