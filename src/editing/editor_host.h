// What the editor tells and needs of the program around it: the window, the command line, a test.
#pragma once

#include <string>

#include "editing/changes.h"
#include "graphics/bitmap.h"

namespace orbelle::editing {

// Told once after each command. What it shows it reads from the Editor.
class EditorObserver {
public:
    virtual void Changed(const Changes& changes) = 0;

protected:
    ~EditorObserver() = default;
};

// The system's clipboard: one picture and, beside it, a text.
class Clipboard {
public:
    virtual void Put(const graphics::Bitmap& picture, const std::string& text) = 0;
    virtual bool HasPicture() = 0;
    virtual graphics::Bitmap Picture() = 0;  // empty: none that can be read
    virtual std::string Text() = 0;

protected:
    ~Clipboard() = default;
};

}  // namespace orbelle::editing
