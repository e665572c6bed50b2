#pragma once

#include "core/content/wholeobject.h"

#include <QtCore/QList>

namespace vl::core {

struct RandomTableEntry
{
    QString text;
    qint32 weight = 1; ///< how often it comes up against the others

    bool operator==(const RandomTableEntry &) const = default;
};

struct RandomTableData
{
    QString title;
    QList<RandomTableEntry> entries;

    bool operator==(const RandomTableData &) const = default;
};

/// A table to roll on.
using RandomTable = WholeObject<RandomTableData, ContentKind::RandomTable>;

} // namespace vl::core
