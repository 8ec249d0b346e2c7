// SPDX-License-Identifier: MIT
// Tests of texture objects, pixel store parameters and read-back, on recorded calls.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "gl/glumipmaps.h"
#include "gl/palette.h"
#include "gl/pixelstore.h"
#include "gl/readpixels.h"
#include "gl/texture2d.h"
#include "gl/texturecubemap.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

/// Images that are recorded as glVertex2f(0, 0) by a load and glVertex2f(1, 0) by a reload.
struct images_t : grTexturableImageGL {
    unsigned long dimension = 6;
    unsigned long Dimension() const override { return dimension; }
    void Load() const override { glVertex2f(0, 0); }
    void Reload() const override { glVertex2f(1, 0); }
    unsigned int GetInternalFormat() const override { return GL_RGB8; }
};

struct TextureObject : testing::Test {
    gl_recorder_t gl;
    capture_t console;
};
using PixelTransfer = TextureObject;

TEST_F(TextureObject, CopiesShareOneName) {
    images_t const images;
    grTextureObject first;
    first.Load();
    first.Reload();
    first.Unload();
    first.clear();
    EXPECT_FALSE(first.isResident());
    first.Preload(&images);
    grTextureObject second(first);
    first.clear();
    EXPECT_EQ(first.Dimension(), 0U);
    first.Reload();
    second.Reload();
    EXPECT_EQ(second.Dimension(), 6U);
    EXPECT_TRUE(second.isResident());
    second.BindImage(3, 1, GL_READ_ONLY);
    second.UnbindImage(3);
    for (bool const modern : {false, true}) {
        gl_flag_t const flag(is_GL_VERSION_3_0_supported, modern);
        second.Load();
        second.Unload();
    }
    second.Preload(&images);
    second.clear();
    std::string const bind = "glBindTexture(GL_TEXTURE_CUBE_MAP, 1)\n";
    std::string const unbind = "glBindTexture(GL_TEXTURE_CUBE_MAP, 0)\n";
    EXPECT_EQ(gl.take(), "glGenTextures(1, ptr)\n" + bind + "glVertex2f(0, 0)\n" + bind +
                             "glVertex2f(1, 0)\nglAreTexturesResidentEXT(1, {1}, ptr)\n"
                             "glBindImageTexture(3, 1, 1, 0, 0, GL_READ_ONLY, GL_RGB8)\n"
                             "glBindImageTexture(3, 0, 0, 0, 0, GL_READ_ONLY, GL_R8)\n"
                             "glEnable(GL_TEXTURE_CUBE_MAP)\n" +
                             bind + "glDisable(GL_TEXTURE_CUBE_MAP)\n" + unbind + bind + unbind +
                             bind + "glVertex2f(0, 0)\nglDeleteTextures(1, {1})\n");
}

TEST(TextureDimension, HasATarget) {
    GLenum const targets[] = {GL_INVALID_VALUE,    GL_TEXTURE_1D,    GL_TEXTURE_2D,
                              GL_TEXTURE_3D,       GL_INVALID_VALUE, GL_INVALID_VALUE,
                              GL_TEXTURE_CUBE_MAP, GL_INVALID_VALUE};
    for (unsigned long dimension = 0; dimension < std::size(targets); ++dimension) {
        GLenum const target = targets[dimension];
        EXPECT_EQ(grTextureDimToEnum(dimension), target);
        EXPECT_EQ(grTextureEnumToDim(target), target == GL_INVALID_VALUE ? 0 : dimension);
    }
}

TEST(TextureLimits, LevelsBeyondTheLimitAreReported) {
    capture_t console;
    grTexture2D texture;
    image2d_t const image;
    texture.setImage(image, 0, 191);
    texture.setImages({image}, 0, 191);
    grTextureCubeMap cube;
    cube.setImage({image, image, image, image, image, image}, 0, 31);
    EXPECT_EQ(console.err(), "");
    texture.setImage(image, 0, 192);
    texture.setImages({image, image}, 0, 191);
    cube.setImage({image, image, image, image, image, image}, 0, 32);
    std::string const report = "exceeds limit texture-images (192 images).\n";
    EXPECT_EQ(console.err(), report + report + report);
}

