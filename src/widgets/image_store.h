// Holds one picture that other code draws.
#pragma once

#include <QPainter>
#include <QString>

namespace orbelle::widgets {

class ImageStore {
public:
    // The name of a drawing; one that does not exist draws nothing.
    explicit ImageStore(const QString& artwork) : artwork_(artwork) {}

    // `opacity` 0 to 1.
    void Drawing(QPainter& painter, const QRect& place, double opacity) const;

private:
    QString artwork_;
};

}  // namespace orbelle::widgets
