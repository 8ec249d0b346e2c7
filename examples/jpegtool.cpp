// SPDX-License-Identifier: MIT
// Lists the segments of a JPEG file, and rotates it without loss: an example of codecs/ and
// metadata/.
//
// - `jpeg_bytes_t` is a view of shared bytes. Copies of it do not copy the bytes.
// - Functions that fail return false. Some of them print a line on the error stream.
// - Every size in a file is compared with the size of the file before it is used.
#include <algorithm>
#include <clocale>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "codecs/jpegdata.h"
#include "codecs/jpeginfo.h"
#include "codecs/jtransform.h"
#include "metadata/exif.h"
#include "metadata/jpegmarkers.h"
#include "utils/diagnostics.h"

namespace {

using namespace libgr;
using libutils::putname;

struct segment_t {
    unsigned long at;  ///< offset in the file
    unsigned char code;
    jpeg_bytes_t payload;  ///< the bytes after the length field
};

/// Returns the marker segments in the order of the file. Stops at a segment with an invalid length
/// (ITU-T T.81, B.1).
std::vector<segment_t> segments_of(jpegdata_t const& data) {
    std::vector<segment_t> segments;
    bool const begins = data.size() > 2 && data[0] == 0xFF && data[1] == 0xD8;
    unsigned long at = 0;
    while (begins && at + 1 < data.size()) {
        unsigned char const code = data[at + 1];
        bool const is_marker = data[at] == 0xFF && code != 0x00 && code != 0xFF;
        if (!is_marker) {
            ++at;  // entropy-coded data, or a fill byte
            continue;
        }
        segment_t segment{at, code, data};
        bool const has_no_length = code == 0x01 || (code >= 0xD0 && code <= 0xD9);
        if (has_no_length) {
            segment.payload.count = 0;
            at += 2;
        } else {
            unsigned long const left = data.size() - at - 2;
            unsigned long const length = left < 2 ? 0 : data[at + 2] * 256UL + data[at + 3];
            if (length < 2 || length > left) {
                break;
            }
            segment.payload.offset = data.offset + at + 4;
            segment.payload.count = length - 2;
            at += 2 + length;
        }
        segments.push_back(segment);
        if (code == 0xD9) {
            break;
        }
    }
    return segments;
}

std::string name_of(unsigned char code) {
    struct row_t {
        unsigned char first, last;
        char const* name;  ///< without its number, if there are several
    };
    constexpr row_t command_rows[] = {
        {0xC4, 0xC4, "DHT"}, {0xC8, 0xC8, "JPG"}, {0xCC, 0xCC, "DAC"}, {0xC0, 0xCF, "SOF"},
        {0xD0, 0xD7, "RST"}, {0xD8, 0xD8, "SOI"}, {0xD9, 0xD9, "EOI"}, {0xDA, 0xDA, "SOS"},
        {0xDB, 0xDB, "DQT"}, {0xDC, 0xDC, "DNL"}, {0xDD, 0xDD, "DRI"}, {0xE0, 0xEF, "APP"},
        {0xFE, 0xFE, "COM"},
    };
    for (row_t const& row : command_rows) {
        if (code >= row.first && code <= row.last) {
            return row.first == row.last ? row.name : row.name + std::to_string(code - row.first);
        }
    }
    return "?";
}

/// Parses a segment with its class and prints its fields. All classes have the same functions
/// except for the one that sets the bytes.
template <typename marker_t>
bool describe(jpeg_bytes_t const& payload, void (marker_t::*set_buffer)(jpeg_bytes_t const&)) {
    marker_t marker;
    (marker.*set_buffer)(payload);
    bool const good = marker.parse();
    if (good) {
        marker.dump();
    }
    return good;
}

/// Returns a text up to its first NUL, with control characters replaced.
std::string printable(std::string const& text) {
    std::string shown = text.substr(0, text.find('\0'));
    std::ranges::replace_if(
        shown, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
    return shown;
}

bool print_exif(jpeg_bytes_t const& payload) {
    auto const* const begin = payload.begin();
    if (std::string(begin, begin + std::min(payload.size(), 4UL)) != "Exif") {
        return true;  // APP1 can also be XMP
    }
    app1_marker_t app1;
    app1.set_app1_buffer(payload);
    if (!app1.parse()) {
        return false;
    }
    // Missing values are empty vectors or texts.
    auto const print_text = [](char const* name, std::string const& text) {
        if (!text.empty()) {
            std::cout << name << ": " << printable(text) << "\n";
        }
    };
    auto const print_number = [](char const* name, auto const& values) {
        if (!values.empty()) {
            std::cout << name << ": " << values[0] << "\n";
        }
    };
    auto const print_ratio = [](char const* name, auto const& values) {
        if (!values.empty()) {
            std::cout << name << ": " << values[0].numerator << "/" << values[0].denominator
                      << "\n";
        }
    };
    auto const& picture = app1.tiff_header.tag_0th_ifd;
    auto const& shot = app1.tiff_header.tag_exif_ifd;
    print_text("make", picture.Make);
    print_text("model", picture.Model);
    print_number("orientation", picture.Orientation);
    print_text("taken", shot.DateTimeOriginal);
    print_ratio("exposure time", shot.ExposureTime);
    print_ratio("f-number", shot.FNumber);
    print_number("sensitivity", shot.ISOSpeedRatings);
    print_ratio("focal length", shot.FocalLength);
    return true;
}

/// Prints the fields of a segment. The classes for Huffman tables and scans support only baseline
/// pictures, so these segments of other pictures are only listed.
bool print_contents(segment_t const& segment, bool is_baseline) {
    switch (segment.code) {
        case 0xC0:
            return describe(segment.payload, &sof0_marker_t::set_sof0_buffer);
        case 0xC4:
            return !is_baseline || describe(segment.payload, &dht_marker_t::set_dht_buffer);
        case 0xDA:
            return !is_baseline || describe(segment.payload, &sos_marker_t::set_sos_buffer);
        case 0xDB:
            return describe(segment.payload, &dqt_marker_t::set_dqt_buffer);
        case 0xDD:
            return describe(segment.payload, &dri_marker_t::set_dri_buffer);
        case 0xE1:
            return print_exif(segment.payload);
        default:
            return true;
    }
}

int list(char const* path, jpegdata_t const& data) {
    std::vector<segment_t> const segments = segments_of(data);
    bool const is_baseline =
        std::ranges::any_of(segments, [](segment_t const& one) { return one.code == 0xC0; });
    bool good = true;
    for (auto segment = segments.begin(); segment != segments.end();) {
        // Print one line for all restart markers of a scan.
        auto const last = std::find_if(segment, segments.end(), [](segment_t const& one) {
            return one.code < 0xD0 || one.code > 0xD7;
        });
        auto const next = last == segment ? std::next(segment) : last;
        std::cout << std::setw(9) << segment->at << "  " << std::left << std::setw(6)
                  << name_of(segment->code) << std::right << std::setw(6) << segment->payload.size()
                  << " bytes";
        if (next - segment > 1) {
            std::cout << ", and " << next - segment - 1 << " more";
        }
        std::cout << "\n";
        if (!print_contents(*segment, is_baseline)) {
            std::cerr << putname(path) << ": the " << name_of(segment->code) << " at "
                      << segment->at << " cannot be parsed\n";
            good = false;
        }
        segment = next;
    }
    if (segments.empty() || segments.back().code != 0xD9) {
        std::cerr << putname(path) << ": not a complete JPEG file\n";
        good = false;
    }
    return good && std::cout.flush() ? 0 : 1;
}

/// Changes the picture and writes it to `path`. Only the colour profile is copied. Other segments
/// are not, because the Exif orientation would be wrong.
int write_changed(JXFORM_CODE change, char const* from, jpegdata_t const& data, char const* path) {
    namespace fs = std::filesystem;
    std::error_code none;
    fs::file_status const status = fs::symlink_status(path, none);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        std::cerr << putname(path) << ": exists and is not a regular file\n";
        return 1;
    }
    jpeg_transform_info request;
    request.transform = change;
    jpegdata_t changed;
    if (!transform(request, JCOPY_ICC, changed, data)) {
        std::cerr << putname(from) << ": not a complete JPEG file, nothing is written\n";
        return 1;
    }
    // `save` replaces an existing file when the new one is complete. It may be the source.
    if (!changed.save(path, nullptr)) {
        std::cerr << putname(path) << ": cannot be written\n";
        return 1;
    }
    return 0;
}

/// Returns the operation that makes the picture upright, from its Exif orientation.
JXFORM_CODE upright_change(jpegdata_t const& data) {
    // For the values 1 to 8 (Exif 2.3, tag 0x0112).
    constexpr JXFORM_CODE operations[] = {JXFORM_NONE,       JXFORM_FLIP_H,    JXFORM_ROT_180,
                                          JXFORM_FLIP_V,     JXFORM_TRANSPOSE, JXFORM_ROT_90,
                                          JXFORM_TRANSVERSE, JXFORM_ROT_270};
    jpeginfo_t info;  // reads the header with libjpeg
    app1_marker_t app1;
    if (!info.analyze_markers(data)) {
        return JXFORM_NONE;
    }
    app1.set_app1_buffer(info.get_marker(MARKER_APP1));
    auto const& orientation = app1.tiff_header.tag_0th_ifd.Orientation;
    bool const is_known = app1.parse() && !orientation.empty() && orientation[0] >= 1 &&
                          orientation[0] <= std::size(operations);
    return is_known ? operations[orientation[0] - 1] : JXFORM_NONE;
}

int usage() {
    std::cerr
        << "usage: jpegtool list FILE          list the segments of the file\n"
           "       jpegtool turn N FILE OUT    rotate by N quarter turns to the right, 0 to 3\n"
           "       jpegtool upright FILE OUT   make upright by the Exif orientation\n"
           "OUT may be FILE. The colour profile is copied, other APPn and comments are not.\n";
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_CTYPE, "");
    libutils::escape_names_on_terminals();
    constexpr JXFORM_CODE rotations[] = {JXFORM_NONE, JXFORM_ROT_90, JXFORM_ROT_180,
                                         JXFORM_ROT_270};
    std::vector<char const*> const words(argv + 1, argv + argc);
    std::string const command = words.empty() ? "" : words[0];
    bool const lists = command == "list" && words.size() == 2;
    bool const turns = command == "turn" && words.size() == 4 && std::strlen(words[1]) == 1 &&
                       words[1][0] >= '0' && words[1][0] <= '3';
    bool const uprights = command == "upright" && words.size() == 3;
    if (!lists && !turns && !uprights) {
        return usage();
    }
    char const* const path = words[turns ? 2 : 1];
    jpegdata_t data;
    if (!data.load(path, nullptr)) {
        std::cerr << putname(path) << ": cannot be read\n";
        return 1;
    }
    if (lists) {
        return list(path, data);
    }
    return write_changed(turns ? rotations[words[1][0] - '0'] : upright_change(data), path, data,
                         words.back());
}
