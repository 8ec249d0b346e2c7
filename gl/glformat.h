// SPDX-License-Identifier: MIT
// Conversion of image descriptions to internal format, pixel format and pixel type of OpenGL.
#pragma once

#include <optional>

#include "image/image.h"

namespace libgr {

/// The three OpenGL enumerants that glTexImage2D needs for an image.
struct gl_loading_format_t {
    unsigned int internalformat;
    unsigned int format;
    unsigned int type;
};

/// Converts an image description. These are accepted (names without their prefixes):
///
///     Format            SINT bits                   UINT bits                     FLOAT bits
///     GRAYSCALE         4 8 12 16 32                1 4 8 16 32                   16 32
///     GRAYSCALE_ALPHA   4 8 16 32 L6A2 L12A4        1 4 8 12 16 24 32 L6A2 L12A4  16 32
///     INTENSITY         4 8 16 32                   1 4 8 12 16 32                16 32
///     RED, GREEN, BLUE  8 16 32                     1 8 16 32                     16 32
///     ALPHA             4 8 12 16 32                1 4 8 12 16 32                16 32
///     RGB, YCbCr        4 8 12 16 32 R3G3B2 R5G6B5  1 4 8 12 16 32 R3G3B2 R5G6B5  16 32
///     RGBA, YCbCrA      4 8 12 16 32, packed        1 4 8 12 16 32, packed        16 32
///     BGR               8 R3G3B2 R5G6B5             8 R3G3B2 R5G6B5               -
///     BGRA              4 8, packed                 4 8, packed                   -
///     DEPTH             -                           -                             16 24 32
///     INDEX             -                           1 8                           -
///
/// "packed" is R5G5B5A1 and R10G10B10A2. RG, DEPTH_STENCIL and YCbCr422 are rejected. YCbCr images
/// are uploaded as if they were RGB. The rows are in gl/glformattables.cpp. OpenGL rejects some of
/// the results, for example the pixel format of INTENSITY and the pixel type of DEPTH.
///
/// `compress` selects a compressed internal format for images whose internal format is GL_ALPHA, if
/// ARB_texture_compression is supported. It has no effect on other images. Returns true if `out` is
/// valid. Otherwise reports the description on the error stream and may have changed `out->format`.
/// Makes no GL call, but `gl_extloader_init` must have been called.
bool grConvertImageFormatToGlFormatFULL(gl_loading_format_t* out, image_desc_t desc, bool compress);

/// Does the same without a report. Returns nothing for a rejected description.
std::optional<gl_loading_format_t> find_gl_format(image_desc_t desc, bool compress);

/// Returns the internal format, or reports the description and returns GL_INVALID_VALUE.
unsigned int internal_format_of(image_desc_t desc, bool compress);

/// Prints four lines about a rejected description on the error stream, and leaves the stream in
/// hexadecimal mode: integers printed later appear in hexadecimal.
void grReportUnsupportedImage(image_desc_t desc);

}  // namespace libgr
