// SPDX-License-Identifier: MIT
// Tests of the Exif reader: one good block in both byte orders, cut everywhere, and each rule.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/metadata/exifbytes.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace std::string_view_literals;
using libgr::app1_marker_t;
using libgr::jpeg_bytes_t;

enum e_note { none, signed_olympus, bare_olympus, om_system, pentax };

constexpr unsigned int note_at = 272;
constexpr unsigned int make = 10, orientation = 22, unit = 46, exif_pointer = 58, gps_pointer = 70,
                       exposure = 126, program = 138, bias = 162, note_tag = 174;

constexpr poke_t w16(unsigned int at, unsigned int value) {
    return {at, 2, value};
}
constexpr poke_t w32(unsigned int at, unsigned int value) {
    return {at, 4, value};
}
/// An entry's type and count; its value or offset.
constexpr poke_t type(unsigned int entry, unsigned int value) {
    return w16(entry + 2, value);
}
constexpr poke_t count(unsigned int entry, unsigned int value) {
    return w32(entry + 4, value);
}
constexpr poke_t value(unsigned int entry, unsigned int number) {
    return w32(entry + 8, number);
}

/// Signed Olympus notes have the IFD at 8, bare ones at 0; the offset counts from the TIFF block.
void put_olympus_ifd(block_t& b) {
    b.ifd({{0x100B, 3, 1, 11},
           {0x100C, 5, 1, 110},
           {0x100F, 3, 1, 12},
           {0x1015, 3, 2, 0x000E000D},
           {0x1029, 3, 1, 15}});
}

void put_note(block_t& b, e_note note) {
    switch (note) {
        case none:
            break;
        case signed_olympus:
            put_olympus_ifd(b.text("OLYMP\0\1\0"sv));
            break;
        case bare_olympus:
            put_olympus_ifd(b);
            break;
        case om_system:
            b.text("OM SYSTEM\0\0\0II\3\0"sv);
            b.ifd({{0x2010, 13, 1, 54}, {0x2020, 13, 1, 68}, {0x2050, 4, 1, 106}});
            b.ifd({{0x0203, 2, 6, 204}});                                          // at 54
            b.ifd({{0x0500, 3, 1, 21}, {0x0501, 3, 1, 22}, {0x0804, 5, 1, 210}});  // at 68
            b.ifd({{0x0209, 3, 1, 31},                                             // at 106
                   {0x0300, 3, 1, 32},
                   {0x0301, 3, 1, 33},
                   {0x0303, 3, 1, 34},
                   {0x0304, 3, 1, 35},
                   {0x0305, 5, 1, 210},
                   {0x0308, 3, 1, 36},
                   {0x031B, 3, 1, 37}});
            b.text("LENS1\0"sv).longs({38, 39});  // at 204 and 210, to 218
            break;
        case pentax:
            b.text("PENTAX \0II"sv);
            b.ifd({{0x000D, 3, 1, 41},
                   {0x0010, 3, 1, 42},
                   {0x0019, 3, 1, 43},
                   {0x001A, 3, 1, 44},
                   {0x0001, 5, 1, 72}});
            b.longs({1, 2});  // at 72, to 80
    }
}

/// The good TIFF block; a Make of 24 bytes, and the note, if any, at its end.
block_t good_block(bool intel, std::string maker, e_note note) {
    block_t noted{intel, {}};
    put_note(noted, note);
    auto const note_size = static_cast<unsigned int>(noted.bytes.size());
    maker.resize(24);
    block_t b{intel, intel ? "II" : "MM"};
    b.shorts({42}).longs({8});
    b.ifd({{0x010F, 2, 24, 86},    // at 8
           {0x0112, 3, 1, 6},      // 22
           {0x011A, 5, 1, 110},    // 34
           {0x0128, 3, 1, 2},      // 46
           {0x8769, 4, 1, 124},    // 58
           {0x8825, 4, 1, 118}});  // 70
    b.longs({226}).text(maker).longs({72, 1});
    b.ifd({}).longs({0});                      // GPS, at 118
    b.ifd({{0x829A, 5, 1, 190},                // at 124; 126
           {0x8822, 3, 1, 2},                  // 138
           {0x9003, 2, 20, 198},               // 150
           {0x9204, 10, 1, 218},               // 162
           {0x927C, 7, note_size, note_at}});  // 174
    b.longs({0, 1, 125}).text("2024:05:06 07:08:09\0"sv).longs({0xFFFFFFFF, 3});
    b.ifd({{0x0112, 3, 1, 8}, {0x0201, 4, 1, 268}, {0x0202, 4, 1, 4}});  // 1st, at 226
    return b.longs({0}).text("\xFF\xD8\xFF\xD9").text(noted.bytes);
}

