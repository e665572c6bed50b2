#include "cli/stylejson.h"

#include <QtCore/QJsonObject>

namespace vl::cli {

QJsonArray toJson(const QList<app::StyleIssue> &issues)
{
    QJsonArray list;
    for (const app::StyleIssue &issue : issues)
        list.append(QJsonObject{{QStringLiteral("start"), issue.start},
                                {QStringLiteral("length"), issue.length},
                                {QStringLiteral("kind"), issue.kind},
                                {QStringLiteral("message"), issue.message},
                                {QStringLiteral("suggestion"), issue.suggestion}});
    return list;
}

} // namespace vl::cli
