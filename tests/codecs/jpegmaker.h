// SPDX-License-Identifier: MIT
// Makes JPEG files, decodes them with plain calls of libjpeg, and loads files in tests.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

#include "codecs/imageobject.h"
#include "codecs/jpegmanagers.h"
#include "codecs/jpegobject.h"
#include "tests/support/files/testfiles.h"
#include "utils/diagnostics.h"

/// Returns the low `size` bytes of `value`, lowest byte first.
inline std::string le(unsigned long value, unsigned int size) {
    std::string bytes(size, '\0');
    for (unsigned int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

/// Returns the low `size` bytes of `value`, highest byte first.
inline std::string be(unsigned long value, unsigned int size) {
    std::string const bytes = le(value, size);
    return {bytes.rbegin(), bytes.rend()};
}

inline libgr::jpegdata_t jpegdata_of(std::string const& bytes) {
    libgr::jpeg_bytes_t block;
    EXPECT_TRUE(block.resize(bytes.size(), 0));
    std::copy(bytes.begin(), bytes.end(), block.begin());
    libgr::jpegdata_t data;
    data.setvector(block, "memory");
    return data;
}

inline std::string bytes_of(libgr::jpegdata_t const& data) {
    return {data.begin(), data.end()};
}

inline std::string segment(unsigned int code, std::string const& payload) {
    return be(0xFF00 + code, 2) + be(payload.size() + 2, 2) + payload;
}

/// Returns an Exif block with an orientation, and with the size of the picture in its Exif IFD.
inline std::string exif(bool intel, unsigned int orientation, unsigned int width = 64,
                        unsigned int height = 48) {
    auto const word = intel ? le : be;
    auto const entry = [&](unsigned int tag, unsigned int value) {
        return word(tag, 2) + word(4, 2) + word(1, 4) + word(value, 4);
    };
    return std::string("Exif\0\0", 6) + (intel ? "II" : "MM") + word(42, 2) + word(8, 4) +
           word(2, 2) + entry(0x8769, 38) + word(0x0112, 2) + word(3, 2) + word(1, 4) +
           word(orientation, 2) + word(0, 6) + word(2, 2) + entry(0xA002, width) +
           entry(0xA003, height) + word(0, 4);
}

inline std::string ramp(unsigned long size, char first = 1) {
    std::string bytes(size, '\0');
    std::iota(bytes.begin(), bytes.end(), first);
    return bytes;
}

inline libgr::image2d_t image_of(unsigned int width, unsigned int height,
                                 libgr::e_image_format_t format, libgr::e_image_bits_t bits,
                                 std::string const& pixels) {
    libgr::image2d_t image;
    image.desc = {format, libgr::IMAGE_TYPE_UINT, bits};
    image.m_width = width;
    image.m_height = height;
    image.resize(pixels.size(), 0);
    std::copy(pixels.begin(), pixels.end(), image.begin());
    return image;
}

/// A folder for one file, and the picture that is loaded from it.
struct picture_test_t : testing::Test {
    /// Returns "WIDTHxHEIGHT FORMAT BITS ENTRIES: BYTES", or the reason of the failure.
    template <typename codec_t = libgr::image_jpeg1_t>
    std::string load_file(std::string const& place) {
        codec_t codec;
        image = {};
        image.compressed = true;
        image.desc.bits = libgr::IMAGE_BITS_64;
        libutils::clear_failure_reason();
        capture_t streams;
        is_loaded = codec.load(image, place.c_str());
        lines = streams.err();
        turns = codec.rightrotatecount();
        if (!is_loaded) {
            return std::string(libutils::failure_reason());
        }
        EXPECT_FALSE(image.compressed);
        std::ostringstream out;
        out << image.m_width << "x" << image.m_height << " " << image.desc.format << " "
            << image.desc.bits << " " << image.palette.size << ": " << image.size();
        std::string text = out.str();
        return text.erase(text.find("IMAGE_FORMAT_"), 13).erase(text.find("IMAGE_BITS_"), 11);
    }
    template <typename codec_t = libgr::image_jpeg1_t>
    std::string load(std::string const& bytes) {
        return load_file<codec_t>(write_file(file, bytes));
    }
    std::string pixels() const { return {image.begin(), image.end()}; }

    temp_dir_t dir;
    std::string const file = dir.file("picture");
    libgr::image2d_t image;
    bool is_loaded = false;
    unsigned long turns = 0;
    std::string lines;  ///< printed by the last load on the error stream
};

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
    if (layout.h * layout.v > 8) {  // one scan cannot contain all blocks of an MCU
        cinfo.scan_info = scans;
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

    JSAMPLE at(unsigned int x, unsigned int y, unsigned int component) const {
        return samples.at((y * width + x) * components + component);
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
