// SPDX-License-Identifier: MIT
// Tests of texture uploads on a real context: what went up is read back and compared.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "gl/texture1d.h"
#include "gl/texture2d.h"
#include "gl/texture3d.h"
#include "gl/texturecubemap.h"
#include "gl/texturerectangle.h"
#include "tests/support/gl/glcontext.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

enum route_t { gl3, sgis, glu };

using texturecontext = gl_context_test;

/// A whole level in a pixel format of bytes, without padding.
struct level_t {
    level_t(GLenum target, GLint level, GLenum format, unsigned long components) {
        glGetTexLevelParameteriv(target, level, GL_TEXTURE_WIDTH, &width);
        glGetTexLevelParameteriv(target, level, GL_TEXTURE_HEIGHT, &height);
        row = static_cast<unsigned long>(width) * components;
        texels.resize(row * static_cast<unsigned long>(height));
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glGetTexImage(target, level, format, GL_UNSIGNED_BYTE, texels.data());
    }

    GLint width = 0, height = 0;
    unsigned long row = 0;
    std::string texels;
};

/// Bytes that no shift by a pixel, a row or a component maps to themselves.
void paint(image_bytes_t& bytes, unsigned int seed) {
    for (unsigned int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(seed + i * 37 + i / 7 * 6);
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

constexpr upload_t uploads[] = {
    {"rows with padding", gl3, IMAGE_FORMAT_RGB, GL_RGB, 5, 3, {}, 0},
    {"window", gl3, IMAGE_FORMAT_BGR, GL_BGR, 6, 4, {16, 3, 2}, 0},
    {"last window in a square", gl3, IMAGE_FORMAT_RGB, GL_RGB, 6, 5, {16, 10, 11}, 7},
    {"SGIS, window in a square", sgis, IMAGE_FORMAT_RGBA, GL_RGBA, 7, 3, {16, 9, 0}, 8},
    {"GLU", glu, IMAGE_FORMAT_RGBA, GL_RGBA, 8, 4, {}, 0},
    {"GLU, window", glu, IMAGE_FORMAT_RGBA, GL_RGBA, 4, 8, {16, 5, 7}, 0},
    {"SGIS knows no gray", sgis, IMAGE_FORMAT_GRAYSCALE, GL_LUMINANCE, 8, 8, {}, 0},
};

}  // namespace

TEST_F(texturecontext, pictures_arrive_by_every_route) {
    for (upload_t const& upload : uploads) {
        SCOPED_TRACE(upload.name);
        gl_flag_t const has_gl3(is_GL_VERSION_3_0_supported, upload.route == gl3);
        gl_flag_t const has_sgis(is_GL_SGIS_generate_mipmap_supported, upload.route == sgis);
        image2d_t image;
        image.desc = {upload.format, IMAGE_TYPE_UINT, IMAGE_BITS_8};
        image.m_width = std::max(upload.width, upload.window.rowlength);
        image.m_height = std::max(upload.height, upload.window.rowlength);
        ASSERT_TRUE(image.allocate());
        image.window = upload.window;
        image.m_width = upload.width;
        image.m_height = upload.height;
        grTexture2D texture;
        texture.setImage(image, upload.size, 0);
        texture.setBuildMipmap(true);
        grTextureObject object;
        for (bool const reload : {false, true}) {
            paint(image, reload ? 99 : 11);
            reload ? object.Reload() : object.Preload(&texture);
            level_t const base(GL_TEXTURE_2D, 0, upload.glformat, image.getPixelBits() / 8);
            level_t const half(GL_TEXTURE_2D, 1, upload.glformat, image.getPixelBits() / 8);
            ASSERT_EQ(upload.size != 0 ? 8U : upload.width, static_cast<unsigned int>(base.width));
            ASSERT_EQ(base.width / 2, half.width);
            for (unsigned int y = 0; y < image.m_height; ++y) {
                std::string const row(pixel_row(image, y), pixel_row(image, y) + image.rowbyte());
                EXPECT_EQ(row, base.texels.substr(y * base.row, row.size())) << "row " << y;
            }
        }
    }
}

TEST_F(texturecontext, rows_and_rectangles_do_not_see_the_window_of_the_tile_before) {
    image2d_t square;
    square.desc = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_8};
    square.m_width = square.m_height = 4;
    ASSERT_TRUE(square.allocate());
    paint(square, 9);
    image1d_t line;
    static_cast<image_bytes_t&>(line) = square;
    line.desc = square.desc;
    line.m_width = 4;
    grTexture1D row;
    row.setImage(line, 0, 0);
    grTextureRectangle rectangle;
    rectangle.setImage(square);
    square.window = {4, 3, 3};
    square.m_width = square.m_height = 1;
    grTexture2D tile;
    tile.setImage(square, 0, 0);
    std::string const painted(square.begin(), square.end());
    grTextureObject().Preload(&tile);
    row.Load();
    EXPECT_EQ(painted.substr(0, 16), level_t(GL_TEXTURE_1D, 0, GL_RGBA, 4).texels);
    rectangle.Load();
    EXPECT_EQ(painted, level_t(GL_TEXTURE_RECTANGLE, 0, GL_RGBA, 4).texels);
}

TEST_F(texturecontext, cube_maps_arrive_by_every_route) {
    for (route_t const route : {gl3, sgis, glu}) {
        gl_flag_t const has_gl3(is_GL_VERSION_3_0_supported, route == gl3);
        gl_flag_t const has_sgis(is_GL_SGIS_generate_mipmap_supported, route == sgis);
        image2d_t faces[6];
        unsigned int seed = 0;
        for (image2d_t& face : faces) {
            face.desc = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_8};
            face.m_width = face.m_height = 4;
            ASSERT_TRUE(face.allocate());
            paint(face, seed += 40);
        }
        grTextureCubeMap cube;
        cube.setImage(faces, 0, 0);
        cube.setBuildMipmap(true);
        grTextureObject object;
        object.Preload(&cube);
        GLenum target = GL_TEXTURE_CUBE_MAP_POSITIVE_X;
        for (image2d_t const& face : faces) {
            std::string const painted(face.begin(), face.end());
            EXPECT_EQ(painted, level_t(target, 0, GL_RGBA, 4).texels);
            EXPECT_EQ(1, level_t(target++, 2, GL_RGBA, 4).width) << route;
        }
    }
}

TEST_F(texturecontext, volumes_keep_their_colour_in_smaller_levels) {
    gl_flag_t const has_sgis(is_GL_SGIS_generate_mipmap_supported, 0);
    image3d_t volume;
    volume.desc = {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8};
    volume.window = {6, 5, 1, 1, 1};
    volume.m_width = volume.m_height = volume.m_depth = 4;
    ASSERT_TRUE(volume.resize(20 * 5 * 5, 0));
    std::fill(volume.begin(), volume.end(), static_cast<unsigned char>(100));
    grTexture3D texture;
    texture.setImage(volume, 0, 0);
    texture.setBuildMipmap(true);
    grTextureObject object;
    object.Preload(&texture);
    for (int level = 0; level < 2; ++level) {
        std::string texels(192UL >> 3 * level, '\0');
        glGetTexImage(GL_TEXTURE_3D, level, GL_RGB, GL_UNSIGNED_BYTE, texels.data());
        EXPECT_EQ(texels, std::string(texels.size(), 'd')) << level;
    }
}
