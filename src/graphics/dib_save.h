// The off-screen picture: a bitmap with a drawing context on it.
#pragma once

#include <optional>

#include "graphics/bitmap.h"
#include "graphics/drawing_context.h"

namespace orbelle::graphics {

// Not copyable: the context points at the bitmap.
class DIBSave {
public:
    DIBSave() = default;
    DIBSave(const DIBSave&) = delete;
    DIBSave& operator=(const DIBSave&) = delete;

    std::optional<DrawingContext> MemGraphics;  // none while there is no bitmap
    Bitmap new_Img;
    int NewWidth = 0;
    int NewHeight = 0;

    // Two stored numbers that have nothing to do with the bitmap; kept as whole numbers.
    float Width() const { return static_cast<float>(bitWidth_); }
    float Height() const { return static_cast<float>(bitHeight_); }
    void SetWidth(float width);
    void SetHeight(float height);

    // Reads whether the stored Width is not 0: deliberately not the flag that was set.
    bool FirstL() const { return bitWidth_ != 0; }
    void SetFirstL(bool value) { firstLoad_ = value; }

    // A new zeroed bitmap with a context on it. Height comes first. A refused size keeps the
    // earlier bitmap, while NewWidth and NewHeight take the arguments all the same.
    void CreateBlankMemory(int height, int width, PixelFormat format);
    // Takes over the picture.
    void CreateBlankMemoryFromImg(Bitmap image);

    // Every pixel becomes the colour, alpha included.
    void ClearScreen(Argb color);
    // Blends the colour over the whole picture.
    void DrawBackground(Argb color);

    // Whether the point lies in the part of the picture denser than `optValue`, where each dense
    // pixel (x, y) deliberately stands for a rectangle of x + 1 by y + 1 pixels. The colour of the
    // dense pixels becomes black.
    bool CreateRgn(unsigned optValue, float bx, float by);

    // Drops the bitmap; the context stays, on nothing.
    void ClearIMG();
    // Drops both; harmless on an empty surface.
    void Destroy();

private:
    int bitWidth_ = 0;
    int bitHeight_ = 0;
    bool firstLoad_ = false;
};

}  // namespace orbelle::graphics
