// SPDX-License-Identifier: MIT
// The mapping BMP reader.
#include "codecs/bmpimage2.h"

#include <cstdint>
#include <cstring>
#include <optional>

#include "codecs/claims.h"
#include "utils/bits.h"
#include "utils/byteorder.h"

namespace libgr {

namespace {

/// No index of 8 bits reaches an entry behind these, whatever size the file gives the area.
constexpr unsigned long k_palette_entries_max = 65536;

struct depth_row_t {
    std::uint16_t depth;
    e_image_format_t format;          ///< without a palette
    e_image_format_t palette_format;  ///< IMAGE_FORMAT_MAX where a palette is refused
    e_image_bits_t bits;
};
constexpr depth_row_t k_depths[] = {
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

/// The palette follows the header of 40 bytes, or one of 108 that names its colour space.
unsigned long palette_offset(image_bytes_t const& mapping, unsigned long pixels_offset) {
    constexpr char k_srgb[4] = {'B', 'G', 'R', 's'};
    bool const long_header = pixels_offset > 121 && mapping.size() >= 54 + sizeof k_srgb &&
                             std::memcmp(&mapping[54], k_srgb, sizeof k_srgb) == 0;
    return long_header ? 122 : 54;
}

bool take_palette(palette_t& palette, bmpimage2_t const& bmp) {
    unsigned long const size = libutils::min2(bmp.palette.size(), k_palette_entries_max);
    palette.clear();
    palette.resize(size);
    if (palette.red.count() < size || palette.green.count() < size || palette.blue.count() < size) {
        return false;
    }
    for (unsigned long i = 0; i < size; ++i) {
        libutils::tagRGBQUAD const quad = bmp.palette[i];
        palette.red[i] = static_cast<unsigned short>(quad.rgbRed * 257);
        palette.green[i] = static_cast<unsigned short>(quad.rgbGreen * 257);
        palette.blue[i] = static_cast<unsigned short>(quad.rgbBlue * 257);
    }
    return true;
}

/// Shares the pixels. Where the file ends early, copies what is there of them into a block of the
/// picture's full size, so that they can be shown, unless that is less than a row or the size is
/// out of proportion.
bool take_pixels(image2d_t& image, bmpimage2_t const& bmp, std::uint64_t depth) {
    std::uint64_t const width = image.m_width;
    std::uint64_t const height = image.m_height;
    if (!fits_in_memory(width, height, depth)) {
        return false;
    }
    std::uint64_t const row_size = (depth * width + 31) / 32 * 4;
    std::uint64_t const size = row_size * height;
    std::uint64_t const held = bmp.pixels.size();
    if (held < size) {
        image_bytes_t block;
        if (held < (depth * width + 7) / 8 || !is_bearable_claim(size, held) ||
            !block.resize(size, 0)) {
            return false;
        }
        std::memcpy(block.begin(), bmp.pixels.begin(), held);
        static_cast<image_bytes_t&>(image) = block;
        return true;
    }
    static_cast<image_bytes_t&>(image) = bmp.pixels;
    return true;
}

}  // namespace

bool bmpimage2_t::load(char const* path, libutils::android_app* app) {
    image_bytes_t mapping;
    if (!mapping.load(0, path, libutils::PROTECTION_READ, 0, false, app) ||
        mapping.size() < sizeof(libutils::tagBITMAPFILEHEADER)) {
        return false;
    }
    set_view(fileheader, mapping, 0, 1);
    set_view(infoheader, mapping, sizeof(libutils::tagBITMAPFILEHEADER), 1);
    unsigned long const pixels_offset = libutils::itohl(fileheader->bfOffBits);
    unsigned long const entries_offset = palette_offset(mapping, pixels_offset);
    // The area's bytes stand as the number of entries; an offset before it takes all there is.
    set_view(palette, mapping, entries_offset, pixels_offset - entries_offset);
    set_view(pixels, mapping, pixels_offset, image_bytes_t::to_end);
    return true;
}

bool convert(image2d_t& image, bmpimage2_t const& bmp) {
    if (mapping_size(bmp) <
        sizeof(libutils::tagBITMAPFILEHEADER) + sizeof(libutils::tagBITMAPINFOHEADER)) {
        return false;
    }
    libutils::tagBITMAPINFOHEADER const header = *bmp.infoheader.begin();
    if (libutils::itohl(header.biCompression) != 0) {
        return false;
    }
    bool const has_palette = bmp.palette.size() != 0;
    for (depth_row_t const& row : k_depths) {
        if (row.depth != libutils::itohs(header.biBitCount)) {
            continue;
        }
        e_image_format_t const format = has_palette ? row.palette_format : row.format;
        if (format == IMAGE_FORMAT_MAX) {
            return false;
        }
        image.desc = {format, IMAGE_TYPE_UINT, row.bits};
        image.m_width = libutils::itohl(header.biWidth);
        image.m_height = libutils::itohl(header.biHeight);
        image.compressed = false;
        image.palette.clear();
        return take_pixels(image, bmp, row.depth) &&
               (format != IMAGE_FORMAT_INDEX || take_palette(image.palette, bmp));
    }
    return false;
}

bool image_bmp2_t::load(image2d_t& image, char const* path) {
    return m_bmp.load(path, nullptr) && convert(image, m_bmp);
}

}  // namespace libgr
