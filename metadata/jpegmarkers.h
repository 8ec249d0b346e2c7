// SPDX-License-Identifier: MIT
// Strict readers of a baseline JPEG's marker segments, each of which also prints what it read.
#pragma once

#include <array>
#include <vector>

#include "metadata/jpegcursor.h"

namespace libgr {

// Each reader is the window into its segment's payload: the bytes behind the segment's length,
// which the buffer setter shares (ITU-T T.81, B.2). `parse` reads it; false is a refusal, with one
// line on the error stream, and leaves what was read until then. `dump` prints the fields on
// standard output. `clear` drops the payload and empties the fields.

/// The masks of a byte's bits, the highest first.
inline constexpr unsigned char bit_shift_table[8] = {0x80, 0x40, 0x20, 0x10,
                                                     0x08, 0x04, 0x02, 0x01};

/// From the place in zigzag order to the place in row by row order (T.81, figure A.6).
extern unsigned char const zigzag_to_array[64];

/// The frame header of a baseline picture.
class sof0_marker_t : public jpeg_bytes_t {
  public:
    struct element_t {
        unsigned char component_id;
        unsigned char horiz_factor;
        unsigned char verts_factor;
        /// Read two bytes behind its place in the standard, so that the last component's lies
        /// behind the segment; 0 where the shared bytes end there.
        unsigned char quatable_sel;
    };

    unsigned char sample_precision = 0;  ///< bits a sample
    unsigned short lines = 0;            ///< height in pixels
    unsigned short samples = 0;          ///< width in pixels
    unsigned char colors = 0;            ///< components
    std::vector<element_t> components;
    unsigned short max_horiz = 0;
    unsigned short max_verts = 0;

    void set_sof0_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// Quantisation tables of 8 bits.
class dqt_marker_t : public jpeg_bytes_t {
  public:
    using table_t = std::array<unsigned char, 64>;

    unsigned char n = 0;                         ///< tables in the segment
    std::array<table_t, 4> table{};              ///< by destination, row by row
    std::array<unsigned char, 4> destination{};  ///< of the segment's tables in their order

    void set_dqt_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// Huffman tables.
class dht_marker_t : public jpeg_bytes_t {
  public:
    struct entry_t {
        unsigned short code;
        unsigned char data_bits;
        unsigned char run_length;
    };
    struct table_t {
        std::array<unsigned char, 16> counts{};  ///< codes of 1 to 16 bits
        std::vector<entry_t> entries;            ///< in the order of their codes
    };
    struct class_and_destination_t {
        unsigned char tc;  ///< 0 a DC table, 1 an AC table
        unsigned char th;
    };

    unsigned short length = 0;  ///< never set
    std::array<class_and_destination_t, 4> tables{};
    unsigned char table_count = 0;  ///< tables read, in their order in `tables`
    std::array<table_t, 2> dc;
    std::array<table_t, 2> ac;

    void set_dht_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }

  private:
    bool parse_table(jpeg_iterator& cursor);
};

/// The restart interval.
class dri_marker_t : public jpeg_bytes_t {
  public:
    unsigned short interval = 0;  ///< minimum coded units; 0 without restarts

    void set_dri_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    bool parse();
    void dump() const;
    void clear() override { *this = {}; }
};

/// The scan header of a picture in one scan.
class sos_marker_t : public jpeg_bytes_t {
  public:
    struct element_t {
        unsigned char scan_element_selector;
        unsigned char dc_huffman_table_selector;
        unsigned char ac_huffman_table_selector;
    };

    unsigned char ns = 0;  ///< components in the scan
    std::vector<element_t> components;
    unsigned char ss = 0;
    unsigned char se = 0;
    unsigned char ah = 0;
    unsigned char al = 0;
    dht_marker_t* dht = nullptr;  ///< the scan's tables; not owned, and `clear` leaves it

    void set_sos_buffer(jpeg_bytes_t const& payload) { jpeg_bytes_t::operator=(payload); }
    void set_dht_marker(dht_marker_t* tables) { dht = tables; }
    bool parse();
    void dump() const;
    void clear() override;
};

}  // namespace libgr
