// SPDX-License-Identifier: MIT
// The bytes of JPEG data, the numbers of its marker segments, and a cursor over entropy-coded
// bytes.
#pragma once

#include "utils/allocator.h"
#include "utils/ofsvector.h"

namespace libgr {

/// A view of the bytes of a JPEG file or of one of its segments. Copies share the memory, which is
/// freed with the last copy. Copies that share memory must be used by one thread. No OpenGL context
/// is needed.
using jpeg_bytes_t = libutils::ofsvector<unsigned char, libutils::alloc_mmap_unix>;

/// The numbers of the APPn and COM marker segments.
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
    MARKER_MAX = 17,  ///< the number of values
};

/// A marker's number and its code.
struct marker_row_t {
    e_marker_num_t number;
    unsigned int code;  ///< the byte after 0xFF in the file (ITU-T T.81, table B.1)
};

/// The codes of the APPn and COM markers. Row i has number i.
inline constexpr marker_row_t marker_array[MARKER_MAX] = {
    {MARKER_APP0, 0xE0},  {MARKER_APP1, 0xE1},  {MARKER_APP2, 0xE2},  {MARKER_APP3, 0xE3},
    {MARKER_APP4, 0xE4},  {MARKER_APP5, 0xE5},  {MARKER_APP6, 0xE6},  {MARKER_APP7, 0xE7},
    {MARKER_APP8, 0xE8},  {MARKER_APP9, 0xE9},  {MARKER_APP10, 0xEA}, {MARKER_APP11, 0xEB},
    {MARKER_APP12, 0xEC}, {MARKER_APP13, 0xED}, {MARKER_APP14, 0xEE}, {MARKER_APP15, 0xEF},
    {MARKER_COM, 0xFE},
};

/// A cursor over entropy-coded bytes. It skips a 0x00 that follows a 0xFF (ITU-T T.81, B.1.1.5).
/// It returns other bytes after a 0xFF, for example a marker's code. It doesn't own the bytes.
///
///     libgr::jpeg_iterator cursor(end);
///     for (cursor = begin; cursor < end; ++cursor) { use(*cursor); }
class jpeg_iterator {
  public:
    /// Creates a cursor that never reads `end` or the bytes after it. Assign the position before
    /// use.
    explicit jpeg_iterator(unsigned char const* end) : m_end(end) {}

    jpeg_iterator& operator=(unsigned char const* position) {
        m_position = position;
        return *this;
    }

    /// Returns the byte at the cursor. The cursor must be before the end.
    unsigned char operator*() const { return *m_position; }

    /// Moves to the next byte. Moves by two bytes if the cursor is at a 0xFF with a stuffed 0x00.
    /// The cursor must be before the end.
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
