// SPDX-License-Identifier: MIT
// Fuzzes the TGA reader.
#include "codecs/tga.h"
#include "fuzz/codecrun.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    run_codec<libgr::image_tga_t>(data, size);
    return 0;
}
