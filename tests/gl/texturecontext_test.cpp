// SPDX-License-Identifier: MIT
// Tests of texture uploads on a real context: what went up is read back and compared.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "gl/texture1d.h"
#include "gl/texture2d.h"
#include "gl/texture3d.h"
#include "gl/texturecubemap.h"
#include "tests/support/gl/glcontext.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

constexpr image_store_t s_store{false, 4};
constexpr image_desc_t RGBA{IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_8};

enum route_t { gl3, sgis, glu };

class texturecontext : public gl_context_test {
  protected:
    /// A new texture, bound until the end of the test or until the next.
    void bind_new(GLenum target) {
        glDeleteTextures(1, &m_name);
        glGenTextures(1, &m_name);
        glBindTexture(target, m_name);
    }
    void TearDown() override {
        if (s_window != nullptr) {
            glDeleteTextures(1, &m_name);
        }
        gl_context_test::TearDown();
    }

  private:
    GLuint m_name = 0;
};

/// The context that leaves this route alone.
struct only_t {
    explicit only_t(route_t route)
        : m_gl3(is_GL_VERSION_3_0_supported, route == gl3),
          m_sgis(is_GL_SGIS_generate_mipmap_supported, route == sgis) {}

  private:
    gl_flag_t m_gl3;
    gl_flag_t m_sgis;
};

unsigned int level_side(GLenum target, GLint level, GLenum side = GL_TEXTURE_WIDTH) {
    GLint texels = 0;
    glGetTexLevelParameteriv(target, level, side, &texels);
    return static_cast<unsigned int>(texels);
}

/// A whole level in a pixel format of bytes, without padding.
std::string read_level(GLenum target, GLint level, GLenum format, unsigned int components) {
    std::string texels(1UL * components * level_side(target, level) *
                           level_side(target, level, GL_TEXTURE_HEIGHT) *
                           level_side(target, level, GL_TEXTURE_DEPTH),
                       '?');
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

/// RGBA of 4 texels a side.
template <typename image_t>
image_t make_cube(unsigned int texels, unsigned int seed) {
    image_t image;
    image.desc = RGBA;
    image.store = &s_store;
    image.m_width = 4;
    image.resize(texels * 4UL, 0);
    paint(image, seed);
    return image;
}

std::string text_of(image_bytes_t const& bytes) {
    return {bytes.begin(), bytes.end()};
}

struct upload_t {
    char const* name;
    route_t route;
    e_image_format_t format;
    GLenum glformat;
    unsigned int side[2];     ///< of the record, in pixels
    image_window2d_t window;  ///< in a picture of 16 by 16 pixels; a row length of 0 for none
    unsigned int size;
};

constexpr upload_t s_uploads[] = {
    {"rows with padding", gl3, IMAGE_FORMAT_RGB, GL_RGB, {5, 3}, {}, 0},
    {"window", gl3, IMAGE_FORMAT_BGR, GL_BGR, {6, 5}, {16, 3, 2}, 0},
    {"window in a square", gl3, IMAGE_FORMAT_RGB, GL_RGB, {6, 5}, {16, 10, 11}, 7},
    {"SGIS, window in a square", sgis, IMAGE_FORMAT_RGBA, GL_RGBA, {7, 3}, {16, 9, 0}, 8},
    {"SGIS", sgis, IMAGE_FORMAT_RGB, GL_RGB, {8, 4}, {}, 0},
    {"GLU", glu, IMAGE_FORMAT_RGBA, GL_RGBA, {8, 4}, {}, 0},
    {"GLU, window", glu, IMAGE_FORMAT_RGBA, GL_RGBA, {4, 8}, {16, 5, 7}, 0},
    {"SGIS knows no gray", sgis, IMAGE_FORMAT_GRAYSCALE, GL_LUMINANCE, {8, 8}, {}, 0},
};

image2d_t make_picture(upload_t const& upload) {
    image2d_t image;
    image.desc = {upload.format, IMAGE_TYPE_UINT, IMAGE_BITS_8};
    image.store = &s_store;
    bool const windowed = upload.window.rowlength != 0;
    image.m_width = windowed ? 16 : upload.side[0];
    image.m_height = windowed ? 16 : upload.side[1];
    EXPECT_TRUE(image.allocate());
    image.window = upload.window;
    image.m_width = upload.side[0];
    image.m_height = upload.side[1];
    return image;
}

/// Level 0 holds the record's pixels in its lower left corner, and level 1, where sides halve
/// evenly, their means.
void expect_uploaded(image2d_t const& image, upload_t const& upload) {
    auto const components = static_cast<unsigned int>(image.getPixelBits() / 8);
    unsigned int const side = upload.size != 0 ? 8 : image.m_width;
    std::string const base = read_level(GL_TEXTURE_2D, 0, upload.glformat, components);
    std::string const half = read_level(GL_TEXTURE_2D, 1, upload.glformat, components);
    ASSERT_EQ(side, level_side(GL_TEXTURE_2D, 0)) << upload.name;
    ASSERT_EQ(side / 2, level_side(GL_TEXTURE_2D, 1)) << upload.name;
    for (unsigned int y = 0; y < image.m_height; ++y) {
        std::string const row(reinterpret_cast<char const*>(pixel_row(image, y)), image.rowbyte());
        EXPECT_EQ(row, base.substr(1UL * y * side * components, row.size()))
            << upload.name << ", row " << y;
    }
    bool const halves = side % 2 == 0 && level_side(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT) % 2 == 0;
    for (unsigned int c = 0; halves && c < components; ++c) {
        int const sum = pixel_row(image, 0)[c] + pixel_row(image, 0)[components + c] +
                        pixel_row(image, 1)[c] + pixel_row(image, 1)[components + c];
        EXPECT_LE(std::abs(sum - 4 * static_cast<unsigned char>(half[c])), 8)
            << upload.name << ", level 1, component " << c;
    }
}

}  // namespace

