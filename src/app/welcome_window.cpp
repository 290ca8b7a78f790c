#include "app/welcome_window.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include "editing/editor.h"
#include "widgets/artwork.h"

namespace orbelle::app {
namespace {

constexpr QSize kSize(480, 270);
constexpr int kTickMilliseconds = 10;
constexpr int kLastTick = 100;
constexpr int kLeft = 36;
constexpr QColor kHead(255, 255, 255);
constexpr QColor kText(200, 205, 212);

}  // namespace

WelcomeWindow::WelcomeWindow()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      picture_(widgets::Artwork("welcome", kSize, devicePixelRatioF())) {
    setObjectName("WelcomeWindow");
    setWindowTitle(editing::kProductName);
    setFixedSize(kSize);
    setFocusPolicy(Qt::StrongFocus);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center() - QPoint(kSize.width() / 2, kSize.height() / 2));
}

void WelcomeWindow::RunStart() {
    starting_ = true;
    setCursor(Qt::WaitCursor);
    show();
    auto* timer1 = new QTimer(this);
    connect(timer1, &QTimer::timeout, this, [this, timer1, count = 0]() mutable {
        if (++count <= kLastTick)
            return;
        timer1->stop();
        emit Finished();
        close();
    });
    timer1->start(kTickMilliseconds);
}

void WelcomeWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(44, 52, 64));
    painter.drawPixmap(0, 0, picture_);
    QFont font("Verdana");
    font.setPointSizeF(20);
    painter.setFont(font);
    painter.setPen(kHead);
    painter.drawText(QRect(kLeft, 84, kSize.width() - kLeft, 40), Qt::AlignVCenter,
                     editing::kProductName);
    font.setPointSizeF(9);
    painter.setFont(font);
    painter.setPen(kText);
    painter.drawText(QRect(kLeft, 124, kSize.width() - kLeft, 24), Qt::AlignVCenter,
                     "v" + QCoreApplication::applicationVersion());
}

void WelcomeWindow::mousePressEvent(QMouseEvent*) {
    if (!starting_)
        close();
}

void WelcomeWindow::keyPressEvent(QKeyEvent*) {
    if (!starting_)
        close();
}

}  // namespace orbelle::app
