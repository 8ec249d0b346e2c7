// SPDX-License-Identifier: MIT
// The parser for the TIFF header and the 0th, Exif and 1st IFD of an Exif block.
#include "metadata/exif.h"

#include <string_view>

#include "metadata/ifdwalk.h"
#include "metadata/makernotes.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

using libutils::report_error;

using tiff_header_t = app1_marker_t::tiff_header_t;

constexpr std::size_t tiff_offset = 6;  // after "Exif" and two NULs

constexpr ifd_rules_t zeroth_rules = {ifd_checks_t::zeroth, unknown_type_t::skip};
constexpr ifd_rules_t exif_rules = {ifd_checks_t::exif, unknown_type_t::stop};
constexpr ifd_rules_t first_rules = {ifd_checks_t::none, unknown_type_t::stop};

using zeroth_t = ExifType::tag_0th_ifd;
constexpr tag_row_t<zeroth_t> zeroth_tags[] = {
    {0x010E, &zeroth_t::ImageDescription},
    {0x010F, &zeroth_t::Make},
    {0x0110, &zeroth_t::Model},
    {0x0112, &zeroth_t::Orientation},
    {0x011A, &zeroth_t::XResolution},
    {0x011B, &zeroth_t::YResolution},
    {0x0128, &zeroth_t::ResolutionUnit},
    {0x0131, &zeroth_t::Software},
    {0x0132, &zeroth_t::DateTime},
    {0x0213, &zeroth_t::YCbCrPositioning},
    {0x8769, &zeroth_t::ExifIFDPointer},
    {0x8825, &zeroth_t::GPSInfoIFDPointer},
};

using exif_t = ExifType::tag_exif_ifd;
constexpr tag_row_t<exif_t> exif_tags[] = {
    {0x829A, &exif_t::ExposureTime},
    {0x829D, &exif_t::FNumber},
    {0x8822, &exif_t::ExposureProgram},
    {0x8827, &exif_t::ISOSpeedRatings},
    {0x8831, &exif_t::StandardOutputSensitivity},
    {0x8833, &exif_t::ISOSpeed},
    {0x9003, &exif_t::DateTimeOriginal, 20},
    {0x9004, &exif_t::DateTimeDigitized, 20},
    {0x9202, &exif_t::ApertureValue},
    {0x9204, &exif_t::ExposureBiasValue},
    {0x9205, &exif_t::MaxApertureValue},
    {0x9207, &exif_t::MeteringMode},
    {0x9209, &exif_t::Flash},
    {0x920A, &exif_t::FocalLength},
    {0x927C, &exif_t::MakerNote},
    {0xA001, &exif_t::ColorSpace},
    {0xA403, &exif_t::WhiteBalance},
    {0xA405, &exif_t::FocalLengthIn35mmFilm},
    {0xA408, &exif_t::Contrast},
    {0xA409, &exif_t::Saturation},
    {0xA40A, &exif_t::Sharpness},
};

using first_t = ExifType::tag_1st_ifd;
constexpr tag_row_t<first_t> first_tags[] = {
    {0x0201, &first_t::JPEGInterchangeFormat},
    {0x0202, &first_t::JPEGInterchangeFormatLength},
};

/// Returns the size that the 0th, Exif, GPS and 1st IFD with `n` entries must have. It includes
/// only half of the offset of the next IFD, because existing files depend on it.
std::size_t plain_ifd_size(std::size_t n) {
    return ifd_size(n) + 2;
}

/// Returns a view of the IFD at an offset in the TIFF block.
jpeg_bytes_t ifd_at(tiff_header_t const& header, std::uint64_t offset) {
    return subview(header, offset, plain_ifd_size(short_at(header, offset, *header.byteorder)));
}

bool read_exif_ifd(tiff_header_t& header) {
    if (header.tag_0th_ifd.ExifIFDPointer.empty()) {
        return true;
    }
    std::uint64_t const offset = header.tag_0th_ifd.ExifIFDPointer[0];
    if (header.size() <= offset) {
        return report_error("exif_ifd_offset size exceed: ", offset, " > ", header.size());
    }
    std::uint64_t const end = offset + plain_ifd_size(short_at(header, offset, *header.byteorder));
    if (header.size() < end) {
        return report_error("exif ifd size exceed: ", end, " > ", header.size());
    }
    header.ifd_exif = ifd_at(header, offset);
    return header.parse_exif_ifd(header.ifd_exif);
}

