// The scene on the screen.
#pragma once

#include <QTimer>
#include <QWidget>

#include "app/scene_marks.h"
#include "editing/editor.h"
#include "editing/nudge.h"
#include "editing/scene_input.h"

class QPainter;

namespace orbelle::app {

inline constexpr int kWelcomeStrongest = 250;

// Shows Editor::Scene from the top left corner, one scene pixel for each pixel of the screen
// whatever its scale, and over it what scene_guides.h and scene_marks.h draw. Hands on the mouse
// and the keys.
class SceneView : public QWidget {
    Q_OBJECT

public:
    // `editor` outlives the view.
    explicit SceneView(const editing::Editor& editor, QWidget* parent = nullptr);

    // From a place on the widget to one on the scene; the other way.
    QPointF ToScene(const QPointF& place) const;
    QRectF FromScene(const QRectF& rect) const;
    // The selection or the page has changed.
    void FollowSelection();

    // The pointer's shape, by the tool.
    void ShowCursor();
    // The welcome text over an empty scene, 0 (nothing) to kWelcomeStrongest; -1: none.
    void ShowWelcome(int strength);

    // The lines between the page's pixels, seen from a zoom of kGridZoom on (scene_guides.h).
    bool IsPixelGridShown() const { return isPixelGridShown_; }
    void ShowPixelGrid(bool shown);

signals:
    void LooksChanged();                   // those of the program
    void Resized(int width, int height);   // scene pixels, each at least 1
    void ZoomInWanted(const QPointF& at);  // Ctrl and the wheel, one step
    void ZoomOutWanted(const QPointF& at);
    void Scrolled(const QPoint& pixels);  // by the wheel
    void PointerPressed(const editing::Pointer& pointer);
    void PointerMoved(const editing::Pointer& pointer);
    void PointerReleased(const editing::Pointer& pointer);
    void PointerLeft();
    void KeyPressed(editing::SceneKey key);
    void HalfStepWanted(editing::Direction direction);  // an arrow with Alt
    void ShiftHeld(bool isHeld);                        // alone, with the left button

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    double Scale() const;   // pixels of the screen per logical pixel
    QPointF Shift() const;  // of the scene, scene pixels
    int LineWidth() const;  // of marks, scene pixels
    void TellSize();
    void Walk();
    void PaintInScenePixels(QPainter& painter) const;
    QRect WelcomePlace() const;
    void DrawWelcome(QPainter& painter) const;
    void DrawGuides(QPainter& painter, const QRect& seen) const;

    const editing::Editor& editor_;
    bool isHeld_ = false;  // the left button
    bool isPixelGridShown_ = true;
    int welcome_ = -1;
    int wheelDelta_ = 0;  // what is left of a step
    double shownScale_ = 1;
    SelectionEdge edge_;
    QTimer walk_;  // of the dashes along it
    int step_ = 0;
};

}  // namespace orbelle::app
