// SPDX-License-Identifier: MIT
// The operations as data, and where each block of an output comes from: what the steps of a
// lossless transform share.
#pragma once

#include "codecs/jtransform.h"

namespace libgr {

/// An operation is a transposition, or none, and then mirrors of what that gives.
struct jxform_row_t {
    JXFORM_CODE code;
    bool transposes;
    bool mirrors_x;
    bool mirrors_y;
};

/// Row i is that of code i.
inline constexpr jxform_row_t jxform_table[] = {
    {JXFORM_NONE, false, false, false},    {JXFORM_FLIP_H, false, true, false},
    {JXFORM_FLIP_V, false, false, true},   {JXFORM_TRANSPOSE, true, false, false},
    {JXFORM_TRANSVERSE, true, true, true}, {JXFORM_ROT_90, true, true, false},
    {JXFORM_ROT_180, false, true, true},   {JXFORM_ROT_270, true, false, true},
};

/// The operation's row, and null for one that isn't carried out.
constexpr jxform_row_t const* row_of(JXFORM_CODE code) {
    for (jxform_row_t const& row : jxform_table) {
        if (row.code == code) {
            return &row;
        }
    }
    return nullptr;
}

/// Blocks of one component of the output, not counting those that only fill up its last iMCUs.
struct block_grid_t {
    JDIMENSION width;
    JDIMENSION height;
    JDIMENSION h_factor;  ///< blocks of an iMCU
    JDIMENSION v_factor;
};
block_grid_t grid_of(jpeg_decompress_struct const& source, jpeg_transform_info const& info,
                     int component);

/// The output before it is cropped, in samples.
struct sample_size_t {
    JDIMENSION width;
    JDIMENSION height;
};
sample_size_t uncropped_size(jpeg_decompress_struct const& source, jxform_row_t const& row);

}  // namespace libgr