TEST_F(TextureObject, GluRejectsTooManyTexels) {
    for (unsigned int const height : {4096U, 4097U}) {
        image2d_t image;
        image.m_width = 8192;
        image.m_height = height;
        bool const is_accepted = height == 4096;
        // The bits of an unknown type are 0, so no bytes are needed.
        EXPECT_EQ(build_mipmaps(GL_TEXTURE_2D, {}, image), is_accepted);
        EXPECT_EQ(console.err(),
                  is_accepted ? "" : "exceeds limit glu-texels (33554432 texels).\n");
    }
}

TEST_F(TextureObject, LevelIsReadWithItsComponentType) {
    char const* const bad_size = "0 IMAGE_TYPE_FLOAT IMAGE_BITS_1 0 red size is not recognized.\n";
    // The type, size, and width in pixels of a level, and the expected results.
    std::tuple<int, int, int, std::string> const levels[] = {
        {GL_FLOAT, 32, 3, "1 IMAGE_TYPE_FLOAT IMAGE_BITS_32 96 "},
        {GL_UNSIGNED_NORMALIZED, 16, 3, "1 IMAGE_TYPE_FLOAT IMAGE_BITS_16 96 "},
        {GL_SIGNED_NORMALIZED, 12, 3, "1 IMAGE_TYPE_FLOAT IMAGE_BITS_12 96 "},
        {GL_INT, 1, 3, "1 IMAGE_TYPE_SINT IMAGE_BITS_1 96 "},
        {GL_UNSIGNED_INT, 64, 3, "1 IMAGE_TYPE_UINT IMAGE_BITS_64 192 "},
        {GL_NONE, 8, 3, "0 IMAGE_TYPE_SINT IMAGE_BITS_1 0 "},
        {GL_FLOAT, 0, 3, bad_size},
        {GL_FLOAT, 5, 3, bad_size},
        {GL_FLOAT, 8, 0,
         "0 IMAGE_TYPE_FLOAT IMAGE_BITS_8 0 "
         "grTextureObject::GetTextureImage() img allocate fail.\n"},
    };
    gl.integers[GL_TEXTURE_HEIGHT] = {2};
    images_t images;
    images.dimension = 2;
    grTextureObject object;
    object.Preload(&images);
    for (auto const& [red_type, red_bits, width, expected] : levels) {
        std::string const type = gl_enum_name(static_cast<GLenum>(red_type));
        gl.integers[GL_TEXTURE_RED_TYPE] = {red_type};
        gl.integers[GL_TEXTURE_RED_SIZE] = {red_bits};
        gl.integers[GL_TEXTURE_WIDTH] = {width};
        for (bool const is_own : {false, true}) {
            SCOPED_TRACE(type + (is_own ? " of the object" : " of the bound texture"));
            gl.integers[GL_PACK_ROW_LENGTH] = {9};
            image2d_t image;
            std::ostringstream results;
            bool const is_read = is_own ? object.GetTextureImage(1, image)
                                        : object.GetTexImage(GL_TEXTURE_2D, 1, image);
            results << is_read << ' ' << image.desc.type << ' ' << image.desc.bits << ' '
                    << image.size() << ' ' << console.err();
            EXPECT_EQ(results.str(), expected);
            if (is_read) {
                EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH][0], 0);
                EXPECT_EQ(gl.lines.back(),
                          is_own ? "glGetTextureImage(1, 1, GL_RGBA, " + type + ", " +
                                       std::to_string(image.size()) + ", ptr)"
                                 : "glGetTexImage(GL_TEXTURE_2D, 1, GL_RGBA, " + type + ", ptr)");
            }
        }
    }
    image2d_t slices;
    EXPECT_FALSE(object.GetTexImage(GL_TEXTURE_3D, 1, slices));
}

