// SPDX-License-Identifier: MIT
// libjpeg's error, source and destination managers on bytes in memory; the one header that includes
// jpeglib.h, for the JPEG codec's own sources.
#pragma once

#include <csetjmp>
#include <cstdio>
// jpeglib.h needs FILE and size_t, and is C.
#include <jpeglib.h>

#include "codecs/jpegdata.h"

namespace libgr {

/// An error manager that comes back by a jump instead of ending the process.
struct my_error_mgr {
    jpeg_error_mgr base;
    std::jmp_buf jump;
    jpegdata_t const* data;  ///< whose name the messages bear
};

/// The error manager's exit: writes the file's name and ": error detected." on std::cerr, then
/// libjpeg's own text, and jumps.
[[noreturn]] void my_error_exit(j_common_ptr cinfo);

/// Sets `error` up and returns what goes into cinfo->err.
jpeg_error_mgr* use_error_mgr(my_error_mgr& error, jpegdata_t const& data);

/// Runs one step on `state`, which has a my_error_mgr named `error`, and says whether it came to
/// its end; an error in libjpeg ends it early. A step has nothing to destroy.
template <typename state_t>
[[gnu::noinline]] bool run_jpeg_step(void (*step)(state_t&), state_t& state) {
    if (setjmp(state.error.jump) != 0) {
        return false;
    }
    step(state);
    return true;
}

/// A source manager that delivers the whole of `data`.
///
/// The first fill delivers the file. A file that ends within its header is an error. While rows are
/// decoded, later fills deliver the file again from its first byte: the decoder then finds a marker
/// in entropy-coded data and continues with the data that it has. Two cases deliver an end-of-image
/// marker instead:
/// - a file with several scans, because all its coefficients are read before the first row and the
///   start of the file would be an error there;
/// - a file whose rows have all been decoded, because a segment that is longer than the rest of the
///   file would otherwise read the file again and again without end.
struct jpeg_memory_source_t {
    jpeg_source_mgr base;
    jpegdata_t const* data;
    unsigned fills;
    bool in_header;

    /// Whether more bytes were asked for than the file has.
    bool has_run_out() const { return fills > 1; }
};

/// Gives the decompressor, which must have been created, such a source from its permanent pool.
jpeg_memory_source_t* use_memory_source(j_decompress_ptr cinfo, jpegdata_t const& data);

/// Has the source, behind the header, deliver no more than an end of image.
void end_source(jpeg_memory_source_t& source);

/// Whether the entropy decoder makes up what it gives out, its data having run out. A restart
/// marker gives it data again.
bool lacks_data(j_decompress_ptr cinfo);

/// Gives the compressor, which must have been created, a destination from its permanent pool that
/// fills `data` in steps of 1 MiB.
void use_memory_destination(j_compress_ptr cinfo, jpegdata_t& data);

}  // namespace libgr
