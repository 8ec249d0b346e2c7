// SPDX-License-Identifier: MIT
// Mapping and writing JPEG files.
#include "codecs/jpegdata.h"

#include <unistd.h>

#include <fstream>

namespace libgr {

bool jpegdata_t::load(char const* path, libutils::android_app* app) {
    if (!jpeg_bytes_t::load(0, path, libutils::PROTECTION_READ, 0, false, app)) {
        return false;
    }
    name = path;
    return true;
}

bool jpegdata_t::save(char const* path, libutils::android_app*) {
    unlink(path);
    std::ofstream file(path, std::ios::binary);
    if (!file) {
        return false;
    }
    jpegdata_t const& bytes = *this;
    file.write(reinterpret_cast<char const*>(bytes.begin()),
               static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) {
        return false;
    }
    name = path;
    return true;
}

void jpegdata_t::setvector(jpeg_bytes_t const& bytes, char const* bytes_name) {
    static_cast<jpeg_bytes_t&>(*this) = bytes;
    name = bytes_name;
}

}  // namespace libgr
