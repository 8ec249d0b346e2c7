// SPDX-License-Identifier: MIT
// Selects the codec of a picture, cuts the picture into tiles, and draws it.
#include "scene/viewobj.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <climits>
#include <iostream>
#include <iterator>

#include "codecs/bmpimage2.h"
#include "codecs/jpegobject.h"
#include "codecs/png.h"
#include "codecs/tga.h"
#include "gl/grerror.h"
#include "gl/readpixels.h"
#include "glext/glextloader.h"
#include "image/pixelconvert.h"
#include "image/samples.h"
#include "options/trace.h"
#include "utils/diagnostics.h"
#include "utils/path.h"

namespace zanolib {

namespace {

// Smaller tiles waste less of the textures at the right and top edges.
constexpr GLint max_tile_side = 256;

using codec_ptr_t = libutils::ptr_t<libgr::image_object_t>;

template <class T>
libgr::image_object_t* make_codec() {
    return new T;
}

void debug_line(std::string const& line) {
    trace(std::cerr, libutils::putname(line));
}

GLint tile_limit() {
    GLint most = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
    trace(std::cerr, "max_tex_size: ", most);
    return std::clamp(most, 1, max_tile_side);
}

bool has_pixels(libgr::image2d_t const& image) {
    return !image.empty() && image.m_width > 0 && image.m_width <= INT_MAX && image.m_height > 0 &&
           image.m_height <= INT_MAX;
}

using conversion_t = bool(libgr::image2d_t& dst, libgr::image2d_t const& src);

bool convert_in_place(libgr::image2d_t& image, conversion_t* convert) {
    libgr::image2d_t converted;
    if (!convert(converted, image)) {
        return false;
    }
    image = converted;
    return true;
}

}  // namespace

/// The codec for an extension. It is deleted after a successful load to free its memory, and used
/// again after a failed one.
struct ViewObject::codec_row_t {
    char const* extension;  ///< with the dot; the case doesn't matter
    codec_ptr_t* codec;
    libgr::image_object_t* (*make)();
    std::endian byte_order;  ///< of the samples of 16 bits that the codec delivers
};

codec_ptr_t ViewObject::m_jpeg1imgobj;
codec_ptr_t ViewObject::m_bmpimgobj;
codec_ptr_t ViewObject::m_pngimgobj;
codec_ptr_t ViewObject::m_tgaimgobj;

std::string make_snapshotpath(char const* picture) {
    return libutils::path_beside(picture, ".zvw.jpg");
}

ViewObject::ViewObject()
    : m_texparameter(libgr::texparameter2d(GL_LINEAR_MIPMAP_LINEAR, GL_LINEAR, GL_CLAMP_TO_EDGE,
                                           GL_CLAMP_TO_EDGE, 1.0f)) {}

ViewObject::codec_row_t const* ViewObject::find_row(std::string const& path) {
    static constexpr codec_row_t codecs[] = {
        {".jpg", &m_jpeg1imgobj, make_codec<libgr::image_jpeg1_t>, std::endian::native},
        {".jpeg", &m_jpeg1imgobj, make_codec<libgr::image_jpeg1_t>, std::endian::native},
        {".bmp", &m_bmpimgobj, make_codec<libgr::image_bmp2_t>, std::endian::native},
        {".png", &m_pngimgobj, make_codec<libgr::image_png_t>, std::endian::big},
        {".tga", &m_tgaimgobj, make_codec<libgr::image_tga_t>, std::endian::little},
    };
    auto const* const row = std::ranges::find_if(codecs, [&](codec_row_t const& candidate) {
        return libutils::extcasecmp(path, candidate.extension) == 0;
    });
    return row == std::end(codecs) ? nullptr : row;
}

bool ViewObject::has_picture_extension(std::string const& path) {
    return find_row(path) != nullptr;
}

void ViewObject::release_codecs() {
    for (codec_ptr_t* codec : {&m_jpeg1imgobj, &m_tgaimgobj, &m_bmpimgobj, &m_pngimgobj}) {
        codec->free();
    }
}

bool ViewObject::setImage(char const* path, char const* /*datapath*/) {
    m_path = path;
    codec_row_t const* const row = find_row(m_path);
    if (row == nullptr) {
        return libutils::reject("unknown extension");
    }
    if (!*row->codec) {
        *row->codec = row->make();
    }
    libgr::image_object_t& codec = **row->codec;
    m_image.store = nullptr;
    if (!codec.load(m_image, path)) {
        return false;
    }
    libutils::clear_failure_reason();  // of damage that did not stop the codec
    if (!has_pixels(m_image)) {
        return libutils::reject("no pixels, or more than 2147483647 in a row or column");
    }
    m_rightrotatecount = codec.rightrotatecount();
    GLint const limit = tile_limit();
    if (!libgr::to_machine_order(m_image, row->byte_order) ||
        !convert_in_place(m_image, libgr::widen_samples) ||
        !convert_in_place(m_image, libgr::index2rgb)) {
        return libutils::reject("not enough memory");
    }
    libgr::grPrintError("before rectangle_to_squares");
    // If this fails, there are no tiles, and `Draw` draws nothing.
    rectangle_to_squares(m_squareimage, m_image, static_cast<unsigned long>(limit), true);
    libgr::grPrintError("rectangle-to-squares");
    debug_line("rectangle_to_square() complete.");
    squares_to_texobjs(m_texobject, m_squareimage);
    libgr::grPrintError("squares_to_texobjs");
    m_texobject.setTexParm(&m_texparameter);
    debug_line("ViewObject::setImage() end");
    release_codecs();
    return true;
}

bool ViewObject::saveImage(char const* path) {
    std::string const name = make_snapshotpath(path);
    libgr::image2d_t image;
    auto const fail = [&name](char const* reason) {
        int const error = errno;
        libutils::error();
        debug_line(name + reason);
        errno = error;
        return false;
    };
    if (!libgr::grReadPixelsRGB(image)) {
        errno = image.m_width == 0 || image.m_height == 0 ? ENODATA : ENOMEM;
        return fail(": read pixels fail.");
    }
    libgr::image_jpeg1_t codec;
    return codec.save(image, name.c_str()) || fail(": jpeg1 save fail.");
}

bool ViewObject::load_texture() {
    m_texture_loaded = m_texture_loaded || m_texobject.Preload();
    return m_texture_loaded;
}

void ViewObject::free_texture() {
    if (m_texture_loaded) {
        m_texobject.Unload();
        m_texture_loaded = false;
    }
}

void ViewObject::setMagSmooth(bool on) {
    m_magsmooth = on;
    m_texparameter.magfilter = on ? GL_LINEAR : GL_NEAREST;
}

libgr::direction2l_t ViewObject::getImageSize() const {
    return libgr::direction2l_t{static_cast<int>(m_image.m_width),
                                static_cast<int>(m_image.m_height)};
}

void ViewObject::Draw() const {
    if (!m_texture_loaded) {
        return;
    }
    libgr::grPrintError("before-ViewObject::Draw()");
    debug_line("ViewObject::Draw()");
    auto const width = static_cast<float>(m_image.m_width);
    auto const height = static_cast<float>(m_image.m_height);
    m_texobject.draw_image(libgr::position2(width * -0.5f, height * -0.5f),
                           libgr::position2(width * 0.5f, height * 0.5f));
    libgr::grPrintError("after-ViewObject::Draw()");
}

}  // namespace zanolib
