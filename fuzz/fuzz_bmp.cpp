// SPDX-License-Identifier: MIT
// Fuzzes the mapping BMP reader.
#include "codecs/bmpimage2.h"
#include "fuzz/codecrun.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    run_codec<libgr::image_bmp2_t>(data, size);
    return 0;
}
