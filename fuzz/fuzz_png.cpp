// SPDX-License-Identifier: MIT
// Fuzzes the PNG reader.
#include "codecs/png.h"
#include "fuzz/codecrun.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    run_codec<libgr::image_png_t>(data, size);
    return 0;
}
