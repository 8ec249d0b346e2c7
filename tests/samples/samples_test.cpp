// SPDX-License-Identifier: MIT
// The scenes of the sample pictures.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <ostream>

#include "samples/scenes.h"

namespace {

using samples::canvas_t;

canvas_t grainy_alps(int width) {
    canvas_t canvas = samples::alps(width);
    canvas.add_grain(0.05f);
    return canvas;
}

// The averages of the channels in the image's four quarters, in hundredths, bottom row first.
using averages_t = std::array<int, 12>;
struct scene_t {
    char const* name;
    canvas_t (*paint)(int width);
    unsigned int width, height;
    averages_t averages;
};
constexpr scene_t scenes[] = {
    {"alps",
     grainy_alps,
     120,
     80,
     {7903, 7711, 8120, 11568, 10190, 9509, 15060, 13910, 15985, 16137, 14962, 16087}},
    {"balloons",
     samples::balloons_at_sunrise,
     120,
     160,
     {18445, 15323, 13098, 19902, 16594, 13553, 13502, 11275, 11611, 14441, 14553, 16195}},
    {"aurora",
     samples::aurora,
     160,
     120,
     {2121, 5333, 6683, 2831, 6917, 7561, 2167, 4673, 6023, 2599, 4017, 6302}},
    {"rose",
     samples::rose_window,
     120,
     120,
     {9007, 7027, 9609, 9009, 7009, 9599, 8978, 7011, 9597, 9008, 7015, 9614}},
    {"julia",
     samples::julia,
     160,
     120,
     {12732, 11893, 11021, 10956, 10425, 9823, 9722, 9251, 8664, 9490, 8749, 7915}},
};
void PrintTo(scene_t const& scene, std::ostream* out) {
    *out << scene.name;
}

class SampleTest : public testing::TestWithParam<scene_t> {};

TEST_P(SampleTest, QuartersHaveTheirColours) {
    libgr::image2d_t const image = GetParam().paint(static_cast<int>(GetParam().width)).image();
    ASSERT_EQ(image.m_width, GetParam().width);
    ASSERT_EQ(image.m_height, GetParam().height);
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
    for (std::size_t i = 0; i < sums.size(); ++i) {
        double const average = sums[i] * 400.0 / image.m_width / image.m_height;
        EXPECT_NEAR(average, GetParam().averages[i], 3.0)
            << "quarter " << i / 3 << ", channel " << i % 3;
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, SampleTest, testing::ValuesIn(scenes),
                         [](auto const& scene) { return scene.param.name; });

}  // namespace
