#include "widgets/theme_style.h"

#include <QPainter>
#include <QStyleOption>

#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr int kIndicator = 16;  // a check box's side, logical pixels
constexpr double kLineWidth = 1, kFocusWidth = 2;

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state & flag;
}

// A rounded rectangle whose edge lies within `place`.
void DrawBox(QPainter& painter, const QRect& place, const QColor& fill, const QColor& line,
             double width) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, width));
    painter.setBrush(fill);
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(place).adjusted(inset, inset, -inset, -inset), kCornerRadius,
                            kCornerRadius);
    painter.restore();
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isUsual = button && (button->features & QStyleOptionButton::DefaultButton);
    const bool isEnabled = Has(option, QStyle::State_Enabled);
    const bool isDown = Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On);
    const bool isBelowPointer = isEnabled && Has(option, QStyle::State_MouseOver);
    const bool hasFocus = Has(option, QStyle::State_HasFocus);
    const QColor line = !isEnabled            ? HairlineColor()
                        : isUsual || hasFocus ? CurrentTheme().Accent
                                              : CurrentTheme().Line;
    DrawBox(painter, option.rect,
            isDown           ? PressedColor()
            : isBelowPointer ? HoverColor()
            : isEnabled      ? CurrentTheme().Field
                             : CurrentTheme().Ground,
            line, hasFocus ? kFocusWidth : kLineWidth);
}

void DrawField(QPainter& painter, const QStyleOption& option) {
    const bool hasFocus = Has(option, QStyle::State_HasFocus);
    DrawBox(painter, option.rect, CurrentTheme().Field,
            hasFocus                             ? CurrentTheme().Accent
            : Has(option, QStyle::State_Enabled) ? CurrentTheme().Line
                                                 : HairlineColor(),
            hasFocus ? kFocusWidth : kLineWidth);
}

void DrawIndicator(QPainter& painter, const QStyleOption& option) {
    const bool isOn = Has(option, QStyle::State_On);
    const bool isEnabled = Has(option, QStyle::State_Enabled);
    const QColor line = !isEnabled                                    ? HairlineColor()
                        : isOn || Has(option, QStyle::State_HasFocus) ? CurrentTheme().Accent
                                                                      : CurrentTheme().Line;
    DrawBox(painter, option.rect,
            isOn && isEnabled                      ? CurrentTheme().Accent
            : Has(option, QStyle::State_MouseOver) ? HoverColor()
                                                   : CurrentTheme().Field,
            line, kLineWidth);
    if (!isOn)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled ? CurrentTheme().Field : DisabledColor(), 2, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF corner = option.rect.topLeft();
    const double unit = option.rect.width() / 16.0;
    const QPointF tick[] = {corner + QPointF(4, 8.5) * unit, corner + QPointF(7, 11.5) * unit,
                            corner + QPointF(12, 5) * unit};
    painter.drawPolyline(tick, 3);
    painter.restore();
}

void DrawFocus(QPainter& painter, const QRect& place) {
    DrawBox(painter, place, Qt::transparent, CurrentTheme().Accent, kLineWidth);
}

}  // namespace

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand:
            return DrawButton(*painter, *option);
        case PE_PanelButtonTool:
            if (Has(*option, State_Sunken) || Has(*option, State_On) ||
                (Has(*option, State_MouseOver) && Has(*option, State_Enabled)))
                DrawFace(*painter, option->rect,
                         Has(*option, State_Sunken) || Has(*option, State_On));
            return;
        case PE_PanelLineEdit:
            if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
                frame && frame->lineWidth > 0)
                return DrawField(*painter, *option);
            break;
        case PE_FrameLineEdit:
            return;  // drawn with the panel
        case PE_IndicatorCheckBox:
            return DrawIndicator(*painter, *option);
        case PE_FrameFocusRect:
            return DrawFocus(*painter, option->rect);
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return kIndicator;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (type == CT_PushButton)
        return (size + QSize(kSpace, 0)).expandedTo({0, kControlHeight});
    const bool isField = type == CT_LineEdit && frame && frame->lineWidth > 0;
    return isField ? size.expandedTo({0, kControlHeight}) : size;
}

QRect ThemeStyle::subElementRect(SubElement element, const QStyleOption* option,
                                 const QWidget* widget) const {
    const QRect place = QProxyStyle::subElementRect(element, option, widget);
    // Text stands clear of a field's frame; fields within other controls have none.
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool isField = element == SE_LineEditContents && frame && frame->lineWidth > 0;
    return isField ? place.adjusted(kSpace - 2, 0, 2 - kSpace, 0) : place;
}

}  // namespace orbelle::widgets
