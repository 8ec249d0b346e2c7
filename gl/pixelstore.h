// SPDX-License-Identifier: MIT
// How images lie in memory, told to OpenGL: glPixelStore from image records, sizes of pixel types.
#pragma once

#include <cstddef>

#include "glext/glextloader.h"
#include "image/image.h"

namespace libgr {

/// A parameter of glPixelStorei with a value.
struct pixelstore_t {
    GLenum name;
    GLint value;
};

/// Gives pixel store parameters the values of a list, and puts the former values back at the end of
/// the block. Needs a current context at both ends.
template <std::size_t N>
class grPixelStoreKeeper {
  public:
    explicit grPixelStoreKeeper(pixelstore_t const (&parameters)[N]) {
        for (std::size_t i = 0; i < N; ++i) {
            m_former[i] = {parameters[i].name, 0};
            glGetIntegerv(parameters[i].name, &m_former[i].value);
            glPixelStorei(parameters[i].name, parameters[i].value);
        }
    }
    grPixelStoreKeeper(grPixelStoreKeeper const&) = delete;
    grPixelStoreKeeper& operator=(grPixelStoreKeeper const&) = delete;
    ~grPixelStoreKeeper() {
        for (pixelstore_t const& parameter : m_former) {
            glPixelStorei(parameter.name, parameter.value);
        }
    }

  private:
    pixelstore_t m_former[N];
};

// Each sets the parameters named, in this order, and needs a current context. Nothing restores
// them.

/// GL_UNPACK_SWAP_BYTES, GL_UNPACK_ALIGNMENT; null does nothing.
void grPixelStoreUnpack(image_store_t const* store);
/// GL_UNPACK_SKIP_PIXELS.
void grPixelStoreUnpack(image_window1d_t const& window);
/// GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_PIXELS, GL_UNPACK_SKIP_ROWS.
void grPixelStoreUnpack(image_window2d_t const& window);
/// GL_UNPACK_ROW_LENGTH, _IMAGE_HEIGHT, _SKIP_PIXELS, _SKIP_ROWS, _SKIP_IMAGES.
void grPixelStoreUnpack(image_window3d_t const& window);

/// GL_PACK_SWAP_BYTES, GL_PACK_ALIGNMENT; null does nothing.
void grPixelStorePack(image_store_t const* store);
/// GL_PACK_SKIP_PIXELS.
void grPixelStorePack(image_window1d_t const& window);
/// GL_PACK_ROW_LENGTH, GL_PACK_SKIP_PIXELS, GL_PACK_SKIP_ROWS.
void grPixelStorePack(image_window2d_t const& window);
/// GL_PACK_ROW_LENGTH, _IMAGE_HEIGHT, _SKIP_PIXELS, _SKIP_ROWS, _SKIP_IMAGES.
void grPixelStorePack(image_window3d_t const& window);

/// Allocates an image that OpenGL is to write pixels of `pixelbytes` bytes (at most 16) into under
/// the image's own store and window: at least `image.allocate()`, and more where the description
/// counts fewer bytes than OpenGL writes. False for no pixels and when there is no such memory.
/// Makes no GL call.
bool grAllocateForPack(image2d_t& image, unsigned int pixelbytes);

/// Components of a pixel format, 1 to 4; 0 for GL_STENCIL_INDEX and unknown ones.
unsigned long grFormatToComponents(GLenum format);
/// Bytes of one component of a pixel type, GL_BITMAP counting as 1; 0 for packed and unknown ones.
unsigned long grTypeToSize(GLenum type);
/// The type for components of 1, 2, 4 or 8 bytes: GL_UNSIGNED_BYTE, GL_UNSIGNED_SHORT, GL_FLOAT,
/// GL_DOUBLE; 0 for other sizes.
GLenum grSizeToType(unsigned long size);

}  // namespace libgr
