// SPDX-License-Identifier: MIT
// Tests of the readers of a baseline JPEG's marker segments: what they take, refuse and print.
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

/// What is printed of a payload, or the line that refuses it.
template <typename M, void (M::*set_buffer)(jpeg_bytes_t const&)>
std::string told(std::string const& payload) {
    capture_t captured;
    std::cout << std::hex;
    M marker;
    jpeg_bytes_t const window = window_of(listed_bytes(payload));
    (marker.*set_buffer)(window);
    bool const good = marker.parse();
    EXPECT_EQ(captured.out(), "") << payload;
    if (good) {
        marker.dump();
    }
    std::string const text = good ? captured.out() + captured.err() : "refused: " + captured.err();
    marker.clear();
    marker.dump();
    std::string const cleared = captured.out();
    M().dump();
    EXPECT_EQ(captured.out(), cleared);
    EXPECT_TRUE(marker.offset == 0 && marker.count == M::to_end && window.refcount() == 1);
    return text;
}

/// The readers by the names that head their payloads in the file.
std::map<std::string, std::string (*)(std::string const&)> const readers = {
    {"SOF0", told<sof0_marker_t, &sof0_marker_t::set_sof0_buffer>},
    {"DQT", told<dqt_marker_t, &dqt_marker_t::set_dqt_buffer>},
    {"DHT", told<dht_marker_t, &dht_marker_t::set_dht_buffer>},
    {"DRI", told<dri_marker_t, &dri_marker_t::set_dri_buffer>},
    {"SOS", told<sos_marker_t, &sos_marker_t::set_sos_buffer>},
};

TEST(jpegmarkers, take_good_segments_print_them_and_refuse_others) {
    std::istringstream in(read_file(MARKER_LINES));
    std::string text, name;
    for (std::string line; std::getline(in, line);) {
        if (readers.contains(line)) {
            name = line;
            text += line + "\n";
        } else if (line.starts_with('[')) {
            text += line + "\n" + readers.at(name)(line.substr(1, line.size() - 2));
        }
    }
    EXPECT_TRUE(matches_file(text, MARKER_LINES));
}

TEST(jpegmarkers, keep_what_was_read_before_a_refusal_and_begin_anew) {
    capture_t const quiet;
    sof0_marker_t frame;
    frame.set_sof0_buffer(window_of(listed_bytes("8 1 10 1 2 2 1 44 0 2 33 0")));
    EXPECT_TRUE(!frame.parse() && frame.lines == 0x110 && frame.components.size() == 2);
    frame.set_sof0_buffer(window_of(listed_bytes("8 1 10 1 2 1 1 21 0")));
    EXPECT_TRUE(frame.parse() && frame.max_horiz == 2 && frame.max_verts == 1);
    dht_marker_t tables;
    for (int twice = 0; twice < 2; ++twice) {
        tables.set_dht_buffer(window_of(listed_bytes("1 0*16 2 0*16")));
        EXPECT_TRUE(!tables.parse() && tables.table_count == 1 && tables.tables[0].th == 1);
    }
    sos_marker_t scan;
    scan.set_dht_marker(&tables);
    scan.clear();
    EXPECT_EQ(scan.dht, &tables);
}

TEST(jpegmarkers, assign_canonical_codes_and_natural_places) {
    dht_marker_t dht;
    dht.set_dht_buffer(window_of(listed_bytes("11 0 2 3 0*13 1 2 3 4 F5")));
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
