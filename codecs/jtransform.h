// SPDX-License-Identifier: MIT
// Lossless operations on the coefficient arrays between a libjpeg decompressor and a compressor.
#pragma once

#include "codecs/jpegmanagers.h"

namespace libgr {

// The order of calls, each step on the same request:
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
// `transform` below does all that. What can't be done is an error of the struct's own error
// manager. An iMCU (interleaved minimum coded unit, ITU-T T.81, A.2) is the smallest piece of a
// picture that can change sides: 8 samples times the largest sampling factor in each direction, and
// 8 by 8 samples in a picture of a single component.

enum JXFORM_CODE {
    JXFORM_NONE = 0,        ///< copy
    JXFORM_FLIP_H = 1,      ///< mirror left to right
    JXFORM_FLIP_V = 2,      ///< mirror top to bottom
    JXFORM_TRANSPOSE = 3,   ///< mirror on the main diagonal
    JXFORM_TRANSVERSE = 4,  ///< mirror on the other diagonal
    JXFORM_ROT_90 = 5,      ///< 90 degrees clockwise
    JXFORM_ROT_180 = 6,
    JXFORM_ROT_270 = 7,
    JXFORM_WIPE = 8,  ///< blank out a region: refused, JERR_NOT_COMPILED
    JXFORM_DROP = 9,  ///< put in another picture: refused, JERR_NOT_COMPILED
};

/// What is known of one number of a crop.
enum JCROP_CODE {
    JCROP_UNSET = 0,
    JCROP_POSITIVE = 1,  ///< a size, or an offset from the left or the top
    JCROP_NEGATIVE = 2,  ///< an offset from the right or the bottom
    JCROP_FORCED = 3,    ///< a size that stays as it is; blocks beyond the picture are plain
    JCROP_REFLECT = 4,   ///< a size; beyond the picture come its mirror images
};

enum JCOPY_OPTION {
    JCOPY_NONE = 0,
    JCOPY_COMMENTS = 1,
    JCOPY_ALL = 2,             ///< comments and all APPn
    JCOPY_ALL_EXCEPT_ICC = 3,  ///< the same without APP2
    JCOPY_ICC = 4,             ///< APP2 alone
};

/// One request. Sizes and places are in samples, x from the left and y from the top of the
/// operation's output.
struct jpeg_transform_info {
    JXFORM_CODE transform = JXFORM_NONE;
    bool perfect = false;          ///< refuse where less than an iMCU would stay behind
    bool trim = false;             ///< cut off what would stay behind
    bool force_grayscale = false;  ///< of YCbCr keep Y alone; other colours are an error
    bool crop = false;             ///< whether the following says what to keep of the output
    bool slow_hflip = false;       ///< give JXFORM_FLIP_H a workspace, too, and spare the source's

    JDIMENSION crop_width = 0;
    JCROP_CODE crop_width_set = JCROP_UNSET;  ///< unset: all that the offset leaves
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
    int num_components = 0;                 ///< of the output
    jvirt_barray_ptr* workspace = nullptr;  ///< an array for each of them, or null where not needed
    JDIMENSION output_width = 0;
    JDIMENSION output_height = 0;
    JDIMENSION x_crop_offset = 0;  ///< iMCUs
    JDIMENSION y_crop_offset = 0;  ///< iMCUs
    JDIMENSION iMCU_width = 0;     ///< of the output
    JDIMENSION iMCU_height = 0;
};

/// Works out sizes and crop, and requests the workspace, which libjpeg allocates and owns.
///
/// A crop begins at the edge of an iMCU at or before the place asked for. Its size grows by as
/// much, so that its far edge holds, unless it is forced. A region that isn't all in the output is
/// the error JERR_BAD_CROP_SPEC, unless its size is forced or reflects; its first sample must be in
/// the output always. False if `perfect` is set and the picture doesn't allow it.
bool jtransform_request_workspace(jpeg_decompress_struct* source, jpeg_transform_info* info);

/// Makes the compressor's parameters those of the output, and gives the arrays that it is to write.
/// Where the first saved marker is Exif, the pixel sizes in it become the output's.
jvirt_barray_ptr* jtransform_adjust_parameters(jpeg_decompress_struct* source,
                                               jpeg_compress_struct* destination,
                                               jvirt_barray_ptr* source_arrays,
                                               jpeg_transform_info* info);

/// Moves the coefficients into the arrays that jtransform_adjust_parameters gave.
void jtransform_execute_transform(jpeg_decompress_struct* source, jpeg_compress_struct* destination,
                                  jvirt_barray_ptr* source_arrays, jpeg_transform_info* info);

/// Whether the operation leaves nothing of a source of this size behind. Sizes of iMCUs, in
/// samples, are above 0.
bool jtransform_perfect_transform(unsigned int width, unsigned int height, int mcu_width,
                                  int mcu_height, JXFORM_CODE code);

/// Reads "WIDTHxHEIGHT+XOFF+YOFF" into the request's crop, with each part optional and numbers in
/// decimal: a size may end in "f" (forced) or "r" (reflect), in either case, and a "-" in place of
/// a "+" counts from the far edge. Any other text gives false and leaves the request alone.
bool jtransform_parse_crop_spec(jpeg_transform_info* info, char const* text);

/// Has the decompressor save the segments that the option names.
void jcopy_markers_setup(jpeg_decompress_struct* source, JCOPY_OPTION option);

/// Writes the saved segments, in order, but for a JFIF or Adobe header that the compressor writes.
void jcopy_markers_execute(jpeg_decompress_struct* source, jpeg_compress_struct* destination,
                           JCOPY_OPTION option);

/// The whole way from `in` to `out`, which may be `in`, with any request: see
/// codecs/jpegtransform.h for what is the same for all. False, with a line, also where the
/// operation isn't perfect.
bool transform(jpeg_transform_info& info, JCOPY_OPTION option, jpegdata_t& out,
               jpegdata_t const& in);

}  // namespace libgr
