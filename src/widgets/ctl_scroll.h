// The numeric slider: a value that can be typed, two spin arrows and a track that opens below.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

class CtlScroll : public QWidget {
    Q_OBJECT

public:
    explicit CtlScroll(QWidget* parent = nullptr);

    int MinValue() const;
    int MaxValue() const;
    void SetRange(int minValue, int maxValue);
    // Which values the track reaches: 0 to MaxValue, 1 to 255, 2 to 180, 3 to 100.
    int ScrollStyle() const;
    void SetScrollStyle(int style);
    int ColorValue() const;
    // Does not raise Changed. Values beyond the range are taken, as typed ones are.
    void SetColorValue(int value);

signals:
    // The user typed, spun or dragged the value.
    void Changed(int value);
    void Pressed();
    void Released();
};

}  // namespace orbelle::widgets
