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
/// are uploaded as if they were RGB. The rows are in gl/glformattables.cpp.
///
/// OpenGL rejects the upload of these, and the texture level doesn't change:
///
///     Description                   Error                 Reason
///     INTENSITY                     GL_INVALID_ENUM       GL_INTENSITY is no pixel format.
///     DEPTH                         GL_INVALID_ENUM       The pixel type is GL_DEPTH_COMPONENT.
///     UINT 1, except INDEX          GL_INVALID_ENUM       GL_BITMAP is a type for indices only.
///     GRAYSCALE_ALPHA UINT L12A4    GL_INVALID_ENUM       The same.
///     GREEN, BLUE                   GL_INVALID_VALUE      These are no internal formats.
///     INDEX                         GL_INVALID_VALUE      GL_COLOR_INDEX is no internal format.
///     RED SINT and UINT 8 16 32     GL_INVALID_OPERATION  GL_R8I and others need GL_RED_INTEGER.
///     BGR R3G3B2 and R5G6B5         GL_INVALID_OPERATION  These pixel types need GL_RGB.
///     `compressed` images           GL_INVALID_ENUM       No result is a compressed data format.
///
/// This is kept because callers depend on the GL calls. Convert INDEX images with `index2rgb`
/// (image/pixelconvert.h). A core profile also rejects GRAYSCALE, GRAYSCALE_ALPHA and ALPHA.
///
/// If `compress` is true, the internal format GL_ALPHA becomes GL_COMPRESSED_ALPHA, if the context
/// has ARB_texture_compression. Other internal formats don't change.
///
/// Returns true if `out` contains the result. Otherwise calls `grReportUnsupportedImage` and
/// returns false; ignore `out` then. Makes no GL call. Before `gl_extloader_init`, `compress` has
/// no effect.
bool grConvertImageFormatToGlFormatFULL(gl_loading_format_t* out, image_desc_t desc, bool compress);

/// Does the same, but prints nothing. Returns std::nullopt for a rejected description.
std::optional<gl_loading_format_t> find_gl_format(image_desc_t desc, bool compress);

/// Returns the internal format. For a rejected description, calls `grReportUnsupportedImage` and
/// returns GL_INVALID_VALUE.
unsigned int internal_format_of(image_desc_t desc, bool compress);

/// Prints four lines about a description on the error stream: "Not supported image format!", and
/// the names of its format, type and bits. Then the stream prints integers in hexadecimal. This is
/// kept because readers of the stream depend on it. Use std::dec before you print integers.
void grReportUnsupportedImage(image_desc_t desc);

}  // namespace libgr
