// SPDX-License-Identifier: MIT
// JPEG files made by the encoder, then cut, damaged and given markers.
#include <gtest/gtest.h>

#include <cstdlib>

#include "codecs/jpeginfo.h"
#include "codecs/jpegobject.h"
#include "codecs/orientation.h"
#include "geometry/constants.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;

constexpr image_desc_t k_rgb{IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8};
constexpr image_desc_t k_gray{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8};

/// A smooth picture: component c of pixel (x, y), y from the bottom, is 40 * c + x + 2 * y.
image2d_t ramp(image_desc_t desc, unsigned int width, unsigned int height) {
    image2d_t image;
    image.desc = desc;
    image.m_width = width;
    image.m_height = height;
    EXPECT_TRUE(image.allocate());
    unsigned int const components = desc == k_gray ? 1 : 3;
    for (unsigned int y = 0; y < height; ++y) {
        for (unsigned int i = 0; i < width * components; ++i) {
            pixel_row(image, y)[i] =
                static_cast<unsigned char>(40 * (i % components) + i / components + 2 * y);
        }
    }
    return image;
}

/// Rows, from the top, that are within 12 of the ramp.
unsigned int good_rows(image2d_t& image) {
    image2d_t expected = ramp(image.desc, image.m_width, image.m_height);
    for (unsigned int n = 0; n < image.m_height; ++n) {
        unsigned int const y = image.m_height - 1 - n;
        for (unsigned int i = 0; i < image.rowbyte(); ++i) {
            if (std::abs(pixel_row(image, y)[i] - pixel_row(expected, y)[i]) > 12) {
                return n;
            }
        }
    }
    return image.m_height;
}

std::string bytes_in(jpegdata_t const& data) {
    return {reinterpret_cast<char const*>(data.begin()), data.size()};
}

std::string encoded(image2d_t const& image, jpeginfo_t info = {}) {
    jpegdata_t data;
    EXPECT_TRUE(info.compress(data, image, 95, true));
    return bytes_in(data);
}

std::string bytes_of(std::initializer_list<int> values) {
    return std::string(values.begin(), values.end());
}

/// A marker segment: its code, its length, its payload.
std::string segment(int code, std::string const& payload) {
    auto const length = static_cast<int>(payload.size()) + 2;
    return bytes_of({0xFF, code, length >> 8, length & 0xFF}) + payload;
}

std::string with_segments(std::string const& jpeg, std::string const& segments) {
    return jpeg.substr(0, 2) + segments + jpeg.substr(2);
}

/// An Exif block with an Orientation, of the two bytes' order "II" or "MM".
std::string exif(char order, int orientation) {
    auto const word = [&](int value) {
        return order == 'I' ? bytes_of({value, 0}) : bytes_of({0, value});
    };
    auto const longer = [&](int value) {
        return order == 'I' ? word(value) + word(0) : word(0) + word(value);
    };
    return std::string("Exif\0\0", 6) + order + order + word(42) + longer(8) + word(1) +
           (order == 'I' ? bytes_of({0x12, 1}) : bytes_of({1, 0x12})) + word(3) + longer(1) +
           word(orientation) + word(0) + longer(0);
}

class JpegTest : public ::testing::Test {
  protected:
    /// Loads these bytes as a file. The result is the lines on the error stream, the name taken
    /// away, behind "true " or "false ".
    std::string load(std::string const& bytes) {
        std::string const path = m_folder.file("a.jpg");
        write_file(path, bytes);
        capture_t captured;
        m_codec = {};
        m_image = {};
        std::string lines = m_codec.load(m_image, path.c_str()) ? "true " : "false ";
        std::string said = captured.err();
        for (std::size_t at; (at = said.find(path)) != std::string::npos;) {
            said.erase(at, path.size());
        }
        return lines + said;
    }

    temp_dir_t m_folder;
    image_jpeg1_t m_codec;
    image2d_t m_image;
};

