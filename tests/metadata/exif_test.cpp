// SPDX-License-Identifier: MIT
// Tests of the Exif reader: one good block in both byte orders, cut everywhere, and each rule.
#include "metadata/exif.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <sstream>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/metadata/segmentbytes.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using namespace std::string_view_literals;

/// A word of `size` bytes at `at` in the TIFF block.
struct poke_t {
    unsigned int at, size, value;
};

struct entry_t {
    unsigned int tag, type, count, value;
};

/// A TIFF block in one byte order.
struct block_t {
    bool intel;
    std::string bytes;

    std::string app1() const { return std::string("Exif\0\0"sv) + bytes; }
    void poke(poke_t word) {
        bytes.resize(std::max<std::size_t>(bytes.size(), word.at + word.size));
        for (unsigned int i = 0; i < word.size; ++i) {
            bytes[word.at + (intel ? i : word.size - 1 - i)] =
                static_cast<char>(word.value >> (8 * i));
        }
    }
    block_t& words(unsigned int size, std::initializer_list<unsigned int> values) {
        for (unsigned int const value : values) {
            poke({static_cast<unsigned int>(bytes.size()), size, value});
        }
        return *this;
    }
    block_t& text(std::string_view text) {
        bytes += text;
        return *this;
    }
    /// Count and entries, without the next IFD's offset. A SHORT stands in an entry's first bytes.
    block_t& ifd(std::initializer_list<entry_t> entries) {
        words(2, {static_cast<unsigned int>(entries.size())});
        for (entry_t const& e : entries) {
            words(2, {e.tag, e.type}).words(4, {e.count});
            e.type == 3 ? words(2, {e.value & 0xFFFF, e.value >> 16}) : words(4, {e.value});
        }
        return *this;
    }
};

enum e_note { plain, oly, bare, om, pentax };

void put_note(block_t& b, e_note note) {
    if (note == oly || note == bare) {  // offsets count from the TIFF block
        b.text(note == oly ? "OLYMP\0\1\0"sv : ""sv);
        b.ifd({{0x100B, 3, 1, 11}, {0x100C, 5, 1, 110}, {0x1015, 3, 2, 0x000E000D}});
    } else if (note == om) {
        b.text("OM SYSTEM\0\0\0II\3\0"sv);
        b.ifd({{0x2010, 13, 1, 54}, {0x2020, 13, 1, 68}, {0x2050, 4, 1, 94}});
        b.ifd({{0x0203, 2, 6, 132}});                                          // at 54
        b.ifd({{0x0500, 3, 1, 21}, {0x0804, 5, 1, 138}});                      // at 68
        b.ifd({{0x0209, 3, 1, 31}, {0x0305, 5, 1, 138}, {0x031B, 3, 1, 37}});  // at 94
        b.text("LENS1\0"sv).words(4, {38, 39});  // at 132 and 138, to 146
    } else if (note == pentax) {
        b.text("PENTAX \0II"sv);
        b.ifd({{0x000D, 3, 1, 41}, {0x001A, 3, 1, 44}, {0x0001, 5, 1, 48}});
        b.words(4, {1, 2});  // at 48, to 56
    }
}

/// The good TIFF block; a Make of 24 bytes, and the note, if any, at its end.
block_t good_block(bool intel, std::string maker, e_note note) {
    block_t noted{intel, {}};
    put_note(noted, note);
    auto const note_size = static_cast<unsigned int>(noted.bytes.size());
    maker.resize(24);
    block_t b{intel, intel ? "II" : "MM"};
    b.words(2, {42}).words(4, {8});
    b.ifd({{0x010F, 2, 24, 86},    // at 8; 10
           {0x0112, 3, 1, 6},      // 22
           {0x011A, 5, 1, 110},    // 34
           {0x0128, 3, 1, 2},      // 46
           {0x8769, 4, 1, 124},    // 58
           {0x8825, 4, 1, 118}});  // 70
    b.words(4, {226}).text(maker).words(4, {72, 1});
    b.ifd({}).words(4, {0});                      // GPS, at 118
    b.ifd({{0x829A, 5, 1, 190},                   // at 124; 126
           {0x8822, 1, 2, intel ? 2 : 0x20000U},  // 138, a word all the same
           {0x9003, 2, 20, 198},                  // 150
           {0x9204, 10, 1, 218},                  // 162
           {0x927C, 7, note_size, 272}});         // 174
    b.words(4, {0, 1, 125}).text("2024:05:06 07:08:09\0"sv).words(4, {0xFFFFFFFF, 3});
    b.ifd({{0x0112, 3, 1, 8}, {0x0201, 4, 1, 268}, {0x0202, 4, 1, 4}});  // 1st, at 226
    return b.words(4, {0}).text("\xFF\xD8\xFF\xD9").text(noted.bytes);
}

