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

/// Payloads, and the line that refuses them all or what is printed of them.
struct row_t {
    std::vector<std::string> payloads;
    std::string said;
};

template <typename M>
void check(void (M::*set_buffer)(jpeg_bytes_t const&), std::vector<row_t> const& rows) {
    for (row_t const& row : rows) {
        for (std::string const& payload : row.payloads) {
            capture_t captured;
            std::cout << std::hex;
            M marker;
            jpeg_bytes_t const window = window_of(bytes_of(payload));
            (marker.*set_buffer)(window);
            if (marker.parse()) {
                marker.dump();
            }
            EXPECT_EQ(captured.out() + captured.err(), row.said) << payload;
            marker.clear();
            marker.dump();
            std::string const cleared = captured.out();
            M().dump();
            EXPECT_EQ(captured.out(), cleared);
            EXPECT_EQ(window.refcount(), 1U);
        }
    }
}

std::string const broken = "broken JPEG data.\n", invalid = "invalid JPEG data.\n";
std::string const unsupported = "not support JPEG data. ";

std::string repeated(std::string const& text, int times) {
    return times == 0 ? "" : text + repeated(text, times - 1);
}

TEST(jpegmarkers, take_good_segments_print_them_and_refuse_others) {
    check(&sof0_marker_t::set_sof0_buffer,
          {{{"8 0 10 1 2 2 7 42 1 9 21 0 5"},
            "precision: 8\nlines: 16, samples: 258\ncolors: 2\n"
            "component_id: 7\nhoriz_factor: 4\nverts_factor: 2\nquatable_sel: 33\n"
            "component_id: 9\nhoriz_factor: 2\nverts_factor: 1\nquatable_sel: 0\n"
            "max_horiz: 4\nmax_verts: 2\n"},
           {{"41 0 10 1 2 0"}, unsupported + "sample_precision=A\n"},
           {{"8 0 10 1 2 2 1 31 0 2 21 0", "8 0 10 1 2 2 1 13 0 2 12 0"}, invalid},
           {{"8 0 10 1 2 1 1 01 0", "8 0 10 1 2 1 1 10 0"}, invalid},
           {{"8 0 10 1 2 2 1 11 0 2 11", "8 0 10 1 2", ""}, broken}});
    check(&dri_marker_t::set_dri_buffer,
          {{{"1 2"}, "dri intervals: 258\n"}, {{"1 2 0", "0 0 0 4", "1", ""}, broken}});
    std::string const line = "scan element selector: ", dc = "\ndc huffman table selector: ",
                      ac = "\nac huffman table selector: ";
    check(&sos_marker_t::set_sos_buffer,
          {{{"2 1 10 2 1 0 3F 0"},
            "ns: 2\n" + line + "1" + dc + "1" + ac + "0\n" + line + "2" + dc + "0" + ac + "1\n"},
           {{"1 1 20 0 3F 0", "1 1 02 0 3F 0"}, invalid},
           {{"1 1 0 1 5 23"}, "constant value illegal. ss=1, se=5, ah=2, al=3\n"},
           {{"2 1 0 0 3F 0", "0 0 3F", ""}, broken}});
    check(&dqt_marker_t::set_dqt_buffer,
          {{{"2 0 1 2 0*61 1 0 0 0 3 0*60"},
            "dqt n: 2\n0, 1, 0, 0, 0, 0, 0, 0, 2, " + repeated("0, ", 55) + "\n" +
                repeated("0, ", 16) + "3, " + repeated("0, ", 47) + "\n"},
           {{"10 0*64"}, unsupported + "DQT pq=1\n"},
           {{"4 0*64"}, invalid},
           {{"0*66", "0*325", "0*16640", ""}, broken}});
    // Counts by length, then the values; 0xFF and a stuffed 0 are one of them.
    std::string const end = " 0*13 ", error = "huffman table error: run_length=";
    check(&dht_marker_t::set_dht_buffer,
          {{{"1 0 2 1" + end + "0 F0 FF 0 0 1*16 1*16"},
            "dht length: 0\ntc: 0, th: 1\nentries: 0, 2, 1" + repeated(", 0", 13) +
                "\ntc: 0, th: 0\nentries: 1" + repeated(", 1", 15) + "\n"},
           {{"2 0*16", "20 0*16", "0 0*15", "0 0 2 0" + end + "1", "0 80*2 0*270"}, broken},
           {{repeated("0 0*16 ", 5), "0"}, broken},
           {{"0 0 1 0" + end + "10"}, error + "1, data_bits=0\n"},
           {{"10 0 1 0" + end + "E0"}, error + "14, data_bits=0\n"}});
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