TEST_F(JpegTest, DecodesWhatItEncodesBottomRowFirst) {
    for (auto const& [desc, width, height] :
         {std::tuple{k_rgb, 33u, 21u}, {k_gray, 7u, 40u}, {k_rgb, 1u, 1u}, {k_gray, 64u, 16u}}) {
        EXPECT_EQ(load(encoded(ramp(desc, width, height))), "true ");
        EXPECT_TRUE(m_image.desc == desc);
        EXPECT_EQ(m_image.m_width, width);
        EXPECT_EQ(m_image.m_height, height);
        EXPECT_EQ(m_image.store->alignment, 4u);
        EXPECT_EQ(good_rows(m_image), height);
    }
    image2d_t bgr = ramp(k_rgb, 4, 4);
    bgr.desc.format = IMAGE_FORMAT_BGR;
    image2d_t empty;
    empty.desc = k_rgb;
    image2d_t cut = ramp(k_rgb, 4, 4);
    cut.m_height = 5;
    capture_t const quiet;
    for (image2d_t const* refused : {&bgr, &empty, &cut}) {
        EXPECT_FALSE(m_codec.save(*refused, m_folder.file("no.jpg").c_str()));
    }
}

TEST_F(JpegTest, TurnsByTheFirstApp1Alone) {
    struct row_t {
        char const* what;
        std::string segments;
        unsigned long count;
    };
    row_t const rows[] = {
        {"1", segment(0xE1, exif('I', 1)), 0},
        {"2", segment(0xE1, exif('M', 2)), 0},
        {"3", segment(0xE1, exif('I', 3)), 2},
        {"6", segment(0xE1, exif('M', 6)), 1},
        {"8", segment(0xE1, exif('I', 8)), 3},
        {"7", segment(0xE1, exif('I', 7)), 0},
        {"behind APP2", segment(0xE2, "x") + segment(0xE1, exif('I', 6)), 1},
        {"not the first", segment(0xE1, "http://") + segment(0xE1, exif('I', 6)), 0},
        {"an empty one first", segment(0xE1, "") + segment(0xE1, exif('I', 6)), 1},
        {"cut", segment(0xE1, exif('I', 6).substr(0, 20)), 0},
    };
    std::string const jpeg = encoded(ramp(k_rgb, 16, 16));
    for (row_t const& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(load(with_segments(jpeg, row.segments)).substr(0, 5), "true ");
        EXPECT_EQ(m_codec.rightrotatecount(), row.count);
        EXPECT_EQ(good_rows(m_image), 16u);
    }
    EXPECT_EQ(mixorientandrightrotatecount(3, 6), 0u);
    EXPECT_EQ(mixorientandrightrotatecount(7, 1), 7u);
}

TEST_F(JpegTest, KeepsWholeMarkersAndWritesThemAgain) {
    std::string const comment(300, 'c');
    std::string const jpeg =
        with_segments(encoded(ramp(k_gray, 8, 8)),
                      segment(0xFE, comment) + segment(0xED, "") + segment(0xED, "thirteen"));
    jpeg_bytes_t bytes;
    ASSERT_TRUE(bytes.resize(jpeg.size(), 0));
    std::copy(jpeg.begin(), jpeg.end(), bytes.begin());
    jpegdata_t data;
    data.setvector(bytes, "memory");
    jpeginfo_t info;
    EXPECT_TRUE(info.analyze_markers(data));
    EXPECT_EQ(info.markers.size(), 4u);  // JFIF's APP0 and the empty one, too
    image2d_t image;
    EXPECT_TRUE(info.decompress(image, data, 0, false, white3ub));
    EXPECT_EQ(info.markers.size(), 3u);
    EXPECT_EQ(info.width, 8u);
    EXPECT_EQ(info.get_marker(MARKER_APP13).size(), 8u);
    EXPECT_TRUE(info.get_marker(MARKER_APP1).empty());
    EXPECT_TRUE(info.get_marker(static_cast<e_marker_num_t>(17)).empty());
    std::string const again = encoded(image, info);
    EXPECT_NE(again.find(segment(0xFE, comment) + segment(0xED, "thirteen")), std::string::npos);
}

