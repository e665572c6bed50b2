#pragma once

#include "core/content/wholeobject.h"

#include <QtCore/QList>

namespace vl::core {

struct StatBlockStat
{
    QString label;
    QString value;

    bool operator==(const StatBlockStat &) const = default;
};

struct StatBlockAction
{
    QString name;
    QString text;

    bool operator==(const StatBlockAction &) const = default;
};

struct StatBlockData
{
    QString title;
    QString system;
    QString notes;
    QList<StatBlockStat> stats;
    QList<StatBlockAction> actions;

    bool operator==(const StatBlockData &) const = default;
};

/// The figures of a creature or a character in a game.
using StatBlock = WholeObject<StatBlockData, ContentKind::StatBlock>;

} // namespace vl::core
