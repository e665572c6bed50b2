#include "cli/batchops.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <vector>

namespace vl::cli {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::Batch)
};

QByteArray toLine(const QJsonObject &reply)
{
    return QJsonDocument(reply).toJson(QJsonDocument::Compact);
}

QJsonObject errorReply(const QString &message)
{
    return {{QStringLiteral("error"), message}};
}

app::Result<QJsonValue> runRequest(const QJsonObject &request, std::span<const BatchOp> ops)
{
    BatchMembers members(request);
    const QString op = members.text("op");
    if (members.hasFailed())
        return members.failure();
    const auto found = std::find_if(ops.begin(), ops.end(), [&op](const BatchOp &row) {
        return op == QLatin1String(row.name);
    });
    if (found == ops.end())
        return app::failure(Texts::tr("Unknown op: %1").arg(op));
    return found->run(members);
}

} // namespace

std::span<const BatchOp> batchOps()
{
    static const std::vector<BatchOp> ops = [] {
        std::vector<BatchOp> all;
        for (const auto &group :
             {batchTextOps(), batchCalendarOps(), batchMergeOps(), batchProjectOps()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return ops;
}

QByteArray batchReply(QByteArrayView line)
{
    return batchReply(line, batchOps());
}

QByteArray batchReply(QByteArrayView line, std::span<const BatchOp> ops)
{
    QJsonParseError error;
    // The line is read in place; nothing of it is kept beyond the reply.
    const QByteArray bytes = QByteArray::fromRawData(line.data(), line.size());
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (!document.isObject())
        return toLine(errorReply(Texts::tr("The line is not a JSON object.")));
    const QJsonObject request = document.object();
    const app::Result<QJsonValue> result = runRequest(request, ops);
    QJsonObject reply =
        result ? QJsonObject{{QStringLiteral("result"), *result}} : errorReply(result.message());
    if (const auto id = request.constFind(QLatin1String("id")); id != request.constEnd())
        reply.insert(QLatin1String("id"), *id);
    return toLine(reply);
}

QByteArray batchReplyToLongLine()
{
    return toLine(errorReply(Texts::tr("The line is too long.")));
}

} // namespace vl::cli
