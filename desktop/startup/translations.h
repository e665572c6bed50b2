#pragma once

#include <QtCore/QLocale>
#include <QtCore/QTranslator>

namespace vl::app {
class Settings;
}

namespace vl::desktop {

/// The language of the interface: the one asked for at the launch, else the user's choice, else the
/// system's. An empty text stands for none.
QLocale interfaceLocale(const QString &askedFor, const app::Settings &settings);

/// The texts of the program and of the toolkit in one language, as long as it lives.
class Translations final
{
public:
    explicit Translations(const QLocale &locale);
    ~Translations();
    Q_DISABLE_COPY_MOVE(Translations)

private:
    QTranslator m_program;
    QTranslator m_toolkit;
};

} // namespace vl::desktop
