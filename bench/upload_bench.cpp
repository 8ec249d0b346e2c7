// SPDX-License-Identifier: MIT
// Compares the upload of a picture of 24 megapixels with the same OpenGL calls made directly.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include "bench/benchcontext.h"
#include "gl/texture.h"
#include "glext/glextloader.h"
#include "image/image.h"
#include "scene/squaretiles.h"
#include "scene/tiletextures.h"

namespace {

constexpr unsigned width = 6000;
constexpr unsigned height = 4000;
constexpr unsigned tile = 256;

libgr::image2d_t photograph() {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = width;
    image.m_height = height;
    if (image.allocate()) {
        for (std::size_t i = 0; i < image.size(); ++i) {
            image[i] = static_cast<unsigned char>(i * 2654435761u >> 24);
        }
    }
    return image;
}

libgr::image2d_t& picture() {
    static libgr::image2d_t image = photograph();
    return image;
}

void need_context() {
    static bench_context_t const context;
}

void upload_record(benchmark::State& state) {
    need_context();
    for (auto _ : state) {
        zanolib::multi_square_image_t squares;
        zanolib::multi_texture_object_t textures;
        zanolib::rectangle_to_squares(squares, picture(), tile, true);
        zanolib::squares_to_texobjs(textures, squares);
        textures.Preload();
        glFinish();
        textures.Unload();
    }
}

void bare_calls(benchmark::State& state) {
    need_context();
    unsigned char const* const pixels = picture().begin();
    std::size_t const columns = (width + tile - 1) / tile;
    std::size_t const rows = (height + tile - 1) / tile;
    std::vector<GLuint> names(columns * rows);
    for (auto _ : state) {
        glGenTextures(static_cast<GLsizei>(names.size()), names.data());
        auto name = names.begin();
        glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
        glPixelStorei(GL_UNPACK_ROW_LENGTH, width);
        for (unsigned y = 0; y < height; y += tile) {
            for (unsigned x = 0; x < width; x += tile) {
                glBindTexture(GL_TEXTURE_2D, *name++);
                glPixelStorei(GL_UNPACK_SKIP_PIXELS, static_cast<GLint>(x));
                glPixelStorei(GL_UNPACK_SKIP_ROWS, static_cast<GLint>(y));
                glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB8, tile, tile, 0, GL_RGB, GL_UNSIGNED_BYTE,
                             nullptr);
                glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0,
                                static_cast<GLsizei>(std::min(tile, width - x)),
                                static_cast<GLsizei>(std::min(tile, height - y)), GL_RGB,
                                GL_UNSIGNED_BYTE, pixels);
                glGenerateMipmap(GL_TEXTURE_2D);
            }
        }
        glFinish();
        glBindTexture(GL_TEXTURE_2D, 0);
        glDeleteTextures(static_cast<GLsizei>(names.size()), names.data());
    }
}

BENCHMARK(upload_record)->Unit(benchmark::kMillisecond);
BENCHMARK(bare_calls)->Unit(benchmark::kMillisecond);

}  // namespace
