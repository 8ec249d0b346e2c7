// SPDX-License-Identifier: MIT
// Tests of texture objects, pixel store and read-back, on recorded calls.
#include "gl/glumipmaps.h"
#include "gl/pixelstore.h"
#include "gl/readpixels.h"
#include "gl/texture.h"
#include "gl/texture2d.h"
#include "tests/gl/recordedtest.h"

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

using TextureObject = recorded_test;

TEST_F(TextureObject, CopiesOfATextureShareOneNameUntilTheLast) {
    images_t images;
    grTextureObject first;
    first.Load();
    first.Reload();
    first.Unload();
    first.clear();
    note("never loaded; resident:", first.isResident());
    for (unsigned long const dimension : {0UL, 1UL, 2UL, 3UL, 4UL, 5UL, 7UL, 6UL}) {
        images.dimension = dimension;
        first.Preload(&images);
        note("dimension", dimension, "is", first.Dimension());
    }
    grTextureObject second(first);
    first.clear();
    note("cleared; loaded:", first.isPreload(), first.Dimension());
    second.Reload();
    note("resident, loaded:", second.isResident(), second.isPreload(), second.Dimension());
    second.BindImage(3, 1, GL_READ_ONLY);
    second.UnbindImage(3);
    for (bool const modern : {false, true}) {
        const gl_flag_t flag(is_GL_VERSION_3_0_supported, modern);
        second.Load();
        second.Unload();
        note("OpenGL 3.0:", modern);
    }
    second.clear();
    note("cleared");
}

TEST_F(TextureObject, SizesBeyondTheLimitsAreReported) {
    grTexture2D texture;
    texture.setImages(std::vector<image2d_t>(1), 0, 192);
    image2d_t image;
    image.m_width = image.m_height = 8192;
    note("built:", build_mipmaps(GL_TEXTURE_2D, {}, image));
}

TEST_F(TextureObject, ReadBackDescribesWhatTheLevelHolds) {
    gl.integers[GL_TEXTURE_HEIGHT] = {2};
    const images_t images;
    grTextureObject object;
    object.Preload(&images);
    // Type and size of red, width.
    const GLint rows[][3] = {{GL_FLOAT, 32, 3},
                             {GL_FLOAT, 16, 3},
                             {GL_INT, 8, 3},
                             {GL_UNSIGNED_INT, 64, 3},
                             {GL_SIGNED_NORMALIZED, 12, 3},
                             {GL_NONE, 8, 3},
                             {GL_FLOAT, 0, 3},
                             {GL_FLOAT, 5, 3},
                             {GL_FLOAT, 8, 0}};
    for (auto const& [type, bits, width] : rows) {
        gl.integers[GL_TEXTURE_RED_TYPE] = {type};
        gl.integers[GL_TEXTURE_RED_SIZE] = {bits};
        gl.integers[GL_TEXTURE_WIDTH] = {width};
        for (bool const own : {false, true}) {
            image2d_t image;
            bool const good = own ? object.GetTextureImage(1, image)
                                  : object.GetTexImage(GL_TEXTURE_2D, 1, image);
            note(gl_enum_name(static_cast<GLenum>(type)), bits, width, "read:", good,
                 image.desc.type, image.desc.bits, image.size());
        }
    }
    image2d_t slices;
    note("slices read:", object.GetTexImage(GL_TEXTURE_3D, 1, slices));
}

TEST_F(TextureObject, PixelStoreTellsEveryField) {
    const image_store_t store{true, 2};
    auto const tell_all = [&store](auto const& tell) {
        tell(static_cast<const image_store_t*>(nullptr));
        tell(&store);
        tell(image_window1d_t{5});
        tell(image_window2d_t{6, 7, 8});
        tell(image_window3d_t{9, 10, 11, 12, 13});
    };
    tell_all([](auto const& record) { grPixelStoreUnpack(record); });
    tell_all([](auto const& record) { grPixelStorePack(record); });
    for (const GLenum format :
         {GLenum{GL_LUMINANCE_ALPHA}, GLenum{GL_BGRA}, GLenum{GL_STENCIL_INDEX}}) {
        note(gl_enum_name(format), grFormatToComponents(format));
    }
    for (const GLenum type : {GLenum{GL_UNSIGNED_BYTE}, GLenum{GL_UNSIGNED_SHORT}, GLenum{GL_FLOAT},
                              GLenum{GL_DOUBLE}, GLenum{GL_3_BYTES}}) {
        unsigned long const size = grTypeToSize(type);
        note(gl_enum_name(type), size, gl_enum_name(grSizeToType(size)));
    }
    note(grSizeToType(3), grSizeToType(9));
}

TEST_F(TextureObject, ReadPixelsLooksBehindABlackFront) {
    const image_store_t store{false, 1};
    image2d_t image;
    image.store = &store;
    auto const read = [this, &image](char const* what, auto const& how) {
        const bool good = how(image);
        const std::vector<int> bytes(image.begin(), image.begin() + std::min(image.size(), 12UL));
        note(what, good, image.size(), testing::PrintToString(bytes));
    };
    gl.integers[GL_VIEWPORT] = {3, 4, 1, 4};
    gl.pixels[GL_FRONT] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    gl.pixels[GL_BACK] = {13};
    read("as shown", grReadPixelsRGB);
    gl.pixels[GL_FRONT].assign(12, 0);
    read("black", grReadPixelsRGB);
    read("depth", grReadPixelsDepth);
    image.window = {0, 3, 1};  // behind three pixels and a row, which no row length makes room for
    read("window", grReadPixelsRGB);
    gl.integers[GL_VIEWPORT] = {0, 0, 0, 2};
    image.window = {};
    read("empty", grReadPixelsRGB);
}

}  // namespace
