#include "widgets/theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cmath>

namespace orbelle::widgets {
namespace {

constexpr Theme kLight{
    .Ground = QColor(244, 245, 247),
    .Field = QColor(255, 255, 255),
    .Line = QColor(134, 140, 148),
    .Text = QColor(34, 38, 43),
    .Note = QColor(84, 91, 99),
    .Accent = QColor(26, 111, 212),
};
constexpr Theme kDark{
    .Ground = QColor(43, 45, 49),
    .Field = QColor(31, 33, 36),
    .Line = QColor(122, 128, 137),
    .Text = QColor(230, 232, 235),
    .Note = QColor(178, 184, 192),
    .Accent = QColor(90, 162, 245),
};

Shade& ShadeInUse() {
    static Shade shade = Shade::Light;
    return shade;
}

bool& MotionInUse() {
    static bool isWanted = true;
    return isWanted;
}

// `share` of the second, 0 to 1.
QColor Mixed(const QColor& first, const QColor& second, double share) {
    const auto mix = [share](int from, int to) {
        return static_cast<int>(from + (to - from) * share + 0.5);
    };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

}  // namespace

const Theme& ThemeOf(Shade shade) {
    return shade == Shade::Dark ? kDark : kLight;
}

const Theme& CurrentTheme() {
    return ThemeOf(ShadeInUse());
}

Shade CurrentShade() {
    return ShadeInUse();
}

void SetShade(Shade shade) {
    ShadeInUse() = shade;
}

QColor BandColor() {
    return Mixed(CurrentTheme().Ground, CurrentTheme().Line, 0.12);
}

QColor HairlineColor() {
    return Mixed(CurrentTheme().Ground, CurrentTheme().Line, 0.3);
}

QColor HoverColor() {
    return Mixed(CurrentTheme().Ground, CurrentTheme().Accent, 0.1);
}

QColor PressedColor() {
    return Mixed(CurrentTheme().Ground, CurrentTheme().Accent, 0.18);
}

QColor DisabledColor() {
    return Mixed(CurrentTheme().Ground, CurrentTheme().Note, 0.5);
}

QColor SceneColor() {
    return CurrentShade() == Shade::Dark ? QColor(56, 59, 64) : QColor(74, 77, 82);
}

Theme SceneTheme() {
    const QColor scene = SceneColor();
    return {
        .Ground = scene,
        .Field = Mixed(scene, kDark.Text, 0.07),
        .Line = QColor(157, 162, 169),
        .Text = QColor(240, 242, 244),
        .Note = QColor(203, 207, 213),
        .Accent = kDark.Accent,
    };
}

QColor SceneHoverColor() {
    return Mixed(SceneColor(), kDark.Text, 0.13);
}

QColor ScenePressedColor() {
    return Mixed(SceneColor(), kDark.Text, 0.18);
}

bool IsMotionWanted() {
    return MotionInUse() &&
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

void SetMotionWanted(bool isWanted) {
    MotionInUse() = isWanted;
}

double TextScale() {
    constexpr double kUsual = kNormalText;
    const double points = QApplication::font().pointSizeF();
    return points > 0 ? points / kUsual : 1;
}

int HeightFor(int least, double points) {
    constexpr int kAround = 6;
    return std::max(least, QFontMetrics(ChromeFont(points)).height() + kAround);
}

int WidthFor(int usual) {
    return static_cast<int>(std::ceil(usual * std::max(TextScale(), 1.0)));
}

QFont ChromeFont(double points) {
    QFont font(QStringList{"Verdana", "DejaVu Sans"});
    font.setPointSizeF(points * TextScale());
    return font;
}

void DrawChecker(QPainter& painter, const QRect& place, const QColor& color) {
    constexpr int kCell = 5;
    for (int y = 0; y < place.height(); y += kCell)
        for (int x = y % (2 * kCell); x < place.width(); x += 2 * kCell)
            painter.fillRect(QRect(place.x() + x, place.y() + y, kCell, kCell) & place, color);
}

QBrush GreyChecks() {
    static const QImage tile = [] {
        QImage checks(10, 10, QImage::Format_RGB32);
        checks.fill(QColor(172, 175, 180));
        QPainter painter(&checks);
        DrawChecker(painter, checks.rect(), QColor(148, 151, 156));
        return checks;
    }();
    return QBrush(tile);
}

void DrawChevron(QPainter& painter, const QPointF& middle) {
    const QPointF chevron[] = {middle + QPointF(-4, -2), middle + QPointF(0, 2),
                               middle + QPointF(4, -2)};
    painter.drawPolyline(chevron, 3);
}

void DrawFace(QPainter& painter, const QRectF& place, bool isDown) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isDown ? QPen(CurrentTheme().Accent, 1) : QPen(Qt::NoPen));
    painter.setBrush(isDown ? PressedColor() : HoverColor());
    const double inset = isDown ? 0.5 : 0;
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), kCornerRadius,
                            kCornerRadius);
    painter.restore();
}

void DrawGroove(QPainter& painter, int left, int right, int height, double litFrom, double litTo) {
    constexpr int kThickness = 4;
    QRectF groove(left, (height - kThickness) / 2, right - left, kThickness);
    painter.setPen(Qt::NoPen);
    painter.setBrush(HairlineColor());
    painter.drawRoundedRect(groove, kThickness / 2, kThickness / 2);
    groove.setLeft(litFrom);
    groove.setRight(litTo);
    painter.setBrush(CurrentTheme().Accent);
    painter.drawRoundedRect(groove, kThickness / 2, kThickness / 2);
}

}  // namespace orbelle::widgets
