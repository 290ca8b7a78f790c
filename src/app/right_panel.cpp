#include "app/right_panel.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QResizeEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

#include "app/shared_image.h"
#include "editing/adjust_sliders.h"
#include "editing/give_up.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/stack_commands.h"
#include "widgets/motion.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using editing::Adjustment;
using editing::Editor;
using editing::Sliders;
using widgets::TrackSlider;

constexpr int kMargin = widgets::kWideSpace;
constexpr int kCaptionWidth = 70;
constexpr char kFilterCaption[] =
    QT_TRANSLATE_NOOP("Words", "No filters are used, click Style menu to choose a filter.");
constexpr int kMinLayerList = 84;
constexpr QSize kRoomy(800, 560);  // a window below it has room for one panel
constexpr int kColorful = 40;      // of 255, the least saturation that has a hue

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

// Of what is seen, weighed by its alpha; a sample of larger pictures.
std::optional<QColor> MeanColor(const graphics::Bitmap& picture) {
    constexpr int kSamples = 48;  // a side
    const int stepX = std::max(picture.Width() / kSamples, 1);
    const int stepY = std::max(picture.Height() / kSamples, 1);
    long long red = 0, green = 0, blue = 0, weight = 0;
    for (int y = stepY / 2; y < picture.Height(); y += stepY) {
        const graphics::Argb* row = picture.Row(y);
        for (int x = stepX / 2; x < picture.Width(); x += stepX) {
            const long long alpha = graphics::AlphaOf(row[x]);
            red += alpha * graphics::RedOf(row[x]);
            green += alpha * graphics::GreenOf(row[x]);
            blue += alpha * graphics::BlueOf(row[x]);
            weight += alpha;
        }
    }
    if (weight == 0)
        return std::nullopt;
    const auto channel = [weight](long long sum) { return static_cast<int>(sum / weight); };
    return QColor(channel(red), channel(green), channel(blue));
}

// ".50", as layers are labelled.
QString OpacityText(float opacity) {
    char text[16] = "";
    std::to_chars(text, std::end(text) - 1, static_cast<double>(opacity), std::chars_format::fixed,
                  2);
    return QString(text[0] == '0' ? text + 1 : text).replace('.', NumberLocale().decimalPoint());
}

}  // namespace

