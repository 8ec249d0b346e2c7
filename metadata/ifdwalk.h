// SPDX-License-Identifier: MIT
// The loop over the entries of an IFD, and the tables of the tags that go into a record.
#pragma once

#include <cstddef>
#include <cstdint>
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

/// Returns a view of `count` bytes of `source`, starting at byte `at`. Both are clamped to the end
/// of `source`. The view shares the memory.
jpeg_bytes_t subview(jpeg_bytes_t const& source, std::uint64_t at, std::uint64_t count);

/// Returns true if `bytes` begins with `text`.
bool has_prefix(jpeg_bytes_t const& bytes, std::string_view text);

/// Returns the 16-bit or 32-bit number at byte `at`, or 0 if it isn't completely inside `source`.
unsigned short short_at(jpeg_bytes_t const& source, std::uint64_t at,
                        libutils::byteorder const& order);
unsigned int long_at(jpeg_bytes_t const& source, std::uint64_t at,
                     libutils::byteorder const& order);

/// Returns the size, in bytes, of an IFD with `n` entries, without the offset of the next IFD. This
/// is also the offset of entry `n`. An IFD is a 16-bit count of entries and 12 bytes for each
/// entry: the tag (16 bits), the type (16), the number of values (32), and the value or its offset
/// (32). See TIFF 6.0, section 2.
constexpr std::size_t ifd_size(std::size_t n) {
    return 2 + 12 * n;
}

/// The checks that `walk_ifd` makes. If one fails, it prints one line on the error stream and
/// returns false. The base is the block of memory that the offsets in the IFD are relative to.
/// Bytes outside the IFD and the base are never read.
enum class ifd_checks_t {
    /// The first 8 bytes of each entry must be inside the view. The offset of each value must be
    /// less than or equal to the size of the base.
    zeroth,
    exif,  ///< each entry must be inside the view, and each value inside the base
    none,  ///< values aren't checked; an entry of less than 8 bytes fails without a line
    note,  ///< as `exif`, but all entries are checked before the first value is read
};

/// The effect of a type number above 13.
enum class unknown_type_t {
    skip,  ///< the entry is ignored
    stop,  ///< the walk ends and succeeds
    fail,  ///< the walk ends and fails without a line
};

/// The rules for one kind of IFD. Don't make the kinds more alike. If a walk fails (except in the
/// 1st IFD), the viewer ignores the orientation, so other rules would change the rotation of some
/// pictures.
struct ifd_rules_t {
    ifd_checks_t checks;
    unknown_type_t unknown_type;
    char const* name = "";              ///< starts the error lines of `ifd_checks_t::note`
    bool skips_outside_values = false;  ///< skips a value outside the base instead of failing
};

struct ifd_entry_t {
    unsigned short tag;
    /// Bytes: the number of values times the size of the type, modulo 2^32. With a product of
    /// 64 bits, the checks would reject files that are valid now.
    unsigned int size;

    jpeg_bytes_t value;  ///< the bytes of the value that the file has, at most `size`
};

/// Calls `visit` for each entry of an IFD, in the order of the file. A value of more than 4 bytes
/// is in `base`, at the offset in the entry. The steps for an entry are, in this order:
///   1. check that the view of the IFD contains it,
///   2. apply `unknown_type`,
///   3. skip it if its type has size 0, if its offset is cut off, or if `skips_outside_values`
///      applies,
///   4. check the position of its value,
///   5. skip it if all bytes of its value are missing.
///
/// Returns false if a check fails, if `unknown_type` is `fail` and applies, or if `order` is null.
bool walk_ifd(ifd_rules_t const& rules, jpeg_bytes_t const& ifd, jpeg_bytes_t const& base,
              libutils::byteorder const* order,
              std::function<void(ifd_entry_t const&)> const& visit);

// Conversions of a value to a member of a record. If bytes are missing, a vector doesn't change,
// and a string or a view gets the bytes that the file has.

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

/// The `size` of a row whose tag may have any size.
inline constexpr unsigned int any_size = ~0U;

/// The size, in bytes, of the value of a tag that is stored in a member of type M.
template <typename M>
inline constexpr unsigned int value_size = any_size;
template <typename T>
inline constexpr unsigned int value_size<std::vector<T>> = sizeof(T);

/// A tag and the member of record R that stores its value. A value is ignored if it doesn't have
/// `size` bytes. Its type isn't checked: the type of the member defines the conversion.
template <typename R>
struct tag_row_t {
    template <typename M>
    constexpr tag_row_t(unsigned short tag_number, M R::*target, unsigned int bytes = value_size<M>)
        : tag(tag_number), size(bytes), member(target) {}

    unsigned short tag;
    unsigned int size;
    std::variant<ExifType::short_t R::*, ExifType::long_t R::*, ExifType::rationals_t R::*,
                 ExifType::srationals_t R::*, std::string R::*, jpeg_bytes_t R::*>
        member;
};

/// Stores the values of the tags in `rows` in `record`. If a tag occurs twice, the last value is
/// stored. Returns the result of `walk_ifd`.
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
