// SPDX-License-Identifier: MIT
// The records with the values of an Exif block, one for each kind of IFD.
#pragma once

#include <string>
#include <vector>

#include "metadata/jpegcursor.h"

namespace libgr {

/// The record types. The members have the names and meanings of Exif 2.32 (CIPA DC-008).
///
/// A numeric tag is a vector of one element, unless its comment says otherwise. The vector is empty
/// if the tag is missing or has another size in bytes. For example, an Orientation stored as LONG
/// is ignored. Values aren't checked: a denominator can be 0.
///
/// A string is empty if the tag is missing. It has the size in the entry, or less if the payload
/// ends early. It may end with several NULs: use `c_str()`. `clear` empties all members.
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
        short_t Orientation;  ///< 1 to 8 in a valid file
        rationals_t XResolution;
        rationals_t YResolution;
        short_t ResolutionUnit;
        std::string Software;
        std::string DateTime;
        short_t YCbCrPositioning;
        long_t ExifIFDPointer;     ///< bytes from the start of the TIFF block
        long_t GPSInfoIFDPointer;  ///< bytes from the start of the TIFF block

        void clear() { *this = {}; }
    };

    struct tag_exif_ifd {
        rationals_t ExposureTime;  ///< seconds
        rationals_t FNumber;
        short_t ExposureProgram;
        short_t ISOSpeedRatings;
        long_t StandardOutputSensitivity;
        long_t ISOSpeed;
        std::string DateTimeOriginal;   ///< "YYYY:MM:DD HH:MM:SS"; empty if not 20 bytes
        std::string DateTimeDigitized;  ///< "YYYY:MM:DD HH:MM:SS"; empty if not 20 bytes
        rationals_t ApertureValue;
        srationals_t ExposureBiasValue;
        rationals_t MaxApertureValue;
        short_t MeteringMode;
        short_t Flash;
        rationals_t FocalLength;  ///< millimetres
        jpeg_bytes_t MakerNote;
        short_t ColorSpace;
        short_t WhiteBalance;
        short_t FocalLengthIn35mmFilm;  ///< millimetres
        short_t Contrast;
        short_t Saturation;
        short_t Sharpness;

        void clear() { *this = {}; }
    };

    /// Reserved: the parser doesn't read the GPS IFD.
    struct tag_gps_ifd {
        std::string GPSLatitudeRef;
        rationals_t GPSLatitude;  ///< degrees, minutes, seconds
        std::string GPSLongitudeRef;
        rationals_t GPSLongitude;  ///< degrees, minutes, seconds
        rationals_t GPSAltitude;   ///< metres
        rationals_t GPSTimeStamp;  ///< hours, minutes, seconds (UTC)
        std::string GPSDateStamp;

        void clear() { *this = {}; }
    };

    /// The members of the base stay empty.
    struct tag_1st_ifd : tag_0th_ifd {
        long_t JPEGInterchangeFormat;        ///< bytes from the start of the TIFF block
        long_t JPEGInterchangeFormatLength;  ///< bytes

        void clear() { *this = {}; }
    };

    // The members of the makers' records are named after the tags. Their meanings aren't documented
    // by the makers.

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
