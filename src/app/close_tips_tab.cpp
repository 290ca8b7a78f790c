#include "app/close_tips_tab.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kTickMilliseconds = 30;
constexpr int kGap = 4;
constexpr char kText[] = QT_TRANSLATE_NOOP(
    "Words",
    "You can choose Help/Tips to close the tips if you already know how to use the Orbelle.");

}  // namespace

CloseTipsTab::CloseTipsTab(QWidget& parent, QWidget& panel, QWidget& scrollBar)
    : QWidget(&parent), panel_(panel), scrollBar_(scrollBar) {
    setObjectName("BottomCloseTips");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    row->setSpacing(12);
    auto* text = new QLabel(Words::tr(kText));
    text->setFont(widgets::ChromeFont(8));
    row->addWidget(text);
    auto* close = new QToolButton;
    close->setObjectName("CloseTips");
    close->setText(QString(QChar(0x00D7)));
    close->setAutoRaise(true);
    close->setToolTip(Words::tr("Close"));
    row->addWidget(close);
    connect(close, &QToolButton::clicked, this, [this] {
        closed_ = true;
        slide_.stop();
        hide();
    });
    slide_.setInterval(kTickMilliseconds);
    connect(&slide_, &QTimer::timeout, this, &CloseTipsTab::Step);
    for (QWidget* below : {&panel_, &scrollBar_})
        below->installEventFilter(this);
    hide();
}

bool CloseTipsTab::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            Place();
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void CloseTipsTab::SlideUp() {
    if (closed_ || isVisible())
        return;
    resize(sizeHint());
    shown_ = 0;
    Place();
    show();
    raise();
    slide_.start();
}

void CloseTipsTab::StepAsideFor(const std::vector<QRect>& others) {
    others_ = others;
    Place();
}

int CloseTipsTab::Floor() const {
    const QWidget& edge = scrollBar_.isVisible() ? scrollBar_ : panel_;
    return edge.mapTo(parentWidget(), QPoint(0, 0)).y();
}

// In the middle, or beside what lies there, whichever is nearest to the middle.
int CloseTipsTab::LeftEdge() const {
    const int first = panel_.mapTo(parentWidget(), QPoint(0, 0)).x();
    const int last = first + panel_.width() - width();
    const int middle = (first + last) / 2;
    std::vector<int> edges = {middle};
    for (const QRect& other : others_) {
        edges.push_back(other.left() - kGap - width());
        edges.push_back(other.right() + 1 + kGap);
    }
    std::optional<int> best;
    for (const int left : edges) {
        const QRect place(left, Floor() - height(), width(), height());
        const bool isFree = std::ranges::none_of(
            others_, [&](const QRect& other) { return other.intersects(place); });
        const bool isNearer = !best || std::abs(left - middle) < std::abs(*best - middle);
        if (isFree && isNearer && left >= first && left <= last)
            best = left;
    }
    return best.value_or(middle);
}

void CloseTipsTab::Place() {
    if (isHidden() && shown_ > 0)
        return;
    move(LeftEdge(), Floor() - shown_);
    // Nothing of it is seen below the edge that it comes up from.
    const QRect seen(0, 0, width(), std::max(shown_, 1));
    if (mask().boundingRect() != seen)
        setMask(seen);
}

void CloseTipsTab::Step() {
    ++shown_;
    Place();
    if (shown_ >= height())
        slide_.stop();
}

void CloseTipsTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(widgets::CurrentTheme().Line, 1));
    painter.setBrush(widgets::CurrentTheme().Field);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, 5), 5, 5);
}

}  // namespace orbelle::app
