// SPDX-License-Identifier: MIT
// The TGA codec.
#include "codecs/tga.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <limits>
#include <utility>

#include "codecs/binaryio.h"
#include "codecs/sizelimits.h"
#include "image/pixelconvert.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

constexpr std::streamoff header_size = 18;
constexpr std::uint8_t top_down_bit = 0x20;  // of the descriptor
constexpr unsigned int max_side = std::numeric_limits<std::uint16_t>::max();

struct depth_row_t {
    std::uint8_t depth;
    e_image_format_t format;
    e_image_format_t swapped_format;  ///< the format in RGB order that is saved with this depth
    e_image_bits_t bits;
};
constexpr depth_row_t depth_rows[] = {
    {8, IMAGE_FORMAT_GRAYSCALE, IMAGE_FORMAT_MAX, IMAGE_BITS_8},
    {16, IMAGE_FORMAT_BGRA, IMAGE_FORMAT_RGBA, IMAGE_BITS_R5G5B5A1},
    {24, IMAGE_FORMAT_BGR, IMAGE_FORMAT_RGB, IMAGE_BITS_8},
    {32, IMAGE_FORMAT_BGRA, IMAGE_FORMAT_RGBA, IMAGE_BITS_8},
};

std::uint64_t pixels_size(tgaimage_t const& tga) {
    std::uint64_t const row = (std::uint64_t{tga.depth} * tga.width) >> 3;
    return (row + 3) / 4 * 4 * tga.height;
}

void read_header(std::istream& stream, tgaimage_t& tga) {
    tga.id_length = read_field<std::uint8_t>(stream);
    tga.colormap_type = read_field<std::uint8_t>(stream);
    tga.image_type = read_field<std::uint8_t>(stream);
    tga.colormap_first = read_field<std::uint16_t>(stream);
    tga.colormap_length = read_field<std::uint16_t>(stream);
    tga.colormap_entry_size = read_field<std::uint8_t>(stream);
    tga.x_origin = read_field<std::uint16_t>(stream);
    tga.y_origin = read_field<std::uint16_t>(stream);
    tga.width = read_field<std::uint16_t>(stream);
    tga.height = read_field<std::uint16_t>(stream);
    tga.depth = read_field<std::uint8_t>(stream);
    tga.descriptor = read_field<std::uint8_t>(stream);
}

void write_header(std::ostream& stream, tgaimage_t const& tga) {
    write_field<std::uint8_t>(stream, tga.id_length);
    write_field<std::uint8_t>(stream, tga.colormap_type);
    write_field<std::uint8_t>(stream, tga.image_type);
    write_field<std::uint16_t>(stream, tga.colormap_first);
    write_field<std::uint16_t>(stream, tga.colormap_length);
    write_field<std::uint8_t>(stream, tga.colormap_entry_size);
    write_field<std::uint16_t>(stream, tga.x_origin);
    write_field<std::uint16_t>(stream, tga.y_origin);
    write_field<std::uint16_t>(stream, tga.width);
    write_field<std::uint16_t>(stream, tga.height);
    write_field<std::uint8_t>(stream, tga.depth);
    write_field<std::uint8_t>(stream, tga.descriptor);
}

bool read_vector(std::istream& stream, std::vector<unsigned char>& bytes, std::uint64_t size) {
    if (bytes_left(stream) < size) {
        return false;
    }
    bytes.resize(size);
    stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    return stream.good();
}

void write_vector(std::ostream& stream, std::vector<unsigned char> const& bytes) {
    stream.write(reinterpret_cast<char const*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
}

depth_row_t const* find_depth(unsigned int depth) {
    auto const* const row =
        std::ranges::find_if(depth_rows, [&](auto const& r) { return r.depth == depth; });
    return row == std::end(depth_rows) ? nullptr : row;
}

/// Returns true if `convert` accepts the type, row order and depth. Otherwise records the reason.
bool is_supported(tgaimage_t const& tga) {
    switch (tga.image_type) {
        case 1:
        case 2:
            break;
        case 3:
            return libutils::reject("TGA of gray levels");
        case 9:
        case 10:
        case 11:
            return libutils::reject("run-length encoded TGA");
        default:
            return libutils::reject("TGA of the unsupported type ", +tga.image_type);
    }
    if ((tga.descriptor & top_down_bit) != 0) {
        return libutils::reject("TGA with the top row first");
    }
    return find_depth(tga.depth) != nullptr ||
           libutils::reject("TGA with the unsupported depth of ", +tga.depth, " bits");
}

/// Returns the number of entries of the colour map that the file has.
std::uint64_t map_entries(tgaimage_t const& tga) {
    return std::uint64_t{tga.colormap_first} + tga.colormap_length;
}

/// Records that the file is too short because of its colour map: the entry size is probably in
/// bits. Always returns false.
bool reject_colormap(tgaimage_t const& tga) {
    return libutils::reject("TGA with a colour map of ", map_entries(tga), " entries of ",
                            +tga.colormap_entry_size, " bits");
}

/// Records why a file with `held` bytes of pixels is too short. Always returns false.
bool reject_short(tgaimage_t const& tga, std::uint64_t held) {
    std::uint64_t const row_bits = std::uint64_t{tga.depth} * tga.width;
    if (!is_supported(tga)) {
        return false;
    }
    if (tga.colormap_type != 0) {
        return reject_colormap(tga);
    }
    if (row_bits % 32 != 0 && held >= row_bits / 8 * tga.height) {
        return libutils::reject("TGA with rows that are not a multiple of 4 bytes");
    }
    return libutils::reject("ends within its pixels");
}

/// Implements `convert`. `file` is the path for error lines, or null.
bool convert_file(image2d_t& image, tgaimage_t const& tga, char const* file) {
    if (!is_supported(tga)) {
        return false;
    }
    if (tga.pixels.size() < pixels_size(tga)) {
        return reject_short(tga, tga.pixels.size());
    }
    if (!fits_in_memory(tga.width, tga.height, tga.depth, file)) {
        return false;
    }
    depth_row_t const* const row = find_depth(tga.depth);
    image.desc = {row->format, IMAGE_TYPE_UINT, row->bits};
    image.m_width = tga.width;
    image.m_height = tga.height;
    image.compressed = false;
    static_cast<image_bytes_t&>(image) = tga.pixels;
    return true;
}

}  // namespace

