// SPDX-License-Identifier: MIT
// Pixel store parameters (glPixelStore) from image records. Sizes of pixel formats and types.
#pragma once

#include <cstddef>

#include "glext/glextloader.h"
#include "image/image.h"

namespace libgr {

/// A parameter of glPixelStorei and its value.
struct pixelstore_t {
    GLenum name;
    GLint value;
};

/// Sets a list of pixel store parameters. The destructor restores their previous values. Both need
/// a current context.
template <std::size_t N>
class grPixelStoreKeeper {
  public:
    explicit grPixelStoreKeeper(pixelstore_t const (&parameters)[N]) {
        for (std::size_t i = 0; i < N; ++i) {
            m_saved[i] = {parameters[i].name, 0};
            glGetIntegerv(parameters[i].name, &m_saved[i].value);
            glPixelStorei(parameters[i].name, parameters[i].value);
        }
    }
    grPixelStoreKeeper(grPixelStoreKeeper const&) = delete;
    grPixelStoreKeeper& operator=(grPixelStoreKeeper const&) = delete;
    ~grPixelStoreKeeper() {
        for (pixelstore_t const& parameter : m_saved) {
            glPixelStorei(parameter.name, parameter.value);
        }
    }

  private:
    pixelstore_t m_saved[N];
};

// Each function sets the parameters in its comment, in this order. Nothing restores them. All need
// a current context.

/// GL_UNPACK_SWAP_BYTES, GL_UNPACK_ALIGNMENT. Null does nothing.
void grPixelStoreUnpack(image_store_t const* store);
/// GL_UNPACK_SKIP_PIXELS.
void grPixelStoreUnpack(image_window1d_t const& window);
/// GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_PIXELS, GL_UNPACK_SKIP_ROWS.
void grPixelStoreUnpack(image_window2d_t const& window);
/// GL_UNPACK_ROW_LENGTH, _IMAGE_HEIGHT, _SKIP_PIXELS, _SKIP_ROWS, _SKIP_IMAGES.
void grPixelStoreUnpack(image_window3d_t const& window);

// These set the same parameters with GL_PACK_ instead of GL_UNPACK_.
void grPixelStorePack(image_store_t const* store);
void grPixelStorePack(image_window1d_t const& window);
void grPixelStorePack(image_window2d_t const& window);
void grPixelStorePack(image_window3d_t const& window);

/// Allocates the bytes of an image for glReadPixels or glGetTexImage. Set the description, sizes,
/// store and window before, and call grPixelStorePack with both afterwards.
///
/// `pixelbytes` is the number of bytes that OpenGL writes for a pixel, at most 16. It may differ
/// from the pixel size of the description. If the image has no store, the bytes suffice for every
/// GL_PACK_ALIGNMENT. Returns false if a side is 0 or there is no memory. Makes no GL call.
bool grAllocateForPack(image2d_t& image, unsigned int pixelbytes);

/// Returns the number of components, 1 to 4, of a pixel format of gl/glformat.h. Returns 0 for
/// GL_INTENSITY and all other formats.
unsigned long grFormatToComponents(GLenum format);
/// Returns the size, in bytes, of one component of a pixel type:
///
///     1  GL_BYTE, GL_UNSIGNED_BYTE, GL_BITMAP
///     2  GL_SHORT, GL_UNSIGNED_SHORT
///     4  GL_INT, GL_UNSIGNED_INT, GL_FLOAT
///     8  GL_DOUBLE
///     0  all other types, also GL_HALF_FLOAT and packed types
unsigned long grTypeToSize(GLenum type);
/// Returns GL_UNSIGNED_BYTE, GL_UNSIGNED_SHORT, GL_FLOAT or GL_DOUBLE for components of 1, 2, 4 or
/// 8 bytes, or 0 for other sizes.
GLenum grSizeToType(unsigned long size);

}  // namespace libgr
