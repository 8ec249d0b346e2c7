// SPDX-License-Identifier: MIT
// The way of a JPEG from memory to memory through a lossless transform.
#include "codecs/jpegtransform.h"

#include <jerror.h>

#include <iostream>
#include <iterator>

#include "codecs/jpeglimits.h"
#include "codecs/jtransform.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

struct reading_t;

/// The compressor, with an error manager of its own, whose count of warnings it sets back.
struct writing_t {
    jpeg_compress_struct cinfo{};
    my_error_mgr error{};
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
    jpeg_progress_mgr progress{};
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

/// Whether the picture that the header promises can be held as coefficients, before and after.
bool is_possible(reading_t const& reading) {
    auto const components = static_cast<std::uint64_t>(reading.cinfo.num_components);
    return is_possible_picture(reading.cinfo, components * 8, components * 2 * sizeof(JCOEF) * 8,
                               reading.data.size());
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
    use_scan_limit(cinfo, reading.progress);
    jpeg_memory_source_t* const source = use_memory_source(cinfo, reading.data);
    jcopy_markers_setup(cinfo, reading.option);
    jpeg_read_header(cinfo, TRUE);
    source->base.fill_input_buffer = refuse_to_fill;
    if (!is_possible(reading)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    reading.is_perfect = jtransform_request_workspace(cinfo, &reading.info);
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
    if (!reading.is_perfect) {
        libutils::error();
        std::cerr << ": transformation is not perfect" << std::endl;
    }
    if (!is_turned) {
        out.clear();
        return false;
    }
    return reading.error.base.num_warnings + reading.writing.error.base.num_warnings == 0;
}

bool transform(unsigned long rightrotatecount, jpegdata_t& out, jpegdata_t const& in) {
    constexpr JXFORM_CODE k_turns[] = {JXFORM_NONE, JXFORM_ROT_90, JXFORM_ROT_180, JXFORM_ROT_270};
    if (rightrotatecount >= std::size(k_turns)) {
        libutils::error();
        std::cerr << rightrotatecount << ": jpeg transform rightrotate count over." << std::endl;
        return false;
    }
    jpeg_transform_info info;
    info.transform = k_turns[rightrotatecount];
    return transform(info, JCOPY_NONE, out, in);
}

}  // namespace libgr