TEST_F(PixelTransfer, ParametersAreSetFromImageRecords) {
    image_store_t const store{true, 2};
    auto const set_all = [&store](auto const& set) {
        set(static_cast<image_store_t const*>(nullptr));
        set(&store);
        set(image_window1d_t{5});
        set(image_window2d_t{6, 7, 8});
        set(image_window3d_t{9, 10, 11, 12, 13});
    };
    set_all([](auto const& record) { grPixelStorePack(record); });
    std::string const pack = gl.take();
    set_all([](auto const& record) { grPixelStoreUnpack(record); });
    EXPECT_EQ(gl.take(), replace_all(pack, "PACK", "UNPACK"));
    EXPECT_EQ(replace_all(pack, "glPixelStorei(GL_PACK_", ""),
              "SWAP_BYTES, 1)\nALIGNMENT, 2)\nSKIP_PIXELS, 5)\n"
              "ROW_LENGTH, 6)\nSKIP_PIXELS, 7)\nSKIP_ROWS, 8)\n"
              "ROW_LENGTH, 9)\nIMAGE_HEIGHT, 10)\nSKIP_PIXELS, 11)\nSKIP_ROWS, 12)\n"
              "SKIP_IMAGES, 13)\n");
    gl.integers[GL_PACK_SKIP_ROWS] = {3};
    {
        pixelstore_t const parameters[] = {{GL_PACK_SKIP_ROWS, 1}, {GL_PACK_ROW_LENGTH, 0}};
        grPixelStoreKeeper const keeper(parameters);
        EXPECT_EQ(gl.integers[GL_PACK_SKIP_ROWS][0], 1);
        EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH][0], 0);
    }
    EXPECT_EQ(gl.integers[GL_PACK_SKIP_ROWS][0], 3);
    EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH][0], 9);
}

TEST_F(PixelTransfer, PaletteWithShortPlanesIsNotLoaded) {
    palette_t palette;
    palette.resize(2);
    palette.size = 3;
    grPalette().Load(palette);
    EXPECT_EQ(gl.take(), "");
}

TEST(PixelTypes, HaveSizes) {
    unsigned long size = 0;
    for (int const type :
         {0, GL_UNSIGNED_BYTE, GL_UNSIGNED_SHORT, 0, GL_FLOAT, 0, 0, 0, GL_DOUBLE, 0}) {
        EXPECT_EQ(grSizeToType(size), static_cast<GLenum>(type)) << size;
        EXPECT_EQ(grTypeToSize(static_cast<GLenum>(type)), type == 0 ? 0 : size) << size;
        ++size;
    }
}

TEST_F(PixelTransfer, BlackFrontBufferIsReadFromTheBack) {
    gl.muted.insert("glGetIntegerv");
    image_store_t const store{false, 1};
    image2d_t image;
    image.store = &store;
    gl.integers[GL_VIEWPORT] = {3, 4, 1, 4};
    gl.pixels[GL_FRONT] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 12};
    gl.pixels[GL_BACK] = {13};
    gl.muted.insert("glPixelStorei");
    EXPECT_TRUE(grReadPixelsRGB(image));
    EXPECT_EQ(image.begin()[11], 12);
    EXPECT_EQ(gl.integers[GL_PACK_ALIGNMENT], std::vector{1});
    EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH], std::vector{0});
    std::string const front =
        "glReadBuffer(GL_FRONT)\nglReadPixels(3, 4, 1, 4, GL_RGB, GL_UNSIGNED_BYTE, ptr)\n";
    EXPECT_EQ(gl.take(), front);
    gl.pixels[GL_FRONT].assign(12, 0);
    EXPECT_TRUE(grReadPixelsRGB(image));
    EXPECT_EQ(image.begin()[0], 13);
    EXPECT_EQ(gl.take(), front + replace_all(front, "FRONT", "BACK"));
    EXPECT_TRUE(grReadPixelsDepth(image));
    EXPECT_EQ(image.desc, (image_desc_t{IMAGE_FORMAT_DEPTH, IMAGE_TYPE_UINT, IMAGE_BITS_24}));
    EXPECT_EQ(image.size(), 16U);
    EXPECT_EQ(gl.take(),
              replace_all(front, "RGB, GL_UNSIGNED_BYTE", "DEPTH_COMPONENT, GL_UNSIGNED_INT"));
    image.window = {0, 3, 1};  // 3 more pixels and a row, although the row length is 1
    EXPECT_TRUE(grReadPixelsRGB(image));
    EXPECT_EQ(image.size(), 24U);
    gl.integers[GL_VIEWPORT] = {0, 0, 0, 2};
    EXPECT_FALSE(grReadPixelsRGB(image));
    EXPECT_FALSE(grReadPixelsDepth(image));
}

}  // namespace
