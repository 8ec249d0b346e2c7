// SPDX-License-Identifier: MIT
// Computes the sizes, the crop and the workspace of an operation.
#include <jerror.h>

#include <cstdint>

#include "codecs/jpegtransform_ops.h"

namespace libgr {

namespace {

/// A crop in one direction.
struct crop_t {
    JDIMENSION size;
    JCROP_CODE size_set;
    JDIMENSION offset;
    JCROP_CODE offset_set;
};

[[noreturn]] void reject_crop(jpeg_decompress_struct* source) {
    ERREXIT(source, JERR_BAD_CROP_SPEC);
    __builtin_unreachable();
}

/// Applies a crop to one direction: sets its length in samples and the iMCU that it begins with.
void apply_crop(jpeg_decompress_struct* source, crop_t const& crop, JDIMENSION imcu,
                JDIMENSION& length, JDIMENSION& imcu_offset) {
    std::int64_t const full = length;
    std::int64_t const offset = crop.offset_set != JCROP_UNSET ? crop.offset : 0;
    std::int64_t size = crop.size_set != JCROP_UNSET ? crop.size : full - offset;
    std::int64_t const start = crop.offset_set == JCROP_NEGATIVE ? full - size - offset : offset;
    bool const leaves = start + size > full;
    bool const may_leave = crop.size_set == JCROP_FORCED ||
                           (crop.size_set == JCROP_REFLECT && full >= std::int64_t{imcu});
    if (size <= 0 || start < 0 || start >= full || (leaves && !may_leave)) {
        reject_crop(source);
    }
    if (crop.size_set != JCROP_FORCED) {
        size += start % imcu;
    }
    if (size > JPEG_MAX_DIMENSION) {
        reject_crop(source);
    }
    length = static_cast<JDIMENSION>(size);
    imcu_offset = static_cast<JDIMENSION>(start / imcu);
}

/// Removes the incomplete iMCU at the end of `full` samples from the output, unless nothing would
/// be left.
void trim(JDIMENSION full, JDIMENSION imcu, JDIMENSION imcu_offset, JDIMENSION& length) {
    JDIMENSION const whole = full / imcu;
    if (whole > imcu_offset && length > (whole - imcu_offset) * imcu) {
        length = (whole - imcu_offset) * imcu;
    }
}

/// Returns the size of an iMCU of the source if the output has `num_components` components.
sample_size_t imcu_of(jpeg_decompress_struct const& source, int num_components) {
    if (num_components == 1) {
        return {DCTSIZE, DCTSIZE};
    }
    return {static_cast<JDIMENSION>(source.max_h_samp_factor * DCTSIZE),
            static_cast<JDIMENSION>(source.max_v_samp_factor * DCTSIZE)};
}

bool needs_workspace(jpeg_transform_info const& info) {
    switch (info.transform) {
        case JXFORM_NONE:
            return info.crop;
        case JXFORM_FLIP_H:
            return info.crop || info.slow_hflip;
        default:
            return true;
    }
}

void request_arrays(jpeg_decompress_struct* source, jpeg_transform_info* info) {
    auto const any = reinterpret_cast<j_common_ptr>(source);
    info->workspace = static_cast<jvirt_barray_ptr*>((*source->mem->alloc_small)(
        any, JPOOL_IMAGE,
        static_cast<std::size_t>(info->num_components) * sizeof(jvirt_barray_ptr)));
    for (int i = 0; i < info->num_components; ++i) {
        block_grid_t const grid = grid_of(*source, *info, i);
        // The compressor reads whole iMCUs, so all their blocks must be initialised.
        auto const up = [](JDIMENSION n, JDIMENSION unit) { return (n + unit - 1) / unit * unit; };
        info->workspace[i] = (*source->mem->request_virt_barray)(
            any, JPOOL_IMAGE, TRUE, up(grid.width, grid.h_factor), up(grid.height, grid.v_factor),
            grid.v_factor);
    }
}

}  // namespace

bool jtransform_perfect_transform(unsigned int width, unsigned int height, int mcu_width,
                                  int mcu_height, JXFORM_CODE code) {
    jxform_row_t const* const row = row_of(code);
    if (row == nullptr) {
        return true;
    }
    bool const needs_width = row->transposes ? row->mirrors_y : row->mirrors_x;
    bool const needs_height = row->transposes ? row->mirrors_x : row->mirrors_y;
    return (!needs_width || width % static_cast<unsigned int>(mcu_width) == 0) &&
           (!needs_height || height % static_cast<unsigned int>(mcu_height) == 0);
}

bool jtransform_request_workspace(jpeg_decompress_struct* source, jpeg_transform_info* info) {
    jxform_row_t const* const row = row_of(info->transform);
    if (row == nullptr) {
        ERREXIT(source, JERR_NOT_COMPILED);
        return false;
    }
    bool const keeps_gray_alone = info->force_grayscale && source->jpeg_color_space == JCS_YCbCr &&
                                  source->num_components == 3;
    info->num_components = keeps_gray_alone ? 1 : source->num_components;
    sample_size_t const imcu = imcu_of(*source, info->num_components);
    if (info->perfect &&
        !jtransform_perfect_transform(source->image_width, source->image_height,
                                      static_cast<int>(imcu.width), static_cast<int>(imcu.height),
                                      info->transform)) {
        return false;
    }
    info->iMCU_width = row->transposes ? imcu.height : imcu.width;
    info->iMCU_height = row->transposes ? imcu.width : imcu.height;
    sample_size_t const full = uncropped_size(*source, *row);
    info->output_width = full.width;
    info->output_height = full.height;
    info->x_crop_offset = 0;
    info->y_crop_offset = 0;
    if (info->crop) {
        apply_crop(
            source,
            {info->crop_width, info->crop_width_set, info->crop_xoffset, info->crop_xoffset_set},
            info->iMCU_width, info->output_width, info->x_crop_offset);
        apply_crop(
            source,
            {info->crop_height, info->crop_height_set, info->crop_yoffset, info->crop_yoffset_set},
            info->iMCU_height, info->output_height, info->y_crop_offset);
    }
    if (info->trim && row->mirrors_x) {
        trim(full.width, info->iMCU_width, info->x_crop_offset, info->output_width);
    }
    if (info->trim && row->mirrors_y) {
        trim(full.height, info->iMCU_height, info->y_crop_offset, info->output_height);
    }
    info->workspace = nullptr;
    if (needs_workspace(*info)) {
        request_arrays(source, info);
    }
    return true;
}

}  // namespace libgr
