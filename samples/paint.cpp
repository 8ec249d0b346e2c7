// SPDX-License-Identifier: MIT
// Noise, the canvas, and its conversion into an image.
#include "samples/paint.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

namespace samples {

namespace {

float to_srgb(float v) {
    return v <= 0.0031308f ? v * 12.92f : 1.055f * std::pow(v, 1.0f / 2.4f) - 0.055f;
}

}  // namespace

float length(vec2 a) {
    return std::sqrt(a.x * a.x + a.y * a.y);
}

vec3 normalized(vec3 a) {
    return a * (1.0f / std::sqrt(dot(a, a)));
}

float cloud(vec2 at, int octaves) {
    float sum = 0.0f;
    float weight = 0.5f;
    for (int i = 0; i < octaves; ++i, weight *= 0.5f) {
        sum += weight * noise(at).value;
        // Turned, so that the grids of the octaves don't lie on each other.
        at = vec2{0.8f * at.x - 0.6f * at.y, 0.6f * at.x + 0.8f * at.y} * 2.03f;
    }
    return sum / (1.0f - 2.0f * weight + weight);
}

canvas_t::canvas_t(int width, int height)
    : m_width(width),
      m_height(height),
      m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

vec3& canvas_t::at(int x, int y) {
    return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                    static_cast<std::size_t>(x)];
}

void canvas_t::fill(int side, std::function<vec3(vec2 at)> const& colour) {
    float const step = 1.0f / static_cast<float>(side);
    in_parallel(m_height, [&](int y) {
        for (int x = 0; x < m_width; ++x) {
            vec3 sum{};
            for (int row = 0; row < side; ++row) {
                for (int column = 0; column < side; ++column) {
                    float const dx = (static_cast<float>(column) + 0.5f) * step;
                    float const dy = (static_cast<float>(row) + 0.5f) * step;
                    sum = sum + colour({static_cast<float>(x) + dx, static_cast<float>(y) + dy});
                }
            }
            at(x, y) = sum * (step * step);
        }
    });
}

void canvas_t::soften_highlights() {
    constexpr auto curve = [](float v) {
        return v < 0.5f ? v : 1.0f - 0.5f * std::exp(1.0f - 2.0f * v);
    };
    for (vec3& pixel : m_pixels) {
        pixel = {curve(pixel.x), curve(pixel.y), curve(pixel.z)};
    }
}

libgr::image2d_t canvas_t::image() const {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = static_cast<unsigned int>(m_width);
    image.m_height = static_cast<unsigned int>(m_height);
    if (!image.allocate()) {
        return image;
    }
    std::vector<float> levels(4097);
    for (std::size_t i = 0; i < levels.size(); ++i) {
        float const root = static_cast<float>(i) / 4096.0f;
        levels[i] = to_srgb(root * root);
    }
    in_parallel(m_height, [&](int y) {
        unsigned char* byte =
            image.begin() + image.rowsize() * static_cast<unsigned int>(m_height - 1 - y);
        for (int x = 0; x < m_width; ++x) {
            // The sum of four even distributions is close to a normal one of half their width.
            float grain = -2.0f;
            for (int i = 0; m_grain > 0.0f && i < 4; ++i) {
                grain += hash(4 * x + i, y);
            }
            grain = m_grain > 0.0f ? grain * m_grain * 1.73f : 0.0f;
            vec3 const& pixel = at(x, y);
            for (float const light : {pixel.x, pixel.y, pixel.z}) {
                auto const root = static_cast<std::size_t>(4096.0f * std::sqrt(clamped(light)));
                float const level = clamped(levels[root] + grain);
                *byte++ = static_cast<unsigned char>(255.0f * level + 0.5f);
            }
        }
    });
    return image;
}

void in_parallel(int count, std::function<void(int)> const& work) {
    std::atomic<int> next{0};
    auto const serve = [&] {
        for (int i = next++; i < count; i = next++) {
            work(i);
        }
    };
    std::vector<std::jthread> helpers;
    for (unsigned int i = 1; i < std::thread::hardware_concurrency(); ++i) {
        helpers.emplace_back(serve);
    }
    serve();
}

}  // namespace samples
