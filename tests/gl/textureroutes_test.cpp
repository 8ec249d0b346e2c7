// SPDX-License-Identifier: MIT
// Tests of the GL calls that the texture classes make for an upload.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "gl/texture1d.h"
#include "gl/texture2d.h"
#include "gl/texture3d.h"
#include "gl/texturecubemap.h"
#include "gl/texturerectangle.h"
#include "gl/textureupload.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

// A row of route_calls.txt starts with "# Name: words". The words are the texture class, flags,
// "size=N", "errors=N" for N pending GL errors, and the images of the levels, for example
// "RGB:4x2+window". "unset" skips a level, "restart" continues at level 0. The calls of Load
// follow, then the error stream, and, with "reload", the calls of Reload if they differ. A call is
// without GL_TEXTURE_ and GL_, and with the pixel store parameters for rows not padded to 4 bytes.

std::map<std::string, image_desc_t> const descs = {
    {"RGB", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RGB565", {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_R5G6B5}},
    {"GRAY", {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"ALPHA", {IMAGE_FORMAT_ALPHA, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"INDEX", {IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
    {"RG", {IMAGE_FORMAT_RG, IMAGE_TYPE_UINT, IMAGE_BITS_8}},
};

struct parameter_t {
    GLenum name;
    GLint padded_to_4;
    GLint before_load;
};
constexpr parameter_t parameters[] = {
    {GL_UNPACK_SWAP_BYTES, 0, 1},  {GL_UNPACK_ALIGNMENT, 4, 8}, {GL_UNPACK_ROW_LENGTH, 0, 64},
    {GL_UNPACK_SKIP_PIXELS, 0, 1}, {GL_UNPACK_SKIP_ROWS, 0, 2}, {GL_UNPACK_IMAGE_HEIGHT, 0, 3},
    {GL_UNPACK_SKIP_IMAGES, 0, 4}, {GL_PACK_ALIGNMENT, 4, 8},   {GL_PACK_ROW_LENGTH, 0, 5},
    {GL_PACK_SKIP_PIXELS, 0, 6},   {GL_PACK_SKIP_ROWS, 0, 7},   {GL_PACK_IMAGE_HEIGHT, 0, 8},
    {GL_PACK_SKIP_IMAGES, 0, 9},
};

constexpr image_store_t padded_to_4{false, 4};
constexpr color3a_t border_color{1, 0, 0.5F, 1};
constexpr auto filters1d = texparameter1d(GL_NEAREST, GL_LINEAR, GL_CLAMP);
constexpr auto filters2d = texparameter2d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_REPEAT, 2);
constexpr auto filters3d = texparameter3d(GL_NEAREST, GL_LINEAR, GL_CLAMP, GL_REPEAT, GL_CLAMP, 8);
constexpr auto filterscubemap = texparametercubemap(GL_NEAREST, GL_LINEAR, 4);
constexpr char const* faces[] = {"POSITIVE_X", "NEGATIVE_X", "POSITIVE_Y",
                                 "NEGATIVE_Y", "POSITIVE_Z", "NEGATIVE_Z"};

struct row_t {
    explicit row_t(std::string const& line) {
        std::istringstream in(line.substr(line.find(": ") + 2));
        for (std::string word; in >> word;) {
            if (word.find(':') != std::string::npos || word == "unset" || word == "restart") {
                levels.push_back(word);
            } else if (std::sscanf(word.c_str(), "size=%u", &size) != 1 &&
                       std::sscanf(word.c_str(), "errors=%u", &errors) != 1) {
                words.insert(word);
            }
        }
    }
    bool has(char const* word) const { return words.contains(word); }

    std::set<std::string> words;
    std::vector<std::string> levels;
    unsigned int size = 0;
    unsigned int errors = 0;
};

/// Makes an image of a level such as "RGB:4x2+compressed", which the calls show as `name`.
template <typename image_t>
image_t make_image(std::string const& level, gl_recorder_t& gl, std::string const& name) {
    auto const has = [&level](char const* flag) { return level.find(flag) != std::string::npos; };
    unsigned int width = 1, height = 1, depth = 1, bytes = 0;
    std::sscanf(level.c_str(), "%*[A-Z0-9]:%ux%ux%u", &width, &height, &depth);
    image_t image;
    image.desc = descs.at(level.substr(0, level.find(':')));
    image.store = has("+no-store") ? nullptr : &padded_to_4;
    image.compressed = has("+compressed");
    image.palette.resize(level.starts_with("INDEX") ? 2 : 0);
    std::sscanf(level.c_str(), "%*[^=]=%u", &bytes);
    std::size_t const size =
        row_stride(width, image.desc.getPixelBits(), &padded_to_4) * height * depth;
    image.resize(bytes != 0 ? bytes : size - (has("+short") ? 1 : 0), 0);
    gl.regions.push_back({image.begin(), image.size(), name});
    image.m_width = width;
    if constexpr (requires { image.m_height; }) {
        image.m_height = height;
    }
    if constexpr (requires { image.m_depth; }) {
        image.m_depth = depth;
    }
    if constexpr (std::is_same_v<image_t, image2d_t>) {
        if (has("+window")) {
            image.window = {width, 1, 1};
            image.m_width /= 2;
            image.m_height /= 2;
        }
    }
    return image;
}

template <typename texture_t, typename record_t>
std::unique_ptr<grTexturableImageGL> make(row_t const& row, gl_recorder_t& gl,
                                          auto const& filters) {
    auto texture = std::make_unique<texture_t>();
    unsigned long i = 0;
    for (std::string const& level : row.levels) {
        std::string name("L");
        name += std::to_string(i);
        if (level == "restart") {
            i = 0;
            continue;
        }
        if (level != "unset") {
            std::vector<record_t> records(1);
            if constexpr (std::is_array_v<record_t>) {
                for (int face = 0; face < 6; ++face) {
                    records[0][face] = make_image<image2d_t>(level, gl, name + faces[face]);
                }
            } else {
                records[0] = make_image<record_t>(level, gl, name);
            }
            i == 0 ? texture->setImage(records[0], row.size, i)
                   : texture->setImages(records, row.size, i);
        }
        ++i;
    }
    texture->setBuildMipmap(row.has("mipmaps"));
    texture->setBorder(row.has("border"));
    texture->setInternalCompression(row.has("internal-compression"));
    texture->setTextureParameter(row.has("filters") ? &filters : nullptr);
    texture->setBorderColor(row.has("border-color") ? &border_color : nullptr);
    return texture;
}

std::unique_ptr<grTexturableImageGL> make_texture(row_t const& row, gl_recorder_t& gl) {
    if (row.has("texturerectangle")) {
        auto texture = std::make_unique<grTextureRectangle>();
        texture->setTextureParameter(row.has("filters") ? &filters2d : nullptr);
        texture->setImage(make_image<image2d_t>(row.levels[0], gl, "L0"));
        return texture;
    }
    return row.has("texture1d")   ? make<grTexture1D, image1d_t>(row, gl, filters1d)
           : row.has("texture2d") ? make<grTexture2D, image2d_t>(row, gl, filters2d)
           : row.has("texture3d") ? make<grTexture3D, image3d_t>(row, gl, filters3d)
                                  : make<grTextureCubeMap, image2d_t[6]>(row, gl, filterscubemap);
}

/// Returns the lines with one call in place of the same call for each face of a cube map.
std::vector<std::string> fold_faces(std::vector<std::string> const& lines) {
    std::vector<std::string> folded;
    std::map<std::string, int> count;
    for (std::string const& line : lines) {
        auto const* const face = std::ranges::find_if(
            faces, [&line](char const* name) { return line.find(name) != std::string::npos; });
        if (face == std::end(faces)) {
            folded.push_back(line);
            continue;
        }
        std::string const short_line = replace_all(line, "GL_TEXTURE_CUBE_MAP_", "");
        std::string const call = replace_all(short_line, *face, "FACE");
        EXPECT_EQ(count[call]++, face - faces) << line;
        if (face == faces + 5) {
            folded.push_back(call);
        }
    }
    return folded;
}

/// Returns the number of `parameters` that a call depends on.
std::size_t parameter_count(std::string const& call) {
    bool const is_upload = call.starts_with("gluBuild") || call.find("Image") != std::string::npos;
    std::size_t const all = call.starts_with("gluBuild") ? std::size(parameters) : 7;
    return !is_upload ? 0 : call.find("3D") != std::string::npos ? all : 5;
}

/// Returns the calls since the last one, with the pixel store parameters of each upload.
std::string take_calls(gl_recorder_t& gl, std::map<std::string, int>& state) {
    std::string text;
    for (std::string const& line : fold_faces(std::exchange(gl.lines, {}))) {
        char parameter[64];
        int value = 0;
        if (std::sscanf(line.c_str(), "glPixelStorei(%63[A-Z_], %d)", parameter, &value) == 2) {
            state[parameter] = value;
            continue;
        }
        text += replace_all(replace_all(line, "GL_TEXTURE_", ""), "GL_", "");
        for (auto const& [key, padded, ignored] : std::span(parameters, parameter_count(line))) {
            std::string const name = gl_enum_name(key);
            if (state[name] != padded) {
                std::size_t const prefix = std::strlen(name[3] == 'U' ? "GL_UNPACK_" : "GL_");
                text.append(" ").append(name.substr(prefix)).append("=");
                text += std::to_string(state[name]);
            }
        }
        text += "\n";
    }
    return text;
}

/// Returns the lines of the error stream, repeated lines once. The report of an image is one line.
/// A GL error and the values after it are one line.
std::string fold_errors(std::string const& errors) {
    std::string report =
        replace_all(errors, "Not supported image format!\nimgformat: IMAGE_FORMAT_", "rejected ");
    report = replace_all(report, "\nimgtype: IMAGE_TYPE_", " ");
    report = replace_all(report, "\nimgbits: IMAGE_BITS_", " ");
    report = replace_all(report, "Error 1281: invalid value", "error");
    report = std::regex_replace(report, std::regex("\n(\\w+: \\d+)"), " $1");
    auto lines = transcript::lines_of(report);
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    std::string text;
    for (std::string const& line : lines) {
        text += "stderr: " + line + "\n";
    }
    return text;
}

std::string calls_of(row_t const& row) {
    gl_recorder_t gl;
    gl.muted.insert("glGetIntegerv");
    std::map<std::string, int> state;
    for (parameter_t const& parameter : parameters) {
        gl.integers[parameter.name] = {parameter.before_load};
        state[gl_enum_name(parameter.name)] = parameter.before_load;
    }
    gl_flag_t const gl3(is_GL_VERSION_3_0_supported, row.has("gl3"));
    gl_flag_t const sgis(is_GL_SGIS_generate_mipmap_supported, row.has("sgis"));
    gl_flag_t const arb(is_GL_ARB_texture_compression_supported, row.has("compression"));
    gl_flag_t const aniso(is_GL_EXT_texture_filter_anisotropic_supported, row.has("anisotropy"));
    auto const texture = make_texture(row, gl);
    capture_t capture;
    gl.errors.assign(row.errors, GL_INVALID_VALUE);
    texture->Load();
    std::string const calls = take_calls(gl, state), errors = fold_errors(capture.err());
    if (!row.has("reload")) {
        return calls + errors;
    }
    gl.errors.assign(row.errors, GL_INVALID_VALUE);
    texture->Reload();
    std::string const again = take_calls(gl, state);
    EXPECT_EQ(errors, fold_errors(capture.err()));
    return calls + errors + (again == calls ? "" : "Reload:\n" + again);
}

TEST(TextureRoutes, EachRouteMakesItsCalls) {
    std::string text;
    for (std::string const& line : transcript::lines_of(read_file(ROUTE_CALLS))) {
        if (line.starts_with("# ")) {
            SCOPED_TRACE(line);
            text += line + "\n" + calls_of(row_t(line));
        }
    }
    EXPECT_TRUE(matches_file(text, ROUTE_CALLS));
}

TEST(TextureRoutes, ClassesHaveTheDimensionsOfTheirTargets) {
    EXPECT_EQ(grTexture1D().Dimension(), 1U);
    EXPECT_EQ(grTexture2D().Dimension(), 2U);
    EXPECT_EQ(grTexture3D().Dimension(), 3U);
    EXPECT_EQ(grTextureCubeMap().Dimension(), 6U);
    EXPECT_EQ(grTextureRectangle().Dimension(), 2U) << "it is bound as a 2-D texture";
}

TEST(TextureRoutes, SgisGeneratesMipmapsOfRgbOnly) {
    gl_flag_t const flag(is_GL_SGIS_generate_mipmap_supported, 1);
    for (int const format : {GL_RGB5, GL_RGB8, GL_RGBA8, GL_BGR, GL_BGRA, GL_RGB, GL_RGBA}) {
        EXPECT_EQ(mipmap_route(static_cast<GLenum>(format), false), mipmap_route_t::sgis);
    }
    EXPECT_EQ(mipmap_route(GL_LUMINANCE8, false), mipmap_route_t::glu);
}

}  // namespace
