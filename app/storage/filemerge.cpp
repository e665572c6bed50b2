#include "app/storage/filemerge.h"

#include "app/base/files.h"
#include "app/storage/linemerge.h"
#include "app/storage/reconcile.h"

#include <array>

namespace vl::app {

Result<FileMerge> FileMerge::merge(const QString &base, const QString &local, const QString &remote,
                                   const QString &path)
{
    constexpr qsizetype looked = 8000; // bytes, as many as version control looks at
    std::array<QByteArray, 3> contents;
    bool isText = true;
    for (size_t i = 0; const QString &name : {base, local, remote}) {
        const Result<QByteArray> bytes = readRegularFile(name, tr("Cannot read file: %1"));
        if (!bytes)
            return bytes.asFailure();
        contents[i] = *bytes;
        isText = isText && !contents[i].left(looked).contains('\0');
        ++i;
    }
    const bool changedByBoth =
        contents[0] != contents[1] && contents[0] != contents[2] && contents[1] != contents[2];
    if (!isText && changedByBoth)
        return failure(withPath(tr("Not a text file, so it cannot be merged: %1"), path));

    MergedText<QByteArray> merged =
        mergeLines(QByteArrayView(contents[0]), contents[1], contents[2]);
    FileMerge result;
    result.bytes = std::move(merged.text);
    result.conflicts = merged.conflicts;
    if (merged.conflicts == 0 && !Reconcile::isValidFor(path, result.bytes))
        result.problem = Reconcile::invalidMessage(path);
    return result;
}

} // namespace vl::app