TEST_F(JpegTest, ShowsACutFileAsFarAsItGoes) {
    std::string const jpeg = encoded(ramp(k_rgb, 40, 60));
    std::size_t const scan = jpeg.find("\xFF\xDA");
    unsigned int shown = 0;
    for (std::size_t size = 0; size < jpeg.size(); ++size) {
        SCOPED_TRACE(size);
        std::string const result = load(jpeg.substr(0, size));
        if (size < scan + 14) {
            EXPECT_EQ(result.substr(0, 24), "false : error detected.\n");
            EXPECT_NE(result.find("\n: jpeg decompress fail, stop.\n"), std::string::npos);
        } else {
            EXPECT_EQ(result.substr(0, 5), "true ");
            EXPECT_NE(result.find("decompress fail"), std::string::npos) << result;
            unsigned int const rows = good_rows(m_image);
            EXPECT_GE(rows, shown);
            shown = rows;
        }
    }
    EXPECT_EQ(shown, 60u);  // but for the end mark all is there
    std::string const half = jpeg.substr(0, (scan + jpeg.size()) / 2) + "\xFF\xD9";
    EXPECT_NE(load(half).find("true : decompress fail.\n"), std::string::npos);
    EXPECT_FALSE(m_codec.load(m_image, m_folder.file("gone.jpg").c_str()));
    EXPECT_FALSE(m_codec.load(m_image, m_folder.path().c_str()));
}

TEST_F(JpegTest, RefusesWhatCantBeHeldAndSkipsWithinBounds) {
    std::string jpeg = encoded(ramp(k_rgb, 40, 60));
    std::size_t const frame = jpeg.find("\xFF\xC0");
    std::string const huge =
        jpeg.substr(0, frame + 5) + bytes_of({0xFF, 0xDC, 0xFF, 0xDC}) + jpeg.substr(frame + 9);
    EXPECT_EQ(load(huge), "false : jpeg decompress fail, stop.\n");
    EXPECT_TRUE(m_image.empty());
    // A segment that says it is longer than the file.
    std::string const skipping = jpeg.substr(0, 2) + bytes_of({0xFF, 0xDC, 0xFF, 0xFF}) + "short";
    EXPECT_EQ(load(skipping).substr(0, 24), "false : error detected.\n");
    // As many components as CMYK has, in a header of their length.
    std::string four =
        jpeg.substr(0, frame + 19) + bytes_of({4, 0x11, 1}) + jpeg.substr(frame + 19);
    four[frame + 3] = 0x14;
    four[frame + 9] = 4;
    EXPECT_EQ(load(four), "false ");
}

TEST_F(JpegTest, LaysOutSquaresAndBorders) {
    jpegdata_t data;
    std::string const path = m_folder.file("a.jpg");
    write_file(path, encoded(ramp(k_rgb, 10, 20)));
    ASSERT_TRUE(data.load(path.c_str(), nullptr));
    struct row_t {
        unsigned short unit;
        bool border;
        unsigned int rowlength, skiprows;
        std::size_t bytes;
        unsigned int x, y, byte;  // a byte beside the picture
    };
    for (row_t const& row : {row_t{16, false, 32, 0, 96 * 32, 10, 3, 0},
                             {5, false, 20, 0, 60 * 20, 19, 19, 0},
                             {16, true, 34, 1, 104 * 34, 11, 3, 1},
                             {0, true, 12, 1, 36 * 12, 11, 3, 1}}) {
        image2d_t image;
        jpeginfo_t info;
        EXPECT_TRUE(info.decompress(image, data, row.unit, row.border, color3ub_t{1, 2, 3}));
        EXPECT_EQ(image.window.rowlength, row.rowlength);
        EXPECT_EQ(image.window.skiprows, row.skiprows);
        EXPECT_EQ(image.size(), row.bytes);
        auto const at = [&](unsigned int x, unsigned int y) {
            return *(image.begin() + image.rowsize() * y + std::size_t{x} * 3);
        };
        EXPECT_EQ(at(row.x, row.y), row.byte);
        EXPECT_NEAR(at(4, 5), 4 + 2 * 5, 12);
    }
}

}  // namespace