struct outcome_t {
    bool good;
    std::string line, fields;
    bool operator==(outcome_t const&) const = default;
};

outcome_t read_in(std::string const& payload, char margin) {
    capture_t captured;
    std::cerr << std::hex;
    app1_marker_t app1;
    app1.set_app1_buffer(window_of(payload, margin));
    bool const good = app1.parse();
    return {good, captured.err(), summary_t(app1.tiff_header).text()};
}

/// What becomes of a payload. What stands around it may make no difference.
outcome_t outcome_of(std::string const& payload) {
    outcome_t const outcome = read_in(payload, '\xFF');
    EXPECT_EQ(outcome, read_in(payload, '\0')) << "bytes outside the payload were read";
    return outcome;
}

std::string app1_of(block_t const& block) {
    return std::string("Exif\0\0"sv) + block.bytes;
}

std::string const good_fields =
    " Orientation=6, XResolution=72/1, ResolutionUnit=2, ExposureTime=1/125, ExposureProgram=2,"
    " DateTimeOriginal=2024:05:06 07:08:09:20, ExposureBiasValue=-1/3, thumbnail=4 from 255,";

TEST(exif, reads_what_a_good_block_holds_and_the_notes_that_it_knows) {
    struct {
        std::string make;
        e_note note;
        std::string fields;
    } const rows[] = {
        {"ACME", none, ""},
        {"Olympus Imaging", signed_olympus,
         " 100B=11, 100C=72/1, 100F=12, 1015=13, 1015=14, 1029=15,"},
        {"OLYMPUS", bare_olympus, " 100B=11, 100C=72/1, 100F=12, 1015=13, 1015=14, 1029=15,"},
        {"OM DIGITAL SOLUTIONS", om_system,
         " 0203=LENS1:6, 0500=21, 0804=38/39, 0209=31, 0305=38/39, 031B=37,"},
        {"Ricoh", pentax, " 000D=41, 001A=44,"},
        {"RICOH", om_system, ""},
        {"OM Digital Solutions", pentax, ""},
        {"PENTAX", pentax, ""},
    };
    for (auto const& row : rows) {
        for (bool const intel : {true, false}) {
            SCOPED_TRACE(row.make + (intel ? ", Intel" : ", Motorola"));
            outcome_t const expected = {true, "",
                                        " Make=" + row.make + ":24," + good_fields + row.fields};
            outcome_t const outcome = outcome_of(app1_of(good_block(intel, row.make, row.note)));
            EXPECT_EQ(outcome.fields, expected.fields);
            EXPECT_EQ(outcome, expected);
        }
    }
}

TEST(exif, refuses_a_block_that_is_cut_before_its_last_value_with_one_line) {
    for (bool const intel : {true, false}) {
        for (e_note const note : {none, om_system}) {
            std::string const whole = app1_of(good_block(intel, "OM Digital Solutions", note));
            std::size_t const needed = note == none ? 6 + 226 : whole.size();
            for (std::size_t size = 0; size < whole.size(); ++size) {
                outcome_t const outcome = outcome_of(whole.substr(0, size));
                bool const no_count = size == 6 + 8 || size == 6 + 9;
                bool const good = size >= needed || no_count;
                EXPECT_EQ(outcome.good, good) << size;
                EXPECT_EQ(std::ranges::count(outcome.line, '\n'), size < 5 || good ? 0 : 1) << size;
            }
        }
    }
}

