// SPDX-License-Identifier: MIT
// The parameters of the compressor, and the pixel sizes in the Exif data.
#include <jerror.h>

#include <cstring>
#include <utility>

#include "codecs/jpegtransform_ops.h"
#include "utils/byteorder.h"

namespace libgr {

namespace {

/// The TIFF block of a saved marker, which can be changed. Bytes outside of the block read as 0.
struct tiff_block_t {
    JOCTET* begin;
    std::size_t size;
    libutils::byteorder const& order;

    bool contains(std::size_t at, std::size_t bytes) const {
        return at <= size && bytes <= size - at;
    }
    unsigned short short_at(std::size_t at) const {
        unsigned short value = 0;
        if (contains(at, sizeof value)) {
            std::memcpy(&value, begin + at, sizeof value);
        }
        return order.tohs(value);
    }
    unsigned int long_at(std::size_t at) const {
        unsigned int value = 0;
        if (contains(at, sizeof value)) {
            std::memcpy(&value, begin + at, sizeof value);
        }
        return order.tohl(value);
    }

    /// Returns the offset of the entry of a tag, which has 12 bytes, in the IFD at offset `ifd`
    /// (TIFF 6.0, section 2), or 0.
    std::size_t entry_of(std::size_t ifd, unsigned short tag) const {
        std::size_t const end = ifd + 2 + std::size_t{short_at(ifd)} * 12;
        for (std::size_t at = ifd + 2; at < end && contains(at, 12); at += 12) {
            if (short_at(at) == tag) {
                return at;
            }
        }
        return 0;
    }

    /// Sets an entry to one value of the type LONG.
    void set_entry(std::size_t at, unsigned int value) const {
        constexpr unsigned short type_long = 4;
        unsigned short const type = order.tohs(type_long);
        unsigned int const count_and_value[] = {order.tohl(1), order.tohl(value)};
        std::memcpy(begin + at + 2, &type, sizeof type);
        std::memcpy(begin + at + 4, count_and_value, sizeof count_and_value);
    }
};

constexpr unsigned short tag_exif_ifd = 0x8769;
constexpr unsigned short tag_pixel_x_dimension = 0xA002;
constexpr unsigned short tag_pixel_y_dimension = 0xA003;

void set_exif_size(tiff_block_t const& tiff, unsigned int width, unsigned int height) {
    std::size_t const pointer = tiff.entry_of(tiff.long_at(4), tag_exif_ifd);
    if (pointer == 0) {
        return;
    }
    std::size_t const ifd = tiff.long_at(pointer + 8);
    for (auto const& [tag, value] :
         {std::pair{tag_pixel_x_dimension, width}, std::pair{tag_pixel_y_dimension, height}}) {
        if (std::size_t const entry = tiff.entry_of(ifd, tag); entry != 0) {
            tiff.set_entry(entry, value);
        }
    }
}

void adjust_exif(jpeg_saved_marker_ptr marker, unsigned int width, unsigned int height) {
    constexpr std::size_t exif_prefix_size = 6;  // "Exif" and two NULs
    constexpr std::size_t byte_order_size = 4;
    if (marker == nullptr || marker->marker != JPEG_APP0 + 1 ||
        marker->data_length < exif_prefix_size + byte_order_size ||
        std::memcmp(marker->data, "Exif\0\0", exif_prefix_size) != 0) {
        return;
    }
    JOCTET* const block = marker->data + exif_prefix_size;
    std::size_t const size = marker->data_length - exif_prefix_size;
    libutils::intel_byteorder const intel;
    libutils::motorola_byteorder const motorola;
    if (std::memcmp(block, "II*\0", byte_order_size) == 0) {
        set_exif_size({block, size, intel}, width, height);
    } else if (std::memcmp(block, "MM\0*", byte_order_size) == 0) {
        set_exif_size({block, size, motorola}, width, height);
    }
}

/// Keeps only the luma, which must not be subsampled.
void keep_gray(jpeg_decompress_struct* source, jpeg_compress_struct* destination,
               jpeg_transform_info const& info) {
    jpeg_component_info const& luma = source->comp_info[0];
    if (info.num_components != 1 || luma.h_samp_factor != source->max_h_samp_factor ||
        luma.v_samp_factor != source->max_v_samp_factor) {
        ERREXIT(source, JERR_CONVERSION_NOTIMPL);
    }
    int const table = destination->comp_info[0].quant_tbl_no;
    jpeg_set_colorspace(destination, JCS_GRAYSCALE);
    destination->comp_info[0].quant_tbl_no = table;
}

void transpose_parameters(jpeg_compress_struct* destination) {
    for (int i = 0; i < destination->num_components; ++i) {
        jpeg_component_info& component = destination->comp_info[i];
        std::swap(component.h_samp_factor, component.v_samp_factor);
    }
    for (JQUANT_TBL* const table : destination->quant_tbl_ptrs) {
        if (table == nullptr) {
            continue;
        }
        for (int r = 0; r < DCTSIZE; ++r) {
            for (int c = 0; c < r; ++c) {
                std::swap(table->quantval[r * DCTSIZE + c], table->quantval[c * DCTSIZE + r]);
            }
        }
    }
}

}  // namespace

jvirt_barray_ptr* jtransform_adjust_parameters(jpeg_decompress_struct* source,
                                               jpeg_compress_struct* destination,
                                               jvirt_barray_ptr* source_arrays,
                                               jpeg_transform_info* info) {
    if (info->force_grayscale && source->num_components > 1) {
        keep_gray(source, destination, *info);
    }
    if (info->num_components == 1) {
        destination->comp_info[0].h_samp_factor = 1;
        destination->comp_info[0].v_samp_factor = 1;
    }
    if (row_of(info->transform)->transposes) {
        transpose_parameters(destination);
    }
    destination->image_width = info->output_width;
    destination->image_height = info->output_height;
#if JPEG_LIB_VERSION >= 70
    destination->jpeg_width = info->output_width;
    destination->jpeg_height = info->output_height;
#endif
    adjust_exif(source->marker_list, info->output_width, info->output_height);
    return info->workspace != nullptr ? info->workspace : source_arrays;
}

}  // namespace libgr
