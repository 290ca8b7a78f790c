// The scene on the screen.
#pragma once

#include <QStringList>
#include <QWidget>

#include "editing/editor.h"

namespace orbelle::app {

// Shows Editor::Scene from the top left corner, one scene pixel for each logical pixel, and over it
// the outline around the selected layer. Takes files dropped on it.
class SceneView : public QWidget {
    Q_OBJECT

public:
    // `editor` outlives the view.
    explicit SceneView(const editing::Editor& editor, QWidget* parent = nullptr);

signals:
    void Resized(int width, int height);  // scene pixels, each at least 1
    void ZoomInWanted();                  // Ctrl and the wheel, one step
    void ZoomOutWanted();
    void FilesDropped(const QStringList& files);  // local files, in the order given

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    const editing::Editor& editor_;
    int wheelDelta_ = 0;  // what is left of a step
};

}  // namespace orbelle::app