char const* const accepted = "";
char const* const silently = "\n";

struct rule_t {
    char const* what;
    std::vector<poke_t> pokes;
    std::string refusal;  ///< the line, or one of the two above
    std::string has;      ///< a field that must be there, or, behind "!", mustn't
};

std::vector<rule_t> const plain_rules = {
    {"magic of the other order", {w16(2, 0x2A00)}, "not tiff(0x00, 0x2a).", "!="},
    {"no mark", {w16(0, 0x6969)}, "byteorder mark not recognized.", "!="},
    {"0th IFD beyond the end", {w32(4, 0xFFFFFFFF)}, accepted, "!="},
    {"0th IFD without entries", {w16(8, 0)}, accepted, "!="},
    {"Orientation as LONG", {type(orientation, 4)}, accepted, "! Orientation"},
    {"Orientation as two BYTEs",
     {type(orientation, 1), count(orientation, 2)},
     accepted,
     " Orientation=6,"},
    {"type 14 is passed over in the 0th IFD", {type(orientation, 14)}, accepted, "! Orientation"},
    {"what follows it is read", {type(make, 14)}, accepted, " Orientation=6,"},
    {"type 13 is known", {type(exif_pointer, 13)}, accepted, " ExposureTime"},
    {"a type without a size", {type(make, 12)}, accepted, "! Make"},
    {"a second Orientation", {w16(unit, 0x0112)}, accepted, " Orientation=2, XRes"},
    {"text beyond the end", {value(make, 273)}, "value over, offset 273 tiff size: 272", "! Make"},
    {"text at the end", {value(make, 272)}, accepted, "! Make"},
    {"text that claims gigabytes", {count(make, 0xFFFFFFFF)}, accepted, " Make=ACME:186,"},
    {"text without a NUL",
     {count(make, 5), w32(86, 0x41414141), w32(90, 0x42424242)},
     accepted,
     " Make=AAAA:5,"},
    {"count times size wraps to 4", {count(exif_pointer, 0x40000001)}, accepted, " ExposureTime"},
    {"value at a wrapping offset",
     {value(exposure, 0xFFFFFFFF)},
     "offset+size over: 4294967295, 8, tiff size: 272",
     "! ExposureTime"},
    {"Exif IFD beyond the end",
     {value(exif_pointer, 272)},
     "exif_ifd_offset size exceed: 272 > 272",
     "! ExposureTime"},
    {"Exif IFD at the last byte",
     {value(exif_pointer, 271)},
     "exif ifd size exceed: 275 > 272",
     "! ExposureTime"},
    {"Exif IFD of too many entries",
     {w16(124, 13)},
     "exif ifd size exceed: 284 > 272",
     "! ExposureTime"},
    {"type 14 ends the Exif IFD", {type(program, 14)}, accepted, "! ExposureProgram"},
    {"with what follows it", {type(program, 14)}, accepted, "! ExposureBiasValue"},
    {"value ends behind the end",
     {value(bias, 265)},
     "offset+size over: 265, 8, tiff size: 272",
     " DateTimeOriginal"},
    {"DateTimeOriginal without its NUL", {count(150, 19)}, accepted, "! DateTimeOriginal"},
    {"GPS IFD beyond the end", {value(gps_pointer, 0xFFFFFFFF)}, accepted, " ExposureBias"},
    {"GPS IFD of too many entries",
     {w16(118, 23)},
     "gps_ifd size exceed: 280 > 272",
     " ExposureBias"},
    {"GPS IFD that begins near the end",
     {value(gps_pointer, 270), w16(270, 22)},
     accepted,
     " ExposureBias"},
    {"no 1st IFD", {w32(82, 0)}, accepted, "! thumbnail"},
    {"1st IFD beyond the end", {w32(82, 0xFFFFFFFE)}, accepted, "! thumbnail"},
    {"1st IFD that is the 0th", {w32(82, 8)}, accepted, "! thumbnail"},
    {"1st IFD of too many entries", {w16(226, 60000)}, accepted, " thumbnail=4"},
    {"type 14 ends the 1st IFD", {type(228, 14)}, accepted, "! thumbnail"},
    {"thumbnail longer than the block", {value(252, 0xFFFFFFFF)}, accepted, " thumbnail=4 "},
    {"thumbnail beyond the end", {value(240, 0xFFFFFFFF)}, accepted, "! thumbnail"},
};

