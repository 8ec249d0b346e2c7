// SPDX-License-Identifier: MIT
// Tests of the Exif parser: blocks in both byte orders, with changed fields, and cut anywhere.
#include "metadata/exif.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <set>
#include <sstream>

#include "tests/metadata/exifblocks.h"
#include "tests/metadata/segmentbytes.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"

namespace {

using namespace libgr;
using namespace std::string_literals;

/// The values that were read, as "name=value".
using values_t = std::set<std::string>;

values_t values_of(app1_marker_t::tiff_header_t const& t) {
    values_t values;
    auto const add = [&](std::string const& name, auto const& member) {
        std::ostringstream out;
        if constexpr (requires { member.c_str(); }) {
            out << member.c_str() << ':' << member.size();
        } else {
            for (char const* separator = ""; auto const& number : member) {
                out << std::exchange(separator, ",");
                if constexpr (requires { number.numerator; }) {
                    out << number.numerator << '/' << number.denominator;
                } else {
                    out << +number;
                }
            }
        }
        if (member.begin() != member.end()) {
            values.insert(name + "=" + out.str());
        }
    };
    add("Make", t.tag_0th_ifd.Make);
    add("Orientation", t.tag_0th_ifd.Orientation);
    add("XResolution", t.tag_0th_ifd.XResolution);
    add("Exposure", t.tag_exif_ifd.ExposureTime);
    add("Program", t.tag_exif_ifd.ExposureProgram);
    add("Date", t.tag_exif_ifd.DateTimeOriginal);
    add("Bias", t.tag_exif_ifd.ExposureBiasValue);
    add("thumbnail", t.thumbnail);
    add("100C", t.tag_olympus_ifd.tag_0x100C);
    add("1015", t.tag_olympus_ifd.tag_0x1015);
    add("0203", t.tag_olympus3_equipment_ifd.tag_0x0203);
    add("0500", t.tag_olympus3_camerasettings_ifd.tag_0x0500);
    add("031B", t.tag_olympus3_focusinfo_ifd.tag_0x031B);
    add("000D", t.tag_pentax5_ifd.tag_0x000D);
    return values;
}

/// Parses a payload. Returns "valid", "invalid" for a failure without a line, or the error line,
/// and the values. The bytes around the payload must not make a difference.
std::pair<std::string, values_t> result_of(std::string const& payload) {
    auto const parse_within = [&](char margin) {
        capture_t captured;
        std::cerr << std::hex;
        app1_marker_t app1;
        app1.set_app1_buffer(window_of(payload, std::string(64, margin)));
        std::string text = app1.parse() ? "valid\n" : "";
        text += captured.err();
        text = text.empty() ? "invalid\n" : text;
        return std::pair(text.substr(0, text.size() - 1), values_of(app1.tiff_header));
    };
    auto result = parse_within('\xFF');
    EXPECT_EQ(result, parse_within('\0')) << "bytes outside the payload were read";
    return result;
}

/// The names of the lost values, and the new values.
std::string difference(values_t const& before, values_t const& after) {
    if (after.empty()) {
        return " nothing";
    }
    std::string text;
    for (std::string const& value : before) {
        text += after.contains(value) ? "" : " -" + value.substr(0, value.find('='));
    }
    for (std::string const& value : after) {
        text += before.contains(value) ? "" : " " + value;
    }
    return text;
}

TEST(Exif, ReadsBlocksWithChangedFields) {
    // A Make, the note (exifblocks.h), changed fields, and the difference to no note and no change.
    std::istringstream lines(read_file(EXIF_ROWS));
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        std::string const row = line.substr(0, line.find(" -> "));
        std::istringstream in(row);
        std::string maker, note, field;
        in >> std::quoted(maker) >> note;
        block_t intel(true, maker, note), motorola(false, maker, note);
        values_t const before =
            text.empty() ? values_t() : result_of(block_t(true, maker, "none").app1()).second;
        while (in >> field) {
            intel.change(field);
            motorola.change(field);
        }
        auto const [result, values] = result_of(intel.app1());
        EXPECT_EQ(result_of(motorola.app1()), std::pair(result, values)) << row;
        text += row + " -> " + result + difference(before, values) + "\n";
    }
    EXPECT_TRUE(matches_file(text, EXIF_ROWS));
}

TEST(Exif, RejectsCutBlocks) {
    for (auto const& [maker, note] : makers_and_notes) {
        for (bool const is_intel : {true, false}) {
            block_t const block(is_intel, maker, note);
            std::string const whole = block.app1();
            // Without a note, the block needn't contain the 1st IFD.
            std::size_t const needed = note == "none"s ? 6 + block.position("1st") : whole.size();
            for (std::size_t size = 0; size <= whole.size(); ++size) {
                std::string const result = result_of(whole.substr(0, size)).first;
                // A block without the number of entries of the 0th IFD is valid and has no entries.
                bool const is_valid = size >= needed || size == 14 || size == 15;
                EXPECT_EQ(result == "valid", is_valid) << maker << ", " << size << " bytes";
                EXPECT_EQ(result == "invalid", size < 5) << maker << ", " << size << " bytes";
            }
        }
    }
}

}  // namespace
