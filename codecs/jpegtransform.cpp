// SPDX-License-Identifier: MIT
// Lossless operations from one JPEG in memory to another.
#include "codecs/jpegtransform.h"

#include <jerror.h>

#include <algorithm>
#include <iterator>

#include "codecs/jpeglimits.h"
#include "codecs/jtransform.h"
#include "codecs/sizelimits.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

struct transform_input_t;

/// The compressor. It has its own error manager, because libjpeg resets the count of warnings.
struct transform_output_t {
    jpeg_compress_struct cinfo{};
    my_error_mgr error{};
    jpeg_scan_info scans[MAX_COMPONENTS]{};
    transform_input_t& input;
    jpegdata_t& data;

    transform_output_t(transform_input_t& source, jpegdata_t& out) : input(source), data(out) {}
    transform_output_t(transform_output_t const&) = delete;
    transform_output_t& operator=(transform_output_t const&) = delete;
    ~transform_output_t() { jpeg_destroy_compress(&cinfo); }
};

/// The decompressor, and the request.
struct transform_input_t {
    jpeg_decompress_struct cinfo{};
    my_error_mgr error{};
    work_limit_t limit{};
    jpegdata_t data;  ///< shares the bytes, because the output may replace them
    jpeg_transform_info& info;
    JCOPY_OPTION option;
    transform_output_t output;
    bool is_perfect = true;
    bool is_written = false;

    transform_input_t(jpegdata_t const& in, jpegdata_t& out, jpeg_transform_info& request,
                      JCOPY_OPTION copied)
        : data(in), info(request), option(copied), output(*this, out) {}
    transform_input_t(transform_input_t const&) = delete;
    transform_input_t& operator=(transform_input_t const&) = delete;
    ~transform_input_t() { jpeg_destroy_decompress(&cinfo); }
};

/// Returns the size of the coefficients of a pixel in bits.
std::uint64_t coefficient_bits(int components) {
    return static_cast<std::uint64_t>(components) * sizeof(JCOEF) * 8;
}

/// Checks the size in the header, with the coefficients of the input and the output.
bool has_plausible_size(transform_input_t const& input) {
    int const components = input.cinfo.num_components;
    return is_plausible_size(input.cinfo, static_cast<std::uint64_t>(components) * 8,
                             2 * coefficient_bits(components), input.data);
}

/// Checks the size of the output, which a crop may have made larger.
bool has_plausible_output(transform_input_t const& input) {
    jpeg_transform_info const& info = input.info;
    return fits_in_memory(info.output_width, info.output_height,
                          2 * coefficient_bits(info.num_components), input.data.name);
}

/// Returns true if the standard Huffman tables have codes for the AC coefficients of a block, and
/// for all differences of DC coefficients from `low` to `high`, which the function extends to this
/// block.
bool is_codable(JCOEF const* block, int& low, int& high) {
    constexpr int max_ac_coefficient = 1023;
    constexpr int max_quantizer_step = 2047;
    low = std::min<int>(low, block[0]);
    high = std::max<int>(high, block[0]);
    auto const has_code = [](JCOEF value) {
        return value >= -max_ac_coefficient && value <= max_ac_coefficient;
    };
    return high - low <= max_quantizer_step && std::all_of(block + 1, block + DCTSIZE2, has_code);
}

bool is_codable(j_decompress_ptr cinfo, jvirt_barray_ptr* arrays) {
    for (int i = 0; i < cinfo->num_components; ++i) {
        jpeg_component_info const& component = cinfo->comp_info[i];
        int low = 0;
        int high = 0;
        for (JDIMENSION y = 0; y < component.height_in_blocks; ++y) {
            JBLOCKROW const row = (*cinfo->mem->access_virt_barray)(
                reinterpret_cast<j_common_ptr>(cinfo), arrays[i], y, 1, FALSE)[0];
            for (JDIMENSION x = 0; x < component.width_in_blocks; ++x) {
                if (!is_codable(row[x], low, high)) {
                    return false;
                }
            }
        }
    }
    return true;
}

