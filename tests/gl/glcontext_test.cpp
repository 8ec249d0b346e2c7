// SPDX-License-Identifier: MIT
// Tests of matrices and of textures that GLU scales, on a real context.
#include <algorithm>
#include <deque>
#include <string>

#include "gl/grcalls.h"
#include "gl/matrixmgr.h"
#include "gl/texture2d.h"
#include "gl/texture3d.h"
#include "tests/support/gl/glcontext.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

using GlContext = gl_context_test;

TEST_F(GlContext, MatricesNestBeyondTheStacks) {
    grMatrixPusher::setEnhanceMode(true);
    glGetError();  // without ARB_imaging, the query of the colour matrix causes an error
    std::deque<grMatrixPusher> nest;
    for (int depth = 0; depth < 40; ++depth) {
        nest.emplace_back(GL_MODELVIEW);
        grTranslate(position3(1, 0, 0));
    }
    while (!nest.empty()) {
        nest.pop_back();
        matrix3w_t matrix{};
        grGet(GL_MODELVIEW_MATRIX, matrix);
        EXPECT_EQ(matrix[3][0], static_cast<float>(nest.size()));
    }
    grMatrixPusher::setEnhanceMode(false);
}

TEST_F(GlContext, GluScalesImagesWithoutTheirPadding) {
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, 0);
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
    image2d_t slice;  // the last one: GLU would read past its end
    static_cast<image_bytes_t&>(slice) = volume;
    slice.desc = volume.desc;
    slice.window = {6, 1, 21};
    slice.m_width = slice.m_height = 4;
    grTexture3D texture3d;
    texture3d.setImage(volume, 0, 0);
    texture3d.setBuildMipmap(true);
    grTexture2D texture2d;
    texture2d.setImage(slice, 0, 0);
    texture2d.setBuildMipmap(true);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    grTexturableImageGL const* const images[] = {&texture3d, &texture2d};
    for (auto const* image : images) {
        grTextureObject object;
        object.Preload(image);
        int const dimension = static_cast<int>(image->Dimension());
        for (int level = 0; level < dimension - 1; ++level) {  // GLU damages level 1 of the slice
            std::string texels(3UL << (2 - level) * dimension, '\0');
            glGetTexImage(dimension == 3 ? GL_TEXTURE_3D : GL_TEXTURE_2D, level, GL_RGB,
                          GL_UNSIGNED_BYTE, texels.data());
            EXPECT_EQ(texels, std::string(texels.size(), 'd')) << level << " of " << dimension;
        }
    }
}

}  // namespace
