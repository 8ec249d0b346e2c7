// SPDX-License-Identifier: MIT
// Tests of the calls that the texture classes make on each route, in a GL that only listens.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
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

// A block is a line of set-up with a name and the calls of Load; those of Reload follow "again"
// where they differ; "!" leads an expected line of the error stream.
//
// Set-up: target (R: rectangle, C: cube map); context (3: OpenGL 3.0, s: SGIS_generate_mipmap, c:
// texture compression; unpack state left behind, 8: alignment, w: row length, x: a skipped pixel,
// y: a skipped row); options (m: mipmaps, b: border, i: compression, p: filters, k: border colour);
// size; levels with a last letter for their bytes (c: compressed, s: one too few, r: room behind
// them, n: no store) or "-" for one never set. Rows are padded to 4 bytes. "6" leads calls for each
// face of a cube.
constexpr char const* s_routes = R"(
2 3s mpk 0 -- no images

2 3s mp 0 RGB:4x2 -- OpenGL 3.0 comes first
TexImage2D(2D, 0, RGB8, 4, 2, 0, RGB, UBYTE, L0); GenerateMipmap(2D); Filters(2D)
> TexSubImage2D(2D, 0, 0, 0, 4, 2, RGB, UBYTE, L0); GenerateMipmap(2D); Filters(2D)

2 3 mk 256 RGB:300x200 -- in the corner of a square; no colour without border
TexImage2D(2D, 0, RGB8, 512, 512, 0, RGB, UBYTE, null); TexSubImage2D(2D, 0, 0, 0, 300, 200, RGB, UBYTE, L0)
GenerateMipmap(2D)
> TexSubImage2D(2D, 0, 0, 0, 300, 200, RGB, UBYTE, L0); GenerateMipmap(2D)

2 s m 0 GRAY:4x2 -- SGIS knows no gray; GLU gets a copy where no bytes follow
gluBuild2DMipmaps(2D, LUMINANCE8, 4, 2, LUMINANCE, UBYTE, ptr)

2 sc mi 0 ALPHA:4x2 -- plain alpha is compressed
gluBuild2DMipmaps(2D, COMPRESSED_ALPHA, 4, 2, ALPHA, UBYTE, ptr)

2 . mbk 256 RGB:4x2r -- GLU looks at neither size nor border
gluBuild2DMipmaps(2D, RGB8, 4, 2, RGB, UBYTE, L0); Color(2D)

2 3 b 0 RGB:4x2 RGB:2x1 -- levels as given
TexImage2D(2D, 0, RGB8, 4, 2, 1, RGB, UBYTE, L0); TexImage2D(2D, 1, RGB8, 2, 1, 0, RGB, UBYTE, L1)
> TexSubImage2D(2D, 0, 0, 0, 4, 2, RGB, UBYTE, L0); TexSubImage2D(2D, 1, 0, 0, 2, 1, RGB, UBYTE, L1)

2 3 b 3 RGB:3x1 RGB:1x1 -- squares without mipmaps have a border's texels
TexImage2D(2D, 0, RGB8, 2, 2, 1, RGB, UBYTE, null); TexSubImage2D(2D, 0, 0, 0, 3, 1, RGB, UBYTE, L0)
TexImage2D(2D, 1, RGB8, 2, 2, 0, RGB, UBYTE, null); TexSubImage2D(2D, 1, 0, 0, 1, 1, RGB, UBYTE, L1)
> TexSubImage2D(2D, 0, 0, 0, 3, 1, RGB, UBYTE, L0); TexSubImage2D(2D, 1, 0, 0, 1, 1, RGB, UBYTE, L1)

2 s mb 258 RGB:4x2 RGB:2x1 -- upper levels override, their squares with the border counted in
Sgis(2D, 1); TexImage2D(2D, 0, RGB8, 258, 258, 1, RGB, UBYTE, null)
TexSubImage2D(2D, 0, 0, 0, 4, 2, RGB, UBYTE, L0); Sgis(2D, 0)
TexImage2D(2D, 1, RGB8, 512, 512, 0, RGB, UBYTE, null); TexSubImage2D(2D, 1, 0, 0, 2, 1, RGB, UBYTE, L1)
> Sgis(2D, 1); TexSubImage2D(2D, 0, 0, 0, 4, 2, RGB, UBYTE, L0); Sgis(2D, 0)
> TexSubImage2D(2D, 1, 0, 0, 2, 1, RGB, UBYTE, L1)

