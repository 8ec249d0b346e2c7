// SPDX-License-Identifier: MIT
// Tests of texture objects, parameters, pixel store and read-back, on recorded calls.
#include <gtest/gtest.h>

#include <regex>

#include "gl/pixelstore.h"
#include "gl/readpixels.h"
#include "gl/texture.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

/// Images that show in the record as (0, 0) for a load and (1, 0) for a reload.
struct images_t : grTexturableImageGL {
    unsigned long dimension = 2;
    unsigned long Dimension() const override { return dimension; }
    void Load() const override { glVertex2f(0, 0); }
    void Reload() const override { glVertex2f(1, 0); }
    unsigned int GetInternalFormat() const override { return GL_RGB8; }
};

TEST(TextureObject, SharesOneNameUntilTheLastHolder) {
    { const grTextureObject never_loaded{grTextureObject()}; }  // ends with no entry point to call
    gl_recorder_t gl;
    images_t images;
    {
        grTextureObject first;
        first.Load();
        first.Reload();
        first.Unload();
        first.clear();
        EXPECT_FALSE(first.isResident());
        EXPECT_EQ(gl.take(), "");
        first.Preload(&images);
        images.dimension = 6;
        first.Preload(&images);
        const grTextureObject second(first);
        second.Reload();
        EXPECT_TRUE(second.isResident() && second.isPreload() && second.Dimension() == 6);
        second.BindImage(3, 1, GL_READ_ONLY);
        second.UnbindImage(3);
        EXPECT_EQ(gl.take(),
                  "glGenTextures(1, ptr)\nglBindTexture(GL_TEXTURE_2D, 1)\nglVertex2f(0, 0)\n"
                  "glBindTexture(GL_TEXTURE_CUBE_MAP, 1)\nglVertex2f(0, 0)\n"
                  "glBindTexture(GL_TEXTURE_CUBE_MAP, 1)\nglVertex2f(1, 0)\n"
                  "glAreTexturesResidentEXT(1, {1}, ptr)\n"
                  "glBindImageTexture(3, 1, 1, 0, 0, GL_READ_ONLY, GL_RGB8)\n"
                  "glBindImageTexture(3, 0, 0, 0, 0, GL_READ_ONLY, GL_R8)\n");
        first.clear();
        EXPECT_TRUE(!first.isPreload() && first.Dimension() == 0);
        for (const bool modern : {false, true}) {
            const gl_flag_t flag(is_GL_VERSION_3_0_supported, modern);
            second.Load();
            second.Unload();
            const std::string bind = "glBindTexture(GL_TEXTURE_CUBE_MAP, ";
            EXPECT_EQ(gl.take(), (modern ? "" : "glEnable(GL_TEXTURE_CUBE_MAP)\n") + bind + "1)\n" +
                                     (modern ? "" : "glDisable(GL_TEXTURE_CUBE_MAP)\n") + bind +
                                     "0)\n");
        }
    }
    EXPECT_EQ(gl.take(), "glDeleteTextures(1, {1})\n");
    for (unsigned long dim = 0; dim < 9; ++dim) {
        const bool known = dim == 1 || dim == 2 || dim == 3 || dim == 6;
        EXPECT_EQ(grTextureEnumToDim(grTextureDimToEnum(dim)), known ? dim : 0);
        EXPECT_EQ(grTextureDimToEnum(dim) == GL_INVALID_VALUE, !known);
    }
}

