// SPDX-License-Identifier: MIT
// Fuzzes the readers of the text form of every value type. A value that was read and written must
// read back as the same text.
#include <sstream>

#include "fuzz/fuzzinput.h"
#include "geometry/textstream.h"

namespace {

std::string text_of(libgr::mtype_reader const& reader) {
    std::ostringstream out;
    out << reader;
    return out.str();
}

/// Byte colours are written as characters, and a `pst3w` is written with other names than it reads.
bool reads_back(libgr::e_mtype_t type) {
    return type != libgr::MTYPE_PST3W &&
           (type < libgr::MTYPE_COL3AUB || type > libgr::MTYPE_COL1UB);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::istringstream in(input_t(data, size).rest());
    for (libgr::mtype_reader reader; in >> reader;) {
        std::string const text = text_of(reader);
        if (reads_back(reader.type) && !text.empty()) {
            std::istringstream again(text);
            libgr::mtype_reader copy;
            require(static_cast<bool>(again >> copy));
            require(text_of(copy) == text);
        }
    }
    return 0;
}
