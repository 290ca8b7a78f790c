#include "app/right_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <cstdio>

#include "app/shared_image.h"
#include "editing/adjust_sliders.h"
#include "editing/give_up.h"
#include "editing/layer_commands.h"

namespace orbelle::app {
namespace {

using editing::Adjustment;
using editing::Editor;
using editing::Sliders;
using widgets::TrackSlider;

constexpr int kMargin = 12;
constexpr int kCaptionWidth = 70;
constexpr int kValueWidth = 32;
constexpr char kFilterCaption[] = "No filters are used, click Style menu to choose a filter.";
constexpr int kMinLayerList = 84;

// One drag of a slider as the three parts of a command.
template <typename Press, typename Change, typename Release>
void ConnectDrag(CommandRunner& commands, TrackSlider& slider, editing::Slider Sliders::*state,
                 Press press, Change change, Release release) {
    QObject::connect(&slider, &TrackSlider::Pressed, &slider,
                     [&commands, press] { commands.Run(press); });
    QObject::connect(&slider, &TrackSlider::Changed, &slider,
                     [&commands, &slider, state, change](int value) {
                         commands.RunDuringDrag([=](Editor& editor) { change(editor, value); });
                         // A drag that was refused or given up leaves the old value.
                         slider.SetValue((commands.Editor().Sliders.*state).Value);
                     });
    QObject::connect(&slider, &TrackSlider::Released, &slider,
                     [&commands, release] { commands.RunDuringDrag(release); });
    QObject::connect(&slider, &TrackSlider::GivenUp, &slider,
                     [&commands] { commands.RunDuringDrag(editing::CancelDrag); });
}

// ".50", as layers are labelled.
QString OpacityText(float opacity) {
    char text[16];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(opacity));
    return text[0] == '0' ? text + 1 : text;
}

}  // namespace

RightPanel::RightPanel(CommandRunner& commands, QWidget& layerBar) : commands_(commands) {
    setObjectName("RightPic");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    QWidget* opacity = AddSection("OpacityPanel", "CtlTitle1", "Icon Opacity");
    opacity_ = AddSlider(*opacity, "Opacity", &Sliders::Opacity);
    ConnectDrag(commands, *opacity_, &Sliders::Opacity, editing::PressOpacity,
                editing::ChangeOpacity, editing::ReleaseOpacity);

    QWidget* color = AddSection("ColorPanel", "CtlTitle2", "HUE/Saturation");
    const auto addAdjustment = [&](const char* caption, editing::Slider Sliders::*state,
                                   Adjustment kind) {
        ConnectDrag(
            commands, *AddSlider(*color, caption, state), state,
            [kind](Editor& editor) { PressAdjustment(editor, kind); },
            [kind](Editor& editor, int value) { ChangeAdjustment(editor, kind, value); },
            [kind](Editor& editor) { ReleaseAdjustment(editor, kind); });
    };
    addAdjustment("Hue", &Sliders::Hue, Adjustment::Hue);
    addAdjustment("Saturation", &Sliders::Saturation, Adjustment::Saturation);
    addAdjustment("Brightness", &Sliders::Brightness, Adjustment::Brightness);
    addAdjustment("Contrast", &Sliders::Contrast, Adjustment::Contrast);

    QWidget* size = AddSection("SizePanel", "CtlTitle3", "Icon Resize");
    ConnectDrag(commands, *AddSlider(*size, "Scale", &Sliders::Scale), &Sliders::Scale,
                editing::PressScale, editing::ChangeScale, editing::ReleaseScale);

    QWidget* filter = AddSection("FilterPanel", "CtlTitle5", "Icon Filter");
    auto* caption = new widgets::CaptionText;
    caption->setMinimumHeight(30);
    caption->SetCaption(kFilterCaption);
    filter->layout()->addWidget(caption);

    QWidget* layers = AddSection("LayerPanel", "CtlTitle6", "Layer");
    layers->layout()->setContentsMargins(0, 0, 0, 0);
    layers->layout()->addWidget(&layerBar);
    layers_ = new widgets::LayerList;
    layers_->setObjectName("Layers");
    layers_->setAccessibleName("Layers");
    layers_->setMinimumHeight(kMinLayerList);
    layers->layout()->addWidget(layers_);
    column->setStretchFactor(layers, 1);
    column->addStretch();
    connect(layers_, &widgets::LayerList::Clicked, this, [this] {
        const int index = layers_->SelectedIndex();
        commands_.Run([index](Editor& editor) { SelectLayer(editor, index); });
    });
    connect(layers_, &widgets::LayerList::Picked, this, &RightPanel::LayerPicked);
}

QWidget* RightPanel::AddSection(const char* name, const char* storedAs, const char* title) {
    auto* header = new widgets::PanelHeader(title);
    header->setObjectName(name);
    auto* content = new QWidget;
    auto* rows = new QGridLayout(content);
    rows->setContentsMargins(kMargin, 6, kMargin, 8);
    rows->setHorizontalSpacing(8);
    rows->setVerticalSpacing(4);
    layout()->addWidget(header);
    layout()->addWidget(content);
    headers_.push_back({storedAs, header, content});
    connect(header, &widgets::PanelHeader::Clicked, content,
            [content](bool IsClosed) { content->setVisible(!IsClosed); });
    return content;
}

void RightPanel::SetOpen(const Header& header, bool open) {
    header.Title->SetClosed(!open);
    header.Content->setVisible(open);
}

TrackSlider* RightPanel::AddSlider(QWidget& section, const char* caption,
                                   editing::Slider Sliders::*state) {
    auto* slider = new TrackSlider;
    const editing::Slider range = Sliders().*state;
    slider->setRange(range.Minimum, range.Maximum);
    slider->setAccessibleName(caption);
    auto* text = new QLabel(caption);
    text->setFixedWidth(kCaptionWidth);
    auto* value = new QLabel;
    value->setObjectName(QString(caption) + "Value");
    value->setFixedWidth(kValueWidth);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* rows = static_cast<QGridLayout*>(section.layout());
    const int row = rows->rowCount();
    rows->addWidget(text, row, 0);
    rows->addWidget(slider, row, 1);
    rows->addWidget(value, row, 2);
    adjusters_.push_back({slider, value, state});
    return slider;
}

void RightPanel::ShowStates(const Sliders& sliders) {
    for (const Adjuster& adjuster : adjusters_) {
        const editing::Slider& state = sliders.*adjuster.State;
        adjuster.Slider->setEnabled(state.Enabled);
        adjuster.Slider->SetValue(state.Value);
        adjuster.Value->setText(adjuster.Slider == opacity_ ? QString::number(state.Value) + "%"
                                                            : QString::number(state.Label));
    }
}

void RightPanel::EndRuns() {
    for (const Adjuster& adjuster : adjusters_)
        adjuster.Slider->EndRun();
}

void RightPanel::ShowLayers(const Editor& editor) {
    std::vector<widgets::LayerRow> rows;
    for (const document::IconLayer& layer : editor.Page().Layers)
        rows.push_back(
            {SharedImage(layer.Image),
             QSize(static_cast<int>(layer.Rect.Width), static_cast<int>(layer.Rect.Height)),
             OpacityText(layer.Opacity), layer.Visible});
    layers_->SetRows(std::move(rows));
    layers_->SetSelectedIndex(editor.Page().SelectedLayer);
}

}  // namespace orbelle::app
