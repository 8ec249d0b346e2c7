// SPDX-License-Identifier: MIT
// Mountains at a lake in the evening sun. For each column of the picture, a ray follows the terrain
// away from the camera and paints the pixels in which the ground becomes visible.
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "samples/scenes.h"

namespace samples {

namespace {

// Lengths are in kilometres. The camera is above the origin and looks along y. The lake is at
// height 0.
constexpr float eye_height = 0.012f;
constexpr float nearest = 1.0f;
constexpr float farthest = 45.0f;
constexpr float tallest = 0.024f;                     // tree
vec3 const sun = normalized({-0.86f, 0.30f, 0.05f});  // east, up, north
constexpr vec3 sunlight = srgb(255, 190, 120) * 3.6f;
constexpr vec3 skylight = srgb(110, 140, 200) * 0.85f;

/// The height of the bare ground. Slopes damp the finer octaves, which gives ridges and valleys.
float ground(vec2 at, int octaves) {
    float const across = std::abs(at.x - 0.3f);
    float const rise = smoothstep(1.6f, 12.0f, at.y * 0.72f + across * 0.9f);
    vec2 p = at * 0.21f + vec2{11.3f, 4.7f};
    vec2 slope{0.0f, 0.0f};
    float sum = 0.0f;
    float weight = 1.0f;
    for (int i = 0; i < octaves; ++i, weight *= 0.5f) {
        noise_t const n = noise(p);
        slope = slope + n.slope;
        sum += weight * n.value / (1.0f + slope.x * slope.x + slope.y * slope.y);
        p = vec2{0.8f * p.x - 0.6f * p.y, 0.6f * p.x + 0.8f * p.y} * 2.0f;
    }
    return (sum * 3.9f - 2.1f) * rise - 0.30f * (1.0f - rise) + 0.03f;
}

/// The height of the trees above ground of the given height: cones of up to 24 metres.
float trees(vec2 at, float height) {
    float const mask = cloud(at * 2.3f, 3) - 0.30f - 0.9f * std::max(0.0f, height - 0.25f);
    if (mask < 0.0f || height < 0.008f) {
        return 0.0f;
    }
    constexpr float cell = 0.011f;
    vec2 const scaled = at * (1.0f / cell);
    auto const cx = static_cast<int>(std::floor(scaled.x));
    auto const cy = static_cast<int>(std::floor(scaled.y));
    float highest = 0.0f;
    for (int i = 0; i < 9; ++i) {
        int const x = cx + i % 3 - 1;
        int const y = cy + i / 3 - 1;
        vec2 const foot{static_cast<float>(x) + hash(x, y), static_cast<float>(y) + hash(y, x + 7)};
        float const top = (0.4f + 0.6f * hash(x + 3, y)) * std::min(1.0f, 4.0f * mask);
        highest = std::max(highest,
                           tallest * top * (1.0f - length(scaled - foot) / (0.75f * top + 0.1f)));
    }
    return highest;
}

/// The height of the shadow, at the points of a grid over the terrain.
class shadows_t {
  public:
    shadows_t() : m_heights(static_cast<std::size_t>(columns) * rows) {
        float const drop = cell * sun.y / std::sqrt(sun.x * sun.x + sun.z * sun.z);
        in_parallel(rows, [&](int row) {
            float shadow = -1.0f;
            for (int column = 0; column < columns; ++column) {
                vec2 const at = place(static_cast<float>(column), static_cast<float>(row));
                shadow = std::max(shadow - drop, ground(at, 9));
                m_heights[index(column, row)] = shadow;
            }
        });
    }

