// SPDX-License-Identifier: MIT
// The scenes of the sample pictures, and the files that make-samples writes.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string>

#include "codecs/bmpimage.h"
#include "codecs/jpegobject.h"
#include "codecs/png.h"
#include "codecs/tga.h"
#include "image/pixelconvert.h"
#include "samples/scenes.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using samples::canvas_t;

canvas_t grainy_alps(int width) {
    canvas_t canvas = samples::alps(width);
    canvas.add_grain(0.05f);
    return canvas;
}

/// Loads a sample as RGB. Returns the quarter turns to the right that make it upright.
template <typename codec_t>
unsigned long load(image2d_t& image, std::string const& path) {
    codec_t codec;
    image2d_t loaded;
    EXPECT_TRUE(codec.load(loaded, path.c_str()));
    EXPECT_TRUE(bgr2rgb(image, loaded));
    return codec.rightrotatecount();
}

// The averages of the channels in the image's four quarters, in hundredths, bottom row first.
using averages_t = std::array<int, 12>;
struct scene_t {
    char const* file;
    canvas_t (*paint)(int width);
    unsigned long (*load)(image2d_t& image, std::string const& path);
    unsigned int height;  ///< of 120 columns
    unsigned long turns;
    averages_t averages;
};
constexpr scene_t scenes[] = {
    {"alps.jpg",
     grainy_alps,
     load<image_jpeg1_t>,
     80,
     0,
     {7903, 7711, 8120, 11568, 10190, 9509, 15060, 13910, 15985, 16137, 14962, 16087}},
    {"balloons.jpg",
     samples::balloons_at_sunrise,
     load<image_jpeg1_t>,
     160,
     1,
     {18445, 15323, 13098, 19902, 16594, 13553, 13502, 11275, 11611, 14441, 14553, 16195}},
    {"aurora.bmp",
     samples::aurora,
     load<image_bmp_t>,
     90,
     0,
     {2125, 5342, 6695, 2826, 6927, 7565, 2155, 4656, 6007, 2578, 4000, 6287}},
    {"rose.tga",
     samples::rose_window,
     load<image_tga_t>,
     120,
     0,
     {9007, 7027, 9609, 9009, 7009, 9599, 8978, 7011, 9597, 9008, 7015, 9614}},
    {"julia.png",
     samples::julia,
     load<image_png_t>,
     90,
     0,
     {12777, 11935, 11062, 10958, 10428, 9829, 9736, 9270, 8685, 9503, 8759, 7928}},
};

averages_t averages_of(image2d_t const& image) {
    std::array<double, 12> sums{};
    for (std::size_t y = 0; y < image.m_height; ++y) {
        unsigned char const* pixel = image.begin() + image.rowsize() * y;
        for (std::size_t x = 0; x < image.m_width; ++x, pixel += 3) {
            std::size_t const quarter = 2 * (2 * y / image.m_height) + 2 * x / image.m_width;
            for (std::size_t i = 0; i < 3; ++i) {
                sums[3 * quarter + i] += pixel[i];
            }
        }
    }
    averages_t averages{};
    std::ranges::transform(sums, averages.begin(), [&image](double sum) {
        return static_cast<int>(std::lround(sum * 400 / image.m_width / image.m_height));
    });
    return averages;
}

void expect_near(averages_t const& averages, scene_t const& scene, int tolerance) {
    for (std::size_t i = 0; i < averages.size(); ++i) {
        EXPECT_NEAR(averages[i], scene.averages[i], tolerance)
            << scene.file << ", quarter " << i / 3 << ", channel " << i % 3;
    }
}

TEST(Samples, ScenesHaveTheirColours) {
    for (scene_t const& scene : scenes) {
        image2d_t const image = scene.paint(120).image();
        EXPECT_EQ(image.m_width, 120U);
        EXPECT_EQ(image.m_height, scene.height);
        expect_near(averages_of(image), scene, 3);
    }
}

TEST(Samples, FilesHaveTheirFormatsAndTurns) {
    temp_dir_t const dir;
    ASSERT_EQ(std::system(("'" MAKE_SAMPLES "' '" + dir.path() + "' 120").c_str()), 0);
    for (scene_t const& scene : scenes) {
        image2d_t image, upright;
        unsigned long const turns = scene.load(image, dir.file(scene.file));
        EXPECT_EQ(turns, scene.turns) << scene.file;
        ASSERT_TRUE(rotate(turns, upright, image));
        EXPECT_EQ(upright.m_width, 120U);
        expect_near(averages_of(upright), scene, 80);
    }
}

}  // namespace
