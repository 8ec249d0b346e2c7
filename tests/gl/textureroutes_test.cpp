// SPDX-License-Identifier: MIT
// Tests of the calls that the texture classes make on each route, in a GL that only listens.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "gl/texture1d.h"
#include "gl/texture2d.h"
#include "gl/texture3d.h"
#include "gl/texturecubemap.h"
#include "gl/texturerectangle.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

constexpr image_desc_t RGB{IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8};
constexpr image_desc_t GRAY{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8};
constexpr image_desc_t GRAY4{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_4};
constexpr image_desc_t ALPHA{IMAGE_FORMAT_ALPHA, IMAGE_TYPE_UINT, IMAGE_BITS_8};
constexpr image_desc_t INDEX{IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_8};
constexpr image_desc_t RG{IMAGE_FORMAT_RG, IMAGE_TYPE_UINT, IMAGE_BITS_8};

constexpr image_store_t s_store{false, 4};
constexpr color3a_t s_color{1, 0, 0.5F, 1};
constexpr auto s_parameter1d = texparameter1d(GL_NEAREST, GL_LINEAR, GL_REPEAT);
constexpr auto s_parameter2d = texparameter2d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_REPEAT, 1);
constexpr auto s_parameter3d =
    texparameter3d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_CLAMP, GL_REPEAT, 1);
constexpr auto s_parametercubemap = texparametercubemap(GL_NEAREST, GL_LINEAR, 1);

enum bytes_t { whole, compressed, cut_short, never_set };

/// One level: description, sides in pixels, and what its bytes are.
struct level_t {
    image_desc_t desc;
    unsigned int side[3];
    bytes_t bytes = whole;
};

void set_sides(image1d_t& image, unsigned int const (&side)[3]) {
    image.m_width = side[0];
}
void set_sides(image2d_t& image, unsigned int const (&side)[3]) {
    image.m_width = side[0];
    image.m_height = side[1];
}
void set_sides(image3d_t& image, unsigned int const (&side)[3]) {
    image.m_width = side[0];
    image.m_height = side[1];
    image.m_depth = side[2];
}

/// The record of a level, with rows of a multiple of 4 bytes; calls show its bytes as "L<n>".
template <typename image_t>
image_t make_image(level_t const& level, gl_recorder_t& gl, std::size_t n = 0) {
    image_t image;
    if (level.bytes == never_set) {
        return image;
    }
    image.desc = level.desc;
    image.store = &s_store;
    set_sides(image, level.side);
    image.compressed = level.bytes == compressed;
    unsigned long const bytes = row_stride(level.side[0], level.desc.getPixelBits(), &s_store) *
                                level.side[1] * level.side[2];
    image.resize(level.bytes == cut_short ? bytes - 1 : bytes, 0);
    gl.name_region(image.begin(), image.size(), "L" + std::to_string(n));
    if (level.desc.format == IMAGE_FORMAT_INDEX && level.side[0] == 4) {
        image.palette.resize(2);
    }
    return image;
}

struct row_t {
    char const* name;
    char texture;              ///< 1, 2, 3, C for the cube map, R for the rectangle
    std::string_view context;  ///< 3: OpenGL 3.0, s: SGIS_generate_mipmap, c: texture compression
    std::string_view options;  ///< m: mipmaps, b: border, i: compression, p: parameters, k: colour
    unsigned int size;
    std::vector<level_t> levels;
    std::string load;
    std::string reload = "as load";
    std::string errors = {};
};

/// The line for each of the six faces; "FACE" is the target, "L*" the face's bytes.
std::string six(std::string_view lines) {
    std::string text;
    for (int face = 0; face < 6; ++face) {
        std::string target = "TEXTURE_CUBE_MAP_POSITIVE_";
        target = (face % 2 == 0 ? target : "TEXTURE_CUBE_MAP_NEGATIVE_") + "XYZ"[face / 2];
        std::string one(lines);
        for (auto at = one.find("FACE"); at != std::string::npos; at = one.find("FACE")) {
            one.replace(at, 4, target);
        }
        if (auto const at = one.find("L*"); at != std::string::npos) {
            one.replace(at + 1, 1, std::to_string(face));
        }
        text += one;
    }
    return text;
}

