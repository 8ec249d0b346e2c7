// SPDX-License-Identifier: MIT
// The steps of a texture upload that all texture targets share. For the texture classes alone.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "gl/glformat.h"
#include "gl/glumipmaps.h"
#include "gl/palette.h"
#include "glext/glextloader.h"
#include "image/image.h"

namespace libgr {

/// The sides of a level in texels: width, then height, then depth.
template <std::size_t N>
using extent_t = std::array<GLsizei, N>;

inline extent_t<1> extent_of(image1d_t const& image) {
    return {static_cast<GLsizei>(image.m_width)};
}
inline extent_t<2> extent_of(image2d_t const& image) {
    return {static_cast<GLsizei>(image.m_width), static_cast<GLsizei>(image.m_height)};
}
inline extent_t<3> extent_of(image3d_t const& image) {
    return {static_cast<GLsizei>(image.m_width), static_cast<GLsizei>(image.m_height),
            static_cast<GLsizei>(image.m_depth)};
}

/// The smallest power of two that is at least `side`, and 0 for 0. Bits 0 to 30 of `side` count.
unsigned int power_of_two_side(unsigned int side);

/// The side of the texture that pictures of up to `size` texels a side, borders included, go into:
/// a power of two, plus 2 with a border.
unsigned int bordered_side(unsigned int size, bool border);

/// Square storage for a level, in place of storage of the image's own size.
struct square_t {
    bool used;
    unsigned int side;
    GLint border;
};

/// Where the levels below level 0 come from.
enum class mipmap_route_t { gl3, sgis, glu };

/// The first route that the context and the internal format allow; `has_gl3` tells whether the
/// target goes by glGenerateMipmap at all.
mipmap_route_t mipmap_route(GLenum internalformat, bool has_gl3);

/// The terms in which an image goes up, or nothing when the image has to be left out: one without
/// bytes silently, one that OpenGL has no terms for or whose bytes end before what OpenGL would
/// read with a report. The unpack state that decides is that of the image and, where `unpack` sets
/// nothing, that of the context.
std::optional<gl_loading_format_t> resolve(image1d_t const& image, bool compress);
std::optional<gl_loading_format_t> resolve(image2d_t const& image, bool compress);
std::optional<gl_loading_format_t> resolve(image3d_t const& image, bool compress);
/// The same for an upload in OpenGL's initial unpack state that treats compressed bytes as pixels.
std::optional<gl_loading_format_t> resolve_in_initial_state(image2d_t const& image, bool compress);

/// Sets the unpack parameters from store and window. Nothing is ever restored, and without a store
/// the alignment of the image before holds.
void unpack(image1d_t const& image);
void unpack(image2d_t const& image);
void unpack(image3d_t const& image);

/// Loads the palette of an index image.
template <typename image_t>
void load_palette(grPalette& palette, image_t const& image) {
    if (image.desc.format == IMAGE_FORMAT_INDEX) {
        palette.Load(image.palette);
    }
}

// One OpenGL call each, by the number of sides.
void tex_image(GLenum target, GLint level, gl_loading_format_t const& terms,
               extent_t<1> const& extent, GLint border, void const* pixels);
void tex_image(GLenum target, GLint level, gl_loading_format_t const& terms,
               extent_t<2> const& extent, GLint border, void const* pixels);
void tex_image(GLenum target, GLint level, gl_loading_format_t const& terms,
               extent_t<3> const& extent, GLint border, void const* pixels);
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& terms,
                   extent_t<1> const& extent, void const* pixels);
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& terms,
                   extent_t<2> const& extent, void const* pixels);
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& terms,
                   extent_t<3> const& extent, void const* pixels);
void compressed_tex_image(GLenum target, GLint level, GLenum internalformat,
                          extent_t<1> const& extent, GLint border,
                          std::span<unsigned char const> bytes);
void compressed_tex_image(GLenum target, GLint level, GLenum internalformat,
                          extent_t<2> const& extent, GLint border,
                          std::span<unsigned char const> bytes);
