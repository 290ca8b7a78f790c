#include "app/start_parts.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <algorithm>

#include "app/file_names.h"
#include "app/recent_files.h"
#include "widgets/artwork.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using namespace widgets;

constexpr int kArtworkSide = 32;  // twice the grid that the drawings are made on
constexpr int kPictureSide = 64;
constexpr int kTileWidth = 104;
constexpr int kHintHeight = 24;

void DrawRing(QPainter& painter, const QRectF& place, const QPen& pen, const QBrush& brush) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    const double inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), kCornerRadius,
                            kCornerRadius);
    painter.restore();
}

}  // namespace

SceneButton::SceneButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(true);  // Return presses it
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setFont(ChromeFont(kNormalText));
}

void SceneButton::DrawFaceAndFocus(QPainter& painter) const {
    const QColor face = isDown()                     ? ScenePressedColor()
                        : underMouse() || hasFocus() ? SceneHoverColor()
                                                     : SceneTheme().Field;
    const QPen ring = hasFocus() ? QPen(SceneTheme().Accent, 2) : QPen(Qt::NoPen);
    DrawRing(painter, rect(), ring, face);
    painter.setPen(SceneTheme().Text);
}

StartButton::StartButton(const QString& artwork, const QString& text, QWidget* parent)
    : SceneButton(parent), artwork_(artwork) {
    setText(text);
    setAccessibleName(text);
    setFont(ChromeFont(kLargeText));
}

QSize StartButton::sizeHint() const {
    return {kArtworkSide + fontMetrics().horizontalAdvance(text()) + 2 * kWideSpace + kSpace,
            std::max(kArtworkSide, fontMetrics().height()) + 2 * kWideSpace};
}

void StartButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawFaceAndFocus(painter);
    const int words = fontMetrics().horizontalAdvance(text());
    const int left = (width() - kArtworkSide - kSpace - words) / 2;
    const QRect picture(left, (height() - kArtworkSide) / 2, kArtworkSide, kArtworkSide);
    const QRect text(picture.right() + 1 + kSpace, 0, words, height());
    painter.drawPixmap(QStyle::visualRect(layoutDirection(), rect(), picture).topLeft(),
                       Artwork(artwork_, picture.size(), devicePixelRatioF(), Shade::Dark));
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), text),
                     Qt::AlignVCenter | Qt::AlignHCenter | Qt::TextSingleLine, this->text());
}

FileTile::FileTile(const std::filesystem::path& path, QWidget* parent)
    : SceneButton(parent), path_(path), name_(ShownPath(path.filename())) {
    setToolTip(ShownPath(path));
    setAccessibleName(name_ + ", " + ShownPath(path.parent_path()));
}

int FileTile::PictureSide() {
    return kPictureSide;
}

QSize FileTile::sizeHint() const {
    return {kTileWidth, kSpace + kPictureSide + kSpace + fontMetrics().height() + kSpace};
}

void FileTile::Show(const QImage& picture) {
    picture_ = picture;
    isMade_ = true;
    update();
}

void FileTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawFaceAndFocus(painter);
    DrawPicture(painter, {(width() - kPictureSide) / 2, kSpace, kPictureSide, kPictureSide});
    const QRect name(kTightSpace, kPictureSide + 2 * kSpace, width() - 2 * kTightSpace,
                     fontMetrics().height());
    painter.drawText(name, Qt::AlignCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(name_, Qt::ElideMiddle, name.width()));
}

// Small pages in squares of whole pixels of the screen, others one to one, on checks.
void FileTile::DrawPicture(QPainter& painter, const QRect& place) const {
    if (picture_.isNull()) {
        painter.setPen(SceneTheme().Note);
        if (isMade_)
            painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                             TextOf(path_.extension()));
        else
            DrawRing(painter, place, QPen(Qt::NoPen), SceneTheme().Ground);
        painter.setPen(SceneTheme().Text);
        return;
    }
    const double scale = devicePixelRatioF();
    const int longer = std::max(picture_.width(), picture_.height());
    const int times = std::max(static_cast<int>(kPictureSide * scale) / longer, 1);
    const QSizeF size = QSizeF(picture_.size() * times) / scale;
    QPointF corner = QRectF(place).center() - QPointF(size.width(), size.height()) / 2;
    corner = QPointF(QPointF(corner * scale).toPoint()) / scale;
    const QRectF shown(corner, size);
    painter.setBrushOrigin(shown.topLeft());
    painter.fillRect(shown, GreyChecks());
    painter.drawImage(shown, picture_);
}

void FileTile::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    menu.addAction(Words::tr("Remove from List"), this, &FileTile::ForgetWanted);
    const bool isKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    menu.exec(isKeyboard ? mapToGlobal(rect().center()) : event->globalPos());
}

DropHint::DropHint(QWidget* parent) : QWidget(parent) {
    setObjectName("DropHint");
    setAccessibleName(Words::tr("or drop a picture here"));
    setFont(ChromeFont(kLargeText));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize DropHint::sizeHint() const {
    return {fontMetrics().horizontalAdvance(accessibleName()) + 2 * kWideSpace,
            std::max(fontMetrics().height(), kHintHeight)};
}

void DropHint::SetShown(bool hasWords, bool hasFrame) {
    hasWords_ = hasWords;
    hasFrame_ = hasFrame;
    update();
}

void DropHint::SetLit(bool isLit) {
    isLit_ = isLit;
    update();
}

void DropHint::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme theme = SceneTheme();
    if (isLit_)
        DrawRing(painter, rect(), QPen(theme.Accent, 2, Qt::DashLine), SceneHoverColor());
    else if (hasFrame_)
        DrawRing(painter, rect(), QPen(theme.Line, 1, Qt::DashLine), Qt::NoBrush);
    if (!hasWords_)
        return;
    painter.setPen(isLit_ ? theme.Text : theme.Note);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, accessibleName());
}

}  // namespace orbelle::app
