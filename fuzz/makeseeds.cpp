// SPDX-License-Identifier: MIT
// Writes the first inputs of every fuzz target: makeseeds SOURCE_DIRECTORY SEED_DIRECTORY
//
// The files of target T go into SEED_DIRECTORY/T. They come from the generators and tables of the
// tests and from data/.
#include <cstdio>
#include <utility>
#include <vector>

#include "options/option.h"
#include "options/userdefault.h"
#include "tests/codecs/filemakers.h"
#include "tests/codecs/jpegmaker.h"
#include "tests/metadata/exifblocks.h"
#include "tests/metadata/segmentbytes.h"

namespace {

namespace fs = std::filesystem;

fs::path source, seeds;

/// Writes the next seed of a target.
void add(std::string const& target, std::string const& bytes) {
    static unsigned int count = 0;
    write_file(seeds / target / std::to_string(count++), bytes);
}

std::vector<std::string> lines_of(fs::path const& path, char end = '\n') {
    std::istringstream in(read_file(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line, end);) {
        lines.push_back(line);
    }
    return lines;
}

void add_bmps_and_tgas() {
    for (unsigned int const depth : {1U, 4U, 8U, 16U, 24U, 32U}) {
        std::string const palette = depth <= 8 ? ramp(4UL << depth) : "";
        for (unsigned int const width : {4U, 7U}) {
            for (char const* target : {"bmp", "bmpstream"}) {
                add(target, bmp_t{width, 5, depth, ramp(160), palette}.bytes());
                add(target, bmp_t{width, 0U - 5, depth, ramp(160), palette, depth / 4}.bytes());
            }
            add("tga", tga_t{2, width, 5, depth, ramp(160), 0, "id"}.bytes());
            add("tga", tga_t{1, width, 5, depth, ramp(160), 0x20, "", 1, 2, 24, ramp(9)}.bytes());
        }
    }
}

void add_pngs() {
    struct {
        unsigned int color_type, components, depths;  ///< the depths' bits are set
    } const rows[] = {{0, 1, 31}, {2, 3, 24}, {3, 1, 15}, {4, 2, 24}, {6, 4, 24}};
    for (auto const& row : rows) {
        for (unsigned int depth = 1; depth <= 16; depth *= 2) {
            std::string const palette = row.color_type == 3 ? ramp(3UL << depth) : "";
            std::size_t const row_bytes = (9 * row.components * depth + 7) / 8;
            std::string pixels;
            for (char filter = 0; filter < 5; ++filter) {
                pixels += filter + ramp(row_bytes);
            }
            if ((row.depths & depth) != 0) {
                // The passes of an interlaced picture have other rows: there are enough bytes.
                std::string const passes(pixels.size() * 2, '\0');
                add("png", png_t{9, 5, row.color_type, depth, pixels, palette}.bytes());
                add("png", png_t{9, 5, row.color_type, depth, passes, palette, 1}.bytes());
            }
        }
    }
}

void add_jpegs() {
    std::vector<layout_t> const layouts = {
        {19, 21, JCS_YCbCr, 2, 2},           {24, 16, JCS_GRAYSCALE, 1, 1},
        {33, 17, JCS_RGB, 1, 1, true},       {40, 9, JCS_YCbCr, 2, 1, true, 0, true},
        {17, 40, JCS_YCbCr, 1, 2, false, 2}, {64, 8, JCS_YCbCr, 4, 1, false, 1, true},
        {66, 34, JCS_YCbCr, 4, 4},
    };
    std::vector<std::string> segments = {
        segment(0xFE, "a comment") + segment(0xE2, ramp(20)),
        segment(0xE1, exif(true, 6)) + segment(0xED, "x"),
    };
    for (auto const& [maker, note] : makers_and_notes) {
        segments.push_back(segment(0xE1, block_t(true, maker, note).app1()));
    }
    std::vector<std::string> const requests = {
        "00\n",          "12ts\n",         "21p\n",
        "33\n",          "44g\n",          "50t 20x8f+4-4\n",
        "62 16r+8+8\n",  "71 200rx90f\n",  "82\n",
        "92\n",          "12s\n",          "02g x8-0+0\n",
        "50 10x10+8\n",  "30 9fx9r-3-3\n", "60p 17x33\n",
        "42t 0x0+1+1\n",
    };
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        std::string const file = jpeg_of(layouts[i], segments[i % segments.size()]);
        add("jpeg", file);
        for (std::size_t r = i % 2; r < requests.size(); r += 2) {
            add("jpegtransform", requests[r] + file);
        }
    }
    for (auto const& [maker, note] : makers_and_notes) {
        add("exif", block_t(true, maker, note).bytes());
        add("exif", block_t(false, maker, note).bytes());
    }
}

