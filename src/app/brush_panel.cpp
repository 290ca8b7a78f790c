#include "app/brush_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "editing/tool_palette.h"
#include "widgets/theme.h"
#include "widgets/track_slider.h"
#include "widgets/value_field.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kUsualWidth = 236;
constexpr int kSlideStep = 10;         // pixels a tick
constexpr int kSlideMilliseconds = 8;  // a tick
constexpr int kBlinkMilliseconds = 250;
constexpr int kBlinkTicks = 6;
constexpr int kEdgeGap = 8;

}  // namespace

BrushPanel::BrushPanel(CommandRunner& commands, QWidget* parent) : QWidget(parent) {
    setObjectName("BrushPanel");
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(widgets::kWideSpace, widgets::kSpace, widgets::kWideSpace,
                             widgets::kSpace);
    rows->setHorizontalSpacing(widgets::kSpace);
    rows->setVerticalSpacing(widgets::kTightSpace);
    size_ = AddOption(commands, Words::tr("Brush size"), "BrushSize", &editing::Sliders::BrushSize,
                      editing::ChangeBrushSize, {});
    opacity_ = AddOption(commands, Words::tr("Brush opacity"), "BrushOpacity",
                         &editing::Sliders::BrushOpacity, editing::ChangeBrushOpacity, "%");
    opacity_.Slider->SetNeutral(editing::Sliders().BrushOpacity.Neutral);
    slide_.setInterval(kSlideMilliseconds);
    blink_.setInterval(kBlinkMilliseconds);
    connect(&slide_, &QTimer::timeout, this, &BrushPanel::StepSlide);
    connect(&blink_, &QTimer::timeout, this, &BrushPanel::StepBlink);
    hide();
}

BrushPanel::Option BrushPanel::AddOption(CommandRunner& commands, const QString& caption,
                                         const char* name, editing::Slider editing::Sliders::*state,
                                         void (*change)(editing::Editor&, int),
                                         const QString& unit) {
    const editing::Slider range = editing::Sliders().*state;
    auto* slider = new widgets::TrackSlider;
    slider->setRange(range.Minimum, range.Maximum);
    slider->setObjectName(name);
    slider->setAccessibleName(caption);
    auto* value = new widgets::ValueField(*slider, 0, unit);
    value->setObjectName(QString(name) + "Value");
    value->setAccessibleName(Words::tr("%1 value").arg(caption));
    auto* rows = static_cast<QGridLayout*>(layout());
    const int row = rows->rowCount();
    rows->addWidget(new QLabel(caption), row, 0);
    rows->addWidget(slider, row, 1);
    rows->addWidget(value, row, 2);
    connect(slider, &widgets::TrackSlider::Changed, this, [&commands, change](int to) {
        commands.Run([=](editing::Editor& editor) { change(editor, to); });
    });
    connect(value, &widgets::ValueField::Finished, this, &BrushPanel::KeysFree);
    return {slider, value};
}

void BrushPanel::Option::Show(int value) const {
    Slider->SetValue(value);
    Value->Show(value);
}

void BrushPanel::ShowStates(const editing::Sliders& sliders) {
    size_.Show(sliders.BrushSize.Value);
    opacity_.Show(sliders.BrushOpacity.Value);
    opacity_.Slider->SetGroove(widgets::TrackSlider::Groove::Opacity, widgets::CurrentTheme().Note);
}

void BrushPanel::CommitTyping() {
    size_.Value->CommitTyping();
    opacity_.Value->CommitTyping();
}

void BrushPanel::Place() {
    const QSize room = parentWidget()->size();
    const int top = open_ && !slide_.isActive() ? 0 : std::min(y(), room.height());
    const int width = widgets::WidthFor(kUsualWidth);
    const int left = isRightToLeft() ? 0 : room.width() - width;
    setGeometry(left, isHidden() ? room.height() : top, width, room.height());
}

void BrushPanel::Slide(bool open) {
    if (isHidden())
        Place();
    open_ = open;
    show();
    raise();
    slide_.start();
}

void BrushPanel::StepSlide() {
    const int below = parentWidget()->height();
    const int top = open_ ? std::max(y() - kSlideStep, 0) : std::min(y() + kSlideStep, below);
    move(x(), top);
    if (open_ && top == 0) {
        slide_.stop();
        blinks_ = 0;
        blink_.start();
    } else if (!open_ && top == below) {
        slide_.stop();
        hide();
    }
}

void BrushPanel::StepBlink() {
    frame_ = !frame_;
    if (++blinks_ >= kBlinkTicks) {
        frame_ = false;
        blink_.stop();
    }
    update();
}

void BrushPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), widgets::CurrentTheme().Ground);
    painter.fillRect(QRect(isRightToLeft() ? width() - 1 : 0, kEdgeGap, 1, height() - 2 * kEdgeGap),
                     widgets::HairlineColor());
    if (!frame_)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(widgets::CurrentTheme().Accent, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5), 3, 3);
}

}  // namespace orbelle::app
