#include "cli/commands/commands.h"

#include "app/base/wordcount.h"
#include "app/text/manuscript.h"
#include "cli/projectsource.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <array>

namespace vl::cli {

namespace {

struct Figures
{
    std::array<qint64, core::contentKindTexts.size()> kinds{};
    qint64 categories = 0;
    qint64 words = 0;
    qint64 bytes = 0;
};

Figures countIn(const ProjectSource &source)
{
    Figures figures;
    for (const auto &[id, object] : source.project().objects())
        ++figures.kinds.at(std::size_t(object->kind()));
    figures.categories = source.project().taxonomy().size();
    for (const app::ManuscriptEntry &entry : app::readManuscript(source.project()).entries)
        figures.words += app::countWords(entry.text);
    figures.bytes = source.bytesOnDisk();
    return figures;
}

QString kindText(std::size_t kind)
{
    return core::contentKindTexts.text(core::ContentKind(kind));
}

QByteArray asJson(const Figures &figures)
{
    QJsonObject kinds;
    for (std::size_t kind = 0; kind < figures.kinds.size(); ++kind)
        kinds.insert(kindText(kind), figures.kinds.at(kind));
    return QJsonDocument(QJsonObject{{QStringLiteral("kinds"), kinds},
                                     {QStringLiteral("categories"), figures.categories},
                                     {QStringLiteral("words"), figures.words},
                                     {QStringLiteral("bytes"), figures.bytes}})
        .toJson();
}

QString asText(const Figures &figures)
{
    QString text;
    const auto addLine = [&text](const QString &name, qint64 figure) {
        text += QStringLiteral("%1  %2\n").arg(name, -16).arg(figure, 12);
    };
    for (std::size_t kind = 0; kind < figures.kinds.size(); ++kind)
        addLine(kindText(kind), figures.kinds.at(kind));
    addLine(Arguments::tr("categories"), figures.categories);
    addLine(Arguments::tr("words"), figures.words);
    addLine(Arguments::tr("bytes"), figures.bytes);
    return text;
}

} // namespace

ExitStatus runInfo(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(0));
    if (!source)
        return console.fail(source.message());
    const Figures figures = countIn(*source);
    if (arguments.has(QStringLiteral("json")))
        console.writeBytes(asJson(figures));
    else
        console.write(asText(figures));
    return ExitStatus::Done;
}

} // namespace vl::cli