/// The fields that are set, each as "name=value,".
std::string summary(app1_marker_t::tiff_header_t const& t) {
    std::ostringstream out;
    auto const text = [&](char const* name, std::string const& field) {
        if (!field.empty()) {
            out << name << '=' << field.c_str() << ':' << field.size() << ',';
        }
    };
    auto const numbers = [&](char const* name, auto const& field) {
        for (auto const& number : field) {
            if constexpr (requires { number.numerator; }) {
                out << name << '=' << number.numerator << '/' << number.denominator << ',';
            } else {
                out << name << '=' << number << ',';
            }
        }
    };
    text("Make", t.tag_0th_ifd.Make);
    numbers("Orientation", t.tag_0th_ifd.Orientation);
    numbers("XResolution", t.tag_0th_ifd.XResolution);
    numbers("ExposureTime", t.tag_exif_ifd.ExposureTime);
    numbers("Program", t.tag_exif_ifd.ExposureProgram);
    text("DateTimeOriginal", t.tag_exif_ifd.DateTimeOriginal);
    numbers("Bias", t.tag_exif_ifd.ExposureBiasValue);
    text("thumbnail", std::string(t.thumbnail.begin(), t.thumbnail.end()));
    numbers("100C", t.tag_olympus_ifd.tag_0x100C);
    numbers("1015", t.tag_olympus_ifd.tag_0x1015);
    text("0203", t.tag_olympus3_equipment_ifd.tag_0x0203);
    numbers("0500", t.tag_olympus3_camerasettings_ifd.tag_0x0500);
    numbers("031B", t.tag_olympus3_focusinfo_ifd.tag_0x031B);
    numbers("000D", t.tag_pentax5_ifd.tag_0x000D);
    return out.str();
}

std::string const accepted, silently = "\n";

/// The line that refuses a payload, or one of the two above, and the fields that were read. What
/// stands around the payload may make no difference.
std::pair<std::string, std::string> outcome_of(std::string const& payload) {
    auto const read_within = [&](char margin) {
        capture_t captured;
        std::cerr << std::hex;
        app1_marker_t app1;
        app1.set_app1_buffer(window_of(payload, margin));
        bool const good = app1.parse();
        std::string line = captured.err();
        EXPECT_TRUE(line.empty() || (!good && line.find('\n') == line.size() - 1)) << line;
        line = line.substr(0, line.find('\n'));
        return std::pair(good || !line.empty() ? line : silently, summary(app1.tiff_header));
    };
    auto const outcome = read_within('\xFF');
    EXPECT_EQ(outcome, read_within('\0')) << "bytes outside the payload were read";
    return outcome;
}

TEST(exif, reads_a_good_block_with_the_notes_that_it_knows_and_refuses_it_cut) {
    std::string const common =
        ":24,Orientation=6,XResolution=72/1,ExposureTime=1/125,Program=2,"
        "DateTimeOriginal=2024:05:06 07:08:09:20,Bias=-1/3,thumbnail=\xFF\xD8\xFF\xD9:4,";
    std::vector<std::tuple<std::string, e_note, std::string>> const rows = {
        {"ACME", plain, ""},
        {"Olympus Imaging", oly, "100C=72/1,1015=13,1015=14,"},
        {"OLYMPUS", bare, "100C=72/1,1015=13,1015=14,"},
        {"OM DIGITAL SOLUTIONS", om, "0203=LENS1:6,0500=21,031B=37,"},
        {"Ricoh", pentax, "000D=41,"},
        {"OM Digital Solutions", pentax, ""},
    };
    for (auto const& [maker, note, noted] : rows) {
        for (bool const intel : {true, false}) {
            std::string const whole = good_block(intel, maker, note).app1();
            EXPECT_EQ(outcome_of(whole), std::pair(accepted, "Make=" + maker + common + noted));
            // The last value without a note ends at 226; a count that is cut off is none.
            std::size_t const needed = note == plain ? 6 + 226 : whole.size();
            for (std::size_t size = 0; size < whole.size(); ++size) {
                std::string const refusal = outcome_of(whole.substr(0, size)).first;
                EXPECT_EQ(refusal == accepted, size >= needed || size == 14 || size == 15) << size;
                EXPECT_EQ(refusal == silently, size < 5) << size;
            }
        }
    }
}

