// SPDX-License-Identifier: MIT
// Tests of texture objects, pixel store parameters and read-back, on recorded calls.
#include <algorithm>

#include "gl/glumipmaps.h"
#include "gl/palette.h"
#include "gl/pixelstore.h"
#include "gl/readpixels.h"
#include "gl/texture2d.h"
#include "gl/texturecubemap.h"
#include "tests/gl/recordedtest.h"

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

using TextureObject = recorded_test;
using PixelTransfer = recorded_test;

TEST_F(TextureObject, CopiesShareOneName) {
    images_t const images;
    grTextureObject first;
    first.Load();
    first.Reload();
    first.Unload();
    first.clear();
    note("before Preload, resident:", first.isResident());
    first.Preload(&images);
    grTextureObject second(first);
    first.clear();
    note("cleared, loaded:", first.isPreload(), first.Dimension());
    second.Reload();
    note("copy, loaded:", second.isPreload(), second.Dimension(), second.isResident());
    second.BindImage(3, 1, GL_READ_ONLY);
    second.UnbindImage(3);
    for (bool const modern : {false, true}) {
        gl_flag_t const flag(is_GL_VERSION_3_0_supported, modern);
        second.Load();
        second.Unload();
        note("OpenGL 3.0:", modern);
    }
    second.Preload(&images);
    second.clear();
    note("last copy cleared");
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
    std::string const report = "exceeds limit texture-images (192 images).\n";
    texture.setImage(image, 0, 192);
    EXPECT_EQ(console.err(), report);
    texture.setImages({image}, 0, 192);
    EXPECT_EQ(console.err(), report);
    texture.setImages({image, image}, 0, 191);
    EXPECT_EQ(console.err(), report);
    cube.setImage({image, image, image, image, image, image}, 0, 32);
    EXPECT_EQ(console.err(), report);
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
    gl.take();
}

