// SPDX-License-Identifier: MIT
// The images of a cube map and their upload.
#include "gl/texturecubemap.h"

#include <algorithm>

#include "gl/grerror.h"
#include "gl/textureupload.h"

namespace libgr {
namespace {

constexpr unsigned long face_count = 6;

GLenum face_target(unsigned long face) {
    static constexpr GLenum s_gl_cube_map_targets[face_count] = {
        GL_TEXTURE_CUBE_MAP_POSITIVE_X, GL_TEXTURE_CUBE_MAP_NEGATIVE_X,
        GL_TEXTURE_CUBE_MAP_POSITIVE_Y, GL_TEXTURE_CUBE_MAP_NEGATIVE_Y,
        GL_TEXTURE_CUBE_MAP_POSITIVE_Z, GL_TEXTURE_CUBE_MAP_NEGATIVE_Z,
    };
    return s_gl_cube_map_targets[face];
}

/// Allocates a face of level `i`, and uploads the pixels to level 0 for every level.
void upload_single_face(GLenum target, gl_loading_format_t const& glformat, image2d_t const& image,
                        unsigned long i, unsigned int size, bool border) {
    auto const level = static_cast<GLint>(i);
    bool const bordered = i == 0 && border;
    if (image.compressed) {
        upload_compressed(target, level, glformat, image, 0);
        return;
    }
    tex_image(target, level, glformat, square_extent(image, bordered_side(size, bordered)),
              bordered ? 1 : 0, nullptr);
    tex_sub_image(target, 0, glformat, extent_of(image), image.begin());
}

/// Uploads a face of level 0 if OpenGL generates the other levels.
void upload_face(GLenum target, gl_loading_format_t const& glformat, image2d_t const& image,
                 unsigned int size) {
    if (image.compressed) {
        upload_compressed(target, 0, glformat, image, 0);
    } else if (size == 0) {
        tex_image(target, 0, glformat, extent_of(image), 0, image.begin());
    } else {
        upload_into(square_extent(image, power_of_two_side(size)), target, 0, glformat, image, 0);
    }
}

void build_face(GLenum target, gl_loading_format_t const& glformat, image2d_t const& image) {
    grPrintError("after-unpack_window_subset");
    if (image.compressed) {
        report_no_compressed_mipmaps();
        upload_compressed(target, 0, glformat, image, 0);
    } else {
        upload_by_glu(target, glformat, image);
        grPrintError("after-gluBuild2DMipmaps");
    }
}

}  // namespace

void grTextureCubeMap::setImage(image2d_t const (&images)[6], unsigned int size,
                                unsigned long level) {
    replace_from(face_count * libutils::min2(level, max_image_count), images, size);
}

void grTextureCubeMap::setImages(std::vector<image2d_t[6]> const& images, unsigned int size,
                                 unsigned long level) {
    std::vector<image2d_t> flat;
    flat.reserve(images.size() * face_count);
    for (auto const& faces : images) {
        flat.insert(flat.end(), std::begin(faces), std::end(faces));
    }
    overwrite_from(face_count * libutils::min2(level, max_image_count), flat, size);
}

void grTextureCubeMap::Load() const {
    if (m_images.empty()) {
        return;
    }
    grPalette palette;
    load_palette(palette, m_images[0]);
    if (!m_buildmipmap) {
        load_single_levels();
    } else if (!load_base_level()) {
        return;
    }
    grTexParameter(m_texparameter);
}

void grTextureCubeMap::load_single_levels() const {
    for (unsigned long i = 0; i < m_images.size() / face_count * face_count; ++i) {
        if (auto const glformat = upload_format(m_images[i], m_internalcompression)) {
            set_unpack_state(m_images[i]);
            upload_single_face(face_target(i % face_count), *glformat, m_images[i], i / face_count,
                               m_size, m_border);
        }
    }
}

bool grTextureCubeMap::load_base_level() const {
    auto const first = upload_format(m_images[0], m_internalcompression);
    if (!first) {
        return false;
    }
    auto const each_face = [this](auto const& upload) {
        for (unsigned long face = 0; face < std::min(face_count, m_images.size()); ++face) {
            if (auto const glformat = upload_format(m_images[face], m_internalcompression)) {
                set_unpack_state(m_images[face]);
                upload(face_target(face), *glformat, m_images[face]);
            }
        }
    };
    auto const upload = [this](GLenum target, gl_loading_format_t const& glformat,
                               image2d_t const& image) {
        upload_face(target, glformat, image, m_size);
    };
    switch (mipmap_route(first->internalformat, is_GL_VERSION_3_0_supported != 0)) {
        case mipmap_route_t::gl3:
            each_face(upload);
            grPrintError("before-generate_mipmap");
            glGenerateMipmap(GL_TEXTURE_CUBE_MAP);
            grPrintError("after-generate_mipmap");
            break;
        case mipmap_route_t::sgis:
            glTexParameteri(GL_TEXTURE_CUBE_MAP, GL_GENERATE_MIPMAP_SGIS, 1);
            grPrintError("after-texparameter_cubemap-sgis-true");
            each_face(upload);
            grPrintError("before-texparameter_cubemap-sgis-false");
            glTexParameteri(GL_TEXTURE_CUBE_MAP, GL_GENERATE_MIPMAP_SGIS, 0);
            grPrintError("after-texparameter_cubemap-sgis-false");
            break;
        case mipmap_route_t::glu:
            each_face(build_face);
            break;
    }
    return true;
}

}  // namespace libgr