    /// Returns 0 in the shadow, 1 in the sun, and values between at the edge.
    float light(vec2 at, float height) const {
        vec2 const from = at - origin;
        float const column = -(from.x * along.x + from.y * along.y) / cell;
        float const row = (from.x * along.y - from.y * along.x) / cell;
        auto const c = static_cast<int>(column);
        auto const r = static_cast<int>(row);
        if (column < 0.0f || row < 0.0f || c + 1 >= columns || r + 1 >= rows) {
            return 1.0f;
        }
        float const fc = column - static_cast<float>(c);
        float const fr = row - static_cast<float>(r);
        float const edge =
            mix(mix(m_heights[index(c, r)], m_heights[index(c + 1, r)], fc),
                mix(m_heights[index(c, r + 1)], m_heights[index(c + 1, r + 1)], fc), fr);
        return smoothstep(-0.045f, -0.004f, height - edge);
    }

  private:
    static constexpr float cell = 0.035f;
    static constexpr int columns = 1650;
    static constexpr int rows = 1360;
    static constexpr vec2 along{-0.998f, 0.058f};  // to the sun, seen from above
    static constexpr vec2 origin{-28.0f, 0.0f};

    static vec2 place(float column, float row) {
        return origin + along * (-cell * column) + vec2{along.y, -along.x} * (cell * row);
    }
    static std::size_t index(int column, int row) {
        return static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(column);
    }

