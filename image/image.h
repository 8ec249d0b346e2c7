// SPDX-License-Identifier: MIT
// The image records, whose layout is that of OpenGL's pixel unpacking, and their enumerations.
#pragma once

#include <iosfwd>

#include "utils/allocator.h"
#include "utils/ofsvector.h"
#include "utils/refvector.h"

namespace libgr {

/// The components of a pixel, in their order in memory.
enum e_image_format_t : unsigned int {
    IMAGE_FORMAT_GRAYSCALE,
    IMAGE_FORMAT_GRAYSCALE_ALPHA,
    IMAGE_FORMAT_INTENSITY,
    IMAGE_FORMAT_RED,
    IMAGE_FORMAT_GREEN,
    IMAGE_FORMAT_BLUE,
    IMAGE_FORMAT_ALPHA,
    IMAGE_FORMAT_RG,
    IMAGE_FORMAT_RGB,
    IMAGE_FORMAT_RGBA,
    IMAGE_FORMAT_BGR,
    IMAGE_FORMAT_BGRA,
    IMAGE_FORMAT_DEPTH,
    IMAGE_FORMAT_DEPTH_STENCIL,
    IMAGE_FORMAT_YCbCr,
    IMAGE_FORMAT_YCbCrA,
    IMAGE_FORMAT_YCbCr422,
    IMAGE_FORMAT_INDEX,  ///< an index into the record's palette
    IMAGE_FORMAT_MAX,    ///< end mark, never in a record
};

/// The type of a component.
enum e_image_type_t : unsigned int {
    IMAGE_TYPE_SINT,
    IMAGE_TYPE_UINT,
    IMAGE_TYPE_FLOAT,
    IMAGE_TYPE_MAX,  ///< end mark
};

/// The bits of a component, or, from R3G3B2 on, of the components of a packed pixel.
enum e_image_bits_t : unsigned int {
    IMAGE_BITS_1,
    IMAGE_BITS_2,
    IMAGE_BITS_4,
    IMAGE_BITS_8,
    IMAGE_BITS_12,
    IMAGE_BITS_16,
    IMAGE_BITS_24,
    IMAGE_BITS_32,
    IMAGE_BITS_64,
    IMAGE_BITS_R3G3B2,
    IMAGE_BITS_R5G6B5,
    IMAGE_BITS_R5G5B5A1,
    IMAGE_BITS_R10G10B10A2,
    IMAGE_BITS_L6A2,
    IMAGE_BITS_L12A4,
    IMAGE_BITS_D24S8,
    IMAGE_BITS_MAX,  ///< end mark
};

struct image_format_components_t {
    e_image_format_t value;
    unsigned int components;
};

/// One row of sizes: `component` bits for each component, or `packed` bits for the whole pixel.
struct image_bits_t {
    unsigned long long value;
    unsigned long long component;
    unsigned long long packed;
};

struct image_format_string_t {
    e_image_format_t value;
    char const* name;
};
struct image_type_string_t {
    e_image_type_t value;
    char const* name;
};
struct image_bits_string_t {
    e_image_bits_t value;
    char const* name;
};

/// Rows in value order; the name tables have one for the end mark, too.
extern image_format_components_t const s_image_format_components_list[IMAGE_FORMAT_MAX];
extern image_bits_t const s_image_bits_list[IMAGE_BITS_MAX];
extern image_format_string_t const image_format_string[IMAGE_FORMAT_MAX + 1];
extern image_type_string_t const image_type_string[IMAGE_TYPE_MAX + 1];
extern image_bits_string_t const image_bits_string[IMAGE_BITS_MAX + 1];

/// Write the enumerator's name; "unknown: " for a value above the end mark.
std::ostream& operator<<(std::ostream& out, e_image_format_t value);
std::ostream& operator<<(std::ostream& out, e_image_type_t value);
std::ostream& operator<<(std::ostream& out, e_image_bits_t value);

/// What the bytes of an image mean.
struct image_desc_t {
    e_image_format_t format;
    e_image_type_t type;
    e_image_bits_t bits;

    /// Bits of one pixel: those of the packed pixel, or components times the bits of each. 0 for
    /// IMAGE_BITS_D24S8, whose size the table doesn't hold, and for values outside the tables.
    unsigned long long getPixelBits() const;
};

bool operator==(image_desc_t const& a, image_desc_t const& b);

/// How rows are packed in memory: the swap and alignment of glPixelStore. Images point to a
/// long-lived one and don't own it.
struct image_store_t {
    bool swapbytes;
    unsigned int alignment;  ///< of a row, in bytes; 0 stands for 4
};

/// A window into a wider picture that the record's bytes belong to, in pixels, rows and pictures:
/// the skips and lengths of glPixelStore. A length of 0 means the record's own.
struct image_window1d_t {
    unsigned int skippixels = 0;
};
struct image_window2d_t {
    unsigned int rowlength = 0;
    unsigned int skippixels = 0;
    unsigned int skiprows = 0;
};
struct image_window3d_t {
    unsigned int rowlength = 0;
    unsigned int imageheight = 0;
    unsigned int skippixels = 0;
    unsigned int skiprows = 0;
    unsigned int skipimages = 0;
};

/// A colour table in three planes of 16-bit values over the full range, the form that glPixelMapusv
/// takes. A copy shares the planes.
struct palette_t {
    using plane_t = libutils::refvector<unsigned short, libutils::alloc_new>;

