// SPDX-License-Identifier: MIT
// Strict parsers for the marker segments of a baseline JPEG file.
#pragma once

/// Prints the fields of a frame header:
///
/// ```cpp
/// #include "metadata/jpegmarkers.h"
///
/// void print(libgr::jpeg_bytes_t const& payload) {
///     libgr::sof0_marker_t frame;
///     frame.set_sof0_buffer(payload);
///     if (frame.parse()) {
///         frame.dump();
///     }
/// }
/// ```
///
/// The payload is the bytes after the segment's length field. The caller has to find the segments
/// in the file. Numbers in segments are big-endian (ITU-T T.81, B.2).

#include <array>
#include <vector>

#include "metadata/jpegcursor.h"

namespace libgr {

// Each parser is a view of a segment's payload and has the same functions:
//
//   set_..._buffer(payload)  Shares the memory of the payload.
//   parse()                  Reads the payload into the fields. If the payload is invalid, prints
//                            one line on the error stream and returns false. The fields keep the
//                            values that were read before the error.
//                            For a second segment, call both functions again. Its values replace
//                            the old ones. Without `clear`, tables (DQT, DHT) with other
//                            destinations are kept.
//   dump()                   Prints the fields on standard output.
//   clear()                  Releases the payload and resets the fields.
//
// The parsers are for tools that examine files. They accept only baseline JPEG as most cameras
// write it: 8-bit samples, 8-bit quantization tables, two DC and two AC tables, and scans with all
// 64 coefficients. The decoder of the viewer doesn't use them and accepts more files.

/// The masks of the bits of a byte, highest bit first.
inline constexpr unsigned char bit_shift_table[8] = {0x80, 0x40, 0x20, 0x10,
                                                     0x08, 0x04, 0x02, 0x01};

/// Maps an index in zigzag order to the index in row-by-row order (T.81, figure A.6).
extern unsigned char const zigzag_to_array[64];

/// The frame header (SOF0).
class sof0_marker_t : public jpeg_bytes_t {
  public:
    struct element_t {
        unsigned char component_id;
        unsigned char horiz_factor;
        unsigned char verts_factor;
        /// Not the quantization table selector: this is the byte two positions after it. Don't use
        /// it to select a table; it is kept because `dump` prints it. For the last component, that
        /// byte is after the segment, and 0 if the memory that the payload shares ends before it.
        unsigned char quatable_sel;
    };

    unsigned char sample_precision = 0;  ///< bits
    unsigned short lines = 0;            ///< height in pixels
    unsigned short samples = 0;          ///< width in pixels
    unsigned char colors = 0;            ///< number of components
    std::vector<element_t> components;
    unsigned short max_horiz = 0;  ///< the largest `horiz_factor`
    unsigned short max_verts = 0;  ///< the largest `verts_factor`

    void set_sof0_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// Quantization tables (DQT). A segment with more than four tables is invalid.
class dqt_marker_t : public jpeg_bytes_t {
  public:
    using table_t = std::array<unsigned char, 64>;

    unsigned char n = 0;                         ///< number of tables in the last segment
    std::array<table_t, 4> table{};              ///< by destination, values row by row
    std::array<unsigned char, 4> destination{};  ///< the destinations in the order of the file

    void set_dqt_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// Huffman tables (DHT). A segment with more than four tables is invalid.
class dht_marker_t : public jpeg_bytes_t {
  public:
    struct entry_t {
        unsigned short code;       ///< in the low bits; `counts` specifies the number of bits
        unsigned char data_bits;   ///< number of bits after the code (SSSS in T.81, F.1.2)
        unsigned char run_length;  ///< number of zero coefficients before this one (RRRR, AC)
    };
    struct table_t {
        std::array<unsigned char, 16> counts{};  ///< numbers of codes with 1 to 16 bits
        std::vector<entry_t> entries;            ///< ordered by length of the code, then by code
    };
    struct class_and_destination_t {
        unsigned char tc;  ///< 0 for a DC table, 1 for an AC table
        unsigned char th;  ///< destination, 0 or 1
    };

    unsigned short length = 0;  ///< always 0, kept because `dump` prints it
    std::array<class_and_destination_t, 4> tables{};
    unsigned char table_count = 0;  ///< number of valid elements of `tables`, from the last segment
    std::array<table_t, 2> dc;
    std::array<table_t, 2> ac;

    void set_dht_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }

  private:
    bool parse_table(jpeg_iterator& cursor);
};

/// The restart interval (DRI).
class dri_marker_t : public jpeg_bytes_t {
  public:
    unsigned short interval = 0;  ///< minimum coded units, 0 for no restarts

    void set_dri_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// The scan header (SOS).
class sos_marker_t : public jpeg_bytes_t {
  public:
    struct element_t {
        unsigned char scan_element_selector;
        unsigned char dc_huffman_table_selector;
        unsigned char ac_huffman_table_selector;
    };

    unsigned char ns = 0;  ///< number of components in the scan
    std::vector<element_t> components;
    unsigned char ss = 0;         ///< first coefficient, 0
    unsigned char se = 0;         ///< last coefficient, 63
    unsigned char ah = 0;         ///< successive approximation, 0
    unsigned char al = 0;         ///< successive approximation, 0
    dht_marker_t* dht = nullptr;  ///< see `set_dht_marker`

    void set_sos_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }

    /// Stores a pointer to the scan's tables in `dht`, for the caller: no function of this class
    /// uses it, and `clear` keeps it. It may be null. The tables aren't owned.
    void set_dht_marker(dht_marker_t* tables) { dht = tables; }
    bool parse();
    void dump() const;
    void clear() override;
};

}  // namespace libgr
