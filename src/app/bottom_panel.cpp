#include "app/bottom_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/ask_commands.h"
#include "app/brush_panel.h"
#include "app/color_well.h"
#include "editing/color_wells.h"
#include "editing/page_commands.h"
#include "editing/tool_palette.h"
#include "widgets/artwork.h"
#include "widgets/motion.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/theme.h"
#include "widgets/track_slider.h"
#include "widgets/value_field.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using editing::Editor;

constexpr int kSliderWidth = 120;
constexpr int kGroupGap = 28;
constexpr int kWidePen = 2;  // around the well in use

QLabel* Caption(const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName("caption");
    return label;
}

// A caption above its controls.
QWidget* Group(const QString& caption, QLayout* controls) {
    auto* group = new QWidget;
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(widgets::kTightSpace);
    column->addWidget(Caption(caption));
    column->addLayout(controls);
    column->addStretch();
    return group;
}

QHBoxLayout* Row(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(widgets::kSpace);
    for (QWidget* widget : controls)
        row->addWidget(widget, 0, Qt::AlignVCenter);
    // All rows stand on one line, whatever is in them, and begin below their captions.
    row->addStrut(widgets::HeightFor(widgets::kControlHeight));
    row->addStretch(1);
    return row;
}

void Mirror(widgets::NumberSlider& shown, const editing::Slider& slider) {
    shown.setEnabled(slider.Enabled);
    shown.SetRange(slider.Minimum, slider.Maximum);
    if (shown.Value() != slider.Value)
        shown.SetValue(slider.Value);
}

QToolButton* PictureButton(const char* artwork, const QString& tip) {
    auto* button = new QToolButton;
    button->setIcon(widgets::ArtworkIcon(artwork));
    button->setAutoRaise(true);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

}  // namespace

BottomPanel::BottomPanel(const WindowContext& context) : context_(context) {
    setObjectName("BottomTips");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    title_ = new widgets::PanelHeader(Words::tr("Properties"));
    title_->setObjectName("Properties");
    column->addWidget(title_);

    content_ = new QWidget;
    auto* groups = new QHBoxLayout(content_);
    groups->setContentsMargins(widgets::kWideSpace, widgets::kSpace, widgets::kWideSpace,
                               widgets::kWideSpace);
    groups->setSpacing(kGroupGap);
    for (QWidget* group : {AddPageSize(), AddBackground(), AddColors(), AddOptions()})
        groups->addWidget(group);
    groups->addStretch(1);
    column->addWidget(content_);
    // Folded, it does not let the window become so narrow that words above and below are cut.
    title_->setMinimumWidth(content_->minimumSizeHint().width());
    brush_ = new BrushPanel(context.Commands, content_);
    connect(brush_, &BrushPanel::KeysFree, this, [this] { context_.Window.FocusScene(); });
    content_->installEventFilter(this);
    connect(title_, &widgets::PanelHeader::Clicked, this,
            [this](bool isClosed) { SetOpen(!isClosed); });
}

QWidget* BottomPanel::AddPageSize() {
    const auto side = [this](const char* name, const QString& caption,
                             editing::Slider editing::Sliders::*state,
                             void (*change)(Editor&, int)) {
        auto* slider = new widgets::NumberSlider;
        slider->setObjectName(name);
        slider->setAccessibleName(caption);
        slider->setToolTip(caption);
        CommandRunner& commands = context_.Commands;
        connect(slider, &widgets::NumberSlider::Pressed, this,
                [&commands] { commands.Run(editing::PressPageSize); });
        connect(slider, &widgets::NumberSlider::Changed, this,
                [&commands, slider, state, change](int value) {
                    commands.RunDuringDrag([=](Editor& editor) { change(editor, value); });
                    // A drag that was refused or given up leaves the old value.
                    Mirror(*slider, commands.Editor().Sliders.*state);
                });
        connect(slider, &widgets::NumberSlider::Released, this,
                [&commands] { commands.RunDuringDrag(editing::ReleasePageSize); });
        GiveFocusBack(*slider);
        return slider;
    };
    pageWidth_ = side("PageWidth", Words::tr("Page width"), &editing::Sliders::PageWidth,
                      editing::ChangePageWidth);
    pageHeight_ = side("PageHeight", Words::tr("Page height"), &editing::Sliders::PageHeight,
                       editing::ChangePageHeight);
    return Group(Words::tr("Page size"),
                 Row({pageWidth_, new QLabel(QString(QChar(0x00D7))), pageHeight_}));
}

void BottomPanel::GiveFocusBack(widgets::NumberSlider& slider) {
    connect(&slider, &widgets::NumberSlider::Finished, this,
            [this] { context_.Window.FocusScene(); });
}

QWidget* BottomPanel::AddBackground() {
    backgroundSwatch_ = new ColorWell(Words::tr("Page background"));
    backgroundSwatch_->setObjectName("BackgroundSwatch");
    backgroundSwatch_->setToolTip(Words::tr("Page background"));
    connect(backgroundSwatch_, &ColorWell::Clicked, this, [this] { AskPageBackground(context_); });
    QToolButton* none = PictureButton("tools/no-colour", Words::tr("No page background"));
    none->setObjectName("NoBackground");
    connect(none, &QToolButton::pressed, this, [this] {
        context_.Commands.Run([](Editor& editor) {
            if (editor.DocumentExists)
                SetPageBackground(editor, 0);
        });
    });
    return Group(Words::tr("Background"), Row({backgroundSwatch_, none}));
}

