// SPDX-License-Identifier: MIT
// Exif payloads built field by field, and what a reader makes of them as text.
#pragma once

#include <cstring>
#include <initializer_list>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "metadata/exif.h"

struct entry_t {
    unsigned int tag, type, count, value;
};

/// A word of a payload to be changed: `size` is 2 or 4 bytes.
struct poke_t {
    unsigned int at, size, value;
};

/// A TIFF block in one byte order.
struct block_t {
    bool intel;
    std::string bytes;

    void put(unsigned int at, unsigned int size, unsigned int value) {
        bytes.resize(std::max<std::size_t>(bytes.size(), at + size));
        for (unsigned int i = 0; i < size; ++i) {
            bytes[at + (intel ? i : size - 1 - i)] = static_cast<char>(value >> (8 * i));
        }
    }
    block_t& shorts(std::initializer_list<unsigned int> values) { return append(2, values); }
    block_t& longs(std::initializer_list<unsigned int> values) { return append(4, values); }
    block_t& text(std::string_view text) {
        bytes += text;
        return *this;
    }
    /// Count and entries, without the next IFD's offset. A SHORT stands in an entry's first bytes.
    block_t& ifd(std::initializer_list<entry_t> entries) {
        shorts({static_cast<unsigned int>(entries.size())});
        for (entry_t const& e : entries) {
            shorts({e.tag, e.type}).longs({e.count});
            e.type == 3 ? shorts({e.value & 0xFFFF, e.value >> 16}) : longs({e.value});
        }
        return *this;
    }

  private:
    block_t& append(unsigned int size, std::initializer_list<unsigned int> values) {
        for (unsigned int const value : values) {
            put(static_cast<unsigned int>(bytes.size()), size, value);
        }
        return *this;
    }
};

/// The bytes as a window into a larger block, whose other bytes are all `margin`.
inline libgr::jpeg_bytes_t window_of(std::string const& bytes, char margin = '\xFF') {
    std::string const all = std::string(3, margin) + bytes + std::string(64, margin);
    libgr::jpeg_bytes_t window;
    window.resize(all.size(), 0);
    std::memcpy(window.begin(), all.data(), all.size());
    window.offset = 3;
    window.count = bytes.size();
    return window;
}

/// The set fields, each as " name=value,".
class summary_t {
  public:
    explicit summary_t(libgr::app1_marker_t::tiff_header_t const& t) {
        add("Make", t.tag_0th_ifd.Make);
        add("Orientation", t.tag_0th_ifd.Orientation);
        add("XResolution", t.tag_0th_ifd.XResolution);
        add("ResolutionUnit", t.tag_0th_ifd.ResolutionUnit);
        add("ExposureTime", t.tag_exif_ifd.ExposureTime);
        add("ExposureProgram", t.tag_exif_ifd.ExposureProgram);
        add("DateTimeOriginal", t.tag_exif_ifd.DateTimeOriginal);
        add("ExposureBiasValue", t.tag_exif_ifd.ExposureBiasValue);
        add("thumbnail", t.thumbnail);
        add("100B", t.tag_olympus_ifd.tag_0x100B);
        add("100C", t.tag_olympus_ifd.tag_0x100C);
        add("100F", t.tag_olympus_ifd.tag_0x100F);
        add("1015", t.tag_olympus_ifd.tag_0x1015);
        add("1029", t.tag_olympus_ifd.tag_0x1029);
        add("0203", t.tag_olympus3_equipment_ifd.tag_0x0203);
        add("0500", t.tag_olympus3_camerasettings_ifd.tag_0x0500);
        add("0804", t.tag_olympus3_camerasettings_ifd.tag_0x0804);
        add("0209", t.tag_olympus3_focusinfo_ifd.tag_0x0209);
        add("0305", t.tag_olympus3_focusinfo_ifd.tag_0x0305);
        add("031B", t.tag_olympus3_focusinfo_ifd.tag_0x031B);
        add("000D", t.tag_pentax5_ifd.tag_0x000D);
        add("001A", t.tag_pentax5_ifd.tag_0x001A);
    }
    std::string text() const { return m_out.str(); }

  private:
    void put(unsigned int value) { m_out << value; }
    void put(libgr::ExifType::rational_t r) { m_out << r.numerator << '/' << r.denominator; }
    void put(libgr::ExifType::srational_t r) { m_out << r.numerator << '/' << r.denominator; }
    template <typename T>
    void add(char const* name, std::vector<T> const& values) {
        for (T const& value : values) {
            m_out << ' ' << name << '=';
            put(value);
            m_out << ',';
        }
    }
    void add(char const* name, std::string const& text) {
        if (!text.empty()) {
            m_out << ' ' << name << '=' << text.c_str() << ':' << text.size() << ',';
        }
    }
    void add(char const* name, libgr::jpeg_bytes_t const& view) {
        if (view.size() != 0) {
            m_out << ' ' << name << '=' << view.size() << " from " << +view[0] << ',';
        }
    }

    std::ostringstream m_out;
};
