#pragma once

#include "app/text/stylerules.h"

#include <QtCore/QJsonArray>

namespace vl::cli {

/// The findings as scripts read them: start, length, kind, message and suggestion.
QJsonArray toJson(const QList<app::StyleIssue> &issues);

} // namespace vl::cli
