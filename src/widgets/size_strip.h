// The pictures of an icon's sizes in a row.
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>
#include <vector>

#include "widgets/accessible_parts.h"
#include "widgets/motion.h"

namespace orbelle::widgets {

struct SizeCell {
    int Size = 0;    // pixels a side
    QImage Picture;  // of as many pixels; null: not known yet
    bool IsDrawnByHand = false;
    QString Warning;  // why it bears the mark of a warning; empty: it has none
    bool operator==(const SizeCell&) const = default;
};

// What the pictures lie on. A desktop has a task bar, on which the small ones lie.
enum class StripGround { Checks, White, Grey, Dark, Desktop };
inline constexpr int kStripGrounds = 5;

// Each picture has as many pixels of the screen as it has itself, whatever the screen's scale, or
// twice as many in both directions.
class SizeStrip : public QWidget, public AccessibleParts {
    Q_OBJECT

public:
    explicit SizeStrip(QWidget* parent = nullptr);

    void SetCells(std::vector<SizeCell> cells);
    const std::vector<SizeCell>& Cells() const { return cells_; }
    void SetEditedSize(int size);  // whose cell is framed; 0: none
    void SetGround(StripGround ground);
    StripGround Ground() const { return ground_; }
    void SetDoubled(bool doubled);
    bool IsDoubled() const { return doubled_; }

    // Logical pixels, of this strip as it is: of a cell, and for all cells in that width.
    int CellWidth(int size) const;
    int RoomIn(int width) const;
    // The largest picture for which a strip of that height has room.
    int LargestSizeWithin(int height) const;
    QRect CellPlace(int size) const;  // empty: there is none
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // Parts are cells from the left.
    QAccessible::Role WholeRole() const override { return QAccessible::List; }
    int PartCount() const override { return static_cast<int>(cells_.size()); }
    QString PartName(int part) const override;
    QString PartValue(int part) const override;
    QRect PartPlace(int part) const override;
    QAccessible::Role PartRole(int) const override { return QAccessible::ListItem; }
    QAccessible::State PartState(int part) const override;
    int FocusedPart() const override;
    void PressPart(int part) override;

signals:
    // A click on a cell, or Return or Space with the keyboard.
    void Clicked(int size, bool byMouse);
    // Its menu is wanted at this place of the screen.
    void MenuWanted(int size, const QPoint& at);
    // The keys came to a cell, in pixels of the strip.
    void FocusMoved(const QRect& cell);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    double Scale() const;      // logical pixels that a picture's pixel takes
    int Side(int size) const;  // of a picture, logical pixels
    int GroundHeight() const;
    int PartAt(const QPoint& point) const;  // -1: none
    void FocusPart(int part);
    void Hover(int part);
    void ShowToolTip(const QHelpEvent& help);

    bool LiesOnTaskBar(int size) const;
    QRect PicturePlace(int part) const;
    void PaintGround(QPainter& painter) const;
    void PaintDesktop(QPainter& painter, const QRect& ground) const;
    void PaintPicture(QPainter& painter, int part) const;
    void PaintLabel(QPainter& painter, int part) const;
    void PaintFrame(QPainter& painter, int part) const;
    QRectF FrameOf(int part) const;  // around picture and label
    QRectF EditedFrame() const;      // as it is shown now; empty: none

    std::vector<SizeCell> cells_;
    int editedSize_ = 0;
    QRectF frameBefore_;  // that the edited one's comes from
    Motion moving_{*this};
    int focusedSize_ = 0;  // that the keys came to last
    int hovered_ = -1;     // part
    StripGround ground_ = StripGround::Checks;
    bool doubled_ = false;
};

}  // namespace orbelle::widgets
