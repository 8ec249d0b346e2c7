// SPDX-License-Identifier: MIT
// The text form of every type: as written, as read back, and as read from text that is damaged.
#include "geometry/textstream.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "geometry/constants.h"

namespace libgr {

namespace {

template <typename T>
std::string text(T const& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

constexpr matrix3w_t MATRIX{{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}}};

/// The text forms of the types, each up to a semicolon. A reader doesn't write out the mute ones.
std::vector<std::string> forms() {
    std::ifstream in(FORMS);
    std::vector<std::string> all;
    for (std::string form; std::getline(in >> std::ws, form, ';');)
        all.push_back(form);
    return all;
}

TEST(TextStream, EveryTypeIsWrittenAsItWasRead) {
    EXPECT_EQ(forms().size(), 30U);
    for (std::string form : forms()) {
        bool const mute = form.starts_with("mute ");
        form.erase(0, mute ? 5 : 0);
        std::istringstream in(form + "rest");
        mtype_reader reader;
        EXPECT_TRUE(in >> reader) << form;
        EXPECT_EQ(reader.type, get_mtype(form.substr(0, form.find('(')).c_str())) << form;
        std::ostringstream written;
        write_value(written, reader.value);
        EXPECT_EQ(written.str(), form);
        EXPECT_EQ(text(reader), mute ? "" : form);
        EXPECT_EQ(in.get(), 'r') << form;
    }
}

TEST(TextStream, PrecisionIsTheStreamsAndByteColoursAreCharacters) {
    std::ostringstream out;
    out << std::setprecision(2) << rotation3(0.5f, IdirY) << 0.5;
    EXPECT_EQ(out.str(), "rot3(0.50, dir3(0.00, 1.00, 0.00))0.5");
    out.str("");
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
    matrix3w_t view{};
    EXPECT_TRUE(in >> size >> view);
    EXPECT_EQ(size, direction2l(640, 480));
    EXPECT_EQ(view, MATRIX);
}

TEST(TextStream, DamageLeavesWhatWasNotRead) {
    std::string const whole = text(MATRIX);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        std::istringstream in(whole.substr(0, length));
        matrix3w_t m{};
        bool const complete = static_cast<bool>(in >> m);
        int read = 0;
        while (read < 16 && m.data()[read] != 0)
            ++read;
        EXPECT_EQ(complete, read == 16) << length;
        // The last number may itself be cut short.
        for (int i = 0; i < 16; ++i)
            EXPECT_TRUE(i + 1 == read || m.data()[i] == (i < read ? MATRIX.data()[i] : 0))
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
}

TEST(TextStream, Names) {
    for (mtype_name_t const& row : mtype_table) {
        EXPECT_EQ(row.value, &row - mtype_table);
        EXPECT_EQ(get_mtype(row.name), row.value);
        EXPECT_EQ(text(row.value), row.value == MTYPE_END ? "no type\n" : row.name);
    }
    EXPECT_EQ(text(static_cast<e_mtype_t>(99)), "range over\n");
    std::tuple<char const*, e_mtype_t, int> const rows[] = {
        {"  d i r2l (", MTYPE_DIR2L, '('},
        {"col3,", MTYPE_COL3, ','},
        {"col3a\n", MTYPE_COL3A, '\n'},
        {"col", MTYPE_END, EOF},
        {"(", MTYPE_END, '('},
        {"projectionprojection(", MTYPE_END, 't'},
        {"", MTYPE_END, EOF},
    };
    for (auto const& [name, wanted, next] : rows) {
        std::istringstream in(name);
        e_mtype_t type = MTYPE_POS3;
        in >> std::noskipws >> type;
        EXPECT_EQ(type, wanted) << name;
        EXPECT_NE(in.flags() & std::ios_base::skipws, 0);
        EXPECT_EQ(in.peek(), next) << name;
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
    for (std::string const& form : forms()) {
        for (std::size_t length = 1; length <= form.size(); ++length) {
            std::string damaged = form.substr(0, length);
            damaged[random() % length] = static_cast<char>(random());
            std::istringstream in(damaged);
            mtype_reader reader;
            for (int values = 0; in >> reader; ++values)
                ASSERT_LE(values, 200) << damaged;
        }
    }
}

}  // namespace

}  // namespace libgr