    std::vector<float> m_heights;
};

/// The light from the sky in a direction, given by the tangents of its angles to the right and up.
vec3 sky(float right, float up) {
    float const t = clamped(up / 0.42f);
    vec3 colour = mix(srgb(255, 206, 160), srgb(150, 170, 205), smoothstep(0.0f, 0.35f, t));
    colour = mix(colour, srgb(52, 92, 158), smoothstep(0.25f, 1.0f, t));
    float const glow = std::exp(-3.0f * length({right + 0.62f, 1.6f * (up - 0.10f)}));
    colour = colour + srgb(255, 170, 90) * (1.1f * glow);
    // Clouds lie in a plane, and come together at the horizon.
    vec2 const at = vec2{right, 1.0f} * (1.0f / (up + 0.07f));
    float const cover = cloud(at * 0.9f + vec2{3.0f, 9.0f}, 7);
    float const wisp = smoothstep(0.50f, 0.78f, cover) * smoothstep(0.0f, 0.1f, up);
    vec3 const lit = mix(srgb(255, 224, 196), srgb(244, 172, 140), smoothstep(0.6f, 0.8f, cover));
    return mix(colour, lit * 1.05f, 0.85f * wisp);
}

/// Returns the light that a point of the ground sends to the camera.
vec3 land(vec2 at, float height, float tree, vec3 normal, float sun_share, float distance) {
    float const patch = cloud(at * 9.0f, 4);
    float const steep = 1.0f - normal.y;
    vec3 colour = mix(srgb(104, 94, 86), srgb(142, 128, 114), patch);
    vec3 const meadow = mix(srgb(74, 86, 40), srgb(112, 110, 58), patch);
    colour = mix(colour, meadow,
                 smoothstep(0.42f, 0.22f, steep) * smoothstep(0.95f, 0.45f, height + 0.4f * patch));
    float const snow =
        smoothstep(0.80f, 1.25f, height + 0.55f * (patch - 0.5f)) * smoothstep(0.62f, 0.34f, steep);
    colour = mix(colour, srgb(240, 244, 250), snow);
    float const lit = std::max(0.0f, dot(normal, sun)) * sun_share;
    vec3 light = sunlight * lit + skylight * (0.35f + 0.65f * normal.y);
    if (tree > 0.0f) {
        // Trees shade each other's lower parts.
        colour = mix(srgb(30, 42, 24), srgb(70, 80, 34),
                     clamped(hash(static_cast<int>(at.x * 90.0f), static_cast<int>(at.y * 90.0f))));
        light = light * (0.25f + 0.75f * clamped(tree / 0.016f));
    }
    vec3 const haze = mix(srgb(168, 172, 196), srgb(246, 196, 160),
                          clamped(0.5f - at.x / distance) * smoothstep(2.0f, 12.0f, distance)) *
                      0.9f;
    float const clear = std::exp(-distance / 34.0f * std::exp(-0.45f * std::max(0.0f, height)));
    return mix(haze, colour * light, clear);
}

}  // namespace

canvas_t alps(int width) {
    int const height = width * 2 / 3;
    canvas_t canvas(width, height);
    auto const w = static_cast<float>(width);
    float const focus = 1.05f * w;
    float const horizon = 0.62f * static_cast<float>(height);
    shadows_t const shadows;

    std::vector<int> shore(static_cast<std::size_t>(width));
    in_parallel(width, [&](int x) {
        float const right = (static_cast<float>(x) - 0.5f * w) / focus;
        auto const lowest = static_cast<int>(horizon + eye_height / nearest * focus);
        int top = lowest;
        float step = nearest;
        for (float d = nearest; d < farthest; d += step) {
            vec2 const at{right * d, d};
            int const octaves = std::clamp(static_cast<int>(std::log2(focus / d * 4.0f)), 6, 12);
            float const bare = ground(at, octaves);
            // Ground that is hidden needs fewer steps.
            float const painted = eye_height + (horizon - static_cast<float>(top)) / focus * d;
            float const hidden = painted - bare - tallest;
            step = d * 1.5f / focus;
            if (hidden > 0.0f || bare < 0.0f) {
                step += 0.3f * std::max(hidden, -bare);
                continue;
            }
            float const tree = d < 14.0f ? trees(at, bare) : 0.0f;
            float const h = bare + tree;
            auto const y = std::max(0, static_cast<int>(horizon - (h - eye_height) / d * focus));
            if (y >= top) {
                continue;
            }
            if (y < top - 2) {
                step = 0.3f * step;  // a cliff
            }
            float const e = std::max(0.002f, d / focus);
            auto const height_at = [&](vec2 p) {
                float const g = ground(p, octaves);
                return tree > 0.0f ? g + trees(p, g) : g;
            };
            vec3 const normal = normalized(
                {h - height_at(at + vec2{e, 0.0f}), e, h - height_at(at + vec2{0.0f, e})});
            vec3 const colour = land(at, bare, tree, normal, shadows.light(at, bare), d);
            if (top == lowest) {
                shore[static_cast<std::size_t>(x)] = top =
                    static_cast<int>(horizon + eye_height / d * focus);
            }
            for (; top > y; --top) {
                canvas.at(x, top - 1) = colour;
            }
        }
        for (; top > 0; --top) {
            canvas.at(x, top - 1) = sky(right, (horizon - static_cast<float>(top)) / focus);
        }
    });

    in_parallel(width, [&](int x) {
        int const first = shore[static_cast<std::size_t>(x)];
        for (int y = first; y < height; ++y) {
            float const down = (static_cast<float>(y) + 0.5f - horizon) / focus;
            float const d = eye_height / down;
            vec2 const at{(static_cast<float>(x) - 0.5f * w) / focus * d, d};
            // Waves tilt the mirror; far away they blur it.
            float const calm = smoothstep(0.42f, 0.62f, cloud({at.x * 3.0f, at.y * 1.2f}, 3));
            float const swell = 0.006f + 0.022f * calm;
            float const tilt = (cloud({at.x * 260.0f, at.y * 900.0f}, 4) - 0.5f) * swell;
            vec3 sum{};
            for (int i = 0; i < 5; ++i) {
                float const shift = tilt + static_cast<float>(i - 2) * 0.1f * swell;
                int const row = 2 * first - y + static_cast<int>(shift * focus);
                int const column = x + static_cast<int>(0.3f * tilt * focus);
                sum =
                    sum +
                    canvas.at(
                        std::clamp(column, 0, width - 1),
                        std::clamp(
                            row, 0,
                            shore[static_cast<std::size_t>(std::clamp(column, 0, width - 1))] - 1));
            }
            float const graze = std::pow(1.0f - std::min(1.0f, down), 5.0f);
            canvas.at(x, y) = mix(srgb(14, 34, 44) * 0.6f, sum * 0.2f, 0.10f + 0.82f * graze);
        }
    });
    canvas.soften_highlights();
    return canvas;
}

}  // namespace samples
