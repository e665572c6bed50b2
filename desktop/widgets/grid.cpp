#include "desktop/widgets/grid.h"

#include <QtCore/QVariant>
#include <QtGui/QFont>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>

namespace vl::desktop {

namespace {

constexpr int stepPixels = 4;
constexpr double smallest = 0.5;
constexpr double largest = 3.0;
constexpr double largestShare = 0.9;
// Kept by the application, which the scale belongs to and ends with.
constexpr const char *scaleProperty = "ivorelFontScale";
constexpr const char *sizeProperty = "ivorelSystemFontSize";

} // namespace

double fontScale()
{
    const QVariant kept = qApp ? qApp->property(scaleProperty) : QVariant();
    return kept.isValid() ? kept.toDouble() : 1.0;
}

int grid(int steps)
{
    return qRound(stepPixels * steps * fontScale());
}

void sizeDialog(QWidget *dialog, int stepsWide, int stepsHigh)
{
    dialog->resize(QSize(grid(stepsWide), grid(stepsHigh))
                       .boundedTo(dialog->screen()->availableSize() * largestShare));
}

void applyFontScale(double scale)
{
    const double wanted = std::isfinite(scale) ? std::clamp(scale, smallest, largest) : 1.0;
    QFont font = QApplication::font();
    const bool isInPoints = font.pointSizeF() > 0;
    QVariant system = qApp->property(sizeProperty);
    if (!system.isValid()) {
        system = isInPoints ? font.pointSizeF() : double(font.pixelSize());
        qApp->setProperty(sizeProperty, system);
    }
    qApp->setProperty(scaleProperty, wanted);
    if (isInPoints)
        font.setPointSizeF(system.toDouble() * wanted);
    else
        font.setPixelSize(qMax(1, qRound(system.toDouble() * wanted)));
    if (font != QApplication::font())
        QApplication::setFont(font);
}

} // namespace vl::desktop
