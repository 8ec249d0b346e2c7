// SPDX-License-Identifier: MIT
// Lists what a JPEG file is made of, and turns it without loss: a tour of codecs/ and metadata/.
//
// Three things to know of the libraries: bytes are shared windows (`jpeg_bytes_t`), so that passing
// a segment on copies nothing; failure is a bool, with a line on the error stream where it needs
// one; and nothing that a file says is believed before it is compared with the file's size.
#include <cstring>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "codecs/jpegdata.h"
#include "codecs/jpeginfo.h"
#include "codecs/jpegtransform.h"
#include "codecs/orientation.h"
#include "metadata/exif.h"
#include "metadata/jpegmarkers.h"

namespace {

using namespace libgr;

struct segment_t {
    unsigned long at;  ///< bytes from the start of the file
    unsigned char code;
    jpeg_bytes_t payload;  ///< behind the two bytes of length; shares the file's bytes
};

/// The marker segments of a file in their order, up to where its structure ends (ITU-T T.81, B.1).
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
        bool const stands_alone = code == 0x01 || (code >= 0xD0 && code <= 0xD9);
        if (stands_alone) {
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
        char const* name;  ///< ends in the number from `first` on where there are several
    };
    constexpr row_t k_rows[] = {
        {0xC4, 0xC4, "DHT"}, {0xC8, 0xC8, "JPG"}, {0xCC, 0xCC, "DAC"}, {0xC0, 0xCF, "SOF"},
        {0xD0, 0xD7, "RST"}, {0xD8, 0xD8, "SOI"}, {0xD9, 0xD9, "EOI"}, {0xDA, 0xDA, "SOS"},
        {0xDB, 0xDB, "DQT"}, {0xDC, 0xDC, "DNL"}, {0xDD, 0xDD, "DRI"}, {0xE0, 0xEF, "APP"},
        {0xFE, 0xFE, "COM"},
    };
    for (row_t const& row : k_rows) {
        if (code >= row.first && code <= row.last) {
            return row.first == row.last ? row.name : row.name + std::to_string(code - row.first);
        }
    }
    return "?";
}

/// Reads a segment by its class and prints what it says. Each class has the same operations, but
/// for the name of the one that takes the bytes.
template <typename marker_t>
void describe(jpeg_bytes_t const& payload, void (marker_t::*set_buffer)(jpeg_bytes_t const&)) {
    marker_t marker;
    (marker.*set_buffer)(payload);
    if (marker.parse()) {
        marker.dump();
    }
}

void print_exif(jpeg_bytes_t const& payload) {
    app1_marker_t app1;
    app1.set_app1_buffer(payload);
    if (!app1.parse()) {
        return;
    }
    // An absent value is an empty vector or text. Texts may end in NULs, so print up to the first.
    auto const print_text = [](char const* name, std::string const& text) {
        if (!text.empty()) {
            std::cout << name << ": " << text.c_str() << "\n";
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
}

bool list(jpegdata_t const& data) {
    std::vector<segment_t> const segments = segments_of(data);
    // The classes read sequential 8-bit pictures. Of others, frame and scans are only named.
    bool is_baseline = false;
    for (segment_t const& segment : segments) {
        is_baseline = is_baseline || segment.code == 0xC0;
        std::cout << std::setw(9) << segment.at << "  " << std::left << std::setw(6)
                  << name_of(segment.code) << std::right << std::setw(6) << segment.payload.size()
                  << " bytes\n";
        switch (segment.code) {
            case 0xC0:
                describe(segment.payload, &sof0_marker_t::set_sof0_buffer);
                break;
            case 0xC4:
                describe(segment.payload, &dht_marker_t::set_dht_buffer);
                break;
            case 0xDA:
                if (is_baseline) {
                    describe(segment.payload, &sos_marker_t::set_sos_buffer);
                }
                break;
            case 0xDB:
                describe(segment.payload, &dqt_marker_t::set_dqt_buffer);
                break;
            case 0xDD:
                describe(segment.payload, &dri_marker_t::set_dri_buffer);
                break;
            case 0xE1:
                print_exif(segment.payload);
                break;
            default:
                break;
        }
    }
    return !segments.empty() && segments.back().code == 0xD9;
}

/// The clockwise quarter turns that make a picture stand upright by its Exif orientation.
unsigned long turns_to_upright(jpegdata_t const& data) {
    jpeginfo_t info;  // reads through libjpeg, here the header alone, and keeps APPn and COM
    app1_marker_t app1;
    if (!info.analyze_markers(data)) {
        return 0;
    }
    app1.set_app1_buffer(info.get_marker(MARKER_APP1));
    bool const has_orientation = app1.parse() && !app1.tiff_header.tag_0th_ifd.Orientation.empty();
    return has_orientation
               ? mixorientandrightrotatecount(0, app1.tiff_header.tag_0th_ifd.Orientation[0])
               : 0;
}

bool turn(unsigned long count, jpegdata_t const& data, char const* path) {
    jpegdata_t turned;
    return transform(count, turned, data) && turned.save(path, nullptr);
}

int usage() {
    std::cerr << "usage: jpegtool list FILE          what the file is made of\n"
                 "       jpegtool turn N FILE OUT    N quarter turns to the right, 0 to 3\n"
                 "       jpegtool upright FILE OUT   as many as the Exif orientation says\n";
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
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
        std::cerr << path << ": can't be read\n";
        return 1;
    }
    bool good = false;
    if (lists) {
        good = list(data);
    } else {
        unsigned long const count =
            turns ? static_cast<unsigned long>(words[1][0] - '0') : turns_to_upright(data);
        good = turn(count, data, words.back());
    }
    if (!good) {
        std::cerr << path << ": not a whole JPEG file, or the output can't be written\n";
    }
    return good ? 0 : 1;
}
