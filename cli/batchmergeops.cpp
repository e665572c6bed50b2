#include "cli/batchops.h"

#include "app/storage/linemerge.h"
#include "app/storage/reconcile.h"

namespace vl::cli {

namespace {

using app::Reconcile;
using app::ReconcileEntry;
using app::ReconcileState;

app::Result<QJsonValue> mergeText(BatchMembers &request)
{
    const QString base = request.text("base");
    const QString local = request.text("local");
    const QString remote = request.text("remote");
    if (request.hasFailed())
        return request.failure();
    const app::MergedText<QString> merged = app::mergeLines(base, local, remote);
    return QJsonValue(QJsonObject{{QStringLiteral("text"), merged.text},
                                  {QStringLiteral("conflict"), merged.conflicts > 0}});
}

Reconcile::Files readFiles(BatchMembers &request, const char *name)
{
    const QJsonObject given = request.object(name);
    Reconcile::Files files;
    for (auto file = given.constBegin(); file != given.constEnd(); ++file) {
        if (!file->isString())
            request.refuse(
                BatchMembers::tr("The texts in \"%1\" must be strings.").arg(QLatin1String(name)));
        files.emplace(file.key(), file->toString());
    }
    return files;
}

app::Result<QJsonValue> mergeProject(BatchMembers &request)
{
    const Reconcile::Files base = readFiles(request, "base");
    const Reconcile::Files local = readFiles(request, "local");
    const Reconcile::Files remote = readFiles(request, "remote");
    if (request.hasFailed())
        return request.failure();
    QJsonArray list;
    for (const ReconcileEntry &entry : Reconcile::build(base, local, remote)) {
        const bool isOpen = app::isConflict(entry.state) || !entry.result;
        list.append(QJsonObject{
            {QStringLiteral("path"), entry.path},
            {QStringLiteral("state"), int(entry.state)},
            {QStringLiteral("result"), isOpen ? QJsonValue() : QJsonValue(*entry.result)},
            {QStringLiteral("conflictText"), entry.conflictText}});
    }
    return QJsonValue(list);
}

app::Result<QJsonValue> applyMerge(BatchMembers &request)
{
    const QJsonArray list = request.array("entries");
    std::vector<ReconcileEntry> entries;
    for (qsizetype i = 0; i < list.size() && !request.hasFailed(); ++i) {
        BatchMembers each = request.element("entries", list, i);
        ReconcileEntry entry;
        entry.path = each.text("path");
        entry.state = ReconcileState(each.integer("state", int(ReconcileState::Unchanged),
                                                  int(ReconcileState::ConflictDeleted)));
        entry.result = each.textOrNull("result");
        entry.conflictText = each.optionalText("conflictText");
        if (!entry.result && !app::isConflict(entry.state) && !app::isDeletion(entry.state))
            each.refuse(BatchMembers::tr("The entry \"%1\" has no result.").arg(entry.path));
        entries.push_back(std::move(entry));
    }
    if (request.hasFailed())
        return request.failure();
    const app::Result<app::ReconcileChanges> changes = Reconcile::apply(entries);
    if (!changes)
        return QJsonValue(QJsonObject{{QStringLiteral("error"), changes.message()}});
    QJsonObject write;
    for (const auto &[path, text] : changes->write)
        write.insert(path, text);
    return QJsonValue(
        QJsonObject{{QStringLiteral("write"), write},
                    {QStringLiteral("delete"), QJsonArray::fromStringList(changes->remove)}});
}

const BatchOp rows[] = {
    {"merge.text", mergeText},
    {"merge.project", mergeProject},
    {"merge.apply", applyMerge},
};

} // namespace

std::span<const BatchOp> batchMergeOps()
{
    return rows;
}

} // namespace vl::cli