// Where entries of the good block and the note stand, and an entry's words in it.
constexpr unsigned int make = 10, orientation = 22, resolution = 34, unit = 46, exif_pointer = 58,
                       gps_pointer = 70, exposure = 126, program = 138, date = 150,
                       maker_note = 174, n = 272, type = 2, count = 4, value = 8;

std::string const outside = "offset+size over: ", equipment = "olympus3 equipment ifd: ",
                  settings = "olympus3 camerasettings ifd: ", focus = "olympus3 focusinfo ifd: ";

struct rule_t {
    e_note note;
    std::vector<poke_t> pokes;  ///< each on its own does what follows
    std::string refusal;
    std::string has;  ///< what the fields must show, or, behind "!", mustn't
} const rules[] = {
    {plain, {{2, 2, 0x2A00}}, "not tiff(0x00, 0x2a).", "!="},
    {plain, {{0, 2, 0x6969}}, "byteorder mark not recognized.", "!="},
    {plain, {{4, 4, ~0U}}, accepted, "!="},
    {plain, {{orientation + type, 2, 4}}, accepted, "!Orientation"},
    {plain, {{make + type, 2, 14}}, accepted, "Orientation=6,"},
    {plain, {{unit, 2, 0x0112}}, accepted, "Orientation=2,XRes"},
    {plain, {{make + type, 2, 12}, {make + value, 4, 272}}, accepted, "!Make"},
    {plain, {{make + value, 4, 273}}, "value over, offset 273 tiff size: 272", "!Make"},
    {plain, {{make + count, 4, ~0U}}, accepted, "Make=ACME:186,"},
    {plain, {{resolution + value, 4, 268}}, accepted, "!XRes"},
    {plain, {{exif_pointer + type, 2, 13}, {exif_pointer + count, 4, 0x40000001}}, accepted, "Exp"},
    {plain, {{exif_pointer + value, 4, 272}}, "exif_ifd_offset size exceed: 272 > 272", "!Exp"},
    {plain, {{exif_pointer + value, 4, 271}}, "exif ifd size exceed: 275 > 272", "!Exp"},
    {plain, {{124, 2, 13}}, "exif ifd size exceed: 284 > 272", "!Exp"},
    {plain, {{exposure + value, 4, ~0U}}, outside + "4294967295, 8, tiff size: 272", "!Exp"},
    {plain, {{program + type, 2, 14}}, accepted, "!Bias"},
    {plain, {{date + count, 4, 19}}, accepted, "!DateTimeOriginal"},
    {plain, {{216, 2, 0x4141}}, accepted, "07:08:0A:20,"},
    {plain, {{118, 2, 23}}, "gps_ifd size exceed: 280 > 272", "Bias"},
    {plain, {{gps_pointer + value, 4, ~0U}, {gps_pointer + value, 4, 260}}, accepted, "Bias"},
    {plain, {{82, 4, 0}, {82, 4, ~1U}, {82, 4, 8}}, accepted, "!thumbnail"},
    {plain, {{228 + type, 2, 14}, {240 + value, 4, ~0U}}, accepted, "!thumbnail"},
    {plain, {{226, 2, 60000}, {252 + value, 4, ~0U}}, accepted, "thumbnail=\xFF\xD8\xFF\xD9:4,"},
    {oly, {{maker_note + count, 4, 38}}, accepted, "100C=72/1,"},
    {oly, {{maker_note + count, 4, 37}}, "olympus ifd: 3: size 38 over than ifd.size(29).", "!100"},
    {oly, {{n + 8, 2, 4}}, "olympus ifd: 4: size 50 over than ifd.size(38).", "!100C"},
    {oly, {{n + 8, 2, 0}}, silently, "!100C"},
    {oly, {{n + 22 + value, 4, 311}, {n + 22 + value, 4, ~0U}}, accepted, "4,1015=13,"},
    {oly, {{n + 34 + type, 2, 14}}, silently, "100C=72/1,"},
    {bare, {{n, 2, 4}}, "olympus ifd: 4: size 50 over than ifd.size(38).", "!100C"},
    {bare, {{n, 2, 0}}, accepted, "!100C"},
    {om, {{maker_note + count, 4, 16}, {n + 30 + type, 2, 14}}, silently, "!0203"},
    {om, {{n + 16, 2, 11}}, "olympus3 ifd: 11: size 134 over than ifd.size(130).", "!0203"},
    {om, {{n + 18 + count, 4, 64}}, "olympus3 ifd: 3: [0]: 54, 256: app1 size: 146 over.", "!0203"},
    {om, {{n + 18 + count, 4, 2}}, accepted, "!0203"},
    {om, {{n + 18 + value, 4, 145}}, equipment + "0: size 2 over than ifd.size(1).", "!0500"},
    {om, {{n + 18 + value, 4, ~0U}, {n + 56 + type, 2, 14}}, accepted, "4,0500=21,"},
    {om, {{n + 54, 2, 8}}, equipment + "8: size 98 over than ifd.size(92).", "!0500"},
    {om, {{n + 56 + value, 4, 141}}, equipment + "1: [0]: 141, 6: app1 size: 146 over.", "!0500"},
    {om, {{n + 68, 2, 7}}, settings + "7: size 86 over than ifd.size(78).", "!031B"},
    {om, {{n + 94, 2, 5}}, focus + "5: size 62 over than ifd.size(52).", "0500=21,"},
    {om, {{n + 108 + value, 4, 139}}, focus + "3: [1]: 139, 8: app1 size: 146 over.", "!031B"},
    {pentax, {{maker_note + count, 4, 10}}, silently, "!000D"},
    {pentax, {{n + 10, 2, 4}}, "pentax5 ifd: 4: size 50 over than ifd.size(46).", "!000D"},
    {pentax, {{n + 36 + value, 4, 49}}, "pentax5 ifd: 3: [2]: 49, 8: app1 size: 56 over.", "000D"},
    {pentax, {{n + 24 + type, 2, 14}}, silently, "000D=41,"},
};

