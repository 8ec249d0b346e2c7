// SPDX-License-Identifier: MIT
// Tests of the text form of every type: written, read back, and read from damaged text.
#include "geometry/textstream.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <sstream>
#include <tuple>
#include <utility>

#include "geometry/constants.h"

namespace {

using namespace libgr;

template <typename T>
std::string text(T const& value) {
    std::ostringstream out;
    out << std::setprecision(2) << value;
    return out.str();
}

TEST(TextStream, WritesEveryTypeAsItWasRead) {
    std::ifstream file(FORMS);
    int forms = 0;
    for (std::string form; std::getline(file >> std::ws, form, ';'); ++forms) {
        std::string const prefix = "unwritten ";
        bool const is_unwritten = form.starts_with(prefix);  // by the operator of mtype_reader
        form.erase(0, is_unwritten ? prefix.size() : 0);
        std::istringstream in(form + "rest");
        mtype_reader reader;
        EXPECT_TRUE(in >> reader) << form;
        EXPECT_EQ(reader.type, get_mtype(form.substr(0, form.find('(')).c_str())) << form;
        std::ostringstream written;
        write_value(written << std::setprecision(2), reader.value) << 0.5;
        EXPECT_EQ(written.str(), form + "0.5") << "the flags are kept";
        EXPECT_EQ(text(reader), is_unwritten ? "" : form);
        EXPECT_EQ(in.get(), 'r') << form;
    }
    EXPECT_EQ(forms, 21);
}

TEST(TextStream, WritesByteColoursAsCharacters) {
    std::ostringstream out;
    out << color3aub('a', 'b', 'c', 'd') << std::showbase << color1ub('x') << color1ub('y');
    EXPECT_EQ(out.str(), "col3aub(0a0b0c0d)0xcol1ub(0x)0xcol1ub(0y)");
    EXPECT_EQ(text(color1aub(0, 0xff)), std::string("col1aub(0\0000\377)", 13));

    std::istringstream in("col3aub(a,b,c,d) col3ub(x y z");
    mtype_reader reader;
    color3ub_t cut = white3ub;
    EXPECT_FALSE(in >> reader >> cut);
    EXPECT_EQ(text(reader) + text(cut), "col3aub(0a0b0c0d)" + text(color3ub('x', 'z', 255)));
}

TEST(TextStream, ReadsAnySeparatorAndKeepsUnreadFields) {
    constexpr direction2l_t before{3, 4}, read{640, 480};
    using row_t = std::pair<char const*, direction2l_t>;
    for (auto const& [bytes, expected] :
         {row_t{"dir2l(640, 480)", read}, row_t{"xyz (640;480", read},
          row_t{"(\n640\t/ 480 \n)", read}, row_t{"di,r)2l(640x480", read}, row_t{"", before},
          row_t{"(", before}, row_t{"(x, 7)", before}, row_t{"(640, x)", {640, 4}}}) {
        std::istringstream in(bytes);
        direction2l_t size = before;
        in >> size;
        EXPECT_EQ(size, expected) << bytes;
        EXPECT_EQ(in.fail(), expected != read) << bytes;
        EXPECT_EQ(in.peek(), EOF) << bytes;
    }
}

TEST(TextStream, NestedReadersStopAtAWrongName) {
    posture3w_t const given{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    std::istringstream in(text(given) + "pst3w(rot3(1,2,3), rot3(4,5,6), pos3(7,8,9))");
    posture3w_t posture{};
    EXPECT_TRUE(in >> posture);
    EXPECT_EQ(text(posture), text(posture3w_t{}));
    EXPECT_EQ(in.peek(), '(');
    in.ignore(99, 't') >> posture;
    EXPECT_EQ(text(posture), text(given));

    std::istringstream box("box2(pos2(1,2), dir2(3,4))");
    box2_t corners{{-1, -1}, {-1, -1}};
    box >> corners;
    EXPECT_EQ(text(corners), "box2(pos2(1.00, 2.00), pos2(-1.00, -1.00))");
}

TEST(TextStream, WritesAndReadsNamesAndSkipsUnknownTypes) {
    for (mtype_name_t const& row : mtype_table) {
        EXPECT_EQ(get_mtype(row.name), row.value);
        EXPECT_EQ(text(row.value), row.value == MTYPE_END ? "no type\n" : row.name);
    }
    EXPECT_EQ(text(static_cast<e_mtype_t>(99)), "range over\n");
    using row_t = std::tuple<char const*, e_mtype_t, int>;
    for (auto const& [name, wanted, next] :
         {row_t{"  d i r2l (", MTYPE_DIR2L, '('}, row_t{"col3a\n", MTYPE_COL3A, '\n'},
          row_t{"col", MTYPE_END, EOF}, row_t{"projectionprojection(", MTYPE_END, 't'},
          row_t{"", MTYPE_END, EOF}}) {
        std::istringstream in(name);
        e_mtype_t type = MTYPE_POS3;
        in >> std::noskipws >> type;
        EXPECT_EQ(type, wanted) << name;
        EXPECT_EQ(in.fail(), *name == '\0') << name;
        EXPECT_TRUE((in.flags() & std::ios_base::skipws) != 0) << name;
        EXPECT_EQ(in.peek(), next) << name;
    }
    std::istringstream in("unknown(1, 2)dir2l(3, 4)");
    mtype_reader unknown, reader;
    EXPECT_TRUE(in >> unknown >> reader);
    EXPECT_EQ(text(reader), "dir2l(3, 4)");
    EXPECT_FALSE(in >> reader);
}

}  // namespace