/// What was recorded, without "GL_".
std::string taken(gl_recorder_t& gl) {
    std::string text = gl.take();
    for (auto at = text.find("GL_"); at != std::string::npos; at = text.find("GL_", at)) {
        text.erase(at, 3);
    }
    return text;
}

void check(grTexturableImageGL const& texture, row_t const& row, gl_recorder_t& gl) {
    capture_t capture;
    texture.Load();
    EXPECT_EQ(row.load, taken(gl)) << row.name;
    EXPECT_EQ(row.errors, capture.err()) << row.name;
    texture.Reload();
    EXPECT_EQ(row.reload == "as load" ? row.load : row.reload, taken(gl)) << row.name << ", again";
    EXPECT_EQ(row.errors, capture.err()) << row.name << ", again";
}

bool has(std::string_view letters, char letter) {
    return letters.find(letter) != std::string_view::npos;
}

template <typename texture_t, typename parameter_t>
void set_options(texture_t& texture, row_t const& row, parameter_t const& parameter) {
    texture.setBuildMipmap(has(row.options, 'm'));
    texture.setBorder(has(row.options, 'b'));
    texture.setInternalCompression(has(row.options, 'i'));
    texture.setTextureParameter(has(row.options, 'p') ? &parameter : nullptr);
    texture.setBorderColor(has(row.options, 'k') ? &s_color : nullptr);
}

template <typename texture_t, typename image_t, typename parameter_t>
void run(row_t const& row, gl_recorder_t& gl, parameter_t const& parameter) {
    texture_t texture;
    std::vector<image_t> images;
    for (level_t const& level : row.levels) {
        images.push_back(make_image<image_t>(level, gl, images.size()));
    }
    texture.setImages(images, row.size, 0);
    set_options(texture, row, parameter);
    check(texture, row, gl);
}

void run_cube_map(row_t const& row, gl_recorder_t& gl) {
    grTextureCubeMap texture;
    std::vector<image2d_t[6]> images(row.levels.size());
    for (std::size_t i = 0; i < 6 * row.levels.size(); ++i) {
        images[i / 6][i % 6] = make_image<image2d_t>(row.levels[i / 6], gl, i);
    }
    texture.setImages(images, row.size, 0);
    set_options(texture, row, s_parametercubemap);
    check(texture, row, gl);
}

void run_rectangle(row_t const& row, gl_recorder_t& gl) {
    grTextureRectangle texture;
    texture.setImage(make_image<image2d_t>(row.levels[0], gl));
    texture.setTextureParameter(&s_parameter2d);
    check(texture, row, gl);
}

std::string const s_fallback =
    "Compressed 'special format' image is ablen't to build mipmaps, fallback.\n";
std::string const s_skip =
    "error, ARB_texture_compression unsupported when compressed image loading, skip.\n";
std::string refused(std::string const& format, std::string const& bits) {
    return "Not supported image format!\nimgformat: IMAGE_FORMAT_" + format +
           "\nimgtype: IMAGE_TYPE_UINT\nimgbits: IMAGE_BITS_" + bits + "\n";
}

std::string const s_generate = "glGenerateMipmap(TEXTURE_2D)\n";
std::string const s_color2d =
    "glTexParameterfv(TEXTURE_2D, TEXTURE_BORDER_COLOR, {1, 0, 0.5, 1})\n";
std::string const s_colorcubemap =
    "glTexParameterfv(TEXTURE_CUBE_MAP, TEXTURE_BORDER_COLOR, {1, 0, 0.5, 1})\n";
std::string const s_filters2d =
    "glTexParameteri(TEXTURE_2D, TEXTURE_MIN_FILTER, NEAREST)\n"
    "glTexParameteri(TEXTURE_2D, TEXTURE_MAG_FILTER, LINEAR)\n"
    "glTexParameteri(TEXTURE_2D, TEXTURE_WRAP_S, CLAMP)\n"
    "glTexParameteri(TEXTURE_2D, TEXTURE_WRAP_T, REPEAT)\n"
    "glTexParameterf(TEXTURE_2D, TEXTURE_MAX_ANISOTROPY_EXT, 1)\n";
