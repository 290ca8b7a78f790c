// Tells in the status line what the tool does, where the pointer is on the page, what lies there
// and what it drags.
#pragma once

#include <QLabel>
#include <QPointF>
#include <QStatusBar>
#include <optional>

#include "editing/editor.h"

namespace orbelle::app {

class ColorChip;

class PointerStatus {
public:
    // The tool's hint at the left, its other fields at the right end.
    explicit PointerStatus(QStatusBar& line);

    // The pointer in scene pixels.
    void ShowPointer(const editing::Editor& editor, float x, float y);
    // What lies under the pointer where it is, anew.
    void Refresh(const editing::Editor& editor);
    void ClearPointer();
    void ShowZoom(double zoom);
    // Of the tool in use; none without a document.
    void ShowHint(const editing::Editor& editor);
    // Place and size of what is being dragged; nothing without a drag.
    void ShowDrag(const editing::Editor& editor);

private:
    void ShowColor(std::optional<graphics::Argb> color);

    std::optional<QPointF> pointer_;  // scene pixels; none: not over the scene
    QLabel* hint_;
    QLabel* position_;
    QLabel* drag_;
    ColorChip* chip_;
    QLabel* color_;
    QLabel* zoom_;
};

}  // namespace orbelle::app
