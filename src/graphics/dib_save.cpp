#include "graphics/dib_save.h"

#include <utility>

#include "graphics/geometry.h"

namespace orbelle::graphics {

void DIBSave::SetWidth(float width) {
    bitWidth_ = RoundToEven(width);
}

void DIBSave::SetHeight(float height) {
    bitHeight_ = RoundToEven(height);
}

void DIBSave::CreateBlankMemory(int height, int width, PixelFormat format) {
    Bitmap blank(width, height, format);
    if (!blank.IsEmpty())
        new_Img = std::move(blank);
    if (!new_Img.IsEmpty())
        MemGraphics.emplace(new_Img);
    NewWidth = width;
    NewHeight = height;
}

void DIBSave::CreateBlankMemoryFromImg(Bitmap image) {
    new_Img = std::move(image);
    if (!new_Img.IsEmpty())
        MemGraphics.emplace(new_Img);
    NewWidth = new_Img.Width();
    NewHeight = new_Img.Height();
}

void DIBSave::ClearScreen(Argb color) {
    if (MemGraphics)
        MemGraphics->Clear(color);
}

void DIBSave::DrawBackground(Argb color) {
    const RectF whole{0, 0, static_cast<float>(new_Img.Width()),
                      static_cast<float>(new_Img.Height())};
    if (MemGraphics)
        MemGraphics->FillRectangle(SolidBrush{color}, whole);
}

bool DIBSave::CreateRgn(unsigned optValue, float bx, float by) {
    const int pointX = RoundHalfUp(bx);
    const int pointY = RoundHalfUp(by);
    bool found = false;
    for (int y = 0; y < new_Img.Height(); ++y) {
        Argb* row = new_Img.MutableRow(y);
        for (int x = 0; x < new_Img.Width(); ++x) {
            if (AlphaOf(row[x]) <= optValue)
                continue;
            row[x] = MakeARGB(AlphaOf(row[x]), 0, 0, 0);
            // x + 1 pixels from x on end at 2 x.
            found |= x <= pointX && pointX <= 2 * x && y <= pointY && pointY <= 2 * y;
        }
    }
    return found;
}

void DIBSave::ClearIMG() {
    new_Img = {};
}

void DIBSave::Destroy() {
    new_Img = {};
    MemGraphics.reset();
}

}  // namespace orbelle::graphics