RightPanel::RightPanel(CommandRunner& commands, QWidget& layerBar) : commands_(commands) {
    setObjectName("RightPic");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    QWidget* opacity = AddSection("OpacityPanel", "CtlTitle1", Words::tr("Icon Opacity"));
    opacity_ = AddSlider(*opacity, QT_TRANSLATE_NOOP("Words", "Opacity"), &Sliders::Opacity);
    ConnectDrag(commands, *opacity_, &Sliders::Opacity, editing::PressOpacity,
                editing::ChangeOpacity, editing::ReleaseOpacity);

    QWidget* color = AddSection("ColorPanel", "CtlTitle2", Words::tr("HUE/Saturation"));
    const auto addAdjustment = [&](const char* caption, editing::Slider Sliders::*state,
                                   Adjustment kind) {
        ConnectDrag(
            commands, *AddSlider(*color, caption, state), state,
            [kind](Editor& editor) { PressAdjustment(editor, kind); },
            [kind](Editor& editor, int value) { ChangeAdjustment(editor, kind, value); },
            [kind](Editor& editor) { ReleaseAdjustment(editor, kind); });
    };
    addAdjustment(QT_TRANSLATE_NOOP("Words", "Hue"), &Sliders::Hue, Adjustment::Hue);
    SliderOf(&Sliders::Hue).SetGroove(TrackSlider::Groove::Hues);
    addAdjustment(QT_TRANSLATE_NOOP("Words", "Saturation"), &Sliders::Saturation,
                  Adjustment::Saturation);
    addAdjustment(QT_TRANSLATE_NOOP("Words", "Brightness"), &Sliders::Brightness,
                  Adjustment::Brightness);
    addAdjustment(QT_TRANSLATE_NOOP("Words", "Contrast"), &Sliders::Contrast, Adjustment::Contrast);

    QWidget* size = AddSection("SizePanel", "CtlTitle3", Words::tr("Icon Resize"));
    ConnectDrag(commands, *AddSlider(*size, QT_TRANSLATE_NOOP("Words", "Scale"), &Sliders::Scale),
                &Sliders::Scale, editing::PressScale, editing::ChangeScale, editing::ReleaseScale);

    QWidget* filter = AddSection("FilterPanel", "CtlTitle5", Words::tr("Icon Filter"));
    auto* caption = new widgets::CaptionText;
    caption->setMinimumHeight(30);
    caption->SetCaption(Words::tr(kFilterCaption));
    filter->layout()->addWidget(caption);

    QWidget* layers = AddSection("LayerPanel", "CtlTitle6", Words::tr("Layer"));
    layers->layout()->setContentsMargins(0, 0, 0, 0);
    layers->layout()->addWidget(&layerBar);
    layers_ = new widgets::LayerList;
    layers_->setObjectName("Layers");
    layers_->setAccessibleName(Words::tr("Layers"));
    layers_->setMinimumHeight(kMinLayerList);
    layers->layout()->addWidget(layers_);
    column->setStretchFactor(layers, 1);
    column->addStretch();
    connect(layers_, &widgets::LayerList::Clicked, this, [this] {
        const int index = layers_->SelectedIndex();
        commands_.Run([index](Editor& editor) { SelectLayer(editor, index); });
    });
    connect(layers_, &widgets::LayerList::Picked, this, &RightPanel::KeysFree);
    connect(layers_, &widgets::LayerList::EyePressed, this, [this](int layer) {
        commands_.Run([layer](Editor& editor) { PressEye(editor, layer); });
    });
    connect(layers_, &widgets::LayerList::Moved, this, [this](int layer, int to) {
        commands_.Run([=](Editor& editor) { MoveLayerTo(editor, layer, to); });
    });
    connect(layers_, &widgets::LayerList::Renamed, this, [this](int layer, const QString& name) {
        commands_.Run([layer, text = name.toStdString()](Editor& editor) {
            RenameLayer(editor, layer, text);
        });
    });
    // F2 wherever the keys are.
    auto* rename = new QAction(Words::tr("Rename Layer"), this);
    rename->setShortcut(Qt::Key_F2);
    connect(rename, &QAction::triggered, this, [this] {
        if (layers_->isVisible())
            layers_->StartRename();
    });
    addAction(rename);
}

QWidget* RightPanel::AddSection(const char* name, const char* storedAs, const QString& title) {
    auto* header = new widgets::PanelHeader(title);
    header->setObjectName(name);
    auto* content = new QWidget;
    auto* rows = new QGridLayout(content);
    rows->setContentsMargins(kMargin, widgets::kTightSpace, kMargin, widgets::kSpace);
    rows->setHorizontalSpacing(widgets::kSpace);
    rows->setVerticalSpacing(0);
    layout()->addWidget(header);
    layout()->addWidget(content);
    headers_.push_back({storedAs, header, content});
    const std::size_t index = headers_.size() - 1;
    connect(header, &widgets::PanelHeader::Clicked, this,
            [this, index](bool isClosed) { SetOpen(headers_[index], !isClosed); });
    return content;
}

void RightPanel::SetOpen(const Header& header, bool open) {
    const auto found = std::ranges::find(headers_, header.Title, &Header::Title);
    found->IsOpen = open;
    if (open)
        last_ = found->Title;
    else if (last_ == found->Title)
        last_ = nullptr;
    ShowPanels();
}

void RightPanel::ShowPanels() {
    for (const Header& header : headers_) {
        const bool open = header.IsOpen && (!isCramped_ || header.Title == last_);
        const bool opens = open && header.Content->isHidden();
        header.Title->SetClosed(!open);
        header.Content->setVisible(open);
        if (opens)
            widgets::FadeIn(*header.Content);
    }
}

// What had to close for want of room opens again with it.
void RightPanel::FollowWindow() {
    const QSize size = window()->size();
    const bool isCramped = size.width() < kRoomy.width() || size.height() < kRoomy.height();
    if (isCramped == isCramped_)
        return;
    isCramped_ = isCramped;
    const auto firstOpen = std::ranges::find_if(headers_, &Header::IsOpen);
    if (!last_ && firstOpen != headers_.end())
        last_ = firstOpen->Title;
    ShowPanels();
}