TEST(TextureParameters, SetAnisotropyByTheirOwnRules) {
    gl_recorder_t gl;
    grTexParameter(static_cast<texparameter2d_t*>(nullptr));
    grTexParameter(GL_TEXTURE_2D, nullptr);
    const auto two = texparameter2d(GL_LINEAR, GL_NEAREST, GL_CLAMP, GL_REPEAT, 2);
    const auto cube = texparametercubemap(GL_NEAREST, GL_LINEAR, 4);
    const auto three = texparameter3d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_REPEAT, GL_CLAMP, 8);
    for (const bool on : {false, true}) {
        const gl_flag_t flag(is_GL_EXT_texture_filter_anisotropic_supported, on);
        grTexParameter(&two);
        grTexParameter(&cube);
        grTexParameter(&three);
        const std::regex frame("glTexParameter[fi]\\(GL_TEXTURE_|GL_TEXTURE_|\\)");
        EXPECT_EQ(std::regex_replace(gl.take(), frame, ""),
                  "2D, MIN_FILTER, GL_LINEAR\n2D, MAG_FILTER, GL_NEAREST\n"
                  "2D, WRAP_S, GL_CLAMP\n2D, WRAP_T, GL_REPEAT\n2D, MAX_ANISOTROPY_EXT, 2\n"
                  "CUBE_MAP, MIN_FILTER, GL_NEAREST\nCUBE_MAP, MAG_FILTER, GL_LINEAR\n" +
                      std::string(on ? "CUBE_MAP, MAX_ANISOTROPY_EXT, 4\n" : "") +
                      "3D, MIN_FILTER, GL_NEAREST\n3D, MAG_FILTER, GL_LINEAR\n"
                      "3D, WRAP_S, GL_CLAMP\n3D, WRAP_T, GL_REPEAT\n3D, WRAP_R, GL_CLAMP\n" +
                      (on ? "3D, MAX_ANISOTROPY_EXT, 8\n" : ""));
    }
}

TEST(TextureReadBack, DescribesWhatTheLevelHolds) {
    const std::string size = "red size is not recognized.\n";
    const std::string memory = "grTextureObject::GetTextureImage() img allocate fail.\n";
    const struct {
        GLint redtype, redsize, width;
        std::string message;
        int type = -1, bits = -1;
    } rows[] = {
        {GL_FLOAT, 32, 3, "", IMAGE_TYPE_FLOAT, IMAGE_BITS_32},
        {GL_FLOAT, 16, 3, "", IMAGE_TYPE_FLOAT, IMAGE_BITS_16},
        {GL_INT, 8, 3, "", IMAGE_TYPE_SINT, IMAGE_BITS_8},
        {GL_UNSIGNED_INT, 64, 3, "", IMAGE_TYPE_UINT, IMAGE_BITS_64},
        {GL_SIGNED_NORMALIZED, 12, 3, "", IMAGE_TYPE_FLOAT, IMAGE_BITS_12},
        {GL_NONE, 8, 3, ""},
        {GL_FLOAT, 0, 3, size},
        {GL_FLOAT, 5, 3, size},
        {GL_FLOAT, 8, 0, memory},
    };
    gl_recorder_t gl;
    gl.integers[GL_TEXTURE_HEIGHT] = {2};
    const images_t images;
    grTextureObject object;
    object.Preload(&images);
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.redtype << " of " << row.redsize);
        gl.integers[GL_TEXTURE_WIDTH] = {row.width};
        gl.integers[GL_TEXTURE_RED_TYPE] = {row.redtype};
        gl.integers[GL_TEXTURE_RED_SIZE] = {row.redsize};
        const bool good = row.type >= 0;
        for (const bool own : {false, true}) {
            image2d_t image;
            capture_t console;
            EXPECT_EQ(own ? object.GetTextureImage(1, image)
                          : object.GetTexImage(GL_TEXTURE_2D, 1, image),
                      good);
            EXPECT_EQ(console.err(), row.message);
            EXPECT_EQ(gl.take().find("Image(") != std::string::npos, good);
            if (good) {
                EXPECT_TRUE(int(image.desc.type) == row.type && int(image.desc.bits) == row.bits);
                EXPECT_GE(image.size(), 3U * 2 * 16);  // what OpenGL writes, whatever the bits
            }
        }
    }
}