QWidget* BottomPanel::AddColors() {
    const QString names[] = {Words::tr("Foreground color"), Words::tr("Background color")};
    for (int i = 0; i < 2; ++i) {
        auto* well = new ColorWell(names[i]);
        well->setObjectName(QString("ForeColorOLE%1").arg(i));
        well->setToolTip(Words::tr("%1: click to use it, double-click to change it").arg(names[i]));
        connect(well, &ColorWell::Clicked, this, [this, i] {
            context_.Commands.Run([i](Editor& editor) { UseColorWell(editor, i); });
        });
        connect(well, &ColorWell::DoubleClicked, this, [this, i] { AskWellColor(context_, i); });
        wells_[static_cast<std::size_t>(i)] = well;
    }
    QToolButton* exchange = PictureButton("tools/swap", Words::tr("Exchange the colors"));
    exchange->setObjectName("ExchangeColor");
    connect(exchange, &QToolButton::clicked, this,
            [this] { context_.Commands.Run(editing::ExchangeColor); });
    return Group(Words::tr("Colors"), Row({wells_[0], exchange, wells_[1]}));
}

QWidget* BottomPanel::AddOptions() {
    colorOpacity_ = new widgets::TrackSlider;
    colorOpacity_->setObjectName("ColorOpacity");
    colorOpacity_->setAccessibleName(Words::tr("Color opacity"));
    const editing::Slider opacity = editing::Sliders().ColorOpacity;
    colorOpacity_->setRange(opacity.Minimum, opacity.Maximum);
    colorOpacity_->setFixedWidth(kSliderWidth);
    connect(colorOpacity_, &widgets::TrackSlider::Changed, this, [this](int value) {
        context_.Commands.Run([value](Editor& editor) { ChangeColorOpacity(editor, value); });
    });
    colorOpacity_->SetNeutral(opacity.Neutral);
    opacityValue_ = new widgets::ValueField(*colorOpacity_, 0, "%");
    opacityValue_->setObjectName("ColorOpacityValue");
    opacityValue_->setAccessibleName(Words::tr("%1 value").arg(colorOpacity_->accessibleName()));
    connect(opacityValue_, &widgets::ValueField::Finished, this,
            [this] { context_.Window.FocusScene(); });
    lineWidth_ = new widgets::NumberSlider;
    lineWidth_->setObjectName("LineWidth");
    lineWidth_->setAccessibleName(Words::tr("Line width"));
    connect(lineWidth_, &widgets::NumberSlider::Changed, this, [this](int value) {
        context_.Commands.Run([value](Editor& editor) { ChangeLineWidth(editor, value); });
    });
    GiveFocusBack(*lineWidth_);
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGroupGap);
    row->addWidget(Group(Words::tr("Color opacity"), Row({colorOpacity_, opacityValue_})));
    row->addWidget(Group(Words::tr("Line width"), Row({lineWidth_})));
    return both;
}

void BottomPanel::SetOpen(bool open) {
    const bool opens = open && content_->isHidden();
    title_->SetClosed(!open);
    content_->setVisible(open);
    if (opens)
        widgets::FadeIn(*content_);
}

void BottomPanel::CommitTyping() {
    pageWidth_->CommitTyping();
    pageHeight_->CommitTyping();
    lineWidth_->CommitTyping();
    opacityValue_->CommitTyping();
    brush_->CommitTyping();
}

const QWidget& BottomPanel::Colors() const {
    return *wells_[0]->parentWidget();
}

const QWidget& BottomPanel::BrushOptions() const {
    return *brush_;
}

bool BottomPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == content_ && event->type() == QEvent::Resize)
        brush_->Place();
    return QWidget::eventFilter(watched, event);
}

void BottomPanel::ShowStates(const Editor& editor) {
    const editing::Sliders& sliders = editor.Sliders;
    Mirror(*pageWidth_, sliders.PageWidth);
    Mirror(*pageHeight_, sliders.PageHeight);
    Mirror(*lineWidth_, sliders.LineWidth);
    backgroundSwatch_->Show(editor.Document.Background, 1);
    backgroundSwatch_->setEnabled(editor.States.IsEnabled(editing::CommandId::PageBackground));
    for (int i = 0; i < 2; ++i)
        wells_[static_cast<std::size_t>(i)]->Show(editor.Tools.Colors[static_cast<std::size_t>(i)],
                                                  i == editor.Tools.ActiveColor ? kWidePen : 1);
    colorOpacity_->setEnabled(sliders.ColorOpacity.Enabled);
    colorOpacity_->SetValue(sliders.ColorOpacity.Value);
    opacityValue_->setEnabled(sliders.ColorOpacity.Enabled);
    opacityValue_->Show(sliders.ColorOpacity.Value);
    const auto inUse = static_cast<std::size_t>(editor.Tools.ActiveColor);
    colorOpacity_->SetGroove(widgets::TrackSlider::Groove::Opacity,
                             QColor::fromRgb(editor.Tools.Colors[inUse]));
    brush_->ShowStates(sliders);

    const bool brush = editor.Tools.InUse == editing::Tool::BrushEraser;
    if (brush == brushIsIn_)
        return;
    brushIsIn_ = brush;
    if (brush)
        SetOpen(true);
    brush_->Slide(brush);
}

}  // namespace orbelle::app
