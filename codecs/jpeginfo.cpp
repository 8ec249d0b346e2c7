// SPDX-License-Identifier: MIT
// The JPEG decoder. All calls of libjpeg are in steps, see run_jpeg_step.
#include "codecs/jpeginfo.h"

#include <cstring>
#include <iostream>

#include "codecs/jpeglimits.h"
#include "codecs/jpegmanagers.h"
#include "codecs/sizelimits.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"

namespace libgr {

jpeg_info_desc_t const jpeg_info_desc_table[3] = {
    {{IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}, JCS_RGB, 3},
    {{IMAGE_FORMAT_YCbCr, IMAGE_TYPE_UINT, IMAGE_BITS_8}, JCS_YCbCr, 3},
    {{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8}, JCS_GRAYSCALE, 1},
};

namespace {

/// The store of all decoded images: rows are padded to 4 bytes.
constexpr image_store_t padded_store{false, 4};

constexpr unsigned int saved_marker_length = 65535;  // bytes

/// The state of the decoding steps.
struct decoding_t {
    jpeg_decompress_struct cinfo{};
    my_error_mgr error{};
    work_limit_t limit{};
    jpegdata_t const& data;
    jpeg_memory_source_t* source = nullptr;
    bool has_scans = false;  ///< several scans, all of which are read before the first row
    unsigned int app_length = saved_marker_length;
    JSAMPROW bottom = nullptr;     ///< the first byte of the image
    std::size_t row_size = 0;      ///< bytes from a row to the next one above
    unsigned int stored_rows = 0;  ///< rows for which the image has memory
    bool fell_short = false;       ///< the data ended early

