// SPDX-License-Identifier: MIT
// Lossless operations on JPEG pictures: rotation, mirroring, cropping, and copying of markers.
#pragma once

#include "codecs/jpegmanagers.h"

namespace libgr {

// `transform` at the end of this file does everything. Programs with their own libjpeg structs call
// the steps in this order, all with the same request:
//
//     jcopy_markers_setup(source, option);                 before jpeg_read_header
//     jpeg_read_header(source, TRUE);
//     jtransform_request_workspace(source, &info);         false: not perfect
//     arrays = jpeg_read_coefficients(source);
//     jpeg_copy_critical_parameters(source, destination);
//     written = jtransform_adjust_parameters(source, destination, arrays, &info);
//     jpeg_write_coefficients(destination, written);
//     jcopy_markers_execute(source, destination, option);
//     jtransform_execute_transform(source, destination, arrays, &info);
//
// A request that cannot be carried out is a libjpeg error: the error manager of the struct is
// called.
//
// An iMCU (interleaved minimum coded unit, ITU-T T.81, A.2) is the smallest part of a picture that
// can be moved. Its width is 8 samples times the largest horizontal sampling factor, and its height
// 8 samples times the largest vertical one: 16 by 16 samples for 4:2:0. In a picture with one
// component, it has 8 by 8 samples.

enum JXFORM_CODE {
    JXFORM_NONE = 0,        ///< copy
    JXFORM_FLIP_H = 1,      ///< mirror left to right
    JXFORM_FLIP_V = 2,      ///< mirror top to bottom
    JXFORM_TRANSPOSE = 3,   ///< mirror on the main diagonal
    JXFORM_TRANSVERSE = 4,  ///< mirror on the other diagonal
    JXFORM_ROT_90 = 5,      ///< 90 degrees clockwise
    JXFORM_ROT_180 = 6,
    JXFORM_ROT_270 = 7,
    JXFORM_WIPE = 8,  ///< blank out a region; not implemented: the error JERR_NOT_COMPILED
    JXFORM_DROP = 9,  ///< insert another picture; not implemented: the error JERR_NOT_COMPILED
};

/// The meaning of a size or an offset of a crop.
enum JCROP_CODE {
    JCROP_UNSET = 0,     ///< the number is not used
    JCROP_POSITIVE = 1,  ///< a size, or an offset from the left or the top
    JCROP_NEGATIVE = 2,  ///< an offset from the right or the bottom
    JCROP_FORCED =
        3,  ///< an exact size; blocks outside the picture get the mean of the nearest block
    JCROP_REFLECT = 4,  ///< a size; outside the picture, its mirror images are repeated
};

/// The marker segments that are copied.
enum JCOPY_OPTION {
    JCOPY_NONE = 0,
    JCOPY_COMMENTS = 1,
    JCOPY_ALL = 2,             ///< comments and all APPn
    JCOPY_ALL_EXCEPT_ICC = 3,  ///< comments and all APPn except APP2
    JCOPY_ICC = 4,             ///< APP2
};

/// One request. Sizes and offsets are in samples of the output. Offsets are from the left and top
/// unless they are JCROP_NEGATIVE.
struct jpeg_transform_info {
    JXFORM_CODE transform = JXFORM_NONE;
    bool perfect = false;          ///< fail if a part of the picture cannot be moved
    bool trim = false;             ///< remove the part that cannot be moved
    bool force_grayscale = false;  ///< keep only Y of YCbCr; other colours are an error
    bool crop = false;             ///< use the sizes and offsets below
    bool slow_hflip =
        false;  ///< use a workspace for JXFORM_FLIP_H, and do not change the arrays of the source

    JDIMENSION crop_width = 0;
    JCROP_CODE crop_width_set = JCROP_UNSET;  ///< unset: up to the edge
    JDIMENSION crop_height = 0;
    JCROP_CODE crop_height_set = JCROP_UNSET;
    JDIMENSION crop_xoffset = 0;
    JCROP_CODE crop_xoffset_set = JCROP_UNSET;
    JDIMENSION crop_yoffset = 0;
    JCROP_CODE crop_yoffset_set = JCROP_UNSET;

    j_decompress_ptr drop_ptr = nullptr;
    JDIMENSION drop_width = 0;
    JDIMENSION drop_height = 0;

