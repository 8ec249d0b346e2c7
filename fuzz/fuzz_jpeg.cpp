// SPDX-License-Identifier: MIT
// Fuzzes the JPEG reader.
#include "codecs/jpegobject.h"
#include "fuzz/codecrun.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    run_codec<libgr::image_jpeg1_t>(data, size);
    return 0;
}