TEST(exif, holds_each_rule_and_says_which) {
    char const* const makers[] = {"ACME", "OLYMPUS", "OLYMPUS", "OM Digital Solutions", "RICOH"};
    for (rule_t const& rule : rules) {
        for (std::size_t i = 0; i < 2 * rule.pokes.size(); ++i) {
            poke_t const& poke = rule.pokes[i / 2];
            block_t block = good_block(i % 2 == 0, makers[rule.note], rule.note);
            block.poke(poke);
            auto const [refusal, fields] = outcome_of(block.app1());
            EXPECT_EQ(refusal, rule.refusal) << poke.value << " at " << poke.at;
            bool const absent = rule.has[0] == '!';
            EXPECT_NE(fields.find(rule.has.substr(absent)) != std::string::npos, absent)
                << poke.value << " at " << poke.at << ": " << rule.has << " in " << fields;
        }
    }
}

TEST(exif, looks_at_nothing_but_exif_and_forgets_a_file_on_clear) {
    std::string const payload = good_block(true, "OLYMPUS", oly).app1();
    app1_marker_t app1;
    jpeg_bytes_t const window = window_of(payload);
    app1.set_app1_buffer(window);
    EXPECT_TRUE(app1.parse());
    app1.clear();
    EXPECT_EQ(window.refcount(), 1U) << "a view of the file is left";
    EXPECT_EQ(summary(app1.tiff_header), "");
    for (std::string const other : {"", "Exif", "exif\0\0II*\0"}) {
        EXPECT_EQ(outcome_of(other), std::pair(silently, std::string())) << other;
    }
    EXPECT_EQ(outcome_of(payload.substr(0, 13)).first, "too few tiff header size.");
}

TEST(exif, stops_in_an_ifd_that_is_shorter_than_its_entries) {
    app1_marker_t::tiff_header_t header;
    std::string const bytes = good_block(true, "ACME", plain).bytes;
    header.set_tiff_buffer(window_of(bytes));
    ASSERT_TRUE(header.parse());
    capture_t captured;
    EXPECT_FALSE(header.parse_exif_ifd(window_of(bytes.substr(124, 25))));
    EXPECT_EQ(captured.err(), "too few ifd area26 > 25\n");
    EXPECT_FALSE(header.parse_0th_ifd(window_of(bytes.substr(8, 21))));
    EXPECT_EQ(captured.err(), "value over, offset: 22 ifd size: 21\n");
}

}  // namespace
