// SPDX-License-Identifier: MIT
// Steps of a texture upload that the texture classes share. Not for users of the library.
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

/// The sides of a level in texels, in the order width, height, depth.
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

/// Returns the smallest power of two that is at least `side`, or 0 for 0. Bit 31 is ignored.
unsigned int power_of_two_side(unsigned int side);

/// Returns the side, in texels, of a square texture for images of up to `size` texels a side,
/// border included. It is a power of two, plus 2 if there is a border.
unsigned int bordered_side(unsigned int size, bool border);

/// The texture memory of a level, if it is a square instead of the size of the image.
struct square_storage_t {
    bool is_used;
    unsigned int side;  ///< texels
    GLint border;
};

/// The generator of the levels 1 and up: glGenerateMipmap, SGIS_generate_mipmap or GLU.
enum class mipmap_route_t { gl3, sgis, glu };

/// Returns the first route that the context and the internal format support. `has_gl3` is true if
/// the context and the texture class support glGenerateMipmap. Makes no GL call.
mipmap_route_t mipmap_route(GLenum internalformat, bool has_gl3);

/// Returns the formats to upload an image with, or nothing if the image must be skipped. An image
/// without bytes is skipped without a report. An image with an unsupported description, or with
/// fewer bytes than OpenGL would read after set_unpack_state, is reported on the error stream.
/// Needs a current context.
std::optional<gl_loading_format_t> upload_format(image1d_t const& image, bool compress);
std::optional<gl_loading_format_t> upload_format(image2d_t const& image, bool compress);
std::optional<gl_loading_format_t> upload_format(image3d_t const& image, bool compress);
/// Does the same for an upload with OpenGL's initial unpack parameters that ignores `compressed`.
/// Makes no GL call.
std::optional<gl_loading_format_t> upload_format_in_initial_state(image2d_t const& image,
                                                                  bool compress);

/// Sets the unpack parameters to the row layout (`store`) and window of an image. They are never
/// restored. An image without a row layout uses the byte order and alignment of the image before
/// it. Needs a current context.
void set_unpack_state(image1d_t const& image);
void set_unpack_state(image2d_t const& image);
void set_unpack_state(image3d_t const& image);

/// Loads the palette of an image if its format is IMAGE_FORMAT_INDEX. Needs a current context.
template <typename image_t>
void load_palette(grPalette& palette, image_t const& image) {
    if (image.desc.format == IMAGE_FORMAT_INDEX) {
        palette.Load(image.palette);
    }
}

// Each makes one OpenGL call and needs a current context. The 3-D functions do nothing if the
// context has no EXT_texture3D.
void tex_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
               extent_t<1> const& extent, GLint border, void const* pixels);
void tex_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
               extent_t<2> const& extent, GLint border, void const* pixels);
void tex_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
               extent_t<3> const& extent, GLint border, void const* pixels);
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
                   extent_t<1> const& extent, void const* pixels);
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
                   extent_t<2> const& extent, void const* pixels);
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
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
/// Reports on the error stream that a compressed image is skipped because the context has no
/// ARB_texture_compression.
void report_no_compression();
/// Reports on the error stream that no mipmaps can be generated for a compressed image.
void report_no_compressed_mipmaps();

/// Prints a pending GL error and the arguments of the allocation of a square. Call it before the
/// pixels are uploaded. Needs a current context.
void check_square_storage(gl_loading_format_t const& glformat, bool border);
/// Prints a pending GL error and the arguments of the upload into a square. Call it after the
/// upload. Needs a current context.
void check_square_pixels(gl_loading_format_t const& glformat, unsigned int side, GLsizei width,
                         GLsizei height);

template <typename image_t>
void upload_compressed(GLenum target, GLint level, gl_loading_format_t const& glformat,
                       image_t const& image, GLint border) {
    if (is_GL_ARB_texture_compression_supported != 0) {
        compressed_tex_image(target, level, glformat.internalformat, extent_of(image), border,
                             {image.begin(), image.size()});
    } else {
        report_no_compression();
    }
}

/// Uploads all levels of an uncompressed image with GLU. Needs a current context.
template <typename image_t>
void upload_by_glu(GLenum target, gl_loading_format_t const& glformat, image_t const& image) {
    if (!build_mipmaps(target, glformat, image)) {
        grReportUnsupportedImage(image.desc);
    }
}

/// Allocates a level of `storage` texels and uploads the image into its lower left corner. Needs a
/// current context.
template <std::size_t N, typename image_t>
void upload_into(extent_t<N> const& storage, GLenum target, GLint level,
                 gl_loading_format_t const& glformat, image_t const& image, GLint border) {
    tex_image(target, level, glformat, storage, border, nullptr);
    tex_sub_image(target, level, glformat, extent_of(image), image.begin());
}

template <typename image_t>
auto square_extent(image_t const& image, unsigned int side) {
    auto extent = extent_of(image);
    extent.fill(static_cast<GLsizei>(side));
    return extent;
}

/// Allocates and uploads level 0. The level has the size of the image if `size` is 0 or the image
/// is compressed. Otherwise it is a square with the image in its lower left corner, and for 2-D and
/// 3-D textures GL errors are reported before and after its pixels. Needs a current context.
template <typename image_t>
void upload_base_level(GLenum target, gl_loading_format_t const& glformat, image_t const& image,
                       unsigned int size, bool border) {
    auto const extent = extent_of(image);
    if (image.compressed) {
        upload_compressed(target, 0, glformat, image, border);
    } else if (size == 0) {
        tex_image(target, 0, glformat, extent, border, image.begin());
    } else {
        unsigned int const side = bordered_side(size, border);
        if constexpr (extent.size() == 1) {
            upload_into(square_extent(image, side), target, 0, glformat, image, border);
        } else {
            tex_image(target, 0, glformat, square_extent(image, side), border, nullptr);
            check_square_storage(glformat, border);
            tex_sub_image(target, 0, glformat, extent, image.begin());
            check_square_pixels(glformat, side, extent[0], extent[1]);
        }
    }
}

/// Allocates and uploads the levels 1 and up. They replace the generated levels. Needs a current
/// context.
template <typename image_t>
void upload_higher_levels(GLenum target, std::span<image_t const> images, bool compress,
                          bool border, square_storage_t const& square) {
    for (std::size_t i = 1; i < images.size(); ++i) {
        auto const glformat = upload_format(images[i], compress);
        if (!glformat) {
            continue;
        }
        auto const level = static_cast<GLint>(i);
        set_unpack_state(images[i]);
        if (images[i].compressed) {
            upload_compressed(target, level, *glformat, images[i], border);
        } else if (square.is_used) {
            upload_into(square_extent(images[i], square.side), target, level, *glformat, images[i],
                        square.border);
        } else {
            tex_image(target, level, *glformat, extent_of(images[i]), 0, images[i].begin());
        }
    }
}

/// Makes OpenGL generate the levels 1 and up from level 0, which `upload` uploads. Needs a current
/// context.
template <typename upload_t>
void generate_by_sgis(GLenum target, upload_t const& upload) {
    glTexParameteri(target, GL_GENERATE_MIPMAP_SGIS, 1);
    upload();
    glTexParameteri(target, GL_GENERATE_MIPMAP_SGIS, 0);
}

}  // namespace libgr
