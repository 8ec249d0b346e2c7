// SPDX-License-Identifier: MIT
// Tests of the calls that the texture classes make on each route, in a GL that only listens.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
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

// A line of set-up in the file of expected calls starts with ':' and ends with its name; behind it
// stand the calls of Load, those of Reload after '>' where they differ, and the error stream's
// lines after '!'.
//
// Set-up: target (R: rectangle, C: cube map); context (3: OpenGL 3.0, s: SGIS_generate_mipmap, c:
// texture compression; unpack state left behind, 8: alignment, w: row length, x: a skipped pixel,
// y: a skipped row); options (m: mipmaps, b: border, i: compression, p: filters, k: border colour);
// size; levels with a last letter for their bytes (c: compressed, s: one too few, r: room behind
// them, n: no store) or "-" for one never set. Rows are padded to 4 bytes.

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
    gl.regions.push_back({image.begin(), image.size(), std::string("L").append(n)});
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

/// Each line of a text behind a mark.
std::string marked(std::string const& mark, std::string const& text) {
    return text.empty()
               ? ""
               : mark + replaced(text.substr(0, text.size() - 1), "\n", "\n" + mark) + "\n";
}

std::string route_calls(std::string const& line) {
    std::istringstream words(line.substr(1));
    setup_t setup;
    words >> setup.target >> setup.context >> setup.options >> setup.size;
    for (std::string level; words >> level && level != "--";) {
        setup.levels.push_back(level);
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
    std::string const calls = gl.take(), errors = capture.err();
    texture->Reload();
    std::string const again = gl.take();
    EXPECT_EQ(errors, capture.err()) << line;
    return calls + marked("> ", again == calls ? "" : again) + marked("! ", errors);
}

}  // namespace

TEST(textureroutes, each_route_makes_its_calls) {
    std::istringstream file(read_file(ROUTE_CALLS));
    std::string text;
    int routes = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(": ")) {
            text += line + "\n" + route_calls(line);
            ++routes;
        }
    }
    EXPECT_EQ(39, routes);
    EXPECT_TRUE(same_as_file(text, ROUTE_CALLS));
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
        "glPixelStorei(GL_UNPACK_ROW_LENGTH, 8)\nglPixelStorei(GL_UNPACK_SKIP_PIXELS, 2)\n"
        "glPixelStorei(GL_UNPACK_SKIP_ROWS, 1)\n";
    EXPECT_EQ(
        "glPixelStorei(GL_UNPACK_SWAP_BYTES, 0)\nglPixelStorei(GL_UNPACK_ALIGNMENT, 4)\n" + window +
            "glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB8, 4, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, L0)\n"
            "glGetIntegerv(GL_UNPACK_ALIGNMENT, ptr)\n" +
            window +
            "glTexImage2D(GL_TEXTURE_2D, 1, GL_RGB8, 4, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, L0)\n",
        gl.take());
    texture.setImage(image, 0, 0);
    texture.Load();
    EXPECT_EQ(std::string::npos, gl.take().find("2D, 1,")) << "a level above the one set last";
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
