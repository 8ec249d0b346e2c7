// SPDX-License-Identifier: MIT
// The parser for the Exif block in the APP1 segment of a JPEG file.
#pragma once

/// Reads the orientation of a JPEG file, with the parser of its markers in codecs/jpeginfo.h:
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
/// The orientation is 1 for an upright picture, and 3, 6 or 8 for a rotated one
/// (codecs/orientation.h). The order of calls is `set_app1_buffer`, `parse`, and `clear` before the
/// next payload. `parse` reads the tags that have members in metadata/exiftype.h, and the notes of
/// these makers. The notes of other makers are ignored.
///
///   Make, in any case       Note begins with     Function              Offsets are relative to
///   OLYMPUS...              OLYMP, or any text   parse_olympus_ifd     the TIFF block
///   OM Digital Solutions... OM SYSTEM            parse_olympus3_ifd    the note
///   RICOH...                PENTAX               parse_pentax5_ifd     the note

#include <memory>

#include "metadata/exiftype.h"
#include "metadata/jpegcursor.h"
#include "utils/byteorder.h"

namespace libgr {

/// The size, in bytes, of one value of each TIFF type (TIFF 6.0, section 2). Values of the types
/// with size 0 (SBYTE, FLOAT and DOUBLE) are ignored.
inline constexpr unsigned int exiftypesize[14] = {0, 1, 1, 2, 4, 8, 0, 1, 2, 4, 8, 0, 0, 4};

/// The payload of an APP1 segment: the bytes after the segment's length field (Exif 2.32, CIPA
/// DC-008). Damaged payloads can't make the parser read outside the payload.
///
/// A function that fails returns false and prints at most one line on the error stream. The records
/// keep the values that were read before the failure, until `clear`. The numbers and strings in the
/// records are copies. All objects that share a payload must be used by one thread.
class app1_marker_t : public jpeg_bytes_t {
  public:
    /// The TIFF block of the payload. Offsets in the file are relative to its start. The views
    /// share the memory of the payload. Only `ifd_maker_note` of an Olympus camera is a copy.
    class tiff_header_t : public jpeg_bytes_t {
      public:
        std::unique_ptr<libutils::byteorder> byteorder;  ///< null before `parse`

        jpeg_bytes_t ifd_0th;
        jpeg_bytes_t ifd_exif;
        jpeg_bytes_t ifd_gps;  ///< located, but not read
        jpeg_bytes_t ifd_1st;
        jpeg_bytes_t ifd_maker_note;
        jpeg_bytes_t ifd_olympus3_equipment;
        jpeg_bytes_t ifd_olympus3_camerasettings;
        jpeg_bytes_t ifd_olympus3_focusinfo;
        jpeg_bytes_t thumbnail;  ///< the embedded JPEG

        ExifType::tag_0th_ifd tag_0th_ifd;
        ExifType::tag_exif_ifd tag_exif_ifd;
        ExifType::tag_gps_ifd tag_gps_ifd;
        ExifType::tag_1st_ifd tag_1st_ifd;
        ExifType::tag_olympus_ifd tag_olympus_ifd;
        ExifType::tag_olympus3_equipment_ifd tag_olympus3_equipment_ifd;
        ExifType::tag_olympus3_camerasettings_ifd tag_olympus3_camerasettings_ifd;
        ExifType::tag_olympus3_focusinfo_ifd tag_olympus3_focusinfo_ifd;
        ExifType::tag_pentax5_ifd tag_pentax5_ifd;

        /// Shares the memory of a TIFF block, and clears the views of all IFDs except
        /// `ifd_maker_note`.
        void set_tiff_buffer(jpeg_bytes_t const& block);

        /// Reads the 0th IFD, the Exif IFD, the maker's note and the 1st IFD. Returns true if all
        /// but the 1st IFD are valid. The 1st IFD describes only the thumbnail, so it isn't
        /// checked.
        bool parse();

        /// Return true if the block begins with "II" (little-endian) or with "MM" (big-endian).
        bool is_intel() const;
        bool is_motorola() const;

        void byteorderclear() { byteorder.reset(); }
        void clear() override;

        // The steps of `parse`, one for each kind of IFD. Applications call `parse`.
        //
        // `ifd` is a view of the IFD; its first two bytes are the number of entries. The offsets in
        // the entries are relative to `note`. Without that parameter, they are relative to
        // the TIFF block. The functions store the values in the record of that kind. They return
        // false if the IFD is invalid, or if `byteorder` is null. `parse_1st_ifd` always returns
        // true. `parse_gps_ifd` does nothing and returns true.

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

    /// Shares the memory of the payload.
    void set_app1_buffer(jpeg_bytes_t const& payload);

    /// Returns true if the payload begins with "Exif" and a NUL.
    bool is_exif() const;

    /// Reads the payload into the records of `tiff_header`. Use the records only if it returns
    /// true. Returns false and prints nothing if the payload isn't Exif.
    bool parse();

    /// Releases the payload's memory and empties all views and records.
    void clear() override;
};

}  // namespace libgr
