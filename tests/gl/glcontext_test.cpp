// SPDX-License-Identifier: MIT
// Tests of matrices, errors and volume textures on a real context.
#include <algorithm>
#include <deque>
#include <string>

#include "gl/grcalls.h"
#include "gl/grerror.h"
#include "gl/matrixmgr.h"
#include "gl/texture3d.h"
#include "tests/support/files/testfiles.h"
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

TEST_F(GlContext, ErrorsAreReported) {
    capture_t console;
    glEnable(0x9999);
    EXPECT_TRUE(grPrintError("glEnable"));
    EXPECT_EQ(console.err(), "glEnable: Error 1280: invalid enumerant\n");
}

TEST_F(GlContext, GluScalesVolumesWithoutTheirPadding) {
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
