// What is shown, measured as it is painted (WCAG 2.1: 1.4.3 for words, 1.4.11 for edges and marks).
#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <set>

#include "app/color_well.h"
#include "app/looks.h"
#include "drawn_text.h"
#include "filters/outline_contrast.h"
#include "widgets/button_bar.h"
#include "widgets/layer_list.h"
#include "widgets/layer_list_metrics.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/size_strip.h"
#include "widgets/track_slider.h"
#include "widgets/value_field.h"
#include "window_states.h"

namespace orbelle::app {
namespace {

using testing::DrawnText;

constexpr double kOfWords = 4.5, kOfMarks = 3;
constexpr int kScale = 3;  // so that thin lines have whole pixels of their colour
constexpr int kEdge = 2;   // within a control's border, logical pixels
constexpr int kAround = 2;

// What is shown, to be asked for its colours in logical pixels.
class Picture {
public:
    explicit Picture(QWidget& shown)
        : image_(shown.size() * kScale, QImage::Format_RGB32), shown_(shown) {
        image_.setDevicePixelRatio(kScale);
        shown.render(&image_);
    }

    QRect PlaceOf(const QWidget& control, const QRectF& place) const {
        const QPointF corner = control.mapTo(&shown_, QPoint());
        const QRectF moved = place.translated(corner);
        return QRectF(moved.topLeft() * kScale, moved.size() * kScale).toAlignedRect() &
               image_.rect();
    }
    std::map<QRgb, int> ColorsIn(const QRect& place, const QRect& without = {}) const {
        std::map<QRgb, int> colors;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                if (!without.contains(x, y))
                    ++colors[image_.pixel(x, y)];
        return colors;
    }

private:
    QImage image_;
    QWidget& shown_;
};

QRgb MostFrequent(const std::map<QRgb, int>& colors) {
    return std::ranges::max_element(colors, {}, [](const auto& color) { return color.second; })
        ->first;
}

// Of the colours that are there more than by chance.
double BestContrast(const std::map<QRgb, int>& colors, QRgb ground) {
    constexpr int kLeast = 2 * kScale;
    double best = 1;
    for (const auto& [color, count] : colors)
        if (count >= kLeast)
            best = std::max(best, filters::ContrastRatio(color, ground));
    return best;
}

// What words of that colour stand on; of a gradient the colours that are there most.
QRgb GroundOf(const std::map<QRgb, int>& colors, QRgb words) {
    constexpr QRgb kAlike = 0xFFF8F8F8;
    std::map<QRgb, int> alike;
    for (const auto& [color, count] : colors)
        if (color != words)
            alike[color & kAlike] += count;
    if (alike.empty())
        return words;
    std::map<QRgb, int> ground;
    for (const auto& [color, count] : colors)
        if ((color & kAlike) == MostFrequent(alike))
            ground[color] = count;
    return MostFrequent(ground);
}

QColor Over(const QColor& color, QRgb ground) {
    const float share = color.alphaF();
    const auto mix = [share](int above, int below) {
        return static_cast<int>(share * static_cast<float>(above) +
                                (1 - share) * static_cast<float>(below));
    };
    return {mix(color.red(), qRed(ground)), mix(color.green(), qGreen(ground)),
            mix(color.blue(), qBlue(ground))};
}

// Also of a part of a control: an entry of a menu, a button of a bar.
bool IsDisabledAt(QWidget& control, const QPointF& place) {
    if (!control.isEnabled())
        return true;
    const QPoint at = control.mapToGlobal(place.toPoint());
    for (QWidget* widget = &control; widget; widget = widget->parentWidget()) {
        QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(widget);
        if (!whole)
            continue;
        const QAccessibleInterface* part = whole->childAt(at.x(), at.y());
        if (part && part->state().disabled)
            return true;
        if (!qobject_cast<QAbstractScrollArea*>(widget->parentWidget()))
            return false;
    }
    return false;
}

// A place in a control that tells something by a line or drawing.
struct Mark {
    QRect Place;
    bool IsEdge = false;  // it is seen against what lies around the control
};

std::vector<Mark> MarksOf(QWidget& control) {
    const QRect whole = control.rect();
    const auto* button = qobject_cast<QPushButton*>(&control);
    if ((button && !button->isFlat()) || qobject_cast<QComboBox*>(&control) ||
        qobject_cast<ColorWell*>(&control) || qobject_cast<widgets::NumberSlider*>(&control))
        return {{whole, true}};
    if (auto* field = qobject_cast<QLineEdit*>(&control);
        field && (field->hasFrame() || qobject_cast<widgets::ValueField*>(field)))
        return {{whole, true}};
    if (qobject_cast<QToolButton*>(&control) || qobject_cast<widgets::TrackSlider*>(&control))
        return {{whole}};
    if (qobject_cast<widgets::PanelHeader*>(&control))
        return {{QRect(0, 0, control.height(), control.height())}};
    if (auto* box = qobject_cast<QCheckBox*>(&control)) {
        QStyleOptionButton option;
        option.initFrom(box);
        return {{box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box)}};
    }
    if (auto* scroller = qobject_cast<QScrollBar*>(&control);
        scroller && scroller->maximum() > scroller->minimum())
        return {{whole}};
    std::vector<Mark> marks;
    if (auto* bar = qobject_cast<widgets::ButtonBar*>(&control))
        for (int part = 0; part < bar->PartCount(); ++part)
            if (!bar->PartState(part).disabled)
                marks.push_back({bar->PartPlace(part)});
    if (auto* list = qobject_cast<widgets::LayerList*>(control.parentWidget());
        list && list->viewport() == &control)
        for (int part = 0; part < list->PartCount(); ++part) {
            QRect eye = list->PartPlace(part);
            eye.setLeft(eye.right() + 1 - widgets::kLayerEyeWidth);
            marks.push_back({eye});
        }
    if (auto* strip = qobject_cast<widgets::SizeStrip*>(&control))
        for (int part = 0; part < strip->PartCount(); ++part)
            if (strip->PartState(part).selected)
                marks.push_back({strip->PartPlace(part)});
    return marks;
}

class Measurement {
public:
    Measurement(const QString& state, QWidget& shown) : state_(state), picture_(shown) {
        Measure(shown);
        for (QWidget* control : shown.findChildren<QWidget*>())
            if (control->isVisible() && control->window() == &shown &&
                !control->visibleRegion().isEmpty())
                Measure(*control);
    }

