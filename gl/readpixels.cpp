// SPDX-License-Identifier: MIT
// Reads the frame buffer into an image.
#include "gl/readpixels.h"

#include <algorithm>

#include "gl/pixelstore.h"

namespace libgr {

namespace {

struct source_t {
    image_desc_t desc;
    GLenum format;
    GLenum type;
    unsigned int pixelbytes;
};

/// Reads the rectangle of the viewport from a buffer, row 0 at the bottom.
class frame_reader_t {
  public:
    explicit frame_reader_t(source_t const& source) : m_source(source) {
        glGetIntegerv(GL_VIEWPORT, m_viewport);
    }

    bool prepare(image2d_t& image) const {
        image.clear();
        image.m_width = static_cast<unsigned int>(std::max(m_viewport[2], 0));
        image.m_height = static_cast<unsigned int>(std::max(m_viewport[3], 0));
        image.desc = m_source.desc;
        if (!grAllocateForPack(image, m_source.pixelbytes)) {
            return false;
        }
        grPixelStorePack(image.store);
        grPixelStorePack(image.window);
        return true;
    }

    void read(GLenum buffer, image2d_t& image) const {
        glReadBuffer(buffer);
        glReadPixels(m_viewport[0], m_viewport[1], m_viewport[2], m_viewport[3], m_source.format,
                     m_source.type, image.begin());
    }

  private:
    source_t const& m_source;
    GLint m_viewport[4] = {};
};

constexpr source_t rgb_source = {
    {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}, GL_RGB, GL_UNSIGNED_BYTE, 3};
constexpr source_t depth_source = {
    {IMAGE_FORMAT_DEPTH, IMAGE_TYPE_UINT, IMAGE_BITS_24}, GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, 4};

bool is_black(image2d_t const& image) {
    return std::all_of(image.begin(), image.end(), [](unsigned char byte) { return byte == 0; });
}

}  // namespace

bool grReadPixelsRGB(image2d_t& image) {
    frame_reader_t const reader(rgb_source);
    if (!reader.prepare(image)) {
        return false;
    }
    reader.read(GL_FRONT, image);
    if (is_black(image)) {
        reader.read(GL_BACK, image);
    }
    return true;
}

bool grReadPixelsDepth(image2d_t& image) {
    frame_reader_t const reader(depth_source);
    if (!reader.prepare(image)) {
        return false;
    }
    reader.read(GL_FRONT, image);
    return true;
}

}  // namespace libgr
