// The toolkit's own controls in the looks of theme.h.
#pragma once

#include <QProxyStyle>

namespace orbelle::widgets {

class ThemeStyle : public QProxyStyle {
public:
    ThemeStyle() : QProxyStyle("Fusion") {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
};

}  // namespace orbelle::widgets
