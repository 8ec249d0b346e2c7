// SPDX-License-Identifier: MIT
// Compares the codecs with direct calls of libjpeg and libpng into memory of the same layout, for
// 24 megapixels.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// jpeglib.h needs FILE.
#include <jpeglib.h>
#include <png.h>

#include "codecs/jpegobject.h"
#include "codecs/png.h"
#include "image/image.h"

namespace {

constexpr unsigned width = 6000;
constexpr unsigned height = 4000;
constexpr std::size_t stride = std::size_t{width} * 3;

libgr::image2d_t photograph() {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = width;
    image.m_height = height;
    if (!image.allocate()) {
        std::abort();
    }
    for (unsigned y = 0; y < height; ++y) {
        unsigned char* to = libgr::pixel_row(image, y);
        for (unsigned x = 0; x < width; ++x) {
            auto const wave = static_cast<unsigned>(60 * std::sin(x * 0.013) * std::cos(y * 0.017));
            unsigned const grain = (x * 2654435761u ^ y * 40503u) >> 27;
            *to++ = static_cast<unsigned char>(128 + wave + grain);
            *to++ = static_cast<unsigned char>(90 + wave / 2 + (x + y) / 128 + grain);
            *to++ = static_cast<unsigned char>(y / 16 + grain);
        }
    }
    return image;
}

/// A file of the codec's format with the photograph, removed at the end of the process.
template <typename codec_t>
class picture_file_t {
  public:
    explicit picture_file_t(char const* kind)
        : m_path("/tmp/zv_bench_" + std::to_string(getpid()) + kind) {
        codec_t().save(photograph(), m_path.c_str());
    }
    ~picture_file_t() { std::remove(m_path.c_str()); }
    char const* path() const { return m_path.c_str(); }

  private:
    std::string m_path;
};

char const* jpeg_path() {
    static picture_file_t<libgr::image_jpeg1_t> const file(".jpg");
    return file.path();
}

char const* png_path() {
    static picture_file_t<libgr::image_png_t> const file(".png");
    return file.path();
}

template <typename codec_t>
void load(benchmark::State& state, char const* path) {
    for (auto _ : state) {
        codec_t codec;
        libgr::image2d_t image;
        if (!codec.load(image, path)) {
            state.SkipWithError("the picture does not load");
        }
        benchmark::DoNotOptimize(image.begin());
    }
}

void load_jpeg(benchmark::State& state) {
    load<libgr::image_jpeg1_t>(state, jpeg_path());
}
void load_png(benchmark::State& state) {
    load<libgr::image_png_t>(state, png_path());
}

libgr::image2d_t store() {
    libgr::image2d_t image;
    image.resize(stride * height, 0);
    return image;
}

void bare_jpeg(benchmark::State& state) {
    char const* const path = jpeg_path();
    for (auto _ : state) {
        libgr::image2d_t pixels = store();
        std::FILE* const file = std::fopen(path, "rb");
        jpeg_decompress_struct cinfo;
        jpeg_error_mgr error;
        cinfo.err = jpeg_std_error(&error);
        jpeg_create_decompress(&cinfo);
        jpeg_stdio_src(&cinfo, file);
        jpeg_read_header(&cinfo, TRUE);
        jpeg_start_decompress(&cinfo);
        while (cinfo.output_scanline < height) {
            JSAMPROW row = pixels.begin() + stride * (height - 1 - cinfo.output_scanline);
            jpeg_read_scanlines(&cinfo, &row, 1);
        }
        jpeg_finish_decompress(&cinfo);
        jpeg_destroy_decompress(&cinfo);
        std::fclose(file);
        benchmark::DoNotOptimize(pixels.begin());
    }
}

void bare_png(benchmark::State& state) {
    char const* const path = png_path();
    for (auto _ : state) {
        libgr::image2d_t pixels = store();
        std::vector<png_bytep> rows(height);
        for (unsigned y = 0; y < height; ++y) {
            rows[y] = pixels.begin() + stride * (height - 1 - y);
        }
        std::FILE* const file = std::fopen(path, "rb");
        png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
        png_infop info = png_create_info_struct(png);
        png_init_io(png, file);
        png_read_info(png, info);
        png_read_update_info(png, info);
        png_read_image(png, rows.data());
        png_destroy_read_struct(&png, &info, nullptr);
        std::fclose(file);
        benchmark::DoNotOptimize(pixels.begin());
    }
}

BENCHMARK(load_jpeg)->Unit(benchmark::kMillisecond);
BENCHMARK(bare_jpeg)->Unit(benchmark::kMillisecond);
BENCHMARK(load_png)->Unit(benchmark::kMillisecond);
BENCHMARK(bare_png)->Unit(benchmark::kMillisecond);

}  // namespace
