// SPDX-License-Identifier: MIT
// The JPEG encoder.
#include <jerror.h>

#include <algorithm>
#include <cerrno>
#include <iterator>

#include "codecs/jpeginfo.h"
#include "codecs/jpegmanagers.h"

namespace libgr {

namespace {

/// The state of the encoding step.
struct encoding_t {
    jpegdata_t& data;
    image2d_t const& image;
    std::list<marker_t> const& markers;
    jpeg_info_desc_t const& row;
    int quality = 0;
    bool force_baseline = false;
    jpeg_compress_struct cinfo{};
    my_error_mgr error{};

    encoding_t(jpegdata_t& bytes, image2d_t const& picture, std::list<marker_t> const& kept,
               jpeg_info_desc_t const& description)
        : data(bytes), image(picture), markers(kept), row(description) {}
    encoding_t(encoding_t const&) = delete;
    encoding_t& operator=(encoding_t const&) = delete;
    ~encoding_t() { jpeg_destroy_compress(&cinfo); }
};

void write_markers(encoding_t& encoding) {
    for (auto marker = encoding.markers.begin(); marker != encoding.markers.end(); ++marker) {
        jpeg_write_marker(&encoding.cinfo, marker->code, marker->payload.begin(),
                          static_cast<unsigned int>(marker->payload.size()));
    }
}

void encode(encoding_t& encoding) {
    j_compress_ptr const cinfo = &encoding.cinfo;
    cinfo->err = use_error_mgr(encoding.error, encoding.data);
    jpeg_create_compress(cinfo);
    use_memory_destination(cinfo, encoding.data);
    cinfo->image_width = encoding.image.m_width;
    cinfo->image_height = encoding.image.m_height;
    cinfo->input_components = static_cast<int>(encoding.row.components);
    cinfo->in_color_space = static_cast<J_COLOR_SPACE>(encoding.row.color_space);
    jpeg_set_defaults(cinfo);
    jpeg_set_quality(cinfo, encoding.quality, encoding.force_baseline ? TRUE : FALSE);
    jpeg_start_compress(cinfo, TRUE);
    write_markers(encoding);
    while (cinfo->next_scanline < cinfo->image_height) {
        unsigned char const* const pixels =
            pixel_row(encoding.image, cinfo->image_height - 1 - cinfo->next_scanline);
        auto* row = const_cast<JSAMPROW>(pixels);  // libjpeg does not write to it
        jpeg_write_scanlines(cinfo, &row, 1);
    }
    jpeg_finish_compress(cinfo);
}

}  // namespace

bool jpeginfo_t::compress(jpegdata_t& data, image2d_t const& image, int quality,
                          bool force_baseline) {
    data.clear();
    auto const* const row = std::find_if(
        std::begin(jpeg_info_desc_table), std::end(jpeg_info_desc_table),
        [&](jpeg_info_desc_t const& candidate) { return candidate.desc == image.desc; });
    if (row == std::end(jpeg_info_desc_table) || image.compressed || !pixels_within(image)) {
        errno = EINVAL;
        return false;
    }
    encoding_t encoding(data, image, markers, *row);
    encoding.quality = quality;
    encoding.force_baseline = force_baseline;
    bool const is_encoded = run_jpeg_step(encode, encoding);
    if (!is_encoded) {
        errno = encoding.error.base.msg_code == JERR_OUT_OF_MEMORY ? ENOMEM : EINVAL;
    }
    return is_encoded;
}

}  // namespace libgr
