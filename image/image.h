// SPDX-License-Identifier: MIT
// The image records, which every decoder, pixel operation and texture uses.
#pragma once

/// Creates a white picture of 640 by 480 pixels:
///
/// ```cpp
/// #include <cstring>
///
/// #include "image/image.h"
///
/// libgr::image2d_t image;
/// image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
/// image.m_width = 640;
/// image.m_height = 480;
/// if (image.allocate()) {
///     for (unsigned int y = 0; y < image.m_height; ++y) {
///         std::memset(libgr::pixel_row(image, y), 255, image.rowbyte());
///     }
/// }
/// ```
///
/// The order is: set the description, the sizes, and the store and window if needed; call
/// `allocate`; write the pixels. The layout is the one that OpenGL unpacks: row 0 is the bottom row
/// of the picture, and rows are padded to a multiple of 4 bytes unless a store has another
/// alignment.
///
/// Copying a record never copies pixels: the copy shares them, and a change through one record is
/// visible through the other. `copy` in image/pixelconvert.h copies the pixels. The bytes are freed
/// with the last record that shares them. The reference counts are not atomic: use the records that
/// share bytes from one thread only. No function of this library needs an OpenGL context. The
/// functions print nothing unless their comments say so. Error lines go to std::cerr.
///
/// image/pixelconvert.h converts, rotates and windows pictures, image/scaledown.h halves them,
/// image/samples.h widens samples, image/repeatedges.h enlarges pictures by repeating their edges,
/// and image/normalmap.h computes normal maps.
///
/// To convert the picture of a decoder to RGBA with 8-bit components, call `widen_samples`,
/// `index2rgb`, `bgr2rgb` and `rgb2rgba` in this order, each with a new destination. Ignore the
/// result of `bgr2rgb`: `rgb2rgba` returns false if its source isn't RGB or RGBA with 8-bit
/// components. No function converts GRAYSCALE, GRAYSCALE_ALPHA, components of 16 bits or packed
/// pixels to RGBA. An 8-bit GRAYSCALE picture can be converted as an INDEX picture: before
/// `index2rgb`, set its format to IMAGE_FORMAT_INDEX and fill its palette with 256 grays.

#include <iosfwd>

#include "utils/allocator.h"
#include "utils/ofsvector.h"
#include "utils/refvector.h"

namespace libgr {

/// The components of a pixel, in their order in memory. `s_image_format_components_list` has their
/// number.
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
    IMAGE_FORMAT_INDEX,  ///< an index into the palette of the record
    IMAGE_FORMAT_MAX,    ///< the number of formats
};

/// The type of a component.
enum e_image_type_t : unsigned int {
    IMAGE_TYPE_SINT,
    IMAGE_TYPE_UINT,
    IMAGE_TYPE_FLOAT,
    IMAGE_TYPE_MAX,  ///< the number of types
};

/// The number of bits of each component. Components of 12 bits are counted without padding.
///
/// Values from IMAGE_BITS_R3G3B2 on are packed pixels; the name lists the bits of each component.
/// From IMAGE_BITS_R3G3B2 to IMAGE_BITS_R10G10B10A2, the first component of the format has the
/// lowest bits: red for RGBA, and blue for BGRA.
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
    IMAGE_BITS_MAX,  ///< the number of sizes
};

/// The number of components of a pixel.
struct image_format_components_t {
    e_image_format_t value;
    unsigned int components;
};

