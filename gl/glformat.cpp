// SPDX-License-Identifier: MIT
// Conversion of image descriptions to internal format, pixel format and pixel type of OpenGL.
#include "gl/glformat.h"

#include <algorithm>
#include <iostream>

#include "gl/glformattables.h"
#include "glext/glextloader.h"
#include "utils/diagnostics.h"

namespace libgr {
namespace {

// A bit for each e_image_format_t. IMAGE_FORMAT_RG and IMAGE_FORMAT_DEPTH_STENCIL are missing.
constexpr unsigned int accepted_formats = 0x3DF7F;

bool is_accepted(e_image_format_t format) {
    return format < IMAGE_FORMAT_MAX && ((accepted_formats >> format) & 1U) != 0;
}

bool convert(gl_loading_format_t* out, image_desc_t desc, bool compress) {
    if (out == nullptr || !is_accepted(desc.format)) {
        return false;
    }
    out->format = find_gl_pixelformat(desc.format)->glformat;
    auto const rows = gl_typebits_rows(desc.format);
    auto const row = std::ranges::find_if(rows, [desc](gl_typebits_row_t const& r) {
        return r.imagetype == desc.type && r.imagebits == desc.bits;
    });
    if (row == rows.end() || row->internalformat == GL_INVALID_VALUE ||
        row->type == GL_INVALID_VALUE) {
        return false;
    }
    out->internalformat = row->internalformat;
    out->type = row->type;
    if (compress && is_GL_ARB_texture_compression_supported != 0 &&
        out->internalformat == GL_ALPHA) {
        out->internalformat = GL_COMPRESSED_ALPHA;
    }
    return true;
}

}  // namespace

bool grConvertImageFormatToGlFormatFULL(gl_loading_format_t* out, image_desc_t desc,
                                        bool compress) {
    bool const converted = convert(out, desc, compress);
    if (!converted) {
        grReportUnsupportedImage(desc);
    }
    return converted;
}

std::optional<gl_loading_format_t> find_gl_format(image_desc_t desc, bool compress) {
    gl_loading_format_t glformat{};
    return convert(&glformat, desc, compress) ? std::optional(glformat) : std::nullopt;
}

unsigned int internal_format_of(image_desc_t desc, bool compress) {
    gl_loading_format_t glformat{};
    return grConvertImageFormatToGlFormatFULL(&glformat, desc, compress) ? glformat.internalformat
                                                                         : GL_INVALID_VALUE;
}

void grReportUnsupportedImage(image_desc_t desc) {
    libutils::error();
    std::cerr << "Not supported image format!" << std::endl;
    std::cerr << "imgformat: " << desc.format << std::endl;
    std::cerr << "imgtype: " << desc.type << std::endl;
    // The stream stays hexadecimal: readers of the error stream depend on it.
    std::cerr << std::hex << "imgbits: " << desc.bits << std::endl;
}

}  // namespace libgr
