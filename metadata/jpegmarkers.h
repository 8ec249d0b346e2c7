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
/// The payload is the bytes after the segment's length field (ITU-T T.81, B.2). For a function that
/// finds the segments in a file, see examples/jpegtool.cpp.

#include <array>
#include <vector>

#include "metadata/jpegcursor.h"

namespace libgr {

// Each parser is a view of a segment's payload and has the same functions. For threads, see
// `jpeg_bytes_t` in metadata/jpegcursor.h.
//
//   set_..._buffer(payload)  Shares the memory of the payload.
//   parse()                  Reads the payload into the fields. If the payload is invalid, prints
//                            one line on the error stream and returns false. The fields keep the
//                            values that were read before the error.
//   dump()                   Prints the fields on standard output.
//   clear()                  Releases the payload and resets the fields.
//
// If a file has several DQT or DHT segments, call set_..._buffer and parse of one object for each
// segment. A new table replaces the table with the same destination. Call `clear` before the next
// file, because the other tables are kept.
//
// The parsers are intended for tools. The decoder of the viewer accepts more files. Payloads that
// end early are invalid, and also these:
//
//   Segment (code)  Invalid
//   SOF0 (0xC0)     precision other than 8 bits; sampling factor 0, or not a divisor of the largest
//   DQT (0xDB)      no table, more than 4 tables, 16-bit values, destination above 3
//   DHT (0xC4)      more than 4 tables, destination above 1, class above 1, more than 255 codes,
//                   a value 0x10, 0x20, ... 0xE0 (progressive files)
//   DRI (0xDD)      size other than 2 bytes
//   SOS (0xDA)      table selector above 1, `ss`, `se`, `ah` or `al` of progressive files, bytes
//                   after the last field

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
        /// Not the number of the quantization table, which is `frame[8 + 3 * i]` (see
        /// `dqt_marker_t`), but the byte at `10 + 3 * i`, or 0 if the memory ends before it. Kept
        /// because `dump` prints it.
        unsigned char quatable_sel;
    };

    unsigned char sample_precision = 0;  ///< bits
    unsigned short lines = 0;            ///< height in pixels, 0 if a DNL segment defines it
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
///
/// The table of component i of a `sof0_marker_t frame` is `table[frame[8 + 3 * i]]`. The index is a
/// byte of the frame's payload. Check that it is less than 4.
class dqt_marker_t : public jpeg_bytes_t {
  public:
    using table_t = std::array<unsigned char, 64>;

    unsigned char n = 0;  ///< number of tables in the last segment

    /// The tables by destination. Element 8 * v + u of a table is for the horizontal frequency u
    /// and the vertical frequency v. `parse` converts the zigzag order of the file to this order.
    std::array<table_t, 4> table{};
    std::array<unsigned char, 4> destination{};  ///< of the `n` tables, in the order of the file

    void set_dqt_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// Huffman tables (DHT). `parse` skips a 0x00 after a 0xFF, as `jpeg_iterator` does, although DHT
/// segments have no stuffing. Tables of baseline files don't contain 0xFF.
class dht_marker_t : public jpeg_bytes_t {
  public:
    struct entry_t {
        unsigned short code;       ///< in the low bits; see `table_t` for its number of bits
        unsigned char data_bits;   ///< number of bits after the code (SSSS in T.81, F.1.2)
        unsigned char run_length;  ///< number of zero coefficients before this one (RRRR, AC)
    };
    struct table_t {
        std::array<unsigned char, 16> counts{};  ///< numbers of codes with 1 to 16 bits
        /// The first `counts[0]` entries have codes of 1 bit, the next `counts[1]` entries have
        /// codes of 2 bits, and so on. Codes of the same number of bits increase.
        std::vector<entry_t> entries;
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
    /// The number of minimum coded units between restart markers. 0 if there are no restarts.
    unsigned short interval = 0;

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
    unsigned char ss = 0;         ///< first coefficient in zigzag order; must be 0
    unsigned char se = 0;         ///< last coefficient in zigzag order; must be 63
    unsigned char ah = 0;         ///< previous bit position (progressive); must be 0
    unsigned char al = 0;         ///< bit position (progressive); must be 0
    dht_marker_t* dht = nullptr;  ///< see `set_dht_marker`

    void set_sos_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }

    /// Sets `dht`, a pointer to the tables of the scan that only the caller uses. `clear` doesn't
    /// change it. It may be null. The tables aren't owned.
    void set_dht_marker(dht_marker_t* tables) { dht = tables; }
    bool parse();
    void dump() const;
    void clear() override;
};

}  // namespace libgr
