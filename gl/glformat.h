// SPDX-License-Identifier: MIT
// How an image description is spoken of to OpenGL: internal format, pixel format and pixel type.
#pragma once

#include <optional>

#include "image/image.h"

namespace libgr {

/// The three OpenGL enumerants with which glTexImage2D and its relatives take an image.
struct gl_loading_format_t {
    unsigned int internalformat;
    unsigned int format;
    unsigned int type;
};

/// Turns an image description into the terms of OpenGL.
///
/// `compress` asks for a compressed internal format; it takes effect on plain GL_ALPHA alone, and
/// only where ARB_texture_compression is there. Returns true if `out` is valid. A description that
/// can't become a texture is reported on the error stream, leaves `out` in part written and gives
/// false. No GL call is made, but the extension flags must be set.
bool grConvertImageFormatToGlFormatFULL(gl_loading_format_t* out, image_desc_t desc, bool compress);

/// The same conversion without a report: nothing for a description that can't become a texture.
std::optional<gl_loading_format_t> find_gl_format(image_desc_t desc, bool compress);

/// The internal format that the conversion gives, or GL_INVALID_VALUE where it refuses.
unsigned int internal_format_of(image_desc_t desc, bool compress);

/// Reports an image that no texture can be made of: four lines on the error stream, which stays in
/// hexadecimal mode afterwards.
void grReportUnsupportedImage(image_desc_t desc);

}  // namespace libgr
