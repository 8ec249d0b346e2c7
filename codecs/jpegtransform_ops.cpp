// SPDX-License-Identifier: MIT
// Moves blocks of coefficients. Mirroring a block negates its odd frequencies in that direction.
#include "codecs/jpegtransform_ops.h"

#include <cstring>

#include "utils/bits.h"

namespace libgr {

namespace {

/// The blocks of the output in one direction, counted before the output is cropped.
struct axis_t {
    JDIMENSION offset;   ///< the first block of the crop
    JDIMENSION whole;    ///< blocks in whole iMCUs; only these can change sides
    JDIMENSION present;  ///< blocks of the picture, or blocks before its mirror images
    bool mirrors;
    bool reflects;
};

/// The source of a block of the output in one direction.
struct place_t {
    JDIMENSION source;
    bool mirrored;
    bool plain;  ///< only the mean of the block is copied
};

axis_t axis_of(JDIMENSION full, JDIMENSION kept, JDIMENSION imcu, JDIMENSION factor,
               JDIMENSION offset, bool mirrors, JCROP_CODE size_code) {
    JDIMENSION const whole = full / imcu * factor;
    bool const reflects = size_code == JCROP_REFLECT && offset * imcu + kept > full;
    JDIMENSION const present = reflects ? whole : (full * factor + imcu - 1) / imcu;
    return {offset * factor, whole, present, mirrors, reflects};
}

place_t place_of(axis_t const& axis, JDIMENSION block) {
    JDIMENSION at = axis.offset + block;
    bool const beyond = at >= axis.present;
    bool mirrored = axis.mirrors;
    if (beyond && axis.reflects) {
        mirrored = mirrored != (at / axis.whole % 2 != 0);
        at %= axis.whole;
    } else if (beyond) {
        at = axis.present - 1;
    }
    mirrored = mirrored && at < axis.whole;
    return {mirrored ? axis.whole - 1 - at : at, mirrored, beyond && !axis.reflects};
}

/// Copies a block and transforms it. `from` and `to` must not overlap.
void move_block(JCOEF const* from, JCOEF* to, bool transposes, bool mirrors_x, bool mirrors_y) {
    int const row_step = transposes ? 1 : DCTSIZE;
    int const column_step = transposes ? DCTSIZE : 1;
    int const odd_column = mirrors_x ? 1 : 0;
    int const odd_row = mirrors_y ? 1 : 0;
    for (int r = 0; r < DCTSIZE; ++r) {
        for (int c = 0; c < DCTSIZE; ++c) {
            int const value = from[r * row_step + c * column_step];
            bool const negates = ((r & odd_row) ^ (c & odd_column)) != 0;
            to[r * DCTSIZE + c] = static_cast<JCOEF>(negates ? -value : value);
        }
    }
}

JBLOCKARRAY rows_of(jpeg_decompress_struct* source, jvirt_barray_ptr array, JDIMENSION first,
                    JDIMENSION count, boolean writable) {
    return (*source->mem->access_virt_barray)(reinterpret_cast<j_common_ptr>(source), array, first,
                                              count, writable);
}

void fill_workspace(jpeg_decompress_struct* source, jvirt_barray_ptr from, jvirt_barray_ptr to,
                    block_grid_t const& grid, bool transposes, axis_t const& x_axis,
                    axis_t const& y_axis) {
    for (JDIMENSION top = 0; top < grid.height; top += grid.v_factor) {
        JDIMENSION const count = libutils::min2(grid.v_factor, grid.height - top);
        JBLOCKARRAY const rows = rows_of(source, to, top, count, TRUE);
        for (JDIMENSION x = 0; x < grid.width; ++x) {
            place_t const px = place_of(x_axis, x);
            for (JDIMENSION y = 0; y < count; ++y) {
                place_t const py = place_of(y_axis, top + y);
                JDIMENSION const row = transposes ? px.source : py.source;
                JDIMENSION const column = transposes ? py.source : px.source;
                JCOEF const* const block = rows_of(source, from, row, 1, FALSE)[0][column];
                JCOEF* const target = rows[y][x];
                if (px.plain || py.plain) {
                    std::memset(target, 0, sizeof(JBLOCK));
                    target[0] = block[0];
                } else {
                    move_block(block, target, transposes, px.mirrored, py.mirrored);
                }
            }
        }
    }
}

/// Mirrors the first `whole` blocks of each row in place.
void mirror_rows(jpeg_decompress_struct* source, jvirt_barray_ptr array, JDIMENSION height,
                 JDIMENSION whole) {
    for (JDIMENSION y = 0; y < height; ++y) {
        JBLOCKROW const row = rows_of(source, array, y, 1, TRUE)[0];
        for (JDIMENSION x = 0; x < (whole + 1) / 2; ++x) {
            JBLOCK left, right;
            std::memcpy(left, row[x], sizeof left);
            std::memcpy(right, row[whole - 1 - x], sizeof right);
            move_block(right, row[x], false, true, false);
            move_block(left, row[whole - 1 - x], false, true, false);
        }
    }
}

}  // namespace

sample_size_t uncropped_size(jpeg_decompress_struct const& source, jxform_row_t const& row) {
    return row.transposes ? sample_size_t{source.image_height, source.image_width}
                          : sample_size_t{source.image_width, source.image_height};
}

block_grid_t grid_of(jpeg_decompress_struct const& source, jpeg_transform_info const& info,
                     int component) {
    jpeg_component_info const& parameters = source.comp_info[component];
    auto h_factor = static_cast<JDIMENSION>(parameters.h_samp_factor);
    auto v_factor = static_cast<JDIMENSION>(parameters.v_samp_factor);
    if (info.num_components == 1) {
        h_factor = v_factor = 1;
    } else if (row_of(info.transform)->transposes) {
        std::swap(h_factor, v_factor);
    }
    return {(info.output_width * h_factor + info.iMCU_width - 1) / info.iMCU_width,
            (info.output_height * v_factor + info.iMCU_height - 1) / info.iMCU_height, h_factor,
            v_factor};
}

void jtransform_execute_transform(jpeg_decompress_struct* source, jpeg_compress_struct*,
                                  jvirt_barray_ptr* source_arrays, jpeg_transform_info* info) {
    jxform_row_t const& row = *row_of(info->transform);
    sample_size_t const full = uncropped_size(*source, row);
    for (int i = 0; i < info->num_components; ++i) {
        block_grid_t const grid = grid_of(*source, *info, i);
        axis_t const x_axis =
            axis_of(full.width, info->output_width, info->iMCU_width, grid.h_factor,
                    info->x_crop_offset, row.mirrors_x, info->crop_width_set);
        axis_t const y_axis =
            axis_of(full.height, info->output_height, info->iMCU_height, grid.v_factor,
                    info->y_crop_offset, row.mirrors_y, info->crop_height_set);
        if (info->workspace != nullptr) {
            fill_workspace(source, source_arrays[i], info->workspace[i], grid, row.transposes,
                           x_axis, y_axis);
        } else if (info->transform == JXFORM_FLIP_H) {
            mirror_rows(source, source_arrays[i], grid.height, x_axis.whole);
        }
    }
}

}  // namespace libgr
