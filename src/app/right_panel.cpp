#include "app/right_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <cstdio>

#include "app/main_window.h"
#include "app/shared_image.h"
#include "editing/adjust_sliders.h"
#include "editing/layer_commands.h"

namespace orbelle::app {
namespace {

using editing::Adjustment;
using editing::Controls;
using editing::Editor;
using widgets::TrackSlider;

constexpr int kMargin = 12;
constexpr int kCaptionWidth = 70;
constexpr int kValueWidth = 32;
constexpr int kMinLayerList = 84;

// One drag of a slider as the three parts of a command.
template <typename Press, typename Change, typename Release>
void ConnectDrag(MainWindow& form, TrackSlider& slider, Press press, Change change,
                 Release release) {
    QObject::connect(&slider, &TrackSlider::Pressed, &form, [&form, press] { form.Run(press); });
    QObject::connect(&slider, &TrackSlider::Changed, &form, [&form, change](int value) {
        form.Run([=](Editor& editor) { change(editor, value); });
    });
    QObject::connect(&slider, &TrackSlider::Released, &form,
                     [&form, release] { form.Run(release); });
}

template <Adjustment kAdjustment>
void ConnectAdjustment(MainWindow& form, TrackSlider& slider) {
    ConnectDrag(
        form, slider, editing::PressAdjustment,
        [](Editor& editor, int value) { ChangeAdjustment(editor, kAdjustment, value); },
        [](Editor& editor) { ReleaseAdjustment(editor, kAdjustment); });
}

// ".50", as layers are labelled.
QString OpacityText(float opacity) {
    char text[16];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(opacity));
    return text[0] == '0' ? text + 1 : text;
}

}  // namespace

RightPanel::RightPanel(MainWindow& form, QWidget& layerBar) : form_(form) {
    setObjectName("RightPic");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    QWidget* opacity = AddSection("CtlTitle1", "Icon Opacity");
    opacity_ = AddSlider(*opacity, "Opacity", &Controls::Opacity, nullptr);
    ConnectDrag(form, *opacity_, editing::PressOpacity, editing::ChangeOpacity,
                editing::ReleaseOpacity);

    QWidget* color = AddSection("CtlTitle2", "HUE/Saturation");
    ConnectAdjustment<Adjustment::Hue>(
        form, *AddSlider(*color, "Hue", &Controls::Hue, &Controls::HueValue));
    ConnectAdjustment<Adjustment::Saturation>(
        form, *AddSlider(*color, "Saturation", &Controls::Saturation, &Controls::SaturationValue));
    ConnectAdjustment<Adjustment::Brightness>(
        form, *AddSlider(*color, "Brightness", &Controls::Brightness, &Controls::BrightnessValue));
    ConnectAdjustment<Adjustment::Contrast>(
        form, *AddSlider(*color, "Contrast", &Controls::Contrast, &Controls::ContrastValue));

    QWidget* size = AddSection("CtlTitle3", "Icon Resize");
    ConnectDrag(form, *AddSlider(*size, "Scale", &Controls::Scale, &Controls::ScaleValue),
                editing::PressScale, editing::ChangeScale, editing::ReleaseScale);

    QWidget* filter = AddSection("CtlTitle5", "Icon Filter");
    filterCaption_ = new widgets::CaptionText;
    filterCaption_->setMinimumHeight(30);
    filter->layout()->addWidget(filterCaption_);

    QWidget* layers = AddSection("CtlTitle6", "Layer");
    layers->layout()->setContentsMargins(0, 0, 0, 0);
    layers->layout()->addWidget(&layerBar);
    layers_ = new widgets::LayerList;
    layers_->setObjectName("LayerPanel");
    layers_->setAccessibleName("Layers");
    layers_->setMinimumHeight(kMinLayerList);
    layers->layout()->addWidget(layers_);
    column->setStretchFactor(layers, 1);
    column->addStretch();
    connect(layers_, &widgets::LayerList::Clicked, this, [this] {
        const int index = layers_->SelectedIndex();
        form_.Run([index](Editor& editor) {
            if (index >= 0 && index < editor.Document.LayerCount())
                SelectLayer(editor, index);
        });
    });
}

QWidget* RightPanel::AddSection(const char* name, const char* title) {
    auto* header = new widgets::PanelHeader(title);
    header->setObjectName(name);
    auto* content = new QWidget;
    auto* rows = new QGridLayout(content);
    rows->setContentsMargins(kMargin, 6, kMargin, 8);
    rows->setHorizontalSpacing(8);
    rows->setVerticalSpacing(4);
    layout()->addWidget(header);
    layout()->addWidget(content);
    headers_.push_back({name, header, content});
    connect(header, &widgets::PanelHeader::Clicked, content,
            [content](bool IsClosed) { content->setVisible(!IsClosed); });
    return content;
}

void RightPanel::SetOpen(const Header& header, bool open) {
    header.Title->SetClosed(!open);
    header.Content->setVisible(open);
}

TrackSlider* RightPanel::AddSlider(QWidget& section, const char* caption,
                                   editing::Slider Controls::*state, std::string Controls::*label) {
    auto* slider = new TrackSlider;
    slider->setRange(0, 100);
    slider->setAccessibleName(caption);
    auto* text = new QLabel(caption);
    text->setFixedWidth(kCaptionWidth);
    auto* value = new QLabel;
    value->setFixedWidth(kValueWidth);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* rows = static_cast<QGridLayout*>(section.layout());
    const int row = rows->rowCount();
    rows->addWidget(text, row, 0);
    rows->addWidget(slider, row, 1);
    rows->addWidget(value, row, 2);
    adjusters_.push_back({slider, value, state, label});
    return slider;
}

void RightPanel::ShowStates(const Controls& controls) {
    for (const Adjuster& adjuster : adjusters_) {
        const editing::Slider& state = controls.*adjuster.State;
        adjuster.Slider->setEnabled(state.Enabled);
        adjuster.Slider->SetValue(state.Value);
        adjuster.Value->setText(adjuster.Label ? QString::fromStdString(controls.*adjuster.Label)
                                               : QString::number(state.Value) + "%");
    }
    filterCaption_->SetCaption(QString::fromStdString(controls.FilterCaption));
}

void RightPanel::ShowLayers(const Editor& editor) {
    std::vector<widgets::LayerRow> rows;
    for (const document::IconLayer& layer : editor.Document.Layers)
        rows.push_back(
            {SharedImage(layer.Image),
             QSize(static_cast<int>(layer.Rect.Width), static_cast<int>(layer.Rect.Height)),
             OpacityText(layer.Opacity), layer.Visible});
    layers_->SetRows(std::move(rows));
    layers_->SetSelectedIndex(editor.Document.SelectedLayer);
}

}  // namespace orbelle::app
