// SPDX-License-Identifier: MIT
// The walk over the entries of an IFD, with the rules that keep it inside the file's bytes.
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
using libutils::refuse;

jpeg_bytes_t part_of(jpeg_bytes_t const& source, unsigned long at, unsigned long count) {
    unsigned long const start = min2(at, source.size());
    jpeg_bytes_t part = source;
    part.offset = source.offset + start;
    part.count = min2(count, source.size() - start);
    return part;
}

bool begins_with(jpeg_bytes_t const& bytes, std::string_view text) {
    return bytes.size() >= text.size() && std::memcmp(bytes.begin(), text.data(), text.size()) == 0;
}

namespace {

template <typename T>
T word_at(jpeg_bytes_t const& source, unsigned long at) {
    T word = 0;
    if (at <= source.size() && source.size() - at >= sizeof(T)) {
        std::memcpy(&word, source.begin() + at, sizeof(T));
    }
    return word;
}

/// One walk at one entry.
struct ifd_walk_t {
    ifd_rules_t const& rules;
    jpeg_bytes_t const& ifd;
    jpeg_bytes_t const& base;
    byteorder const& order;
    unsigned long n;      ///< entries in the IFD
    unsigned long i = 0;  ///< the entry in hand

    unsigned long value_at() const { return ifd_size(i) + 8; }
    bool entry_is_there() const;
    bool is_within_base(unsigned long offset, unsigned long size) const;
    bool find_value(unsigned int size, jpeg_bytes_t& value) const;
};

/// Whether tag, type and count may be read.
bool ifd_walk_t::entry_is_there() const {
    unsigned long const size = ifd.size();
    switch (rules.bounds) {
        case ifd_bounds_t::zeroth:
            return value_at() <= size ||
                   refuse("value over, offset: ", value_at(), " ifd size: ", size);
        case ifd_bounds_t::exif:
            return value_at() + 4 <= size ||
                   refuse("too few ifd area", value_at() + 4, " > ", size);
        default:
            return value_at() <= size;
    }
}

/// Whether the rules take a value at an offset.
bool ifd_walk_t::is_within_base(unsigned long offset, unsigned long size) const {
    bool const lost = offset + size > base.size();
    switch (rules.bounds) {
        case ifd_bounds_t::zeroth:
            // Only where the value begins counts here: it may reach beyond the end.
            return offset <= base.size() ||
                   refuse("value over, offset ", offset, " tiff size: ", base.size());
        case ifd_bounds_t::exif:
            return !lost ||
                   refuse("offset+size over: ", offset, ", ", size, ", tiff size: ", base.size());
        case ifd_bounds_t::note:
            return !lost || refuse(rules.name, n, ": [", i, "]: ", offset, ", ", size,
                                   ": app1 size: ", base.size(), " over.");
        default:
            return true;
    }
}

/// Finds what is there of the entry's value. False where the rules refuse its place.
bool ifd_walk_t::find_value(unsigned int size, jpeg_bytes_t& value) const {
    if (size <= 4) {
        value = part_of(ifd, value_at(), size);
        return true;
    }
    unsigned long const offset = long_at(ifd, value_at(), order);
    bool const lost =
        value_at() + 4 > ifd.size() || (rules.skips_lost_values && offset + size > base.size());
    value = part_of(base, offset, lost ? 0 : size);
    return lost || is_within_base(offset, size);
}

template <typename T, typename F>
void store_values(ifd_entry_t const& entry, std::vector<T>& values, F read) {
    if (entry.value.size() < entry.size) {
        return;
    }
    values.resize(entry.size / sizeof(T));
    for (unsigned long i = 0; i < values.size(); ++i) {
        values[i] = read(i * sizeof(T));
    }
}

}  // namespace

unsigned short short_at(jpeg_bytes_t const& source, unsigned long at, byteorder const& order) {
    return order.tohs(word_at<unsigned short>(source, at));
}

unsigned int long_at(jpeg_bytes_t const& source, unsigned long at, byteorder const& order) {
    return order.tohl(word_at<unsigned int>(source, at));
}

bool walk_ifd(ifd_rules_t const& rules, jpeg_bytes_t const& ifd, jpeg_bytes_t const& base,
              byteorder const* order, std::function<void(ifd_entry_t const&)> const& visit) {
    if (order == nullptr) {
        return false;
    }
    ifd_walk_t walk{rules, ifd, base, *order, short_at(ifd, 0, *order)};
    if (rules.bounds == ifd_bounds_t::note && ifd.size() < ifd_size(walk.n)) {
        return refuse(rules.name, walk.n, ": size ", ifd_size(walk.n), " over than ifd.size(",
                      ifd.size(), ").");
    }
    for (; walk.i < walk.n; ++walk.i) {
        if (!walk.entry_is_there()) {
            return false;
        }
        unsigned long const at = ifd_size(walk.i);
        unsigned short const type = short_at(ifd, at + 2, *order);
        if (type >= std::size(exiftypesize)) {
            if (rules.unknown_type == ifd_unknown_type_t::skip) {
                continue;
            }
            return rules.unknown_type == ifd_unknown_type_t::stop;
        }
        // The product stays in 32 bits; where it is added to an offset, 64 bits hold the sum.
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
    store_values(entry, values, [&](unsigned long at) { return short_at(entry.value, at, order); });
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::long_t& values) {
    store_values(entry, values, [&](unsigned long at) { return long_at(entry.value, at, order); });
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::rationals_t& values) {
    store_values(entry, values, [&](unsigned long at) {
        return ExifType::rational_t{long_at(entry.value, at, order),
                                    long_at(entry.value, at + 4, order)};
    });
}

void store_value(ifd_entry_t const& entry, byteorder const& order, ExifType::srationals_t& values) {
    store_values(entry, values, [&](unsigned long at) {
        return ExifType::srational_t{static_cast<int>(long_at(entry.value, at, order)),
                                     static_cast<int>(long_at(entry.value, at + 4, order))};
    });
}

void store_value(ifd_entry_t const& entry, byteorder const&, std::string& text) {
    // A claimed size isn't worth an allocation: the text is no longer than the bytes that are
    // there.
    unsigned long const size = entry.value.size();
    auto const* const first = reinterpret_cast<char const*>(entry.value.begin());
    text.assign(size, '\0');
    std::copy_n(first, ::strnlen(first, min2<unsigned long>(size, entry.size - 1U)), text.begin());
}

void store_value(ifd_entry_t const& entry, byteorder const&, jpeg_bytes_t& view) {
    view = entry.value;
}

}  // namespace libgr