void add_marker_segments() {
    std::vector<std::string> const readers = {"SOF0", "DQT", "DHT", "DRI", "SOS"};
    for (std::string const& line : lines_of(source / "tests/metadata/marker_rows.txt")) {
        auto const reader = std::ranges::find(readers, line.substr(0, line.find(' ')));
        if (reader != readers.end()) {
            std::string const bytes = line.substr(line.find(':') + 1);
            add("jpegmarkers", static_cast<char>(reader - readers.begin()) +
                                   listed_bytes(bytes.substr(0, bytes.find_first_of("|>-"))));
        }
    }
}

void add_texts() {
    std::string forms;
    for (std::string const& line : lines_of(source / "tests/geometry/forms.txt", ';')) {
        std::string const form = line.starts_with('\n') ? line.substr(1) : line;
        add("text", form.starts_with("mute ") ? form.substr(5) : form);
        forms += form;
    }
    add("text", forms);
    std::string const view =
        "dir2l(800, 600)\nmtx3w(\t1.5, 0, 0, 0,\n\t0, 1.5, 0, 0,\n"
        "\t0, 0, 1, 0,\n\t-3.25, 4, 0, 1)\n";
    for (std::size_t size : {view.size(), view.size() / 2, view.size() / 4}) {
        add("zvwfile", view.substr(0, size));
    }
    for (char const* name :
         {"pics/a.b.jpg", "c:\\pics\\dir.x\\.hidden", "/\xE3\x81\x82/\xE3.png"}) {
        add("path", le(12, 2) + name);
        add("path", le(1040, 2) + std::string(1030, 'x') + name);
    }
    for (char const* line :
         {"-verbose -wintype -3 -winsize 7x8 -menu- a b", "-winsize -5,601", "-h -h- a",
          "-frametype", "-framecolor x,65,66,67", "-framecolor 65,66:67_324", "-winsize 0x20x010",
          "-menu-+", "-image_ratio_of_window 100 -doubleclick_interval 0",
          "-winsize 4294967295x99999999999"}) {
        add("options", line);
    }
    std::string const saved = seeds / "options/saved";
    zanolib::option_init();
    zanolib::option_save(saved.c_str());
    for (auto const& entry : fs::directory_iterator(source / "data")) {
        if (entry.path().extension() == ".msg") {
            add("message", read_file(entry.path()));
        }
    }
    add("message", std::string("one\r\n\r\ntw\0o\rthree\n", 18));
}

/// Adds a record that the operation accepts, for each operation and format.
void add_images() {
    struct {
        char format, bits;
        unsigned int pixel_bits;
    } const rows[] = {
        {libgr::IMAGE_FORMAT_GRAYSCALE, libgr::IMAGE_BITS_8, 8},
        {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_BITS_8, 24},
        {libgr::IMAGE_FORMAT_BGR, libgr::IMAGE_BITS_8, 24},
        {libgr::IMAGE_FORMAT_RGBA, libgr::IMAGE_BITS_8, 32},
        {libgr::IMAGE_FORMAT_INDEX, libgr::IMAGE_BITS_4, 4},
        {libgr::IMAGE_FORMAT_INDEX, libgr::IMAGE_BITS_1, 1},
    };
    for (char operation = 0; operation < 21; ++operation) {
        for (auto const& row : rows) {
            std::string const head = {operation, row.format, libgr::IMAGE_TYPE_UINT, row.bits};
            add("image", head + le(6, 2) + le(5, 2) + le(8, 2) + le(1, 1) + le(1, 1) + le(2, 1) +
                             le(16, 1) + ramp(6UL * (row.pixel_bits + 4)));
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s SOURCE_DIRECTORY SEED_DIRECTORY\n", argv[0]);
        return EXIT_FAILURE;
    }
    source = argv[1];
    seeds = argv[2];
    fs::remove_all(seeds);
    for (char const* target : {FUZZ_TARGETS}) {
        fs::create_directories(seeds / target);
    }
    add_bmps_and_tgas();
    add_pngs();
    add_jpegs();
    add_marker_segments();
    add_texts();
    add_images();
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? EXIT_FAILURE
                                                                           : EXIT_SUCCESS;
}