TEST(PixelStore, TellsEveryFieldInOrder) {
    gl_recorder_t gl;
    const image_store_t store{true, 2};
    for (const std::string way : {"UNPACK", "PACK"}) {
        const auto tell = [&way](const auto& record) {
            way == "PACK" ? grPixelStorePack(record) : grPixelStoreUnpack(record);
        };
        tell(static_cast<const image_store_t*>(nullptr));
        tell(&store);
        tell(image_window1d_t{5});
        tell(image_window2d_t{6, 7, 8});
        tell(image_window3d_t{9, 10, 11, 12, 13});
        std::string expected;
        for (const char* parameter :
             {"SWAP_BYTES, 1", "ALIGNMENT, 2", "SKIP_PIXELS, 5", "ROW_LENGTH, 6", "SKIP_PIXELS, 7",
              "SKIP_ROWS, 8", "ROW_LENGTH, 9", "IMAGE_HEIGHT, 10", "SKIP_PIXELS, 11",
              "SKIP_ROWS, 12", "SKIP_IMAGES, 13"}) {
            expected += "glPixelStorei(GL_" + way + "_" + parameter + ")\n";
        }
        EXPECT_EQ(gl.take(), expected);
    }
    EXPECT_EQ(grFormatToComponents(GL_LUMINANCE_ALPHA) + grFormatToComponents(GL_BGRA), 6U);
    EXPECT_EQ(grFormatToComponents(GL_STENCIL_INDEX) + grTypeToSize(GL_3_BYTES), 0U);
    for (const GLenum type : {GLenum{GL_UNSIGNED_BYTE}, GLenum{GL_UNSIGNED_SHORT}, GLenum{GL_FLOAT},
                              GLenum{GL_DOUBLE}}) {
        EXPECT_EQ(grSizeToType(grTypeToSize(type)), type);
    }
    EXPECT_EQ(grSizeToType(0) + grSizeToType(3) + grSizeToType(9), 0U);
}

TEST(ReadPixels, ReadsFrontAndLooksBehindABlackOne) {
    gl_recorder_t gl;
    gl.integers[GL_VIEWPORT] = {3, 4, 2, 2};
    gl.pixels[GL_FRONT] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    gl.pixels[GL_BACK] = {13};
    const image_store_t store{false, 1};
    image2d_t image;
    image.store = &store;
    const std::string setup =
        "glGetIntegerv(GL_VIEWPORT, ptr)\nglPixelStorei(GL_PACK_SWAP_BYTES, 0)\n"
        "glPixelStorei(GL_PACK_ALIGNMENT, 1)\nglPixelStorei(GL_PACK_ROW_LENGTH, 0)\n"
        "glPixelStorei(GL_PACK_SKIP_PIXELS, 0)\nglPixelStorei(GL_PACK_SKIP_ROWS, 0)\n"
        "glReadBuffer(GL_FRONT)\nglReadPixels(3, 4, 2, 2, ";
    const std::string rgb = "GL_RGB, GL_UNSIGNED_BYTE, ptr)\n";
    ASSERT_TRUE(grReadPixelsRGB(image));
    EXPECT_EQ(gl.take(), setup + rgb);
    EXPECT_EQ(std::vector(image.begin(), image.end()), gl.pixels[GL_FRONT]);
    gl.pixels[GL_FRONT].assign(12, 0);
    ASSERT_TRUE(grReadPixelsRGB(image));
    EXPECT_EQ(gl.take(), setup + rgb + "glReadBuffer(GL_BACK)\nglReadPixels(3, 4, 2, 2, " + rgb);
    EXPECT_EQ(image.begin()[0], 13);
    ASSERT_TRUE(grReadPixelsDepth(image));
    EXPECT_EQ(gl.take(), setup + "GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, ptr)\n");
    EXPECT_GE(image.size(), 16U);
    image.window = {0, 3, 1};  // behind three pixels and a row, which no row length makes room for
    ASSERT_TRUE(grReadPixelsRGB(image));
    EXPECT_GE(image.size(), 1U * 6 + (3 + 2) * 3 + 6);
    gl.integers[GL_VIEWPORT] = {0, 0, 0, 2};
    image.window = {};
    EXPECT_FALSE(grReadPixelsRGB(image));
}

}  // namespace
