#pragma once

#include "core/content/wholeobject.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace vl::core {

/// One line, bar or slice of a chart; its values stand in the order of the chart's categories.
struct ChartSeries
{
    QString name;
    QList<double> values;

    bool operator==(const ChartSeries &) const = default;
};

struct ChartData
{
    QString title;
    QString kind;
    QStringList categories;
    QList<ChartSeries> series;
    QString valueAxisTitle;
    QString categoryAxisTitle;

    bool operator==(const ChartData &) const = default;
};

/// Figures drawn as a picture.
using Chart = WholeObject<ChartData, ContentKind::Chart>;

} // namespace vl::core
