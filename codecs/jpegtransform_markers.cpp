// SPDX-License-Identifier: MIT
// Copies marker segments from the source of an operation to its result.
#include <cstring>

#include "codecs/jtransform.h"

namespace libgr {

namespace {

constexpr unsigned int saved_marker_length = 65535;  // bytes
constexpr int icc_marker = JPEG_APP0 + 2;
constexpr int adobe_marker = JPEG_APP0 + 14;

bool begins(jpeg_marker_struct const& saved, int code, char const* text, unsigned int length) {
    return saved.marker == code && saved.data_length >= length &&
           std::memcmp(saved.data, text, length) == 0;
}

}  // namespace

void jcopy_markers_setup(jpeg_decompress_struct* source, JCOPY_OPTION option) {
    if (option == JCOPY_COMMENTS || option == JCOPY_ALL || option == JCOPY_ALL_EXCEPT_ICC) {
        jpeg_save_markers(source, JPEG_COM, saved_marker_length);
    }
    for (int code = JPEG_APP0; code < JPEG_APP0 + 16; ++code) {
        bool const is_icc = code == icc_marker;
        if (option == JCOPY_ALL || (option == JCOPY_ALL_EXCEPT_ICC && !is_icc) ||
            (option == JCOPY_ICC && is_icc)) {
            jpeg_save_markers(source, code, saved_marker_length);
        }
    }
}

void jcopy_markers_execute(jpeg_decompress_struct* source, jpeg_compress_struct* destination,
                           JCOPY_OPTION) {
    for (jpeg_saved_marker_ptr saved = source->marker_list; saved != nullptr; saved = saved->next) {
        bool const is_written =
            (destination->write_JFIF_header != FALSE && begins(*saved, JPEG_APP0, "JFIF", 5)) ||
            (destination->write_Adobe_marker != FALSE && begins(*saved, adobe_marker, "Adobe", 5));
        if (!is_written) {
            jpeg_write_marker(destination, saved->marker, saved->data, saved->data_length);
        }
    }
}

}  // namespace libgr
