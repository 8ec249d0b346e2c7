// SPDX-License-Identifier: MIT
// Fuzzes the lossless transform: the first byte chooses the operation, the rest is the file.
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "codecs/jpegtransform.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    libgr::jpegdata_t file;
    libgr::jpegdata_t turned;
    if (size > 1 && file.resize(size - 1, 0)) {
        std::copy(data + 1, data + size, file.begin());
        libgr::transform(data[0] % 4, turned, file);
    }
    return 0;
}