/// The size, in bits, of a component or of a packed pixel. The other of the two is 0.
struct image_bits_t {
    unsigned long long value;  ///< an e_image_bits_t
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

/// The rows are in the order of the values. The tables of names have a row for the last enumerator,
/// for example IMAGE_FORMAT_MAX, too.
extern image_format_components_t const s_image_format_components_list[IMAGE_FORMAT_MAX];
extern image_bits_t const s_image_bits_list[IMAGE_BITS_MAX];
extern image_format_string_t const image_format_string[IMAGE_FORMAT_MAX + 1];
extern image_type_string_t const image_type_string[IMAGE_TYPE_MAX + 1];
extern image_bits_string_t const image_bits_string[IMAGE_BITS_MAX + 1];

/// Print the name of the enumerator, or "unknown: " if the value has none.
std::ostream& operator<<(std::ostream& out, e_image_format_t value);
std::ostream& operator<<(std::ostream& out, e_image_type_t value);
std::ostream& operator<<(std::ostream& out, e_image_bits_t value);

/// The meaning of the bytes of an image.
struct image_desc_t {
    e_image_format_t format;
    e_image_type_t type;
    e_image_bits_t bits;

    /// Returns the size, in bits, of one pixel. For packed pixels the format doesn't matter.
    /// Returns 0 for values outside the tables and for IMAGE_BITS_D24S8. The size of D24S8 in
    /// `s_image_bits_list` is 0; callers rely on this.
    unsigned long long getPixelBits() const;
};

bool operator==(image_desc_t const& a, image_desc_t const& b);

/// The byte order and row alignment of an image, as in glPixelStore. Images point to a store and
/// don't own it, so a store must outlive the images that use it. Most stores are static.
struct image_store_t {
    bool swapbytes;  ///< true if components of several bytes are not in the order of the machine
    unsigned int alignment;  ///< rows begin at multiples of this many bytes; 0 means 4
};

/// The position of a record in a larger picture whose bytes it shares, as in glPixelStore. Lengths
/// and skips are in pixels, heights in rows, and `skipimages` in pictures. A length or height of 0
/// means the size of the record.
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

/// A colour table. The values are from 0 to 65535, in one array for each component, as
/// glPixelMapusv takes them. A copy shares the arrays.
struct palette_t {
    using plane_t = libutils::refvector<unsigned short, libutils::alloc_new>;

    unsigned long size = 0;  ///< the number of entries
    plane_t red;
    plane_t green;
    plane_t blue;

    palette_t() = default;
    palette_t(palette_t const& other) { *this = other; }
    palette_t& operator=(palette_t const& other) = default;
    ~palette_t() = default;

    /// Sets the number of entries. The old entries are kept as far as they fit, and new ones are 0.
    ///
    /// Returns false only if `n` is 0. The result doesn't report a lack of memory. If an array
    /// can't be resized, it keeps its old entries. Before you read an entry, compare its index with
    /// the `count()` of that array, not with `size`.
    bool resize(unsigned long n);
    /// Releases all entries.
    void clear();
};

/// The bytes of an image. Large blocks are mapped pages and not part of the heap.
using image_bytes_t = libutils::ofsvector<unsigned char, libutils::alloc_mmap_unix>;

/// One row of pixels.
struct image1d_t : image_bytes_t {
    image_desc_t desc{};
    image_store_t const* store = nullptr;  ///< not owned; null means native byte order
    image_window1d_t window;
    unsigned int m_width = 0;  ///< in pixels
    bool compressed = false;   ///< as in image2d_t
    palette_t palette;

    /// Returns the address of byte `i + window.skippixels`. This is the address of pixel `i` only
    /// if a pixel has one byte. The bounds are not checked.
    unsigned char* operator[](unsigned int i) { return begin() + i + window.skippixels; }
    unsigned char const* operator[](unsigned int i) const {
        return begin() + i + window.skippixels;
    }
    unsigned char* operator[](int i) { return (*this)[static_cast<unsigned int>(i)]; }
    unsigned char const* operator[](int i) const { return (*this)[static_cast<unsigned int>(i)]; }

  private:
    using image_bytes_t::operator[];
};

/// A picture. Row 0 is the bottom row. Pixel (x, y) begins at byte
///
///   rowsize() * (window.skiprows + y) + getPixelBits() * (window.skippixels + x) / 8
///
/// from `begin()`. The compressed data of a texture has no rows and no pixels: only the texture
/// classes accept it, and all pixel operations fail.
struct image2d_t : image_bytes_t {
    image_desc_t desc{};
    image_store_t const* store = nullptr;  ///< not owned; null means native order, alignment 4
    image_window2d_t window;
    unsigned int m_width = 0;   ///< in pixels, of the window only
    unsigned int m_height = 0;  ///< in rows, of the window only
    bool compressed = false;    ///< true if the bytes are the compressed data of a texture
    palette_t palette;          ///< the colours of an IMAGE_FORMAT_INDEX image, else empty

