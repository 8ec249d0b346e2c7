// SPDX-License-Identifier: MIT
// Exif blocks as bytes, from the parts in the file EXIF_BLOCKS.
#pragma once

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <string>
#include <utility>

#include "tests/support/files/testfiles.h"

/// A TIFF block in one byte order.
struct block_t {
    bool intel;
    std::string bytes = {};

    std::string app1() const { return std::string("Exif\0\0", 6) + bytes; }
    /// Overwrites the bytes at an offset with a word, written as "size:value".
    void put(std::size_t at, std::string const& word) {
        auto const size = static_cast<unsigned int>(word[0] - '0');
        unsigned long const value = std::stoul(word.substr(2), nullptr, 0);
        bytes.resize(std::max(bytes.size(), at + size));
        for (unsigned int i = 0; i < size; ++i) {
            bytes[at + (intel ? i : size - 1 - i)] = static_cast<char>(value >> (8 * i));
        }
    }
    /// Appends the named part of EXIF_BLOCKS.
    void add(std::string const& part) {
        std::string const parts = read_file(EXIF_BLOCKS);
        std::istringstream in(parts.substr(parts.find("[" + part + "]") + part.size() + 2));
        for (std::string token; (in >> std::ws).peek() != '[' && in.good();) {
            bool const is_text = in.peek() == '"';
            in >> std::quoted(token);
            if (is_text) {
                bytes += token;
            } else if (token == "#") {
                std::getline(in, token);
            } else {
                put(bytes.size(), token);
            }
        }
    }
};

/// Returns a block with a maker's name of up to 24 characters and the named part as its note.
inline block_t good_block(bool intel, std::string maker, std::string const& note) {
    block_t block{intel, intel ? "II" : "MM"}, noted{intel};
    block.add("block");
    noted.add(note);
    maker.resize(24);
    block.bytes.replace(86, 24, maker);
    block.put(178, "4:" + std::to_string(noted.bytes.size()));
    block.bytes += noted.bytes;
    return block;
}

/// A maker for each kind of note, with the part that has such a note.
inline constexpr std::pair<char const*, char const*> makers_and_notes[] = {
    {"ACME", "plain"},   {"Olympus", "olympus"},
    {"OLYMPUS", "bare"}, {"OM DIGITAL SOLUTIONS", "om"},
    {"Ricoh", "pentax"},
};
