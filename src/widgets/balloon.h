// A balloon with a tip.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

// Direction 0 points up at what it is about, another one down. Comes up above its siblings.
class Balloon : public QWidget {
    Q_OBJECT

public:
    explicit Balloon(QWidget* parent = nullptr);

    QString TipString() const;
    void SetTipString(const QString& text);  // the height follows the text
    void SetDirection(int direction);

signals:
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool PointsUp() const { return direction_ == 0; }

    QString text_;
    int direction_ = 0;
};

}  // namespace orbelle::widgets
