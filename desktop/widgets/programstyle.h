#pragma once

#include <QtWidgets/QProxyStyle>

namespace vl::desktop {

/// The look of all controls: the toolkit's "Fusion" with a plain ring round what has the focus.
class ProgramStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    ProgramStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
};

} // namespace vl::desktop
