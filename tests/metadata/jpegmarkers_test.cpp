// SPDX-License-Identifier: MIT
// Tests of the readers of a baseline JPEG's marker segments: what they take, refuse and print.
#include "metadata/jpegmarkers.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/metadata/segmentbytes.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;

/// "1*3" stands for three bytes 1; numbers are hexadecimal but for the count behind the star.
std::string bytes_of(std::string const& text) {
    std::istringstream in(text);
    std::string bytes, word;
    while (in >> word) {
        std::size_t const star = word.find('*');
        bytes.append(star == std::string::npos ? 1 : std::stoul(word.substr(star + 1)),
                     static_cast<char>(std::stoul(word, nullptr, 16)));
    }
    return bytes;
}

/// Reads each payload: the text has what is printed of it, or the line that refuses it.
template <typename M>
std::string read_all(void (M::*set_buffer)(jpeg_bytes_t const&),
                     std::vector<std::string> const& payloads) {
    std::string text;
    for (std::string const& payload : payloads) {
        capture_t captured;
        std::cout << std::hex;
        M marker;
        jpeg_bytes_t const window = window_of(bytes_of(payload));
        (marker.*set_buffer)(window);
        if (marker.parse()) {
            marker.dump();
        }
        text += "[" + payload + "]\n" + captured.out() + captured.err();
        marker.clear();
        marker.dump();
        std::string const cleared = captured.out();
        M().dump();
        EXPECT_EQ(captured.out(), cleared);
        EXPECT_EQ(window.refcount(), 1U);
    }
    return text;
}

TEST(jpegmarkers, take_good_segments_print_them_and_refuse_others) {
    std::string const frames =
        read_all(&sof0_marker_t::set_sof0_buffer,
                 {"8 0 10 1 2 2 7 42 1 9 21 0 5", "41 0 10 1 2 0", "8 0 10 1 2 2 1 31 0 2 21 0",
                  "8 0 10 1 2 2 1 13 0 2 12 0", "8 0 10 1 2 1 1 01 0", "8 0 10 1 2 1 1 10 0",
                  "8 0 10 1 2 2 1 11 0 2 11", "8 0 10 1 2", ""});
    std::string const restarts =
        read_all(&dri_marker_t::set_dri_buffer, {"1 2", "1 2 0", "0 0 0 4", "1", ""});
    std::string const scans =
        read_all(&sos_marker_t::set_sos_buffer,
                 {"2 1 10 2 1 0 3F 0", "1 1 20 0 3F 0", "1 1 02 0 3F 0", "1 1 0 1 5 23",
                  "2 1 0 0 3F 0", "1 1 0 0 3F 0 0", "0 0 3F", ""});
    std::string const quantisation = read_all(
        &dqt_marker_t::set_dqt_buffer,
        {"2 0 1 2 0*61 1 0 0 0 3 0*60", "10 0*64", "4 0*64", "0*66", "0*325", "0*16640", ""});
    // Counts by length, then the values; 0xFF and a stuffed 0 are one of them.
    std::string const five = "0 0*16 0 0*16 0 0*16 0 0*16 0 0*16";
    std::string const huffman =
        read_all(&dht_marker_t::set_dht_buffer,
                 {"1 0 2 1 0*13 0 F0 FF 0 0 1*16 1*16", "2 0*16", "20 0*16", "0 0*15",
                  "0 0 2 0*14 1", "0 80*2 0*270", "0", five, "0 0 1 0*14 10", "10 0 1 0*14 E0"});
    EXPECT_EQ(frames + restarts + scans + quantisation + huffman, read_file(MARKER_LINES));
}

TEST(jpegmarkers, assign_canonical_codes_and_natural_places) {
    dht_marker_t dht;
    dht.set_dht_buffer(window_of(bytes_of("11 0 2 3 0*13 1 2 3 4 F5")));
    ASSERT_TRUE(dht.parse());
    std::ostringstream codes;
    for (dht_marker_t::entry_t const& entry : dht.ac[1].entries) {
        codes << entry.code << ':' << +entry.data_bits << '+' << +entry.run_length << ' ';
    }
    EXPECT_EQ(codes.str(), "0:1+0 1:2+0 4:3+0 5:4+0 6:5+15 ");
    unsigned int place = 0;
    for (unsigned int diagonal = 0; diagonal < 15; ++diagonal) {
        for (unsigned int k = 0; k <= diagonal; ++k) {
            unsigned int const y = diagonal % 2 != 0 ? k : diagonal - k;
            if (y < 8 && diagonal - y < 8) {
                EXPECT_EQ(zigzag_to_array[place++], 8 * y + diagonal - y);
            }
        }
    }
}

}  // namespace