    unsigned long size = 0;  ///< entries
    plane_t red;
    plane_t green;
    plane_t blue;

    palette_t() = default;
    palette_t(palette_t const& other) { *this = other; }
    palette_t& operator=(palette_t const& other) = default;
    ~palette_t() = default;

    /// Makes room for `n` entries and keeps as many old ones as fit. The result is whether `n`
    /// isn't 0; a plane that has no memory stays as it was.
    bool resize(unsigned long n);
    void clear();
};

/// The byte store of every image. A copy of a record shares it by reference count.
using image_bytes_t = libutils::ofsvector<unsigned char, libutils::alloc_mmap_unix>;

/// One row of pixels.
struct image1d_t : image_bytes_t {
    image_desc_t desc{};
    image_store_t const* store = nullptr;  ///< not owned
    image_window1d_t window;
    unsigned int m_width = 0;  ///< pixels
    bool compressed =
        false;  ///< the bytes are a compressed texture image, to go to OpenGL as they are
    palette_t palette;

    /// The address of byte `i + window.skippixels`, whatever the pixel's size, with no bounds
    /// check.
    unsigned char* operator[](unsigned int i) { return begin() + i + window.skippixels; }
    unsigned char const* operator[](unsigned int i) const {
        return begin() + i + window.skippixels;
    }
    unsigned char* operator[](int i) { return (*this)[static_cast<unsigned int>(i)]; }
    unsigned char const* operator[](int i) const { return (*this)[static_cast<unsigned int>(i)]; }

  private:
    using image_bytes_t::operator[];
};

/// A picture. Row 0 is the bottom row. Pixel (x, y) begins at byte rowsize() * (window.skiprows +
/// y) + getPixelBits() * (window.skippixels + x) / 8 of the vector's data. Components of several
/// bytes are in the machine's order unless the store says otherwise. A compressed record has no
/// rows or pixels.
struct image2d_t : image_bytes_t {
    image_desc_t desc{};
    image_store_t const* store = nullptr;  ///< not owned
    image_window2d_t window;
    unsigned int m_width = 0;   ///< pixels in a row of this record
    unsigned int m_height = 0;  ///< rows of this record
    bool compressed =
        false;          ///< the bytes are a compressed texture image, to go to OpenGL as they are
    palette_t palette;  ///< of IMAGE_FORMAT_INDEX images

    unsigned long long getPixelBits() const { return desc.getPixelBits(); }

    /// Pixels in a row of the picture that the bytes belong to.
    unsigned long long rowlength() const {
        return window.rowlength != 0 ? window.rowlength : m_width;
    }

    /// Bytes from one row to the next: `rowlength()` pixels brought up to the store's alignment,
    /// and to 4 bytes without a store.
    unsigned long long rowsize() const;

    /// Bytes of this record's own pixels in a row; a last part of a byte doesn't count.
    unsigned long long rowbyte() const { return getPixelBits() * m_width / 8; }

    /// Resizes the vector to the rows of the window and the record; sizes and description must be
    /// set. The pixels aren't cleared. False, with the vector as it was, when there is no such
    /// memory.
    bool allocate();

    /// Gives up the bytes and the palette and sets the sizes to 0. The description, store, window
    /// and `compressed` stay.
    void clear() override;
};

/// A volume of pictures.
struct image3d_t : image_bytes_t {
    image_desc_t desc{};
    image_store_t const* store = nullptr;  ///< not owned
    image_window3d_t window;
    unsigned int m_width = 0;   ///< pixels
    unsigned int m_height = 0;  ///< rows
    unsigned int m_depth = 0;   ///< pictures
    bool compressed =
        false;  ///< the bytes are a compressed texture image, to go to OpenGL as they are
    palette_t palette;
};

/// Bytes from one row of `pixels` pixels to the next under a store, which may be null.
unsigned long long row_stride(unsigned long long pixels, unsigned long long pixelbits,
                              image_store_t const* store);

/// Whether all pixels of the record, read as `pixelbits` bits each with rows, window and alignment
/// of the record, lie in the vector's bytes. `pixelbits` is the reader's own size of a pixel:
/// OpenGL takes components times the size of the type, whatever the description says. A record
/// without pixels is within; a compressed one isn't. No size overflows.
bool pixels_within(image1d_t const& image, unsigned long long pixelbits);
bool pixels_within(image2d_t const& image, unsigned long long pixelbits);
bool pixels_within(image3d_t const& image, unsigned long long pixelbits);

/// The same by the description's size of a pixel.
bool pixels_within(image2d_t const& image);

/// Whether `rows` rows lie in `room` bytes, each `stride` bytes behind the last and `rowbytes`
/// long.
bool rows_fit(unsigned long long stride, unsigned long long rows, unsigned long long rowbytes,
              unsigned long long room);

/// Where row `y` of the record begins in its bytes, at its window's first pixel, for a record whose
/// pixels are within. Null where it has no bytes.
unsigned char* pixel_row(image2d_t& image, unsigned int y);
unsigned char const* pixel_row(image2d_t const& image, unsigned int y);

/// The same at the first pixel of the picture that the window looks into, for pixels that may begin
/// within a byte.
unsigned char* whole_row(image2d_t& image, unsigned int y);
unsigned char const* whole_row(image2d_t const& image, unsigned int y);

}  // namespace libgr
