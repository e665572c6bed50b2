#include "cli/commands/commands.h"

#include "app/text/stylechecker.h"
#include "cli/projectsource.h"
#include "cli/stylejson.h"
#include "cli/textfile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace vl::cli {

namespace {

/// Where a finding stands, as editors count: lines and columns from 1, columns in UTF-16 units.
class LineCounter
{
public:
    explicit LineCounter(const QString &text)
        : m_text(text)
    {
        m_lineStarts.push_back(0);
        for (qsizetype at = text.indexOf(u'\n'); at >= 0; at = text.indexOf(u'\n', at + 1))
            m_lineStarts.push_back(at + 1);
    }

    QString placeOf(qint64 offset) const
    {
        const auto next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), offset);
        return QStringLiteral("%1:%2")
            .arg(next - m_lineStarts.begin())
            .arg(offset - *std::prev(next) + 1);
    }
    /// The beginning of what was found, on one line.
    QString excerpt(const app::StyleIssue &issue) const
    {
        constexpr qint64 longest = 60;
        const QString found = m_text.mid(issue.start, std::min(issue.length, longest)).simplified();
        return issue.length > longest ? found + u'…' : found;
    }

private:
    QString m_text;
    std::vector<qint64> m_lineStarts;
};

/// One line a finding: where it is, what it is, and the text it is about.
QString asText(const QString &name, const QString &text, const QList<app::StyleIssue> &issues)
{
    const LineCounter lines(text);
    QString result;
    for (const app::StyleIssue &issue : issues)
        result += QStringLiteral("%1:%2: %3 [%4]\n")
                      .arg(name, lines.placeOf(issue.start), issue.message, lines.excerpt(issue));
    return result;
}

ExitStatus checkProject(const QString &path, bool asJson, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(path);
    if (!source)
        return console.fail(source.message());
    console.begin(Arguments::tr("Checking the style…"));
    const app::StyleChecker checker;
    QJsonArray list;
    bool hasFindings = false;
    for (const auto &place : source->project().documentTree().inOrder()) {
        const core::Document &document = *place.document;
        const QList<app::StyleIssue> issues = checker.check(document.body());
        hasFindings = hasFindings || !issues.isEmpty();
        if (asJson)
            list.append(QJsonObject{{QStringLiteral("id"), document.id().toString()},
                                    {QStringLiteral("title"), document.title()},
                                    {QStringLiteral("issues"), toJson(issues)}});
        else
            console.write(asText(document.title().simplified(), document.body(), issues));
    }
    if (asJson)
        console.writeBytes(QJsonDocument(list).toJson());
    return hasFindings ? ExitStatus::Findings : ExitStatus::Done;
}

ExitStatus checkText(const QString &path, bool asJson, Console &console)
{
    const app::Result<QString> text = readInputText(path);
    if (!text)
        return console.fail(text.message());
    console.begin(Arguments::tr("Checking the style…"));
    const QList<app::StyleIssue> issues = app::StyleChecker().check(*text);
    const QString name = path.isEmpty() ? QStringLiteral("-") : path;
    if (asJson)
        console.writeBytes(QJsonDocument(toJson(issues)).toJson());
    else
        console.write(asText(name, *text, issues));
    return issues.isEmpty() ? ExitStatus::Done : ExitStatus::Findings;
}

} // namespace

ExitStatus runStyle(const Arguments &arguments, Console &console)
{
    const QString path = arguments.at(0);
    const bool asJson = arguments.has(QStringLiteral("json"));
    const bool isProject =
        QFileInfo(path).isDir() || path.endsWith(QLatin1String(".vellum"), Qt::CaseInsensitive);
    return isProject ? checkProject(path, asJson, console) : checkText(path, asJson, console);
}

} // namespace vl::cli
