// SPDX-License-Identifier: MIT
// The BMP reader that maps the file.
#include "codecs/bmpimage2.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <limits>

#include "codecs/binaryio.h"
#include "codecs/bmpstream.h"
#include "codecs/sizelimits.h"
#include "utils/bits.h"
#include "utils/byteorder.h"
#include "utils/diagnostics.h"
#include "utils/limits.h"

namespace libgr {

namespace {

namespace limits = libutils::limits;

struct depth_row_t {
    std::uint16_t depth;
    e_image_format_t format;          ///< without a palette
    e_image_format_t palette_format;  ///< IMAGE_FORMAT_MAX if a palette is rejected
    e_image_bits_t bits;
};
constexpr depth_row_t depth_rows[] = {
    {1, IMAGE_FORMAT_GRAYSCALE, IMAGE_FORMAT_INDEX, IMAGE_BITS_1},
    {4, IMAGE_FORMAT_GRAYSCALE, IMAGE_FORMAT_INDEX, IMAGE_BITS_4},
    {8, IMAGE_FORMAT_GRAYSCALE, IMAGE_FORMAT_INDEX, IMAGE_BITS_8},
    {24, IMAGE_FORMAT_BGR, IMAGE_FORMAT_BGR, IMAGE_BITS_8},
    {32, IMAGE_FORMAT_BGRA, IMAGE_FORMAT_MAX, IMAGE_BITS_8},
};

unsigned long mapping_size(bmpimage2_t const& bmp) {
    image_bytes_t whole;
    whole.share(bmp.pixels);
    return whole.size();
}

template <typename T>
void set_view(bmpimage2_t::view_t<T>& view, image_bytes_t const& mapping, unsigned long offset,
              unsigned long count) {
    view.share(mapping);
    view.offset = libutils::min2(offset, mapping.size());
    view.count = count;
}

/// Returns the file offset of the palette, which follows a header of 40 bytes, or of 108 bytes with
/// an sRGB colour space.
unsigned long palette_offset(image_bytes_t const& mapping, unsigned long pixels_offset) {
    constexpr char srgb_signature[4] = {'B', 'G', 'R', 's'};
    bool const long_header = pixels_offset > 121 && mapping.size() >= 54 + sizeof srgb_signature &&
                             std::memcmp(&mapping[54], srgb_signature, sizeof srgb_signature) == 0;
    return long_header ? 122 : 54;
}

bool take_palette(palette_t& palette, bmpimage2_t const& bmp, char const* file) {
    unsigned long size = bmp.palette.size();
    if (size > limits::bmp_palette.value) {
        libutils::report_limit(limits::bmp_palette, file);
        size = limits::bmp_palette.value;
    }
    palette.clear();
    palette.resize(size);
    if (palette.red.count() < size || palette.green.count() < size || palette.blue.count() < size) {
        return libutils::reject("not enough memory");
    }
    for (unsigned long i = 0; i < size; ++i) {
        libutils::tagRGBQUAD const quad = bmp.palette[i];
        palette.red[i] = static_cast<unsigned short>(quad.rgbRed * 257);
        palette.green[i] = static_cast<unsigned short>(quad.rgbGreen * 257);
        palette.blue[i] = static_cast<unsigned short>(quad.rgbBlue * 257);
    }
    return true;
}

/// Returns true if a picture with `claimed` bytes of pixels may be loaded from a file that has
/// `held` bytes of them.
bool is_plausible_size(std::uint64_t claimed, std::uint64_t held, char const* file) {
    return claimed <= limits::bmp_unchecked.value || claimed / limits::bmp_ratio.value <= held ||
           libutils::report_limit(limits::bmp_ratio, file);
}

/// Shares the pixels, or copies them into a larger block if the file ends within them. Returns
/// false if the file has less than a row, or too few bytes for the size of the picture.
bool take_pixels(image2d_t& image, bmpimage2_t const& bmp, std::uint64_t depth, char const* file) {
    std::uint64_t const width = image.m_width;
    std::uint64_t const height = image.m_height;
    std::uint64_t const held = bmp.pixels.size();
    std::uint64_t const size = checked_product((depth * width + 31) / 32 * 4, height)
                                   .value_or(std::numeric_limits<std::uint64_t>::max());
    bool const is_cut = held < size;
    if (height > std::numeric_limits<std::int32_t>::max()) {
        // The height is negative. The limits below reject it as a large one.
        libutils::reject("BMP with the top row first");
    }
    if (held < (depth * width + 7) / 8) {
        return libutils::reject("ends within its first row");
    }
    if ((is_cut && !is_plausible_size(size, held, file)) ||
        !fits_in_memory(width, height, depth, file)) {
        return false;
    }
    if (!is_cut) {
        static_cast<image_bytes_t&>(image) = bmp.pixels;
        return true;
    }
    image_bytes_t block;
    if (!block.resize(size, 0)) {
        return libutils::reject("not enough memory");
    }
    std::memcpy(block.begin(), bmp.pixels.begin(), held);
    static_cast<image_bytes_t&>(image) = block;
    return true;
}

/// Implements `convert`. `file` is the path for error lines, or null.
bool convert_file(image2d_t& image, bmpimage2_t const& bmp, char const* file) {
    if (mapping_size(bmp) <
        sizeof(libutils::tagBITMAPFILEHEADER) + sizeof(libutils::tagBITMAPINFOHEADER)) {
        return reject_header(mapping_size(bmp));
    }
    libutils::tagBITMAPINFOHEADER const header = *bmp.infoheader.begin();
    if (libutils::itohs(bmp.fileheader->bfType) != bmp_signature) {
        // The signature is not checked. But if the file is rejected, this is the reason.
        libutils::reject(not_bmp_reason);
    }
    if (!is_uncompressed(libutils::itohl(header.biCompression))) {
        return false;
    }
    bool const has_palette = !bmp.palette.empty();
    for (depth_row_t const& row : depth_rows) {
        if (row.depth != libutils::itohs(header.biBitCount)) {
            continue;
        }
        e_image_format_t const format = has_palette ? row.palette_format : row.format;
        if (format == IMAGE_FORMAT_MAX) {
            return libutils::reject("BMP of 32 bits with a palette or a longer header");
        }
        image.desc = {format, IMAGE_TYPE_UINT, row.bits};
        image.m_width = libutils::itohl(header.biWidth);
        image.m_height = libutils::itohl(header.biHeight);
        image.compressed = false;
        image.palette.clear();
        return take_pixels(image, bmp, row.depth, file) &&
               (format != IMAGE_FORMAT_INDEX || take_palette(image.palette, bmp, file));
    }
    return reject_depth(libutils::itohs(header.biBitCount));
}

}  // namespace

bool bmpimage2_t::load(char const* path, libutils::android_app* app) {
    image_bytes_t mapping;
    if (!mapping.load(0, path, libutils::PROTECTION_READ, 0, false, app)) {
        return libutils::reject_errno(errno);
    }
    if (mapping.size() < sizeof(libutils::tagBITMAPFILEHEADER)) {
        return reject_header(mapping.size());
    }
    set_view(fileheader, mapping, 0, 1);
    set_view(infoheader, mapping, sizeof(libutils::tagBITMAPFILEHEADER), 1);
    unsigned long const pixels_offset = libutils::itohl(fileheader->bfOffBits);
    unsigned long const entries_offset = palette_offset(mapping, pixels_offset);
    // The count is in bytes, not in entries. If the pixels are before the palette, it wraps around,
    // and the view ends at the end of the file.
    set_view(palette, mapping, entries_offset, pixels_offset - entries_offset);
    set_view(pixels, mapping, pixels_offset, image_bytes_t::to_end);
    return true;
}

bool convert(image2d_t& image, bmpimage2_t const& bmp) {
    return convert_file(image, bmp, nullptr);
}

bool image_bmp2_t::load(image2d_t& image, char const* path) {
    return m_bmp.load(path, nullptr) && convert_file(image, m_bmp, path);
}

}  // namespace libgr