bool set_gps_ifd(tiff_header_t& header) {
    if (header.tag_0th_ifd.GPSInfoIFDPointer.empty()) {
        return true;
    }
    std::uint64_t const offset = header.tag_0th_ifd.GPSInfoIFDPointer[0];
    // The offset isn't checked, because existing files depend on it.
    std::size_t const size = plain_ifd_size(short_at(header, offset, *header.byteorder));
    if (header.size() < size) {
        return report_error("gps_ifd size exceed: ", size, " > ", header.size());
    }
    header.ifd_gps = ifd_at(header, offset);
    return true;
}

}  // namespace

void tiff_header_t::set_tiff_buffer(jpeg_bytes_t const& block) {
    jpeg_bytes_t::operator=(block);
    for (jpeg_bytes_t* const view :
         {&ifd_0th, &ifd_exif, &ifd_gps, &ifd_1st, &ifd_olympus3_equipment,
          &ifd_olympus3_camerasettings, &ifd_olympus3_focusinfo}) {
        view->clear();
    }
}

bool tiff_header_t::is_intel() const {
    return has_prefix(*this, "II");
}

bool tiff_header_t::is_motorola() const {
    return has_prefix(*this, "MM");
}

void tiff_header_t::clear() {
    *this = tiff_header_t();
}

bool tiff_header_t::parse() {
    if (size() < 8) {
        return report_error("too few tiff header size.");
    }
    byteorderclear();
    if (is_intel()) {
        byteorder = std::make_unique<libutils::intel_byteorder>();
    } else if (is_motorola()) {
        byteorder = std::make_unique<libutils::motorola_byteorder>();
    } else {
        return report_error("byteorder mark not recognized.");
    }
    if (short_at(*this, 2, *byteorder) != 42) {
        return report_error("not tiff(0x00, 0x2a).");
    }
    std::uint64_t const zeroth = long_at(*this, 4, *byteorder);
    ifd_0th = ifd_at(*this, zeroth);
    if (!parse_0th_ifd(ifd_0th)) {
        return false;
    }
    std::uint64_t const next = zeroth + ifd_size(short_at(*this, zeroth, *byteorder));
    std::uint64_t const first = long_at(*this, next, *byteorder);
    if (first != 0) {
        ifd_1st = ifd_at(*this, first);
        parse_1st_ifd(ifd_1st);
    }
    return true;
}

bool tiff_header_t::parse_0th_ifd(jpeg_bytes_t const& ifd) {
    return collect_tags(zeroth_rules, ifd, *this, byteorder.get(), zeroth_tags, tag_0th_ifd) &&
           read_exif_ifd(*this) && set_gps_ifd(*this) && read_maker_note(*this);
}

bool tiff_header_t::parse_exif_ifd(jpeg_bytes_t const& ifd) {
    return collect_tags(exif_rules, ifd, *this, byteorder.get(), exif_tags, tag_exif_ifd);
}

bool tiff_header_t::parse_gps_ifd(jpeg_bytes_t const&) {
    return true;
}

bool tiff_header_t::parse_1st_ifd(jpeg_bytes_t const& ifd) {
    collect_tags(first_rules, ifd, *this, byteorder.get(), first_tags, tag_1st_ifd);
    if (!tag_1st_ifd.JPEGInterchangeFormat.empty() &&
        !tag_1st_ifd.JPEGInterchangeFormatLength.empty()) {
        thumbnail = subview(*this, tag_1st_ifd.JPEGInterchangeFormat[0],
                            tag_1st_ifd.JPEGInterchangeFormatLength[0]);
    }
    return true;
}

void app1_marker_t::set_app1_buffer(jpeg_bytes_t const& payload) {
    jpeg_bytes_t::operator=(payload);
}

bool app1_marker_t::is_exif() const {
    return has_prefix(*this, std::string_view("Exif\0", 5));
}

bool app1_marker_t::parse() {
    if (!is_exif()) {
        return false;
    }
    tiff_header.set_tiff_buffer(subview(*this, tiff_offset, to_end));
    return tiff_header.parse();
}

void app1_marker_t::clear() {
    jpeg_bytes_t::clear();
    tiff_header.clear();
}

}  // namespace libgr
