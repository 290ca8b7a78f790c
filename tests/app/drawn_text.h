// What words a control paints, where and in which colour.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <vector>

class QWidget;

namespace orbelle::testing {

struct DrawnText {
    QString Text;
    QRectF Place;  // in the control's logical pixels, as far as it is not clipped
    QRectF Whole;  // with what is clipped
    QColor Color;  // of the pen, with its opacity as alpha
};

// Of this control alone, without what lies on it.
std::vector<DrawnText> TextsOf(QWidget& control);

}  // namespace orbelle::testing