2 3c mbi 0 RGB:4x2c RGB:2x1c -- compressed bytes go up as they are
CompressedTexImage2DARB(2D, 0, RGB8, 4, 2, 1, 24, L0); GenerateMipmap(2D)
CompressedTexImage2DARB(2D, 1, RGB8, 2, 1, 1, 8, L1)
> CompressedTexSubImage2DARB(2D, 0, 0, 0, 4, 2, RGB, 24, L0); GenerateMipmap(2D)
> CompressedTexSubImage2DARB(2D, 1, 0, 0, 2, 1, RGB, 8, L1)

2 c m 0 RGB:4x2c -- GLU takes no compressed image
CompressedTexImage2DARB(2D, 0, RGB8, 4, 2, 0, 24, L0)
! Compressed 'special format' image is ablen't to build mipmaps, fallback.
> CompressedTexSubImage2DARB(2D, 0, 0, 0, 4, 2, RGB, 24, L0)

2 . m 0 RGB:4x2c -- compressed image, no compression
! Compressed 'special format' image is ablen't to build mipmaps, fallback.
! error, ARB_texture_compression unsupported when compressed image loading, skip.

2 3 m 0 RG:4x2 RGB:4x2s - RGB565:4x2s GRAY4:8x2 GRAY:1x1 -- what can't go up is left out
TexImage2D(2D, 5, LUMINANCE8, 1, 1, 0, LUMINANCE, UBYTE, L5)
! refused RG 8
! refused RGB 8
! refused RGB R5G6B5
! refused GRAYSCALE 4
> TexSubImage2D(2D, 5, 0, 0, 1, 1, LUMINANCE, UBYTE, L5)

2 . mp 0 INDEX:4x1 -- the palette of the first level is on for the upload
PixelTransferi(MAP_COLOR, 1); PixelMapusv(PIXEL_MAP_I_TO_R, 2, ptr); PixelMapusv(PIXEL_MAP_I_TO_G, 2, ptr)
PixelMapusv(PIXEL_MAP_I_TO_B, 2, ptr); gluBuild2DMipmaps(2D, COLOR_INDEX, 4, 1, COLOR_INDEX, UBYTE, ptr)
Filters(2D); PixelTransferi(MAP_COLOR, 0)

1 3s mpk 0 RGB:4 -- 1-D: SGIS before OpenGL 3.0
Sgis(1D, 1); TexImage1D(1D, 0, RGB8, 4, 0, RGB, UBYTE, L0); Sgis(1D, 0); Filters(1D); Color(1D)

1 s mb 6 RGB:4 RGB:2 -- 1-D: power of two within the border
Sgis(1D, 1); TexImage1D(1D, 0, RGB8, 6, 1, RGB, UBYTE, null); TexSubImage1D(1D, 0, 0, 4, RGB, UBYTE, L0)
Sgis(1D, 0); TexImage1D(1D, 1, RGB8, 6, 1, RGB, UBYTE, null); TexSubImage1D(1D, 1, 0, 2, RGB, UBYTE, L1)

1 . b 3 RGB:3 RGB:1 -- 1-D: a border's texels
TexImage1D(1D, 0, RGB8, 2, 1, RGB, UBYTE, null); TexSubImage1D(1D, 0, 0, 3, RGB, UBYTE, L0)
TexImage1D(1D, 1, RGB8, 2, 1, RGB, UBYTE, null); TexSubImage1D(1D, 1, 0, 1, RGB, UBYTE, L1)

1 c mi 0 ALPHA:4 ALPHA:2 -- 1-D: compression for level 0 alone
gluBuild1DMipmaps(1D, COMPRESSED_ALPHA, 4, ALPHA, UBYTE, ptr)
TexImage1D(1D, 1, ALPHA, 2, 0, ALPHA, UBYTE, L1)

