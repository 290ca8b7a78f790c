// The tab above the bottom panel that tells how to turn the tips off.
#pragma once

#include <QTimer>
#include <QWidget>

namespace orbelle::app {

class CloseTipsTab : public QWidget {
    Q_OBJECT

public:
    // A child of the same widget as `panel`, from behind which it slides up.
    explicit CloseTipsTab(QWidget& panel);

    // Unless it stands there already, or the user has closed it.
    void SlideUp();
    void Place();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Step();

    QWidget& panel_;
    QTimer slide_;
    bool closed_ = false;
};

}  // namespace orbelle::app