std::vector<rule_t> const signed_olympus_rules = {
    {"a signed note that holds the IFD's size", {count(note_tag, 62)}, accepted, " 1015=14,"},
    {"and one byte less",
     {count(note_tag, 61)},
     "olympus ifd: 5: size 62 over than ifd.size(53).",
     "! 100B"},
    {"a signed note of too many entries",
     {w16(note_at + 8, 6)},
     "olympus ifd: 6: size 74 over than ifd.size(62).",
     "! 100B"},
    {"a signed note without entries", {w16(note_at + 8, 0)}, silently, "! 100B"},
    {"a value beyond the end", {value(note_at + 22, 335)}, accepted, "! 100C"},
    {"its neighbours", {value(note_at + 22, 0xFFFFFFFF)}, accepted, " 100F=12,"},
    {"a type above 13", {type(note_at + 34, 14)}, silently, " 100B=11,"},
};

std::vector<rule_t> const bare_olympus_rules = {
    {"a bare note of too many entries",
     {w16(note_at, 6)},
     "olympus ifd: 6: size 74 over than ifd.size(62).",
     "! 100B"},
    {"a bare note without entries", {w16(note_at, 0)}, accepted, "! 100B"},
    {"a bare note of one byte",
     {count(note_tag, 1)},
     "olympus ifd: 0: size 2 over than ifd.size(1).",
     "! 100B"},
};

std::vector<rule_t> const om_system_rules = {
    {"a note of 16 bytes", {count(note_tag, 16)}, silently, "! 0203"},
    {"too many entries",
     {w16(note_at + 16, 17)},
     "olympus3 ifd: 17: size 206 over than ifd.size(202).",
     "! 0203"},
    {"a pointer of many values",
     {count(note_at + 18, 0x1000)},
     "olympus3 ifd: 3: [0]: 54, 16384: app1 size: 218 over.",
     "! 0203"},
    {"a pointer of two values", {count(note_at + 18, 2)}, accepted, "! 0203"},
    {"a type above 13", {type(note_at + 30, 14)}, silently, "! 0203"},
    {"equipment at the last byte",
     {value(note_at + 18, 217)},
     "olympus3 equipment ifd: 0: size 2 over than ifd.size(1).",
     "! 0500"},
    {"equipment at the end", {value(note_at + 18, 218)}, accepted, " 0500=21,"},
    {"equipment far beyond", {value(note_at + 18, 0xFFFFFFFF)}, accepted, " 0500=21,"},
    {"equipment of too many entries",
     {w16(note_at + 54, 14)},
     "olympus3 equipment ifd: 14: size 170 over than ifd.size(164).",
     "! 0500"},
    {"equipment's text",
     {value(note_at + 56, 213)},
     "olympus3 equipment ifd: 1: [0]: 213, 6: app1 size: 218 over.",
     "! 0500"},
    {"equipment's type ends it", {type(note_at + 56, 14)}, accepted, " 0500=21,"},
    {"camera settings of too many entries",
     {w16(note_at + 68, 13)},
     "olympus3 camerasettings ifd: 13: size 158 over than ifd.size(150).",
     "! 0209"},
    {"camera settings' type", {type(note_at + 82, 14)}, silently, " 0500=21,"},
    {"focus info of too many entries",
     {w16(note_at + 106, 10)},
     "olympus3 focusinfo ifd: 10: size 122 over than ifd.size(112).",
     " 0804=38/39,"},
    {"focus info's value",
     {value(note_at + 168, 211)},
     "olympus3 focusinfo ifd: 8: [5]: 211, 8: app1 size: 218 over.",
     " 0209=31,"},
};

