#pragma once

#include "tests/support/folders.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vl::test {

/// What a run of a program gave.
struct Outcome
{
    int status = -1; ///< -1 when it did not come to an end by itself
    QByteArray output;
    QString messages; ///< standard error, without the white space around it
};

/// Runs the command-line program to its end.
Outcome runCli(const QString &program, const QStringList &arguments, const QByteArray &input = {},
               const QString &workingFolder = {});

/// Writes a file, making its folder; false when that failed.
bool writeTestFile(const QString &path, const QByteArray &bytes);

} // namespace vl::test
