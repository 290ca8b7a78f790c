#include "app/gif_optimizer_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "app/gif_preview.h"
#include "app/settings.h"
#include "app/shared_image.h"
#include "formats/gif_palette.h"
#include "graphics/checkerboard.h"
#include "widgets/number_slider.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kBox = 256;  // pixels a side of both previews
constexpr int kWholeCells = kBox / graphics::kCheckerCell * graphics::kCheckerCell;
constexpr graphics::Argb kWhite = graphics::MakeArgb(255, 255, 255, 255);
constexpr graphics::Argb kChecker = graphics::MakeArgb(255, 235, 235, 235);
constexpr int kSliderEnd = 150;  // a larger threshold can be typed
constexpr char kSetting[] = "Optimize";
constexpr char kHint[] = QT_TRANSLATE_NOOP(
    "Words",
    "You can input a new transparent value if you not satisfactory current transparent result.");

// A white box with the checkerboard, and on it what `draw` paints.
template <typename Draw>
QPixmap PaintPreview(const Draw& draw) {
    graphics::Bitmap box(kBox, kBox);
    graphics::DrawingContext context(box);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.Clear(kWhite);
    DrawCheckerboard(box, {0, 0, kWholeCells, kWholeCells}, kWhite, kChecker);
    draw(context);
    return QPixmap::fromImage(SharedImage(box));
}

QLabel* AddPreview(QGridLayout& layout, int column, const QString& caption) {
    auto* box = new QLabel;
    box->setFixedSize(kBox + 2, kBox + 2);
    box->setStyleSheet("border: 1px solid palette(mid)");
    box->setAccessibleName(caption);
    layout.addWidget(new QLabel(caption), 0, column);
    layout.addWidget(box, 1, column);
    return box;
}

}  // namespace

GifOptimizerDialog::GifOptimizerDialog(const graphics::Bitmap& surface, QWidget* parent)
    : QDialog(parent), surface_(surface) {
    setWindowTitle(Words::tr("GIF Transparency Optimizer"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* head = new QLabel(Words::tr("GIF Optimizer..."));
    QFont font = head->font();
    font.setPointSize(12);
    head->setFont(font);
    layout->addWidget(head);

    auto* previews = new QGridLayout;
    previews->setHorizontalSpacing(20);
    previews->setVerticalSpacing(6);
    previews->setRowStretch(1, 1);
    layout->addLayout(previews);
    QLabel* original = AddPreview(*previews, 0, Words::tr("Original"));
    result_ = AddPreview(*previews, 1, Words::tr("Transparency  GIF"));
    result_->setObjectName("Result");
    original->setPixmap(PaintPreview([&](graphics::DrawingContext& context) {
        context.DrawImageRect(surface_, PreviewRect(surface_, kBox, kBox));
    }));

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    layout->addLayout(row);
    auto* label = new QLabel(Words::tr("&Transparency Adjustment:"));
    threshold_ = new widgets::NumberSlider;
    threshold_->setObjectName("Threshold");
    threshold_->setAccessibleName(Words::tr("Transparency Adjustment"));
    threshold_->SetRange(0, kSliderEnd);
    threshold_->SetFollowsTyping(true);
    label->setBuddy(threshold_);
    row->addWidget(label);
    row->addWidget(threshold_);
    row->addStretch();

    auto* hint = new QLabel(Words::tr(kHint));
    hint->setWordWrap(true);
    hint->setFixedWidth(2 * kBox + 20);
    layout->addWidget(hint);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &GifOptimizerDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &GifOptimizerDialog::reject);
    connect(threshold_, &widgets::NumberSlider::Changed, this, &GifOptimizerDialog::ShowResult);

    // A stored 0 is taken for none.
    const int stored = Settings().value(kSetting).toInt();
    threshold_->SetValue(stored == 0 ? formats::kUsualGifThreshold : stored);
    ShowResult();
    threshold_->setFocus();
}

int GifOptimizerDialog::OptimizeValue() const {
    return std::clamp(threshold_->Value(), 0, formats::kMaxGifThreshold);
}

void GifOptimizerDialog::done(int result) {
    threshold_->CommitTyping();
    Settings().setValue(kSetting, OptimizeValue());
    QDialog::done(result);
}

void GifOptimizerDialog::ShowResult() {
    result_->setPixmap(PaintPreview([&](graphics::DrawingContext& context) {
        DrawGifPreview(context, surface_, kBox, kBox, static_cast<std::uint8_t>(OptimizeValue()));
    }));
}

}  // namespace orbelle::app
