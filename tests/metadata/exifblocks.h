// SPDX-License-Identifier: MIT
// Exif blocks with named fields.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <utility>

/// The types are 1 BYTE, 2 ASCII, 3 SHORT, 4 LONG, 5 RATIONAL, 7 UNDEFINED, 10 SRATIONAL, 13 IFD.
struct entry_t {
    char const* name;
    unsigned int tag, type, count, value;  ///< or the offset of the value
    unsigned int second = 0;               ///< SHORT value
};

/// A TIFF block with a maker's note. The comments without words are offsets.
class block_t {
  public:
    block_t(bool is_intel, std::string make, std::string const& note)
        : m_is_intel(is_intel), m_bytes(is_intel ? "II" : "MM"), m_positions{{"order", 0}} {
        make.resize(24);
        add("magic", 2, {42});
        add("start", 4, {8});
        add_ifd("0th", {{"Make", 0x010F, 2, 24, 86},  // 8
                        {"Orientation", 0x0112, 3, 1, 6},
                        {"XResolution", 0x011A, 5, 1, 110},
                        {"ResolutionUnit", 0x0128, 3, 1, 2},
                        {"ExifIFD", 0x8769, 4, 1, 124},
                        {"GPSIFD", 0x8825, 4, 1, 118}});
        add("next", 4, {226});
        m_bytes += make;                                       // 86
        add("ratio", 4, {72, 1});                              // 110
        add("GPS", 2, {0, 0, 0});                              // 118
        add_ifd("Exif", {{"ExposureTime", 0x829A, 5, 1, 190},  // 124
                         {"ExposureProgram", 0x8822, 1, 2, 2},
                         {"DateTimeOriginal", 0x9003, 2, 20, 198},
                         {"ExposureBias", 0x9204, 10, 1, 218},
                         {"MakerNote", 0x927C, 7, 0, 272}});
        add("time", 4, {0, 1, 125});      // the end of the IFD, and 190
        m_bytes += "2024:05:06 07:08:0";  // 198
        add("end", 1, {'9', 0});
        add("bias", 4, {0xFFFFFFFF, 3});                    // 218
        add_ifd("1st", {{"Orientation1", 0x0112, 3, 1, 8},  // 226
                        {"Thumbnail", 0x0201, 4, 1, 268},
                        {"ThumbnailSize", 0x0202, 4, 1, 4}});
        add("picture", 4, {0});
        m_bytes += "\xFF\xD8\xFF\xD9";  // 268
        std::size_t const size = m_bytes.size();
        add_note(note);
        change("MakerNote.count=" + std::to_string(m_bytes.size() - size));
    }

    /// Changes a field, for example "Make.type=14".
    void change(std::string const& field) {
        static std::map<std::string, std::pair<std::size_t, std::size_t>> const offsets_and_sizes =
            {{"tag", {0, 2}},   {"type", {2, 2}}, {"count", {4, 4}},  {"value", {8, 4}},
             {"short", {0, 2}}, {"long", {0, 4}}, {"entries", {0, 2}}};
        std::size_t const dot = field.find('.');
        std::size_t const equals = field.find('=');
        auto const [offset, size] = offsets_and_sizes.at(field.substr(dot + 1, equals - dot - 1));
        m_bytes.replace(position(field.substr(0, dot)) + offset, size,
                        word(std::stoul(field.substr(equals + 1), nullptr, 0), size));
    }

    std::size_t position(std::string const& name) const { return m_positions.at(name); }
    std::string const& bytes() const { return m_bytes; }
    std::string app1() const { return std::string("Exif\0\0", 6) + m_bytes; }

  private:
    void add_note(std::string const& note) {
        if (note.starts_with("signature")) {
            m_bytes += std::string("OLYMP\0\1\0", 8);
        }
        if (note.ends_with("olympus")) {  // offsets relative to the block
            add_ifd("Note", {{"100C", 0x100C, 5, 1, 110}, {"1015", 0x1015, 3, 2, 13, 14}});
        } else if (note == "om") {  // offsets relative to the note
            m_bytes += std::string("OM SYSTEM\0\0\0II\3\0", 16);
            add_ifd("Note", {{"Equipment", 0x2010, 13, 1, 54},
                             {"CameraSettings", 0x2020, 13, 1, 68},
                             {"Focus", 0x2050, 4, 1, 82}});
            add_ifd("EquipmentIFD", {{"0203", 0x0203, 2, 6, 96}});
            add_ifd("CameraSettingsIFD", {{"0500", 0x0500, 3, 1, 21}});
            add_ifd("FocusIFD", {{"031B", 0x031B, 3, 1, 37}});
            m_bytes += std::string("LENS1\0", 6);
        } else if (note == "pentax") {  // offsets relative to the note
            m_bytes += std::string("PENTAX \0II", 10);
            add_ifd("Note", {{"000D", 0x000D, 3, 1, 41}, {"Unknown", 0x0001, 5, 1, 36}});
            add("unknown", 4, {1, 2});
        }
    }
    void add(char const* name, std::size_t size, std::initializer_list<unsigned long> numbers) {
        m_positions[name] = m_bytes.size();
        for (unsigned long const number : numbers) {
            m_bytes += word(number, size);
        }
    }
    void add_ifd(char const* name, std::initializer_list<entry_t> entries) {
        add(name, 2, {entries.size()});
        for (entry_t const& entry : entries) {
            add(entry.name, 2, {entry.tag, entry.type});
            m_bytes += word(entry.count, 4);
            bool const is_short = entry.type == 1 || entry.type == 3;
            m_bytes +=
                is_short ? word(entry.value, 2) + word(entry.second, 2) : word(entry.value, 4);
        }
    }
    std::string word(unsigned long value, std::size_t size) const {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i) {
            bytes[m_is_intel ? i : size - 1 - i] = static_cast<char>(value >> (8 * i));
        }
        return bytes;
    }

    bool m_is_intel;
    std::string m_bytes;
    std::map<std::string, std::size_t> m_positions;
};

/// A maker for each kind of note, and the kind.
inline constexpr std::pair<char const*, char const*> makers_and_notes[] = {
    {"ACME", "none"},       {"Olympus", "signature+olympus"},
    {"OLYMPUS", "olympus"}, {"OM DIGITAL SOLUTIONS", "om"},
    {"Ricoh", "pentax"},
};
