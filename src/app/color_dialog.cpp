#include "app/color_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <algorithm>

#include "app/color_fields.h"
#include "app/color_text.h"
#include "app/settings.h"
#include "widgets/number_slider.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using graphics::Argb;

constexpr char kRecentColors[] = "RecentColors";
constexpr int kRecentCount = 6;
constexpr int kMost = 255;
constexpr int kMostHue = 359;
constexpr int kShifts[] = {16, 8, 0, 24};  // of red, green, blue, alpha

std::vector<Argb> ReadRecentColors() {
    std::vector<Argb> colors;
    for (const QString& text : Settings().value(kRecentColors).toStringList())
        if (const std::optional<Argb> color = ParseColorText(text, true, kMost))
            colors.push_back(*color);
    colors.resize(std::min<std::size_t>(colors.size(), kRecentCount));
    return colors;
}

void StoreRecentColor(Argb color) {
    QStringList texts(ColorText(color, true));
    for (const Argb recent : ReadRecentColors())
        if (recent != color && texts.size() < kRecentCount)
            texts += ColorText(recent, true);
    Settings().setValue(kRecentColors, texts);
}

QLabel* Caption(const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName("caption");
    return label;
}

unsigned ChannelOf(Argb color, std::size_t channel) {
    return color >> kShifts[channel] & 0xFF;
}

}  // namespace

ColorDialog::ColorDialog(const ColorQuestion& question, QWidget* parent)
    : QDialog(parent), hasAlpha_(question.HasAlpha) {
    setWindowTitle(Words::tr(question.Title));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* body = new QHBoxLayout;
    body->setSpacing(20);
    layout->addLayout(body);
    body->addWidget(AddStrips());
    auto* column = new QVBoxLayout;
    body->addLayout(column);
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(12);
    rows->setVerticalSpacing(8);
    column->addLayout(rows);
    column->addStretch();
    AddComparison(*rows, question.Old);
    AddText(*rows);
    AddNumbers(*rows);
    layout->addWidget(AddRecent());

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ColorDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ColorDialog::reject);

    Take(question.Start);
    text_->setFocus();
    text_->selectAll();
}

ColorDialog::~ColorDialog() {
    // Fields end their typing when they lose the keys: while this still is a colour dialog.
    hide();
}

QWidget* ColorDialog::AddStrips() {
    auto* strips = new QWidget;
    auto* row = new QHBoxLayout(strips);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    const auto strip = [&](const QString& name, int most, auto take) {
        auto* slider = new ColorStrip;
        slider->setAccessibleName(name);
        slider->setToolTip(name);
        slider->setRange(0, most);
        connect(slider, &QSlider::valueChanged, this, take);
        row->addWidget(slider);
        return slider;
    };
    square_ = new ColorSquare;
    connect(square_, &ColorSquare::Chosen, this, &ColorDialog::TakeShade);
    row->addWidget(square_);
    hues_ = strip(Words::tr("Hue"), kMostHue, [this](int hue) { TakeHue(hue); });
    QGradientStops hues;
    constexpr int kSixths = 6;
    for (int i = 0; i <= kSixths; ++i)
        hues.append({static_cast<double>(i) / kSixths,
                     QColor::fromHsv((kSixths - i) * 60 % 360, kMost, kMost)});
    hues_->ShowColors(hues);
    if (hasAlpha_)
        alphas_ = strip(Words::tr("Alpha"), kMost, [this](int alpha) {
            Take(graphics::SetAlphaByte(color_, static_cast<unsigned>(alpha)));
        });
    return strips;
}

void ColorDialog::AddComparison(QGridLayout& rows, Argb oldColor) {
    auto* both = new QVBoxLayout;
    both->setSpacing(4);
    auto* captions = new QHBoxLayout;
    captions->setSpacing(0);
    captions->addWidget(Caption(Words::tr("New")), 1);
    captions->addWidget(Caption(Words::tr("Old")), 1);
    both->addLayout(captions);
    comparison_ = new ColorComparison(oldColor);
    both->addWidget(comparison_);
    rows.addLayout(both, 0, 0, 1, 2);
    rows.setRowMinimumHeight(1, 4);
}

