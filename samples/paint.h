// SPDX-License-Identifier: MIT
// Colours, noise and a canvas for the sample pictures.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "image/image.h"

namespace samples {

/// A point of the plane.
struct vec2 {
    float x, y;
};
constexpr vec2 operator+(vec2 a, vec2 b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr vec2 operator-(vec2 a, vec2 b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr vec2 operator*(vec2 a, float f) {
    return {a.x * f, a.y * f};
}
float length(vec2 a);

/// A direction in space, or a colour as linear light from 0 up.
struct vec3 {
    float x, y, z;
};
constexpr vec3 operator+(vec3 a, vec3 b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr vec3 operator*(vec3 a, float f) {
    return {a.x * f, a.y * f, a.z * f};
}
constexpr vec3 operator*(vec3 a, vec3 b) {
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}
constexpr float dot(vec3 a, vec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
vec3 normalized(vec3 a);

/// A colour by its sRGB values from 0 to 255, close to the standard's curve.
constexpr vec3 srgb(int red, int green, int blue) {
    constexpr auto channel = [](int level) {
        float const v = static_cast<float>(level) / 255.0f;
        return v * (v * (v * 0.305306f + 0.682171f) + 0.012523f);
    };
    return {channel(red), channel(green), channel(blue)};
}

constexpr float clamped(float v) {
    return v < 0.0f ? 0.0f : v > 1.0f ? 1.0f : v;
}
constexpr float mix(float a, float b, float t) {
    return a + (b - a) * t;
}
constexpr vec3 mix(vec3 a, vec3 b, float t) {
    return a + (b + a * -1.0f) * t;
}
/// 0 below `a`, 1 above `b`, and a smooth rise between them.
constexpr float smoothstep(float a, float b, float v) {
    float const t = clamped((v - a) / (b - a));
    return t * t * (3.0f - 2.0f * t);
}

/// Returns a pseudo-random number in [0, 1) that depends on the two numbers alone.
inline float hash(int x, int y) {
    std::uint32_t h =
        static_cast<std::uint32_t>(x) * 0x8da6b343U ^ static_cast<std::uint32_t>(y) * 0xd8163841U;
    h = (h ^ (h >> 15)) * 0x2c1b3c6dU;
    h = (h ^ (h >> 13)) * 0x297a2d39U;
    return static_cast<float>((h ^ (h >> 15)) >> 8) * 0x1p-24f;
}

/// Value noise from 0 to 1 with its derivatives in x and y.
struct noise_t {
    float value;
    vec2 slope;
};
inline noise_t noise(vec2 at) {
    // Faster than std::floor.
    int x = static_cast<int>(at.x);
    int y = static_cast<int>(at.y);
    x -= at.x < static_cast<float>(x) ? 1 : 0;
    y -= at.y < static_cast<float>(y) ? 1 : 0;
    float const fx = at.x - static_cast<float>(x);
    float const fy = at.y - static_cast<float>(y);
    float const a = hash(x, y);
    float const b = hash(x + 1, y) - a;
    float const c = hash(x, y + 1) - a;
    float const d = hash(x + 1, y + 1) - a - b - c;
    float const ux = fx * fx * fx * (fx * (fx * 6.0f - 15.0f) + 10.0f);
    float const uy = fy * fy * fy * (fy * (fy * 6.0f - 15.0f) + 10.0f);
    float const dx = 30.0f * fx * fx * (fx - 1.0f) * (fx - 1.0f);
    float const dy = 30.0f * fy * fy * (fy - 1.0f) * (fy - 1.0f);
    return {a + b * ux + c * uy + d * ux * uy, {dx * (b + d * uy), dy * (c + d * ux)}};
}

/// Returns a sum of octaves of noise, each half as high and about twice as fine as the one before,
/// from 0 to 1.
float cloud(vec2 at, int octaves);

/// A picture of linear light. Row 0 is the top row.
class canvas_t {
  public:
    canvas_t(int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }
    vec3& at(int x, int y);
    vec3 const& at(int x, int y) const { return const_cast<canvas_t&>(*this).at(x, y); }

    /// Sets each pixel to the average of `side` by `side` samples. `colour` returns the colour at a
    /// position in pixels.
    void fill(int side, std::function<vec3(vec2 at)> const& colour);

    /// Compresses the light above 0.5 into the range up to 1.
    void soften_highlights();

    /// Sets the standard deviation, in sRGB values from 0 to 1, of the noise that `image` adds.
    void add_grain(float amount) { m_grain = amount; }

    /// Returns the picture as 8-bit sRGB, bottom row first, or an image without bytes if there is
    /// no memory.
    libgr::image2d_t image() const;

  private:
    int m_width;
    int m_height;
    float m_grain = 0.0f;
    std::vector<vec3> m_pixels;
};

/// Calls `work` for each number from 0 to `count` - 1, in any order, on all processors.
void in_parallel(int count, std::function<void(int)> const& work);

}  // namespace samples
