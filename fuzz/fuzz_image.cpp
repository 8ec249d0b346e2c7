// SPDX-License-Identifier: MIT
// Fuzzes the operations on pictures and the writers of picture files. The head of the input
// describes the record, the rest is its bytes, which may be too few for it.
#include "codecs/bmpimage.h"
#include "codecs/jpegobject.h"
#include "codecs/png.h"
#include "codecs/tga.h"
#include "fuzz/codecrun.h"
#include "image/normalmap.h"
#include "image/pixelconvert.h"
#include "image/scaledown.h"

namespace {

using namespace libgr;

template <typename codec_t>
bool save_and_load(image2d_t& dst, image2d_t const& src) {
    std::string const path = scratch_path("saved");
    codec_t codec;
    return codec.save(src, path.c_str()) && codec.load(dst, path.c_str());
}

constexpr bool (*operations[])(image2d_t&, image2d_t const&) = {
    scaledown,
    scaledownGRBG,
    scaledownGBRG,
    scaledownRGGB,
    scaledownBGGR,
    index2rgb,
    bgr2rgb,
    rgb2bgr,
    rgb2rgba,
    rgba2rgb,
    monochrome,
    copy,
    [](image2d_t& dst, image2d_t const& src) { return heightmap2normalmap(dst, src, 1.0F); },
    [](image2d_t& dst, image2d_t const& src) { return rotate(1, dst, src); },
    [](image2d_t& dst, image2d_t const& src) { return rotate(2, dst, src); },
    [](image2d_t& dst, image2d_t const& src) { return rotate(3, dst, src); },
    [](image2d_t& dst, image2d_t const& src) {
        image2d_t whole = src;
        return makewindow(dst, whole, 1, 1, src.m_width / 2, src.m_height) && addcolor(dst, {});
    },
    save_and_load<image_bmp_t>,
    save_and_load<image_jpeg1_t>,
    save_and_load<image_png_t>,
    save_and_load<image_tga_t>,
};

image2d_t read_image(input_t& input, image_store_t& store) {
    image2d_t image;
    image.desc = {static_cast<e_image_format_t>(input.number(1) % (IMAGE_FORMAT_MAX + 1U)),
                  static_cast<e_image_type_t>(input.number(1) % (IMAGE_TYPE_MAX + 1U)),
                  static_cast<e_image_bits_t>(input.number(1) % (IMAGE_BITS_MAX + 1U))};
    image.m_width = input.number(2);
    image.m_height = input.number(2);
    image.window = {input.number(2), input.number(1), input.number(1)};
    store = {false, 1U << input.number(1) % 4};
    image.store = &store;
    image.palette.resize(input.number(1));
    input.fill(image);
    return image;
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    input_t input(data, size);
    auto const operation = operations[input.number(1) % std::size(operations)];
    image_store_t store{};
    image2d_t const image = read_image(input, store);
    image2d_t changed;
    if (is_large(image)) {
        return -1;
    }
    if (operation(changed, image)) {
        read_pixels(changed);
    }
    return 0;
}