/// Writes each component in its own scan if one scan cannot contain them all (ITU-T T.81, B.2.3).
void separate_scans(transform_output_t& output) {
    jpeg_compress_struct& cinfo = output.cinfo;
    int blocks = 0;
    for (int i = 0; i < cinfo.num_components; ++i) {
        blocks += cinfo.comp_info[i].h_samp_factor * cinfo.comp_info[i].v_samp_factor;
        output.scans[i] = {1, {i}, 0, DCTSIZE2 - 1, 0, 0};
    }
    if (cinfo.num_components > MAX_COMPS_IN_SCAN || blocks > C_MAX_BLOCKS_IN_MCU) {
        cinfo.scan_info = output.scans;
        cinfo.num_scans = cinfo.num_components;
    }
}

void write(transform_output_t& output) {
    transform_input_t& input = output.input;
    j_compress_ptr const cinfo = &output.cinfo;
    cinfo->err = use_error_mgr(output.error, input.data);
    jpeg_create_compress(cinfo);
    jvirt_barray_ptr* const arrays = jpeg_read_coefficients(&input.cinfo);
    jpeg_copy_critical_parameters(&input.cinfo, cinfo);
    jvirt_barray_ptr* const written =
        jtransform_adjust_parameters(&input.cinfo, cinfo, arrays, &input.info);
    separate_scans(output);
    // libjpeg does not check if the standard tables have a code. It reports a value without a code
    // only if it makes optimised tables.
    cinfo->optimize_coding = is_codable(&input.cinfo, arrays) ? FALSE : TRUE;
    output.data.clear();
    use_memory_destination(cinfo, output.data);
    jpeg_write_coefficients(cinfo, written);
    jcopy_markers_execute(&input.cinfo, cinfo, input.option);
    jtransform_execute_transform(&input.cinfo, cinfo, arrays, &input.info);
    jpeg_finish_compress(cinfo);
}

/// The fill hook after the header. The whole file has been delivered then, and a file with missing
/// coefficients is not rotated.
boolean reject_fill(j_decompress_ptr cinfo) {
    ERREXIT(cinfo, JERR_INPUT_EOF);
    return FALSE;
}

/// Reads the input, and writes the output in a step of its own, because it has its own struct.
void read_and_write(transform_input_t& input) {
    j_decompress_ptr const cinfo = &input.cinfo;
    cinfo->err = use_error_mgr(input.error, input.data);
    jpeg_create_decompress(cinfo);
    use_work_limit(cinfo, input.limit, input.data);
    jpeg_memory_source_t* const source = use_memory_source(cinfo, input.data);
    jcopy_markers_setup(cinfo, input.option);
    jpeg_read_header(cinfo, TRUE);
    source->base.fill_input_buffer = reject_fill;
    if (!has_plausible_size(input)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    input.is_perfect = jtransform_request_workspace(cinfo, &input.info);
    if (input.is_perfect && !has_plausible_output(input)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    if (!input.is_perfect || !run_jpeg_step(write, input.output)) {
        return;
    }
    jpeg_finish_decompress(cinfo);
    input.is_written = true;
}

}  // namespace

bool transform(jpeg_transform_info& info, JCOPY_OPTION option, jpegdata_t& out,
               jpegdata_t const& in) {
    transform_input_t input(in, out, info, option);
    bool const is_turned = run_jpeg_step(read_and_write, input) && input.is_written;
    info.workspace = nullptr;  // owned by the decompressor
    if (!input.is_perfect) {
        libutils::report_error(": transformation is not perfect");
    }
    if (!is_turned) {
        out.clear();
        return false;
    }
    return input.error.base.num_warnings + input.output.error.base.num_warnings == 0;
}

bool transform(unsigned long rightrotatecount, jpegdata_t& out, jpegdata_t const& in) {
    constexpr JXFORM_CODE rotations[] = {JXFORM_NONE, JXFORM_ROT_90, JXFORM_ROT_180,
                                         JXFORM_ROT_270};
    if (rightrotatecount >= std::size(rotations)) {
        return libutils::report_error(rightrotatecount, ": jpeg transform rightrotate count over.");
    }
    jpeg_transform_info info;
    info.transform = rotations[rightrotatecount];
    return transform(info, JCOPY_NONE, out, in);
}

}  // namespace libgr
