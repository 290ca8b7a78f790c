#include "app/close_tips_tab.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace orbelle::app {
namespace {

constexpr int kTickMilliseconds = 30;
constexpr char kText[] =
    "You can choose Help/Tips to close the tips if you already know how to use the Orbelle.";
constexpr QColor kBackground(255, 253, 240);
constexpr QColor kBorder(200, 190, 150);

}  // namespace

CloseTipsTab::CloseTipsTab(QWidget& panel) : QWidget(panel.parentWidget()), panel_(panel) {
    setObjectName("BottomCloseTips");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    row->setSpacing(12);
    auto* text = new QLabel(kText);
    QFont font("Verdana");
    font.setPointSizeF(8);
    text->setFont(font);
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
        timer3_.stop();
        hide();
    });
    timer3_.setInterval(kTickMilliseconds);
    connect(&timer3_, &QTimer::timeout, this, &CloseTipsTab::Step);
    hide();
}

void CloseTipsTab::SlideUp() {
    if (closed_ || isVisible())
        return;
    resize(sizeHint());
    move(panel_.x() + (panel_.width() - width()) / 2, panel_.y());
    stackUnder(&panel_);
    show();
    timer3_.start();
}

void CloseTipsTab::Place() {
    if (isVisible() && !timer3_.isActive())
        move(panel_.x() + (panel_.width() - width()) / 2, panel_.y() - height());
}

void CloseTipsTab::Step() {
    move(x(), y() - 1);
    if (y() <= panel_.y() - height())
        timer3_.stop();
}

void CloseTipsTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kBorder, 1));
    painter.setBrush(kBackground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, 5), 5, 5);
}

}  // namespace orbelle::app
