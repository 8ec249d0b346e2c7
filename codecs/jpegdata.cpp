// SPDX-License-Identifier: MIT
// The bytes of a JPEG file.
#include "codecs/jpegdata.h"

#include <cerrno>

#include "utils/diagnostics.h"
#include "utils/replacefile.h"

namespace libgr {

bool jpegdata_t::load(char const* path, libutils::android_app* app) {
    if (!jpeg_bytes_t::load(0, path, libutils::PROTECTION_READ, 0, false, app)) {
        return libutils::reject_errno(errno);
    }
    name = path;
    return true;
}

bool jpegdata_t::save(char const* path, libutils::android_app*) {
    jpegdata_t const& bytes = *this;
    if (!libutils::replace_file(path, {reinterpret_cast<char const*>(bytes.begin()),
                                       static_cast<std::size_t>(bytes.size())})) {
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
