// Our own drawings, from the program's resources.
#pragma once

#include <QPixmap>
#include <QString>

namespace orbelle::widgets {

// The drawing of that name ("tools/pencil") in a size of logical pixels, drawn sharp for the
// screen's pixel ratio. Null when there is none of that name.
QPixmap Artwork(const QString& name, const QSize& size, qreal devicePixelRatio);

// A picture that is made of pixels ("skins/normal"), as it stands in its file.
QPixmap PixelArtwork(const QString& name);

}  // namespace orbelle::widgets
