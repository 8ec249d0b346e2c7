// SPDX-License-Identifier: MIT
// Fuzzes the JPEG reader.
#include "codecs/jpegobject.h"
#include "fuzz/codecrun.h"
#include "fuzz/jpegclaims.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (is_too_slow(data, size)) {
        return -1;
    }
    run_codec<libgr::image_jpeg1_t>(data, size);
    return 0;
}
