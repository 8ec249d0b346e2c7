// SPDX-License-Identifier: MIT
// The parser for the Exif block in the APP1 segment of a JPEG file.
#pragma once

/// Reads the orientation of a JPEG file:
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
/// `get_marker` (codecs/jpeginfo.h) returns the first APP1 segment, which may also be XMP. The
/// orientation is 1 for an upright picture, 3, 6 or 8 for a rotated one (codecs/orientation.h), and
/// 2, 4, 5 or 7 for a mirrored one. Treat other values, and a failed `parse`, as 1.
///
/// The order of calls is `set_app1_buffer`, `parse`, and `clear` before the next photograph.
/// Without `clear`, a tag that the next photograph doesn't have keeps the old value, for example
/// the old orientation, and an old offset can make `parse` fail. For a TIFF block without "Exif"
/// before it, use a `tiff_header_t`: `set_tiff_buffer`, `parse`, `clear`.
///
/// `parse` reads these parts in this order, and returns false at the first error. A missing IFD or
/// note isn't an error. Existing files depend on these rules.
///
///   Part          Errors
///   payload       it doesn't begin with "Exif" and a NUL
///   TIFF header   less than 8 bytes, neither "II" nor "MM", or no number 42
///   0th IFD       the first 8 bytes of an entry aren't inside the block; a value of more than
///                 4 bytes begins after the block (if it only ends there, it is skipped or cut)
///   Exif IFD      the IFD, the 2 bytes after it, or a value isn't completely inside the block
///   GPS IFD       it is larger than the block (its offset isn't checked)
///   maker's note  the IFD isn't inside the note; a value isn't inside the base in the next table
///                 (OLYMPUS: the value is skipped)
///   1st IFD       none, because it describes only the thumbnail
///
/// An entry with a TIFF type above 13 is skipped in the 0th IFD. It ends the Exif IFD, the 1st IFD
/// and the OM Equipment IFD without an error. In other makers' IFDs, it is an error.
///
/// `parse` stores the tags that have members in metadata/exiftype.h. It reads the makers' notes in
/// this table and ignores other notes. The first row that matches is used. The case of Make is
/// ignored. Notes that begin with "OLYMPUS", a NUL and "II" have no IFD at byte 8 and are errors.
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

/// A parser for the payload of an APP1 segment: the bytes after the segment's length field (Exif
/// 2.32). It never reads bytes outside the payload, even if the payload is damaged.
///
/// A function that fails returns false and prints one line on the error stream (nothing if the
/// payload isn't Exif, and for some errors in makers' notes). The line doesn't contain the name of
/// the file. It is also recorded; see utils/diagnostics.h. The records keep the values that were
/// read before the failure, until `clear`.
///
/// Objects can be moved, but not copied. For threads, see `jpeg_bytes_t` in metadata/jpegcursor.h.
class app1_marker_t : public jpeg_bytes_t {
  public:
    /// The TIFF block of the payload, which starts after "Exif" and two NULs. Offsets in the file
    /// are relative to its start. The views share the memory of the payload, which isn't freed as
    /// long as a copy of a view exists. The numbers and strings in the records are copies.
    class tiff_header_t : public jpeg_bytes_t {
      public:
        std::unique_ptr<libutils::byteorder> byteorder;  ///< null before `parse` and after `clear`

        jpeg_bytes_t ifd_0th;
        jpeg_bytes_t ifd_exif;
        jpeg_bytes_t ifd_gps;  ///< the bytes of the GPS IFD; `parse` reads no tags in it
        jpeg_bytes_t ifd_1st;

        /// The IFD in the maker's note. For OLYMPUS, it is a copy, and up to 8 bytes that are
        /// missing at its end are 0.
        jpeg_bytes_t ifd_maker_note;

        jpeg_bytes_t ifd_olympus3_equipment;
        jpeg_bytes_t ifd_olympus3_camerasettings;
        jpeg_bytes_t ifd_olympus3_focusinfo;

        /// The embedded JPEG picture. `parse` sets it in its last step, so not if it returns false.
        /// It is empty if there is none, or if its offset is outside the block. If the block ends
        /// early, its end is missing. Its bytes aren't checked. To save or decode it, pass it to
        /// `jpegdata_t::setvector` (codecs/jpegdata.h).
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

        /// Shares the memory of a TIFF block, and empties the views of the IFDs. `ifd_maker_note`,
        /// `thumbnail` and the records don't change: call `clear` first.
        void set_tiff_buffer(jpeg_bytes_t const& block);

        /// Reads the block into the records. Returns false at an error in the first table of this
        /// file.
        bool parse();

        /// Return true if the block begins with "II" (little-endian) or with "MM" (big-endian).
        bool is_intel() const;
        bool is_motorola() const;

        void byteorderclear() { byteorder.reset(); }
        void clear() override;

        // The steps of `parse`, one for each kind of IFD. Applications call `parse` instead.
        //
        // `ifd` starts with the 16-bit number of entries. Offsets in the entries are relative to
        // the start of `note`, or of the TIFF block if there is no `note`. Each function stores the
        // values in the record of its kind. It returns false if the IFD is invalid, or if
        // `byteorder` is null. `parse_0th_ifd` also reads the Exif IFD and the maker's note.
        // `parse_1st_ifd` sets `thumbnail` and always returns true. `parse_gps_ifd` does nothing.

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

    /// Shares the memory of the payload. `tiff_header` doesn't change until `parse`.
    void set_app1_buffer(jpeg_bytes_t const& payload);

    /// Returns true if the payload begins with "Exif" and a NUL.
    bool is_exif() const;

    /// Reads the payload into the records of `tiff_header`. Returns false at an error in the first
    /// table of this file. The records may then be incomplete: don't use them. For example, the
    /// viewer then ignores an orientation that was read before the error.
    bool parse();

    /// Empties this object, all views and all records.
    void clear() override;
};

}  // namespace libgr
