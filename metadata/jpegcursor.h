// SPDX-License-Identifier: MIT
// Views of JPEG data, numbers of marker segments, and a cursor over entropy-coded bytes.
#pragma once

/// Copies a buffer to a view for the parsers of this folder:
///
/// ```cpp
/// #include <algorithm>
/// #include <string>
///
/// #include "metadata/jpegcursor.h"
///
/// libgr::jpeg_bytes_t view_of(std::string const& buffer) {
///     libgr::jpeg_bytes_t bytes;
///     if (bytes.resize(buffer.size(), 0)) {  // false: not enough memory
///         std::copy(buffer.begin(), buffer.end(), bytes.begin());
///     }
///     return bytes;
/// }
/// ```
///
/// `bytes.size()` is the number of bytes, and `bytes[i]` is byte i. For a view of 16 bytes from
/// byte 4, copy `bytes`, add 4 to `offset` and set `count` to 16.

#include "utils/allocator.h"
#include "utils/ofsvector.h"

namespace libgr {

/// A view of the bytes of a JPEG file or of one of its segments (utils/ofsvector.h). Copies share
/// the memory, which is freed with the last copy.
///
/// Use the views and all parsers of this folder on one thread only, the thread that loads files.
/// The counts of copies and the recorded errors of utils/ aren't synchronized. No OpenGL context is
/// needed.
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

/// A cursor over entropy-coded bytes. It skips the 0x00 that an encoder inserts after each 0xFF of
/// its data (ITU-T T.81, B.1.1.5). It doesn't own the bytes.
///
/// The cursor doesn't recognize markers: FF 00 D9 and FF D9 both deliver FF and D9. To stop at a
/// marker, search for it first. A 0xFF without a 0x00 begins a marker or a fill byte before it:
///
/// ```cpp
/// #include <algorithm>
/// #include <string>
///
/// std::string unstuffed(unsigned char const* begin, unsigned char const* end) {
///     auto const is_marker = [](int first, int second) { return first == 0xFF && second != 0; };
///     auto const* const marker = std::adjacent_find(begin, end, is_marker);
///     std::string bytes;
///     libgr::jpeg_iterator cursor(marker);
///     for (cursor = begin; cursor < marker; ++cursor) {
///         bytes += static_cast<char>(*cursor);
///     }
///     return bytes;
/// }
/// ```
class jpeg_iterator {
  public:
    /// Creates a cursor without a position. Assign a pointer to the first byte before the first
    /// use. `end` points to the byte after the last one. The cursor never reads this byte.
    explicit jpeg_iterator(unsigned char const* end) : m_end(end) {}

    jpeg_iterator& operator=(unsigned char const* position) {
        m_position = position;
        return *this;
    }

    /// Returns the byte at the cursor, which must be before `end`.
    unsigned char operator*() const { return *m_position; }

    /// Moves by two bytes if the cursor is at a 0xFF and the next byte is 0x00, otherwise by one.
    /// The cursor must be before `end`.
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
