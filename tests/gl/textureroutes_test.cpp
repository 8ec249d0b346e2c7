// SPDX-License-Identifier: MIT
// Tests of the calls that the texture classes make on each route, in a GL that only listens.
#include <gtest/gtest.h>

#include <cstdio>
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
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

// A line of set-up in the file of expected calls starts with ':' and ends with its name; behind it
// stand the calls of Load, those of Reload where they differ, and the error stream's lines.
//
// Set-up: target (R: rectangle, C: cube map); context (3: OpenGL 3.0, s: SGIS_generate_mipmap, c:
// texture compression, a: anisotropy; unpack state left behind, 8: alignment, w: row length, x: a
// skipped pixel, y: a skipped row; u: unpack calls are shown; e: errors are pending); options (m:
// mipmaps, b: border, i: compression, p: filters, k: border colour); size; levels with last letters
// for their bytes (c: compressed, s: one too few, r: room behind them, n: no store, w: a window of
// half the sides), "-" for one never set, "^" ahead of a new level 0. Rows are padded to 4 bytes.

std::map<std::string, image_desc_t> const descs = {
    {"RGB", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RGB565", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_R5G6B5}},
    {"GRAY", {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"GRAY4", {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_4}},
    {"ALPHA", {IMAGE_FORMAT_ALPHA, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"INDEX", {IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"BGR", {IMAGE_FORMAT_BGR, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RED", {IMAGE_FORMAT_RED, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RGB16", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_16}},
    {"GRAYS16", {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_SINT, IMAGE_BITS_16}},
    {"RGBF16", {IMAGE_FORMAT_RGB, IMAGE_TYPE_FLOAT, IMAGE_BITS_16}},
    {"RG", {IMAGE_FORMAT_RG, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
};

constexpr image_store_t packed_store{false, 4};
constexpr color3a_t border_color{1, 0, 0.5F, 1};
constexpr auto filters1d = texparameter1d(GL_NEAREST, GL_LINEAR, GL_CLAMP);
constexpr auto filters2d = texparameter2d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_REPEAT, 2);
constexpr auto filters3d = texparameter3d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_REPEAT, GL_CLAMP, 8);
constexpr auto filterscubemap = texparametercubemap(GL_NEAREST, GL_LINEAR, 4);

struct setup_t {
    std::string target, context, options;
    unsigned int size;
    std::vector<std::string> levels;
};

bool has(std::string const& text, char letter) {
    return text.find(letter) != std::string::npos;
}

/// The record of a level, "RGB:4x2c".
template <typename image_t>
image_t make_image(std::string const& level, gl_recorder_t& gl, std::string const& name) {
    unsigned int width = 1, height = 1, depth = 1;
    std::sscanf(level.c_str(), "%*[A-Z0-9]:%ux%ux%u", &width, &height, &depth);
    image_t image;
    image.desc = descs.at(level.substr(0, level.find(':')));
    image.store = has(level, 'n') ? nullptr : &packed_store;
    image.compressed = has(level, 'c');
    image.palette.resize(level.starts_with("INDEX") ? 2 : 0);
    unsigned long const bytes =
        row_stride(width, image.desc.getPixelBits(), &packed_store) * height * depth;
    image.resize(has(level, 's') ? bytes - 1 : has(level, 'r') ? 4 * bytes + 64 : bytes, 0);
    gl.regions.push_back({image.begin(), image.size(), name});
    image.m_width = width;
    if constexpr (requires { image.m_height; }) {
        image.m_height = height;
    }
    if constexpr (requires { image.m_depth; }) {
        image.m_depth = depth;
    }
    if constexpr (requires { image.window = {8, 2, 1}; }) {
        if (has(level, 'w')) {
            image.window = {width, 2, 1};
            image.m_width /= 2;
            image.m_height /= 2;
        }
    }
    return image;
}

template <typename texture_t, typename record_t>
std::unique_ptr<grTexturableImageGL> make(setup_t const& setup, gl_recorder_t& gl,
                                          auto const& filters) {
    auto texture = std::make_unique<texture_t>();
    unsigned long i = 0;
    for (std::string const& level : setup.levels) {
        std::string const name = std::string("L").append(std::to_string(i));
        if (level == "^") {
            i = 0;
        } else if (level == "-") {
            ++i;
        } else {
            std::vector<record_t> records(1);
            if constexpr (std::is_array_v<record_t>) {
                for (int face = 0; face < 6; ++face) {
                    records[0][face] =
                        make_image<image2d_t>(level, gl, name + std::to_string(face));
                }
            } else {
                records[0] = make_image<record_t>(level, gl, name);
            }
            i == 0 ? texture->setImage(records[0], setup.size, i)
                   : texture->setImages(records, setup.size, i);
            ++i;
        }
    }
    texture->setBuildMipmap(has(setup.options, 'm'));
    texture->setBorder(has(setup.options, 'b'));
    texture->setInternalCompression(has(setup.options, 'i'));
    texture->setTextureParameter(has(setup.options, 'p') ? &filters : nullptr);
    texture->setBorderColor(has(setup.options, 'k') ? &border_color : nullptr);
    return texture;
}

std::unique_ptr<grTexturableImageGL> make_texture(setup_t const& setup, gl_recorder_t& gl) {
    if (setup.target == "R") {
        auto texture = std::make_unique<grTextureRectangle>();
        texture->setTextureParameter(&filters2d);
        if (setup.levels[0] != "-") {
            texture->setImage(make_image<image2d_t>(setup.levels[0], gl, "L0"));
        }
        return texture;
    }
    return setup.target == "1"   ? make<grTexture1D, image1d_t>(setup, gl, filters1d)
           : setup.target == "2" ? make<grTexture2D, image2d_t>(setup, gl, filters2d)
           : setup.target == "3" ? make<grTexture3D, image3d_t>(setup, gl, filters3d)
                                 : make<grTextureCubeMap, image2d_t[6]>(setup, gl, filterscubemap);
}

std::string route_calls(std::string const& line) {
    std::istringstream words(line.substr(1));
    setup_t setup;
    words >> setup.target >> setup.context >> setup.options >> setup.size;
    for (std::string level; words >> level && level != "--";) {
        setup.levels.push_back(level);
    }
    gl_recorder_t gl;
    if (!has(setup.context, 'u')) {
        gl.muted.insert({"glPixelStorei", "glGetIntegerv"});
    }
    gl.integers[GL_UNPACK_ALIGNMENT] = {has(setup.context, '8') ? 8 : 4};
    gl.integers[GL_UNPACK_ROW_LENGTH] = {has(setup.context, 'w') ? 64 : 0};
    gl.integers[GL_UNPACK_SKIP_PIXELS] = {has(setup.context, 'x') ? 1 : 0};
    gl.integers[GL_UNPACK_SKIP_ROWS] = {has(setup.context, 'y') ? 1 : 0};
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, has(setup.context, '3'));
    gl_flag_t const sgis(is_GL_SGIS_generate_mipmap_supported, has(setup.context, 's'));
    gl_flag_t const arb(is_GL_ARB_texture_compression_supported, has(setup.context, 'c'));
    gl_flag_t const aniso(is_GL_EXT_texture_filter_anisotropic_supported, has(setup.context, 'a'));
    auto const texture = make_texture(setup, gl);
    std::deque<GLenum> const pending(has(setup.context, 'e') ? 40 : 0, GL_INVALID_VALUE);
    capture_t capture;
    gl.errors = pending;
    texture->Load();
    std::string const calls = gl.take(), errors = capture.err();
    gl.errors = pending;
    texture->Reload();
    std::string const again = gl.take();
    std::string const errors_again = capture.err();
    return calls + (again == calls ? "" : "Reload:\n" + again) +
           (errors.empty() ? "" : "Error stream:\n" + errors) +
           (errors_again == errors ? "" : "Error stream of Reload:\n" + errors_again);
}

}  // namespace

TEST(textureroutes, each_route_makes_its_calls) {
    std::istringstream file(read_file(ROUTE_CALLS));
    std::string text;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(": ")) {
            text += line + "\n" + route_calls(line);
        }
    }
    EXPECT_TRUE(matches_file(text, ROUTE_CALLS));
}
