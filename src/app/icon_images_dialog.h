// The dialog "Choose Icon Format": which images of an icon file to take.
#pragma once

#include <QDialog>
#include <QPixmap>

#include "app/icon_grid.h"
#include "app/user_questions.h"
#include "widgets/accessible_parts.h"

class QPushButton;

namespace orbelle::app {

// The cells: a press or a key chooses, a double click takes what is chosen.
class IconGridView : public QWidget, public widgets::AccessibleParts {
    Q_OBJECT

public:
    // Arranged for a room of that size, in logical pixels.
    IconGridView(const std::vector<formats::IconEntryImage>& offered, bool takesSeveral,
                 QSize room);

    const CellChoice& Choice() const { return choice_; }
    const IconGrid& Grid() const { return grid_; }
    void Choose(int index, CellChoice::How how);

    QAccessible::Role WholeRole() const override { return QAccessible::List; }
    int PartCount() const override { return grid_.Count(); }
    QString PartName(int part) const override;
    QString PartValue(int part) const override;
    QRect PartPlace(int part) const override;
    QAccessible::Role PartRole(int part) const override;
    QAccessible::State PartState(int part) const override;
    int FocusedPart() const override { return choice_.Current(); }
    void PressPart(int part) override { Choose(part, CellChoice::How::Alone); }

signals:
    void DoubleClicked();
    void ChoiceChanged();
    // The cell, in widget pixels, that is to be visible.
    void CurrentMoved(const QRect& cell);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void PaintCell(QPainter& painter, int index);
    void PaintPicture(QPainter& painter, int index);
    // The cell that the key leads to from the current one; -1: it leads to none.
    int CellByKey(int key) const;
    void TellCurrent();

    IconGrid grid_;
    CellChoice choice_;
    std::vector<QPixmap> shrunk_;  // made when they are first seen
};

// Starts with the largest image chosen, of those the one with most bits.
class IconImagesDialog : public QDialog {
    Q_OBJECT

public:
    IconImagesDialog(const std::vector<formats::IconEntryImage>& offered,
                     const IconQuestion& question, QWidget* parent = nullptr);

    // At least one image unless none was offered.
    const IconChoice& Choice() const { return choice_; }

private:
    void Take(bool allSizes);

    IconGridView* grid_;
    IconChoice choice_;
};

}  // namespace orbelle::app