void ColorDialog::AddText(QGridLayout& rows) {
    text_ = new QLineEdit;
    text_->setObjectName("ColorText");
    text_->setAccessibleName(Words::tr("Color"));
    text_->setToolTip(hasAlpha_ ? Words::tr("#RRGGBB or #AARRGGBB") : "#RRGGBB");
    text_->setValidator(
        new QRegularExpressionValidator(QRegularExpression("\\s*#?[0-9A-Fa-f]{0,8}\\s*"), text_));
    connect(text_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (const auto color = ParseColorText(text, hasAlpha_, graphics::AlphaOf(color_)))
            Take(*color);
    });
    // What was left unfinished goes.
    connect(text_, &QLineEdit::editingFinished, this, [this] {
        if (!text_->hasFocus())
            text_->setText(ColorText(color_, hasAlpha_));
    });
    auto* label = new QLabel(Words::tr("Colo&r:"));
    label->setBuddy(text_);
    rows.addWidget(label, 2, 0);
    rows.addWidget(text_, 2, 1);
}

void ColorDialog::AddNumbers(QGridLayout& rows) {
    const char* const captions[] = {
        QT_TRANSLATE_NOOP("Words", "R&ed:"), QT_TRANSLATE_NOOP("Words", "&Green:"),
        QT_TRANSLATE_NOOP("Words", "&Blue:"), QT_TRANSLATE_NOOP("Words", "&Alpha:")};
    for (std::size_t channel = 0; channel < (hasAlpha_ ? 4 : 3); ++channel) {
        auto* number = new widgets::NumberSlider;
        number->setAccessibleName(Words::tr(captions[channel]).remove('&').remove(':'));
        number->SetRange(0, kMost);
        number->SetFollowsTyping(true);
        connect(number, &widgets::NumberSlider::Changed, this, [this, channel](int value) {
            const auto byte = static_cast<Argb>(std::clamp(value, 0, kMost));
            const int shift = kShifts[channel];
            Take((color_ & ~(Argb{0xFF} << shift)) | byte << shift);
        });
        auto* label = new QLabel(Words::tr(captions[channel]));
        label->setBuddy(number);
        const int row = rows.rowCount();
        rows.addWidget(label, row, 0);
        rows.addWidget(number, row, 1);
        numbers_.push_back(number);
    }
}

QWidget* ColorDialog::AddRecent() {
    auto* recent = new QWidget;
    auto* row = new QHBoxLayout(recent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(Caption(Words::tr("Recent colors")));
    row->addSpacing(4);
    const std::vector<Argb> colors = ReadRecentColors();
    for (std::size_t i = 0; i < kRecentCount; ++i) {
        auto* cell = new ColorCell;
        if (i < colors.size())
            cell->Show(hasAlpha_ ? colors[i] : graphics::SetAlphaByte(colors[i], kMost));
        connect(cell, &ColorCell::clicked, this, [this, cell] { Take(cell->Color()); });
        row->addWidget(cell);
    }
    row->addStretch();
    return recent;
}

void ColorDialog::Take(Argb color) {
    color_ = hasAlpha_ ? color : graphics::SetAlphaByte(color, kMost);
    const QColor shown = QColor::fromRgb(color_);
    brightness_ = shown.value();
    if (brightness_ > 0)
        saturation_ = shown.saturation();
    if (shown.hue() >= 0)
        hue_ = shown.hue();
    Show();
}

void ColorDialog::TakeHue(int hue) {
    hue_ = hue;
    TakeShade(saturation_, brightness_);
}

void ColorDialog::TakeShade(int saturation, int brightness) {
    saturation_ = saturation;
    brightness_ = brightness;
    color_ = graphics::SetAlphaByte(QColor::fromHsv(hue_, saturation, brightness).rgb(),
                                    graphics::AlphaOf(color_));
    Show();
}

void ColorDialog::Show() {
    square_->Show(hue_, saturation_, brightness_);
    const QSignalBlocker hues(hues_);
    hues_->setValue(hue_);
    if (alphas_) {
        const QSignalBlocker alphas(alphas_);
        alphas_->setValue(static_cast<int>(graphics::AlphaOf(color_)));
        alphas_->ShowColors({{0, QColor::fromRgb(color_)},
                             {1, QColor::fromRgba(graphics::SetAlphaByte(color_, 0))}});
    }
    comparison_->Show(color_);
    // What is being typed says so already.
    if (!text_->isModified() ||
        ParseColorText(text_->text(), hasAlpha_, graphics::AlphaOf(color_)) != color_)
        text_->setText(ColorText(color_, hasAlpha_));
    for (std::size_t channel = 0; channel < numbers_.size(); ++channel)
        numbers_[channel]->SetValue(static_cast<int>(ChannelOf(color_, channel)));
}

void ColorDialog::accept() {
    for (widgets::NumberSlider* number : numbers_)
        number->CommitTyping();
    if (!ParseColorText(text_->text(), hasAlpha_, graphics::AlphaOf(color_))) {
        text_->setFocus();
        text_->selectAll();
        return;
    }
    StoreRecentColor(color_);
    QDialog::accept();
}

}  // namespace orbelle::app
