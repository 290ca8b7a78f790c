// The window that is shown while the program starts, and by Help/About.
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace orbelle::app {

// Borderless. At the start it stays for about a second; as About it closes at a click or a key.
class WelcomeWindow : public QWidget {
    Q_OBJECT

public:
    WelcomeWindow();

    // Counts up while the wait pointer shows, then closes and tells.
    void RunStart();
    // The same end at once, for one who does not wait. Nothing happens unless it is the start.
    void EndStart();

signals:
    void Finished();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPixmap picture_;
    QTimer stay_;
    int ticks_ = 0;
    bool starting_ = false;
};

}  // namespace orbelle::app
