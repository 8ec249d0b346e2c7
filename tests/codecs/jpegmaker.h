// SPDX-License-Identifier: MIT
// Makes JPEG files, and decodes them with plain calls of libjpeg.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "codecs/jpegmanagers.h"
#include "tests/codecs/picturebytes.h"

struct layout_t {
    unsigned int width, height;
    J_COLOR_SPACE colors;
    unsigned int h, v;  ///< sampling factors of the first component
    bool progressive = false;
    unsigned int restart = 0;  ///< MCUs
    bool arithmetic = false;
};

/// Returns a JPEG of a picture without symmetry, with `segments` after its first marker.
inline std::string jpeg_of(layout_t const& layout, std::string const& segments = "") {
    libgr::jpegdata_t data;
    jpeg_compress_struct cinfo;
    jpeg_error_mgr error;
    cinfo.err = jpeg_std_error(&error);
    jpeg_create_compress(&cinfo);
    libgr::use_memory_destination(&cinfo, data);
    cinfo.image_width = layout.width;
    cinfo.image_height = layout.height;
    cinfo.input_components = 3;
    cinfo.in_color_space = JCS_RGB;
    jpeg_set_defaults(&cinfo);
    jpeg_set_colorspace(&cinfo, layout.colors);
    jpeg_set_quality(&cinfo, 30, TRUE);  // a difference of 1 in a coefficient is visible then
    cinfo.comp_info[0].h_samp_factor = static_cast<int>(layout.h);
    cinfo.comp_info[0].v_samp_factor = static_cast<int>(layout.v);
    if (layout.progressive) {
        jpeg_simple_progression(&cinfo);
    }
    cinfo.restart_interval = layout.restart;
    cinfo.arith_code = layout.arithmetic ? TRUE : FALSE;
    jpeg_scan_info const scans[] = {{1, {0}, 0, 63, 0, 0}, {2, {1, 2}, 0, 63, 0, 0}};
    if (layout.h * layout.v > 8) {
        cinfo.scan_info = scans;  // one scan cannot contain all blocks of an MCU
        cinfo.num_scans = 2;
    }
    jpeg_start_compress(&cinfo, TRUE);
    for (unsigned int y = 0; y < layout.height; ++y) {
        std::vector<JSAMPLE> row;
        for (unsigned int i = 0; i < layout.width * 3; ++i) {
            row.push_back(static_cast<JSAMPLE>(128 + 70 * std::sin(i * i * 0.001 + y * y * 0.01)));
        }
        JSAMPROW pixels = row.data();
        jpeg_write_scanlines(&cinfo, &pixels, 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    return bytes_of(data).insert(2, segments);
}

struct pixels_t {
    unsigned int width, components;
    std::vector<JSAMPLE> samples = {};

    /// Returns the mean of `w` by `h` samples of a component.
    double at(unsigned x, unsigned y, unsigned component, unsigned w = 1, unsigned h = 1) const {
        double sum = 0;
        for (unsigned int n = 0; n < w * h; ++n) {
            sum += samples.at(((y + n / w) * width + x + n % w) * components + component);
        }
        return sum / (w * h);
    }
};

/// Decodes a JPEG without a conversion of colours and without interpolation.
inline pixels_t pixels_of(std::string const& bytes) {
    jpeg_decompress_struct cinfo;
    jpeg_error_mgr error;
    cinfo.err = jpeg_std_error(&error);
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, reinterpret_cast<JOCTET const*>(bytes.data()), bytes.size());
    jpeg_read_header(&cinfo, TRUE);
    cinfo.out_color_space = cinfo.jpeg_color_space;
    cinfo.do_fancy_upsampling = FALSE;
    jpeg_start_decompress(&cinfo);
    pixels_t pixels{cinfo.output_width, static_cast<unsigned int>(cinfo.output_components)};
    std::size_t const stride = std::size_t{pixels.width} * pixels.components;
    pixels.samples.resize(cinfo.output_height * stride);
    while (cinfo.output_scanline < cinfo.output_height) {
        JSAMPROW row = &pixels.samples[cinfo.output_scanline * stride];
        jpeg_read_scanlines(&cinfo, &row, 1);
    }
    jpeg_destroy_decompress(&cinfo);
    return pixels;
}

/// Returns a JPEG of `side` by `side` pixels whose six scans are repeated `times` times. Without
/// arguments, it has thirty scans of a million blocks each in a few bytes.
inline std::string jpeg_without_end(unsigned long side = 8000, int times = 5) {
    std::string bytes = jpeg_of({32, 32, JCS_GRAYSCALE, 1, 1, true});
    std::string const scans = bytes.substr(bytes.find("\xFF\xDA"), bytes.npos);
    bytes.replace(bytes.find("\xFF\xC2") + 5, 4, be(side, 2) + be(side, 2));
    for (int i = 1; i < times; ++i) {
        bytes.insert(bytes.size() - 2, scans.substr(0, scans.size() - 2));
    }
    return bytes;
}
