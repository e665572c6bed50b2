#include "cli/arguments.h"

namespace vl::cli {

namespace {

/// What a usage line allows.
struct Usage
{
    QStringList required; ///< names of arguments
    QStringList optional;
    QHash<QString, bool> options; ///< by name; whether a value follows
    QStringList requiredOptions;

    explicit Usage(const QString &line)
    {
        const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (qsizetype i = 0; i < words.size(); ++i) {
            const bool isOptional = words[i].startsWith(QLatin1Char('['));
            const QString word = bare(words[i]);
            if (!word.startsWith(QLatin1String("--"))) {
                (isOptional ? optional : required).append(word);
                continue;
            }
            const QString name = word.mid(2);
            const bool isClosed = words[i].endsWith(QLatin1Char(']'));
            const bool takesValue = !isClosed && i + 1 < words.size()
                                    && !bare(words[i + 1]).startsWith(QLatin1String("--"))
                                    && !words[i + 1].startsWith(QLatin1Char('['));
            options.insert(name, takesValue);
            if (!isOptional)
                requiredOptions.append(name);
            if (takesValue)
                ++i;
        }
    }

private:
    static QString bare(QString word)
    {
        return word.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    }
};

} // namespace

app::Result<Arguments> Arguments::parse(const QString &usage, const QStringList &words)
{
    const Usage allowed(usage);
    Arguments result;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (!optionsEnded && word == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }
        if (optionsEnded || !word.startsWith(QLatin1Char('-')) || word.size() == 1) {
            result.m_positional.append(word);
            continue;
        }
        const qsizetype equals = word.indexOf(QLatin1Char('='));
        const QString name = word.startsWith(QLatin1String("--"))
                                 ? word.mid(2, equals < 0 ? -1 : equals - 2)
                                 : QString();
        const auto option = allowed.options.constFind(name);
        if (option == allowed.options.constEnd())
            return app::failure(tr("Unknown option: %1").arg(word));
        if (result.m_options.contains(name))
            return app::failure(tr("The option --%1 is given twice.").arg(name));
        if (!*option && equals >= 0)
            return app::failure(tr("The option --%1 takes no value.").arg(name));
        if (*option && equals < 0 && i + 1 == words.size())
            return app::failure(tr("The option --%1 needs a value.").arg(name));
        result.m_options.insert(name, !*option      ? QString()
                                      : equals >= 0 ? word.mid(equals + 1)
                                                    : words[++i]);
    }
    if (result.count() < allowed.required.size())
        return app::failure(tr("%1 is missing.").arg(allowed.required.at(result.count())));
    if (result.count() > allowed.required.size() + allowed.optional.size())
        return app::failure(
            tr("Too many arguments: %1")
                .arg(result.at(int(allowed.required.size() + allowed.optional.size()))));
    for (const QString &name : allowed.requiredOptions)
        if (!result.has(name))
            return app::failure(tr("The option --%1 is missing.").arg(name));
    return result;
}

} // namespace vl::cli
