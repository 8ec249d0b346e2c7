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
        /// Read from two bytes after the position in the standard, because existing output depends
        /// on it. For the last component this is after the segment. 0 if the file ends before.
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

/// Quantization tables (DQT).
class dqt_marker_t : public jpeg_bytes_t {
  public:
    using table_t = std::array<unsigned char, 64>;

    unsigned char n = 0;                         ///< number of tables in the segment
    std::array<table_t, 4> table{};              ///< by destination, values row by row
    std::array<unsigned char, 4> destination{};  ///< the destinations in the order of the file

    void set_dqt_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// Huffman tables (DHT).
class dht_marker_t : public jpeg_bytes_t {
  public:
    struct entry_t {
        unsigned short code;
        unsigned char data_bits;
        unsigned char run_length;
    };
    struct table_t {
        std::array<unsigned char, 16> counts{};  ///< numbers of codes with 1 to 16 bits
        std::vector<entry_t> entries;            ///< ordered by code
    };
    struct class_and_destination_t {
        unsigned char tc;  ///< 0 for a DC table, 1 for an AC table
        unsigned char th;  ///< destination, 0 or 1
    };

    unsigned short length = 0;  ///< always 0; existing output depends on it
    std::array<class_and_destination_t, 4> tables{};
    unsigned char table_count = 0;  ///< number of valid elements of `tables`
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
    dht_marker_t* dht = nullptr;  ///< the scan's tables; not owned, not changed by `clear`

    void set_sos_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    void set_dht_marker(dht_marker_t* tables) { dht = tables; }
    bool parse();
    void dump() const;
    void clear() override;
};

}  // namespace libgr
