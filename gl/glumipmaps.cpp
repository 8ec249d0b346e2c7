// SPDX-License-Identifier: MIT
// Mipmaps by GLU, kept within the bytes that it is given.
#include "gl/glumipmaps.h"

#include <cstring>

#include "gl/glucalls.h"
#include "gl/pixelstore.h"
#include "gl/unpackreach.h"
#include "utils/limits.h"

namespace libgr {
namespace {

/// The pixels of a record with room behind them.
///
/// GLU weighs the texels behind the last column, row and picture with 0 when it scales, but reads
/// them all the same. How far it gets was measured: less than the pixels' own span and two rows.
class glu_pixels_t {
  public:
    glu_pixels_t(image3d_t const& read, unsigned long long bits) : m_begin(read.begin()) {
        read_span_t const span = span_of(read, bits);
        unsigned long const room = span.end + (span.end - span.first) + 2 * span.stride + 64;
        if (read.size() >= room) {
            return;
        }
        // The layout stays, since the unpack state does; what is skipped costs no memory.
        m_begin = nullptr;
        if (m_copy.resize(room, 0)) {
            std::memcpy(m_copy.begin() + span.first, read.begin() + span.first,
                        span.end - span.first);
            m_begin = m_copy.begin();
        }
    }

    /// Null where there was no memory.
    void const* begin() const { return m_begin; }

  private:
    image_bytes_t m_copy;
    void const* m_begin;
};

/// The pixels of a volume without padding, with such room behind them.
image_bytes_t unpadded(image3d_t const& read, unsigned long long bits) {
    read_span_t const span = span_of(read, bits);
    unsigned long const row = (bits * read.m_width + 7) / 8;
    unsigned long const size = row * read.m_height * read.m_depth;
    unsigned long const slice =
        span.stride * (read.window.imageheight != 0 ? read.window.imageheight : read.m_height);
    image_bytes_t copy;
    if (!copy.resize(2 * (size + row) + 64, 0)) {
        return copy;
    }
    unsigned char* to = copy.begin();
    for (unsigned long z = 0; z < read.m_depth; ++z) {
        for (unsigned long y = 0; y < read.m_height; ++y, to += row) {
            std::memcpy(to,
                        read.begin() + span.first + slice * z + span.stride * y +
                            bits * read.window.skippixels / 8,
                        row);
        }
    }
    return copy;
}

/// Rows and pictures without padding. GLU allocates the levels of a volume without padding, but
/// writes and reads them by the state.
constexpr pixelstore_t unpadded_store[] = {
    {GL_PACK_ALIGNMENT, 1},   {GL_PACK_ROW_LENGTH, 0},     {GL_PACK_SKIP_PIXELS, 0},
    {GL_PACK_SKIP_ROWS, 0},   {GL_PACK_IMAGE_HEIGHT, 0},   {GL_PACK_SKIP_IMAGES, 0},
    {GL_UNPACK_ALIGNMENT, 1}, {GL_UNPACK_ROW_LENGTH, 0},   {GL_UNPACK_SKIP_PIXELS, 0},
    {GL_UNPACK_SKIP_ROWS, 0}, {GL_UNPACK_IMAGE_HEIGHT, 0}, {GL_UNPACK_SKIP_IMAGES, 0}};

/// Returns true if GLU can count the bytes of its scaled copies. Otherwise prints a line.
bool can_be_counted(image3d_t const& read) {
    constexpr std::uint64_t max = libutils::limits::glu_texels.value;
    bool const is_within = read.m_width <= max && read.m_height <= max && read.m_depth <= max &&
                           max >= 1UL * read.m_width * read.m_height &&
                           max >= 1UL * read.m_width * read.m_height * read.m_depth;
    return is_within || libutils::report_limit(libutils::limits::glu_texels);
}

bool is_packed(GLenum type) {
    return type == GL_UNSIGNED_BYTE_2_3_3_REV || type == GL_UNSIGNED_SHORT_5_6_5_REV ||
           type == GL_UNSIGNED_SHORT_4_4_4_4_REV || type == GL_UNSIGNED_SHORT_1_5_5_5_REV ||
           type == GL_UNSIGNED_INT_2_10_10_10_REV;
}

template <typename image_t, typename call_t>
bool build_from(gl_loading_format_t const& terms, image_t const& image, call_t const& call) {
    image3d_t const read = as_read(image);
    if (!can_be_counted(read)) {
        return false;
    }
    if (read.m_width == 0 || read.m_height == 0 || read.m_depth == 0) {
        return true;  // GLU turns these down unread
    }
    glu_pixels_t const pixels(read, read_bits(terms));
    if (pixels.begin() == nullptr) {
        return false;
    }
    call(static_cast<GLsizei>(read.m_width), static_cast<GLsizei>(read.m_height), pixels.begin());
    return true;
}

}  // namespace

bool build_mipmaps(unsigned int target, gl_loading_format_t const& terms, image1d_t const& image) {
    return build_from(terms, image, [&](GLsizei width, GLsizei, void const* pixels) {
        gluBuild1DMipmaps(target, static_cast<GLint>(terms.internalformat), width, terms.format,
                          terms.type, pixels);
    });
}

bool build_mipmaps(unsigned int target, gl_loading_format_t const& terms, image2d_t const& image) {
    return build_from(terms, image, [&](GLsizei width, GLsizei height, void const* pixels) {
        gluBuild2DMipmaps(target, static_cast<GLint>(terms.internalformat), width, height,
                          terms.format, terms.type, pixels);
    });
}

bool build_mipmaps(unsigned int target, gl_loading_format_t const& terms, image3d_t const& image) {
    // A volume of single rows, and packed texels of one that shrinks to a sheet or a line, lead GLU
    // out of its memory.
    bool const is_cube = image.m_width == image.m_height && image.m_height == image.m_depth;
    bool const is_sheet = image.m_height == 1 && image.m_depth > 1;
    image3d_t const read = as_read(image);
    if (is_sheet || (is_packed(terms.type) && !is_cube) || !can_be_counted(read)) {
        return false;
    }
    if (image.m_width == 0 || image.m_height == 0 || image.m_depth == 0) {
        return true;  // GLU turns these down unread
    }
    image_bytes_t const pixels = unpadded(read, read_bits(terms));
    if (pixels.empty()) {
        return false;
    }
    grPixelStoreKeeper const state(unpadded_store);
    gluBuild3DMipmaps(target, static_cast<GLint>(terms.internalformat),
                      static_cast<GLsizei>(image.m_width), static_cast<GLsizei>(image.m_height),
                      static_cast<GLsizei>(image.m_depth), terms.format, terms.type,
                      pixels.begin());
    return true;
}

}  // namespace libgr
