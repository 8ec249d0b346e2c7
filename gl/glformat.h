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
/// are uploaded as if they were RGB. For example, RGB UINT 8 becomes GL_RGB8, GL_RGB and
/// GL_UNSIGNED_BYTE.
///
/// OpenGL reads these components with more bits than image/image.h describes: 4 bits (except RGBA
/// and BGRA) and L6A2 as one byte, 12 bits and SINT L12A4 as two bytes, 24 bits as four bytes.
///
/// OpenGL rejects the upload of these, and the texture level doesn't change:
///
///     INTENSITY                    GL_INTENSITY is no pixel format
///     DEPTH                        the pixel type is GL_DEPTH_COMPONENT
///     UINT 1, except INDEX         the pixel type GL_BITMAP is only allowed for indices
///     GRAYSCALE_ALPHA UINT L12A4   the same
///     GREEN, BLUE, INDEX           GL_GREEN, GL_BLUE, GL_COLOR_INDEX are no internal formats
///     RED SINT and UINT 8 16 32    GL_R8I and others need GL_RED_INTEGER
///     BGR R3G3B2 and R5G6B5        the packed pixel types need GL_RGB
///     `compressed` images          no internal format is one of compressed data
///
/// This is kept because callers depend on the GL calls. Convert INDEX images with `index2rgb`
/// (image/pixelconvert.h). A core profile also rejects GRAYSCALE, GRAYSCALE_ALPHA and ALPHA.
///
/// If `compress` is true, the internal format GL_ALPHA becomes GL_COMPRESSED_ALPHA, if the context
/// has ARB_texture_compression. Other internal formats don't change.
///
/// Returns true if `out` contains the result. Otherwise calls `grReportUnsupportedImage` and
/// returns false; ignore `out` then. Makes no GL call.
bool grConvertImageFormatToGlFormatFULL(gl_loading_format_t* out, image_desc_t desc, bool compress);

/// Does the same without a report. Returns std::nullopt for a rejected description.
std::optional<gl_loading_format_t> find_gl_format(image_desc_t desc, bool compress);

/// Returns the internal format. For a rejected description, calls `grReportUnsupportedImage` and
/// returns GL_INVALID_VALUE.
unsigned int internal_format_of(image_desc_t desc, bool compress);

/// Prints four lines about a description on the error stream: "Not supported image format!", and
/// the names of its format, type and bits. Then the stream prints integers in hexadecimal, because
/// readers of the stream depend on it.
void grReportUnsupportedImage(image_desc_t desc);

}  // namespace libgr
