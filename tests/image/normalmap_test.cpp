// SPDX-License-Identifier: MIT
// Normals from heights, with wrapping edges, and the faces of the normalising cube map.
#include "image/normalmap.h"

#include <cmath>

#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;

TEST(NormalMap, TakesSlopesToTheRightAndUpAsTheyAre) {
    image2d_t normals;
    image2d_t heights = picture(gray8, 3, {{0, 255, 255}, {0, 255, 51}});
    EXPECT_TRUE(heightmap2normalmap(normals, heights, 100));
    rows_t const found = pixels(normals);
    EXPECT_EQ(rows_t({{found[0].begin(), found[0].begin() + 6}}), rows_t({{90, 0, 90, 0, 0, 127}}));
    EXPECT_EQ(normals.desc.type, IMAGE_TYPE_SINT);
    EXPECT_EQ(rows_t({{found[1].begin(), found[1].begin() + 3}}), rows_t({{90, 0, 90}}));
    EXPECT_LT(static_cast<signed char>(found[0][6]), -60);
    EXPECT_GT(static_cast<signed char>(found[1][7]), 50);

    capture_t captured;
    heights.desc.bits = IMAGE_BITS_16;
    EXPECT_FALSE(heightmap2normalmap(normals, heights, 1));
    EXPECT_EQ(captured.err(), "normalmap(): image type not supported.\n");
}

TEST(NormalMap, CubeMapHoldsItsDirections) {
    image2d_t faces[6];
    ASSERT_TRUE(makenormalcubemap(faces));
    // Face, i, j; the direction before it is normalised, in 127ths.
    constexpr int rows[][6] = {{0, 0, 0, 127, -127, -127},     {0, 255, 1, 127, -128, -382},
                               {1, 255, 0, -127, -127, 128},   {2, 127, 254, 0, 127, 127},
                               {3, 127, 127, 0, 127, -254},    {4, 254, 0, 127, -127, 127},
                               {5, 127, 127, -254, -254, -127}};
    for (auto const& [face, i, j, x, y, z] : rows) {
        double const length = std::sqrt(x * x + y * y + z * z);
        unsigned char const* texel = pixel_row(faces[face], static_cast<unsigned>(j)) + 3 * i;
        for (int component : {x, y, z}) {
            EXPECT_NEAR(*texel++, (component / length * 0.5 + 0.5) * 255, 0.51) << face;
        }
    }
}

}  // namespace
