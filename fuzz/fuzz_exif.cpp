// SPDX-License-Identifier: MIT
// Fuzzes the reader of Exif blocks and of the makers' notes in them. The input is the TIFF block.
#include <numeric>

#include "fuzz/fuzzinput.h"
#include "metadata/exif.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    libgr::jpeg_bytes_t block;
    input_t(data, size).fill(block);
    libgr::app1_marker_t::tiff_header_t header;
    header.set_tiff_buffer(block);
    header.parse();
    for (libgr::jpeg_bytes_t const* view :
         {&header.thumbnail, &header.tag_exif_ifd.MakerNote, &header.ifd_maker_note}) {
        [[maybe_unused]] unsigned int const volatile sum =
            std::accumulate(view->begin(), view->end(), 0U);
    }
    return 0;
}
