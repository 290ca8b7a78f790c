#include "app/icon_images_dialog.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>
#include <set>

#include "app/shared_image.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using How = CellChoice::How;

constexpr QColor kCheckColor(230, 230, 230);
constexpr int kFrameWidth = 2;
constexpr double kCaptionPoints = 8;
constexpr int kMargin = 20;
// What the dialog is wider and higher than its cells at most, with the window's frame.
constexpr QSize kAroundCells(2 * kMargin + 40, 240);
constexpr char kHint[] = QT_TRANSLATE_NOOP(
    "Words", "An icon can include several image formats, choose a image format you want.");
constexpr char kSeveralHint[] =
    QT_TRANSLATE_NOOP("Words", "With Ctrl or Shift you choose several.");

QRect RectOf(const graphics::RectI& rect) {
    return {rect.X, rect.Y, rect.Width, rect.Height};
}

QFont CaptionFont() {
    return widgets::ChromeFont(kCaptionPoints);
}

IconGrid GridFor(const std::vector<formats::IconEntryImage>& offered, QSize room) {
    const QFontMetrics metrics(CaptionFont());
    int width = 0;
    IconGrid grid(offered);
    for (int i = 0; i < grid.Count(); ++i)
        for (const std::string& text : {grid.SizeText(i), grid.DepthText(i)})
            width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(text)));
    grid.FitInto({room.width(), room.height()}, {width, 2 * metrics.lineSpacing()});
    return grid;
}

How HowWith(Qt::KeyboardModifiers keys) {
    if (keys & Qt::ShiftModifier)
        return How::Range;
    return keys & Qt::ControlModifier ? How::Toggle : How::Alone;
}

bool HasSeveralSizes(const std::vector<formats::IconEntryImage>& images) {
    std::set<int> sizes;
    for (const formats::IconEntryImage& image : images)
        if (formats::IsIconSize(image))
            sizes.insert(image.Width);
    return sizes.size() >= 2;
}

}  // namespace

IconGridView::IconGridView(const std::vector<formats::IconEntryImage>& offered, bool takesSeveral,
                           QSize room)
    : grid_(GridFor(offered, room)),
      choice_(grid_.Count(), grid_.Best(), takesSeveral),
      shrunk_(offered.size()) {
    widgets::ShowPartsToAssistiveTools();
    setAccessibleName(Words::tr("Images of the icon"));
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(grid_.Size().Width, grid_.Size().Height);
}

void IconGridView::Choose(int index, How how) {
    choice_.Choose(index, how);
    TellCurrent();
    emit ChoiceChanged();
}

void IconGridView::TellCurrent() {
    update();
    const int current = choice_.Current();
    if (current < 0)
        return;
    if (hasFocus())
        widgets::AnnounceFocus(*this, current);
    emit CurrentMoved(PartPlace(current));
}

QString IconGridView::PartName(int part) const {
    return QString::fromStdString(grid_.SizeText(part) + ", " + grid_.DepthText(part));
}

QString IconGridView::PartValue(int part) const {
    return Words::tr("%1 of %2").arg(part + 1).arg(grid_.Count());
}

QRect IconGridView::PartPlace(int part) const {
    return RectOf(grid_.Cell(part));
}

QAccessible::Role IconGridView::PartRole(int) const {
    return QAccessible::ListItem;
}

QAccessible::State IconGridView::PartState(int part) const {
    QAccessible::State state;
    state.selectable = true;
    state.selected = choice_.IsChosen(part);
    return state;
}

void IconGridView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setFont(CaptionFont());
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);  // "16 x 16" whatever stands around it
    for (int i = 0; i < grid_.Count(); ++i)
        if (PartPlace(i).intersects(event->rect()))
            PaintCell(painter, i);
}

