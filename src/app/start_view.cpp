#include "app/start_view.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTimer>
#include <algorithm>

#include "app/recent_files.h"
#include "app/start_parts.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using widgets::kSpace;
using widgets::kWideSpace;

constexpr std::size_t kMostTiles = 6;
constexpr int kButtonWidth = 152;
// The welcome text and some room around it.
QSize MiddleSize() {
    return {widgets::WidthFor(456), widgets::WidthFor(140)};
}

// From so far above the middle of the scene on.
int AboveMiddle() {
    return widgets::WidthFor(84);
}

}  // namespace

StartView::StartView(RecentFiles& files, QWidget& scene)
    : QWidget(&scene),
      files_(files),
      scene_(scene),
      new_(new StartButton("main/new", Words::tr("New"), this)),
      open_(new StartButton("main/open", Words::tr("Open"), this)),
      hint_(new DropHint(this)) {
    setObjectName("StartView");
    setAccessibleName(Words::tr("Start"));
    setCursor(Qt::ArrowCursor);
    setFont(widgets::ChromeFont(widgets::kNormalText));
    new_->setObjectName("StartNew");
    open_->setObjectName("StartOpen");
    setTabOrder(&scene, new_);
    setTabOrder(new_, open_);
    connect(new_, &StartButton::clicked, this, &StartView::NewWanted);
    connect(open_, &StartButton::clicked, this, &StartView::OpenWanted);
    connect(&files, &RecentFiles::Changed, this, [this] {
        isDue_ = true;
        update();
    });
    connect(&thumbnails_, &FileThumbnails::Found, this, &StartView::Fill);
    connect(&thumbnails_, &FileThumbnails::Made, this, &StartView::ShowPicture);
    scene.installEventFilter(this);
    Place();
}

void StartView::MakeRoomForWelcome(bool isShown) {
    isWelcome_ = isShown;
    Place();
}

void StartView::ShowDrag(bool hovers) {
    hint_->SetLit(hovers);
}

