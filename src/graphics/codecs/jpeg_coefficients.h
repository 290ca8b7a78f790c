// The memory of JPEG pictures that come in several scans.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
// The library's header uses std::size_t and FILE without including them.
#include <jpeglib.h>

namespace orbelle::graphics {

// Such a picture is put together as coefficients, two bytes and more a sample, before its first
// pixel is made. In place of the library's own arrays these give coefficients back once their
// pixels stand, so that a large picture is never in memory in both forms.
class JpegCoefficients {
public:
    JpegCoefficients() = default;
    JpegCoefficients(const JpegCoefficients&) = delete;
    JpegCoefficients& operator=(const JpegCoefficients&) = delete;
    ~JpegCoefficients();

    // Serves a decoder that was just made, whose client_data is this object. Lack of memory leaves
    // it by JERR_OUT_OF_MEMORY.
    void Serve(jpeg_decompress_struct& jpeg);

private:
    struct Array;

    static jvirt_barray_ptr Request(j_common_ptr jpeg, int pool, boolean preZero,
                                    JDIMENSION blocksPerRow, JDIMENSION rows, JDIMENSION maxAccess);
    static JBLOCKARRAY Access(j_common_ptr jpeg, jvirt_barray_ptr array, JDIMENSION first,
                              JDIMENSION count, boolean writable);

    // The library's functions are C: what they call must not throw, nor hold what is to be
    // destroyed when they leave by longjmp.
    std::array<Array*, MAX_COMPONENTS> arrays_{};
    std::size_t count_ = 0;
};

}  // namespace orbelle::graphics
