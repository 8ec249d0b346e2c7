// SPDX-License-Identifier: MIT
// JPEG files made by the encoder, then cut, damaged and given markers.
#include <cstdlib>

#include "codecs/jpeginfo.h"
#include "codecs/jpegobject.h"
#include "codecs/jpegtransform.h"
#include "codecs/orientation.h"
#include "codecs/sizelimits.h"
#include "geometry/constants.h"
#include "tests/codecs/jpegmaker.h"

namespace {

using namespace libgr;

/// A component of a smooth picture at (x, y), y from the bottom.
unsigned char smooth(unsigned int component, unsigned int x, unsigned int y) {
    return static_cast<unsigned char>(40 * component + x + 2 * y);
}

image2d_t picture(unsigned int components, unsigned int width, unsigned int height) {
    image2d_t image;
    image.desc = {components == 1 ? IMAGE_FORMAT_GRAYSCALE : IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT,
                  IMAGE_BITS_8};
    image.m_width = width;
    image.m_height = height;
    EXPECT_TRUE(image.allocate());
    for (unsigned int n = 0; n < width * height * components; ++n) {
        unsigned int const i = n % (width * components), y = n / (width * components);
        pixel_row(image, y)[i] = smooth(i % components, i / components, y);
    }
    return image;
}

std::string encoded(image2d_t const& image, jpeginfo_t info = {}) {
    jpegdata_t data;
    EXPECT_TRUE(info.compress(data, image, 95, true));
    return bytes_of(data);
}

struct JpegTest : picture_test_t {
    /// Loads these bytes as a file. Returns "true " or "false " and all lines of the error stream.
    /// A load that does not end is ended by SIGALRM.
    std::string load(std::string const& bytes) {
        write_file(file, bytes);
        codec = {};
        image = {};
        testing::internal::CaptureStderr();
        alarm(20);
        std::string const loaded = codec.load(image, path) ? "true " : "false ";
        alarm(0);
        return loaded + testing::internal::GetCapturedStderr();
    }

    /// Rows, from the top, that are within 12 of the smooth picture.
    unsigned int good_rows() {
        auto const row_bytes = static_cast<unsigned int>(image.rowbyte());
        unsigned int const components = row_bytes / image.m_width;
        for (unsigned int n = 0; n < image.m_height * row_bytes; ++n) {
            unsigned int const i = n % row_bytes, y = image.m_height - 1 - n / row_bytes;
            int const wanted = smooth(i % components, i / components, y);
            if (std::abs(pixel_row(image, y)[i] - wanted) > 12) {
                return n / row_bytes;
            }
        }
        return image.m_height;
    }

    /// Returns how many rows are equal to those of `bytes` in a plain decoder.
    unsigned int rows_as_in(std::string const& bytes) const {
        pixels_t const plain = pixels_of(bytes);
        unsigned int const row_bytes = plain.width * plain.components;
        unsigned int rows = 0;
        for (unsigned int y = 0; y < image.m_height; ++y) {
            unsigned char const* const row = pixel_row(image, image.m_height - 1 - y);
            rows += std::equal(row, row + row_bytes, plain.samples.begin() + y * row_bytes);
        }
        return rows;
    }

