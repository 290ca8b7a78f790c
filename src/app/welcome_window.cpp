#include "app/welcome_window.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "editing/editor.h"
#include "widgets/artwork.h"
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

constexpr QSize kSize(480, 270);
constexpr int kTickMilliseconds = 10;
constexpr int kLastTick = 100;
constexpr int kLeft = 36;
constexpr QColor kGround(44, 52, 64);
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
    connect(&stay_, &QTimer::timeout, this, [this] {
        if (++ticks_ > kLastTick)
            EndStart();
    });
    stay_.start(kTickMilliseconds);
}

void WelcomeWindow::EndStart() {
    if (!stay_.isActive())
        return;
    stay_.stop();
    emit Finished();
    close();
}

void WelcomeWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight);  // the words stand beside the picture
    painter.fillRect(rect(), kGround);
    painter.drawPixmap(0, 0, picture_);
    painter.setFont(widgets::ChromeFont(20));
    painter.setPen(kHead);
    painter.drawText(QRect(kLeft, 84, kSize.width() - kLeft, 40), Qt::AlignVCenter,
                     editing::kProductName);
    painter.setFont(widgets::ChromeFont(9));
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