1 c mb 0 RGB:4c RGB:2c -- 1-D: compressed without a word
CompressedTexImage1DARB(1D, 0, RGB8, 4, 1, 12, L0); CompressedTexImage1DARB(1D, 1, RGB8, 2, 1, 8, L1)

3 3s mbk 4 RGB:2x2x2 RGB:1x1x1 -- 3-D: cubes, upper levels without the border
Sgis(3D, 1); TexImage3DEXT(3D, 0, RGB8, 4, 4, 4, 1, RGB, UBYTE, null)
TexSubImage3DEXT(3D, 0, 0, 0, 0, 2, 2, 2, RGB, UBYTE, L0); Sgis(3D, 0)
TexImage3DEXT(3D, 1, RGB8, 4, 4, 4, 0, RGB, UBYTE, null)
TexSubImage3DEXT(3D, 1, 0, 0, 0, 1, 1, 1, RGB, UBYTE, L1); Color(CUBE_MAP)

3 . b 2 RGB:1x1x1 RGB:1x1x1 -- 3-D: a border's texels
TexImage3DEXT(3D, 0, RGB8, 2, 2, 2, 1, RGB, UBYTE, null)
TexSubImage3DEXT(3D, 0, 0, 0, 0, 1, 1, 1, RGB, UBYTE, L0)
TexImage3DEXT(3D, 1, RGB8, 0, 0, 0, 0, RGB, UBYTE, null)
TexSubImage3DEXT(3D, 1, 0, 0, 0, 1, 1, 1, RGB, UBYTE, L1)

3 . b 3 RGB:1x1x1 -- 3-D: none where a power of two is wanted
TexImage3DEXT(3D, 0, RGB8, 0, 0, 0, 1, RGB, UBYTE, null)
TexSubImage3DEXT(3D, 0, 0, 0, 0, 1, 1, 1, RGB, UBYTE, L0)

3 3 mp 0 RGB:4x2x2 -- 3-D: GLU
gluBuild3DMipmaps(3D, RGB8, 4, 2, 2, RGB, UBYTE, ptr); Filters(3D)

3 . m 0 RGB565:4x4x1 -- 3-D: GLU can't take packed texels of a sheet
! refused RGB R5G6B5

3 c m 0 RGB:4x1x1c -- 3-D: compressed, nothing to build with
CompressedTexImage3DARB(3D, 0, RGB8, 4, 1, 1, 0, 12, L0)
! Compressed image are can't build mipmaps in this environment.

3 sc m 0 GRAY:4x1x1c -- 3-D: compressed, format not listed
CompressedTexImage3DARB(3D, 0, LUMINANCE8, 4, 1, 1, 0, 4, L0)
! Compressed 'special format' image is ablen't to build mipmaps, fallback.

C 3 pk 0 RGB:4x4 -- cube map: no size, no texels
6 TexImage2D(FACE, 0, RGB8, 0, 0, 0, RGB, UBYTE, null); TexSubImage2D(FACE, 0, 0, 0, 4, 4, RGB, UBYTE, L0*)
Filters(CUBE_MAP)

C . b 6 RGB:4x4 RGB:2x2 -- cube map: level 0 gets the border, and all pixels
6 TexImage2D(FACE, 0, RGB8, 6, 6, 1, RGB, UBYTE, null); TexSubImage2D(FACE, 0, 0, 0, 4, 4, RGB, UBYTE, L0*)
6 TexImage2D(FACE, 1, RGB8, 8, 8, 0, RGB, UBYTE, null); TexSubImage2D(FACE, 0, 0, 0, 2, 2, RGB, UBYTE, L1*)

C 3s mp 5 RGB:4x4 RGB:2x2 -- cube map: OpenGL 3.0, upper levels left out
6 TexImage2D(FACE, 0, RGB8, 8, 8, 0, RGB, UBYTE, null); TexSubImage2D(FACE, 0, 0, 0, 4, 4, RGB, UBYTE, L0*)
GenerateMipmap(CUBE_MAP); Filters(CUBE_MAP)

C s mb 0 RGB:4x4 -- cube map: SGIS
Sgis(CUBE_MAP, 1)
6 TexImage2D(FACE, 0, RGB8, 4, 4, 0, RGB, UBYTE, L0*)
Sgis(CUBE_MAP, 0)

