// SPDX-License-Identifier: MIT
// Tests of the Exif reader: good blocks in both byte orders, cut everywhere and changed by a word.
#include "metadata/exif.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <vector>

#include "tests/metadata/exifblocks.h"
#include "tests/metadata/segmentbytes.h"

namespace {

using namespace libgr;
using namespace std::string_literals;

using fields_t = std::set<std::string>;

/// The fields that are set, as "name=values".
fields_t fields_of(app1_marker_t::tiff_header_t const& t) {
    fields_t fields;
    auto const take = [&](std::string const& name, auto const& field) {
        std::ostringstream out;
        if constexpr (requires { field.c_str(); }) {
            out << '=' << field.c_str() << ':' << field.size();
        } else {
            for (auto const& number : field) {
                if constexpr (requires { number.numerator; }) {
                    out << '=' << number.numerator << '/' << number.denominator;
                } else {
                    out << '=' << +number;
                }
            }
        }
        if (field.begin() != field.end()) {
            fields.insert(name + out.str());
        }
    };
    take("Make", t.tag_0th_ifd.Make);
    take("Orientation", t.tag_0th_ifd.Orientation);
    take("XResolution", t.tag_0th_ifd.XResolution);
    take("ExposureTime", t.tag_exif_ifd.ExposureTime);
    take("Program", t.tag_exif_ifd.ExposureProgram);
    take("DateTimeOriginal", t.tag_exif_ifd.DateTimeOriginal);
    take("Bias", t.tag_exif_ifd.ExposureBiasValue);
    take("thumbnail", t.thumbnail);
    take("100C", t.tag_olympus_ifd.tag_0x100C);
    take("1015", t.tag_olympus_ifd.tag_0x1015);
    take("0203", t.tag_olympus3_equipment_ifd.tag_0x0203);
    take("0500", t.tag_olympus3_camerasettings_ifd.tag_0x0500);
    take("031B", t.tag_olympus3_focusinfo_ifd.tag_0x031B);
    take("000D", t.tag_pentax5_ifd.tag_0x000D);
    return fields;
}

/// How a payload is taken, "refused" standing for a refusal without a line, and the fields that
/// were read. What stands around the payload may make no difference.
std::pair<std::string, fields_t> outcome_of(std::string const& payload) {
    auto const read_within = [&](char margin) {
        capture_t captured;
        std::cerr << std::hex;
        app1_marker_t app1;
        app1.set_app1_buffer(window_of(payload, margin));
        bool const good = app1.parse();
        std::string line = (good ? "good\n" : "") + captured.err();
        line = line.empty() ? "refused\n" : line;
        EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
        return std::pair(line.substr(0, line.size() - 1), fields_of(app1.tiff_header));
    };
    auto const outcome = read_within('\xFF');
    EXPECT_EQ(outcome, read_within('\0')) << "bytes outside the payload were read";
    return outcome;
}

TEST(exif, takes_good_blocks_and_tells_what_a_word_in_them_changes) {
    std::istringstream lines(read_file(EXIF_OUTCOMES));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream in(line);
        std::string maker, note, word, expected;
        std::size_t at = 0;
        if (line[0] == '#') {
            continue;
        }
        std::getline(in >> std::quoted(maker) >> note >> at >> word >> std::ws, expected);
        for (bool const intel : {true, false}) {
            block_t block = good_block(intel, maker, note);
            fields_t const good = outcome_of(block.app1()).second;
            block.put(at, word);
            auto [told, fields] = outcome_of(block.app1());
            for (std::string const& field : good) {
                told += fields.erase(field) == 0 ? " -" + field : "";
            }
            for (std::string const& field : fields) {
                told += " +" + field;
            }
            EXPECT_EQ(told, expected) << line;
        }
    }
}

TEST(exif, refuses_good_blocks_that_are_cut) {
    for (auto const& [maker, note] : makers_and_notes) {
        for (bool const intel : {true, false}) {
            block_t const block = good_block(intel, maker, note);
            std::string const whole = block.app1();
            // The last value without a note ends at 226; a count that is cut off is none.
            std::size_t const needed = block.bytes.size() == 272 ? 6 + 226 : whole.size();
            for (std::size_t size = 0; size <= whole.size(); ++size) {
                std::string const told = outcome_of(whole.substr(0, size)).first;
                EXPECT_EQ(told == "good", size >= needed || size == 14 || size == 15) << size;
                EXPECT_EQ(told == "refused", size < 5) << size;
            }
        }
    }
}

TEST(exif, looks_at_nothing_but_exif_and_forgets_a_file_on_clear) {
    std::string const payload = good_block(true, "OLYMPUS", "olympus").app1();
    app1_marker_t app1;
    jpeg_bytes_t const window = window_of(payload);
    app1.set_app1_buffer(window);
    EXPECT_TRUE(app1.parse());
    app1.clear();
    EXPECT_EQ(window.refcount(), 1U) << "a view of the file is left";
    EXPECT_EQ(fields_of(app1.tiff_header), fields_t());
    for (std::string const other : {"", "Exif", "exif\0\0II*\0"}) {
        EXPECT_EQ(outcome_of(other), std::pair("refused"s, fields_t())) << other;
    }
    EXPECT_EQ(outcome_of(payload.substr(0, 13)).first, "too few tiff header size.");
}

TEST(exif, stops_in_an_ifd_that_is_shorter_than_its_entries) {
    app1_marker_t::tiff_header_t header;
    std::string const bytes = good_block(true, "ACME", "plain").bytes;
    header.set_tiff_buffer(window_of(bytes));
    ASSERT_TRUE(header.parse());
    capture_t captured;
    EXPECT_FALSE(header.parse_exif_ifd(window_of(bytes.substr(124, 25))));
    EXPECT_FALSE(header.parse_0th_ifd(window_of(bytes.substr(8, 21))));
    EXPECT_FALSE(header.parse_0th_ifd(window_of(bytes.substr(8, 22))));
    EXPECT_EQ(captured.err(),
              "too few ifd area26 > 25\nvalue over, offset: 22 ifd size: 21\n"
              "value over, offset: 34 ifd size: 22\n");
}

}  // namespace
