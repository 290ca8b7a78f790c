#include "app/icon_images_dialog.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

#include "app/shared_image.h"
#include "widgets/chrome.h"

namespace orbelle::app {
namespace {

constexpr int kStripHeight = 200;
constexpr int kVisibleCells = 5;
constexpr QColor kBackColor(245, 245, 245);
constexpr QColor kPlateColor(255, 255, 255);
constexpr QColor kSelectedPlateColor(255, 255, 255, 100);
constexpr QColor kCaptionColor(0, 0, 0, 200);
constexpr int kCaptionWidth = 200;
constexpr char kHint[] =
    "An icon can include several image formats, choose a image format you want.";

QRect RectOf(const graphics::RectI& rect) {
    return {rect.X, rect.Y, rect.Width, rect.Height};
}

}  // namespace

IconStripView::IconStripView(const std::vector<formats::IconEntryImage>& offered)
    : strip_(offered) {
    setAccessibleName("Images of the icon");
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(strip_.Width(), kStripHeight);
    TellSelection();
}

void IconStripView::Select(int index) {
    if (index < 0 || index >= static_cast<int>(strip_.Images.size()))
        return;
    strip_.SelectedIndex = index;
    TellSelection();
    update();
    emit SelectionMoved(RectOf(strip_.Cell(index, height())));
}

void IconStripView::TellSelection() {
    const int index = strip_.SelectedIndex;
    if (index >= 0)
        setAccessibleDescription(QString("%1, %2 of %3")
                                     .arg(QString::fromStdString(strip_.Caption(index)))
                                     .arg(index + 1)
                                     .arg(strip_.Images.size()));
}

void IconStripView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setFont(widgets::ChromeFont(8));
    for (int i = 0; i < static_cast<int>(strip_.Images.size()); ++i)
        if (RectOf(strip_.Cell(i, height())).intersects(event->rect()))
            PaintCell(painter, i);
}

void IconStripView::PaintCell(QPainter& painter, int index) const {
    const bool selected = index == strip_.SelectedIndex;
    QRect plate = RectOf(strip_.Cell(index, height()));
    plate.setWidth(IconImageStrip::kCellPlateWidth);
    painter.fillRect(plate, selected ? kSelectedPlateColor : kPlateColor);

    const QRect place = RectOf(strip_.Thumbnail(index, height()));
    if (!place.isEmpty())
        painter.drawImage(place, SharedImage(strip_.Images[static_cast<std::size_t>(index)].Image));

    const graphics::PointF caption = strip_.CaptionPlace(index, height());
    painter.setPen(kCaptionColor);
    painter.drawText(QRectF(caption.X, caption.Y, kCaptionWidth, height() - caption.Y),
                     Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(strip_.Caption(index)));

    // The two plates differ by a shade: someone who chooses by key has to see more.
    if (selected && hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = plate;
        option.backgroundColor = kBackColor;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void IconStripView::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    strip_.Press(point.x(), point.y(), height());
    Select(strip_.SelectedIndex);
}

// The first press of the two has selected.
void IconStripView::mouseDoubleClickEvent(QMouseEvent*) {
    emit DoubleClicked();
}

void IconStripView::keyPressEvent(QKeyEvent* event) {
    const int last = static_cast<int>(strip_.Images.size()) - 1;
    switch (event->key()) {
        case Qt::Key_Left:
            return Select(strip_.SelectedIndex - 1);
        case Qt::Key_Right:
            return Select(strip_.SelectedIndex + 1);
        case Qt::Key_Home:
            return Select(0);
        case Qt::Key_End:
            return Select(last);
        default:
            QWidget::keyPressEvent(event);
    }
}

IconImagesDialog::IconImagesDialog(const std::vector<formats::IconEntryImage>& offered,
                                   QWidget* parent)
    : QDialog(parent), strip_(new IconStripView(offered)) {
    setWindowTitle("Choose Icon Format");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);
    auto* hint = new QLabel(kHint);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto* area = new QScrollArea;
    area->setWidget(strip_);
    area->setFocusPolicy(Qt::NoFocus);
    area->setFrameShape(QFrame::NoFrame);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPalette palette = area->palette();
    palette.setColor(QPalette::Window, kBackColor);
    area->setPalette(palette);
    area->setFixedHeight(kStripHeight + area->horizontalScrollBar()->sizeHint().height());
    area->setMinimumWidth(kVisibleCells * IconImageStrip::kCellWidth);
    layout->addWidget(area);
    connect(strip_, &IconStripView::DoubleClicked, this, &IconImagesDialog::accept);
    connect(strip_, &IconStripView::SelectionMoved, area, [area](const QRect& cell) {
        const QPoint centre = cell.center();
        area->ensureVisible(centre.x(), centre.y(), cell.width() / 2, 0);
    });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &IconImagesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &IconImagesDialog::reject);
    strip_->setFocus();
}

}  // namespace orbelle::app