C s m 0 GRAY:4x4 -- cube map: GLU
6 gluBuild2DMipmaps(FACE, LUMINANCE8, 4, 4, LUMINANCE, UBYTE, ptr)

C 3 mp 0 RG:4x4 -- cube map: refused, no parameters
! refused RG 8

R 3sc p 0 RGB:4x2 -- rectangle: filters go to the other target
TexImage2D(RECTANGLE, 0, RGB8, 4, 2, 0, RGB, UBYTE, L0); Filters(2D)
> TexSubImage2D(RECTANGLE, 0, 0, 0, 4, 2, RGB, UBYTE, L0); Filters(2D)

R 3 p 0 - -- rectangle: no bytes

2 8 . 0 RGB:4x2n -- no store: rows of another image's alignment
! refused RGB 8

1 wx . 0 RGB:4 -- one row: wide ones are never stepped over
TexImage1D(1D, 0, RGB8, 4, 0, RGB, UBYTE, L0)

1 y . 0 RGB:4 -- one row: past it
! refused RGB 8

R w p 0 RGB:4x2 -- rectangle: wide rows of another image
! refused RGB 8

R x p 0 RGB:4x2 -- rectangle: past its first pixel
! refused RGB 8
)";

std::map<std::string, image_desc_t> const s_descs = {
    {"RGB", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RGB565", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_R5G6B5}},
    {"GRAY", {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"GRAY4", {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_4}},
    {"ALPHA", {IMAGE_FORMAT_ALPHA, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"INDEX", {IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RG", {IMAGE_FORMAT_RG, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
};

constexpr image_store_t s_store{false, 4};
constexpr color3a_t s_color{1, 0, 0.5F, 1};
constexpr auto s_filters1d = texparameter1d(GL_NEAREST, GL_LINEAR, GL_CLAMP);
constexpr auto s_filters2d = texparameter2d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_CLAMP, 1);
constexpr auto s_filters3d = texparameter3d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_CLAMP, GL_CLAMP, 1);
constexpr auto s_filterscubemap = texparametercubemap(GL_NEAREST, GL_LINEAR, 1);

bool has(std::string const& text, auto const& part) {
    return text.find(part) != std::string::npos;
}

std::string replaced(std::string text, std::string const& what, std::string const& by) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// The record of a level, "RGB:4x2c"; its bytes are shown as "L<n>".
template <typename image_t>
image_t make_image(std::string const& level, gl_recorder_t& gl, std::string const& n = "0") {
    unsigned int side[3] = {1, 1, 1};
    std::istringstream sides(replaced(level.substr(level.find(':') + 1), "x", " "));
    sides >> side[0] >> side[1] >> side[2];
    image_t image;
    image.desc = s_descs.at(level.substr(0, level.find(':')));
    image.store = level.back() == 'n' ? nullptr : &s_store;
    image.m_width = side[0];
    if constexpr (requires { image.m_height; }) {
        image.m_height = side[1];
    }
    if constexpr (requires { image.m_depth; }) {
        image.m_depth = side[2];
    }
    image.compressed = level.back() == 'c';
    unsigned long const row = row_stride(side[0], image.desc.getPixelBits(), &s_store);
    unsigned long const bytes = row * std::max(side[1], 1U) * std::max(side[2], 1U);
    image.resize(level.back() == 's' ? bytes - 1 : level.back() == 'r' ? 4 * bytes + 64 : bytes, 0);
    gl.name_region(image.begin(), image.size(), std::string("L").append(n));
    image.palette.resize(level.starts_with("INDEX") ? 2 : 0);
    return image;
}

struct setup_t {
    std::string target, context, options;
    unsigned int size;
    std::vector<std::string> levels;
};

template <typename texture_t, typename image_t, typename parameter_t>
std::unique_ptr<grTexturableImageGL> make(setup_t const& setup, gl_recorder_t& gl,
                                          parameter_t const& filters) {
    auto texture = std::make_unique<texture_t>();
    for (std::size_t i = 0; i < setup.levels.size(); ++i) {
        std::string const& level = setup.levels[i];
        std::string const n = std::to_string(i);
        if (level == "-") {
            continue;
        }
        if constexpr (std::is_same_v<texture_t, grTextureCubeMap>) {
            std::vector<image_t[6]> faces(1);
            for (int face = 0; face < 6; ++face) {
                faces[0][face] = make_image<image_t>(level, gl, n + std::to_string(face));
            }
            texture->setImages(faces, setup.size, i);
        } else {
            texture->setImage(make_image<image_t>(level, gl, n), setup.size, i);
        }
    }
    texture->setBuildMipmap(has(setup.options, 'm'));
    texture->setBorder(has(setup.options, 'b'));
    texture->setInternalCompression(has(setup.options, 'i'));
    texture->setTextureParameter(has(setup.options, 'p') ? &filters : nullptr);
    texture->setBorderColor(has(setup.options, 'k') ? &s_color : nullptr);
    return texture;
}

std::unique_ptr<grTexturableImageGL> make_texture(setup_t const& setup, gl_recorder_t& gl) {
    switch (setup.target[0]) {
        case '1':
            return make<grTexture1D, image1d_t>(setup, gl, s_filters1d);
        case '2':
            return make<grTexture2D, image2d_t>(setup, gl, s_filters2d);
        case '3':
            return make<grTexture3D, image3d_t>(setup, gl, s_filters3d);
        case 'C':
            return make<grTextureCubeMap, image2d_t>(setup, gl, s_filterscubemap);
        default:
            break;
    }
    auto texture = std::make_unique<grTextureRectangle>();
    texture->setTextureParameter(&s_filters2d);
    if (setup.levels[0] != "-") {
        texture->setImage(make_image<image2d_t>(setup.levels[0], gl));
    }
    return texture;
}

/// What was recorded in the short form of the table, a line each.
std::string taken(gl_recorder_t& gl) {
    std::string text;
    for (std::string line : std::exchange(gl.lines, {})) {
        line = replaced(replaced(replaced(line, "GL_TEXTURE_", ""), "GL_", ""), "UNSIGNED_BYTE",
                        "UBYTE");
        line = line.starts_with("glu") ? line : line.substr(2);
        std::string const target =
            line.substr(line.find('(') + 1, line.find(',') - line.find('(') - 1);
        if (!line.starts_with("TexParameter")) {
            text += line + "\n";
        } else if (has(line, "MIN_FILTER, NEAREST")) {
            text += "Filters(" + target + ")\n";
        } else if (has(line, "BORDER_COLOR, {1, 0, 0.5, 1}")) {
            text += "Color(" + target + ")\n";
        } else if (has(line, "GENERATE_MIPMAP_SGIS")) {
            text += "Sgis(" + target + ", " + line.substr(line.size() - 2) + "\n";
        }
    }
    return text;
}

/// A line of the table as recorded lines.
std::string spread(std::string const& line) {
    std::string const lines = replaced(line, "; ", "\n") + "\n";
    if (!lines.starts_with("6 ")) {
        return lines;
    }
    std::string text;
    for (char const* face : {"0POSITIVE_X", "1NEGATIVE_X", "2POSITIVE_Y", "3NEGATIVE_Y",
                             "4POSITIVE_Z", "5NEGATIVE_Z"}) {
        std::string const one =
            replaced(lines.substr(2), "FACE", std::string("CUBE_MAP_") + &face[1]);
        text += replaced(one, "*", std::string(1, face[0]));
    }
    return text;
}

/// An expected line of the error stream; a refused image, "refused <format> <bits>", writes four.
std::string error_lines(std::string const& line) {
    if (!line.starts_with("refused ")) {
        return line + "\n";
    }
    auto const bits = line.rfind(' ');
    return "Not supported image format!\nimgformat: IMAGE_FORMAT_" + line.substr(8, bits - 8) +
           "\nimgtype: IMAGE_TYPE_UINT\nimgbits: IMAGE_BITS_" + line.substr(bits + 1) + "\n";
}

void check_route(std::istream& table, std::string const& name) {
    std::istringstream words(name);
    setup_t setup;
    words >> setup.target >> setup.context >> setup.options >> setup.size;
    std::string line;
    while (words >> line && line != "--") {
        setup.levels.push_back(line);
    }
    std::string calls, calls_again, errors;
    while (std::getline(table, line) && !line.empty()) {
        if (line[0] == '!') {
            errors += error_lines(line.substr(2));
        } else if (line[0] == '>') {
            calls_again += spread(line.substr(2));
        } else {
            calls += spread(line);
        }
    }
    gl_recorder_t gl;
    gl.muted.insert({"glPixelStorei", "glGetIntegerv"});
    gl.integers[GL_UNPACK_ALIGNMENT] = {has(setup.context, '8') ? 8 : 4};
    gl.integers[GL_UNPACK_ROW_LENGTH] = {has(setup.context, 'w') ? 64 : 0};
    gl.integers[GL_UNPACK_SKIP_PIXELS] = {has(setup.context, 'x') ? 1 : 0};
    gl.integers[GL_UNPACK_SKIP_ROWS] = {has(setup.context, 'y') ? 1 : 0};
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, has(setup.context, '3'));
    gl_flag_t const sgis(is_GL_SGIS_generate_mipmap_supported, has(setup.context, 's'));
    gl_flag_t const arb(is_GL_ARB_texture_compression_supported, has(setup.context, 'c'));
    auto const texture = make_texture(setup, gl);
    capture_t capture;
    texture->Load();
    EXPECT_EQ(calls, taken(gl)) << name;
    EXPECT_EQ(errors, capture.err()) << name;
    texture->Reload();
    EXPECT_EQ(calls_again.empty() ? calls : calls_again, taken(gl)) << name << ", again";
    EXPECT_EQ(errors, capture.err()) << name << ", again";
}

}  // namespace

TEST(textureroutes, each_route_makes_its_calls) {
    std::istringstream table(s_routes);
    int routes = 0;
    for (std::string name; std::getline(table, name);) {
        if (!name.empty()) {
            check_route(table, name);
            ++routes;
        }
    }
    EXPECT_EQ(39, routes);
}

TEST(textureroutes, unpack_state_is_the_records_own_and_stays) {
    gl_recorder_t gl;
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, 1);
    image2d_t image = make_image<image2d_t>("RGB:8x4", gl);
    image.window = {8, 2, 1};
    image.m_width = 4;
    image.m_height = 2;
    grTexture2D texture;
    texture.setImage(image, 0, 0);
    image.store = nullptr;
    texture.setImages({image}, 0, 1);
    texture.Load();
    std::string const window =
        "PixelStorei(UNPACK_ROW_LENGTH, 8)\nPixelStorei(UNPACK_SKIP_PIXELS, 2)\n"
        "PixelStorei(UNPACK_SKIP_ROWS, 1)\n";
    EXPECT_EQ("PixelStorei(UNPACK_SWAP_BYTES, 0)\nPixelStorei(UNPACK_ALIGNMENT, 4)\n" + window +
                  "TexImage2D(2D, 0, RGB8, 4, 2, 0, RGB, UBYTE, L0)\n"
                  "GetIntegerv(UNPACK_ALIGNMENT, ptr)\n" +
                  window + "TexImage2D(2D, 1, RGB8, 4, 2, 0, RGB, UBYTE, L0)\n",
              taken(gl));
    texture.setImage(image, 0, 0);
    texture.Load();
    EXPECT_EQ(std::string::npos, taken(gl).find("2D, 1,")) << "a level above the one set last";
}

TEST(textureroutes, errors_around_a_square_are_reported_with_the_values_of_the_calls) {
    gl_recorder_t gl;
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, 1);
    auto const texture = make_texture({"2", "", "m", 3, {"RGB:3x2"}}, gl);
    for (bool const reload : {false, true}) {
        gl.errors = {GL_INVALID_ENUM, GL_INVALID_VALUE};
        capture_t capture;
        reload ? texture->Reload() : texture->Load();
        EXPECT_EQ(
            "before-tex-sub-image2d: Error 1280: invalid enumerant\n"
            "internalformat: 32849\nm_border: 0\nformat: 6407\ntype: 5121\n"
            "after-tex-sub-image2d: Error 1281: invalid value\n"
            "real_max: 4\nm_width: 3\nm_height: 2\nformat: 6407\ntype: 5121\n",
            capture.err());
    }
}
