// A balloon with a tip.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

// Points up at what it is about, or down. Comes up above its siblings.
class Balloon : public QWidget {
    Q_OBJECT

public:
    explicit Balloon(QWidget* parent = nullptr);

    void SetText(const QString& text);  // the height follows the text
    void SetPointsDown(bool pointsDown);

signals:
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString text_;
    bool pointsDown_ = false;
};

}  // namespace orbelle::widgets