void IconGridView::PaintCell(QPainter& painter, int index) {
    const bool chosen = choice_.IsChosen(index);
    const QRect cell = PartPlace(index).adjusted(1, 1, -1, -1);
    painter.fillRect(cell, chosen ? widgets::PressedColor() : widgets::CurrentTheme().Field);
    PaintPicture(painter, index);
    painter.setPen(widgets::CurrentTheme().Text);
    painter.drawText(RectOf(grid_.Caption(index)),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip,
                     QString::fromStdString(grid_.SizeText(index) + '\n' + grid_.DepthText(index)));
    if (chosen) {
        painter.setPen(QPen(widgets::CurrentTheme().Accent, kFrameWidth, Qt::SolidLine,
                            Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(cell.adjusted(1, 1, -1, -1));
    }
    // Where several can be chosen the current one need not be.
    if (index == choice_.Current() && hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = cell.adjusted(3, 3, -3, -3);
        option.backgroundColor = widgets::CurrentTheme().Field;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

// Each pixel a whole one where the picture has its own size, also on a finer screen.
void IconGridView::PaintPicture(QPainter& painter, int index) {
    const auto at = static_cast<std::size_t>(index);
    const QRect place = RectOf(grid_.Thumbnail(index));
    painter.fillRect(place, Qt::white);
    widgets::DrawChecker(painter, place, kCheckColor);
    const QImage image = SharedImage(grid_.Images()[at].Image);
    if (image.size() == place.size()) {
        painter.drawImage(place, image);
        return;
    }
    if (shrunk_[at].isNull()) {
        const double pixels = devicePixelRatioF();
        shrunk_[at] = QPixmap::fromImage(
            image.scaled(place.size() * pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        shrunk_[at].setDevicePixelRatio(pixels);
    }
    painter.drawPixmap(place, shrunk_[at]);
}

void IconGridView::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    Choose(grid_.CellAt(point.x(), point.y()), HowWith(event->modifiers()));
}

// The first press of the two has chosen.
void IconGridView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (grid_.CellAt(point.x(), point.y()) >= 0)
        emit DoubleClicked();
}

int IconGridView::CellByKey(int key) const {
    const int current = choice_.Current();
    const int last = grid_.Count() - 1;
    switch (key) {
        case Qt::Key_Left:
            return current - 1;
        case Qt::Key_Right:
            return current < last ? current + 1 : -1;
        case Qt::Key_Up:
            return current - grid_.Columns();
        case Qt::Key_Down: {
            // Into a last row that ends before this column.
            const bool hasRowBelow = current / grid_.Columns() < last / grid_.Columns();
            return hasRowBelow ? std::min(current + grid_.Columns(), last) : -1;
        }
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return last;
        default:
            return -1;
    }
}

void IconGridView::keyPressEvent(QKeyEvent* event) {
    constexpr int kMoving[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                               Qt::Key_Down, Qt::Key_Home,  Qt::Key_End};
    const How how = HowWith(event->modifiers());
    if (event->key() == Qt::Key_Space) {
        Choose(choice_.Current(), how == How::Range ? How::Range : How::Toggle);
    } else if (std::ranges::find(kMoving, event->key()) == std::end(kMoving)) {
        QWidget::keyPressEvent(event);
    } else if (const int cell = CellByKey(event->key()); cell < 0) {
        return;
    } else if (how == How::Toggle) {
        choice_.MoveTo(cell);
        TellCurrent();
    } else {
        Choose(cell, how);
    }
}

void IconGridView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    TellCurrent();
}

IconImagesDialog::IconImagesDialog(const std::vector<formats::IconEntryImage>& offered,
                                   const IconQuestion& question, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(Words::tr("Choose Icon Format"));
    const QSize around(kAroundCells.width(), widgets::WidthFor(kAroundCells.height()));
    const QSize room = screen()->availableSize() - around;
    grid_ = new IconGridView(offered, question.TakesSeveral, room);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, 16);
    layout->setSpacing(16);
    QString text = Words::tr(kHint);
    if (question.TakesSeveral)
        text += ' ' + Words::tr(kSeveralHint);
    auto* hint = new QLabel(text);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto* area = new QScrollArea;
    area->setWidget(grid_);
    area->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    area->setFocusPolicy(Qt::NoFocus);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const bool scrolls = grid_->height() > room.height();
    const int bar = scrolls ? area->verticalScrollBar()->sizeHint().width() : 0;
    area->setMinimumSize(grid_->width() + bar, std::min(grid_->height(), room.height()));
    layout->addWidget(area, 1);
    connect(grid_, &IconGridView::CurrentMoved, area, [area](const QRect& cell) {
        const QPoint centre = cell.center();
        area->ensureVisible(centre.x(), centre.y(), 0, cell.height() / 2 + 1);
    });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    connect(ok, &QPushButton::clicked, this, [this] { Take(false); });
    connect(buttons, &QDialogButtonBox::rejected, this, &IconImagesDialog::reject);
    connect(grid_, &IconGridView::ChoiceChanged, ok,
            [this, ok] { ok->setEnabled(!grid_->Choice().Chosen().empty()); });
    connect(grid_, &IconGridView::DoubleClicked, ok, &QPushButton::click);
    ok->setEnabled(!offered.empty());
    if (question.OffersAllSizes && HasSeveralSizes(offered)) {
        auto* all = buttons->addButton(Words::tr("Open &All Sizes"), QDialogButtonBox::ActionRole);
        all->setAutoDefault(false);
        connect(all, &QPushButton::clicked, this, [this] { Take(true); });
    }
    ok->setDefault(true);
    grid_->setFocus();
}

void IconImagesDialog::Take(bool allSizes) {
    choice_ = {grid_->Choice().Chosen(), allSizes};
    accept();
}

}  // namespace orbelle::app
