// SPDX-License-Identifier: MIT
// The way of a JPEG from memory to memory through a lossless transform.
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

struct reading_t;

/// The compressor, with an error manager of its own, whose count of warnings it sets back.
struct writing_t {
    jpeg_compress_struct cinfo{};
    my_error_mgr error{};
    jpeg_scan_info scans[MAX_COMPONENTS]{};
    reading_t& reading;
    jpegdata_t& data;

    writing_t(reading_t& source, jpegdata_t& out) : reading(source), data(out) {}
    writing_t(writing_t const&) = delete;
    writing_t& operator=(writing_t const&) = delete;
    ~writing_t() { jpeg_destroy_compress(&cinfo); }
};

struct reading_t {
    jpeg_decompress_struct cinfo{};
    my_error_mgr error{};
    work_limit_t limit{};
    jpegdata_t data;  ///< shares the bytes, so that the output may take their place
    jpeg_transform_info& info;
    JCOPY_OPTION option;
    writing_t writing;
    bool is_perfect = true;
    bool is_written = false;

    reading_t(jpegdata_t const& in, jpegdata_t& out, jpeg_transform_info& request,
              JCOPY_OPTION copied)
        : data(in), info(request), option(copied), writing(*this, out) {}
    reading_t(reading_t const&) = delete;
    reading_t& operator=(reading_t const&) = delete;
    ~reading_t() { jpeg_destroy_decompress(&cinfo); }
};

/// Bits of a pixel's coefficients.
std::uint64_t coefficient_bits(int components) {
    return static_cast<std::uint64_t>(components) * sizeof(JCOEF) * 8;
}

/// Checks the size in the header, with the coefficients of the input and the output.
bool has_plausible_size(reading_t const& reading) {
    int const components = reading.cinfo.num_components;
    return is_plausible_size(reading.cinfo, static_cast<std::uint64_t>(components) * 8,
                             2 * coefficient_bits(components), reading.data);
}

/// Checks the size of the output, which a crop may have made larger.
bool has_plausible_output(reading_t const& reading) {
    jpeg_transform_info const& info = reading.info;
    return fits_in_memory(info.output_width, info.output_height,
                          2 * coefficient_bits(info.num_components), reading.data.name);
}

/// Whether a block's AC coefficients, and the steps between DC coefficients from `low` to `high`,
/// surely have codes in the usual Huffman tables. Widens that range by the block's own.
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

/// Gives each component a scan of its own where one scan can't hold them all (ITU-T T.81, B.2.3).
void separate_scans(writing_t& writing) {
    jpeg_compress_struct& cinfo = writing.cinfo;
    int blocks = 0;
    for (int i = 0; i < cinfo.num_components; ++i) {
        blocks += cinfo.comp_info[i].h_samp_factor * cinfo.comp_info[i].v_samp_factor;
        writing.scans[i] = {1, {i}, 0, DCTSIZE2 - 1, 0, 0};
    }
    bool const fit_together =
        cinfo.num_components <= MAX_COMPS_IN_SCAN && blocks <= C_MAX_BLOCKS_IN_MCU;
    if (cinfo.num_components > 1 && !fit_together) {
        cinfo.scan_info = writing.scans;
        cinfo.num_scans = cinfo.num_components;
    }
}

void write(writing_t& writing) {
    reading_t& reading = writing.reading;
    j_compress_ptr const cinfo = &writing.cinfo;
    cinfo->err = use_error_mgr(writing.error, reading.data);
    jpeg_create_compress(cinfo);
    jvirt_barray_ptr* const arrays = jpeg_read_coefficients(&reading.cinfo);
    jpeg_copy_critical_parameters(&reading.cinfo, cinfo);
    jvirt_barray_ptr* const written =
        jtransform_adjust_parameters(&reading.cinfo, cinfo, arrays, &reading.info);
    separate_scans(writing);
    // libjpeg doesn't look whether the usual tables have a code, only whether tables of the
    // picture's own can have one.
    cinfo->optimize_coding = is_codable(&reading.cinfo, arrays) ? FALSE : TRUE;
    writing.data.clear();
    use_memory_destination(cinfo, writing.data);
    jpeg_write_coefficients(cinfo, written);
    jcopy_markers_execute(&reading.cinfo, cinfo, reading.option);
    jtransform_execute_transform(&reading.cinfo, cinfo, arrays, &reading.info);
    jpeg_finish_compress(cinfo);
}

/// Takes the place of the source's fill hook behind the header: the whole file has been delivered
/// by then, and its coefficients are wanted all or not at all.
boolean refuse_to_fill(j_decompress_ptr cinfo) {
    ERREXIT(cinfo, JERR_INPUT_EOF);
    return FALSE;
}

/// Reads, and writes within it: an error of either struct comes back to its own step.
void read_and_write(reading_t& reading) {
    j_decompress_ptr const cinfo = &reading.cinfo;
    cinfo->err = use_error_mgr(reading.error, reading.data);
    jpeg_create_decompress(cinfo);
    use_work_limit(cinfo, reading.limit, reading.data);
    jpeg_memory_source_t* const source = use_memory_source(cinfo, reading.data);
    jcopy_markers_setup(cinfo, reading.option);
    jpeg_read_header(cinfo, TRUE);
    source->base.fill_input_buffer = refuse_to_fill;
    if (!has_plausible_size(reading)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    reading.is_perfect = jtransform_request_workspace(cinfo, &reading.info);
    if (reading.is_perfect && !has_plausible_output(reading)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    if (!reading.is_perfect || !run_jpeg_step(write, reading.writing)) {
        return;
    }
    jpeg_finish_decompress(cinfo);
    reading.is_written = true;
}

}  // namespace

bool transform(jpeg_transform_info& info, JCOPY_OPTION option, jpegdata_t& out,
               jpegdata_t const& in) {
    reading_t reading(in, out, info, option);
    bool const is_turned = run_jpeg_step(read_and_write, reading) && reading.is_written;
    info.workspace = nullptr;  // it goes with the decompressor
    if (!reading.is_perfect) {
        libutils::refuse(": transformation is not perfect");
    }
    if (!is_turned) {
        out.clear();
        return false;
    }
    return reading.error.base.num_warnings + reading.writing.error.base.num_warnings == 0;
}

bool transform(unsigned long rightrotatecount, jpegdata_t& out, jpegdata_t const& in) {
    constexpr JXFORM_CODE rotations[] = {JXFORM_NONE, JXFORM_ROT_90, JXFORM_ROT_180,
                                         JXFORM_ROT_270};
    if (rightrotatecount >= std::size(rotations)) {
        return libutils::refuse(rightrotatecount, ": jpeg transform rightrotate count over.");
    }
    jpeg_transform_info info;
    info.transform = rotations[rightrotatecount];
    return transform(info, JCOPY_NONE, out, in);
}

}  // namespace libgr