    // Filled by jtransform_request_workspace.
    int num_components = 0;  ///< of the output
    jvirt_barray_ptr* workspace =
        nullptr;  ///< an array for each component, or null if none is needed
    JDIMENSION output_width = 0;
    JDIMENSION output_height = 0;
    JDIMENSION x_crop_offset = 0;  ///< iMCUs
    JDIMENSION y_crop_offset = 0;  ///< iMCUs
    JDIMENSION iMCU_width = 0;     ///< of the output
    JDIMENSION iMCU_height = 0;
};

/// Computes the sizes and the crop, and requests the workspace, which libjpeg allocates and owns.
///
/// A crop must have a size from 1 to JPEG_MAX_DIMENSION. Its first sample must be inside the
/// uncropped output. It may extend beyond the right or lower edge only with a size that is
/// JCROP_FORCED, or that is JCROP_REFLECT if the output has at least one whole iMCU. Otherwise the
/// request is the error JERR_BAD_CROP_SPEC.
///
/// Only whole iMCUs can be moved, so the offset is rounded down. A size that is not JCROP_FORCED
/// grows by the same amount, so that the right and lower edges do not move. With iMCUs of 16 by 16
/// samples, "30x20+5+5" results in 35 by 25 samples from offset 0, and "30fx20f+5+5" in 30 by 20.
///
/// Returns false if `perfect` is set and a part of the picture cannot be moved.
bool jtransform_request_workspace(jpeg_decompress_struct* source, jpeg_transform_info* info);

/// Sets the parameters of the compressor. Returns the arrays that it must write. If the first saved
/// marker is Exif, its pixel sizes are set to the size of the output.
jvirt_barray_ptr* jtransform_adjust_parameters(jpeg_decompress_struct* source,
                                               jpeg_compress_struct* destination,
                                               jvirt_barray_ptr* source_arrays,
                                               jpeg_transform_info* info);

/// Moves the coefficients into the arrays that jtransform_adjust_parameters returned.
void jtransform_execute_transform(jpeg_decompress_struct* source, jpeg_compress_struct* destination,
                                  jvirt_barray_ptr* source_arrays, jpeg_transform_info* info);

/// Returns true if the operation can move all of a picture. `mcu_width` and `mcu_height` are the
/// size of an iMCU in samples and must not be 0.
bool jtransform_perfect_transform(unsigned int width, unsigned int height, int mcu_width,
                                  int mcu_height, JXFORM_CODE code);

/// Parses a crop of the form "WIDTHxHEIGHT+XOFF+YOFF" into the crop of the request, and sets `crop`
/// to true. Each part is optional, but "+YOFF" needs "+XOFF". A part that is left out becomes
/// JCROP_UNSET: an offset of 0, or a size up to the edge. Numbers are decimal. A size may end in
/// "f" or "F" (JCROP_FORCED), or in "r" or "R" (JCROP_REFLECT). An offset with "-" in place of "+"
/// is from the right or lower edge. Returns false, with the request unchanged, for any other text.
bool jtransform_parse_crop_spec(jpeg_transform_info* info, char const* text);

/// Makes the decompressor save the segments of the option. Call it before jpeg_read_header.
void jcopy_markers_setup(jpeg_decompress_struct* source, JCOPY_OPTION option);

/// Writes the saved segments in order. A JFIF or Adobe header that the compressor writes itself is
/// left out.
void jcopy_markers_execute(jpeg_decompress_struct* source, jpeg_compress_struct* destination,
                           JCOPY_OPTION option);

/// Applies a request to the JPEG `in` and stores the result in `out`, which may be `in`.
///
/// ```cpp
/// libgr::jpegdata_t file;
/// libgr::jpeg_transform_info request;
/// request.transform = libgr::JXFORM_FLIP_H;
/// if (file.load("photo.jpg", nullptr) &&
///     libgr::transform(request, libgr::JCOPY_ALL, file, file)) {
///     file.save("mirrored.jpg", nullptr);
/// }
/// ```
///
/// `out` is sequential, with the Huffman tables described in codecs/jpegtransform.h, and has the
/// markers selected by `option`. An Exif orientation among them is kept. If the operation makes the
/// picture upright, pass JCOPY_NONE or JCOPY_ICC, which drop the Exif data. `info` may be used
/// again.
///
/// The table in codecs/jpegtransform.h lists the results. A request that cannot be carried out, for
/// example because `perfect` is set and a part of the picture cannot be moved, also leaves `out`
/// empty and prints a line on std::cerr.
bool transform(jpeg_transform_info& info, JCOPY_OPTION option, jpegdata_t& out,
               jpegdata_t const& in);

}  // namespace libgr
