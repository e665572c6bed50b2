#pragma once

#include "cli/batchmembers.h"

#include <QtCore/QJsonValue>

#include <span>

namespace vl::cli {

/// One operation of the batch pipe: a row of its catalogue.
struct BatchOp
{
    const char *name;
    /// Reads the members, does the work and gives the result, or why there is none.
    app::Result<QJsonValue> (*run)(BatchMembers &request);
};

std::span<const BatchOp> batchOps();

// The operations by what they work on; each group in a file of its own.
std::span<const BatchOp> batchTextOps();
std::span<const BatchOp> batchCalendarOps();
std::span<const BatchOp> batchMergeOps();
std::span<const BatchOp> batchProjectOps();

/// The reply to one line of the pipe, without a line feed. Any bytes get one: what is no request is
/// told so.
QByteArray batchReply(QByteArrayView line);
/// The same where there are only these operations.
QByteArray batchReply(QByteArrayView line, std::span<const BatchOp> ops);

/// What the reply to a line of too many bytes is.
QByteArray batchReplyToLongLine();

} // namespace vl::cli