void RightPanel::showEvent(QShowEvent* event) {
    window()->installEventFilter(this);
    FollowWindow();
    QWidget::showEvent(event);
}

bool RightPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window() && event->type() == QEvent::Resize)
        FollowWindow();
    return QWidget::eventFilter(watched, event);
}

// The rows end at one place whether the scroll bar is there or not.
void RightPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int gutter = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const bool isScrolled = event->size().width() < parentWidget()->parentWidget()->width();
    for (const Header& header : headers_) {
        if (header.Content->layout()->contentsMargins().left() > 0)
            header.Content->layout()->setContentsMargins(
                kMargin, widgets::kTightSpace, widgets::kSpace + (isScrolled ? 0 : gutter),
                widgets::kSpace);
    }
}

// The colour of what has no hue follows the theme.
void RightPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && layers_)
        ShowColors(commands_.Editor().Page());
}

TrackSlider& RightPanel::SliderOf(editing::Slider Sliders::*state) const {
    return *std::ranges::find(adjusters_, state, &Adjuster::State)->Slider;
}

// The tracks of opacity and saturation lead to the colour of what they change.
void RightPanel::ShowColors(const document::Page& page) {
    QColor mean = widgets::CurrentTheme().Accent;
    if (page.HasSelection())
        mean = MeanColor(page.Selected().Image).value_or(mean);
    SliderOf(&Sliders::Opacity).SetGroove(TrackSlider::Groove::Opacity, mean);
    const bool isColorful = mean.hsvSaturation() >= kColorful;
    SliderOf(&Sliders::Saturation)
        .SetGroove(TrackSlider::Groove::Saturation,
                   QColor::fromHsv((isColorful ? mean : widgets::CurrentTheme().Accent).hsvHue(),
                                   220, 220));
}

TrackSlider* RightPanel::AddSlider(QWidget& section, const char* caption,
                                   editing::Slider Sliders::*state) {
    auto* slider = new TrackSlider;
    const editing::Slider range = Sliders().*state;
    slider->setRange(range.Minimum, range.Maximum);
    slider->setAccessibleName(Words::tr(caption));
    slider->SetNeutral(range.Neutral);
    auto* text = new QLabel(Words::tr(caption));
    text->setFixedWidth(widgets::WidthFor(kCaptionWidth));
    // An adjustment counts from where it changes nothing.
    const bool isPercent = state == &Sliders::Opacity;
    auto* value = isPercent ? new widgets::ValueField(*slider, 0, "%")
                            : new widgets::ValueField(*slider, range.Neutral);
    value->setObjectName(QString(caption) + "Value");
    value->setAccessibleName(Words::tr("%1 value").arg(Words::tr(caption)));
    connect(value, &widgets::ValueField::Finished, this, &RightPanel::KeysFree);
    auto* rows = static_cast<QGridLayout*>(section.layout());
    const int row = rows->rowCount();
    rows->setRowMinimumHeight(row, widgets::HeightFor(widgets::kControlHeight));
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
        adjuster.Value->setEnabled(state.Enabled);
        adjuster.Value->Show(adjuster.Slider == opacity_ ? state.Value : state.Label);
    }
}

void RightPanel::EndRuns() {
    layers_->CommitName();
    for (const Adjuster& adjuster : adjusters_) {
        adjuster.Value->CommitTyping();
        adjuster.Slider->EndRun();
    }
}

void RightPanel::ShowLayers(const Editor& editor) {
    std::vector<widgets::LayerRow> rows;
    for (int i = 0; i < editor.Page().LayerCount(); ++i) {
        const document::IconLayer& layer = editor.Page().Layers[static_cast<std::size_t>(i)];
        rows.push_back(
            {SharedImage(layer.Image),
             QSize(static_cast<int>(layer.Rect.Width), static_cast<int>(layer.Rect.Height)),
             OpacityText(layer.Opacity), layer.Visible, QString::fromStdString(layer.Name),
             editing::CanMoveLayer(editor.Page(), i)});
    }
    layers_->SetRows(std::move(rows));
    layers_->SetSelectedIndex(editor.Page().SelectedLayer);
    ShowColors(editor.Page());
}

}  // namespace orbelle::app
