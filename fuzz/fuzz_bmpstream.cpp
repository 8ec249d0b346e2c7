// SPDX-License-Identifier: MIT
// Fuzzes the two BMP readers that copy the pixels.
#include "codecs/bmpimage.h"
#include "codecs/bmpload.h"
#include "fuzz/codecrun.h"

namespace {

struct bmpload_t {
    static bool load(libgr::image2d_t& image, char const* path) {
        image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
        return libgr::BmpLoad(image, path, libgr::IMAGE_FORMAT_RGB);
    }
};

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    run_codec<libgr::image_bmp_t>(data, size);
    run_codec<bmpload_t>(data, size);
    return 0;
}
