// SPDX-License-Identifier: MIT
// The PNG codec. All calls of libpng that can fail are in steps, see run_png_step.
#include "codecs/png.h"

#include <png.h>

#include <algorithm>
#include <cerrno>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <new>

#include "codecs/binaryio.h"
#include "codecs/sizelimits.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"
#include "utils/limits.h"

namespace libgr {

namespace {

constexpr unsigned int signature_byte_count = 4;

struct format_row_t {
    int color_type;
    e_image_format_t format;
};
constexpr format_row_t format_rows[] = {
    {PNG_COLOR_TYPE_GRAY, IMAGE_FORMAT_GRAYSCALE},
    {PNG_COLOR_TYPE_RGB, IMAGE_FORMAT_RGB},
    {PNG_COLOR_TYPE_PALETTE, IMAGE_FORMAT_INDEX},
    {PNG_COLOR_TYPE_GRAY_ALPHA, IMAGE_FORMAT_GRAYSCALE_ALPHA},
    {PNG_COLOR_TYPE_RGB_ALPHA, IMAGE_FORMAT_RGBA},
};

struct depth_row_t {
    int depth;
    e_image_bits_t bits;
};
constexpr depth_row_t depth_rows[] = {
    {1, IMAGE_BITS_1}, {2, IMAGE_BITS_2}, {4, IMAGE_BITS_4}, {8, IMAGE_BITS_8}, {16, IMAGE_BITS_16},
};

/// The state of the reading steps.
struct png_reader_t {
    png_structp png = nullptr;
    png_infop info = nullptr;
    png_uint_32 width = 0;
    png_uint_32 height = 0;
    int depth = 0;
    int color_type = 0;
    std::size_t row_bytes = 0;
    png_bytepp rows = nullptr;  ///< top row first

    png_reader_t() = default;
    png_reader_t(png_reader_t const&) = delete;
    png_reader_t& operator=(png_reader_t const&) = delete;
    ~png_reader_t() { png_destroy_read_struct(&png, &info, nullptr); }
};

/// The state of the writing steps.
struct png_writer_t {
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::FILE* file = nullptr;
    image2d_t const* image = nullptr;
    int depth = 0;
    int color_type = 0;
    char const* title = nullptr;
    png_bytep spread_row =
        nullptr;  ///< a row with one byte per pixel, for less than 8 bits per pixel