TEST_F(texturecontext, pictures_arrive_by_every_route) {
    for (upload_t const& upload : s_uploads) {
        only_t const only(upload.route);
        bind_new(GL_TEXTURE_2D);
        image2d_t image = make_picture(upload);
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

TEST_F(texturecontext, lines_volumes_and_cube_maps_arrive) {
    for (route_t const route : {gl3, sgis, glu}) {
        only_t const only(route);
        bind_new(GL_TEXTURE_1D);
        auto const line = make_cube<image1d_t>(4, 1);
        grTexture1D texture1d;
        texture1d.setImage(line, 0, 0);
        texture1d.setBuildMipmap(true);
        texture1d.Load();
        EXPECT_EQ(text_of(line), read_level(GL_TEXTURE_1D, 0, GL_RGBA, 4)) << route;
        EXPECT_EQ(1U, level_side(GL_TEXTURE_1D, 2)) << route;

        bind_new(GL_TEXTURE_3D);
        auto volume = make_cube<image3d_t>(64, 2);
        volume.m_height = volume.m_depth = 4;
        grTexture3D texture3d;
        texture3d.setImage(volume, 0, 0);
        texture3d.setBuildMipmap(true);
        texture3d.Load();
        EXPECT_EQ(text_of(volume), read_level(GL_TEXTURE_3D, 0, GL_RGBA, 4)) << route;
        EXPECT_EQ(1U, level_side(GL_TEXTURE_3D, 2, GL_TEXTURE_DEPTH)) << route;

        bind_new(GL_TEXTURE_CUBE_MAP);
        image2d_t faces[6];
        for (unsigned int face = 0; face < 6; ++face) {
            faces[face] = make_cube<image2d_t>(16, face * 40);
            faces[face].m_height = 4;
        }
        grTextureCubeMap cube;
        cube.setImage(faces, 0, 0);
        cube.setBuildMipmap(true);
        cube.Load();
        for (unsigned int face = 0; face < 6; ++face) {
            GLenum const target = GL_TEXTURE_CUBE_MAP_POSITIVE_X + face;
            EXPECT_EQ(text_of(faces[face]), read_level(target, 0, GL_RGBA, 4)) << route << face;
            EXPECT_EQ(1U, level_side(target, 2)) << route << face;
        }
    }
}
