#pragma once

#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vl::cli {

class Console;

/// Reads a file, or standard input when the path is "-" or empty. Fails with the storage layer's
/// message.
app::Result<QByteArray> readInput(const QString &path);

/// The same as text: UTF-8 with or without a byte-order mark, bytes that are none as U+FFFD.
app::Result<QString> readInputText(const QString &path);

/// Replaces a file as a whole, or writes to standard output when the path is "-".
app::Result<> writeOutput(const QString &path, const QByteArray &bytes, Console &console);

} // namespace vl::cli
