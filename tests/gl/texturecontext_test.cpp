// SPDX-License-Identifier: MIT
// Tests of texture uploads on a real context: what went up is read back and compared.
#include <gtest/gtest.h>

#include <string>

#include "gl/texture2d.h"
#include "gl/texturecubemap.h"
#include "tests/support/gl/glcontext.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

enum route_t { gl3, sgis, glu };

class texturecontext : public gl_context_test {};

/// A new texture, bound, and a context that leaves one route to mipmaps.
struct trial_t {
    trial_t(GLenum target, route_t route)
        : gl3_flag(is_GL_VERSION_3_0_supported, route == gl3),
          sgis_flag(is_GL_SGIS_generate_mipmap_supported, route == sgis) {
        glGenTextures(1, &name);
        glBindTexture(target, name);
    }
    ~trial_t() { glDeleteTextures(1, &name); }

    GLuint name = 0;
    gl_flag_t gl3_flag;
    gl_flag_t sgis_flag;
};

unsigned int level_side(GLenum target, GLint level, GLenum side = GL_TEXTURE_WIDTH) {
    GLint texels = 0;
    glGetTexLevelParameteriv(target, level, side, &texels);
    return static_cast<unsigned int>(texels);
}

/// A whole level in a pixel format of bytes, without padding.
std::string read_level(GLenum target, GLint level, GLenum format, unsigned int components) {
    unsigned int const rows =
        level_side(target, level, GL_TEXTURE_HEIGHT) * level_side(target, level, GL_TEXTURE_DEPTH);
    std::string texels(1UL * components * level_side(target, level) * rows, '?');
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(target, level, format, GL_UNSIGNED_BYTE, texels.data());
    return texels;
}

/// Bytes that no shift by a pixel, a row or a component maps to themselves.
void paint(image_bytes_t& bytes, unsigned int seed) {
    for (unsigned int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(seed + i * 37 + i / 7 * 5);
    }
}

struct upload_t {
    char const* name;
    route_t route;
    e_image_format_t format;
    GLenum glformat;
    unsigned int width, height;
    image_window2d_t window;  ///< in a picture of 16 by 16 pixels; a row length of 0 for none
    unsigned int size;
};

constexpr upload_t s_uploads[] = {
    {"rows with padding", gl3, IMAGE_FORMAT_RGB, GL_RGB, 5, 3, {}, 0},
    {"window", gl3, IMAGE_FORMAT_BGR, GL_BGR, 6, 4, {16, 3, 2}, 0},
    {"last window in a square", gl3, IMAGE_FORMAT_RGB, GL_RGB, 6, 5, {16, 10, 11}, 7},
    {"SGIS, window in a square", sgis, IMAGE_FORMAT_RGBA, GL_RGBA, 7, 3, {16, 9, 0}, 8},
    {"GLU", glu, IMAGE_FORMAT_RGBA, GL_RGBA, 8, 4, {}, 0},
    {"GLU, window", glu, IMAGE_FORMAT_RGBA, GL_RGBA, 4, 8, {16, 5, 7}, 0},
    {"SGIS knows no gray", sgis, IMAGE_FORMAT_GRAYSCALE, GL_LUMINANCE, 8, 8, {}, 0},
};

/// Level 0 holds the record's pixels in its lower left corner, and level 1 has half the side.
void expect_uploaded(image2d_t const& image, upload_t const& upload) {
    auto const components = static_cast<unsigned int>(image.getPixelBits() / 8);
    std::string const base = read_level(GL_TEXTURE_2D, 0, upload.glformat, components);
    unsigned int const side = level_side(GL_TEXTURE_2D, 0);
    ASSERT_EQ(upload.size != 0 ? 8 : image.m_width, side) << upload.name;
    ASSERT_EQ(side / 2, level_side(GL_TEXTURE_2D, 1)) << upload.name;
    for (unsigned int y = 0; y < image.m_height; ++y) {
        std::string const row(pixel_row(image, y), pixel_row(image, y) + image.rowbyte());
        EXPECT_EQ(row, base.substr(1UL * y * side * components, row.size()))
            << upload.name << ", row " << y;
    }
}

}  // namespace

TEST_F(texturecontext, pictures_arrive_by_every_route) {
    for (upload_t const& upload : s_uploads) {
        trial_t const trial(GL_TEXTURE_2D, upload.route);
        bool const windowed = upload.window.rowlength != 0;
        image2d_t image;
        image.desc = {upload.format, IMAGE_TYPE_UINT, IMAGE_BITS_8};
        image.m_width = windowed ? 16 : upload.width;
        image.m_height = windowed ? 16 : upload.height;
        ASSERT_TRUE(image.allocate());
        image.window = upload.window;
        image.m_width = upload.width;
        image.m_height = upload.height;
        grTexture2D texture;
        texture.setImage(image, upload.size, 0);
        texture.setBuildMipmap(true);
        paint(image, 11);
        texture.Load();
        expect_uploaded(image, upload);
        paint(image, 99);
        texture.Reload();
        expect_uploaded(image, upload);
    }
}

TEST_F(texturecontext, cube_maps_arrive_by_every_route) {
    for (route_t const route : {gl3, sgis, glu}) {
        trial_t const trial(GL_TEXTURE_CUBE_MAP, route);
        image2d_t faces[6];
        for (unsigned int face = 0; face < 6; ++face) {
            faces[face].desc = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_8};
            faces[face].m_width = faces[face].m_height = 4;
            ASSERT_TRUE(faces[face].allocate());
            paint(faces[face], face * 40);
        }
        grTextureCubeMap cube;
        cube.setImage(faces, 0, 0);
        cube.setBuildMipmap(true);
        cube.Load();
        for (unsigned int face = 0; face < 6; ++face) {
            GLenum const target = GL_TEXTURE_CUBE_MAP_POSITIVE_X + face;
            EXPECT_EQ(std::string(faces[face].begin(), faces[face].end()),
                      read_level(target, 0, GL_RGBA, 4));
            EXPECT_EQ(1U, level_side(target, 2)) << route << face;
        }
    }
}
