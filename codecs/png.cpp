// SPDX-License-Identifier: MIT
// The PNG reader and writer. libpng reports errors by a jump, so whatever it can jump out of is a
// step: a function that has nothing to destroy, run by run_step.
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

#include "codecs/sizelimits.h"
#include "codecs/streambytes.h"
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

/// What the reading steps work on.
struct reading_t {
    png_structp png = nullptr;
    png_infop info = nullptr;
    png_uint_32 width = 0;
    png_uint_32 height = 0;
    int depth = 0;
    int color_type = 0;
    std::size_t row_bytes = 0;
    png_bytepp rows = nullptr;  ///< from the top row down

    reading_t() = default;
    reading_t(reading_t const&) = delete;
    reading_t& operator=(reading_t const&) = delete;
    ~reading_t() { png_destroy_read_struct(&png, &info, nullptr); }
};

/// What the writing steps work on.
struct writing_t {
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::FILE* file = nullptr;
    image2d_t const* image = nullptr;
    int depth = 0;
    int color_type = 0;
    char const* title = nullptr;
    png_bytep spread_row = nullptr;  ///< room for a byte a pixel, below 8 bits a pixel

    writing_t() = default;
    writing_t(writing_t const&) = delete;
    writing_t& operator=(writing_t const&) = delete;
    ~writing_t() {
        png_destroy_write_struct(&png, &info);
        close();
    }
    bool close() {
        std::FILE* const closing = file;
        file = nullptr;
        return closing == nullptr || std::fclose(closing) == 0;
    }
};

/// Runs a step and says whether it came to its end; an error in libpng ends it early.
template <typename state_t>
[[gnu::noinline]] bool run_step(void (*step)(state_t&), state_t& state) {
    if (setjmp(*png_set_longjmp_fn(state.png, longjmp, sizeof(jmp_buf))) != 0) {
        return false;
    }
    step(state);
    return true;
}

/// libpng's error function: records the message, then continues as libpng does by default.
[[noreturn]] void record_error(png_structp png, png_const_charp message) {
    libutils::reject(message != nullptr ? message : "");
    png_set_error_fn(png, nullptr, nullptr, nullptr);
    png_error(png, message);
}

/// Prints the line of a failure. Its reason is memory if no other one is recorded.
int fail() {
    libutils::reject("not enough memory");
    libutils::error();
    std::cerr << "FAIL" << std::endl;
    return -4;
}