    /// Returns the size, in bits, of one pixel.
    unsigned long long getPixelBits() const { return desc.getPixelBits(); }

    /// Returns the width, in pixels, of the larger picture, or of this one without a window.
    unsigned long long rowlength() const {
        return window.rowlength != 0 ? window.rowlength : m_width;
    }

    /// Returns the distance, in bytes, from one row to the next, padding included.
    unsigned long long rowsize() const;

    /// Returns the size, in bytes, of one row of this record without padding. If the last byte is
    /// only partly used, it isn't counted.
    unsigned long long rowbyte() const { return getPixelBits() * m_width / 8; }

    /// Allocates `window.skiprows + m_height` rows of `rowsize()` bytes. Set the description,
    /// sizes, store and window before. The pixels are undefined afterwards. Records that shared the
    /// old bytes keep them.
    ///
    /// The size isn't limited. Returns false, without a change, if it overflows or if there is no
    /// memory. If it is 0, because a size or `getPixelBits()` is 0, returns true and the record has
    /// no bytes.
    bool allocate();

    /// Releases the bytes and the palette and sets the sizes to 0. The description, store, window
    /// and `compressed` are unchanged.
    void clear() override;
};

/// A volume: pictures of the same size, one after the other.
struct image3d_t : image_bytes_t {
    image_desc_t desc{};
    image_store_t const* store = nullptr;  ///< not owned; null means native order, alignment 4
    image_window3d_t window;
    unsigned int m_width = 0;   ///< in pixels
    unsigned int m_height = 0;  ///< in rows
    unsigned int m_depth = 0;   ///< in pictures
    bool compressed = false;    ///< as in image2d_t
    palette_t palette;
};

/// Returns the distance, in bytes, from one row of `pixels` pixels to the next. `store` may be
/// null.
unsigned long long row_stride(unsigned long long pixels, unsigned long long pixelbits,
                              image_store_t const* store);

/// Returns true if the bytes of the record contain all its pixels, with `pixelbits` bits each, at
/// the positions given by its store and window. `pixelbits` is a parameter because OpenGL uses the
/// size of its own pixel type, whatever the description says. A record without pixels is accepted,
/// and a compressed one is rejected. A row may extend beyond the row length of its window if the
/// bytes suffice. The arithmetic doesn't overflow.
bool pixels_within(image1d_t const& image, unsigned long long pixelbits);
bool pixels_within(image2d_t const& image, unsigned long long pixelbits);
bool pixels_within(image3d_t const& image, unsigned long long pixelbits);

/// As above, with the pixel size of the description.
bool pixels_within(image2d_t const& image);

/// Returns true if `room` bytes contain `rows` rows of `rowbytes` bytes each that begin `stride`
/// bytes apart.
bool rows_fit(unsigned long long stride, unsigned long long rows, unsigned long long rowbytes,
              unsigned long long room);

/// Returns the address of the first pixel of row `y` of the record, or null if it has no bytes. If
/// a pixel is smaller than a byte, the pixel may begin within that byte. Call `pixels_within`
/// before: the bounds are not checked.
unsigned char* pixel_row(image2d_t& image, unsigned int y);
unsigned char const* pixel_row(image2d_t const& image, unsigned int y);

/// Returns the address of the row of the larger picture that contains row `y` of the record, or
/// null if it has no bytes. The first pixel of the record is pixel `window.skippixels` of that row.
/// Use this function if pixels may be smaller than a byte.
unsigned char* whole_row(image2d_t& image, unsigned int y);
unsigned char const* whole_row(image2d_t const& image, unsigned int y);

}  // namespace libgr
