#include "app/suggest_dialog.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "app/shared_image.h"
#include "app/suggestion_tile.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using filters::SizeRecipe;

constexpr int kMargin = 20;
constexpr int kSpacing = 12;
// What the dialog is wider and higher than its tiles at most, with the window's frame.
constexpr QSize kAroundTiles(2 * kMargin + 40, 190);

struct Texts {
    const char* Name;
    const char* Meaning;
};

Texts TextsOf(SizeRecipe recipe) {
    switch (recipe) {
        case SizeRecipe::Plain:
            return {QT_TRANSLATE_NOOP("Words", "Plain"),
                    QT_TRANSLATE_NOOP("Words", "The whole icon, as an export shrinks it")};
        case SizeRecipe::Sharper:
            return {QT_TRANSLATE_NOOP("Words", "Sharper"),
                    QT_TRANSLATE_NOOP("Words", "The whole icon, its colors sharpened")};
        case SizeRecipe::Fill:
            return {QT_TRANSLATE_NOOP("Words", "Filled"),
                    QT_TRANSLATE_NOOP("Words", "The icon without its margin")};
        case SizeRecipe::FillOutline:
            return {QT_TRANSLATE_NOOP("Words", "Filled, outlined"),
                    QT_TRANSLATE_NOOP("Words", "The icon without its margin, with a dark outline")};
        case SizeRecipe::Outline:
            return {QT_TRANSLATE_NOOP("Words", "Outlined"),
                    QT_TRANSLATE_NOOP("Words", "The whole icon, with a dark outline")};
        case SizeRecipe::Snapped:
            return {
                QT_TRANSLATE_NOOP("Words", "Snapped to pixels"),
                QT_TRANSLATE_NOOP("Words", "The icon with its strongest edges on whole pixels")};
    }
    return {};
}

int CaptionWidth() {
    const QFontMetrics metrics(widgets::ChromeFont(9));
    int width = 0;
    for (const SizeRecipe recipe : filters::kSizeRecipes)
        width = std::max(width, metrics.horizontalAdvance(Words::tr(TextsOf(recipe).Name)));
    return width;
}

// `row`, which scrolls where there is not room enough for it.
QWidget* WithinRoom(QWidget* row, QSize room) {
    auto* area = new QScrollArea;
    area->setWidget(row);
    area->setFocusPolicy(Qt::NoFocus);
    area->setFrameShape(QFrame::NoFrame);
    QSize shown = row->sizeHint();
    if (shown.width() > room.width())
        shown.rheight() += area->horizontalScrollBar()->sizeHint().height();
    if (shown.height() > room.height())
        shown.rwidth() += area->verticalScrollBar()->sizeHint().width();
    area->setFixedSize(shown.boundedTo(room));
    return area;
}

}  // namespace

SuggestDialog::SuggestDialog(const graphics::Bitmap& master, int size, QWidget* parent)
    : QDialog(parent) {
    const QString name = QString("%1 x %1").arg(size);
    setWindowTitle(Words::tr("Suggest for %1").arg(name));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, 16);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(
        new QLabel(Words::tr("Click a picture to start drawing %1 by hand from it.").arg(name)));

    constexpr int kCount = filters::kSizeRecipes.size();
    constexpr QSize kBetween((kCount - 1) * kSpacing, 0);
    const QSize room = screen()->availableSize() - kAroundTiles;
    const TileLayout tiles =
        TileLayout::Fitting(size, kCount, CaptionWidth(), devicePixelRatioF(), room - kBetween);
    auto* row = new QWidget;
    auto* places = new QHBoxLayout(row);
    places->setContentsMargins(0, 0, 0, 0);
    places->setSpacing(kSpacing);
    for (const SizeRecipe recipe : filters::kSizeRecipes) {
        const Texts texts = TextsOf(recipe);
        auto* tile = new SuggestionTile(Words::tr(texts.Name), Words::tr(texts.Meaning),
                                        SharedImage(ApplyRecipe(recipe, master, size)), tiles);
        connect(tile, &QPushButton::clicked, this, [this, recipe] {
            recipe_ = recipe;
            accept();
        });
        places->addWidget(tile);
    }
    layout->addWidget(WithinRoom(row, room));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &SuggestDialog::reject);
    findChild<SuggestionTile*>()->setFocus();
}

}  // namespace orbelle::app
