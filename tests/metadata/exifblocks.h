// SPDX-License-Identifier: MIT
// Exif blocks as bytes, from the parts in the file EXIF_BLOCKS.
#pragma once

#include <algorithm>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>
#include <utility>

#include "tests/support/files/testfiles.h"

/// A TIFF block made of parts of exif_blocks.txt.
class block_t {
  public:
    /// `note` is the parts of the maker's note, separated by "+".
    block_t(bool is_intel, std::string make, std::string const& note)
        : m_is_intel(is_intel), m_bytes(is_intel ? "II" : "MM"), m_positions{{"order", 0}} {
        add("block");
        make.resize(24);
        m_bytes.replace(position("maker"), make.size(), make);
        std::size_t const size = m_bytes.size();
        std::istringstream parts(note);
        for (std::string part; std::getline(parts, part, '+');) {
            add(part);
        }
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
        put(position(field.substr(0, dot)) + offset, size, field.substr(equals + 1));
    }

    std::size_t position(std::string const& name) const { return m_positions.at(name); }
    std::string const& bytes() const { return m_bytes; }
    std::string app1() const { return std::string("Exif\0\0", 6) + m_bytes; }

  private:
    void add(std::string const& part) {
        static std::map<std::string, std::size_t> const sizes = {
            {"BYTE", 1}, {"SHORT", 2}, {"LONG", 4}};
        std::string const parts = read_file(EXIF_BLOCKS);
        std::istringstream in(parts.substr(parts.find("[" + part + "]") + part.size() + 2));
        for (std::string word, number; (in >> std::ws).peek() != '[' && in.good();) {
            bool const is_text = in.peek() == '"';
            in >> std::quoted(word);
            if (is_text) {
                m_bytes += word;
            } else if (word == "#") {
                std::getline(in, word);
            } else if (word.back() == ':') {
                m_positions[word.substr(0, word.size() - 1)] = m_bytes.size();
            } else if (in >> number) {
                put(m_bytes.size(), sizes.at(word), number);
            }
        }
    }
    void put(std::size_t at, std::size_t size, std::string const& number) {
        unsigned long const value = std::stoul(number, nullptr, 0);
        m_bytes.resize(std::max(m_bytes.size(), at + size));
        for (std::size_t i = 0; i < size; ++i) {
            m_bytes[at + (m_is_intel ? i : size - 1 - i)] = static_cast<char>(value >> (8 * i));
        }
    }

    bool m_is_intel;
    std::string m_bytes;
    std::map<std::string, std::size_t> m_positions;
};

/// A maker for each kind of note, and the parts of the note.
inline constexpr std::pair<char const*, char const*> makers_and_notes[] = {
    {"ACME", "none"},       {"Olympus", "signature+olympus"},
    {"OLYMPUS", "olympus"}, {"OM DIGITAL SOLUTIONS", "om"},
    {"Ricoh", "pentax"},
};
