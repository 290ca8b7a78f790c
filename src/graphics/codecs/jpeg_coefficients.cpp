#include "graphics/codecs/jpeg_coefficients.h"

#include <jerror.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>

namespace orbelle::graphics {
namespace {

// Blocks of this size the system takes back at once when they are freed.
constexpr std::size_t kStripBytes = std::size_t{32} << 20;

// What the library's vector code asks of the place of a block.
constexpr std::size_t kAlignment = 32;

// The decoder's error_exit does not come back.
[[noreturn]] void LeaveOutOfMemory(j_common_ptr jpeg) {
    ERREXIT1(jpeg, JERR_OUT_OF_MEMORY, 0);
    std::abort();
}

}  // namespace

// Rows of blocks in strips, each of which is there from its first use to the output of what stands
// below it.
struct JpegCoefficients::Array {
    JDIMENSION BlocksPerRow;
    JDIMENSION Rows;
    JDIMENSION RowsPerStrip;
    JDIMENSION FirstStrip;  // that has not been given back
    JBLOCKROW* RowPlaces;   // null: its strip is not there
    void** Strips;

    JDIMENSION StripCount() const { return (Rows + RowsPerStrip - 1) / RowsPerStrip; }

    bool Provide(JDIMENSION strip) {
        if (Strips[strip])
            return true;
        const std::size_t rowBytes = std::size_t{BlocksPerRow} * sizeof(JBLOCK);
        const JDIMENSION first = strip * RowsPerStrip;
        const JDIMENSION count = std::min(RowsPerStrip, Rows - first);
        Strips[strip] = std::calloc(1, count * rowBytes + kAlignment);
        if (!Strips[strip])
            return false;
        const auto place = reinterpret_cast<std::uintptr_t>(Strips[strip]);
        auto* rows = static_cast<std::uint8_t*>(Strips[strip]) +
                     (kAlignment - place % kAlignment) % kAlignment;
        for (JDIMENSION row = 0; row < count; ++row)
            RowPlaces[first + row] = reinterpret_cast<JBLOCKROW>(rows + row * rowBytes);
        return true;
    }

    void GiveBackBelow(JDIMENSION row) {
        for (; (FirstStrip + 1) * RowsPerStrip <= row; ++FirstStrip) {
            std::free(Strips[FirstStrip]);
            Strips[FirstStrip] = nullptr;
        }
    }
};

JpegCoefficients::~JpegCoefficients() {
    for (Array* array : std::span(arrays_).first(count_)) {
        if (array->Strips)
            std::for_each_n(array->Strips, array->StripCount(), std::free);
        std::free(array->Strips);
        std::free(array->RowPlaces);
        std::free(array);
    }
}

void JpegCoefficients::Serve(jpeg_decompress_struct& jpeg) {
    jpeg.mem->request_virt_barray = Request;
    jpeg.mem->access_virt_barray = Access;
}

jvirt_barray_ptr JpegCoefficients::Request(j_common_ptr jpeg, int, boolean, JDIMENSION blocksPerRow,
                                           JDIMENSION rows, JDIMENSION) {
    auto* self = static_cast<JpegCoefficients*>(jpeg->client_data);
    auto* array = self->count_ < self->arrays_.size()
                      ? static_cast<Array*>(std::calloc(1, sizeof(Array)))
                      : nullptr;
    if (!array)
        LeaveOutOfMemory(jpeg);
    self->arrays_[self->count_++] = array;
    array->BlocksPerRow = blocksPerRow;
    array->Rows = rows;
    array->RowsPerStrip = static_cast<JDIMENSION>(
        kStripBytes / (std::max<std::size_t>(blocksPerRow, 1) * sizeof(JBLOCK)) + 1);
    array->RowPlaces = static_cast<JBLOCKROW*>(std::calloc(rows, sizeof(JBLOCKROW)));
    array->Strips = static_cast<void**>(std::calloc(array->StripCount(), sizeof(void*)));
    if (!array->RowPlaces || !array->Strips)
        LeaveOutOfMemory(jpeg);
    // The library only hands it back.
    return reinterpret_cast<jvirt_barray_ptr>(array);
}

JBLOCKARRAY JpegCoefficients::Access(j_common_ptr jpeg, jvirt_barray_ptr handle, JDIMENSION first,
                                     JDIMENSION count, boolean writable) {
    auto* array = reinterpret_cast<Array*>(handle);
    if (count > array->Rows || first > array->Rows - count)
        ERREXIT(jpeg, JERR_BAD_VIRTUAL_ACCESS);
    // Output goes from the top to the bottom, once; input comes before it.
    if (!writable)
        array->GiveBackBelow(first);
    for (JDIMENSION strip = first / array->RowsPerStrip;
         count > 0 && strip <= (first + count - 1) / array->RowsPerStrip; ++strip) {
        if (!array->Provide(strip))
            LeaveOutOfMemory(jpeg);
    }
    return array->RowPlaces + first;
}

}  // namespace orbelle::graphics
