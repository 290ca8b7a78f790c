// The tab above the bottom panel that tells how to turn the tips off.
#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

namespace orbelle::app {

class CloseTipsTab : public QWidget {
    Q_OBJECT

public:
    // Slides up from behind `panel`; from the upper edge of the scroll bar that lies on the panel,
    // while that can be seen. Both lie somewhere within `parent`.
    CloseTipsTab(QWidget& parent, QWidget& panel, QWidget& scrollBar);

    // Unless it stands there already, or the user has closed it.
    void SlideUp();
    // Makes room for what lies there, in pixels of its parent.
    void StepAsideFor(const std::vector<QRect>& others);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Step();
    void Place();
    int Floor() const;
    int LeftEdge() const;

    QWidget& panel_;
    QWidget& scrollBar_;
    std::vector<QRect> others_;
    int shown_ = 0;  // rows of it, from the top
    QTimer slide_;
    bool closed_ = false;
};

}  // namespace orbelle::app
