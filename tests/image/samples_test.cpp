// SPDX-License-Identifier: MIT
// Tests of the byte order of samples.
#include "image/samples.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/image/testimages.h"

namespace {

using namespace libgr;

TEST(ToMachineOrder, SwapsTheBytesOfWindowsWithUnitsOf16Bits) {
    constexpr std::endian other =
        std::endian::native == std::endian::big ? std::endian::little : std::endian::big;
    row_t const bytes = {1, 2, 3, 4, 5, 6, 7, 8}, swapped = {1, 2, 4, 3, 6, 5, 7, 8};
    for (auto const& [format, bits, expected] :
         {std::tuple{IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, swapped},
          std::tuple{IMAGE_FORMAT_BGRA, IMAGE_BITS_R5G5B5A1, swapped},
          std::tuple{IMAGE_FORMAT_RGBA, IMAGE_BITS_8, bytes},
          std::tuple{IMAGE_FORMAT_MAX, IMAGE_BITS_MAX, bytes}}) {
        image2d_t image =
            picture({IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_16}, 4, {bytes});
        image.window = {4, 1, 0};
        image.m_width = 2;
        image.desc = {format, IMAGE_TYPE_UINT, bits};
        EXPECT_TRUE(to_machine_order(image, std::endian::native));
        EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), image.begin())) << bits;
        EXPECT_TRUE(to_machine_order(image, other));
        EXPECT_TRUE(std::equal(expected.begin(), expected.end(), image.begin())) << bits;
        image.window.skiprows = 1;
        EXPECT_EQ(to_machine_order(image, other), expected == bytes) << bits;
    }
}

}  // namespace