std::vector<rule_t> const pentax_rules = {
    {"a note of 10 bytes", {count(note_tag, 10)}, silently, "! 000D"},
    {"too many entries",
     {w16(note_at + 10, 6)},
     "pentax5 ifd: 6: size 74 over than ifd.size(70).",
     "! 000D"},
    {"a value beyond the end",
     {value(note_at + 60, 73)},
     "pentax5 ifd: 5: [4]: 73, 8: app1 size: 80 over.",
     " 001A=44,"},
    {"a type above 13", {type(note_at + 36, 14)}, silently, " 000D=41,"},
};

TEST(exif, holds_each_rule_and_says_which) {
    struct {
        char const* make;
        e_note note;
        std::vector<rule_t> const& rules;
    } const groups[] = {
        {"ACME", none, plain_rules},
        {"OLYMPUS", signed_olympus, signed_olympus_rules},
        {"OLYMPUS", bare_olympus, bare_olympus_rules},
        {"OM Digital Solutions", om_system, om_system_rules},
        {"RICOH", pentax, pentax_rules},
    };
    for (auto const& group : groups) {
        for (rule_t const& rule : group.rules) {
            for (bool const intel : {true, false}) {
                SCOPED_TRACE(std::string(group.make) + ": " + rule.what);
                block_t block = good_block(intel, group.make, group.note);
                for (poke_t const& poke : rule.pokes) {
                    block.put(poke.at, poke.size, poke.value);
                }
                outcome_t const outcome = outcome_of(app1_of(block));
                EXPECT_EQ(outcome.good, rule.refusal == accepted);
                bool const silent = rule.refusal == accepted || rule.refusal == silently;
                EXPECT_EQ(outcome.line, silent ? "" : rule.refusal + "\n");
                bool const absent = rule.has[0] == '!';
                bool const found =
                    outcome.fields.find(rule.has.substr(absent)) != std::string::npos;
                EXPECT_NE(found, absent) << rule.has << " in" << outcome.fields;
            }
        }
    }
}

TEST(exif, looks_at_nothing_but_exif_and_forgets_a_file_on_clear) {
    std::string const payload = app1_of(good_block(true, "OLYMPUS", signed_olympus));
    app1_marker_t app1;
    jpeg_bytes_t window = window_of(payload);
    app1.set_app1_buffer(window);
    EXPECT_EQ(window.refcount(), 2U);
    EXPECT_TRUE(app1.parse());
    app1.clear();
    EXPECT_EQ(window.refcount(), 1U) << "a view of the file is left";
    EXPECT_EQ(summary_t(app1.tiff_header).text(), "");
    EXPECT_FALSE(app1.parse());
    for (std::string const other : {"", "Exif", "exif\0\0II*\0"}) {
        EXPECT_EQ(outcome_of(other), (outcome_t{false, "", ""})) << other;
    }
    EXPECT_EQ(outcome_of(payload.substr(0, 13)).line, "too few tiff header size.\n");
}

TEST(exif, stops_in_an_ifd_that_is_shorter_than_its_entries) {
    app1_marker_t::tiff_header_t header;
    block_t const block = good_block(true, "ACME", none);
    header.set_tiff_buffer(window_of(block.bytes));
    EXPECT_FALSE(header.parse_exif_ifd(header)) << "no byte order is known";
    ASSERT_TRUE(header.parse());
    header.tag_exif_ifd.clear();
    capture_t captured;
    EXPECT_FALSE(header.parse_exif_ifd(window_of(block.bytes.substr(124, 25))));
    EXPECT_EQ(captured.err(), "too few ifd area26 > 25\n");
    EXPECT_EQ(header.tag_exif_ifd.ExposureTime.size(), 1U);
    EXPECT_TRUE(header.tag_exif_ifd.ExposureProgram.empty());
    EXPECT_FALSE(header.parse_0th_ifd(window_of(block.bytes.substr(8, 13))));
    EXPECT_EQ(captured.err(), "value over, offset: 22 ifd size: 13\n");
}

}  // namespace
