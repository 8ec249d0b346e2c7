// SPDX-License-Identifier: MIT
// The text form of every type: as written, as read back, and as read from text that is damaged.
#include "geometry/textstream.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

#include "geometry/constants.h"

namespace libgr {

namespace {

template <typename T>
std::string text(T const& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

constexpr char MATRIX_TEXT[] =
    "mtx3w(\t1.000000, 2.000000, 3.000000, 4.000000"
    ",\n\t5.000000, 6.000000, 7.000000, 8.000000"
    ",\n\t9.000000, 10.000000, 11.000000, 12.000000"
    ",\n\t13.000000, 14.000000, 15.000000, 16.000000)";
constexpr matrix3w_t MATRIX{{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}}};
constexpr matrix3w_t UNREAD{
    {{-1, -1, -1, -1}, {-1, -1, -1, -1}, {-1, -1, -1, -1}, {-1, -1, -1, -1}}};

struct form_t {
    e_mtype_t type;
    std::string text;
    bool writes = true;  ///< Whether a reader that holds the value writes it out.
};

form_t const FORMS[] = {
    {MTYPE_FLOAT, "float(1.500000)"},
    {MTYPE_POS3, "pos3(1.000000, 2.000000, 3.000000)"},
    {MTYPE_DIR3, "dir3(1.000000, 2.000000, 3.000000)"},
    {MTYPE_POS2, "pos2(1.000000, -2.000000)"},
    {MTYPE_DIR2, "dir2(1.000000, -2.000000)"},
    {MTYPE_POS2L, "pos2l(-1, 2147483647)"},
    {MTYPE_DIR2L, "dir2l(800, 600)"},
    {MTYPE_QUA, "qua(1.000000, 2.000000, 3.000000, 4.000000)"},
    {MTYPE_ROT3, "rot3(0.500000, dir3(0.000000, 1.000000, 0.000000))"},
    {MTYPE_PLR3, "plr3(1.000000, 2.000000, 3.000000)"},
    {MTYPE_ANG3, "ang3(1.000000, 2.000000, 3.000000)"},
    {MTYPE_SRT3, "srt3(9.000000, dir3(1.000000, 2.000000, 3.000000))"},
    {MTYPE_IRT3,
     "irt3(rev3(1.000000, 2.000000, 3.000000), srt3(4.000000, dir3(5.000000, 6.000000, "
     "7.000000)))"},
    {MTYPE_VEC3W, "vec3w(1.000000, 2.000000, 3.000000, 4.000000)"},
    {MTYPE_COL3, "col3(0.100000, 0.200000, 0.300000)"},
    {MTYPE_COL3A, "col3a(0.100000, 0.200000, 0.300000, 1.000000)"},
    {MTYPE_TXC1, "txc1(0.250000)"},
    {MTYPE_TXC2, "txc2(0.250000, 0.500000)"},
    {MTYPE_TXC2Q, "txc2q(0.250000, 0.500000, 1.000000)"},
    {MTYPE_TXC3, "txc3(0.250000, 0.500000, 0.750000)"},
    {MTYPE_TXC3Q, "txc3q(0.250000, 0.500000, 0.750000, 1.000000)"},
    {MTYPE_MTX3W, MATRIX_TEXT},
    {MTYPE_BOX2, "box2(pos2(1.000000, 2.000000), pos2(3.000000, 4.000000))", false},
    {MTYPE_BOX3, "box3(pos3(1.000000, 2.000000, 3.000000), pos3(4.000000, 5.000000, 6.000000))",
     false},
    {MTYPE_DIM2, "dim2(640, 4294967296)", false},
    {MTYPE_DIM3, "dim3(1, 2, 3)", false},
    {MTYPE_SURFACE, "surface(1.000000, 2.000000, 3.000000, 4.000000)", false},
    {MTYPE_LINE2D, "line2d(1.000000, 2.000000, 3.000000)", false},
    {MTYPE_LINE3D,
     std::string("line3d(dir3(1.000000, 2.000000, 3.000000), ") + MATRIX_TEXT + ", " + MATRIX_TEXT +
         ")",
     false},
    {MTYPE_PROJECTION,
     "projection(-400.000000, 400.000000, -300.000000, 300.000000, 0.000000, 10000.000000)"},
};

TEST(TextStream, EveryTypeIsWrittenAsItWasRead) {
    for (form_t const& form : FORMS) {
        std::istringstream in(form.text + "rest");
        mtype_reader reader;
        EXPECT_TRUE(in >> reader) << form.text;
        EXPECT_EQ(reader.type, form.type) << form.text;
        std::ostringstream written;
        write_value(written, reader.value);
        EXPECT_EQ(written.str(), form.text);
        EXPECT_EQ(text(reader), form.writes ? form.text : "");
        EXPECT_EQ(in.get(), 'r') << form.text;
    }
}

TEST(TextStream, FlagsStayAndPrecisionIsTheStreams) {
    std::ostringstream out;
    out.precision(2);
    out << rotation3(0.5f, IdirY) << ' ' << 0.5;
    EXPECT_EQ(out.str(), "rot3(0.50, dir3(0.00, 1.00, 0.00)) 0.5");
}

TEST(TextStream, ByteColoursAreCharactersBehindZeros) {
    std::ostringstream out;
    out << color3aub('a', 'b', 'c', 'd') << std::showbase << color1ub('x') << color1ub('y');
    EXPECT_EQ(out.str(), "col3aub(0a0b0c0d)0xcol1ub(0x)0xcol1ub(0y)");
    EXPECT_EQ(text(color1aub(0, 0xff)), std::string("col1aub(0\0000\377)", 13));

    std::istringstream in("col3aub(a,b,c,d) col3ub(x y z");
    mtype_reader reader;
    in >> reader;
    EXPECT_EQ(text(reader), "col3aub(0a0b0c0d)");
    color3ub_t cut = white3ub;
    EXPECT_FALSE(in >> cut);
    EXPECT_EQ(cut, color3ub('x', 'z', 255));
}

TEST(TextStream, ReadersTakeAnySeparatorAndLookPastBlanks) {
    for (char const* good : {"pos3(1, 2, 3)", "xyz (1;2;3", "(\n1\t/ 2 , 3\n)", "po,s3)(1x2x3"}) {
        std::istringstream in(good);
        position3_t p = origin;
        EXPECT_TRUE(in >> p) << good;
        EXPECT_EQ(p, position3(1, 2, 3)) << good;
        EXPECT_EQ(in.peek(), EOF) << good;
    }
    std::istringstream in("size (640 , 480)\nview(1;2;3;4 , 5,6,7,8\n,9,10,11,12,13,14,15,16");
    direction2l_t size = datum2l;
    matrix3w_t view = UNREAD;
    EXPECT_TRUE(in >> size >> view);
    EXPECT_EQ(size, direction2l(640, 480));
    EXPECT_EQ(view, MATRIX);
}

TEST(TextStream, DamageLeavesWhatWasNotRead) {
    std::string const whole = MATRIX_TEXT;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        std::istringstream in(whole.substr(0, length));
        matrix3w_t m = UNREAD;
        bool const complete = static_cast<bool>(in >> m);
        int read = 0;
        while (read < 16 && m.data()[read] != -1)
            ++read;
        EXPECT_EQ(complete, read == 16) << length;
        // The last number may itself be cut short.
        for (int i = 0; i < 16; ++i)
            EXPECT_TRUE(i + 1 == read || m.data()[i] == (i < read ? MATRIX.data()[i] : -1))
                << length;
    }
    for (char const* bad :
         {"", "   ", "dir2l", "(", "(x, 7)", "\xff\xd8\xff", "(99999999999, 7)"}) {
        std::istringstream in(bad);
        direction2l_t size{3, 4};
        EXPECT_FALSE(in >> size) << bad;
        EXPECT_EQ(size, direction2l(3, 4)) << bad;
    }
}

TEST(TextStream, NestedReadersStopAtAnotherName) {
    std::istringstream pose(text(posture3w({1, 2, 3}, {4, 5, 6}, {7, 8, 9})));
    posture3w_t p{};
    EXPECT_TRUE(pose >> p) << "stopping is no failure";
    EXPECT_EQ(p.turn1.x, 0);
    EXPECT_EQ(pose.peek(), '(') << "behind the name rev3";
    std::istringstream asked("pst3w(rot3(1,2,3), rot3(4,5,6), pos3(7,8,9))");
    EXPECT_TRUE(asked >> p);
    EXPECT_EQ(text(p), text(posture3w({1, 2, 3}, {4, 5, 6}, {7, 8, 9})));

    std::istringstream box("box2(pos2(1,2), dir2(3,4))");
    box2_t b{{-1, -1}, {-1, -1}};
    box >> b;
    EXPECT_EQ(text(b), "box2(pos2(1.000000, 2.000000), pos2(-1.000000, -1.000000))");
    std::istringstream motion("irt3(rev3(1,2,3), srt3(4, pos3(5,6,7)))");
    inertial3_t i{};
    motion >> i;
    EXPECT_EQ(i.revolution.x, 0) << "changes only as a whole";
}

TEST(TextStream, Names) {
    for (mtype_name_t const& row : mtype_table) {
        EXPECT_EQ(row.value, &row - mtype_table);
        EXPECT_EQ(get_mtype(row.name), row.value);
        EXPECT_EQ(text(row.value), row.value == MTYPE_END ? "no type\n" : row.name);
    }
    EXPECT_EQ(text(static_cast<e_mtype_t>(99)), "range over\n");
    struct {
        std::string text;
        e_mtype_t type;
        int next;
    } const rows[] = {
        {"  d i r2l (", MTYPE_DIR2L, '('},
        {"col3,", MTYPE_COL3, ','},
        {"col3a\n", MTYPE_COL3A, '\n'},
        {"col", MTYPE_END, EOF},
        {"(", MTYPE_END, '('},
        {"projectionprojection(", MTYPE_END, 't'},
        {"", MTYPE_END, EOF},
    };
    for (auto const& row : rows) {
        std::istringstream in(row.text);
        in >> std::noskipws;
        e_mtype_t type = MTYPE_POS3;
        in >> type;
        EXPECT_EQ(type, row.type) << row.text;
        EXPECT_NE(in.flags() & std::ios_base::skipws, 0);
        EXPECT_EQ(in.peek(), row.next) << row.text;
    }
    std::istringstream in("unknown(1, 2)dir2l(3, 4)");
    mtype_reader unknown;
    mtype_reader reader;
    EXPECT_TRUE(in >> unknown >> reader);
    EXPECT_EQ(text(unknown) + text(reader), "dir2l(3, 4)");
    EXPECT_FALSE(in >> reader) << "a loop over a stream ends with it";
}

TEST(TextStream, NoTextKeepsAReaderForEver) {
    std::mt19937 random(9);
    for (form_t const& form : FORMS) {
        for (std::size_t length = 1; length <= form.text.size(); ++length) {
            std::string damaged = form.text.substr(0, length);
            damaged[random() % length] = static_cast<char>(random());
            std::istringstream in(damaged);
            mtype_reader reader;
            for (int values = 0; in >> reader; ++values)
                ASSERT_LE(values, 200) << damaged;
        }
    }
}

TEST(TextStream, TriangleInLines) {
    triangle_t t{
        MATRIX, {1, 2, 3, 4}, {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, {}, {{1, 2, 3}, {4, 5, 6}}};
    std::ostringstream out;
    out.precision(0);
    out << t;
    EXPECT_EQ(out.str(),
              "s: surface(1, 2, 3, 4)\n"
              "mtx3w(\t1, 2, 3, 4,\n\t5, 6, 7, 8,\n\t9, 10, 11, 12,\n\t13, 14, 15, 16)\n"
              "l: line2d(1, 2, 3), line2d(4, 5, 6), line2d(7, 8, 9)\n"
              "p: pos3(0, 0, 0), pos3(0, 0, 0), pos3(0, 0, 0)\n"
              "1, 2, 3\n4, 5, 6\n0, 0, 0\n");
}

}  // namespace

}  // namespace libgr
