// SPDX-License-Identifier: MIT
// The table of lossless operations, and sizes that the steps of a transform share.
#pragma once

#include "codecs/jtransform.h"

namespace libgr {

/// An operation transposes the picture or not, and then mirrors the result.
struct jxform_row_t {
    JXFORM_CODE code;
    bool transposes;
    bool mirrors_x;
    bool mirrors_y;
};

/// Indexed by code.
inline constexpr jxform_row_t jxform_table[] = {
    {JXFORM_NONE, false, false, false},    {JXFORM_FLIP_H, false, true, false},
    {JXFORM_FLIP_V, false, false, true},   {JXFORM_TRANSPOSE, true, false, false},
    {JXFORM_TRANSVERSE, true, true, true}, {JXFORM_ROT_90, true, true, false},
    {JXFORM_ROT_180, false, true, true},   {JXFORM_ROT_270, true, false, true},
};

/// Returns the row of an operation, or null for an operation that is not implemented.
constexpr jxform_row_t const* row_of(JXFORM_CODE code) {
    for (jxform_row_t const& row : jxform_table) {
        if (row.code == code) {
            return &row;
        }
    }
    return nullptr;
}

/// The blocks of one component of the output, without those that only complete its last iMCUs.
struct block_grid_t {
    JDIMENSION width;
    JDIMENSION height;
    JDIMENSION h_factor;  ///< blocks in an iMCU
    JDIMENSION v_factor;
};
block_grid_t grid_of(jpeg_decompress_struct const& source, jpeg_transform_info const& info,
                     int component);

/// A size in samples.
struct sample_size_t {
    JDIMENSION width;
    JDIMENSION height;
};

/// Returns the size of the output before it is cropped.
sample_size_t uncropped_size(jpeg_decompress_struct const& source, jxform_row_t const& row);

}  // namespace libgr
