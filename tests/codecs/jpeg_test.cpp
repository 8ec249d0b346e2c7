// SPDX-License-Identifier: MIT
// The JPEG codec, and the memory limits of all JPEG functions.
#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>

#include "codecs/jpeginfo.h"
#include "codecs/jpegtransform.h"
#include "codecs/jtransform.h"
#include "codecs/orientation.h"
#include "geometry/constants.h"
#include "tests/codecs/jpegmaker.h"

// Replaces the function of the C library, so that a test can change the size of the memory.
static long s_memory_size = 0;  // bytes; 0 for the real size
extern "C" long sysconf(int name) noexcept {
    static auto* const real = reinterpret_cast<long (*)(int)>(dlsym(RTLD_NEXT, "sysconf"));
    return name == _SC_PHYS_PAGES && s_memory_size != 0 ? s_memory_size / real(_SC_PAGESIZE)
                                                        : real(name);
}

namespace {

using namespace libgr;

std::string const jpeg = jpeg_of({40, 60, JCS_RGB, 1, 1});
std::size_t const frame = jpeg.find("\xFF\xC0"), scan = jpeg.find("\xFF\xDA");

struct Jpeg : picture_test_t {
    /// Returns the number of rows that a plain decoder decodes to the same samples.
    unsigned int rows_as_in(std::string const& bytes, int tolerance = 0) const {
        pixels_t const plain = pixels_of(bytes);
        unsigned int const row_bytes = plain.width * plain.components;
        unsigned int rows = 0;
        for (unsigned int y = 0; y < image.m_height; ++y) {
            unsigned char const* const row = pixel_row(image, image.m_height - 1 - y);
            rows += std::equal(row, row + row_bytes, plain.samples.begin() + y * row_bytes,
                               [&](int a, int b) { return std::abs(a - b) <= tolerance; });
        }
        return rows;
    }
};

TEST_F(Jpeg, DecodesAndEncodes) {
    for (auto const& [layout, result] :
         {std::pair{layout_t{33, 21, JCS_RGB, 1, 1}, "33x21 RGB 8 0: 2100"},
          {layout_t{7, 40, JCS_GRAYSCALE, 1, 1}, "7x40 GRAYSCALE 8 0: 320"}}) {
        std::string const bytes = jpeg_of(layout);
        EXPECT_EQ(load(bytes), result);
        EXPECT_EQ(lines, "");
        EXPECT_EQ(rows_as_in(bytes), layout.height);
        EXPECT_TRUE(image_jpeg1_t().save(image, file.c_str()));
        EXPECT_EQ(load_file(file), result);
        EXPECT_EQ(rows_as_in(bytes, 30), layout.height);
    }
    for (image2d_t const& rejected : {image_of(4, 4, IMAGE_FORMAT_BGR, IMAGE_BITS_8, ramp(48)),
                                      image_of(4, 5, IMAGE_FORMAT_RGB, IMAGE_BITS_8, ramp(48))}) {
        EXPECT_FALSE(image_jpeg1_t().save(rejected, file.c_str()));
    }
}

TEST_F(Jpeg, ReadsTheOrientationOfTheFirstApp1) {
    std::string const six = segment(0xE1, exif(true, 6));
    for (auto const& [segments, count] : std::vector<std::pair<std::string, unsigned long>>{
             {segment(0xE1, exif(true, 3)), 2},
             {segment(0xE1, exif(false, 8)), 3},
             {segment(0xE2, "x") + six, 1},
             {segment(0xE1, "http://") + six, 0},
             {segment(0xE1, "") + six, 1},
             {segment(0xE1, exif(true, 6).substr(0, 44)), 0}}) {
        load(std::string(jpeg).insert(2, segments));
        EXPECT_EQ(turns, count) << segments;
    }
    EXPECT_EQ(mixorientandrightrotatecount(3, 6), 0u);
    EXPECT_EQ(mixorientandrightrotatecount(7, 1), 7u);
}

TEST_F(Jpeg, KeepsCompleteMarkersAndWritesThem) {
    std::string const kept = segment(0xFE, std::string(300, 'c')) + segment(0xED, "thirteen");
    jpegdata_t const data =
        jpegdata_of(jpeg_of({8, 8, JCS_GRAYSCALE, 1, 1}).insert(2, segment(0xED, "") + kept));
    jpeginfo_t info;
    EXPECT_TRUE(info.analyze_markers(data));
    EXPECT_EQ(info.markers.size(), 4u) << "with the JFIF header and the empty segment";
    EXPECT_TRUE(info.decompress(image, data, 0, false, white3ub));
    EXPECT_EQ(info.get_marker(MARKER_APP13).size(), 8u);
    EXPECT_TRUE(info.get_marker(static_cast<e_marker_num_t>(17)).empty());
    jpegdata_t encoded;
    EXPECT_TRUE(info.compress(encoded, image, 95, true));
    EXPECT_NE(bytes_of(encoded).find(kept), std::string::npos);
}

TEST_F(Jpeg, LoadsTheFirstRowsOfACutFile) {
    unsigned int shown = 0;
    for (std::size_t size = 0; size < jpeg.size(); ++size) {
        SCOPED_TRACE(size);
        std::string const result = load(jpeg.substr(0, size));
        ASSERT_EQ(is_loaded, size >= scan + 14);
        if (is_loaded) {
            EXPECT_NE(lines.find("decompress fail"), lines.npos);
            EXPECT_GE(rows_as_in(jpeg), shown);
            shown = rows_as_in(jpeg);
        } else {
            EXPECT_EQ(result, size == 0 ? "Empty input file" : "Premature end of input file");
            EXPECT_EQ(lines, file + ": error detected.\n" + result + "\n" + file +
                                 ": jpeg decompress fail, stop.\n");
        }
    }
    EXPECT_EQ(shown, 60u) << "only the end marker is missing";
    load(jpeg.substr(0, (scan + jpeg.size()) / 2) + "\xFF\xD9");
    EXPECT_NE(lines.find(file + ": decompress fail.\n"), lines.npos);
}

TEST_F(Jpeg, LoadsAPictureFromSomeOfItsScansOrIntervals) {
    std::string const scans = jpeg_of({70, 50, JCS_GRAYSCALE, 1, 1, true});
    load(scans);
    EXPECT_EQ(lines, "");
    std::size_t const first = scans.find("\xFF\xDA");
    for (std::size_t at = first + 12; at < scans.size(); ++at) {
        load(scans.substr(0, at));
        EXPECT_NE(lines.find("decompress fail"), lines.npos) << at;
        EXPECT_NE(pixel_row(image, 0)[0], 0) << at;
        if (scans.compare(at - 12, 2, "\xFF\xDA") == 0) {  // the header of the scan is complete
            EXPECT_EQ(rows_as_in(scans.substr(0, at) + "\xFF\xD9"), 50u) << at;
        }
    }
    std::string const arithmetic = jpeg_of({70, 50, JCS_GRAYSCALE, 1, 1, false, 0, true});
    load(arithmetic.substr(0, arithmetic.size() / 2));
    EXPECT_NE(lines.find(": decompress fail.\n"), lines.npos);
    // The second restart interval has only 4 bytes.
    std::string intervals = jpeg_of({64, 64, JCS_GRAYSCALE, 1, 1, false, 3});
    std::string const whole = intervals;
    std::size_t const second = intervals.find("\xFF\xD0"), third = intervals.find("\xFF\xD1");
    load(intervals.erase(second + 4, third - second - 4));
    EXPECT_EQ(lines.find("fail"), lines.npos) << lines;
    EXPECT_EQ(rows_as_in(whole), 56u) << "all but one row of blocks";
    load(intervals.insert(second + 4, "\xFF\xD0\x11\x22"));  // the first marker again
    EXPECT_EQ(lines.find("fail"), lines.npos) << lines;
    EXPECT_EQ(rows_as_in(whole), 56u);
    load(jpeg_without_end());
    EXPECT_TRUE(lines.ends_with(file + ": decompress fail.\n")) << lines;
    EXPECT_NE(lines.find(file + ": exceeds limit jpeg-blocks "), lines.npos) << lines;
    EXPECT_NE(pixel_row(image, image.m_height - 1)[0], 0) << "of the first scans";
    load(jpeg_without_end(32, 20));
    EXPECT_NE(lines.find(file + ": exceeds limit jpeg-scans "), lines.npos) << lines;
}

TEST_F(Jpeg, EndsIfASegmentAfterTheRowsIsLongerThanTheFile) {
    for (layout_t const& layout : {layout_t{300, 200, JCS_GRAYSCALE, 1, 1},
                                   {300, 200, JCS_GRAYSCALE, 1, 1, true},
                                   {300, 200, JCS_GRAYSCALE, 1, 1, false, 3, true}}) {
        std::string const whole = jpeg_of(layout), rows = whole.substr(0, whole.size() - 2);
        for (unsigned long const tail : {0xFFE0FFF0, 0xFFFEFFFF, 0xFFDBFFFF}) {
            SCOPED_TRACE(tail);
            EXPECT_EQ(load(rows + be(tail, 4)), "300x200 GRAYSCALE 8 0: 60000");
            EXPECT_EQ(rows_as_in(whole), 200u);
            jpegdata_t turned;
            EXPECT_FALSE(transform(1, turned, jpegdata_of(rows + be(tail, 4))));
        }
    }
}

TEST_F(Jpeg, RejectsDamagedHeaders) {
    std::string four_components = std::string(jpeg).insert(frame + 19, be(0x041101, 3));
    four_components[frame + 3] = 0x14;
    four_components[frame + 9] = 4;
    std::vector<std::pair<std::string, char const*>> const rows = {
        {"BM", "Not a JPEG file: starts with 0x42 0x4d"},
        {four_components, "CMYK JPEG"},
        {std::string(jpeg).replace(frame + 5, 4, be(0x1F400FA0, 4)),
         "exceeds limit jpeg-ratio (4096 bytes of pixels for each of the file)"},
    };
    for (auto const& [bytes, reason] : rows) {
        EXPECT_EQ(load(bytes), reason);
        EXPECT_EQ(lines.empty(), bytes == four_components);
    }
}

TEST_F(Jpeg, MakesSquaresAndBorders) {
    std::string const bytes = jpeg_of({300, 700, JCS_RGB, 1, 1});
    pixels_t const plain = pixels_of(bytes);
    struct {
        unsigned short unit;
        bool border;
        unsigned int rowlength;
        std::size_t bytes;
        unsigned int x, y, byte;  // a byte outside of the picture
    } const rows[] = {{16, false, 704, 2112 * 704, 300, 3, 0},
                      {7, false, 700, 2100 * 700, 699, 699, 0},
                      {16, true, 706, 2120 * 706, 301, 3, 1},
                      {0, true, 302, 908 * 302, 301, 3, 1}};  // no room for the first rows
    for (auto const& row : rows) {
        image = {};
        EXPECT_TRUE(jpeginfo_t().decompress(image, jpegdata_of(bytes), row.unit, row.border,
                                            color3ub_t{1, 2, 3}));
        EXPECT_EQ(image.window.rowlength, row.rowlength);
        EXPECT_EQ(image.size(), row.bytes);
        auto const at = [&](unsigned int x, unsigned int y) {
            return *(image.begin() + image.rowsize() * y + std::size_t{x} * 3);
        };
        EXPECT_EQ(at(row.x, row.y), row.byte);
        EXPECT_EQ(at(4, 5), plain.at(4, 694, 0));
        std::string const fresh = pixels();
        std::fill(image.begin(), image.end(), static_cast<unsigned char>(0xEE));
        EXPECT_TRUE(jpeginfo_t().decompress(image, jpegdata_of(bytes), row.unit, row.border,
                                            color3ub_t{1, 2, 3}));
        EXPECT_TRUE(row.border || pixels() == fresh) << "squares are cleared again";
    }
    jpegdata_t const square = jpegdata_of(jpeg_of({6, 6, JCS_RGB, 1, 1}));
    EXPECT_TRUE(jpeginfo_t().decompress(image, square, 0, true, color3ub_t{1, 2, 3}));
    EXPECT_EQ(pixels().substr(8 * 8 * 3 - 3), "\1\2\3") << "the last corner";
    jpegdata_t const wide = jpegdata_of(jpeg_of({65500, 1, JCS_GRAYSCALE, 1, 1}));
    capture_t streams;
    EXPECT_FALSE(jpeginfo_t().decompress(image, wide, 256, true, white3ub)) << "65,536 columns";
}

TEST_F(Jpeg, ChecksTheMemoryForPixelsAndCoefficients) {
    jpegdata_t const plain = jpegdata_of(jpeg_of({400, 240, JCS_RGB, 1, 1}));
    jpegdata_t const scans = jpegdata_of(jpeg_of({400, 240, JCS_YCbCr, 1, 1, true}));
    struct {
        char const* name;
        long bytes;  ///< for all pixels
        jpegdata_t const& data;
        bool is_turned;
        unsigned int width = 400;
    } const rows[] = {
        {"a texture of 4 bytes per pixel", 400 * 240 * 4, plain, false},
        {"with 6 bytes of coefficients", 400 * 240 * 9, scans, false},
        {"twice the coefficients", 400 * 240 * 15, plain, true},
        {"a larger output", 4000 * 240 * 12, plain, true, 4000},
    };
    for (auto const& [name, bytes, data, is_turned, width] : rows) {
        for (long const spare : {8192, -8192}) {
            jpeg_transform_info request{
                .crop = true, .crop_width = width, .crop_width_set = JCROP_FORCED};
            jpegdata_t out;
            image = {};
            s_memory_size = bytes * 2 + spare;
            capture_t streams;
            EXPECT_EQ(is_turned ? transform(request, JCOPY_NONE, out, data)
                                : jpeginfo_t().decompress(image, data, 0, false, white3ub),
                      spare > 0)
                << name;
            s_memory_size = 0;
        }
    }
}

}  // namespace
