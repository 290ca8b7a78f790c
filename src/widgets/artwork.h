// Our own drawings, from the program's resources.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

class QPainter;

namespace orbelle::widgets {

enum class Shade;

// The drawing of that name ("tools/pencil") in a size of logical pixels, drawn sharp for the
// screen's pixel ratio, in colours that are seen well on the theme in use. Null when there is none
// of that name.
QPixmap Artwork(const QString& name, const QSize& size, qreal devicePixelRatio);
// In the colours of a shade, for what is light or dark whatever the theme.
QPixmap Artwork(const QString& name, const QSize& size, qreal devicePixelRatio, Shade shade);

// With its corner on the nearest whole pixel of the screen: between two it would blur.
void DrawSharp(QPainter& painter, const QPointF& corner, const QPixmap& pixmap);

// A drawing in whatever size, ratio and theme it is painted.
QIcon ArtworkIcon(const QString& name);

}  // namespace orbelle::widgets