void read_header(reading_t& reading) {
    // Texts and profiles aren't looked at, whatever lengths they claim or expand to.
    png_set_keep_unknown_chunks(reading.png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_set_sig_bytes(reading.png, signature_byte_count);
    png_read_info(reading.png, reading.info);
    png_get_IHDR(reading.png, reading.info, &reading.width, &reading.height, &reading.depth,
                 &reading.color_type, nullptr, nullptr, nullptr);
    // Without this call libpng reads interlaced files just so, but with a warning.
    png_set_interlace_handling(reading.png);
    png_read_update_info(reading.png, reading.info);
    reading.row_bytes = png_get_rowbytes(reading.png, reading.info);
}

void read_rows(reading_t& reading) {
    png_read_image(reading.png, reading.rows);
}

/// Returns true if a file of `file_size` bytes can contain a picture of the header's size, and the
/// machine's memory can hold it. Otherwise prints a line.
bool is_plausible_size(reading_t const& reading, std::uint64_t file_size, char const* path) {
    std::uint64_t const pixel_bits = std::uint64_t{png_get_channels(reading.png, reading.info)} *
                                     static_cast<std::uint64_t>(reading.depth);
    libutils::limit_t const& ratio = libutils::limits::png_ratio;
    if (std::uint64_t{reading.row_bytes} * reading.height / ratio.value > file_size) {
        return libutils::report_limit(ratio, path);
    }
    return fits_in_memory(reading.width, reading.height, pixel_bits, path);
}

void describe(image2d_t& image, reading_t const& reading) {
    image.m_width = reading.width;
    image.m_height = reading.height;
    for (format_row_t const& row : format_rows) {
        if (row.color_type == reading.color_type) {
            image.desc.format = row.format;
        }
    }
    image.desc.type = IMAGE_TYPE_UINT;
    for (depth_row_t const& row : depth_rows) {
        if (row.depth == reading.depth) {
            image.desc.bits = row.bits;
        }
    }
    image.compressed = false;
}

/// Widens the palette to 16 bits, in a table whose size is a power of two.
bool take_palette(palette_t& palette, reading_t const& reading) {
    png_colorp colors = nullptr;
    int entries = 0;
    if (png_get_PLTE(reading.png, reading.info, &colors, &entries) == 0 || entries <= 0) {
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

/// Whether the window leaves room for the picture's rows.
bool has_room(image2d_t const& image, std::size_t row_bytes) {
    return pixels_within(image) &&
           image.rowsize() >= row_bytes + image.getPixelBits() * image.window.skippixels / 8;
}

void write_header(writing_t& writing) {
    png_init_io(writing.png, writing.file);
    png_set_IHDR(writing.png, writing.info, writing.image->m_width, writing.image->m_height,
                 writing.depth, writing.color_type, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (writing.color_type != PNG_COLOR_TYPE_PALETTE) {
        png_color_8 significant = {};
        auto const depth = static_cast<png_byte>(writing.depth);
        if ((writing.color_type & PNG_COLOR_MASK_COLOR) != 0) {
            significant.red = significant.green = significant.blue = depth;
        } else {
            significant.gray = depth;
        }
        if ((writing.color_type & PNG_COLOR_MASK_ALPHA) != 0) {
            significant.alpha = depth;
        }
        png_set_sBIT(writing.png, writing.info, &significant);
    }
    if (writing.title != nullptr) {
        png_text text = {};
        text.compression = PNG_TEXT_COMPRESSION_NONE;
        char key[] = "Title";
        text.key = key;
        text.text = const_cast<png_charp>(writing.title);
        png_set_text(writing.png, writing.info, &text, 1);
    }
    png_write_info(writing.png, writing.info);
    png_set_packing(writing.png);
}

/// Spreads the packed samples of a row over one byte each, as libpng packs them again.
png_const_bytep spread(writing_t const& writing, png_const_bytep row) {
    auto const depth = static_cast<unsigned int>(writing.depth);
    unsigned long const skip = writing.image->window.skippixels * depth % 8;
    for (unsigned long x = 0; x < writing.image->m_width; ++x) {
        unsigned long const bit = skip + x * depth;
        unsigned int const shift = 8 - depth - static_cast<unsigned int>(bit % 8);
        writing.spread_row[x] =
            static_cast<png_byte>((row[bit / 8] >> shift) & ((1U << depth) - 1));
    }
    return writing.spread_row;
}

void write_rows(writing_t& writing) {
    for (unsigned int y = writing.image->m_height; y-- > 0;) {
        png_const_bytep const row = pixel_row(*writing.image, y);
        png_write_row(writing.png, writing.depth < 8 ? spread(writing, row) : row);
    }
    png_write_end(writing.png, writing.info);
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
        return libutils::refuse(libutils::putname(path), ": file open error, ",
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
    reading_t reading;
    reading.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (reading.png == nullptr) {
        libutils::reject("not enough memory");
        return -2;
    }
    png_set_error_fn(reading.png, nullptr, record_error, nullptr);
    png_set_read_fn(reading.png, &stream, png_read);
    reading.info = png_create_info_struct(reading.png);
    if (reading.info == nullptr) {
        libutils::reject("not enough memory");
        return -3;
    }
    if (!run_step(read_header, reading) || !is_plausible_size(reading, file_size, path)) {
        return fail();
    }
    image.clear();
    describe(image, reading);
    if ((image.desc.format == IMAGE_FORMAT_INDEX && !take_palette(image.palette, reading)) ||
        !image.allocate() || !has_room(image, reading.row_bytes)) {
        return fail();
    }
    std::unique_ptr<png_bytep[]> const rows(new (std::nothrow) png_bytep[reading.height]);
    if (rows == nullptr) {
        return fail();
    }
    for (unsigned int y = 0; y < reading.height; ++y) {
        rows[reading.height - 1 - y] = pixel_row(image, y);
    }
    reading.rows = rows.get();
    return run_step(read_rows, reading) ? 0 : fail();
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
    writing_t writing;
    writing.file = std::fopen(path, "wb");
    if (writing.file == nullptr) {
        return -1;
    }
    writing.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (writing.png == nullptr) {
        return -2;
    }
    writing.info = png_create_info_struct(writing.png);
    if (writing.info == nullptr) {
        return -3;
    }
    writing.image = &image;
    writing.depth = depth->depth;
    writing.color_type = format->color_type;
    writing.title = title;
    if (!run_step(write_header, writing)) {
        return fail();
    }
    std::unique_ptr<png_byte[]> const spread_row(new (std::nothrow) png_byte[image.m_width]);
    writing.spread_row = spread_row.get();
    if (spread_row == nullptr || !run_step(write_rows, writing) || !writing.close()) {
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