    png_writer_t() = default;
    png_writer_t(png_writer_t const&) = delete;
    png_writer_t& operator=(png_writer_t const&) = delete;
    ~png_writer_t() {
        png_destroy_write_struct(&png, &info);
        close();
    }
    bool close() {
        std::FILE* const closing = file;
        file = nullptr;
        return closing == nullptr || std::fclose(closing) == 0;
    }
};

/// Calls `step(state)`. Returns false if libpng fails in it. The step is then left by a jump, so it
/// must not have objects with destructors.
template <typename state_t>
[[gnu::noinline]] bool run_png_step(void (*step)(state_t&), state_t& state) {
    if (setjmp(*png_set_longjmp_fn(state.png, longjmp, sizeof(jmp_buf))) != 0) {
        return false;
    }
    step(state);
    return true;
}

/// The error function of libpng. Records the message, and calls libpng's default function.
[[noreturn]] void record_error(png_structp png, png_const_charp message) {
    libutils::reject(message != nullptr ? message : "");
    png_set_error_fn(png, nullptr, nullptr, nullptr);
    png_error(png, message);
}

/// Prints the line of a failure. If no reason is recorded, memory is missing.
int fail() {
    libutils::reject("not enough memory");
    libutils::error();
    std::cerr << "FAIL" << std::endl;
    return -4;
}

void read_header(png_reader_t& reader) {
    // Do not read texts and profiles, which can be large.
    png_set_keep_unknown_chunks(reader.png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_set_sig_bytes(reader.png, signature_byte_count);
    png_read_info(reader.png, reader.info);
    png_get_IHDR(reader.png, reader.info, &reader.width, &reader.height, &reader.depth,
                 &reader.color_type, nullptr, nullptr, nullptr);
    // libpng prints a warning for interlaced files without this call.
    png_set_interlace_handling(reader.png);
    png_read_update_info(reader.png, reader.info);
    reader.row_bytes = png_get_rowbytes(reader.png, reader.info);
}

void read_rows(png_reader_t& reader) {
    png_read_image(reader.png, reader.rows);
}

/// Returns true if the size in the header is within the limits png-ratio and picture-memory.
/// Otherwise prints an error line.
bool is_plausible_size(png_reader_t const& reader, std::uint64_t file_size, char const* path) {
    std::uint64_t const pixel_bits = std::uint64_t{png_get_channels(reader.png, reader.info)} *
                                     static_cast<std::uint64_t>(reader.depth);
    libutils::limit_t const& ratio = libutils::limits::png_ratio;
    if (std::uint64_t{reader.row_bytes} * reader.height / ratio.value > file_size) {
        return libutils::report_limit(ratio, path);
    }
    return fits_in_memory(reader.width, reader.height, pixel_bits, path);
}

void describe(image2d_t& image, png_reader_t const& reader) {
    image.m_width = reader.width;
    image.m_height = reader.height;
    for (format_row_t const& row : format_rows) {
        if (row.color_type == reader.color_type) {
            image.desc.format = row.format;
        }
    }
    image.desc.type = IMAGE_TYPE_UINT;
    for (depth_row_t const& row : depth_rows) {
        if (row.depth == reader.depth) {
            image.desc.bits = row.bits;
        }
    }
    image.compressed = false;
}

/// Reads the palette and widens it to 16 bits. The number of entries is rounded up to a power of
/// two.
bool take_palette(palette_t& palette, png_reader_t const& reader) {
    png_colorp colors = nullptr;
    int entries = 0;
    if (png_get_PLTE(reader.png, reader.info, &colors, &entries) == 0 || entries <= 0) {
        return libutils::reject("no palette");
    }
    auto const number = static_cast<unsigned long>(entries);
    unsigned long const size =
        libutils::Is_2nSize(number) ? number : 1UL << libutils::Get_TopBitPos(number);
    palette.resize(size);
    if (palette.red.count() < size || palette.green.count() < size || palette.blue.count() < size) {
        return false;
    }
    for (unsigned long i = 0; i < number; ++i) {
        palette.red[i] = static_cast<unsigned short>(colors[i].red * 257);
        palette.green[i] = static_cast<unsigned short>(colors[i].green * 257);
        palette.blue[i] = static_cast<unsigned short>(colors[i].blue * 257);
    }
    return true;
}

/// Returns true if the rows fit into the window of the image.
bool has_room(image2d_t const& image, std::size_t row_bytes) {
    return pixels_within(image) &&
           image.rowsize() >= row_bytes + image.getPixelBits() * image.window.skippixels / 8;
}

void write_header(png_writer_t& writer) {
    png_init_io(writer.png, writer.file);
    png_set_IHDR(writer.png, writer.info, writer.image->m_width, writer.image->m_height,
                 writer.depth, writer.color_type, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    if (writer.color_type != PNG_COLOR_TYPE_PALETTE) {
        png_color_8 significant = {};
        auto const depth = static_cast<png_byte>(writer.depth);
        if ((writer.color_type & PNG_COLOR_MASK_COLOR) != 0) {
            significant.red = significant.green = significant.blue = depth;
        } else {
            significant.gray = depth;
        }
        if ((writer.color_type & PNG_COLOR_MASK_ALPHA) != 0) {
            significant.alpha = depth;
        }
        png_set_sBIT(writer.png, writer.info, &significant);
    }
    if (writer.title != nullptr) {
        png_text text = {};
        text.compression = PNG_TEXT_COMPRESSION_NONE;
        char key[] = "Title";
        text.key = key;
        text.text = const_cast<png_charp>(writer.title);
        png_set_text(writer.png, writer.info, &text, 1);
    }
    png_write_info(writer.png, writer.info);
    png_set_packing(writer.png);
}

/// Unpacks the samples of a row to one byte each. libpng packs them again.
png_const_bytep spread(png_writer_t const& writer, png_const_bytep row) {
    auto const depth = static_cast<unsigned int>(writer.depth);
    unsigned long const skip = writer.image->window.skippixels * depth % 8;
    for (unsigned long x = 0; x < writer.image->m_width; ++x) {
        unsigned long const bit = skip + x * depth;
        unsigned int const shift = 8 - depth - static_cast<unsigned int>(bit % 8);
        writer.spread_row[x] = static_cast<png_byte>((row[bit / 8] >> shift) & ((1U << depth) - 1));
    }
    return writer.spread_row;
}

void write_rows(png_writer_t& writer) {
    for (unsigned int y = writer.image->m_height; y-- > 0;) {
        png_const_bytep const row = pixel_row(*writer.image, y);
        png_write_row(writer.png, writer.depth < 8 ? spread(writer, row) : row);
    }
    png_write_end(writer.png, writer.info);
}

}  // namespace

bool check_png_version() {
    char const* const library = png_get_header_ver(nullptr);
    if (std::strcmp(library, PNG_LIBPNG_VER_STRING) == 0) {
        return true;
    }
    libutils::reject("libpng is not the version that the program was built with");
    libutils::error();
    std::cerr << "libpng version different." << std::endl;
    std::cerr << "  header: " << PNG_LIBPNG_VER_STRING << std::endl;
    std::cerr << "  source: " << library << std::endl;
    return false;
}

template <typename stream_t>
bool check_if_png(char const* path, stream_t& stream) {
    if (!open_file(stream, path)) {
        int const reason = errno;
        return libutils::report_error(libutils::putname(path), ": file open error, ",
                                      std::strerror(reason));
    }
    unsigned char bytes[signature_byte_count] = {};
    stream.read(reinterpret_cast<char*>(bytes), signature_byte_count);
    if (stream.gcount() != signature_byte_count) {
        auto const held = static_cast<std::uint64_t>(stream.gcount());
        stream.close();
        return reject_header(held);
    }
    return png_sig_cmp(bytes, 0, signature_byte_count) == 0 || libutils::reject("not a PNG file");
}
template bool check_if_png<std::ifstream>(char const* path, std::ifstream& stream);

void png_read(png_struct_def* png, unsigned char* data, unsigned long length) {
    auto* const stream = static_cast<std::ifstream*>(png_get_io_ptr(png));
    auto const size = static_cast<std::streamsize>(length);
    stream->read(reinterpret_cast<char*>(data), size);
    if (stream->gcount() != size) {
        libutils::reject("ends before its last row");
        png_error(png, "Read Error");
    }
}

int loadpng(char const* path, image2d_t& image, libutils::android_app*) {
    std::ifstream stream;
    if (!check_if_png(path, stream)) {
        return -1;
    }
    std::uint64_t const file_size = bytes_left(stream);
    png_reader_t reader;
    reader.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (reader.png == nullptr) {
        libutils::reject("not enough memory");
        return -2;
    }
    png_set_error_fn(reader.png, nullptr, record_error, nullptr);
    png_set_read_fn(reader.png, &stream, png_read);
    reader.info = png_create_info_struct(reader.png);
    if (reader.info == nullptr) {
        libutils::reject("not enough memory");
        return -3;
    }
    if (!run_png_step(read_header, reader) || !is_plausible_size(reader, file_size, path)) {
        return fail();
    }
    image.clear();
    describe(image, reader);
    if ((image.desc.format == IMAGE_FORMAT_INDEX && !take_palette(image.palette, reader)) ||
        !image.allocate() || !has_room(image, reader.row_bytes)) {
        return fail();
    }
    std::unique_ptr<png_bytep[]> const rows(new (std::nothrow) png_bytep[reader.height]);
    if (rows == nullptr) {
        return fail();
    }
    for (unsigned int y = 0; y < reader.height; ++y) {
        rows[reader.height - 1 - y] = pixel_row(image, y);
    }
    reader.rows = rows.get();
    return run_png_step(read_rows, reader) ? 0 : fail();
}

int savepng(char const* path, image2d_t const& image, char const* title, libutils::android_app*) {
    auto const* const format =
        std::find_if(std::begin(format_rows), std::end(format_rows),
                     [&](auto const& r) { return r.format == image.desc.format; });
    auto const* const depth =
        std::find_if(std::begin(depth_rows), std::end(depth_rows),
                     [&](auto const& r) { return r.bits == image.desc.bits; });
    if (format == std::end(format_rows) || depth == std::end(depth_rows)) {
        return 0;
    }
    if (!pixels_within(image)) {
        return fail();
    }
    png_writer_t writer;
    writer.file = std::fopen(path, "wb");
    if (writer.file == nullptr) {
        return -1;
    }
    writer.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (writer.png == nullptr) {
        return -2;
    }
    writer.info = png_create_info_struct(writer.png);
    if (writer.info == nullptr) {
        return -3;
    }
    writer.image = &image;
    writer.depth = depth->depth;
    writer.color_type = format->color_type;
    writer.title = title;
    if (!run_png_step(write_header, writer)) {
        return fail();
    }
    std::unique_ptr<png_byte[]> const spread_row(new (std::nothrow) png_byte[image.m_width]);
    writer.spread_row = spread_row.get();
    if (spread_row == nullptr || !run_png_step(write_rows, writer) || !writer.close()) {
        return fail();
    }
    return 0;
}

bool loader_png(image2d_t& image, char const* path, libutils::android_app* app) {
    image.clear();
    return check_png_version() && loadpng(path, image, app) == 0;
}

bool saver_png(image2d_t const& image, char const* path, libutils::android_app* app) {
    return check_png_version() && savepng(path, image, nullptr, app) == 0;
}

bool image_png_t::load(image2d_t& image, char const* path) {
    return loader_png(image, path, nullptr);
}

bool image_png_t::save(image2d_t const& image, char const* path) {
    return saver_png(image, path, nullptr);
}

}  // namespace libgr