    // Each fault once, whatever the states in which it is seen.
    static void Forget() { Told().clear(); }

private:
    void Measure(QWidget& control) {
        const QRect seen = control.visibleRegion().boundingRect();
        for (const DrawnText& text : testing::TextsOf(control))
            if (!(text.Place & seen).isEmpty() && !IsDisabledAt(control, text.Place.center()))
                MeasureText(control, text);
        if (!control.isEnabled())
            return;
        for (const Mark& mark : MarksOf(control))
            if (seen.contains(mark.Place))
                MeasureMark(control, mark);
    }
    void MeasureText(const QWidget& control, const DrawnText& text) {
        const auto colors = picture_.ColorsIn(picture_.PlaceOf(control, text.Place));
        if (colors.empty())
            return;
        const QRgb ground = GroundOf(colors, text.Color.rgb());
        const QColor color = Over(text.Color, ground);
        const double contrast = filters::ContrastRatio(color.rgb(), ground);
        Tell(contrast >= kOfWords, control, '"' + text.Text + '"', color, ground, contrast);
    }
    void MeasureMark(const QWidget& control, const Mark& mark) {
        const QRect place = picture_.PlaceOf(control, mark.Place);
        const QRect inside =
            place.adjusted(kEdge * kScale, kEdge * kScale, -kEdge * kScale, -kEdge * kScale);
        const QRect around = place.adjusted(-kAround * kScale, -kAround * kScale, kAround * kScale,
                                            kAround * kScale);
        const auto colors = picture_.ColorsIn(place, mark.IsEdge ? inside : QRect());
        const QRgb ground = MostFrequent(mark.IsEdge ? picture_.ColorsIn(around, place) : colors);
        const double contrast = BestContrast(colors, ground);
        Tell(contrast >= kOfMarks, control, mark.IsEdge ? "edge" : "mark", {}, ground, contrast);
    }
    void Tell(bool holds, const QWidget& control, const QString& what, const QColor& color,
              QRgb ground, double contrast) {
        const QString fault = QString("%1 %2: %3")
                                  .arg(control.metaObject()->className())
                                  .arg(control.objectName(), what);
        if (!holds && Told().insert(fault).second)
            ADD_FAILURE() << state_.toStdString() << ": " << fault.toStdString() << ' '
                          << color.name().toStdString() << " on "
                          << QColor(ground).name().toStdString() << ' ' << contrast;
    }
    static std::set<QString>& Told() {
        static std::set<QString> told;
        return told;
    }

    QString state_;
    Picture picture_;
};

class ContrastTest : public ::testing::TestWithParam<Looks> {
protected:
    ContrastTest() { ApplyLooks(GetParam()); }
    ~ContrastTest() override { ApplyLooks(Looks::Light); }
};

TEST_P(ContrastTest, WordsAndMarksAreSeenWellInAllStates) {
    Measurement::Forget();
    ForEachWindowState(ORBELLE_SAMPLES, [](const QString& name, QWidget& shown) {
        const Measurement measurement(name, shown);
    });
}

INSTANTIATE_TEST_SUITE_P(Looks, ContrastTest, ::testing::Values(Looks::Light, Looks::Dark),
                         [](const auto& looks) {
                             return looks.param == Looks::Light ? "Light" : "Dark";
                         });

}  // namespace
}  // namespace orbelle::app
