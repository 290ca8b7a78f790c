#include "app/close_tips_tab.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

#include "widgets/chrome.h"

namespace orbelle::app {
namespace {

constexpr int kTickMilliseconds = 30;
constexpr char kText[] =
    "You can choose Help/Tips to close the tips if you already know how to use the Orbelle.";

}  // namespace

CloseTipsTab::CloseTipsTab(QWidget& panel) : QWidget(panel.parentWidget()), panel_(panel) {
    setObjectName("BottomCloseTips");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    row->setSpacing(12);
    auto* text = new QLabel(kText);
    text->setFont(widgets::ChromeFont(8));
    text->setStyleSheet("color: black");
    row->addWidget(text);
    auto* close = new QToolButton;
    close->setObjectName("CloseTips");
    close->setText(QString(QChar(0x00D7)));
    close->setAutoRaise(true);
    close->setToolTip("Close");
    row->addWidget(close);
    connect(close, &QToolButton::clicked, this, [this] {
        closed_ = true;
        slide_.stop();
        hide();
    });
    slide_.setInterval(kTickMilliseconds);
    connect(&slide_, &QTimer::timeout, this, &CloseTipsTab::Step);
    hide();
}

void CloseTipsTab::SlideUp() {
    if (closed_ || isVisible())
        return;
    resize(sizeHint());
    move(panel_.x() + (panel_.width() - width()) / 2, panel_.y());
    stackUnder(&panel_);
    show();
    slide_.start();
}

void CloseTipsTab::Place() {
    if (isVisible() && !slide_.isActive())
        move(panel_.x() + (panel_.width() - width()) / 2, panel_.y() - height());
}

void CloseTipsTab::Step() {
    move(x(), y() - 1);
    if (y() <= panel_.y() - height())
        slide_.stop();
}

void CloseTipsTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(widgets::kTipEdgeColor, 1));
    painter.setBrush(widgets::kTipColor);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, 5), 5, 5);
}

}  // namespace orbelle::app
