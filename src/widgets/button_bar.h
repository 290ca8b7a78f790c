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
    ButtonBarMetrics Metrics = {};
    std::vector<BarButton> Buttons;
    bool HasFrame = false;  // it lies on other parts
    bool OnBand = false;    // it stands in the header of a panel
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
    // What a button is set to: a small drawing in its corner, and a word for assistive tools.
    void SetChoice(int button, const QString& artwork, const QString& name);
    // Takes it, in its own size, between the button and the next one.
    void PutBeside(int button, QWidget& widget);

    // The button that the mouse or the keyboard came to last, 0 before the first.
    int LastButton() const;
    // The place of a button; empty for a separator and an unknown number.
    QRect ButtonRect(int button) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QAccessible::Role WholeRole() const override { return QAccessible::ToolBar; }
    int PartCount() const override;
    QString PartName(int part) const override;
    QString PartValue(int part) const override;
    QRect PartPlace(int part) const override;
    QAccessible::Role PartRole(int part) const override;
    QAccessible::State PartState(int part) const override;
    int FocusedPart() const override;
    void PressPart(int part) override;
    std::vector<QWidget*> WidgetsBeside() const override;

signals:
    // A press of a mouse button on an enabled button, or Space or Return with the keyboard.
    void Clicked(int button);
    // Escape on a bar that lies on other parts.
    void LeaveWanted();

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
        QString Corner;  // the name of a drawing
        QString Choice;
    };
    struct Icon {
        QPixmap Picture;
        QPixmap Corner;
    };
    static constexpr QSize kCornerSize{7, 7};

    // Buttons count from 0 in here.
    int Count() const { return static_cast<int>(buttons_.size()); }
    int IndexOf(int number) const;  // -1: there is no button of that number
    bool IsHorizontal() const { return metrics_.Direction == Qt::Horizontal; }
    bool CanPress(int index) const;
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
    void PaintButton(QPainter& painter, int index) const;
    void PaintGround(QPainter& painter) const;
    void PaintFocus(QPainter& painter, const QRect& place) const;

    ButtonBarMetrics metrics_;
    bool hasFrame_;
    bool onBand_;
    std::vector<BarButton> buttons_;
    std::vector<State> states_;
    ButtonBarLayout layout_;
    std::vector<QWidget*> beside_;  // null where none is
    std::vector<Icon> icons_;
    qreal iconsRatio_ = 0;  // that the icons were drawn for; 0: anew

    QTimer hoverPoll_;
    int hoverIndex_ = -1;
    int lastIndex_ = -1;
    int focusIndex_ = -1;
    bool byKeyboard_ = false;  // it came by a key and not by the way of another part
    bool showFocus_ = false;
    bool showDown_ = false;
};

}  // namespace orbelle::widgets