bool tgaimage_t::load(char const* path, libutils::android_app*) {
    std::ifstream stream;
    if (!open_file(stream, path)) {
        return false;
    }
    std::uint64_t const file_size = bytes_left(stream);
    read_header(stream, *this);
    if (stream.tellg() != std::streampos(header_size)) {
        return reject_header(file_size);
    }
    if (id_length != 0 && !read_vector(stream, image_id, id_length)) {
        return libutils::reject("ends within its image identifier");
    }
    // The entry size is in bits in published files, and in bytes in files of this writer.
    if (colormap_type != 0 &&
        !read_vector(stream, colormap, map_entries(*this) * colormap_entry_size)) {
        return reject_colormap(*this);
    }
    std::uint64_t const size = pixels_size(*this);
    std::uint64_t const held = bytes_left(stream);
    if (held < size) {
        return reject_short(*this, held);
    }
    return (fits_in_memory(size, path) && read_pixels(pixels, stream, size) && stream.good()) ||
           libutils::reject("read error");
}

bool tgaimage_t::save(char const* path, libutils::android_app*) {
    if (image_id.size() > std::numeric_limits<std::uint8_t>::max()) {
        return false;
    }
    id_length = static_cast<std::uint8_t>(image_id.size());
    colormap_type = colormap.empty() ? 0 : 1;
    if (colormap_entry_size != 0) {
        colormap_length =
            static_cast<std::uint16_t>(colormap.size() / colormap_entry_size - colormap_first);
    }
    std::ofstream stream(path, std::ios_base::binary | std::ios_base::trunc);
    if (!stream) {
        return false;
    }
    write_header(stream, *this);
    if (stream.tellp() != std::streampos(header_size)) {
        return false;
    }
    write_vector(stream, image_id);
    write_vector(stream, colormap);
    write_pixels(stream, pixels);
    stream.flush();
    return stream.good();
}

bool convert(image2d_t& image, tgaimage_t const& tga) {
    return convert_file(image, tga, nullptr);
}

bool convert(tgaimage_t& tga, image2d_t const& image) {
    if (image.compressed || image.m_width > max_side || image.m_height > max_side) {
        return false;
    }
    // Pictures in BGR order set depth and pixels, but are rejected. Callers depend on both.
    for (depth_row_t const& row : depth_rows) {
        if (image.desc == image_desc_t{row.format, IMAGE_TYPE_UINT, row.bits}) {
            tga.depth = row.depth;
            tga.pixels = image;
            return false;
        }
    }
    auto const* const row =
        std::find_if(std::begin(depth_rows), std::end(depth_rows), [&](auto const& r) {
            return r.swapped_format == image.desc.format && r.bits == image.desc.bits;
        });
    if (row == std::end(depth_rows)) {
        return false;
    }
    image2d_t swapped;
    // For packed pixels, rgb2bgr shares the pixels and returns false, which is not a failure here.
    if (!rgb2bgr(swapped, image) && row->bits == IMAGE_BITS_8) {
        return false;
    }
    tgaimage_t converted;
    converted.image_type = 2;
    converted.width = static_cast<std::uint16_t>(image.m_width);
    converted.height = static_cast<std::uint16_t>(image.m_height);
    converted.depth = row->depth;
    converted.image_id.swap(tga.image_id);
    converted.colormap.swap(tga.colormap);
    converted.pixels = swapped;
    tga = std::move(converted);
    return true;
}

bool image_tga_t::load(image2d_t& image, char const* path) {
    tgaimage_t tga;
    return tga.load(path, nullptr) && convert_file(image, tga, path);
}

bool image_tga_t::save(image2d_t const& image, char const* path) {
    tgaimage_t tga;
    return convert(tga, image) && tga.save(path, nullptr);
}

}  // namespace libgr