    explicit decoding_t(jpegdata_t const& bytes) : data(bytes) {}
    decoding_t(decoding_t const&) = delete;
    decoding_t& operator=(decoding_t const&) = delete;
    ~decoding_t() { jpeg_destroy_decompress(&cinfo); }
};

void read_header(decoding_t& decoding) {
    j_decompress_ptr const cinfo = &decoding.cinfo;
    cinfo->err = use_error_mgr(decoding.error, decoding.data);
    jpeg_create_decompress(cinfo);
    use_work_limit(cinfo, decoding.limit, decoding.data);
    decoding.source = use_memory_source(cinfo, decoding.data);
    decoding.limit.source = decoding.source;
    jpeg_save_markers(cinfo, JPEG_COM, saved_marker_length);
    for (int n = 0; n < 16; ++n) {
        jpeg_save_markers(cinfo, JPEG_APP0 + n, decoding.app_length);
    }
    jpeg_read_header(cinfo, TRUE);
    decoding.source->in_header = false;
    decoding.has_scans = jpeg_has_multiple_scans(cinfo) != FALSE;
}

void report(jpegdata_t const& data, char const* text) {
    libutils::error();
    std::cerr << libutils::putname(data.name) << text << std::endl;
}

/// Decodes the rows. The first row of the file becomes the last one in memory.
void read_rows(decoding_t& decoding) {
    j_decompress_ptr const cinfo = &decoding.cinfo;
    jpeg_start_decompress(cinfo);
    decoding.fell_short = decoding.has_scans && (decoding.limit.is_reached || lacks_data(cinfo) ||
                                                 decoding.source->has_run_out());
    JSAMPARRAY const elsewhere =
        (*cinfo->mem->alloc_sarray)(reinterpret_cast<j_common_ptr>(cinfo), JPOOL_IMAGE,
                                    static_cast<JDIMENSION>(decoding.row_size), 1);
    while (cinfo->output_scanline < cinfo->output_height) {
        JDIMENSION const target = cinfo->output_height - 1 - cinfo->output_scanline;
        JSAMPROW row = target < decoding.stored_rows ? decoding.bottom + decoding.row_size * target
                                                     : elsewhere[0];
        bool const delivered = jpeg_read_scanlines(cinfo, &row, 1) == 1;
        if (!delivered || (!decoding.has_scans && lacks_data(cinfo))) {
            decoding.fell_short = true;
            break;
        }
    }
    if (decoding.fell_short && decoding.limit.last_scan == 0) {
        report(decoding.data, ": decompress fail.");
    }
    jpeg_finish_decompress(cinfo);
}

/// Decodes a file of several scans again after an error, using the scans before the error. None of
/// its rows has been decoded yet.
void read_whole_scans(decoding_t& failed) {
    jpeg_destroy_decompress(&failed.cinfo);
    decoding_t decoding(failed.data);
    decoding.limit.last_scan = failed.limit.scan;
    decoding.limit.is_reported = failed.limit.is_reported;
    decoding.bottom = failed.bottom;
    decoding.row_size = failed.row_size;
    decoding.stored_rows = failed.stored_rows;
    if (failed.has_scans && decoding.limit.last_scan != 0 && run_jpeg_step(read_header, decoding)) {
        run_jpeg_step(read_rows, decoding);
    }
}

jpeg_info_desc_t const* row_of(jpeg_decompress_struct const& cinfo) {
    for (jpeg_info_desc_t const& row : jpeg_info_desc_table) {
        if (static_cast<int>(row.components) == cinfo.num_components &&
            row.color_space == static_cast<unsigned>(cinfo.out_color_space)) {
            return &row;
        }
    }
    return nullptr;
}

/// Checks the size in the header, with the coefficients of all scans if there are several.
bool has_plausible_size(decoding_t const& decoding, image_desc_t const& desc) {
    jpeg_decompress_struct const& cinfo = decoding.cinfo;
    auto const components = static_cast<std::uint64_t>(cinfo.num_components);
    std::uint64_t const coefficient_bits = decoding.has_scans ? components * sizeof(JCOEF) * 8 : 0;
    return is_plausible_size(cinfo, desc.getPixelBits(), coefficient_bits, decoding.data);
}

void keep_markers(std::list<marker_t>& markers, jpeg_decompress_struct const& cinfo, bool whole) {
    for (jpeg_saved_marker_ptr saved = cinfo.marker_list; saved != nullptr; saved = saved->next) {
        if (whole && (saved->data_length == 0 || saved->data_length != saved->original_length)) {
            continue;
        }
        markers.push_back({saved->marker, {}});
        jpeg_bytes_t& payload = markers.back().payload;
        if (saved->data_length != 0 && payload.resize(saved->data_length, 0)) {
            std::memcpy(payload.begin(), saved->data, saved->data_length);
        }
    }
}

/// Returns `side` rounded up to a multiple of `unit`, or 0 if the result does not fit into 16 bits.
unsigned short rounded_side(unsigned int side, unsigned short unit) {
    auto const rest = static_cast<unsigned short>(static_cast<unsigned short>(side) % unit);
    auto const rounded = static_cast<unsigned short>(rest == 0 ? side : side + (unit - rest));
    return rounded < side ? 0 : rounded;
}

/// Allocates `side` rows of `side` pixels.
bool allocate_square(image2d_t& image, unsigned int side, char const* file) {
    image.window.rowlength = side;
    return fits_in_memory(side, side, image.getPixelBits(), file) &&
           image.resize(image.rowsize() * side, 0);
}

/// Clears the pixels of the square outside of the picture.
void clear_outside(image2d_t& image, unsigned int side) {
    auto const row_size = static_cast<std::size_t>(image.rowsize());
    auto const row_bytes = static_cast<std::size_t>(image.rowbyte());
    unsigned char* row = image.begin();
    for (unsigned int y = 0; y < side; ++y, row += row_size) {
        std::size_t const kept = y < image.m_height ? row_bytes : 0;
        std::memset(row + kept, 0, row_size - kept);
    }
}

/// Paints a margin of one pixel around the picture, as far as the image has memory. Uses three
/// bytes per pixel for all formats.
void paint_border(image2d_t& image, color3ub_t const& color) {
    auto const row_size = static_cast<std::size_t>(image.rowsize());
    auto const paint = [&](unsigned int x, unsigned int y) {
        std::size_t const at = row_size * y + std::size_t{x} * 3;
        if (at + 3 <= image.size()) {
            std::memcpy(image.begin() + at, &color, 3);
        }
    };
    static_assert(sizeof(color3ub_t) == 3);
    for (unsigned int x = 0; x < image.m_width + 2; ++x) {
        paint(x, 0);
        paint(x, image.m_height + 1);
    }
    for (unsigned int y = 1; y <= image.m_height; ++y) {
        paint(0, y);
        paint(image.m_width + 1, y);
    }
}

/// Allocates the memory of a picture whose size and pixel format are set.
bool allocate_store(image2d_t& image, unsigned short unit, bool border, color3ub_t const& color,
                    char const* file) {
    if (unit == 0 && !border) {
        return image.allocate();
    }
    unsigned int const longer = libutils::max2(image.m_width, image.m_height);
    if (!border) {
        unsigned int const side = rounded_side(longer, unit);
        bool const is_new = image.empty();
        if (!allocate_square(image, side, file)) {
            return false;
        }
        if (!is_new) {  // new memory is 0, and uses no pages before it is written
            clear_outside(image, side);
        }
        return true;
    }
    image.window.skiprows = 1;
    // Without a unit, the side is the width. Callers depend on it, although the rows of a tall
    // picture do not all fit.
    unsigned int const side = unit != 0 ? rounded_side(longer, unit) : image.m_width;
    if (side == 0 || !allocate_square(image, static_cast<unsigned short>(side + 2), file)) {
        return false;
    }
    paint_border(image, color);
    return true;
}

}  // namespace

bool jpeginfo_t::decompress(image2d_t& image, jpegdata_t const& data, unsigned short square_unit,
                            bool border, color3ub_t const& border_color) {
    markers.clear();
    decoding_t decoding(data);
    jpeg_decompress_struct& cinfo = decoding.cinfo;
    if (!run_jpeg_step(read_header, decoding)) {
        report(data, ": jpeg decompress fail, stop.");
        return false;
    }
    width = cinfo.image_width;
    height = cinfo.image_height;
    image.m_width = cinfo.image_width;
    image.m_height = cinfo.image_height;
    image.compressed = false;
    image.store = &padded_store;
    jpeg_info_desc_t const* const row = row_of(cinfo);
    if (row == nullptr) {
        return libutils::reject(cinfo.out_color_space == JCS_CMYK ? "CMYK JPEG"
                                                                  : "JPEG of unknown colours");
    }
    image.desc = row->desc;
    if (!has_plausible_size(decoding, row->desc) ||
        !allocate_store(image, square_unit, border, border_color, data.name) ||
        image.rowsize() < image.rowbyte()) {
        libutils::reject("not enough memory");
        report(data, ": jpeg decompress fail, stop.");
        return false;
    }
    keep_markers(markers, cinfo, true);
    decoding.bottom = image.begin();
    decoding.row_size = static_cast<std::size_t>(image.rowsize());
    decoding.stored_rows = static_cast<unsigned int>(image.size() / decoding.row_size);
    if (!run_jpeg_step(read_rows, decoding)) {
        report(data, ": jpeg decompress fail, but continue.");
        read_whole_scans(decoding);
    }
    return true;
}

bool jpeginfo_t::analyze_markers(jpegdata_t const& data) {
    markers.clear();
    decoding_t decoding(data);
    decoding.app_length = 0xFFFFFFFF;
    if (!run_jpeg_step(read_header, decoding)) {
        report(data, ": jpeg decompress fail, stop.");
        return false;
    }
    width = decoding.cinfo.image_width;
    height = decoding.cinfo.image_height;
    keep_markers(markers, decoding.cinfo, false);
    return true;
}

jpeg_bytes_t jpeginfo_t::get_marker(e_marker_num_t number) const {
    if (number < MARKER_MAX) {
        for (marker_t const& marker : markers) {
            if (marker.code == marker_array[number].code) {
                return marker.payload;
            }
        }
    }
    return {};
}

}  // namespace libgr