std::string const s_filterscubemap =
    "glTexParameteri(TEXTURE_CUBE_MAP, TEXTURE_MIN_FILTER, NEAREST)\n"
    "glTexParameteri(TEXTURE_CUBE_MAP, TEXTURE_MAG_FILTER, LINEAR)\n";
std::string sgis(std::string const& target, std::string const& lines) {
    return "glTexParameteri(" + target + ", GENERATE_MIPMAP_SGIS, 1)\n" + lines +
           "glTexParameteri(" + target + ", GENERATE_MIPMAP_SGIS, 0)\n";
}

std::vector<row_t> const s_rows = {
    {"no images", '2', "3s", "mpk", 0, {}, ""},
    {"OpenGL 3.0 comes first",
     '2',
     "3s",
     "mp",
     0,
     {{RGB, {4, 2, 1}}},
     "glTexImage2D(TEXTURE_2D, 0, RGB8, 4, 2, 0, RGB, UNSIGNED_BYTE, L0)\n" + s_generate +
         s_filters2d,
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, UNSIGNED_BYTE, L0)\n" + s_generate +
         s_filters2d},
    {"in the corner of a square",
     '2',
     "3",
     "mk",
     256,
     {{RGB, {300, 200, 1}}},
     "glTexImage2D(TEXTURE_2D, 0, RGB8, 512, 512, 0, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 300, 200, RGB, UNSIGNED_BYTE, L0)\n" +
         s_generate,
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 300, 200, RGB, UNSIGNED_BYTE, L0)\n" + s_generate},
    {"SGIS comes next",
     '2',
     "s",
     "m",
     0,
     {{RGB, {4, 2, 1}}},
     sgis("TEXTURE_2D", "glTexImage2D(TEXTURE_2D, 0, RGB8, 4, 2, 0, RGB, UNSIGNED_BYTE, L0)\n"),
     sgis("TEXTURE_2D", "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, UNSIGNED_BYTE, L0)\n")},
    {"SGIS knows no gray",
     '2',
     "s",
     "m",
     0,
     {{GRAY, {4, 2, 1}}},
     "gluBuild2DMipmaps(TEXTURE_2D, LUMINANCE8, 4, 2, LUMINANCE, UNSIGNED_BYTE, L0)\n"},
    {"GLU looks at neither size nor border",
     '2',
     "",
     "mbk",
     256,
     {{RGB, {4, 2, 1}}},
     "gluBuild2DMipmaps(TEXTURE_2D, RGB8, 4, 2, RGB, UNSIGNED_BYTE, L0)\n" + s_color2d},
    {"levels as given",
     '2',
     "3",
     "b",
     0,
     {{RGB, {4, 2, 1}}, {RGB, {2, 1, 1}}},
     "glTexImage2D(TEXTURE_2D, 0, RGB8, 4, 2, 1, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexImage2D(TEXTURE_2D, 1, RGB8, 2, 1, 0, RGB, UNSIGNED_BYTE, L1)\n",
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexSubImage2D(TEXTURE_2D, 1, 0, 0, 2, 1, RGB, UNSIGNED_BYTE, L1)\n"},
    {"squares without mipmaps have a border's texels",
     '2',
     "3",
     "b",
     3,
     {{RGB, {3, 1, 1}}, {RGB, {1, 1, 1}}, {RGB, {1, 1, 1}}},
     "glTexImage2D(TEXTURE_2D, 0, RGB8, 2, 2, 1, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 3, 1, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexImage2D(TEXTURE_2D, 1, RGB8, 2, 2, 0, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage2D(TEXTURE_2D, 1, 0, 0, 1, 1, RGB, UNSIGNED_BYTE, L1)\n"
     "glTexImage2D(TEXTURE_2D, 2, RGB8, 0, 0, 0, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage2D(TEXTURE_2D, 2, 0, 0, 1, 1, RGB, UNSIGNED_BYTE, L2)\n",
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 3, 1, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexSubImage2D(TEXTURE_2D, 1, 0, 0, 1, 1, RGB, UNSIGNED_BYTE, L1)\n"
     "glTexSubImage2D(TEXTURE_2D, 2, 0, 0, 1, 1, RGB, UNSIGNED_BYTE, L2)\n"},
    {"upper levels override, squares without the border",
     '2',
     "3",
     "mb",
     258,
     {{RGB, {4, 2, 1}}, {RGB, {2, 1, 1}}},
     "glTexImage2D(TEXTURE_2D, 0, RGB8, 258, 258, 1, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, UNSIGNED_BYTE, L0)\n" +
         s_generate +
         "glTexImage2D(TEXTURE_2D, 1, RGB8, 512, 512, 0, RGB, UNSIGNED_BYTE, null)\n"
         "glTexSubImage2D(TEXTURE_2D, 1, 0, 0, 2, 1, RGB, UNSIGNED_BYTE, L1)\n",
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, UNSIGNED_BYTE, L0)\n" + s_generate +
         "glTexSubImage2D(TEXTURE_2D, 1, 0, 0, 2, 1, RGB, UNSIGNED_BYTE, L1)\n"},
    {"compressed bytes go up as they are",
     '2',
     "3c",
     "mb",
     0,
     {{RGB, {4, 2, 1}, compressed}, {RGB, {2, 1, 1}, compressed}},
     "glCompressedTexImage2DARB(TEXTURE_2D, 0, RGB8, 4, 2, 1, 24, L0)\n" + s_generate +
         "glCompressedTexImage2DARB(TEXTURE_2D, 1, RGB8, 2, 1, 1, 8, L1)\n",
     "glCompressedTexSubImage2DARB(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, 24, L0)\n" + s_generate +
         "glCompressedTexSubImage2DARB(TEXTURE_2D, 1, 0, 0, 2, 1, RGB, 8, L1)\n"},
    {"GLU takes no compressed image",
     '2',
     "c",
     "m",
     0,
     {{RGB, {4, 2, 1}, compressed}},
     "glCompressedTexImage2DARB(TEXTURE_2D, 0, RGB8, 4, 2, 0, 24, L0)\n",
     "glCompressedTexSubImage2DARB(TEXTURE_2D, 0, 0, 0, 4, 2, RGB, 24, L0)\n",
     s_fallback},
    {"no compression, no GLU",
     '2',
     "",
     "m",
     0,
     {{RGB, {4, 2, 1}, compressed}},
     "",
     "as load",
     s_fallback + s_skip},
    {"no compression",
     '2',
     "3",
     "",
     0,
     {{RGB, {4, 2, 1}, compressed}, {RGB, {2, 1, 1}}},
     "glTexImage2D(TEXTURE_2D, 1, RGB8, 2, 1, 0, RGB, UNSIGNED_BYTE, L1)\n",
     "glTexSubImage2D(TEXTURE_2D, 1, 0, 0, 2, 1, RGB, UNSIGNED_BYTE, L1)\n",
     s_skip},
    {"plain alpha is compressed",
     '2',
     "sc",
     "mi",
     0,
     {{ALPHA, {4, 2, 1}}},
     "gluBuild2DMipmaps(TEXTURE_2D, COMPRESSED_ALPHA, 4, 2, ALPHA, UNSIGNED_BYTE, L0)\n"},
    {"what can't go up is left out",
     '2',
     "3",
     "m",
     0,
     {{RG, {4, 2, 1}},
      {RGB, {4, 2, 1}, cut_short},
      {RGB, {}, never_set},
      {GRAY4, {8, 2, 1}},
      {GRAY, {1, 1, 1}}},
     "glTexImage2D(TEXTURE_2D, 4, LUMINANCE8, 1, 1, 0, LUMINANCE, UNSIGNED_BYTE, L4)\n",
     "glTexSubImage2D(TEXTURE_2D, 4, 0, 0, 1, 1, LUMINANCE, UNSIGNED_BYTE, L4)\n",
     refused("RG", "8") + refused("RGB", "8") + refused("GRAYSCALE", "4")},
    {"the palette is on for the upload",
     '2',
     "3",
     "p",
     0,
     {{INDEX, {4, 1, 1}}},
     "glPixelTransferi(MAP_COLOR, 1)\n"
     "glPixelMapusv(PIXEL_MAP_I_TO_R, 2, ptr)\nglPixelMapusv(PIXEL_MAP_I_TO_G, 2, ptr)\n"
     "glPixelMapusv(PIXEL_MAP_I_TO_B, 2, ptr)\n"
     "glTexImage2D(TEXTURE_2D, 0, COLOR_INDEX, 4, 1, 0, COLOR_INDEX, UNSIGNED_BYTE, L0)\n" +
         s_filters2d + "glPixelTransferi(MAP_COLOR, 0)\n",
     "glPixelTransferi(MAP_COLOR, 1)\n"
     "glPixelMapusv(PIXEL_MAP_I_TO_R, 2, ptr)\nglPixelMapusv(PIXEL_MAP_I_TO_G, 2, ptr)\n"
     "glPixelMapusv(PIXEL_MAP_I_TO_B, 2, ptr)\n"
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 4, 1, COLOR_INDEX, UNSIGNED_BYTE, L0)\n" +
         s_filters2d + "glPixelTransferi(MAP_COLOR, 0)\n"},
    {"no palette",
     '2',
     "3",
     "",
     0,
     {{INDEX, {2, 1, 1}}},
     "glTexImage2D(TEXTURE_2D, 0, COLOR_INDEX, 2, 1, 0, COLOR_INDEX, UNSIGNED_BYTE, L0)\n",
     "glTexSubImage2D(TEXTURE_2D, 0, 0, 0, 2, 1, COLOR_INDEX, UNSIGNED_BYTE, L0)\n"},

    {"1-D: SGIS before OpenGL 3.0",
     '1',
     "3s",
     "mpk",
     0,
     {{RGB, {4, 1, 1}}},
     sgis("TEXTURE_1D", "glTexImage1D(TEXTURE_1D, 0, RGB8, 4, 0, RGB, UNSIGNED_BYTE, L0)\n") +
         "glTexParameteri(TEXTURE_1D, TEXTURE_MIN_FILTER, NEAREST)\n"
         "glTexParameteri(TEXTURE_1D, TEXTURE_MAG_FILTER, LINEAR)\n"
         "glTexParameteri(TEXTURE_1D, TEXTURE_WRAP_S, REPEAT)\n"
         "glTexParameterfv(TEXTURE_1D, TEXTURE_BORDER_COLOR, {1, 0, 0.5, 1})\n"},
    {"1-D: power of two within the border",
     '1',
     "s",
     "mb",
     6,
     {{RGB, {4, 1, 1}}, {RGB, {2, 1, 1}}},
     sgis("TEXTURE_1D",
          "glTexImage1D(TEXTURE_1D, 0, RGB8, 6, 1, RGB, UNSIGNED_BYTE, null)\n"
          "glTexSubImage1D(TEXTURE_1D, 0, 0, 4, RGB, UNSIGNED_BYTE, L0)\n") +
         "glTexImage1D(TEXTURE_1D, 1, RGB8, 6, 1, RGB, UNSIGNED_BYTE, null)\n"
         "glTexSubImage1D(TEXTURE_1D, 1, 0, 2, RGB, UNSIGNED_BYTE, L1)\n"},
    {"1-D: a border's texels",
     '1',
     "",
     "b",
     3,
     {{RGB, {3, 1, 1}}, {RGB, {1, 1, 1}}},
     "glTexImage1D(TEXTURE_1D, 0, RGB8, 2, 1, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage1D(TEXTURE_1D, 0, 0, 3, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexImage1D(TEXTURE_1D, 1, RGB8, 2, 1, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage1D(TEXTURE_1D, 1, 0, 1, RGB, UNSIGNED_BYTE, L1)\n"},
    {"1-D: compression for level 0 alone",
     '1',
     "c",
     "mi",
     0,
     {{ALPHA, {4, 1, 1}}, {ALPHA, {2, 1, 1}}},
     "gluBuild1DMipmaps(TEXTURE_1D, COMPRESSED_ALPHA, 4, ALPHA, UNSIGNED_BYTE, L0)\n"
     "glTexImage1D(TEXTURE_1D, 1, ALPHA, 2, 0, ALPHA, UNSIGNED_BYTE, L1)\n"},
    {"1-D: compressed without a word",
     '1',
     "c",
     "m",
     0,
     {{RGB, {4, 1, 1}, compressed}},
     "glCompressedTexImage1DARB(TEXTURE_1D, 0, RGB8, 4, 0, 12, L0)\n"},

    {"3-D: cubes with the border",
     '3',
     "3s",
     "mbk",
     4,
     {{RGB, {2, 2, 2}}, {RGB, {1, 1, 1}}},
     sgis("TEXTURE_3D",
          "glTexImage3DEXT(TEXTURE_3D, 0, RGB8, 4, 4, 4, 1, RGB, UNSIGNED_BYTE, null)\n"
          "glTexSubImage3DEXT(TEXTURE_3D, 0, 0, 0, 0, 2, 2, 2, RGB, UNSIGNED_BYTE, L0)\n") +
         "glTexImage3DEXT(TEXTURE_3D, 1, RGB8, 4, 4, 4, 0, RGB, UNSIGNED_BYTE, null)\n"
         "glTexSubImage3DEXT(TEXTURE_3D, 1, 0, 0, 0, 1, 1, 1, RGB, UNSIGNED_BYTE, L1)\n" +
         s_colorcubemap},
    {"3-D: a border's texels",
     '3',
     "",
     "b",
     2,
     {{RGB, {1, 1, 1}}, {RGB, {1, 1, 1}}},
     "glTexImage3DEXT(TEXTURE_3D, 0, RGB8, 2, 2, 2, 1, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage3DEXT(TEXTURE_3D, 0, 0, 0, 0, 1, 1, 1, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexImage3DEXT(TEXTURE_3D, 1, RGB8, 0, 0, 0, 0, RGB, UNSIGNED_BYTE, null)\n"
     "glTexSubImage3DEXT(TEXTURE_3D, 1, 0, 0, 0, 1, 1, 1, RGB, UNSIGNED_BYTE, L1)\n"},
    {"3-D: GLU, with parameters",
     '3',
     "3",
     "mp",
     0,
     {{RGB, {4, 2, 2}}},
     "gluBuild3DMipmaps(TEXTURE_3D, RGB8, 4, 2, 2, RGB, UNSIGNED_BYTE, L0)\n"
     "glTexParameteri(TEXTURE_3D, TEXTURE_MIN_FILTER, NEAREST)\n"
     "glTexParameteri(TEXTURE_3D, TEXTURE_MAG_FILTER, LINEAR)\n"
     "glTexParameteri(TEXTURE_3D, TEXTURE_WRAP_S, CLAMP)\n"
     "glTexParameteri(TEXTURE_3D, TEXTURE_WRAP_T, CLAMP)\n"
     "glTexParameteri(TEXTURE_3D, TEXTURE_WRAP_R, REPEAT)\n"},
    {"3-D: compressed, nothing to build with",
     '3',
     "c",
     "m",
     0,
     {{RGB, {4, 1, 1}, compressed}},
     "glCompressedTexImage3DARB(TEXTURE_3D, 0, RGB8, 4, 1, 1, 0, 12, L0)\n",
     "as load",
     "Compressed image are can't build mipmaps in this environment.\n"},
    {"3-D: compressed, format not listed",
     '3',
     "sc",
     "m",
     0,
     {{GRAY, {4, 1, 1}, compressed}},
     "glCompressedTexImage3DARB(TEXTURE_3D, 0, LUMINANCE8, 4, 1, 1, 0, 4, L0)\n",
     "as load",
     s_fallback},

    {"cube map: no size, no texels",
     'C',
     "3",
     "pk",
     0,
     {{RGB, {4, 4, 1}}},
     six("glTexImage2D(FACE, 0, RGB8, 0, 0, 0, RGB, UNSIGNED_BYTE, null)\n"
         "glTexSubImage2D(FACE, 0, 0, 0, 4, 4, RGB, UNSIGNED_BYTE, L*)\n") +
         s_filterscubemap},
    {"cube map: level 0 gets the border",
     'C',
     "",
     "b",
     6,
     {{RGB, {4, 4, 1}}, {RGB, {}, never_set}},
     six("glTexImage2D(FACE, 0, RGB8, 6, 6, 1, RGB, UNSIGNED_BYTE, null)\n"
         "glTexSubImage2D(FACE, 0, 0, 0, 4, 4, RGB, UNSIGNED_BYTE, L*)\n")},
    {"cube map: OpenGL 3.0",
     'C',
     "3s",
     "mp",
     5,
     {{RGB, {4, 4, 1}}, {RGB, {2, 2, 1}}},
     six("glTexImage2D(FACE, 0, RGB8, 8, 8, 0, RGB, UNSIGNED_BYTE, null)\n"
         "glTexSubImage2D(FACE, 0, 0, 0, 4, 4, RGB, UNSIGNED_BYTE, L*)\n") +
         "glGenerateMipmap(TEXTURE_CUBE_MAP)\n" + s_filterscubemap},
    {"cube map: SGIS",
     'C',
     "s",
     "mb",
     0,
     {{RGB, {4, 4, 1}}},
     sgis("TEXTURE_CUBE_MAP",
          six("glTexImage2D(FACE, 0, RGB8, 4, 4, 0, RGB, UNSIGNED_BYTE, L*)\n"))},
    {"cube map: GLU",
     'C',
     "s",
     "m",
     0,
     {{GRAY, {4, 4, 1}}},
     six("gluBuild2DMipmaps(FACE, LUMINANCE8, 4, 4, LUMINANCE, UNSIGNED_BYTE, L*)\n")},
    {"cube map: compressed",
     'C',
     "c",
     "m",
     0,
     {{RGB, {4, 1, 1}, compressed}},
     six("glCompressedTexImage2DARB(FACE, 0, RGB8, 4, 1, 0, 12, L*)\n"),
     "as load",
     s_fallback + s_fallback + s_fallback + s_fallback + s_fallback + s_fallback},
    {"cube map: refused, no parameters",
     'C',
     "3",
     "mp",
     0,
     {{RG, {4, 4, 1}}},
     "",
     "as load",
     refused("RG", "8")},

    {"rectangle: filters go to the other target",
     'R',
     "3sc",
     "",
     0,
     {{RGB, {4, 2, 1}}},
     "glTexImage2D(TEXTURE_RECTANGLE, 0, RGB8, 4, 2, 0, RGB, UNSIGNED_BYTE, L0)\n" + s_filters2d,
     "glTexSubImage2D(TEXTURE_RECTANGLE, 0, 0, 0, 4, 2, RGB, UNSIGNED_BYTE, L0)\n" + s_filters2d},
    {"rectangle: no bytes", 'R', "3", "", 0, {{RGB, {}, never_set}}, ""},
};

