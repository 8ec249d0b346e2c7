// SPDX-License-Identifier: MIT
// Fuzzes the JPEG reader. The size of the input chooses between a square and a border.
#include "codecs/jpeginfo.h"
#include "codecs/jpegobject.h"
#include "fuzz/codecrun.h"
#include "fuzz/jpegclaims.h"
#include "geometry/constants.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (is_too_slow(data, size)) {
        return -1;
    }
    run_codec<libgr::image_jpeg1_t>(data, size);
    libgr::jpegdata_t file;
    input_t(data, size).fill(file);
    libgr::jpeginfo_t info;
    info.analyze_markers(file);
    auto const square_unit = static_cast<unsigned short>(size % 3 * 8);
    libgr::image2d_t image;
    if (info.decompress(image, file, square_unit, square_unit == 0, libgr::white3ub)) {
        read_pixels(image);
    }
    return 0;
}
