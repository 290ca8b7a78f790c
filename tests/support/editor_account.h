// Everything about an editor that a command which fails must leave as it was, as text.
#pragma once

#include <string>

#include "editing/editor.h"

namespace orbelle::testing {

// Document, the stacks that undo and redo lead to, selection, sliders, tools, view and drag; a line
// each, pictures and regions as sums.
std::string AccountOf(const editing::Editor& editor);

// The composed page with the outlines of its plates, and the scene.
std::string AccountOfPictures(const editing::Editor& editor);

std::string AccountOf(const graphics::Bitmap& picture);

// The layers and which is selected.
std::string AccountOf(const document::Page& page);

// All pages; which one is in force is no matter.
std::string AccountOf(const document::Family& family);

}  // namespace orbelle::testing
