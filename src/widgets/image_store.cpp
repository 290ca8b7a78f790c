#include "widgets/image_store.h"

#include "widgets/artwork.h"

namespace orbelle::widgets {

void ImageStore::Drawing(QPainter& painter, const QRect& place, double opacity) const {
    const QPixmap picture = Artwork(artwork_, place.size(), painter.device()->devicePixelRatioF());
    const double before = painter.opacity();
    painter.setOpacity(before * opacity);
    painter.drawPixmap(place, picture);
    painter.setOpacity(before);
}

}  // namespace orbelle::widgets
