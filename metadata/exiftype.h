// SPDX-License-Identifier: MIT
// The records with the values of an Exif block, one for each kind of IFD.
#pragma once

#include <string>
#include <vector>

#include "metadata/jpegcursor.h"

namespace libgr {

/// The record types. The members have the names of the tags in Exif 2.32 (CIPA DC-008, section
/// 4.6). Members without a unit are codes from its tables, for example MeteringMode and Flash.
///
/// A number is a vector of one element, unless its comment specifies two. The vector is empty if
/// the tag is missing or has another size in bytes. The TIFF type isn't checked, because existing
/// files depend on this. For example, Orientation has 2 bytes:
///
///   Value in the file        Bytes  Result
///   one SHORT                2      read
///   two BYTEs                2      read as one SHORT
///   one LONG, or two SHORTs  4      ignored
///
/// Numbers aren't checked: an orientation can be 9, and a denominator can be 0.
///
/// A string has the size of the value in the file, including the NUL at its end: compare and print
/// its `c_str()`. A last byte that isn't a NUL is replaced by one. The string is empty if the tag
/// is missing, and shorter if the payload ends early.
class ExifType {
  public:
    struct rational_t {
        unsigned int numerator;
        unsigned int denominator;
    };
    struct srational_t {
        int numerator;
        int denominator;
    };

    using short_t = std::vector<unsigned short>;
    using long_t = std::vector<unsigned int>;
    using rationals_t = std::vector<rational_t>;
    using srationals_t = std::vector<srational_t>;

    struct tag_0th_ifd {
        std::string ImageDescription;
        std::string Make;
        std::string Model;
        short_t Orientation;      ///< see metadata/exif.h
        rationals_t XResolution;  ///< pixels per ResolutionUnit
        rationals_t YResolution;  ///< pixels per ResolutionUnit
        short_t ResolutionUnit;   ///< 2: inch, 3: centimetre
        std::string Software;
        std::string DateTime;  ///< of the last change, "YYYY:MM:DD HH:MM:SS"
        short_t YCbCrPositioning;
        long_t ExifIFDPointer;     ///< bytes from the start of the TIFF block
        long_t GPSInfoIFDPointer;  ///< bytes from the start of the TIFF block

        void clear() { *this = {}; }
    };

    struct tag_exif_ifd {
        rationals_t ExposureTime;  ///< seconds
        rationals_t FNumber;
        short_t ExposureProgram;
        short_t ISOSpeedRatings;  ///< named PhotographicSensitivity in Exif 2.32
        long_t StandardOutputSensitivity;
        long_t ISOSpeed;
        std::string DateTimeOriginal;    ///< "YYYY:MM:DD HH:MM:SS"; empty if not 20 bytes
        std::string DateTimeDigitized;   ///< "YYYY:MM:DD HH:MM:SS"; empty if not 20 bytes
        rationals_t ApertureValue;       ///< APEX: the f-number is 2^(value / 2)
        srationals_t ExposureBiasValue;  ///< APEX: steps of exposure (EV)
        rationals_t MaxApertureValue;    ///< APEX, as ApertureValue
        short_t MeteringMode;
        short_t Flash;
        rationals_t FocalLength;  ///< millimetres
        jpeg_bytes_t MakerNote;   ///< all bytes of the note; shares the payload's memory
        short_t ColorSpace;
        short_t WhiteBalance;
        short_t FocalLengthIn35mmFilm;  ///< millimetres
        short_t Contrast;
        short_t Saturation;
        short_t Sharpness;

        void clear() { *this = {}; }
    };

    /// Always empty: the parser doesn't read the GPS IFD.
    struct tag_gps_ifd {
        std::string GPSLatitudeRef;
        rationals_t GPSLatitude;
        std::string GPSLongitudeRef;
        rationals_t GPSLongitude;
        rationals_t GPSAltitude;
        rationals_t GPSTimeStamp;
        std::string GPSDateStamp;

        void clear() { *this = {}; }
    };

    /// The position of `thumbnail` (metadata/exif.h). The members of the base class are always
    /// empty, because the parser reads no other tags of the 1st IFD.
    struct tag_1st_ifd : tag_0th_ifd {
        long_t JPEGInterchangeFormat;        ///< bytes from the start of the TIFF block
        long_t JPEGInterchangeFormatLength;  ///< bytes

        void clear() { *this = {}; }
    };

    // The members of the makers' records have the numbers of the tags as names, because the makers
    // don't publish names and meanings.

    struct tag_olympus_ifd {
        short_t tag_0x100B;
        rationals_t tag_0x100C;
        short_t tag_0x100F;
        short_t tag_0x1015;  ///< two values
        short_t tag_0x1029;

        void clear() { *this = {}; }
    };

    struct tag_olympus3_equipment_ifd {
        std::string tag_0x0203;

        void clear() { *this = {}; }
    };

    struct tag_olympus3_camerasettings_ifd {
        short_t tag_0x0500;
        short_t tag_0x0501;
        rationals_t tag_0x0804;

        void clear() { *this = {}; }
    };

    struct tag_olympus3_focusinfo_ifd {
        short_t tag_0x0209;
        short_t tag_0x0300;
        short_t tag_0x0301;
        short_t tag_0x0303;
        short_t tag_0x0304;
        rationals_t tag_0x0305;
        short_t tag_0x0308;
        short_t tag_0x031B;

        void clear() { *this = {}; }
    };

    struct tag_pentax5_ifd {
        short_t tag_0x000D;
        short_t tag_0x0010;
        short_t tag_0x0019;
        short_t tag_0x001A;

        void clear() { *this = {}; }
    };
};

}  // namespace libgr
