// SPDX-License-Identifier: MIT
// The parsers for the makers' notes: IFDs with the maker's own tags, in the Exif tag MakerNote.
#include "metadata/makernotes.h"

#include <strings.h>

#include <string_view>

#include "metadata/ifdwalk.h"

namespace libgr {

namespace {

using tiff_header_t = app1_marker_t::tiff_header_t;

constexpr ifd_rules_t note_rules(char const* name) {
    return {ifd_checks_t::note, unknown_type_t::fail, name};
}

constexpr ifd_rules_t olympus_rules = {ifd_checks_t::note, unknown_type_t::fail,
                                       "olympus ifd: ", true};
constexpr ifd_rules_t olympus3_rules = note_rules("olympus3 ifd: ");
constexpr ifd_rules_t equipment_rules = {ifd_checks_t::note, unknown_type_t::stop,
                                         "olympus3 equipment ifd: "};
constexpr ifd_rules_t camerasettings_rules = note_rules("olympus3 camerasettings ifd: ");
constexpr ifd_rules_t focusinfo_rules = note_rules("olympus3 focusinfo ifd: ");
constexpr ifd_rules_t pentax5_rules = note_rules("pentax5 ifd: ");

using olympus_t = ExifType::tag_olympus_ifd;
constexpr tag_row_t<olympus_t> olympus_tags[] = {
    {0x100B, &olympus_t::tag_0x100B}, {0x100C, &olympus_t::tag_0x100C},
    {0x100F, &olympus_t::tag_0x100F}, {0x1015, &olympus_t::tag_0x1015, 4},
    {0x1029, &olympus_t::tag_0x1029},
};

using equipment_t = ExifType::tag_olympus3_equipment_ifd;
constexpr tag_row_t<equipment_t> equipment_tags[] = {
    {0x0203, &equipment_t::tag_0x0203},
};

using camerasettings_t = ExifType::tag_olympus3_camerasettings_ifd;
constexpr tag_row_t<camerasettings_t> camerasettings_tags[] = {
    {0x0500, &camerasettings_t::tag_0x0500},
    {0x0501, &camerasettings_t::tag_0x0501},
    {0x0804, &camerasettings_t::tag_0x0804},
};

using focusinfo_t = ExifType::tag_olympus3_focusinfo_ifd;
constexpr tag_row_t<focusinfo_t> focusinfo_tags[] = {
    {0x0209, &focusinfo_t::tag_0x0209}, {0x0300, &focusinfo_t::tag_0x0300},
    {0x0301, &focusinfo_t::tag_0x0301}, {0x0303, &focusinfo_t::tag_0x0303},
    {0x0304, &focusinfo_t::tag_0x0304}, {0x0305, &focusinfo_t::tag_0x0305},
    {0x0308, &focusinfo_t::tag_0x0308}, {0x031B, &focusinfo_t::tag_0x031B},
};

using pentax5_t = ExifType::tag_pentax5_ifd;
constexpr tag_row_t<pentax5_t> pentax5_tags[] = {
    {0x000D, &pentax5_t::tag_0x000D},
    {0x0010, &pentax5_t::tag_0x0010},
    {0x0019, &pentax5_t::tag_0x0019},
    {0x001A, &pentax5_t::tag_0x001A},
};

using note_reader_t = bool (tiff_header_t::*)(jpeg_bytes_t const&, jpeg_bytes_t const&);

/// The sub-IFDs of an OM Digital Solutions note, in the order in which they are read.
struct sub_ifd_row_t {
    unsigned short tag;
    jpeg_bytes_t tiff_header_t::*view;
    note_reader_t reader;
};
constexpr sub_ifd_row_t olympus3_sub_ifds[] = {
    {0x2010, &tiff_header_t::ifd_olympus3_equipment, &tiff_header_t::parse_olympus3_equipment_ifd},
    {0x2020, &tiff_header_t::ifd_olympus3_camerasettings,
     &tiff_header_t::parse_olympus3_camerasettings_ifd},
    {0x2050, &tiff_header_t::ifd_olympus3_focusinfo, &tiff_header_t::parse_olympus3_focusinfo_ifd},
};

/// A kind of note: how it is recognized, and the start of the IFD in it.
struct maker_row_t {
    std::string_view make;       ///< start of Make, in any case
    std::string_view signature;  ///< start of the note
    std::size_t start;           ///< bytes
    note_reader_t reader;        ///< null if offsets are relative to the TIFF block
};
constexpr maker_row_t makers[] = {
    {"OLYMPUS", "OLYMP", 8, nullptr},
    {"OLYMPUS", "", 0, nullptr},
    {"OM Digital Solutions", "OM SYSTEM", 16, &tiff_header_t::parse_olympus3_ifd},
    {"RICOH", "PENTAX", 10, &tiff_header_t::parse_pentax5_ifd},
};

bool is_note_of(maker_row_t const& row, std::string const& make, jpeg_bytes_t const& note) {
    return ::strncasecmp(make.c_str(), row.make.data(), row.make.size()) == 0 &&
           has_prefix(note, row.signature);
}

/// Reads an Olympus note from a copy of its IFD.
bool read_copied_note(tiff_header_t& header, maker_row_t const& row, jpeg_bytes_t const& note) {
    std::size_t const n = short_at(note, row.start, *header.byteorder);
    if (row.start != 0 && n == 0) {
        return false;
    }
    jpeg_bytes_t& ifd = header.ifd_maker_note;
    ifd = subview(note, row.start, ifd_size(n));
    // Compares the size of the note, including its signature, with the size of the IFD alone. So
    // the last bytes of the IFD, as many as the signature has, may be missing and read as 0.
    // Existing files depend on this. With more missing bytes, the parser fails.
    bool const is_accepted = note.size() >= ifd_size(n);
    return ifd.resize(is_accepted ? ifd_size(n) : ifd.size(), 0) && header.parse_olympus_ifd(ifd);
}

bool read_note_in_place(tiff_header_t& header, maker_row_t const& row, jpeg_bytes_t const& note) {
    header.ifd_maker_note = subview(note, row.start, jpeg_bytes_t::to_end);
    return note.size() > row.start && (header.*row.reader)(header.ifd_maker_note, note);
}

}  // namespace

bool read_maker_note(tiff_header_t& header) {
    jpeg_bytes_t const note = header.tag_exif_ifd.MakerNote;
    if (note.empty()) {
        return true;
    }
    for (maker_row_t const& row : makers) {
        if (is_note_of(row, header.tag_0th_ifd.Make, note)) {
            return row.reader == nullptr ? read_copied_note(header, row, note)
                                         : read_note_in_place(header, row, note);
        }
    }
    return true;
}

bool tiff_header_t::parse_olympus_ifd(jpeg_bytes_t const& ifd) {
    return collect_tags(olympus_rules, ifd, *this, byteorder.get(), olympus_tags, tag_olympus_ifd);
}

bool tiff_header_t::parse_olympus3_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note) {
    auto const set_view = [&](ifd_entry_t const& entry) {
        for (sub_ifd_row_t const& row : olympus3_sub_ifds) {
            if (row.tag == entry.tag && entry.size == 4) {
                std::uint64_t const at = long_at(entry.value, 0, *byteorder);
                this->*row.view = subview(note, at, ifd_size(short_at(note, at, *byteorder)));
            }
        }
    };
    if (!walk_ifd(olympus3_rules, ifd, note, byteorder.get(), set_view)) {
        return false;
    }
    for (sub_ifd_row_t const& row : olympus3_sub_ifds) {
        if (!(this->*row.view).empty() && !(this->*row.reader)(this->*row.view, note)) {
            return false;
        }
    }
    return true;
}

bool tiff_header_t::parse_olympus3_equipment_ifd(jpeg_bytes_t const& ifd,
                                                 jpeg_bytes_t const& note) {
    return collect_tags(equipment_rules, ifd, note, byteorder.get(), equipment_tags,
                        tag_olympus3_equipment_ifd);
}

bool tiff_header_t::parse_olympus3_camerasettings_ifd(jpeg_bytes_t const& ifd,
                                                      jpeg_bytes_t const& note) {
    return collect_tags(camerasettings_rules, ifd, note, byteorder.get(), camerasettings_tags,
                        tag_olympus3_camerasettings_ifd);
}

bool tiff_header_t::parse_olympus3_focusinfo_ifd(jpeg_bytes_t const& ifd,
                                                 jpeg_bytes_t const& note) {
    return collect_tags(focusinfo_rules, ifd, note, byteorder.get(), focusinfo_tags,
                        tag_olympus3_focusinfo_ifd);
}

bool tiff_header_t::parse_pentax5_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note) {
    return collect_tags(pentax5_rules, ifd, note, byteorder.get(), pentax5_tags, tag_pentax5_ifd);
}

}  // namespace libgr