void check_row(row_t const& row) {
    gl_recorder_t gl;
    gl.muted.insert({"glPixelStorei", "glGetIntegerv"});
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, has(row.context, '3'));
    gl_flag_t const sgis_flag(is_GL_SGIS_generate_mipmap_supported, has(row.context, 's'));
    gl_flag_t const arb(is_GL_ARB_texture_compression_supported, has(row.context, 'c'));
    switch (row.texture) {
        case '1':
            return run<grTexture1D, image1d_t>(row, gl, s_parameter1d);
        case '2':
            return run<grTexture2D, image2d_t>(row, gl, s_parameter2d);
        case '3':
            return run<grTexture3D, image3d_t>(row, gl, s_parameter3d);
        case 'C':
            return run_cube_map(row, gl);
        default:
            return run_rectangle(row, gl);
    }
}

}  // namespace

TEST(textureroutes, each_route_makes_its_calls) {
    for (row_t const& row : s_rows) {
        check_row(row);
    }
}

TEST(textureroutes, unpack_state_is_the_records_own_and_stays) {
    gl_recorder_t gl;
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, 1);
    image2d_t image = make_image<image2d_t>({RGB, {8, 4, 1}}, gl);
    image.window = {8, 2, 1};
    set_sides(image, {4, 2, 1});
    grTexture2D texture;
    texture.setImage(image, 0, 0);
    image.store = nullptr;
    texture.setImages({image}, 0, 1);
    texture.Load();
    EXPECT_EQ(
        "glPixelStorei(UNPACK_SWAP_BYTES, 0)\nglPixelStorei(UNPACK_ALIGNMENT, 4)\n"
        "glPixelStorei(UNPACK_ROW_LENGTH, 8)\nglPixelStorei(UNPACK_SKIP_PIXELS, 2)\n"
        "glPixelStorei(UNPACK_SKIP_ROWS, 1)\n"
        "glTexImage2D(TEXTURE_2D, 0, RGB8, 4, 2, 0, RGB, UNSIGNED_BYTE, L0)\n"
        "glGetIntegerv(UNPACK_ALIGNMENT, ptr)\n"
        "glPixelStorei(UNPACK_ROW_LENGTH, 8)\nglPixelStorei(UNPACK_SKIP_PIXELS, 2)\n"
        "glPixelStorei(UNPACK_SKIP_ROWS, 1)\n"
        "glTexImage2D(TEXTURE_2D, 1, RGB8, 4, 2, 0, RGB, UNSIGNED_BYTE, L0)\n",
        taken(gl));
    // A new vector of one level drops level 1; setImages with an offset keeps what is below.
    texture.setImage(image, 0, 0);
    texture.Load();
    EXPECT_EQ(std::string::npos, taken(gl).find("TEXTURE_2D, 1,"));
}

