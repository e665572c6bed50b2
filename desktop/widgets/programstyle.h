#pragma once

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

namespace vl::desktop {

/// The look of all controls: the toolkit's "Fusion" with a plain ring round what has the focus.
class ProgramStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    ProgramStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    /// The boxes and fields of the toolkit take their pictures from the program's own family.
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                       const QWidget *widget) const override;

private:
    void drawSliderOutlines(const QStyleOptionComplex &option, QPainter *painter,
                            const QWidget *widget) const;
    void drawMenuTitle(QStyleOptionMenuItem entry, QPainter *painter, const QWidget *widget) const;
    void drawMenuItem(QStyleOptionMenuItem entry, QPainter *painter, const QWidget *widget) const;
};

} // namespace vl::desktop
