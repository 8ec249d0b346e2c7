// SPDX-License-Identifier: MIT
// What the texture images with mipmap levels have in common: the records and how they are to go up.
#pragma once

#include <span>
#include <vector>

#include "geometry/color.h"
#include "gl/glformat.h"
#include "gl/texture.h"
#include "glext/glextloader.h"
#include "image/image.h"
#include "utils/bits.h"
#include "utils/limits.h"

namespace libgr {

/// The longest side of a record in pixels.
inline unsigned int longest_side(image1d_t const& image) {
    return image.m_width;
}
inline unsigned int longest_side(image2d_t const& image) {
    return libutils::max2(image.m_width, image.m_height);
}
inline unsigned int longest_side(image3d_t const& image) {
    return libutils::max2(libutils::max2(image.m_width, image.m_height), image.m_depth);
}

/// Image records and upload settings of a texture whose levels are of type `image_t`.
///
/// The records share their bytes with the caller's. Parameter record and border colour are not
/// owned and must outlive the object; null leaves OpenGL's values alone.
template <typename image_t, typename parameter_t>
class grTexturableLevels : public grTexturableImageGL {
  public:
    /// Passes the alpha-only compression wish on to the format conversion.
    void setInternalCompression(bool compress) { m_internalcompression = compress; }
    /// Has the levels below level 0 generated.
    void setBuildMipmap(bool build) { m_buildmipmap = build; }
    /// Gives the texture a border of one pixel.
    void setBorder(bool border) { m_border = border; }
    void setTextureParameter(parameter_t const* parameter) { m_texparameter = parameter; }
    void setBorderColor(color3a_t const* color) { m_bordercolor = color; }

    /// Drops the image records; the other settings stay, and so does what is in the OpenGL texture.
    void clear() { m_images.clear(); }

    /// The internal format of the first image, its own `compressed` field asking for compression;
    /// GL_INVALID_VALUE when it has none or there is no image.
    unsigned int GetInternalFormat() const override {
        return m_images.empty() ? GL_INVALID_VALUE
                                : internal_format_of(m_images[0].desc, m_images[0].compressed);
    }

  protected:
    static constexpr unsigned long max_image_count = libutils::limits::texture_images.value;

    /// Makes the vector exactly `first + images.size()` long and puts the images at its end.
    void replace_from(unsigned long first, std::span<image_t const> images, unsigned int size) {
        if (first >= max_image_count) {
            libutils::report_limit(libutils::limits::texture_images);
            return;
        }
        m_images.resize(first + images.size());
        assign_at(first, images, size);
    }
    /// Makes the vector at least `first + images.size()` long and puts the images at `first`.
    void overwrite_from(unsigned long first, std::span<image_t const> images, unsigned int size) {
        if (first >= max_image_count) {
            libutils::report_limit(libutils::limits::texture_images);
            return;
        }
        if (m_images.size() < first + images.size()) {
            m_images.resize(first + images.size());
        }
        assign_at(first, images, size);
    }

    std::vector<image_t> m_images;
    unsigned int m_size = 0;  ///< 0: textures of the image's size; else what the side comes from
    bool m_internalcompression = false;
    bool m_buildmipmap = false;
    bool m_border = false;
    parameter_t const* m_texparameter = nullptr;
    color3a_t const* m_bordercolor = nullptr;

  private:
    void assign_at(unsigned long first, std::span<image_t const> images, unsigned int size) {
        m_size = size;
        for (image_t const& image : images) {
            m_images[first++] = image;
            if (size != 0) {
                m_size = libutils::max2(m_size, longest_side(image));
            }
        }
    }
};

}  // namespace libgr
