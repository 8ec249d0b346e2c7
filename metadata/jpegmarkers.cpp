// SPDX-License-Identifier: MIT
// The parsers and the output of the marker segments of a baseline JPEG file.
#include "metadata/jpegmarkers.h"

#include <numeric>
#include <ostream>

#include "utils/diagnostics.h"

namespace libgr {

unsigned char const zigzag_to_array[64] = {
    0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,   //
    12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,  //
    35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,  //
    58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63,
};

namespace {

using libutils::report_error;

constexpr std::size_t dqt_unit_size = 1 + sizeof(zigzag_to_array);

unsigned char high_nibble(unsigned char byte) {
    return static_cast<unsigned char>(byte >> 4);
}

unsigned char low_nibble(unsigned char byte) {
    return static_cast<unsigned char>(byte & 0x0F);
}

/// Returns the 16-bit big-endian number at byte `at`.
unsigned short word_at(jpeg_bytes_t const& payload, std::size_t at) {
    return static_cast<unsigned short>(payload[at] << 8 | payload[at + 1]);
}

bool report_broken() {
    return report_error("broken JPEG data.");
}

bool report_invalid() {
    return report_error("invalid JPEG data.");
}

/// Prints on standard output, with numbers in decimal. Pass bytes as +x: a char prints a character.
template <typename... Parts>
void put(Parts const&... parts) {
    libutils::keepflag const keep(std::cout);
    std::cout << std::dec;
    (std::cout << ... << parts);
}

template <typename... Parts>
void put_line(Parts const&... parts) {
    put(parts...);
    std::cout << std::endl;
}

}  // namespace

bool sof0_marker_t::parse() {
    if (size() < 6) {
        return report_broken();
    }
    sample_precision = (*this)[0];
    lines = word_at(*this, 1);
    samples = word_at(*this, 3);
    colors = (*this)[5];
    if (sample_precision != 8) {
        return report_error("not support JPEG data. sample_precision=",
                            static_cast<char>(sample_precision));
    }
    if (size() < 6UL + 3UL * colors) {
        return report_broken();
    }
    jpeg_bytes_t extended = *this;  // quatable_sel may be after the end of the segment
    extended.count = to_end;
    components.resize(colors);
    max_horiz = 0;
    max_verts = 0;
    std::size_t at = 6;
    for (element_t& element : components) {
        unsigned char const factors = (*this)[at + 1];
        element = {(*this)[at], high_nibble(factors), low_nibble(factors),
                   at + 4 < extended.size() ? extended[at + 4] : static_cast<unsigned char>(0)};
        max_horiz = libutils::max2<unsigned short>(max_horiz, element.horiz_factor);
        max_verts = libutils::max2<unsigned short>(max_verts, element.verts_factor);
        at += 3;
    }
    for (element_t const& element : components) {
        if (element.horiz_factor == 0 || max_horiz % element.horiz_factor != 0 ||
            element.verts_factor == 0 || max_verts % element.verts_factor != 0) {
            return report_invalid();
        }
    }
    return true;
}

void sof0_marker_t::dump() const {
    put_line("precision: ", +sample_precision);
    put_line("lines: ", lines, ", samples: ", samples);
    put_line("colors: ", +colors);
    for (element_t const& element : components) {
        put_line("component_id: ", +element.component_id);
        put_line("horiz_factor: ", +element.horiz_factor);
        put_line("verts_factor: ", +element.verts_factor);
        put_line("quatable_sel: ", +element.quatable_sel);
    }
    put_line("max_horiz: ", max_horiz);
    put_line("max_verts: ", max_verts);
}

bool dqt_marker_t::parse() {
    std::size_t const tables = size() / dqt_unit_size;
    if (empty() || size() % dqt_unit_size != 0 || tables > table.size()) {
        return report_broken();
    }
    n = static_cast<unsigned char>(tables);
    unsigned char const* unit = begin();
    for (std::size_t k = 0; k < tables; ++k, unit += dqt_unit_size) {
        unsigned char const pq = high_nibble(unit[0]);
        unsigned char const tq = low_nibble(unit[0]);
        if (pq != 0) {
            return report_error("not support JPEG data. DQT pq=", +pq);
        }
        if (tq >= table.size()) {
            return report_invalid();
        }
        for (std::size_t i = 0; i < sizeof(zigzag_to_array); ++i) {
            table[tq][zigzag_to_array[i]] = unit[1 + i];
        }
        destination[k] = tq;
    }
    return true;
}

void dqt_marker_t::dump() const {
    put_line("dqt n: ", +n);
    for (std::size_t i = 0; i < n; ++i) {
        for (unsigned char const value : table[destination[i]]) {
            put(+value, ", ");
        }
        std::cout << std::endl;
    }
}

bool dht_marker_t::parse() {
    jpeg_iterator cursor(end());
    cursor = begin();
    for (table_count = 0; cursor < end(); ++table_count) {
        if (table_count >= tables.size()) {
            return report_broken();
        }
        if (!parse_table(cursor)) {
            return false;
        }
    }
    return true;
}

bool dht_marker_t::parse_table(jpeg_iterator& cursor) {
    class_and_destination_t& which = tables[table_count];
    which = {high_nibble(*cursor), low_nibble(*cursor)};
    ++cursor;
    if (which.th >= dc.size() || which.tc > 1) {
        return report_broken();
    }
    table_t& table = (which.tc == 0 ? dc : ac)[which.th];
    for (unsigned char& count_of_length : table.counts) {
        if (!(cursor < end())) {
            return report_broken();
        }
        count_of_length = *cursor;
        ++cursor;
    }
    unsigned int const codes = std::accumulate(table.counts.begin(), table.counts.end(), 0U);
    if (codes > 0xFF) {  // the number of entries has 8 bits
        return report_broken();
    }
    table.entries.resize(codes);
    unsigned short code = 0;
    auto entry = table.entries.begin();
    for (unsigned char const count_of_length : table.counts) {
        for (unsigned int i = 0; i < count_of_length; ++i, ++entry, ++code, ++cursor) {
            if (!(cursor < end())) {
                return report_broken();
            }
            unsigned char const value = *cursor;
            *entry = {code, low_nibble(value), high_nibble(value)};
            if (value > 15 && entry->run_length < 15 && entry->data_bits == 0) {
                return report_error("huffman table error: run_length=", +entry->run_length,
                                    ", data_bits=", +entry->data_bits);
            }
        }
        code = static_cast<unsigned short>(code << 1);
    }
    return true;
}

void dht_marker_t::dump() const {
    put_line("dht length: ", length);
    for (std::size_t i = 0; i < table_count; ++i) {
        put_line("tc: ", +tables[i].tc, ", th: ", +tables[i].th);
        char const* separator = "entries: ";
        for (unsigned char const count_of_length :
             (tables[i].tc == 0 ? dc : ac)[tables[i].th].counts) {
            put(separator, +count_of_length);
            separator = ", ";
        }
        std::cout << std::endl;
    }
}

bool dri_marker_t::parse() {
    if (size() != 2) {
        return report_broken();
    }
    interval = word_at(*this, 0);
    return true;
}

void dri_marker_t::dump() const {
    put_line("dri intervals: ", interval);
}

bool sos_marker_t::parse() {
    if (size() < 4) {
        return report_broken();
    }
    ns = (*this)[0];
    if (size() != ns * 2UL + 4UL) {
        return report_broken();
    }
    components.resize(ns);
    std::size_t at = 1;
    for (element_t& element : components) {
        unsigned char const selectors = (*this)[at + 1];
        element = {(*this)[at], high_nibble(selectors), low_nibble(selectors)};
        if (element.dc_huffman_table_selector > 1 || element.ac_huffman_table_selector > 1) {
            return report_invalid();
        }
        at += 2;
    }
    ss = (*this)[at];
    se = (*this)[at + 1];
    ah = high_nibble((*this)[at + 2]);
    al = low_nibble((*this)[at + 2]);
    if (ss != 0 || se != 63 || ah != 0 || al != 0) {
        return report_error("constant value illegal. ss=", +ss, ", se=", +se, ", ah=", +ah,
                            ", al=", +al);
    }
    return true;
}

void sos_marker_t::dump() const {
    put_line("ns: ", +ns);
    for (element_t const& element : components) {
        put_line("scan element selector: ", +element.scan_element_selector);
        put_line("dc huffman table selector: ", +element.dc_huffman_table_selector);
        put_line("ac huffman table selector: ", +element.ac_huffman_table_selector);
    }
}

void sos_marker_t::clear() {
    dht_marker_t* const kept = dht;
    *this = {};
    dht = kept;
}

}  // namespace libgr
