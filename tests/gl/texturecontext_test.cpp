// SPDX-License-Identifier: MIT
// Tests of texture uploads on a real context: the texels are read back and compared.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "gl/texture2d.h"
#include "gl/texture3d.h"
#include "tests/support/gl/glcontext.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

using TextureContext = gl_context_test;

/// A mipmap level of the bound 2-D texture, 4 bytes a texel.
struct level_t {
    explicit level_t(GLint level) {
        glGetTexLevelParameteriv(GL_TEXTURE_2D, level, GL_TEXTURE_WIDTH, &width);
        glGetTexLevelParameteriv(GL_TEXTURE_2D, level, GL_TEXTURE_HEIGHT, &height);
        texels.resize(4UL * static_cast<unsigned long>(width * height));
        glGetTexImage(GL_TEXTURE_2D, level, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
    }

    GLint width = 0, height = 0;
    std::string texels;
};

struct upload_t {
    char const* name;
    bool has_gl3, has_sgis;
    unsigned int width, height;
    image_window2d_t window;  ///< in a picture of 16 by 16 pixels, or in none
    unsigned int size;
    GLint side;  ///< expected width of the texture
};

constexpr upload_t uploads[] = {
    {"OpenGL 3.0", true, false, 5, 3, {}, 0, 5},
    {"OpenGL 3.0, last window in a square", true, false, 6, 5, {16, 10, 11}, 7, 8},
    {"SGIS, window in a square", false, true, 7, 3, {16, 9, 0}, 8, 8},
    {"GLU, copied window", false, false, 4, 8, {16, 5, 7}, 0, 4},
};

TEST_F(TextureContext, PicturesAreUploadedByEveryRoute) {
    for (upload_t const& upload : uploads) {
        SCOPED_TRACE(upload.name);
        gl_flag_t const gl3(is_GL_VERSION_3_0_supported, upload.has_gl3);
        gl_flag_t const sgis(is_GL_SGIS_generate_mipmap_supported, upload.has_sgis);
        image2d_t image;
        image.desc = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_8};
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
        for (unsigned int const seed : {11U, 99U}) {
            for (unsigned int i = 0; i < image.size(); ++i) {
                image[i] = static_cast<unsigned char>(seed + i * 37 + i / 7 * 6);
            }
            seed == 11 ? object.Preload(&texture) : object.Reload();
            level_t const base(0);
            ASSERT_EQ(base.width, upload.side);
            ASSERT_EQ(level_t(1).width, upload.side / 2);
            std::size_t const row_bytes = 4UL * static_cast<unsigned long>(upload.side);
            for (unsigned int y = 0; y < image.m_height; ++y) {
                std::string const row(pixel_row(image, y), pixel_row(image, y) + image.rowbyte());
                EXPECT_EQ(base.texels.substr(y * row_bytes, row.size()), row) << "row " << y;
            }
        }
    }
}

TEST_F(TextureContext, GluScalesVolumesWithoutTheirPadding) {
    gl_flag_t const sgis(is_GL_SGIS_generate_mipmap_supported, 0);
    image3d_t volume;
    volume.desc = {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8};
    volume.window = {6, 5, 1, 1, 1};
    volume.m_width = volume.m_height = volume.m_depth = 4;
    ASSERT_TRUE(volume.resize(20 * 5 * 5, 0));
    for (unsigned int z = 1; z < 5; ++z) {
        for (unsigned int y = 1; y < 5; ++y) {
            std::fill_n(volume.begin() + 20 * (5 * z + y) + 3, 12, 'd');
        }
    }
    grTexture3D texture;
    texture.setImage(volume, 0, 0);
    texture.setBuildMipmap(true);
    grTextureObject object;
    object.Preload(&texture);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    for (int level = 0; level < 2; ++level) {
        std::string texels(192UL >> 3 * level, '\0');
        glGetTexImage(GL_TEXTURE_3D, level, GL_RGB, GL_UNSIGNED_BYTE, texels.data());
        EXPECT_EQ(texels, std::string(texels.size(), 'd')) << "level " << level;
    }
}

}  // namespace
