#pragma once

#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace vl::app {

/// Merges the lines of three files as bytes, so that no encoding is read into them.
struct FileMerge
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::FileMerge)

public:
    QByteArray bytes;  ///< the merged text, with markers around conflicts
    int conflicts = 0; ///< hunks that both sides changed differently
    QString problem;   ///< why a text without conflicts cannot be used as it is; mostly empty

    /// Whether somebody must look at the result before it is used.
    bool needsCare() const { return conflicts > 0 || !problem.isEmpty(); }

    /// Merges the files. `path` is the merged file's own name: when it ends in ".json" a clean
    /// result that is no JSON document is a problem. Fails when a file cannot be read, or when
    /// files that hold a NUL among their first 8000 bytes, which are no text, were changed on both
    /// sides.
    static Result<FileMerge> merge(const QString &base, const QString &local, const QString &remote,
                                   const QString &path);
};

} // namespace vl::app