TEST_F(TextureObject, LevelIsReadWithItsComponentType) {
    struct level_t {
        int red_type, red_bits, width;
        char const* error;
        e_image_type_t type;
        e_image_bits_t bits;
        std::size_t bytes;
    };
    char const* const bad_size = "red size is not recognized.\n";
    char const* const no_pixels = "grTextureObject::GetTextureImage() img allocate fail.\n";
    level_t const levels[] = {
        {GL_FLOAT, 32, 3, nullptr, IMAGE_TYPE_FLOAT, IMAGE_BITS_32, 96},
        {GL_UNSIGNED_NORMALIZED, 16, 3, nullptr, IMAGE_TYPE_FLOAT, IMAGE_BITS_16, 96},
        {GL_SIGNED_NORMALIZED, 12, 3, nullptr, IMAGE_TYPE_FLOAT, IMAGE_BITS_12, 96},
        {GL_INT, 1, 3, nullptr, IMAGE_TYPE_SINT, IMAGE_BITS_1, 96},
        {GL_UNSIGNED_INT, 64, 3, nullptr, IMAGE_TYPE_UINT, IMAGE_BITS_64, 192},
        {GL_NONE, 8, 3, "", IMAGE_TYPE_SINT, IMAGE_BITS_1, 0},
        {GL_FLOAT, 0, 3, bad_size, IMAGE_TYPE_FLOAT, IMAGE_BITS_1, 0},
        {GL_FLOAT, 5, 3, bad_size, IMAGE_TYPE_FLOAT, IMAGE_BITS_1, 0},
        {GL_FLOAT, 8, 0, no_pixels, IMAGE_TYPE_FLOAT, IMAGE_BITS_8, 0},
    };
    gl.integers[GL_TEXTURE_HEIGHT] = {2};
    images_t images;
    images.dimension = 2;
    grTextureObject object;
    object.Preload(&images);
    for (level_t const& level : levels) {
        std::string const type = gl_enum_name(static_cast<GLenum>(level.red_type));
        gl.integers[GL_TEXTURE_RED_TYPE] = {level.red_type};
        gl.integers[GL_TEXTURE_RED_SIZE] = {level.red_bits};
        gl.integers[GL_TEXTURE_WIDTH] = {level.width};
        for (bool const is_own : {false, true}) {
            SCOPED_TRACE(type + (is_own ? " of the object" : " of the bound texture"));
            gl.integers[GL_PACK_ROW_LENGTH] = {9};
            gl.take();
            image2d_t image;
            EXPECT_EQ(is_own ? object.GetTextureImage(1, image)
                             : object.GetTexImage(GL_TEXTURE_2D, 1, image),
                      level.error == nullptr);
            EXPECT_EQ(image.desc.type, level.type);
            EXPECT_EQ(image.desc.bits, level.bits);
            EXPECT_EQ(image.size(), level.bytes);
            EXPECT_EQ(console.err(), level.error != nullptr ? level.error : "");
            if (level.error == nullptr) {
                EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH][0], 0);
                EXPECT_EQ(gl.lines.back(),
                          is_own ? "glGetTextureImage(1, 1, GL_RGBA, " + type + ", " +
                                       std::to_string(level.bytes) + ", ptr)"
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
    EXPECT_EQ(pack,
              "glPixelStorei(GL_PACK_SWAP_BYTES, 1)\n"
              "glPixelStorei(GL_PACK_ALIGNMENT, 2)\n"
              "glPixelStorei(GL_PACK_SKIP_PIXELS, 5)\n"
              "glPixelStorei(GL_PACK_ROW_LENGTH, 6)\n"
              "glPixelStorei(GL_PACK_SKIP_PIXELS, 7)\n"
              "glPixelStorei(GL_PACK_SKIP_ROWS, 8)\n"
              "glPixelStorei(GL_PACK_ROW_LENGTH, 9)\n"
              "glPixelStorei(GL_PACK_IMAGE_HEIGHT, 10)\n"
              "glPixelStorei(GL_PACK_SKIP_PIXELS, 11)\n"
              "glPixelStorei(GL_PACK_SKIP_ROWS, 12)\n"
              "glPixelStorei(GL_PACK_SKIP_IMAGES, 13)\n");
    gl.integers[GL_PACK_SKIP_ROWS] = {3};
    {
        pixelstore_t const parameters[] = {{GL_PACK_SKIP_ROWS, 1}, {GL_PACK_ROW_LENGTH, 0}};
        grPixelStoreKeeper const keeper(parameters);
        EXPECT_EQ(gl.integers[GL_PACK_SKIP_ROWS][0], 1);
        EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH][0], 0);
    }
    EXPECT_EQ(gl.integers[GL_PACK_SKIP_ROWS][0], 3);
    EXPECT_EQ(gl.integers[GL_PACK_ROW_LENGTH][0], 9);
    gl.take();
}

TEST_F(PixelTransfer, PaletteWithShortPlanesIsNotLoaded) {
    palette_t palette;
    palette.resize(2);
    palette.size = 3;
    grPalette().Load(palette);
    EXPECT_EQ(gl.take(), "");
}

TEST_F(PixelTransfer, FormatsAndTypesHaveSizes) {
    EXPECT_EQ(grFormatToComponents(GL_LUMINANCE_ALPHA), 2U);
    EXPECT_EQ(grFormatToComponents(GL_BGRA), 4U);
    EXPECT_EQ(grFormatToComponents(GL_STENCIL_INDEX), 0U);
    EXPECT_EQ(grTypeToSize(GL_3_BYTES), 0U);
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
    bool is_read = grReadPixelsRGB(image);
    note("front:", is_read, int{image.begin()[11]}, image.desc.format, image.desc.bits);
    gl.muted.insert("glPixelStorei");
    gl.pixels[GL_FRONT].assign(12, 0);
    is_read = grReadPixelsRGB(image);
    note("black front:", is_read, int{image.begin()[0]});
    is_read = grReadPixelsDepth(image);
    note("depth:", is_read, image.desc.format, image.desc.bits, image.size());
    image.window = {0, 3, 1};  // 3 more pixels and a row, although the row length is 1
    is_read = grReadPixelsRGB(image);
    note("window:", is_read, image.size());
    gl.integers[GL_VIEWPORT] = {0, 0, 0, 2};
    note("empty viewport:", grReadPixelsRGB(image), grReadPixelsDepth(image));
}

}  // namespace
