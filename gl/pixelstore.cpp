// SPDX-License-Identifier: MIT
// Pixel store parameters (glPixelStore) from image records. Sizes of pixel formats and types.
#include "gl/pixelstore.h"

#include <initializer_list>
#include <iterator>

#include "utils/bits.h"

namespace libgr {

namespace {

struct parameter_t {
    GLenum name;
    unsigned int value;
};

void set(std::initializer_list<parameter_t> parameters) {
    for (parameter_t const& parameter : parameters) {
        glPixelStorei(parameter.name, static_cast<GLint>(parameter.value));
    }
}

/// Returns the alignment, in bytes, that OpenGL writes rows with. Without a valid row layout OpenGL
/// uses an alignment that was set earlier. The largest one is returned for it.
unsigned long long pack_alignment(image_store_t const* store) {
    constexpr unsigned int widest = 8;
    bool const valid =
        store != nullptr && store->alignment <= widest && libutils::Is_2nSize(store->alignment);
    return valid ? store->alignment : widest;
}

}  // namespace

void grPixelStoreUnpack(image_store_t const* store) {
    if (store != nullptr) {
        set({{GL_UNPACK_SWAP_BYTES, store->swapbytes}, {GL_UNPACK_ALIGNMENT, store->alignment}});
    }
}

void grPixelStoreUnpack(image_window1d_t const& window) {
    set({{GL_UNPACK_SKIP_PIXELS, window.skippixels}});
}

void grPixelStoreUnpack(image_window2d_t const& window) {
    set({{GL_UNPACK_ROW_LENGTH, window.rowlength},
         {GL_UNPACK_SKIP_PIXELS, window.skippixels},
         {GL_UNPACK_SKIP_ROWS, window.skiprows}});
}

void grPixelStoreUnpack(image_window3d_t const& window) {
    set({{GL_UNPACK_ROW_LENGTH, window.rowlength},
         {GL_UNPACK_IMAGE_HEIGHT, window.imageheight},
         {GL_UNPACK_SKIP_PIXELS, window.skippixels},
         {GL_UNPACK_SKIP_ROWS, window.skiprows},
         {GL_UNPACK_SKIP_IMAGES, window.skipimages}});
}

void grPixelStorePack(image_store_t const* store) {
    if (store != nullptr) {
        set({{GL_PACK_SWAP_BYTES, store->swapbytes}, {GL_PACK_ALIGNMENT, store->alignment}});
    }
}

void grPixelStorePack(image_window1d_t const& window) {
    set({{GL_PACK_SKIP_PIXELS, window.skippixels}});
}

void grPixelStorePack(image_window2d_t const& window) {
    set({{GL_PACK_ROW_LENGTH, window.rowlength},
         {GL_PACK_SKIP_PIXELS, window.skippixels},
         {GL_PACK_SKIP_ROWS, window.skiprows}});
}

void grPixelStorePack(image_window3d_t const& window) {
    set({{GL_PACK_ROW_LENGTH, window.rowlength},
         {GL_PACK_IMAGE_HEIGHT, window.imageheight},
         {GL_PACK_SKIP_PIXELS, window.skippixels},
         {GL_PACK_SKIP_ROWS, window.skiprows},
         {GL_PACK_SKIP_IMAGES, window.skipimages}});
}

bool grAllocateForPack(image2d_t& image, unsigned int pixelbytes) {
    unsigned long long const align = pack_alignment(image.store);
    unsigned long long const row = (image.rowlength() * pixelbytes + align - 1) / align * align;
    unsigned long long const rows = image.window.skiprows + 1ULL * image.m_height;
    unsigned long long const first = 1ULL * image.window.skippixels * pixelbytes;
    // With 32-bit counts and at most 16 bytes a pixel, only this product can exceed 64 bits.
    unsigned long long needed = 0;
    if (image.m_width == 0 || image.m_height == 0 || __builtin_mul_overflow(row, rows, &needed) ||
        __builtin_add_overflow(needed, first, &needed) || !image.allocate()) {
        return false;
    }
    return image.size() >= needed || image.resize(needed, 0);
}

unsigned long grFormatToComponents(GLenum format) {
    switch (format) {
        case GL_COLOR_INDEX:
        case GL_RED:
        case GL_GREEN:
        case GL_BLUE:
        case GL_ALPHA:
        case GL_DEPTH_COMPONENT:
        case GL_LUMINANCE:
            return 1;
        case GL_LUMINANCE_ALPHA:
            return 2;
        case GL_RGB:
        case GL_BGR:
            return 3;
        case GL_RGBA:
        case GL_BGRA:
            return 4;
        default:
            return 0;
    }
}

unsigned long grTypeToSize(GLenum type) {
    switch (type) {
        case GL_BYTE:
        case GL_UNSIGNED_BYTE:
        case GL_BITMAP:
            return 1;
        case GL_SHORT:
        case GL_UNSIGNED_SHORT:
            return 2;
        case GL_INT:
        case GL_UNSIGNED_INT:
        case GL_FLOAT:
            return 4;
        case GL_DOUBLE:
            return 8;
        default:
            return 0;
    }
}

GLenum grSizeToType(unsigned long size) {
    static constexpr GLenum types[] = {0, GL_UNSIGNED_BYTE, GL_UNSIGNED_SHORT, 0, GL_FLOAT, 0, 0,
                                       0, GL_DOUBLE};
    return size < std::size(types) ? types[size] : 0;
}

}  // namespace libgr
