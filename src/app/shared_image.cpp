#include "app/shared_image.h"

namespace orbelle::app {

QImage SharedImage(const graphics::Bitmap& bitmap, QImage::Format format) {
    if (bitmap.IsEmpty())
        return {};
    auto* owner = new graphics::Bitmap(bitmap);
    return {reinterpret_cast<const uchar*>(owner->Pixels()),
            owner->Width(),
            owner->Height(),
            owner->Width() * qsizetype{4},
            format,
            [](void* kept) { delete static_cast<graphics::Bitmap*>(kept); },
            owner};
}

}  // namespace orbelle::app
