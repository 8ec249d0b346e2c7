// SPDX-License-Identifier: MIT
// The base of the texture classes that have mipmap levels.
#pragma once

#include <algorithm>
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

/// Returns the longest side, in pixels, of an image.
inline unsigned int longest_side(image1d_t const& image) {
    return image.m_width;
}
inline unsigned int longest_side(image2d_t const& image) {
    return libutils::max2(image.m_width, image.m_height);
}
inline unsigned int longest_side(image3d_t const& image) {
    return libutils::max2(libutils::max2(image.m_width, image.m_height), image.m_depth);
}

/// The images and upload settings of a texture with mipmap levels of type `image_t`.
///
/// gl/texture.h has a table of owners. All settings are false or null at the start. There are at
/// most `libutils::limits::texture_images` images; each face of a cube map counts as one. Further
/// images are ignored, and a line is printed. Only `Load` and `Reload` make GL calls.
template <typename image_t, typename parameter_t>
class grTexturableLevels : public grTexturableImageGL {
  public:
    /// Sets whether textures with the internal format GL_ALPHA are compressed. Others never are.
    void setInternalCompression(bool compress) { m_internalcompression = compress; }
    /// Sets whether the mipmap levels 1 and up are generated from level 0. Given images of these
    /// levels replace the generated ones.
    void setBuildMipmap(bool build) { m_buildmipmap = build; }
    /// Sets whether the texture has a border of one texel. If `size` is 0, the outer pixels of the
    /// image are the border. Otherwise the border is undefined.
    void setBorder(bool border) { m_border = border; }
    /// Sets the parameters that `Load` and `Reload` set. They aren't owned. If null, the texture
    /// keeps its parameters; gl/texture.h describes OpenGL's initial minfilter.
    void setTextureParameter(parameter_t const* parameter) { m_texparameter = parameter; }
    /// Sets the border colour that `Load` and `Reload` set. It isn't owned. If null, the texture
    /// keeps its border colour.
    void setBorderColor(color3a_t const* color) { m_bordercolor = color; }

    /// Removes the images. The settings and the GL texture don't change.
    void clear() { m_images.clear(); }

    /// Returns the internal format of the first image, or GL_INVALID_VALUE if there is no image or
    /// its description is rejected, which is printed. The result depends on the image's
    /// `compressed` field, not on setInternalCompression. This is kept because callers depend on
    /// it.
    unsigned int GetInternalFormat() const override {
        return m_images.empty() ? GL_INVALID_VALUE
                                : internal_format_of(m_images[0].desc, m_images[0].compressed);
    }

  protected:
    static constexpr unsigned long max_image_count = libutils::limits::texture_images.value;

    /// Sets the images from index `first` on and removes all later ones.
    void replace_from(unsigned long first, std::span<image_t const> images, unsigned int size) {
        if (is_limited(first, images)) {
            m_images.resize(first + images.size());
            assign_at(first, images, size);
        }
    }
    /// Sets the images from index `first` on and keeps all later ones.
    void overwrite_from(unsigned long first, std::span<image_t const> images, unsigned int size) {
        if (is_limited(first, images)) {
            m_images.resize(std::max<std::size_t>(m_images.size(), first + images.size()));
            assign_at(first, images, size);
        }
    }

    std::vector<image_t> m_images;
    unsigned int m_size = 0;  ///< 0, or the side in texels that the texture must have at least
    bool m_internalcompression = false;
    bool m_buildmipmap = false;
    bool m_border = false;
    parameter_t const* m_texparameter = nullptr;
    color3a_t const* m_bordercolor = nullptr;

  private:
    /// Drops and reports the images past the limit. Returns false if none is left.
    static bool is_limited(unsigned long first, std::span<image_t const>& images) {
        unsigned long const room = max_image_count - std::min(first, max_image_count);
        if (room == 0 || images.size() > room) {
            libutils::report_limit(libutils::limits::texture_images);
            images = images.first(room);
            return room != 0;
        }
        return true;
    }
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
