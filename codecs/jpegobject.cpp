// SPDX-License-Identifier: MIT
// The JPEG codec.
#include "codecs/jpegobject.h"

#include "codecs/orientation.h"
#include "geometry/constants.h"
#include "metadata/exif.h"

namespace libgr {

bool image_jpeg1_t::load(image2d_t& image, char const* path) {
    if (!m_data.load(path, nullptr)) {
        return false;
    }
    bool const decoded = m_info.decompress(image, m_data, 0, false, white3ub);
    m_data.clear();
    if (decoded) {
        read_orientation();
    }
    return decoded;
}

/// Reads the orientation from the first APP1 segment, if all of it can be parsed.
void image_jpeg1_t::read_orientation() {
    jpeg_bytes_t const payload = m_info.get_marker(MARKER_APP1);
    if (payload.empty()) {
        return;
    }
    app1_marker_t app1;
    app1.set_app1_buffer(payload);
    if (!app1.parse()) {
        return;
    }
    auto const& orientation = app1.tiff_header.tag_0th_ifd.Orientation;
    if (!orientation.empty()) {
        m_rightrotatecount = mixorientandrightrotatecount(0, orientation[0]);
    }
}

bool image_jpeg1_t::save(image2d_t const& image, char const* path) {
    constexpr int quality = 95;
    jpegdata_t data;
    return m_info.compress(data, image, quality, true) && data.save(path, nullptr);
}

}  // namespace libgr