    image_jpeg1_t codec;
};

TEST_F(JpegTest, DecodesWhatItEncodesBottomRowFirst) {
    for (auto const& [components, width, height, expected] :
         {std::tuple{3u, 33u, 21u, "33x21 RGB 8 0: 2100"},
          {1u, 7u, 40u, "7x40 GRAYSCALE 8 0: 320"},
          {3u, 1u, 1u, "1x1 RGB 8 0: 4"}}) {
        bool const loaded = load(encoded(picture(components, width, height))) == "true ";
        EXPECT_EQ(outcome(loaded), expected);
        EXPECT_EQ(good_rows(), height);
    }
    for (image2d_t const& refused : {image_of(4, 4, IMAGE_FORMAT_BGR, IMAGE_BITS_8, ramp(48)),
                                     image_of(4, 5, IMAGE_FORMAT_RGB, IMAGE_BITS_8, ramp(48)),
                                     image_of(1, 1, IMAGE_FORMAT_RGB, IMAGE_BITS_8, "")}) {
        EXPECT_FALSE(codec.save(refused, path));
    }
}

TEST_F(JpegTest, TurnsByTheFirstApp1Alone) {
    std::string const six = segment(0xE1, exif(true, 6));
    std::string const jpeg = encoded(picture(3, 16, 16));
    for (auto const& [segments, count] : std::vector<std::pair<std::string, unsigned long>>{
             {segment(0xE1, exif(true, 1)), 0},
             {segment(0xE1, exif(false, 2)), 0},
             {segment(0xE1, exif(true, 3)), 2},
             {segment(0xE1, exif(false, 6)), 1},
             {segment(0xE1, exif(true, 8)), 3},
             {segment(0xE2, "x") + six, 1},
             {segment(0xE1, "http://") + six, 0},
             {segment(0xE1, "") + six, 1},
             {segment(0xE1, exif(true, 6).substr(0, 44)), 0}}) {
        EXPECT_EQ(load(std::string(jpeg).insert(2, segments)).substr(0, 5), "true ");
        EXPECT_EQ(codec.rightrotatecount(), count) << segments;
        EXPECT_EQ(good_rows(), 16u);
    }
    EXPECT_EQ(mixorientandrightrotatecount(3, 3), 1u);
    EXPECT_EQ(mixorientandrightrotatecount(3, 6), 0u);
    EXPECT_EQ(mixorientandrightrotatecount(7, 1), 7u);
}

TEST_F(JpegTest, KeepsWholeMarkersAndWritesThemAgain) {
    std::string const kept = segment(0xFE, std::string(300, 'c')) + segment(0xED, "thirteen");
    jpegdata_t const data =
        jpegdata_of(encoded(picture(1, 8, 8)).insert(2, segment(0xED, "") + kept));
    jpeginfo_t info;
    EXPECT_TRUE(info.analyze_markers(data));
    EXPECT_EQ(info.markers.size(), 4u);  // JFIF's APP0 and the empty one, too
    EXPECT_TRUE(info.decompress(image, data, 0, false, white3ub));
    EXPECT_EQ(info.markers.size(), 3u);
    EXPECT_EQ(info.width, 8u);
    EXPECT_EQ(info.get_marker(MARKER_APP13).size(), 8u);
    EXPECT_TRUE(info.get_marker(MARKER_APP1).empty());
    EXPECT_TRUE(info.get_marker(static_cast<e_marker_num_t>(17)).empty());
    EXPECT_NE(encoded(image, info).find(kept), std::string::npos);
}

TEST_F(JpegTest, ShowsACutFileAsFarAsItGoes) {
    std::string const jpeg = encoded(picture(3, 40, 60));
    std::size_t const scan = jpeg.find("\xFF\xDA");
    unsigned int shown = 0;
    for (std::size_t size = 0; size < jpeg.size(); ++size) {
        std::string const result = load(jpeg.substr(0, size));
        bool const is_shown = size >= scan + 14;
        EXPECT_EQ(result.starts_with("true "), is_shown) << result;
        EXPECT_NE(result.starts_with("false " + file + ": error detected.\n"), is_shown) << result;
        char const* const end = is_shown ? "decompress fail" : ": jpeg decompress fail, stop.\n";
        EXPECT_NE(result.find(end), result.npos) << result;
        unsigned int const rows = is_shown ? good_rows() : 0;
        EXPECT_GE(rows, shown) << size;
        shown = rows;
    }
    EXPECT_EQ(shown, 60u);  // but for the end mark all is there
    std::string const half = jpeg.substr(0, (scan + jpeg.size()) / 2) + "\xFF\xD9";
    EXPECT_NE(load(half).find(file + ": decompress fail.\n"), half.npos);
    EXPECT_FALSE(codec.load(image, dir.file("gone.jpg").c_str()));
    EXPECT_FALSE(codec.load(image, dir.path().c_str()));
}

TEST_F(JpegTest, ShowsWhatOneOfManyScansOrIntervalsLeaves) {
    std::string const scans = jpeg_of({70, 50, JCS_GRAYSCALE, 1, 1, true});
    EXPECT_EQ(load(scans), "true ");
    EXPECT_EQ(rows_as_in(scans), 50u);
    std::size_t const first = scans.find("\xFF\xDA");
    for (std::size_t at = first; at != scans.npos; at = scans.find("\xFF\xDA", at + 2)) {
        std::string const cut = scans.substr(0, at + 12);  // behind the scan's header
        EXPECT_NE(load(cut).find(": decompress fail.\n"), cut.npos) << at;
        EXPECT_EQ(rows_as_in(cut + "\xFF\xD9"), 50u) << at;
    }
    for (std::size_t at = first + 12; at < scans.size(); ++at) {  // between the scans, too
        EXPECT_NE(load(scans.substr(0, at)).find("decompress fail"), scans.npos) << at;
        EXPECT_NE(pixel_row(image, 0)[0], 0) << at;
    }
    std::string const arithmetic = jpeg_of({70, 50, JCS_GRAYSCALE, 1, 1, false, 0, true});
    EXPECT_EQ(load(arithmetic), "true ");
    EXPECT_EQ(rows_as_in(arithmetic), 50u);
    std::string const intervals = jpeg_of({64, 64, JCS_GRAYSCALE, 1, 1, false, 3});
    std::size_t const second = intervals.find("\xFF\xD0"), third = intervals.find("\xFF\xD1");
    EXPECT_EQ(load(std::string(intervals).erase(second + 4, third - second - 4)).find("fail"),
              intervals.npos);
    EXPECT_EQ(rows_as_in(intervals), 56u) << "but for the row of blocks with that interval";
    std::string const lines = load(jpeg_without_end());
    EXPECT_TRUE(lines.ends_with(file + ": decompress fail.\n"));
    EXPECT_EQ(limits_in(lines, file), "jpeg-blocks ");
    EXPECT_NE(pixel_row(image, image.m_height - 1)[0], 0) << "what the first scans tell";
    EXPECT_EQ(limits_in(load(jpeg_without_end(32, 20)), file), "jpeg-scans ");
}

TEST_F(JpegTest, EndsWhereASegmentAfterTheRowsIsLongerThanTheFile) {
    for (layout_t const& layout : {layout_t{300, 200, JCS_GRAYSCALE, 1, 1},
                                   {300, 200, JCS_GRAYSCALE, 1, 1, false, 3},
                                   {300, 200, JCS_GRAYSCALE, 1, 1, true},
                                   {300, 200, JCS_GRAYSCALE, 1, 1, false, 0, true}}) {
        std::string const whole = jpeg_of(layout), rows = whole.substr(0, whole.size() - 2);
        for (unsigned long const tail : {0xFFE0FFF0, 0xFFFEFFFF, 0xFFE58000, 0xFFDBFFFF}) {
            std::string const bytes = rows + be(tail, 4);
            EXPECT_TRUE(load(bytes).starts_with("true ")) << std::hex << tail;
            EXPECT_EQ(rows_as_in(whole), 200u) << std::hex << tail;
            jpegdata_t const data = jpegdata_of(bytes);
            jpegdata_t turned;
            alarm(20);
            EXPECT_TRUE(jpeginfo_t().analyze_markers(data));
            EXPECT_FALSE(transform(1, turned, data));
            alarm(0);
        }
    }
}

TEST_F(JpegTest, RefusesWhatCantBeHeldAndSkipsWithinBounds) {
    std::string const jpeg = encoded(picture(3, 40, 60));
    std::size_t const frame = jpeg.find("\xFF\xC0");
    std::string const lines = load(std::string(jpeg).replace(frame + 5, 4, be(0xFFDCFFDC, 4)));
    EXPECT_EQ(limits_in(lines, file), "jpeg-ratio ");
    EXPECT_TRUE(lines.starts_with("false ") && lines.ends_with(": jpeg decompress fail, stop.\n"));
    EXPECT_TRUE(image.empty());
    // A segment that says it is longer than the file.
    std::string const skipping = jpeg.substr(0, 2) + be(0xFFDCFFFF, 4) + "short";
    EXPECT_TRUE(load(skipping).starts_with("false " + file + ": error detected.\n"));
    // As many components as CMYK has, in a header of their length.
    std::string four = std::string(jpeg).insert(frame + 19, be(0x041101, 3));
    four[frame + 3] = 0x14;
    four[frame + 9] = 4;
    EXPECT_EQ(load(four), "false ");
}

TEST_F(JpegTest, LaysOutSquaresAndBorders) {
    write_file(file, encoded(picture(3, 10, 20)));
    jpegdata_t data;
    ASSERT_TRUE(data.load(path, nullptr));
    struct {
        unsigned short unit;
        bool border;
        unsigned int rowlength, skiprows;
        std::size_t bytes;
        unsigned int x, y, byte;  // a byte beside the picture
    } const rows[] = {{16, false, 32, 0, 96 * 32, 10, 3, 0},
                      {5, false, 20, 0, 60 * 20, 19, 19, 0},
                      {16, true, 34, 1, 104 * 34, 11, 3, 1},
                      {0, true, 12, 1, 36 * 12, 11, 3, 1}};
    for (auto const& row : rows) {
        image = {};
        EXPECT_TRUE(
            jpeginfo_t().decompress(image, data, row.unit, row.border, color3ub_t{1, 2, 3}));
        EXPECT_EQ(std::tuple(image.window.rowlength, image.window.skiprows, image.size()),
                  std::tuple(row.rowlength, row.skiprows, row.bytes));
        auto const at = [&](unsigned int x, unsigned int y) {
            return *(image.begin() + image.rowsize() * y + std::size_t{x} * 3);
        };
        EXPECT_EQ(at(row.x, row.y), row.byte);
        EXPECT_NEAR(at(4, 5), smooth(0, 4, 5), 12);
    }
    // A strip whose square exceeds the memory of most machines. It takes none where it fits.
    std::string strip = encoded(picture(3, 40, 60));
    jpegdata_t const wide =
        jpegdata_of(strip.replace(strip.find("\xFF\xC0") + 5, 4, be(0x3DFF4B, 4)));
    for (bool const border : {false, true}) {
        image = {};
        long const before = resident_bytes();
        testing::internal::CaptureStderr();
        bool const loaded = jpeginfo_t().decompress(image, wide, 16, border, white3ub);
        std::string const lines = testing::internal::GetCapturedStderr();
        EXPECT_EQ(limits_in(lines, "memory"), loaded ? "" : "picture-memory ");
        EXPECT_EQ(loaded, fits_in_memory(65360, 65360, 24, nullptr));
        EXPECT_LT(resident_bytes() - before, 1L << 30);
    }
}

}  // namespace