TEST(textureroutes, state_of_earlier_images_never_leads_past_the_bytes) {
    struct left_t {
        char const* name;
        char texture;
        GLenum state;
        GLint value;
        bool goes_up;
    };
    constexpr left_t rows[] = {
        {"nothing left behind", '2', GL_UNPACK_ALIGNMENT, 4, true},
        {"wider rows without a store", '2', GL_UNPACK_ALIGNMENT, 8, false},
        {"1-D, one row in", '1', GL_UNPACK_SKIP_ROWS, 1, false},
        {"1-D, wide rows that aren't stepped over", '1', GL_UNPACK_ROW_LENGTH, 64, true},
        {"rectangle, wide rows", 'R', GL_UNPACK_ROW_LENGTH, 64, false},
        {"rectangle, one pixel in", 'R', GL_UNPACK_SKIP_PIXELS, 1, false},
        {"rectangle", 'R', GL_UNPACK_SKIP_ROWS, 0, true},
    };
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, 1);
    for (left_t const& row : rows) {
        gl_recorder_t gl;
        capture_t capture;
        gl.muted.insert({"glPixelStorei", "glGetIntegerv"});
        gl.integers[row.state] = {row.value};
        level_t const level{RGB, {4, 2, 1}};
        image2d_t image = make_image<image2d_t>(level, gl);
        image.store = nullptr;
        grTexture1D line;
        grTexture2D square;
        grTextureRectangle rectangle;
        line.setImage(make_image<image1d_t>({RGB, {4, 1, 1}}, gl), 0, 0);
        square.setImage(image, 0, 0);
        rectangle.setImage(image);
        (row.texture == '1'   ? static_cast<grTexturableImageGL&>(line)
         : row.texture == '2' ? static_cast<grTexturableImageGL&>(square)
                              : rectangle)
            .Load();
        EXPECT_EQ(row.goes_up, gl.take().starts_with("glTexImage")) << row.name;
        EXPECT_EQ(row.goes_up ? "" : refused("RGB", "8"), capture.err()) << row.name;
    }
}

TEST(textureroutes, errors_around_a_square_are_reported_with_the_values_of_the_calls) {
    gl_recorder_t gl;
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, 1);
    grTexture2D texture;
    texture.setBuildMipmap(true);
    texture.setImage(make_image<image2d_t>({RGB, {3, 2, 1}}, gl), 3, 0);
    for (bool const reload : {false, true}) {
        gl.errors = {GL_INVALID_ENUM, GL_INVALID_VALUE};
        capture_t capture;
        reload ? texture.Reload() : texture.Load();
        EXPECT_EQ(
            "before-tex-sub-image2d: Error 1280: invalid enumerant\n"
            "internalformat: 32849\nm_border: 0\nformat: 6407\ntype: 5121\n"
            "after-tex-sub-image2d: Error 1281: invalid value\n"
            "real_max: 4\nm_width: 3\nm_height: 2\nformat: 6407\ntype: 5121\n",
            capture.err());
        EXPECT_TRUE(gl.take().ends_with("glGenerateMipmap(GL_TEXTURE_2D)\n"));
    }
}
