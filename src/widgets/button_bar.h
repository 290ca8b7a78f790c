// A toolbar that is painted by itself: icons, captions, latching buttons.
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <vector>

#include "widgets/accessible_parts.h"
#include "widgets/bar_button.h"
#include "widgets/button_bar_layout.h"

namespace orbelle::widgets {

// How a toolbar is made.
struct ButtonBarSetup {
    Qt::Orientation Direction = Qt::Horizontal;
    int IconSize = 16;  // logical pixels
    std::vector<BarButton> Buttons;
};

// Buttons are numbered from 1, separators included. At first all are enabled and none is pressed.
class ButtonBar : public QWidget, public AccessibleParts {
    Q_OBJECT

public:
    explicit ButtonBar(const ButtonBarSetup& setup, QWidget* parent = nullptr);

    // A number without a button reads as false and changes nothing.
    bool IsPressed(int button) const;
    void SetPressed(int button, bool pressed);
    void SetButtonEnabled(int button, bool enabled);
    void SetToolTip(int button, const QString& text);

    // The button that the mouse or the keyboard came to last, 0 before the first.
    int LastButton() const;
    // The place of a button; empty for a separator and an unknown number.
    QRect ButtonRect(int button) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QAccessible::Role WholeRole() const override { return QAccessible::ToolBar; }
    int PartCount() const override;
    QString PartName(int part) const override;
    QString PartValue(int) const override { return {}; }
    QRect PartPlace(int part) const override;
    QAccessible::Role PartRole(int part) const override;
    QAccessible::State PartState(int part) const override;
    int FocusedPart() const override;
    void PressPart(int part) override;

signals:
    // A press of a mouse button on an enabled button, or Space or Return with the keyboard.
    void Clicked(int button);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct State {
        bool Enabled = true;
        bool Pressed = false;
    };

    // Buttons count from 0 in here.
    int Count() const { return static_cast<int>(buttons_.size()); }
    int IndexOf(int number) const;  // -1: there is no button of that number
    bool IsHorizontal() const { return direction_ == Qt::Horizontal; }
    bool CanPress(int index) const;
    int Thickness() const;  // that its buttons ask for
    void LayOut();
    void MoveHover(const QPoint& point);
    void PollHover();
    void EndHover();
    void Press(int index);
    void FocusButton(int index);
    int NextEnabled(int from, int step) const;
    int PartOf(int index) const;
    int ButtonOfPart(int part) const;

    void LoadIcons(qreal ratio);
    void PaintSeparator(QPainter& painter, int line) const;
    void PaintButton(QPainter& painter, int index) const;
    void PaintFocus(QPainter& painter, const QRect& place) const;

    Qt::Orientation direction_;
    int iconSize_;
    std::vector<BarButton> buttons_;
    std::vector<State> states_;
    ButtonBarLayout layout_;
    std::vector<QPixmap> icons_;
    qreal iconsRatio_ = 0;  // that the icons were drawn for; 0: not yet

    QTimer hoverPoll_;
    int hoverIndex_ = -1;
    int lastIndex_ = -1;
    int focusIndex_ = -1;
    bool showFocus_ = false;
    bool showDown_ = false;
};

}  // namespace orbelle::widgets
