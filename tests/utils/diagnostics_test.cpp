// SPDX-License-Identifier: MIT
// Tests of the stream helpers.
#include "utils/diagnostics.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace libutils;

TEST(diagnostics, helpers_write_their_bytes_and_no_more) {
    std::ostringstream out;
    out << putspace(0) << putcn('-', 0) << '[' << putspace(2) << putcn('=', 3) << _putn{"a\0b", 3}
        << ']';
    EXPECT_EQ(out.str(), std::string("[  ===a\0b]", 10));
}

TEST(diagnostics, hex_inserts_the_byte_itself_and_leaves_the_stream) {
    std::ostringstream out;
    out.fill('*');
    out << _puthex<unsigned char>{'A'} << std::setw(4) << 31 << std::showbase
        << _puthex<unsigned char>{'B'} << std::setw(4) << 31;
    EXPECT_EQ(out.str(), "0A**310x0B**31");
}

TEST(diagnostics, keepflag_restores_at_the_end_of_the_block) {
    std::ostringstream out;
    {
        keepflag const keep(out);
        out << std::fixed << 0.5F << ' ';
    }
    out << 0.5F;
    EXPECT_EQ(out.str(), "0.500000 0.5");
}

}  // namespace
