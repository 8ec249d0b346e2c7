// SPDX-License-Identifier: MIT
// The reader of the Exif block in a JPEG's APP1 segment, with the makers' notes in it.
#pragma once

#include <memory>

#include "metadata/exiftype.h"
#include "metadata/jpegcursor.h"
#include "utils/byteorder.h"

namespace libgr {

/// Bytes of one value of each TIFF type (TIFF 6.0, section 2). A type of size 0 is never read.
inline constexpr unsigned int exiftypesize[14] = {0, 1, 1, 2, 4, 8, 0, 1, 2, 4, 8, 0, 0, 4};

/// An APP1 segment's payload: the bytes behind the segment's length. Nothing in it can make the
/// reader look outside it. A refusal is one line on the error stream, or none, and false; what was
/// read until then stays in the records until `clear`, so `clear` comes before another file.
class app1_marker_t : public jpeg_bytes_t {
  public:
    /// The TIFF block behind "Exif" and two NULs. All offsets in it count from its start. All views
    /// share the payload's bytes, but for the copy of an Olympus note's IFD.
    class tiff_header_t : public jpeg_bytes_t {
      public:
        std::unique_ptr<libutils::byteorder> byteorder;  ///< null until `parse` knows it

        jpeg_bytes_t ifd_0th;
        jpeg_bytes_t ifd_exif;
        jpeg_bytes_t ifd_gps;
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

        /// Takes a TIFF block and drops the views of all IFDs but the maker note's.
        void set_tiff_buffer(jpeg_bytes_t const& block);

        /// Reads the 0th IFD, what it points to, and the 1st IFD. True if the 0th IFD, the Exif IFD
        /// and the maker note were good; what the 1st IFD holds doesn't matter.
        bool parse();

        bool is_intel() const;
        bool is_motorola() const;
        void byteorderclear() { byteorder.reset(); }
        void clear() override;

        // Each takes the view of an IFD: its entry count, then its entries. The notes' readers
        // that take the note as well count offsets from its start, the others from the block's.
        // Without a `byteorder` nothing is read, and all but those of the GPS and 1st IFD, which
        // are always true, are false.

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

    /// Takes a reference on the payload.
    void set_app1_buffer(jpeg_bytes_t const& payload);

    /// Whether the payload begins with "Exif" and a NUL.
    bool is_exif() const;

    /// Reads all that this reader knows. False without a word where the payload isn't Exif. Only
    /// where it is true do the records speak for the picture: see `tiff_header.tag_0th_ifd`.
    bool parse();

    void clear() override;
};

}  // namespace libgr
