// A toolbar that is painted by itself: skins in nine parts, icons, captions, latching buttons.
#pragma once

#include <QPixmap>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <vector>

namespace orbelle::widgets {

// One entry of a button's drop-down menu; the owner reads it and acts on it.
struct ToolMenu {
    int Index = 0;
    QString OriginalCaption;
    QString Captions;
    bool Enables = true;
    bool Visible = true;
};

struct ToolButton {
    int Index = 0;
    QString Kind;  // "Y" a button, "1" a separator
    QString Caption;
    QString ExtraFlag;
    QString ToolTip;
    int ButtonType = 0;  // 1: latching, each click turns its press state
    bool Enabled = true;
    std::vector<ToolMenu> Menus;
    bool IsPressed = false;

    bool IsSeparator() const { return Kind == "1"; }
};

enum class ToolBarStyle { Normal = 0, Vista = 1, Win10 = 2 };

// How a toolbar is made; all sizes in logical pixels.
struct ToolBarSetup {
    Qt::Orientation Direction = Qt::Horizontal;
    ToolBarStyle Styles = ToolBarStyle::Normal;
    int IcoSize = 16;
    QStringList Images;   // names of drawings, "1" for a separator's place
    QStringList Buttons;  // eight fields with commas: "1,Y,,,Move tool,1,-1,0"
};

class ToolBarvs : public QWidget {
    Q_OBJECT

public:
    explicit ToolBarvs(const ToolBarSetup& setup, QWidget* parent = nullptr);

    int ButtonCounts() const;
    // Buttons are numbered from 1. Another number reads as false and changes nothing.
    bool GetButtonPressState(int index) const;
    void SetButtonPressState(int index, bool isPress);
    bool GetButtonEnable(int index) const;
    void SetButtonEnable(int index, bool isEnable);
    void SetButtonCaptions(int index, const QString& caption);
    void SetButtonToolTip(int index, const QString& tip);
    void AddButtonMenu(int index, const ToolMenu& menu);
    const std::vector<ToolButton>& Buttons() const;

    // The last button hit, 0 before the first.
    int ButtonIndex() const;
    // Where that button begins, from the top of the bar.
    int refTopValue() const;
    // The place of a button; empty for a separator and an unknown number.
    QRect ButtonRect(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // A press of a mouse button on an enabled button, or Space or Return with the keyboard.
    void MouseClick(int index);

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

private:
    // The rest is the implementation's.
};

}  // namespace orbelle::widgets
