#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <new>
// The library's headers use std::size_t and FILE without including them.
#include <jpeglib.h>

#include "graphics/codecs/image_files.h"

namespace orbelle::graphics {
namespace {

constexpr int kDotsPerInch = 96;
constexpr UINT8 kPerInch = 1;

// libjpeg leaves its calls by longjmp when something fails. Write therefore holds no object that
// would have to be destroyed; it answers false, and its caller throws.
class JpegWriter {
public:
    JpegWriter() = default;
    JpegWriter(const JpegWriter&) = delete;
    JpegWriter& operator=(const JpegWriter&) = delete;
    ~JpegWriter() {
        jpeg_destroy_compress(&jpeg_);
        std::free(file_);
    }

    bool Write(const Bitmap& image, int quality) {
        if (setjmp(jump_)) {
            // The library may have freed this buffer for a larger one that it does not tell.
            file_ = nullptr;
            return false;
        }
        jpeg_.err = jpeg_std_error(&errors_);
        jpeg_.client_data = this;
        errors_.error_exit = OnError;
        jpeg_create_compress(&jpeg_);
        jpeg_mem_dest(&jpeg_, &file_, &size_);
        jpeg_.image_width = static_cast<JDIMENSION>(image.Width());
        jpeg_.image_height = static_cast<JDIMENSION>(image.Height());
        jpeg_.in_color_space = JCS_EXT_BGRX;
        jpeg_.input_components = sizeof(Argb);
        jpeg_set_defaults(&jpeg_);
        jpeg_set_quality(&jpeg_, quality, TRUE);
        jpeg_.density_unit = kPerInch;
        jpeg_.X_density = kDotsPerInch;
        jpeg_.Y_density = kDotsPerInch;
        // Halved colours would smear the sharp edges that icons are made of.
        jpeg_.comp_info[0].h_samp_factor = 1;
        jpeg_.comp_info[0].v_samp_factor = 1;
        jpeg_start_compress(&jpeg_, TRUE);
        while (jpeg_.next_scanline < jpeg_.image_height) {
            const Argb* row = image.Row(static_cast<int>(jpeg_.next_scanline));
            // The library takes rows to write without const, but does not change them.
            auto* bytes = const_cast<JSAMPROW>(reinterpret_cast<const JSAMPLE*>(row));
            jpeg_write_scanlines(&jpeg_, &bytes, 1);
        }
        jpeg_finish_compress(&jpeg_);
        return true;
    }

    std::vector<std::uint8_t> File() const { return {file_, file_ + size_}; }

private:
    [[noreturn]] static void OnError(j_common_ptr jpeg) {
        auto* self = static_cast<JpegWriter*>(jpeg->client_data);
        std::longjmp(self->jump_, 1);
    }

    jpeg_compress_struct jpeg_ = {};
    jpeg_error_mgr errors_ = {};
    unsigned char* file_ = nullptr;
    unsigned long size_ = 0;
    std::jmp_buf jump_;
};

}  // namespace

std::vector<std::uint8_t> EncodeJpeg(const Bitmap& image, int quality) {
    if (image.IsEmpty())
        return {};
    JpegWriter writer;
    // Any bitmap fits the format, so nothing but memory can be missing.
    if (!writer.Write(image, quality))
        throw std::bad_alloc();
    return writer.File();
}

}  // namespace orbelle::graphics
