// SPDX-License-Identifier: MIT
// The loop over the entries of an IFD, with its bounds checks.
#include "metadata/ifdwalk.h"

#include <string.h>

#include <algorithm>
#include <cstring>
#include <iterator>

#include "metadata/exif.h"
#include "utils/diagnostics.h"

namespace libgr {

using libutils::byteorder;
using libutils::min2;
using libutils::report_error;

jpeg_bytes_t subview(jpeg_bytes_t const& source, std::uint64_t at, std::uint64_t count) {
    std::size_t const start = min2<std::uint64_t>(at, source.size());
    jpeg_bytes_t view = source;
    view.offset = source.offset + start;
    view.count = min2<std::uint64_t>(count, source.size() - start);
    return view;
}

bool has_prefix(jpeg_bytes_t const& bytes, std::string_view text) {
    return bytes.size() >= text.size() && std::memcmp(bytes.begin(), text.data(), text.size()) == 0;
}

namespace {

template <typename T>
T word_at(jpeg_bytes_t const& source, std::uint64_t at) {
    T word = 0;
    if (at <= source.size() && source.size() - at >= sizeof(T)) {
        std::memcpy(&word, source.begin() + at, sizeof(T));
    }
    return word;
}

/// The state of a walk.
struct ifd_walk_t {
    ifd_rules_t const& rules;
    jpeg_bytes_t const& ifd;
    jpeg_bytes_t const& base;
    byteorder const& order;
    std::size_t n;      ///< number of entries
    std::size_t i = 0;  ///< index of the current entry

    /// The offset of the current entry's value field in the IFD.
    std::size_t value_at() const { return ifd_size(i) + 8; }
    bool has_entry() const;
    bool is_valid_range(std::uint64_t offset, std::uint64_t size) const;
    bool find_value(unsigned int size, jpeg_bytes_t& value) const;
};

/// Checks that the IFD contains the tag, type and count of the current entry.
bool ifd_walk_t::has_entry() const {
    std::size_t const size = ifd.size();
    switch (rules.checks) {
        case ifd_checks_t::zeroth:
            return value_at() <= size ||
                   report_error("value over, offset: ", value_at(), " ifd size: ", size);
        case ifd_checks_t::exif:
            return value_at() + 4 <= size ||
                   report_error("too few ifd area", value_at() + 4, " > ", size);
        default:
            return value_at() <= size;
    }
}

/// Checks the position of a value that isn't in its entry.
bool ifd_walk_t::is_valid_range(std::uint64_t offset, std::uint64_t size) const {
    bool const is_inside = offset + size <= base.size();
    switch (rules.checks) {
        case ifd_checks_t::zeroth:
            // The end of the value isn't checked, because existing files depend on it.
            return offset <= base.size() ||
                   report_error("value over, offset ", offset, " tiff size: ", base.size());
        case ifd_checks_t::exif:
            return is_inside || report_error("offset+size over: ", offset, ", ", size,
                                             ", tiff size: ", base.size());
        case ifd_checks_t::note:
            return is_inside || report_error(rules.name, n, ": [", i, "]: ", offset, ", ", size,
                                             ": app1 size: ", base.size(), " over.");
        default:
            return true;
    }
}

/// Sets `value` to the available bytes of the current entry's value. Returns false if its position
/// fails the check.
bool ifd_walk_t::find_value(unsigned int size, jpeg_bytes_t& value) const {
    if (size <= 4) {
        value = subview(ifd, value_at(), size);
        return true;
    }
    std::uint64_t const offset = long_at(ifd, value_at(), order);
    bool const is_skipped =
        value_at() + 4 > ifd.size() || (rules.skips_outside_values && offset + size > base.size());
    value = subview(base, offset, is_skipped ? 0 : size);
    return is_skipped || is_valid_range(offset, size);
}

template <typename T, typename F>
void store_values(ifd_entry_t const& entry, std::vector<T>& values, F read) {
    if (entry.value.size() < entry.size) {
        return;
    }
    values.resize(entry.size / sizeof(T));
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = read(i * sizeof(T));
    }
}

}  // namespace

unsigned short short_at(jpeg_bytes_t const& source, std::uint64_t at, byteorder const& order) {
    return order.tohs(word_at<unsigned short>(source, at));
}

unsigned int long_at(jpeg_bytes_t const& source, std::uint64_t at, byteorder const& order) {
    return order.tohl(word_at<unsigned int>(source, at));
}

bool walk_ifd(ifd_rules_t const& rules, jpeg_bytes_t const& ifd, jpeg_bytes_t const& base,
              byteorder const* order, std::function<void(ifd_entry_t const&)> const& visit) {
    if (order == nullptr) {
        return false;
    }
    ifd_walk_t walk{rules, ifd, base, *order, short_at(ifd, 0, *order)};
    if (rules.checks == ifd_checks_t::note && ifd.size() < ifd_size(walk.n)) {
        return report_error(rules.name, walk.n, ": size ", ifd_size(walk.n), " over than ifd.size(",
                            ifd.size(), ").");
    }
    for (; walk.i < walk.n; ++walk.i) {
        if (!walk.has_entry()) {
            return false;
        }
        std::size_t const at = ifd_size(walk.i);
        unsigned short const type = short_at(ifd, at + 2, *order);
        if (type >= std::size(exiftypesize)) {
            if (rules.unknown_type == unknown_type_t::skip) {
                continue;
            }
            return rules.unknown_type == unknown_type_t::stop;
        }
        // The product may overflow, because existing files depend on it. The checks use its 32
        // bits.
        unsigned int const size = long_at(ifd, at + 4, *order) * exiftypesize[type];
        jpeg_bytes_t value;
        if (!walk.find_value(size, value)) {
            return false;
        }
        if (exiftypesize[type] != 0 && (size == 0 || !value.empty())) {
            visit({short_at(ifd, at, *order), size, value});
        }
    }
    return true;
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::short_t& values) {
    store_values(entry, values, [&](std::size_t at) { return short_at(entry.value, at, order); });
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::long_t& values) {
    store_values(entry, values, [&](std::size_t at) { return long_at(entry.value, at, order); });
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::rationals_t& values) {
    store_values(entry, values, [&](std::size_t at) {
        return ExifType::rational_t{long_at(entry.value, at, order),
                                    long_at(entry.value, at + 4, order)};
    });
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::srationals_t& values) {
    store_values(entry, values, [&](std::size_t at) {
        return ExifType::srational_t{static_cast<int>(long_at(entry.value, at, order)),
                                     static_cast<int>(long_at(entry.value, at + 4, order))};
    });
}

void store_value(ifd_entry_t const& entry, byteorder const&, std::string& text) {
    // Allocates memory for the bytes in the file, not for the size that the entry specifies.
    std::size_t const size = entry.value.size();
    auto const* const first = reinterpret_cast<char const*>(entry.value.begin());
    text.assign(size, '\0');
    std::copy_n(first, ::strnlen(first, min2<std::size_t>(size, entry.size - 1U)), text.begin());
}

void store_value(ifd_entry_t const& entry, byteorder const&, jpeg_bytes_t& view) {
    view = entry.value;
}

}  // namespace libgr
