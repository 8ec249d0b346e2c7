// SPDX-License-Identifier: MIT
// Compares the loading of a BMP with mmap alone, and with a read of the same bytes.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "codecs/bmpimage2.h"
#include "image/image.h"
#include "utils/filedescriptor.h"

namespace {

constexpr unsigned width = 6000;
constexpr unsigned height = 4000;
constexpr std::size_t file_size = 54 + std::size_t{width} * 3 * height;

void put32(std::string& bytes, std::size_t at, unsigned value) {
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[at + i] = static_cast<char>(value >> (8 * i));
    }
}

/// A file with a BMP of 24 megapixels, removed at the end of the process.
class big_bmp_t {
  public:
    big_bmp_t() : m_path("/tmp/zv_bench_" + std::to_string(getpid()) + ".bmp") {
        std::string bytes(file_size, '\x5a');
        bytes.replace(0, 54, 54, '\0');
        bytes.replace(0, 2, "BM");
        put32(bytes, 10, 54);
        put32(bytes, 14, 40);
        put32(bytes, 18, width);
        put32(bytes, 22, height);
        bytes[26] = 1;
        bytes[28] = 24;
        std::ofstream(m_path, std::ios::binary) << bytes;
    }
    ~big_bmp_t() { std::remove(m_path.c_str()); }
    char const* path() const { return m_path.c_str(); }

  private:
    std::string m_path;
};

big_bmp_t const& big_bmp() {
    static big_bmp_t const file;
    return file;
}

void load_bmp(benchmark::State& state) {
    char const* const path = big_bmp().path();
    for (auto _ : state) {
        libgr::image_bmp2_t codec;
        libgr::image2d_t image;
        if (!codec.load(image, path)) {
            state.SkipWithError("the picture does not load");
        }
        benchmark::DoNotOptimize(image.begin());
    }
}

void bare_map(benchmark::State& state) {
    char const* const path = big_bmp().path();
    for (auto _ : state) {
        libutils::file_descriptor_t const file(open(path, O_RDONLY));
        void* const map = mmap(nullptr, file_size, PROT_READ, MAP_SHARED, file.get(), 0);
        benchmark::DoNotOptimize(map);
        munmap(map, file_size);
    }
}

void read_all(benchmark::State& state) {
    char const* const path = big_bmp().path();
    std::vector<char> bytes(file_size);
    for (auto _ : state) {
        libutils::file_descriptor_t const file(open(path, O_RDONLY));
        benchmark::DoNotOptimize(read(file.get(), bytes.data(), bytes.size()));
    }
}

BENCHMARK(load_bmp);
BENCHMARK(bare_map);
BENCHMARK(read_all)->Unit(benchmark::kMicrosecond);

}  // namespace