void compressed_tex_image(GLenum target, GLint level, GLenum internalformat,
                          extent_t<3> const& extent, GLint border,
                          std::span<unsigned char const> bytes);
/// Reports a compressed image that the context has no entry points for.
void report_no_compression();
/// Reports a compressed image whose lower levels can't be built.
void report_no_compressed_mipmaps();

/// The two checkpoints of an upload into a larger square, before and after the pixels: the values
/// of the calls follow a reported error.
void check_square_storage(gl_loading_format_t const& terms, bool border);
void check_square_pixels(gl_loading_format_t const& terms, unsigned int side, GLsizei width,
                         GLsizei height);

template <typename image_t>
void upload_compressed(GLenum target, GLint level, gl_loading_format_t const& terms,
                       image_t const& image, GLint border) {
    if (is_GL_ARB_texture_compression_supported != 0) {
        compressed_tex_image(target, level, terms.internalformat, extent_of(image), border,
                             {image.begin(), image.size()});
    } else {
        report_no_compression();
    }
}

/// All levels from pixels by way of GLU.
template <typename image_t>
void upload_by_glu(GLenum target, gl_loading_format_t const& terms, image_t const& image) {
    if (!build_mipmaps(target, terms, image)) {
        grReportUnsupportedImage(image.desc);
    }
}

/// Storage of `storage` texels, the image in its lower left corner.
template <std::size_t N, typename image_t>
void upload_into(extent_t<N> const& storage, GLenum target, GLint level,
                 gl_loading_format_t const& terms, image_t const& image, GLint border) {
    tex_image(target, level, terms, storage, border, nullptr);
    tex_sub_image(target, level, terms, extent_of(image), image.begin());
}

template <typename image_t>
auto square_extent(image_t const& image, unsigned int side) {
    auto extent = extent_of(image);
    extent.fill(static_cast<GLsizei>(side));
    return extent;
}

/// Level 0 with its storage: compressed bytes as they are, pixels at their own size (`size` 0) or
/// in the corner of a square. Uploads of two and more sides look for OpenGL errors around the
/// latter.
template <typename image_t>
void full_upload(GLenum target, gl_loading_format_t const& terms, image_t const& image,
                 unsigned int size, bool border) {
    auto const extent = extent_of(image);
    if (image.compressed) {
        upload_compressed(target, 0, terms, image, border);
    } else if (size == 0) {
        tex_image(target, 0, terms, extent, border, image.begin());
    } else {
        unsigned int const side = bordered_side(size, border);
        if constexpr (extent.size() == 1) {
            upload_into(square_extent(image, side), target, 0, terms, image, border);
        } else {
            tex_image(target, 0, terms, square_extent(image, side), border, nullptr);
            check_square_storage(terms, border);
            tex_sub_image(target, 0, terms, extent, image.begin());
            check_square_pixels(terms, side, extent[0], extent[1]);
        }
    }
}

/// Levels 1 and up, which override what was generated for them.
template <typename image_t>
void upload_upper_levels(GLenum target, std::span<image_t const> images, bool compress, bool border,
                         square_t const& square) {
    for (std::size_t i = 1; i < images.size(); ++i) {
        auto const terms = resolve(images[i], compress);
        if (!terms) {
            continue;
        }
        auto const level = static_cast<GLint>(i);
        unpack(images[i]);
        if (images[i].compressed) {
            upload_compressed(target, level, *terms, images[i], border);
        } else if (square.used) {
            upload_into(square_extent(images[i], square.side), target, level, *terms, images[i],
                        square.border);
        } else {
            tex_image(target, level, *terms, extent_of(images[i]), 0, images[i].begin());
        }
    }
}

/// Has the driver generate the lower levels from whatever `upload` puts into level 0.
template <typename upload_t>
void generate_by_sgis(GLenum target, upload_t const& upload) {
    glTexParameteri(target, GL_GENERATE_MIPMAP_SGIS, 1);
    upload();
    glTexParameteri(target, GL_GENERATE_MIPMAP_SGIS, 0);
}

}  // namespace libgr
