// SPDX-License-Identifier: MIT
// The walk over the entries of an IFD, which all kinds of IFD share, and the tables that say which
// tags a record keeps.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "metadata/exiftype.h"
#include "utils/byteorder.h"

namespace libgr {

/// `count` bytes of `source` from `at` on, as far as they are there.
jpeg_bytes_t part_of(jpeg_bytes_t const& source, unsigned long at, unsigned long count);

/// Whether the first bytes of `bytes` are those of `text`.
bool begins_with(jpeg_bytes_t const& bytes, std::string_view text);

/// The word of 16 or 32 bits at `at`, and 0 where `source` doesn't hold it whole.
unsigned short short_at(jpeg_bytes_t const& source, unsigned long at,
                        libutils::byteorder const& order);
unsigned int long_at(jpeg_bytes_t const& source, unsigned long at,
                     libutils::byteorder const& order);

/// Bytes of an IFD of `n` entries (TIFF 6.0, section 2), without the offset of the next one: a
/// count of 16 bits, then for each entry 12 bytes of tag, type, count, and the value or its offset.
/// Entry `n` begins there.
constexpr unsigned long ifd_size(unsigned long n) {
    return 2 + 12 * n;
}

/// Which sizes a walk compares, and the lines that it refuses with.
enum class ifd_bounds_t {
    zeroth,  ///< an entry's first eight bytes, and where an offset points
    exif,    ///< a whole entry, and where the value at an offset ends
    none,    ///< nothing: the walk ends where the entries do
    note,    ///< the whole IFD, and where the value at an offset ends
};

/// What a type that Exif doesn't know does.
enum class ifd_unknown_type_t { skip, stop, refuse };

/// What sets the walk of one kind of IFD apart from the others.
struct ifd_rules_t {
    ifd_bounds_t bounds;
    ifd_unknown_type_t unknown_type;
    char const* name = "";           ///< leads the lines about a note
    bool skips_lost_values = false;  ///< whether a value beyond the end is passed over
};

struct ifd_entry_t {
    unsigned short tag;
    unsigned int size;   ///< bytes that the entry claims, modulo 2 to the power of 32
    jpeg_bytes_t value;  ///< as much of them as is there
};

/// Calls `visit` for the entries in their order. Values that don't fit into their entry lie in
/// `base`. False when a rule refuses the IFD, or without a byte order.
bool walk_ifd(ifd_rules_t const& rules, jpeg_bytes_t const& ifd, jpeg_bytes_t const& base,
              libutils::byteorder const* order,
              std::function<void(ifd_entry_t const&)> const& visit);

// How values are stored. A value that isn't whole leaves its vector as it was.

void store_value(ifd_entry_t const& entry, libutils::byteorder const& order,
                 ExifType::short_t& values);
void store_value(ifd_entry_t const& entry, libutils::byteorder const& order,
                 ExifType::long_t& values);
void store_value(ifd_entry_t const& entry, libutils::byteorder const& order,
                 ExifType::rationals_t& values);
void store_value(ifd_entry_t const& entry, libutils::byteorder const& order,
                 ExifType::srationals_t& values);
void store_value(ifd_entry_t const& entry, libutils::byteorder const& order, std::string& text);
void store_value(ifd_entry_t const& entry, libutils::byteorder const& order, jpeg_bytes_t& view);

/// The size of a row that takes values of any size.
inline constexpr unsigned int any_size = ~0U;

/// A tag that record R keeps, if its value has `size` bytes, whatever its type, and where it goes:
/// the member's type says how.
template <typename R>
struct tag_row_t {
    unsigned short tag;
    unsigned int size;
    std::variant<ExifType::short_t R::*, ExifType::long_t R::*, ExifType::rationals_t R::*,
                 ExifType::srationals_t R::*, std::string R::*, jpeg_bytes_t R::*>
        member;
};

/// Walks an IFD and stores into `record` what `rows` keep. A later entry of a tag overwrites an
/// earlier one.
template <typename R>
bool collect_tags(ifd_rules_t const& rules, jpeg_bytes_t const& ifd, jpeg_bytes_t const& base,
                  libutils::byteorder const* order,
                  std::type_identity_t<std::span<tag_row_t<R> const>> rows, R& record) {
    return walk_ifd(rules, ifd, base, order, [&](ifd_entry_t const& entry) {
        for (tag_row_t<R> const& row : rows) {
            if (row.tag == entry.tag && (row.size == any_size || row.size == entry.size)) {
                std::visit([&](auto member) { store_value(entry, *order, record.*member); },
                           row.member);
            }
        }
    });
}

}  // namespace libgr
