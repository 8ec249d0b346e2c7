// SPDX-License-Identifier: MIT
// Computes the normals of height maps and of the faces of a cube map.
#include "image/normalmap.h"

#include <array>
#include <cmath>

#include "geometry/vector.h"
#include "image/pixelconvert.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

constexpr unsigned int cube_map_side = 256;
constexpr std::size_t cube_map_stride = std::size_t{cube_map_side} * 3;

using libutils::report_error;

bool has_byte_components(image2d_t const& image) {
    return image.desc.type != IMAGE_TYPE_FLOAT && image.desc.bits == IMAGE_BITS_8;
}

unsigned char signed_byte(float value) {
    float const scaled = value * 127.0f;
    return static_cast<unsigned char>(
        static_cast<signed char>(scaled < 0.0f ? scaled - 0.5f : scaled + 0.5f));
}

direction3_t normal_of(unsigned char here, unsigned char right, unsigned char above) {
    constexpr float c = 0.003921569f;
    float const dx = right * c + here * -c;
    float const dy = above * c + here * -c;
    direction3_t normal =
        Normalize(direction3(dx, dy, std::sqrt(1.0f - dy * dy) + std::sqrt(1.0f - dx * dx)));
    if (compare(normal.x, 0.0f) == 0 && compare(normal.y, 0.0f) == 0 &&
        compare(normal.z, 0.0f) == 0) {
        normal.z = 1.0f;
    }
    return normal;
}

constexpr int last_index = static_cast<int>(cube_map_side) - 1;
constexpr std::size_t coordinate_count = std::size_t{cube_map_side} * 2 - 1;

/// The coordinates for the indices -255 to 255. Negative indices give values down to -3.01.
constexpr auto coordinates = [] {
    std::array<float, coordinate_count> all{};
    for (int n = -last_index; n <= last_index; ++n) {
        all[static_cast<unsigned int>(n + last_index)] = static_cast<float>(n / 127.0 - 1.0);
    }
    return all;
}();

/// Returns the direction, before normalization, of the texel at column `i` and row `j`. The photo
/// frame depends on these values: face 3 has +1 in y, although it is the face -y.
direction3_t face_direction(int face, int i, int j) {
    auto const s = [](int n) { return coordinates[static_cast<unsigned int>(n + last_index)]; };
    switch (face) {
        case 0:
            return direction3(1.0f, s(-j), s(-i));
        case 1:
            return direction3(-1.0f, s(-j), s(i));
        case 2:
            return direction3(s(i), 1.0f, s(j));
        case 3:
            return direction3(s(i), 1.0f, s(-j));
        case 4:
            return direction3(s(i), s(-j), 1.0f);
        default:
            return direction3(s(-i), s(-j), -1.0f);
    }
}

void fill_face(image2d_t& image, int face) {
    for (int j = 0; j < static_cast<int>(cube_map_side); ++j) {
        unsigned char* to = image.begin() + cube_map_stride * static_cast<std::size_t>(j);
        for (int i = 0; i < static_cast<int>(cube_map_side); ++i) {
            direction3_t const direction = Normalize(face_direction(face, i, j));
            for (float const component : {direction.x, direction.y, direction.z}) {
                *to++ = channel_byte(component * 0.5f + 0.5f);
            }
        }
    }
}

}  // namespace

bool heightmap2normalmap(image2d_t& dst, image2d_t const& src, float) {
    if (src.compressed) {
        dst = src;
        return report_error("normalmap(): compressed format not supported.");
    }
    if (src.desc.format == IMAGE_FORMAT_RGB && has_byte_components(src)) {
        dst = src;
        return true;
    }
    image2d_reader_t<unsigned char> heights;
    if (!(src.desc == image_desc_t{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8}) ||
        !heights.setimage(src) || !heights.has_all_rows()) {
        dst = src;
        return report_error("normalmap(): image type not supported.");
    }
    dst.m_width = src.m_width;
    dst.m_height = src.m_height;
    dst.compressed = false;
    dst.desc = {IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT, IMAGE_BITS_8};
    dst.store = src.store;
    unsigned long long const stride = row_stride(dst.m_width, dst.getPixelBits(), nullptr);
    if (!dst.allocate() || !rows_fit(stride, dst.m_height, dst.rowbyte(), dst.size())) {
        return report_error("normalmap allocate() fail.");
    }
    for (unsigned long y = 0; y < heights.height; ++y) {
        unsigned char const* const row = heights.row(y);
        unsigned char const* const above = heights.row(y + 1 == heights.height ? 0 : y + 1);
        unsigned char* to = dst.begin() + stride * y;
        for (unsigned long x = 0; x < heights.width; ++x) {
            unsigned long const right = x + 1 == heights.width ? 0 : x + 1;
            direction3_t const normal = normal_of(row[x], row[right], above[x]);
            for (float const component : {normal.x, normal.y, normal.z}) {
                *to++ = signed_byte(component);
            }
        }
    }
    return true;
}

bool makenormalcubemap(image2d_t* faces) {
    for (int face = 0; face < 6; ++face) {
        image2d_t& image = faces[face];
        image.m_width = cube_map_side;
        image.m_height = cube_map_side;
        image.compressed = false;
        image.desc = {IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT, IMAGE_BITS_8};
        if (!image.allocate() || image.size() < cube_map_stride * cube_map_side) {
            return false;
        }
    }
    for (int face = 0; face < 6; ++face) {
        fill_face(faces[face], face);
    }
    return true;
}

}  // namespace libgr
