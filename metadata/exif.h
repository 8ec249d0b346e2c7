// SPDX-License-Identifier: MIT
// The parser for the Exif block in the APP1 segment of a JPEG file.
#pragma once

/// This example reads the orientation of a JPEG file. The class in codecs/jpeginfo.h finds the
/// segment:
///
/// ```cpp
/// #include "codecs/jpeginfo.h"
/// #include "metadata/exif.h"
///
/// libgr::jpegdata_t file;
/// libgr::jpeginfo_t info;
/// libgr::app1_marker_t app1;
/// if (file.load("a.jpg", nullptr) && info.analyze_markers(file)) {
///     app1.set_app1_buffer(info.get_marker(libgr::MARKER_APP1));
/// }
/// auto const& values = app1.tiff_header.tag_0th_ifd.Orientation;
/// unsigned int const orientation = app1.parse() && !values.empty() ? values[0] : 1;
/// ```
///
/// `get_marker` returns the first APP1 segment. If the segment isn't Exif (it may be XMP), or if
/// `parse` finds damage, `parse` returns false. The orientation is then 1, as in the viewer.
///
/// The orientation is 1 for an upright picture, 3, 6 or 8 for a rotated one (codecs/orientation.h),
/// and 2, 4, 5 or 7 for a mirrored one. Check the range: damaged files have other values.
///
/// The order of calls is `set_app1_buffer`, `parse`, and `clear` before the next payload. `parse`
/// reads the tags that have members in metadata/exiftype.h, and the makers' notes in this table.
/// It ignores other notes. The first row that matches is used. Make is compared without regard to
/// case.
///
///   Make begins with      Note begins with  IFD at byte  Function            Base of offsets
///   OLYMPUS               OLYMP             8            parse_olympus_ifd   TIFF block
///   OLYMPUS               anything          0            parse_olympus_ifd   TIFF block
///   OM Digital Solutions  OM SYSTEM         16           parse_olympus3_ifd  note
///   RICOH                 PENTAX            10           parse_pentax5_ifd   note

#include <memory>

#include "metadata/exiftype.h"
#include "metadata/jpegcursor.h"
#include "utils/byteorder.h"

namespace libgr {

/// The size, in bytes, of one value of each TIFF type (TIFF 6.0, section 2). Indexed by type
/// number, 0 to 13. Entries of the types with size 0 (0, SBYTE, FLOAT and DOUBLE) are ignored.
inline constexpr unsigned int exiftypesize[14] = {0, 1, 1, 2, 4, 8, 0, 1, 2, 4, 8, 0, 0, 4};

/// The payload of an APP1 segment: the bytes after the segment's length field (Exif 2.32, CIPA
/// DC-008). Damaged payloads can't make the parser read outside the payload.
///
/// A function that fails returns false and prints at most one line on the error stream. The line
/// describes the error, but doesn't contain the name of the file. The records keep the values that
/// were read before the failure, until `clear`. The numbers and strings in the records are copies.
/// All objects that share a payload must be used by one thread.
class app1_marker_t : public jpeg_bytes_t {
  public:
    /// The TIFF block of the payload. Offsets in the file are relative to its start. The views
    /// share the memory of the payload, except `ifd_maker_note` of an OLYMPUS camera. That is a
    /// copy, because missing bytes at its end are replaced by zeros.
    class tiff_header_t : public jpeg_bytes_t {
      public:
        std::unique_ptr<libutils::byteorder> byteorder;  ///< null before `parse` and after `clear`

        jpeg_bytes_t ifd_0th;
        jpeg_bytes_t ifd_exif;
        jpeg_bytes_t ifd_gps;  ///< set, but not read
        jpeg_bytes_t ifd_1st;
        jpeg_bytes_t ifd_maker_note;
        jpeg_bytes_t ifd_olympus3_equipment;
        jpeg_bytes_t ifd_olympus3_camerasettings;
        jpeg_bytes_t ifd_olympus3_focusinfo;

        /// The embedded JPEG at the offset in the 1st IFD. Its bytes aren't checked. It is empty if
        /// there is none, or if the offset is outside the TIFF block. If the block ends early, its
        /// size is less than `tag_1st_ifd.JPEGInterchangeFormatLength[0]`.
        jpeg_bytes_t thumbnail;

        ExifType::tag_0th_ifd tag_0th_ifd;
        ExifType::tag_exif_ifd tag_exif_ifd;
        ExifType::tag_gps_ifd tag_gps_ifd;
        ExifType::tag_1st_ifd tag_1st_ifd;
        ExifType::tag_olympus_ifd tag_olympus_ifd;
        ExifType::tag_olympus3_equipment_ifd tag_olympus3_equipment_ifd;
        ExifType::tag_olympus3_camerasettings_ifd tag_olympus3_camerasettings_ifd;
        ExifType::tag_olympus3_focusinfo_ifd tag_olympus3_focusinfo_ifd;
        ExifType::tag_pentax5_ifd tag_pentax5_ifd;

        /// Shares the memory of a TIFF block, and clears the views of the IFDs. Keeps
        /// `ifd_maker_note`, `thumbnail` and the records; only `clear` empties them.
        void set_tiff_buffer(jpeg_bytes_t const& block);

        /// Reads the TIFF header, the 0th IFD, the Exif IFD and the maker's note. Returns true if
        /// they are valid and the GPS IFD isn't larger than the block. A missing IFD or note is
        /// valid. Then reads the 1st IFD without checks, because it describes only the thumbnail.
        bool parse();

        /// Return true if the block begins with "II" (little-endian) or with "MM" (big-endian).
        bool is_intel() const;
        bool is_motorola() const;

        void byteorderclear() { byteorder.reset(); }
        void clear() override;

        // The steps of `parse`, one for each kind of IFD. Applications call `parse`.
        //
        // `ifd` is a view of an IFD, which starts with its 16-bit number of entries. Offsets in
        // the entries are relative to `note`. In functions without `note`, they are relative to the
        // TIFF block. The functions store the values in the record of their kind. They return false
        // if the IFD is invalid, or if `byteorder` is null. `parse_0th_ifd` also reads the Exif IFD
        // and the maker's note. `parse_1st_ifd` always returns true. `parse_gps_ifd` does nothing
        // and returns true.

        bool parse_0th_ifd(jpeg_bytes_t const& ifd);
        bool parse_exif_ifd(jpeg_bytes_t const& ifd);
        bool parse_gps_ifd(jpeg_bytes_t const& ifd);
        bool parse_1st_ifd(jpeg_bytes_t const& ifd);
        bool parse_olympus_ifd(jpeg_bytes_t const& ifd);
        bool parse_olympus3_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note);
        bool parse_olympus3_equipment_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note);
        bool parse_olympus3_camerasettings_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note);
        bool parse_olympus3_focusinfo_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note);
        bool parse_pentax5_ifd(jpeg_bytes_t const& ifd, jpeg_bytes_t const& note);
    };

    tiff_header_t tiff_header;

    /// Shares the memory of the payload. Changes no view and no record of `tiff_header`.
    void set_app1_buffer(jpeg_bytes_t const& payload);

    /// Returns true if the payload begins with "Exif" and a NUL.
    bool is_exif() const;

    /// Reads the payload into the records of `tiff_header`. If it returns false, the records may be
    /// incomplete: don't use them. For example, the viewer doesn't rotate a picture with a damaged
    /// maker's note, even if its orientation was read. If the payload isn't Exif, returns false and
    /// prints nothing.
    bool parse();

    /// Releases the payload's memory and empties all views and records.
    void clear() override;
};

}  // namespace libgr
