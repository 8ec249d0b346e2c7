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
/// with the last record that shares them.
///
/// Use all images and palettes of a program from one thread, also those that share nothing: the
/// reference counts are not atomic, and the allocator has static data (utils/ofsvector.h). Other
/// threads may only access pixels by their addresses. No function of this library needs an OpenGL
/// context. The error lines that the comments mention go to std::cerr.
///
/// image/pixelconvert.h converts, rotates and windows pictures, image/scaledown.h halves them,
/// image/samples.h widens samples, image/repeatedges.h enlarges pictures by repeating their edges,
/// and image/normalmap.h computes normal maps.
///
/// Converts the picture of a decoder to RGBA with 8-bit components:
///
/// ```cpp
/// #include "image/pixelconvert.h"
/// #include "image/samples.h"
///
/// bool to_rgba8(libgr::image2d_t& rgba, libgr::image2d_t const& picture) {
///     libgr::image2d_t wide, rgb, ordered;
///     if (!libgr::widen_samples(wide, picture)) {  // 1, 2 and 4 bits to 8
///         return false;
///     }
///     if (wide.desc.format == libgr::IMAGE_FORMAT_GRAYSCALE) {  // as indices into 256 grays
///         wide.desc.format = libgr::IMAGE_FORMAT_INDEX;
///         wide.palette.resize(256);
///         for (unsigned long i = 0; i < wide.palette.blue.count(); ++i) {
///             wide.palette.blue[i] = static_cast<unsigned short>(i * 257);
///         }
///         wide.palette.red = wide.palette.green = wide.palette.blue;
///     }
///     if (!libgr::index2rgb(rgb, wide)) {
///         return false;
///     }
///     libgr::bgr2rgb(ordered, rgb);  // false for pictures that rgb2rgba rejects, too
///     return libgr::rgb2rgba(rgba, ordered);
/// }
/// ```
///
/// The result is false for GRAYSCALE_ALPHA, components of 16 bits and packed pixels: no function
/// converts them to RGBA.

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

/// The size, in bits, of each component. There are no unused bits between components: a pixel of
/// three times 12 bits has 36 bits.
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

/// The size, in bits, that belongs to a value of e_image_bits_t. D24S8 has only zeros here.
struct image_bits_t {
    unsigned long long value;      ///< an e_image_bits_t
    unsigned long long component;  ///< of one component, or 0 for packed pixels
    unsigned long long packed;     ///< of one pixel, or 0 if the pixels aren't packed
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

/// The index of a row is the value of its enumerator. Only the tables of names have a row for the
/// last enumerator, for example IMAGE_FORMAT_MAX.
extern image_format_components_t const s_image_format_components_list[IMAGE_FORMAT_MAX];
extern image_bits_t const s_image_bits_list[IMAGE_BITS_MAX];
extern image_format_string_t const image_format_string[IMAGE_FORMAT_MAX + 1];
extern image_type_string_t const image_type_string[IMAGE_TYPE_MAX + 1];
extern image_bits_string_t const image_bits_string[IMAGE_BITS_MAX + 1];

/// Print the name of the enumerator. For another value, print only the text "unknown: ".
std::ostream& operator<<(std::ostream& out, e_image_format_t value);
std::ostream& operator<<(std::ostream& out, e_image_type_t value);
std::ostream& operator<<(std::ostream& out, e_image_bits_t value);

/// The meaning of the bytes of an image.
struct image_desc_t {
    e_image_format_t format;
    e_image_type_t type;
    e_image_bits_t bits;

    /// Returns the size, in bits, of one pixel. For packed pixels the format doesn't matter.
    /// Returns 0 for values outside the tables.
    ///
    /// Returns 0 for IMAGE_BITS_D24S8 too, although OpenGL reads 32 bits: the table has never had
    /// its size, and callers rely on 0. So `allocate` makes no bytes for D24S8. Allocate them with
    /// `resize(bytes, 0)`, and pass 32 to `row_stride` and `pixels_within`.
    unsigned long long getPixelBits() const;
};

bool operator==(image_desc_t const& a, image_desc_t const& b);

/// The byte order and row alignment of an image, as in glPixelStore. Images point to a store and
/// don't own it, so a store must outlive the images that use it.
///
/// Only transfers to and from OpenGL use `swapbytes`. The functions of this library ignore it.
struct image_store_t {
    bool swapbytes;  ///< true if components of several bytes are not in the order of the machine
    unsigned int alignment;  ///< rows begin at multiples of this many bytes; 0 means 4
};

/// The position of a record in a larger picture whose bytes it shares, as in glPixelStore.
/// `rowlength` and `skippixels` are in pixels, `imageheight` and `skiprows` in rows, and
/// `skipimages` in pictures. `rowlength` 0 means the width of the record, and `imageheight` 0 its
/// height.
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
/// glPixelMapusv takes them. A copy shares the arrays, until one of the two is resized. For an
/// example see the start of this file.
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
    /// Returns false only if `n` is 0. If there is no memory for an array, the result is true and
    /// the array keeps its old entries. So before you access an entry, compare its index with
    /// `count()` of the array, for example `red.count()`, not with `size`.
    bool resize(unsigned long n);
    /// Releases all entries.
    void clear();
};