std::vector<QRect> StartView::Places() const {
    std::vector<QRect> places;
    for (const QWidget* part : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (part->isVisible())
            places.push_back(part->geometry());
    return places;
}

bool StartView::IsAtRest() const {
    return !isVisible() || (!isDue_ && missing_ == 0);
}

int StartView::WantedSide() const {
    return static_cast<int>(FileTile::PictureSide() * devicePixelRatioF());
}

// Once it is seen: a start that opens a file makes no pictures of others.
void StartView::AskForFiles() {
    const int side = WantedSide();
    if (!isVisible() || (!isDue_ && side_ == side))
        return;
    isDue_ = false;
    side_ = side;
    missing_ = 1;
    thumbnails_.Want(files_.Paths(), kMostTiles, side);
}

void StartView::Fill(const std::vector<std::filesystem::path>& paths) {
    const auto focused = std::ranges::find(tiles_, window()->focusWidget());
    const auto place = static_cast<std::size_t>(focused - tiles_.begin());
    const bool hadFocus = focused != tiles_.end();
    std::vector<FileTile*> old;
    old.swap(tiles_);
    QWidget* before = open_;
    for (const std::filesystem::path& path : paths) {
        auto* tile = new FileTile(path, this);
        connect(tile, &FileTile::clicked, this, [this, path] { emit Wanted(path); });
        connect(tile, &FileTile::ForgetWanted, this, [this, path] { files_.Forget(path); });
        setTabOrder(before, tile);
        before = tile;
        tiles_.push_back(tile);
    }
    missing_ = tiles_.size();
    Place();
    if (hadFocus && !tiles_.empty())
        tiles_[std::min(place, tiles_.size() - 1)]->setFocus();
    // Later: the menu of one of them may be closing.
    for (FileTile* tile : old) {
        tile->hide();
        tile->deleteLater();
    }
}

void StartView::ShowPicture(const std::filesystem::path& path, const QImage& picture) {
    const auto tile = std::ranges::find(tiles_, path, &FileTile::Path);
    if (tile == tiles_.end())
        return;
    (*tile)->Show(picture);
    --missing_;
}

int StartView::TilesHeight() const {
    return tiles_.empty()
               ? 0
               : fontMetrics().height() + widgets::kTightSpace + tiles_[0]->sizeHint().height();
}

void StartView::Place() {
    setGeometry(scene_.rect());
    const QSize middleSize = MiddleSize();
    const int middle = height() / 2 - AboveMiddle();
    const int top = middle - kWideSpace - ButtonsHeight();
    const int tiles = middle + middleSize.height() + kWideSpace;
    if (top >= kSpace && tiles + TilesHeight() + kSpace <= height() &&
        width() >= middleSize.width() + 2 * kSpace) {
        // Together as wide as the place below them.
        PlaceButtons(top, std::max(ButtonWidth(), (middleSize.width() - kWideSpace) / 2), true);
        hint_->setGeometry(QRect(QPoint((width() - middleSize.width()) / 2, middle), middleSize));
        hint_->SetShown(!isWelcome_, true);
        hint_->show();
        PlaceTiles(tiles, true);
    } else {
        PlaceClosely();
    }
    update();
}

// One below the other, after the welcome text; what has no room is left out.
void StartView::PlaceClosely() {
    const QSize hint = hint_->sizeHint();
    const int buttons = ButtonsHeight();
    const int withHint = buttons + kSpace + hint.height();
    const bool hasHint = hint.width() <= width() && withHint <= height();
    const int start = hasHint ? withHint : buttons;
    const int all = start + kWideSpace + TilesHeight();
    const bool hasTiles = all + 2 * kSpace <= height();
    const int top = std::max((height() - (hasTiles ? all : start)) / 2, 0);
    PlaceButtons(top, std::min(ButtonWidth(), width()), !isWelcome_);
    hint_->setGeometry((width() - hint.width()) / 2, top + buttons + kSpace, hint.width(),
                       hint.height());
    hint_->setVisible(hasHint);
    hint_->SetShown(!isWelcome_, false);
    PlaceTiles(top + start + kWideSpace, hasTiles && !isWelcome_);
}

int StartView::ButtonWidth() const {
    return std::max({kButtonWidth, new_->sizeHint().width(), open_->sizeHint().width()});
}

bool StartView::AreButtonsStacked() const {
    return 2 * ButtonWidth() + kWideSpace + 2 * kSpace > width();
}

int StartView::ButtonsHeight() const {
    const int height = new_->sizeHint().height();
    return AreButtonsStacked() ? 2 * height + kSpace : height;
}

void StartView::PlaceButtons(int top, int buttonWidth, bool areShown) {
    const QSize size(buttonWidth, new_->sizeHint().height());
    const QPoint step = AreButtonsStacked() ? QPoint(0, size.height() + kSpace)
                                            : QPoint(size.width() + kWideSpace, 0);
    QRect place(QPoint((width() - size.width() - step.x()) / 2, top), size);
    for (StartButton* button : {new_, open_}) {
        button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        button->setVisible(areShown);
        place.translate(step);
    }
}

void StartView::PlaceTiles(int top, bool areShown) {
    head_ = {};
    const QSize size = tiles_.empty() ? QSize() : tiles_[0]->sizeHint();
    const int step = size.width() + kSpace;
    const int room = std::max((width() - 2 * kWideSpace + kSpace) / std::max(step, 1), 0);
    const int shown = areShown ? std::min(room, static_cast<int>(tiles_.size())) : 0;
    int left = (width() - shown * step + kSpace) / 2;
    if (shown > 0)
        head_ = QRect(left, top, shown * step - kSpace, fontMetrics().height());
    const int first = top + fontMetrics().height() + widgets::kTightSpace;
    for (int i = 0; i < static_cast<int>(tiles_.size()); ++i, left += step) {
        FileTile& tile = *tiles_[static_cast<std::size_t>(i)];
        tile.setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), QRect(QPoint(left, first), size)));
        tile.setVisible(i < shown);
    }
}

bool StartView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        Place();
    return QWidget::eventFilter(watched, event);
}

void StartView::hideEvent(QHideEvent*) {
    thumbnails_.Stop();
    isDue_ = true;
}

void StartView::paintEvent(QPaintEvent*) {
    if (isDue_ || side_ != WantedSide())
        QTimer::singleShot(0, this, &StartView::AskForFiles);
    if (head_.isEmpty())
        return;
    QPainter painter(this);
    painter.setPen(widgets::SceneTheme().Note);
    painter.drawText(head_,
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) |
                                      Qt::AlignVCenter),
                     Words::tr("Recent files"));
}

}  // namespace orbelle::app
