// SPDX-License-Identifier: MIT
// What the JPEG codec and the readers of a JPEG's marker segments share: their bytes, the numbers
// of the markers that are kept, and the cursor over entropy-coded bytes.
#pragma once

#include "utils/allocator.h"
#include "utils/ofsvector.h"

namespace libgr {

/// A window into the bytes of a JPEG file, or of one segment of it. Copies share the bytes.
using jpeg_bytes_t = libutils::ofsvector<unsigned char, libutils::alloc_mmap_unix>;

/// The numbers of the marker segments that a JPEG's reader keeps.
enum e_marker_num_t : unsigned int {
    MARKER_APP0 = 0,
    MARKER_APP1 = 1,
    MARKER_APP2 = 2,
    MARKER_APP3 = 3,
    MARKER_APP4 = 4,
    MARKER_APP5 = 5,
    MARKER_APP6 = 6,
    MARKER_APP7 = 7,
    MARKER_APP8 = 8,
    MARKER_APP9 = 9,
    MARKER_APP10 = 10,
    MARKER_APP11 = 11,
    MARKER_APP12 = 12,
    MARKER_APP13 = 13,
    MARKER_APP14 = 14,
    MARKER_APP15 = 15,
    MARKER_COM = 16,
    MARKER_MAX = 17,  ///< end mark
};

/// One row of `marker_array`.
struct marker_row_t {
    e_marker_num_t number;
    unsigned int code;  ///< the byte behind 0xFF in the file (ITU-T T.81, table B.1)
};

/// From number to marker code; row i is that of number i.
inline constexpr marker_row_t marker_array[MARKER_MAX] = {
    {MARKER_APP0, 0xE0},  {MARKER_APP1, 0xE1},  {MARKER_APP2, 0xE2},  {MARKER_APP3, 0xE3},
    {MARKER_APP4, 0xE4},  {MARKER_APP5, 0xE5},  {MARKER_APP6, 0xE6},  {MARKER_APP7, 0xE7},
    {MARKER_APP8, 0xE8},  {MARKER_APP9, 0xE9},  {MARKER_APP10, 0xEA}, {MARKER_APP11, 0xEB},
    {MARKER_APP12, 0xEC}, {MARKER_APP13, 0xED}, {MARKER_APP14, 0xEE}, {MARKER_APP15, 0xEF},
    {MARKER_COM, 0xFE},
};

/// A cursor over entropy-coded bytes, in which a 0xFF that is data is followed by a stuffed 0x00
/// (ITU-T T.81, B.1.1.5). The pair is one step. The cursor doesn't own the bytes.
class jpeg_iterator {
  public:
    /// A cursor that looks at nothing from `end` on.
    explicit jpeg_iterator(unsigned char const* end) : m_end(end) {}

    jpeg_iterator& operator=(unsigned char const* position) {
        m_position = position;
        return *this;
    }

    /// The byte at the cursor, which must stand before the end.
    unsigned char operator*() const { return *m_position; }

    /// To the next byte, or behind a stuffed pair. The cursor must stand before the end.
    jpeg_iterator& operator++() {
        bool const stuffed = *m_position == 0xFF && m_end - m_position > 1 && m_position[1] == 0x00;
        m_position += stuffed ? 2 : 1;
        return *this;
    }

    friend bool operator<(jpeg_iterator const& cursor, unsigned char const* end) {
        return cursor.m_position < end;
    }

  private:
    unsigned char const* m_position = nullptr;
    unsigned char const* m_end;
};

}  // namespace libgr
