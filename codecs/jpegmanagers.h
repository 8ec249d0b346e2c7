// SPDX-License-Identifier: MIT
// The error, source and destination managers for libjpeg. Include this header instead of jpeglib.h.
#pragma once

#include <csetjmp>
#include <cstdio>
// jpeglib.h needs FILE and size_t, and is C.
#include <jpeglib.h>

#include "codecs/jpegdata.h"

namespace libgr {

/// An error manager that leaves libjpeg with longjmp. The default manager of libjpeg ends the
/// process.
struct my_error_mgr {
    jpeg_error_mgr base;
    std::jmp_buf jump;
    jpegdata_t const* data;  ///< its name begins the error line
    void (*default_emit_message)(j_common_ptr, int);
    bool has_hit_marker;  ///< the Huffman decoder has no data before the next restart or scan
};

/// Prints the name of the data and ": error detected." and then libjpeg's message on std::cerr.
/// Records the message (utils/diagnostics.h), and jumps.
[[noreturn]] void my_error_exit(j_common_ptr cinfo);

/// Initialises `error` and returns the value for cinfo->err. `data` must exist as long as `error`.
jpeg_error_mgr* use_error_mgr(my_error_mgr& error, jpegdata_t const& data);

/// Calls `step(state)`. `state.error` must be the my_error_mgr of the libjpeg structs that the step
/// uses. Returns false if libjpeg fails. my_error_exit then leaves the step with longjmp, so the
/// step must not have objects with destructors.
template <typename state_t>
[[gnu::noinline]] bool run_jpeg_step(void (*step)(state_t&), state_t& state) {
    if (setjmp(state.error.jump) != 0) {
        return false;
    }
    step(state);
    return true;
}

/// A source manager that delivers all bytes of `data`.
///
/// The first fill delivers the file. A file that ends within its header is an error. Later fills
/// deliver the file again from its first byte, so that the decoder finds a marker in the
/// entropy-coded data and continues with the data it has. In two cases, later fills deliver an
/// end-of-image marker:
/// - if the file has several scans. libjpeg reads all of them before it decodes the first row, and
///   would fail at the start-of-image marker of the file.
/// - if all rows have been decoded. If a segment claims more bytes than the file has, libjpeg would
///   otherwise read the file without end.
struct jpeg_memory_source_t {
    jpeg_source_mgr base;
    jpegdata_t const* data;
    unsigned fills;
    bool in_header;

    /// Returns true if libjpeg has requested more bytes than the file has.
    bool has_run_out() const { return fills > 1; }
};

/// Sets and returns a new source. It is allocated in the permanent pool of the decompressor, which
/// must have been created.
jpeg_memory_source_t* use_memory_source(j_decompress_ptr cinfo, jpegdata_t const& data);

/// Makes the source deliver an end-of-image marker next. Call it after the header has been read.
void end_source(jpeg_memory_source_t& source);

/// Returns true if the entropy decoder has no data left and delivers zeros. The next restart
/// interval or scan can have data again.
bool lacks_data(j_decompress_ptr cinfo);

/// Sets a new destination that writes to `data`. It is allocated in the permanent pool of the
/// compressor, which must have been created.
void use_memory_destination(j_compress_ptr cinfo, jpegdata_t& data);

}  // namespace libgr
