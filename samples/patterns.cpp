// SPDX-License-Identifier: MIT
// An aurora, a rose window and a Julia set.
#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>

#include "samples/scenes.h"

namespace samples {

namespace {

vec3 stars(vec2 at) {
    auto const x = static_cast<int>(at.x * 170.0f);
    auto const y = static_cast<int>(at.y * 170.0f);
    if (hash(x, y) < 0.93f) {
        return {0.0f, 0.0f, 0.0f};
    }
    vec2 const place{(static_cast<float>(x) + 0.2f + 0.6f * hash(x, y + 1)) / 170.0f,
                     (static_cast<float>(y) + 0.2f + 0.6f * hash(x + 1, y)) / 170.0f};
    float const size = 0.0005f + 0.0013f * std::pow(hash(x + 5, y), 6.0f);
    vec3 const tint = mix(srgb(255, 220, 190), srgb(190, 215, 255), hash(x, y + 9));
    return tint * (1.2f * smoothstep(size, 0.3f * size, length(at - place)));
}

/// Curtains of light with a sharp lower edge and rays that fade upwards.
vec3 curtains(vec2 at) {
    vec3 light{0.0f, 0.0f, 0.0f};
    for (int i = 0; i < 3; ++i) {
        auto const n = static_cast<float>(i);
        float const fold = at.x * (1.5f + 0.5f * n) + 5.0f * n;
        float const bend = cloud({fold, 0.7f * n}, 4);
        float const edge =
            0.30f + 0.10f * n + 0.34f * (bend - 0.5f) + 0.08f * std::sin(5.0f * at.x + 2.0f * n);
        float const above = edge - at.y;
        float const ray = cloud({(at.x + 0.5f * bend) * 55.0f, 3.0f * n + at.y * 1.5f}, 4);
        float const height = 0.10f + 0.30f * ray * ray;
        float const glow = above < 0.0f ? std::exp(above / 0.013f) : std::exp(-above / height);
        float const strength = glow * (0.25f + 1.3f * ray * ray) *
                               smoothstep(0.25f, 0.6f, cloud({fold * 0.9f + 4.0f, 8.0f}, 2));
        vec3 const colour =
            mix(srgb(60, 255, 150), srgb(150, 70, 230), smoothstep(0.02f, 0.30f, above));
        light = light + colour * (0.85f * strength);
    }
    return light;
}

/// Returns true inside a spruce of height 1, with tiers of hanging branches. y is 0 at the top.
bool is_spruce(vec2 p, int seed) {
    if (p.y < 0.0f || p.y > 1.0f) {
        return false;
    }
    float const tier = p.y * (9.0f + 4.0f * hash(seed, 2));
    float const branch = tier - std::floor(tier);
    float const rough =
        0.8f + 0.4f * hash(static_cast<int>(tier * 5.0f), seed + (p.x > 0.0f ? 1 : 0));
    return std::abs(p.x) < (0.02f + 0.20f * p.y) * (0.45f + 0.55f * branch) * rough;
}

vec3 northern_night(vec2 at) {
    float const snow =
        0.625f + 0.06f * cloud({at.x * 2.0f, 1.0f}, 3) - 0.05f * std::sin(3.0f * at.x);
    float const ridge = 0.60f - 0.10f * cloud({at.x * 3.0f, 4.0f}, 7);
    vec3 colour;
    if (at.y < ridge) {
        colour = mix(srgb(6, 10, 30), srgb(22, 52, 74), smoothstep(0.0f, 0.6f, at.y)) +
                 curtains(at) + stars(at);
    } else if (at.y < snow) {
        colour =
            mix(srgb(14, 28, 44), srgb(40, 82, 88), smoothstep(0.0f, 0.08f, at.y - ridge) * 0.8f);
    } else {
        float const drift = cloud({at.x * 5.0f, at.y * 22.0f}, 5);
        float const crust =
            hash(static_cast<int>(at.x * 1800.0f), static_cast<int>(at.y * 1800.0f));
        colour = mix(srgb(44, 96, 98), srgb(20, 34, 60), smoothstep(0.0f, 0.16f, at.y - snow)) *
                 (0.55f + 0.9f * drift);
        colour = colour + srgb(150, 255, 220) * (crust > 0.9985f ? 0.25f : 0.0f);
    }
    for (int i = 0; i < 26; ++i) {
        // Spruces at both sides. The middle is left open.
        float const side = hash(i, 11);
        float const x = i % 2 == 0 ? 0.36f * side * side : 1.0f - 0.42f * side * side;
        float const size = 0.07f + 0.20f * (1.0f - side) * hash(i, 12);
        float const foot = 0.655f + 0.07f * hash(i, 13) * (1.0f - side);
        if (is_spruce({(at.x - x) / size, (at.y - foot + size) / size}, i)) {
            colour = srgb(5, 11, 16);
        }
    }
    return colour;
}

struct ring_t {
    float outer;  // radius
    int panes;
    float turn;  // in panes
    float bow;   // how far the outer edges of the panes are arched
    std::array<vec3, 2> colours;
};

constexpr vec3 ruby = srgb(196, 22, 34);
constexpr vec3 cobalt = srgb(24, 60, 190);
constexpr vec3 gold = srgb(250, 186, 50);
constexpr vec3 emerald = srgb(20, 140, 84);
constexpr vec3 violet = srgb(112, 40, 150);
constexpr vec3 azure = srgb(70, 160, 226);
constexpr std::array rings{
    ring_t{0.085f, 1, 0.0f, 0.0f, {gold, gold}},
    ring_t{0.190f, 8, 0.5f, 0.020f, {ruby, cobalt}},
    ring_t{0.300f, 16, 0.0f, 0.022f, {azure, violet}},
    ring_t{0.370f, 16, 0.5f, 0.014f, {gold, ruby}},
    ring_t{0.560f, 16, 0.0f, 0.045f, {cobalt, ruby}},
    ring_t{0.640f, 32, 0.5f, 0.012f, {emerald, gold}},
    ring_t{0.800f, 32, 0.0f, 0.034f, {cobalt, violet}},
    ring_t{0.880f, 64, 0.0f, 0.006f, {azure, ruby}},
};

vec3 stone(vec2 p) {
    float const grain = cloud(p * 14.0f, 6);
    float const edge = smoothstep(0.89f, 0.97f, length(p));
    return srgb(92, 86, 80) *
           ((0.25f + 0.75f * edge) * (0.5f + grain) * (1.25f - 0.5f * length(p)));
}

vec3 rose(vec2 p) {
    float const radius = length(p);
    float const angle = std::atan2(p.y, p.x) / (2.0f * std::numbers::pi_v<float>)+0.5f;
    float inner = 0.0f;
    for (ring_t const& ring : rings) {
        auto const panes = static_cast<float>(ring.panes);
        float const place = angle * panes + ring.turn;
        float const across = place - std::floor(place);
        float const outer = ring.outer - ring.bow * 4.0f * (across - 0.5f) * (across - 0.5f);
        if (radius < outer) {
            int const pane = static_cast<int>(std::floor(place)) % ring.panes;
            float const width = 2.0f * std::numbers::pi_v<float> * radius / panes;
            float const to_side = ring.panes == 1 ? 1.0f : width * std::min(across, 1.0f - across);
            float const to_inner = ring.panes == 1 ? 1.0f : radius - inner;
            float const to_lead = std::min({to_side, to_inner, outer - radius});
            // Glass is uneven, and darker at the lead.
            float const streaks = cloud(p * 26.0f + vec2{9.0f * static_cast<float>(pane), 0.0f}, 5);
            float const petal = smoothstep(0.0f, 0.035f, to_lead);
            vec3 const tint = ring.colours[static_cast<std::size_t>(pane % 2)];
            float const day = 1.35f - 0.75f * radius;
            vec3 const glass =
                tint * ((0.45f + 0.65f * petal) * (0.70f + 0.6f * streaks) * day * 1.5f);
            return mix(srgb(12, 10, 12), glass, smoothstep(0.004f, 0.008f, to_lead));
        }
        inner = outer;
    }
    return stone(p);
}

vec3 julia_colour(vec2 at) {
    constexpr std::complex<float> constant{-0.7445f, 0.1180f};
    std::complex<float> z{at.x, at.y};
    std::complex<float> slope{1.0f, 0.0f};
    int count = 0;
    for (; count < 400 && std::norm(z) < 1e4f; ++count) {
        slope = 2.0f * z * slope;
        z = z * z + constant;
    }
    if (count == 400) {
        return srgb(6, 6, 18);
    }
    float const size = std::abs(z);
    float const smooth = static_cast<float>(count) + 1.0f - std::log2(std::log(size));
    // Light from the upper left on a surface that rises towards the set.
    std::complex<float> const up = z / slope;
    std::complex<float> const normal = up / std::max(1e-20f, std::abs(up));
    float const lit = 0.62f + 0.38f * (normal.real() * -0.6f + normal.imag() * 0.8f);
    float const t = 0.030f * smooth;
    auto const wave = [t](float shift) {
        return 0.5f + 0.5f * std::cos(2.0f * std::numbers::pi_v<float> * (t + shift));
    };
    vec3 const colour = mix(srgb(8, 16, 60), srgb(250, 150, 40), wave(0.5f)) +
                        srgb(40, 190, 200) * (0.5f * wave(0.15f) * wave(0.15f));
    float const near = std::exp(-0.35f * static_cast<float>(count) * 0.02f);
    return mix(srgb(255, 240, 210), colour, near) * lit;
}

}  // namespace

canvas_t aurora(int width) {
    canvas_t canvas(width, width * 3 / 4);
    float const scale = 1.0f / static_cast<float>(width);
    canvas.fill(2, [scale](vec2 pixel) { return northern_night(pixel * scale); });
    return canvas;
}

canvas_t rose_window(int width) {
    canvas_t canvas(width, width);
    float const radius = 0.5f * static_cast<float>(width);
    canvas.fill(3, [radius](vec2 pixel) {
        return rose((pixel - vec2{radius, radius}) * (1.0f / radius));
    });
    return canvas;
}

canvas_t julia(int width) {
    canvas_t canvas(width, width * 3 / 4);
    float const scale = 1.0f / static_cast<float>(width);
    canvas.fill(3, [scale](vec2 pixel) {
        return julia_colour((pixel * scale - vec2{0.5f, 0.375f}) * (1.0f / 0.325f));
    });
    return canvas;
}

}  // namespace samples
