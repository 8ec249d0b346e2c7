// SPDX-License-Identifier: MIT
// Hot-air balloons over misty hills at sunrise.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "samples/scenes.h"

namespace samples {

namespace {

constexpr vec2 sun{0.73f, 0.95f};  // lengths are in widths of the picture, y from the top

struct balloon_t {
    vec2 centre;
    float radius;
    std::array<vec3, 3> colours;
    int gores;  // in half of the envelope
    float turn;
    float haze;
};

constexpr std::array balloons{
    balloon_t{{0.16f, 0.62f},
              0.030f,
              {srgb(214, 120, 60), srgb(240, 210, 150), srgb(160, 60, 60)},
              6,
              0.3f,
              0.60f},
    balloon_t{{0.88f, 0.52f},
              0.040f,
              {srgb(70, 120, 160), srgb(240, 225, 190), srgb(200, 80, 60)},
              7,
              0.1f,
              0.45f},
    balloon_t{{0.56f, 0.70f},
              0.048f,
              {srgb(196, 66, 80), srgb(244, 196, 90), srgb(90, 60, 120)},
              8,
              0.7f,
              0.35f},
    balloon_t{{0.70f, 0.22f},
              0.092f,
              {srgb(28, 110, 120), srgb(238, 222, 190), srgb(226, 130, 60)},
              8,
              0.4f,
              0.12f},
    balloon_t{{0.34f, 0.42f},
              0.200f,
              {srgb(196, 40, 44), srgb(246, 186, 60), srgb(40, 62, 120)},
              9,
              0.2f,
              0.0f},
};

/// Half the width of an envelope of radius 1 at a distance below its centre.
float half_width(float v) {
    if (v < 0.4f) {
        return std::sqrt(std::max(0.0f, 1.0f - v * v));
    }
    float const s = v - 0.4f;
    return 0.9165f - 0.436f * s - 0.379f * s * s;
}

vec3 sky(vec2 at) {
    vec3 colour = mix(srgb(58, 92, 140), srgb(142, 160, 186), smoothstep(0.0f, 0.55f, at.y));
    colour = mix(colour, srgb(250, 200, 150), smoothstep(0.45f, 0.95f, at.y));
    float const distance = length(at - sun);
    colour = colour + srgb(255, 180, 100) * (0.9f * std::exp(-5.0f * distance));
    float const cirrus = cloud({at.x * 2.0f + at.y, at.y * 9.0f}, 6);
    colour = mix(colour, srgb(255, 220, 196),
                 0.55f * smoothstep(0.5f, 0.8f, cirrus) * smoothstep(0.9f, 0.2f, at.y));
    return mix(colour, srgb(255, 244, 214) * 1.6f, smoothstep(0.052f, 0.048f, distance));
}

/// Rows of hills, paler with distance, with mist between them. The nearest one hides the others.
vec3 hills_and_sky(vec2 at) {
    constexpr int hills = 7;
    for (int i = hills - 1; i >= 0; --i) {
        auto const n = static_cast<float>(i);
        float const near = n / (hills - 1);
        float const foot = mix(0.98f, 1.30f, near * (0.7f + 0.3f * near));
        float const crest = cloud({at.x * mix(3.2f, 1.5f, near) + 7.0f * n, 3.3f * n}, 7);
        float const line = foot - mix(0.10f, 0.16f, near) * crest;
        // Treetops, as teeth of different heights.
        float const place = at.x * mix(420.0f, 190.0f, near);
        auto const tree = static_cast<int>(place);
        float const tooth = 1.0f - 2.0f * std::abs(place - static_cast<float>(tree) - 0.5f);
        if (at.y < line - 0.013f * near * near * tooth * (0.3f + 0.7f * hash(tree, i))) {
            continue;
        }
        float const glow = std::exp(-3.0f * length(at - sun));
        vec3 const lit = mix(srgb(226, 178, 160), srgb(28, 44, 56), std::pow(near, 0.55f));
        vec3 const mist = mix(srgb(236, 200, 176), srgb(255, 206, 140), clamped(1.4f * glow));
        float const depth = std::max(0.0f, at.y - line) * mix(9.0f, 6.0f, near);
        float const drift = 0.6f + 0.8f * cloud({at.x * 3.0f + n, at.y * 12.0f}, 4);
        return mix(lit + mist * (0.25f * glow), mist,
                   clamped(depth * drift) * mix(0.85f, 0.42f, near));
    }
    return sky(at);
}

bool is_basket(vec2 p) {
    return std::abs(p.x) < 0.13f - 0.1f * (p.y - 1.80f) && p.y > 1.72f && p.y < 1.93f;
}

bool is_rope(vec2 p) {
    float const t = (p.y - 1.30f) / 0.45f;
    return t > 0.0f && t < 1.0f && std::abs(std::abs(p.x) - mix(0.16f, 0.115f, t)) < 0.008f;
}

vec3 envelope(balloon_t const& balloon, vec2 p) {
    float const side = p.x / half_width(p.y);
    float const across =
        std::asin(std::clamp(side, -1.0f, 1.0f)) / std::numbers::pi_v<float> + 0.5f;
    float const gore = across * static_cast<float>(balloon.gores) + balloon.turn;
    float const seam = gore - std::floor(gore);
    // The gores alternate between two colours. A zigzag belt has the third.
    auto const number = static_cast<int>(std::floor(gore));
    vec3 colour = balloon.colours[number % 2 == 0 ? 0U : 1U];
    if (std::abs(p.y - 0.06f - 0.30f * std::abs(seam - 0.5f)) < 0.13f) {
        colour = balloon.colours[2];
    }
    if (p.y < -0.86f || p.y > 1.22f) {
        colour = balloon.colours[2];
    }
    // Each gore bulges.
    float const bulge = side + 0.10f * (seam - 0.5f);
    vec3 const normal = normalized(
        {bulge, p.y > 0.4f ? 0.45f : p.y, std::sqrt(std::max(0.02f, 1.0f - side * side))});
    float const lit = std::max(0.0f, dot(normal, normalized({0.72f, 0.18f, 0.62f})));
    float const seam_shade = 0.75f + 0.25f * smoothstep(0.0f, 0.10f, std::min(seam, 1.0f - seam));
    vec3 const through = srgb(255, 170, 90) * (0.22f * smoothstep(-0.3f, 1.3f, p.y));
    return colour * ((srgb(255, 226, 190) * (1.25f * lit) + srgb(130, 150, 200) * 0.42f + through) *
                     seam_shade);
}

void add_balloon(vec3& colour, vec2 at, balloon_t const& balloon) {
    vec2 const p = (at - balloon.centre) * (1.0f / balloon.radius);
    vec3 painted;
    if (p.y > -1.0f && p.y < 1.35f && std::abs(p.x) < half_width(p.y)) {
        painted = envelope(balloon, p);
    } else if (is_basket(p)) {
        painted = srgb(96, 62, 36) * (0.7f + 1.2f * std::max(0.0f, p.x * 4.0f)) *
                  (std::sin(p.y * 160.0f) > 0.0f ? 1.0f : 0.8f);
    } else if (is_rope(p)) {
        painted = srgb(60, 46, 40);
    } else {
        return;
    }
    colour = mix(painted, mix(srgb(200, 180, 176), srgb(255, 206, 160), at.y), balloon.haze);
}

}  // namespace

canvas_t balloons_at_sunrise(int width) {
    canvas_t canvas(width, width * 4 / 3);
    float const scale = 1.0f / static_cast<float>(width);
    canvas.fill(2, [scale](vec2 pixel) {
        vec2 const at = pixel * scale;
        vec3 colour = hills_and_sky(at);
        for (balloon_t const& balloon : balloons) {
            add_balloon(colour, at, balloon);
        }
        return colour;
    });
    return canvas;
}

}  // namespace samples
