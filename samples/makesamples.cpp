// SPDX-License-Identifier: MIT
// Paints the sample pictures, at least one in each file format: make-samples <directory> [<width>]
// The width replaces the widths of all pictures.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string>

#include "codecs/bmpimage.h"
#include "codecs/jpegdata.h"
#include "codecs/jpeginfo.h"
#include "codecs/png.h"
#include "codecs/tga.h"
#include "image/pixelconvert.h"
#include "samples/scenes.h"

namespace {

using namespace samples;

/// The payload of an Exif segment (CIPA DC-008) with an orientation of 6: the picture has to be
/// turned to the right by a quarter.
constexpr unsigned char turned_right[] =
    "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0";

/// Returns the image turned to the left by a quarter.
libgr::image2d_t turned_left(libgr::image2d_t const& image) {
    libgr::image2d_t lying;
    lying.desc = image.desc;
    lying.m_width = image.m_height;
    lying.m_height = image.m_width;
    if (!lying.allocate()) {
        return lying;
    }
    for (unsigned int y = 0; y < image.m_height; ++y) {
        unsigned char const* from = image.begin() + image.rowsize() * y;
        for (unsigned int x = 0; x < image.m_width; ++x, from += 3) {
            std::copy_n(from, 3,
                        lying.begin() + lying.rowsize() * x + 3UL * (image.m_height - 1 - y));
        }
    }
    return lying;
}

bool save_jpeg(libgr::image2d_t const& image, std::string const& path, bool is_turned) {
    libgr::jpeginfo_t info;
    if (is_turned) {
        libgr::marker_t exif{0xe1, {}};
        if (!exif.payload.resize(sizeof turned_right, 0)) {
            return false;
        }
        std::copy(std::begin(turned_right), std::end(turned_right), exif.payload.begin());
        info.markers.push_back(exif);
    }
    libgr::jpegdata_t data;
    return info.compress(data, image, 92, true) && data.save(path.c_str(), nullptr);
}

bool save_photograph(std::string const& path, int width) {
    canvas_t canvas = alps(width);
    canvas.add_grain(0.012f);
    return save_jpeg(canvas.image(), path, false);
}

bool save_balloons(std::string const& path, int width) {
    return save_jpeg(turned_left(balloons_at_sunrise(width).image()), path, true);
}

bool save_aurora(std::string const& path, int width) {
    libgr::image2d_t blue_first;
    return libgr::rgb2bgr(blue_first, aurora(width).image()) &&
           libgr::image_bmp_t{}.save(blue_first, path.c_str());
}

bool save_window(std::string const& path, int width) {
    return libgr::image_tga_t{}.save(rose_window(width).image(), path.c_str());
}

bool save_julia(std::string const& path, int width) {
    return libgr::image_png_t{}.save(julia(width).image(), path.c_str());
}

struct sample_t {
    char const* name;
    bool (*save)(std::string const& path, int width);
    int width;
};
constexpr std::array sample_list{
    sample_t{"alps.jpg", save_photograph, 6000},  sample_t{"aurora.bmp", save_aurora, 1000},
    sample_t{"balloons.jpg", save_balloons, 900}, sample_t{"julia.png", save_julia, 1000},
    sample_t{"rose.tga", save_window, 900},
};

}  // namespace

int main(int argc, char** argv) {
    int const width = argc == 3 ? std::atoi(argv[2]) : 0;
    if (argc != (width >= 2 ? 3 : 2)) {
        std::cerr << "usage: make-samples directory [width]" << std::endl;
        return EXIT_FAILURE;
    }
    for (sample_t const& sample : sample_list) {
        std::string const path = std::string(argv[1]) + '/' + sample.name;
        if (!sample.save(path, width != 0 ? width : sample.width)) {
            std::cerr << path << ": can't be written" << std::endl;
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
