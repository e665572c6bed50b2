#pragma once

#include "app/base/result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace vl::cli {

/// The arguments of one command, checked against its usage line. The line says what there is:
/// capital letters are an argument, "--word" is a switch, "--word NAME" an option with a value, and
/// brackets stand around what may be left out, as in "info PROJECT [--json]".
class Arguments
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::Arguments)

public:
    /// Fails with the reason why the words do not fit the usage. "--" ends the options, "-" is an
    /// argument, and "--word=value" is the same as "--word value".
    static app::Result<Arguments> parse(const QString &usage, const QStringList &words);

    /// The number of arguments that are no options.
    int count() const { return int(m_positional.size()); }
    /// The argument in this place, from 0; the empty text when it was left out.
    QString at(int place) const { return m_positional.value(place); }

    bool has(const QString &option) const { return m_options.contains(option); }
    /// The value of the option named without its dashes; the empty text when it was not given.
    QString value(const QString &option) const { return m_options.value(option); }

private:
    QStringList m_positional;
    QHash<QString, QString> m_options;
};

} // namespace vl::cli
