// SPDX-License-Identifier: MIT
// Tests of read-back, matrices, textures and errors on a real context.
#include "tests/support/gl/glcontext.h"

#include <deque>

#include "gl/grcalls.h"
#include "gl/grdsplist.h"
#include "gl/grerror.h"
#include "gl/matrixmgr.h"
#include "gl/readpixels.h"
#include "gl/texture.h"
#include "tests/support/files/testfiles.h"

using namespace libgr;

namespace {

using GlContext = gl_context_test;

struct red_lower_half_t : grObject3D {
    using grObject3D::Draw;
    void Draw() const override {
        grColor(color3aub(255, 0, 0, 255));
        glRectf(-1, -1, 1, 0);
    }
};

TEST_F(GlContext, ReadsTheShownAndTheDrawnFrame) {
    red_lower_half_t const half;
    grDspList list;
    list.Preload(&half);
    grTransformer upside_down;
    upside_down.m_matrix = getScaleMatrix(direction3(1, -1, 1));
    upside_down.setObject(&list);
    grContainer root;
    root.addObject(&upside_down);
    for (bool const swapped : {true, false}) {  // shown, or drawn but not swapped
        grClearColor(color3a(0, 0, swapped ? 1.0F : 0.2F, 1));
        glClear(GL_COLOR_BUFFER_BIT);
        root.Draw();
        if (swapped) {
            swap_buffers();
        }
        image2d_t image;
        ASSERT_TRUE(grReadPixelsRGB(image));
        ASSERT_EQ(image.m_width, unsigned{window_size});
        ASSERT_EQ(image.m_height, unsigned{window_size});
        EXPECT_EQ(pixel_row(image, 0)[2], swapped ? 255 : 51);
        EXPECT_EQ(pixel_row(image, window_size - 1)[0], 255);
        ASSERT_TRUE(grReadPixelsDepth(image));
    }
}

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

struct floats_t : grTexturableImageGL {
    float pixels[8] = {0, 1, 2, 3, -4, 5.5F, 6, 7};
    unsigned long Dimension() const override { return 2; }
    unsigned int GetInternalFormat() const override { return GL_RGBA32F; }
    void Load() const override {
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA32F, 2, 1, 0, GL_RGBA, GL_FLOAT, pixels);
    }
};

TEST_F(GlContext, TexturesAreReadBack) {
    floats_t const source;
    grTextureObject texture;
    texture.Preload(&source);
    image2d_t bound, own;
    EXPECT_TRUE(texture.GetTexImage(GL_TEXTURE_2D, 0, bound));
    texture.Unload();
    EXPECT_TRUE(texture.GetTextureImage(0, own));
    for (image2d_t const* image : {&bound, &own}) {
        ASSERT_EQ(image->size(), sizeof source.pixels);
        EXPECT_EQ(std::memcmp(image->begin(), source.pixels, sizeof source.pixels), 0);
    }
    EXPECT_FALSE(texture.GetTextureImage(9, own));
}

TEST_F(GlContext, ErrorsAreReportedAndLightsAreReadBack) {
    capture_t console;
    glEnable(0x9999);
    EXPECT_TRUE(grPrintError("glEnable"));
    EXPECT_EQ(console.err(), "glEnable: Error 1280: invalid enumerant\n");
    grLightPos(GL_LIGHT0, position3(0, 6, 8));
    position3_t place{};
    direction3_t direction{};
    grGetLightPos(GL_LIGHT0, place);
    grGetLightPos(GL_LIGHT0, direction);
    EXPECT_EQ(place, position3(0, 6, 8));
    EXPECT_NEAR(direction.y, 0.6F, 1e-6);
}

}  // namespace
