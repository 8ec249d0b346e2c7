// SPDX-License-Identifier: MIT
// Fuzzes the readers of a baseline JPEG's marker segments. The first byte of the input chooses the
// reader, the rest is the payload.
#include "fuzz/fuzzinput.h"
#include "metadata/jpegmarkers.h"

namespace {

template <typename marker_t, void (marker_t::*set_buffer)(libgr::jpeg_bytes_t const&)>
void run_marker(libgr::jpeg_bytes_t const& payload) {
    marker_t marker;
    (marker.*set_buffer)(payload);
    if (marker.parse()) {
        marker.dump();
    }
    marker.clear();
    marker.dump();
}

constexpr void (*readers[])(libgr::jpeg_bytes_t const&) = {
    run_marker<libgr::sof0_marker_t, &libgr::sof0_marker_t::set_sof0_buffer>,
    run_marker<libgr::dqt_marker_t, &libgr::dqt_marker_t::set_dqt_buffer>,
    run_marker<libgr::dht_marker_t, &libgr::dht_marker_t::set_dht_buffer>,
    run_marker<libgr::dri_marker_t, &libgr::dri_marker_t::set_dri_buffer>,
    run_marker<libgr::sos_marker_t, &libgr::sos_marker_t::set_sos_buffer>,
};

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    input_t input(data, size);
    auto const reader = readers[input.number(1) % std::size(readers)];
    libgr::jpeg_bytes_t payload;
    input.fill(payload);
    reader(payload);
    return 0;
}
