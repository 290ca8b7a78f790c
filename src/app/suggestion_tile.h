// One suggestion for a small picture, a button that shows it enlarged on checks and at its true
// pixels on a light and a dark ground.
#pragma once

#include <QImage>
#include <QPushButton>

namespace orbelle::app {

// What tiles of one size have in common, logical pixels if not said.
struct TileLayout {
    // The largest enlargement up to eight times with which `count` tiles of pictures of size x size
    // stand in a row in `room`; without one the grounds lie below each other, which needs least
    // width, whether there is room or not. `scale` is device pixels per logical one.
    static TileLayout Fitting(int size, int count, int captionWidth, double scale, QSize room);

    int Cell = 1;      // device pixels a side that the enlargement makes of a picture's pixel
    int Enlarged = 0;  // a side
    QSize Ground;      // of each
    bool AreGroundsStacked = false;
    QSize Tile;
};

class SuggestionTile : public QPushButton {
    Q_OBJECT

public:
    SuggestionTile(const QString& name, const QString& meaning, const QImage& picture,
                   const TileLayout& layout);

    // Where things stand, from the tile's corner.
    QRect EnlargedPlace() const;
    QRect LightPlace() const;
    QRect DarkPlace() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
    TileLayout layout_;
};

}  // namespace orbelle::app
