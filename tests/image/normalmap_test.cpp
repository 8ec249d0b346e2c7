// SPDX-License-Identifier: MIT
// Tests of the normal maps and of the normalization cube map.
#include "image/normalmap.h"

#include <cmath>

#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;

TEST(NormalMap, ContainsTheSlopesToTheRightAndUpward) {
    image2d_t normals;
    EXPECT_TRUE(heightmap2normalmap(normals, picture(gray8, 2, {{0, 51}, {102, 0}}), 100));
    EXPECT_EQ(normals.desc, bytes_desc(IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT));
    EXPECT_EQ(pixels(normals),
              (rows_t{{13, 26, 124, 243, 243, 126}, {230, 230, 121, 26, 13, 124}}));
    EXPECT_TRUE(heightmap2normalmap(normals, picture(gray8, 3, {{0, 255, 255}}), 1));
    EXPECT_EQ(pixels(normals), (rows_t{{90, 0, 90, 0, 0, 127, 166, 0, 90}})) << "steps of 255";
}

TEST(NormalMap, OtherSourcesAreShared) {
    capture_t streams;
    std::vector<image2d_t> sources(4, picture(gray8, 2, {{1, 2}}));
    sources[0] = picture(bytes_desc(IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT), 1, {{1, 2, 3}});
    sources[1].compressed = true;
    sources[2].desc.bits = IMAGE_BITS_16;
    sources[3].count = 1;
    for (image2d_t const& source : sources) {
        image2d_t normals;
        EXPECT_EQ(heightmap2normalmap(normals, source, 1), &source == &sources[0]);
        EXPECT_EQ(normals.begin(), source.begin());
    }
    EXPECT_EQ(streams.err(),
              "normalmap(): compressed format not supported.\n"
              "normalmap(): image type not supported.\n"
              "normalmap(): image type not supported.\n");
}

TEST(NormalMap, CubeMapContainsUnitDirections) {
    image2d_t faces[6];
    ASSERT_TRUE(makenormalcubemap(faces));
    // Face, column, row, and the direction before normalization, in 127ths.
    constexpr int rows[][6] = {{0, 0, 0, 127, -127, -127},     {0, 255, 1, 127, -128, -382},
                               {1, 255, 0, -127, -127, 128},   {2, 127, 254, 0, 127, 127},
                               {3, 127, 127, 0, 127, -254},    {4, 254, 0, 127, -127, 127},
                               {5, 127, 127, -254, -254, -127}};
    for (auto const& [face, i, j, x, y, z] : rows) {
        EXPECT_EQ(faces[face].desc, bytes_desc(IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT));
        double const length = std::sqrt(x * x + y * y + z * z);
        unsigned char const* texel = pixel_row(faces[face], static_cast<unsigned>(j)) + 3 * i;
        for (int component : {x, y, z}) {
            EXPECT_NEAR(*texel++, (component / length * 0.5 + 0.5) * 255, 0.51) << face;
        }
    }
}

}  // namespace
