// SPDX-License-Identifier: MIT
// Tests of the parsers for the marker segments of a baseline JPEG file.
#include "metadata/jpegmarkers.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "tests/metadata/segmentbytes.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"

namespace {

using namespace libgr;

/// Parses a payload. Returns the error line, or the lines that `dump` prints. Checks `clear`, too.
template <typename M, void (M::*set_buffer)(jpeg_bytes_t const&)>
std::string result_of(jpeg_bytes_t const& payload) {
    capture_t captured;
    std::cout << std::hex;
    M marker;
    (marker.*set_buffer)(payload);
    bool const is_valid = marker.parse();
    if (is_valid) {
        marker.dump();
    }
    std::string text = (is_valid ? "\n" : " -> ") + captured.err() + captured.out();
    marker.clear();
    EXPECT_EQ(payload.refcount(), 1U);
    marker.dump();
    EXPECT_EQ(captured.out().find_first_of("123456789"), std::string::npos);
    return text;
}

std::map<std::string, std::string (*)(jpeg_bytes_t const&)> const parsers = {
    {"SOF0", result_of<sof0_marker_t, &sof0_marker_t::set_sof0_buffer>},
    {"DQT", result_of<dqt_marker_t, &dqt_marker_t::set_dqt_buffer>},
    {"DHT", result_of<dht_marker_t, &dht_marker_t::set_dht_buffer>},
    {"DRI", result_of<dri_marker_t, &dri_marker_t::set_dri_buffer>},
    {"SOS", result_of<sos_marker_t, &sos_marker_t::set_sos_buffer>},
};

TEST(JpegMarkers, PrintsValidSegmentsAndRejectsOthers) {
    // The bytes after "|" follow the segment. Without them, FF bytes follow.
    std::istringstream in(read_file(MARKER_ROWS));
    std::string text;
    for (std::string line; std::getline(in, line);) {
        std::string const row = line.substr(0, line.find(" -> "));
        auto const parser = parsers.find(row.substr(0, row.find(' ')));
        if (parser != parsers.end()) {
            std::string const bytes = row.substr(row.find(':') + 1);
            std::size_t const end = bytes.find('|');
            std::string const after = end == std::string::npos ? "FF*9" : bytes.substr(end + 1);
            text += row + parser->second(
                              window_of(listed_bytes(bytes.substr(0, end)), listed_bytes(after)));
        }
    }
    EXPECT_TRUE(matches_file(text, MARKER_ROWS));
}

TEST(JpegMarkers, AssignsCanonicalHuffmanCodes) {
    dht_marker_t dht;
    dht.set_dht_buffer(window_of(listed_bytes("1 0*16 0 0*16 10 0*16 11 0 2 3 0*13 1 2 3 4 F5")));
    ASSERT_TRUE(dht.parse());
    std::ostringstream codes;
    for (dht_marker_t::entry_t const& entry : dht.ac[1].entries) {
        codes << entry.code << ':' << +entry.data_bits << '+' << +entry.run_length << ' ';
    }
    EXPECT_EQ(codes.str(), "0:1+0 1:2+0 4:3+0 5:4+0 6:5+15 ");
}

TEST(JpegMarkers, ZigzagOrderFollowsTheDiagonals) {
    unsigned int place = 0;
    for (int diagonal = 0; diagonal < 15; ++diagonal) {
        for (int k = std::max(0, diagonal - 7); k <= std::min(7, diagonal); ++k) {
            int const y = diagonal % 2 != 0 ? k : diagonal - k;
            EXPECT_EQ(zigzag_to_array[place++], 8 * y + diagonal - y) << place;
        }
    }
}

}  // namespace
