// SPDX-License-Identifier: MIT
// The error, source and destination managers for libjpeg.
#include "codecs/jpegmanagers.h"

#include <jerror.h>

#include <iostream>

#include "utils/diagnostics.h"

namespace libgr {

namespace {

constexpr unsigned long growth_step = 0x100000;  // bytes

constexpr JOCTET end_of_image[] = {0xFF, JPEG_EOI};

jpeg_memory_source_t& source_of(j_decompress_ptr cinfo) {
    return *reinterpret_cast<jpeg_memory_source_t*>(cinfo->src);
}

void src_init(j_decompress_ptr cinfo) {
    cinfo->src->next_input_byte = nullptr;
    cinfo->src->bytes_in_buffer = 0;
}

boolean src_fill_input_buff(j_decompress_ptr cinfo) {
    jpeg_memory_source_t& source = source_of(cinfo);
    ++source.fills;
    if (source.data->empty()) {
        ERREXIT(cinfo, JERR_INPUT_EMPTY);
    }
    if (source.has_run_out() && source.in_header) {
        ERREXIT(cinfo, JERR_INPUT_EOF);
    }
    bool const has_all_rows = cinfo->output_scanline >= cinfo->output_height;
    if (source.has_run_out() && (has_all_rows || jpeg_has_multiple_scans(cinfo))) {
        end_source(source);
    } else {
        source.base.next_input_byte = source.data->begin();
        source.base.bytes_in_buffer = source.data->size();
    }
    return TRUE;
}

void src_skip_input_data(j_decompress_ptr cinfo, long count) {
    if (count <= 0) {
        return;
    }
    // After a skip past the end, the next fill reports that the file has run out.
    jpeg_source_mgr& source = *cinfo->src;
    std::size_t const skipped = static_cast<std::size_t>(count) < source.bytes_in_buffer
                                    ? static_cast<std::size_t>(count)
                                    : source.bytes_in_buffer;
    source.next_input_byte += skipped;
    source.bytes_in_buffer -= skipped;
}

void src_term(j_decompress_ptr) {}

struct jpeg_memory_destination_t {
    jpeg_destination_mgr base;
    jpegdata_t* data;
};

jpeg_memory_destination_t& destination_of(j_compress_ptr cinfo) {
    return *reinterpret_cast<jpeg_memory_destination_t*>(cinfo->dest);
}

/// Makes room after the first `used` bytes.
void grow(j_compress_ptr cinfo, unsigned long used) {
    jpeg_memory_destination_t& destination = destination_of(cinfo);
    if (!destination.data->resize(used + growth_step, 0)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    destination.base.next_output_byte = destination.data->begin() + used;
    destination.base.free_in_buffer = growth_step;
}

void dest_init(j_compress_ptr cinfo) {
    grow(cinfo, 0);
}

boolean dest_empty_buff(j_compress_ptr cinfo) {
    grow(cinfo, destination_of(cinfo).data->size());
    return TRUE;
}

void dest_term(j_compress_ptr cinfo) {
    jpeg_memory_destination_t& destination = destination_of(cinfo);
    if (!destination.data->resize(destination.data->size() - destination.base.free_in_buffer, 0)) {
        ERREXIT1(cinfo, JERR_OUT_OF_MEMORY, 0);
    }
    destination.base.next_output_byte = nullptr;
    destination.base.free_in_buffer = 0;
    cinfo->dest = nullptr;
}

/// Watches libjpeg's warnings and traces for the end of the entropy-coded data. libjpeg's decoder
/// has a flag for it, but only in its private header.
void watch_messages(j_common_ptr cinfo, int level) {
    auto* const error = reinterpret_cast<my_error_mgr*>(cinfo->err);
    switch (error->base.msg_code) {
        case JWRN_HIT_MARKER:
            error->has_hit_marker = true;
            break;
        case JTRC_RST:
        case JTRC_SOS:
            error->has_hit_marker = false;
            break;
        default:
            break;
    }
    error->default_emit_message(cinfo, level);
}

/// Calls libjpeg's function that finds the next restart marker.
boolean src_resync_to_restart(j_decompress_ptr cinfo, int desired) {
    boolean const is_done = jpeg_resync_to_restart(cinfo, desired);
    if (cinfo->unread_marker == 0) {
        reinterpret_cast<my_error_mgr*>(cinfo->err)->has_hit_marker = false;
    }
    return is_done;
}

}  // namespace

void my_error_exit(j_common_ptr cinfo) {
    auto* const error = reinterpret_cast<my_error_mgr*>(cinfo->err);
    libutils::error();
    std::cerr << libutils::putname(error->data->name) << ": error detected." << std::endl;
    char message[JMSG_LENGTH_MAX] = {};
    error->base.format_message(cinfo, message);
    libutils::reject(message);
    error->base.output_message(cinfo);
    std::longjmp(error->jump, 1);
}

jpeg_error_mgr* use_error_mgr(my_error_mgr& error, jpegdata_t const& data) {
    jpeg_std_error(&error.base);
    error.base.error_exit = my_error_exit;
    error.default_emit_message = error.base.emit_message;
    error.base.emit_message = watch_messages;
    error.has_hit_marker = false;
    error.data = &data;
    return &error.base;
}

jpeg_memory_source_t* use_memory_source(j_decompress_ptr cinfo, jpegdata_t const& data) {
    auto* const source = static_cast<jpeg_memory_source_t*>(cinfo->mem->alloc_small(
        reinterpret_cast<j_common_ptr>(cinfo), JPOOL_PERMANENT, sizeof(jpeg_memory_source_t)));
    source->base.init_source = src_init;
    source->base.fill_input_buffer = src_fill_input_buff;
    source->base.skip_input_data = src_skip_input_data;
    source->base.resync_to_restart = src_resync_to_restart;
    source->base.term_source = src_term;
    source->data = &data;
    source->fills = 0;
    source->in_header = true;
    cinfo->src = &source->base;
    return source;
}

void end_source(jpeg_memory_source_t& source) {
    source.base.next_input_byte = end_of_image;
    source.base.bytes_in_buffer = sizeof end_of_image;
}

bool lacks_data(j_decompress_ptr cinfo) {
    if (cinfo->arith_code != FALSE) {  // the arithmetic decoder has no warning
        return source_of(cinfo).has_run_out();
    }
    return reinterpret_cast<my_error_mgr*>(cinfo->err)->has_hit_marker;
}

void use_memory_destination(j_compress_ptr cinfo, jpegdata_t& data) {
    auto* const destination = static_cast<jpeg_memory_destination_t*>(cinfo->mem->alloc_small(
        reinterpret_cast<j_common_ptr>(cinfo), JPOOL_PERMANENT, sizeof(jpeg_memory_destination_t)));
    destination->base.init_destination = dest_init;
    destination->base.empty_output_buffer = dest_empty_buff;
    destination->base.term_destination = dest_term;
    destination->base.next_output_byte = nullptr;
    destination->base.free_in_buffer = 0;
    destination->data = &data;
    cinfo->dest = &destination->base;
}

}  // namespace libgr