/// The bytes of an image. They are mapped pages, not a part of the heap.
using image_bytes_t = libutils::ofsvector<unsigned char, libutils::alloc_mmap_unix>;

/// One row of pixels. It has no `allocate`: call `resize(bytes, 0)` with the number of bytes for
/// `window.skippixels + m_width` pixels. The bytes of an empty record become 0. `clear` only
/// releases the bytes. To clear all fields, assign `image1d_t{}`.
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
/// from `begin()`.
///
/// The compressed data of a texture has no rows and no pixels. Only the texture classes read it.
/// The functions of this library fail if they need its pixels, and succeed if they only share the
/// bytes or have nothing to change: `rotate` with 0, for example.
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

    /// Returns `window.rowlength`, or `m_width` if that is 0.
    unsigned long long rowlength() const {
        return window.rowlength != 0 ? window.rowlength : m_width;
    }

    /// Returns the distance, in bytes, from one row to the next, with the padding.
    unsigned long long rowsize() const;

    /// Returns the size, in bytes, of `m_width` pixels, rounded down: 1 for 10 pixels of 1 bit.
    unsigned long long rowbyte() const { return getPixelBits() * m_width / 8; }

    /// Allocates `window.skiprows + m_height` rows of `rowsize()` bytes. Set the description,
    /// sizes, store and window before. The pixels are undefined afterwards. Records that shared the
    /// old bytes keep them.
    ///
    /// Returns false, without a change, if the number of bytes overflows or there is no memory. If
    /// it is 0, because a size or `getPixelBits()` is 0, returns true and the record has no bytes.
    bool allocate();

    /// Releases the bytes and the palette and sets the sizes to 0. The description, store, window
    /// and `compressed` are unchanged.
    void clear() override;
};

/// A volume: pictures of the same size, one after the other. With
///
///   stride = row_stride(rowlength, desc.getPixelBits(), store)
///
/// and the sizes `rowlength` and `imageheight` of the window, or those of the record if they are 0,
/// pixel (x, y, z) begins at byte
///
///   stride * (imageheight * (window.skipimages + z) + window.skiprows + y)
///       + desc.getPixelBits() * (window.skippixels + x) / 8
///
/// from `begin()`. It has no `allocate`: without a window, call
/// `resize(stride * m_height * m_depth, 0)`. The rest is as for image1d_t.
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

/// Returns the distance, in bytes, from one row of `pixels` pixels to the next. If `store` is null,
/// the alignment is 4.
unsigned long long row_stride(unsigned long long pixels, unsigned long long pixelbits,
                              image_store_t const* store);

/// Returns true if the bytes of the record contain all its pixels, with `pixelbits` bits each, at
/// the positions given by its store and window. OpenGL may use another pixel size than the
/// description has, so it is a parameter. A record without pixels is accepted,
/// and a compressed one is rejected. A row may extend beyond the row length of its window if the
/// bytes suffice.
bool pixels_within(image1d_t const& image, unsigned long long pixelbits);
bool pixels_within(image2d_t const& image, unsigned long long pixelbits);
bool pixels_within(image3d_t const& image, unsigned long long pixelbits);

/// As above, with the pixel size of the description.
bool pixels_within(image2d_t const& image);

/// Returns true if `room` bytes contain `rows` rows of `rowbytes` bytes each that begin `stride`
/// bytes apart.
bool rows_fit(unsigned long long stride, unsigned long long rows, unsigned long long rowbytes,
              unsigned long long room);

/// Returns the address of the leftmost pixel of row `y` of the record, or null if the record has no
/// bytes. A pixel smaller than a byte may begin within the byte at that address. Call
/// `pixels_within` before: the bounds are not checked.
unsigned char* pixel_row(image2d_t& image, unsigned int y);
unsigned char const* pixel_row(image2d_t const& image, unsigned int y);

/// Returns the address of the row of the larger picture that contains row `y` of the record, or
/// null if the record has no bytes. Pixel x of the record is pixel `window.skippixels + x` of that
/// row. Use it for pixels smaller than a byte, with `packed_sample` in image/samples.h. The bounds
/// are not checked.
unsigned char* whole_row(image2d_t& image, unsigned int y);
unsigned char const* whole_row(image2d_t const& image, unsigned int y);

}  // namespace libgr
