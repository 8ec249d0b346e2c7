// SPDX-License-Identifier: MIT
// Tests of paths, tokens and stream helpers, with names that aren't text in the locale among them.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <array>
#include <clocale>
#include <cstring>
#include <sstream>
#include <tuple>

#include "tests/support/files/testfiles.h"
#include "utils/diagnostics.h"
#include "utils/path.h"
#include "utils/token.h"

namespace {

using namespace libutils;
using list_t = std::list<std::string>;

/// A path and its parts: dirname|basename|drive|dir|name|ext. Two aren't UTF-8.
constexpr std::pair<char const*, char const*> path_rows[] = {
    {"/a/b/c.tar.gz", "/a/b/|c.tar||/a/b/|c.tar|.gz"},
    {"/a/b/", "/a/b/|||/a/b/||"},
    {"/a.d/c", "/a.d/|c||/a.d/|c|"},
    {".hidden", "|||||.hidden"},
    {"", "|||||"},
    {"c:\\x/y.z", "c:\\x/|y|c:|\\x/|y|.z"},
    {"x/y\\z.w", "x/y\\|z||x/y\\|z|.w"},
    {"a:b:c.d", "|a:b:c|a:||b:c|.d"},
    {"/\xFF\xC3/\x80.jpg", "/\xFF\xC3/|\x80||/\xFF\xC3/|\x80|.jpg"},
    {"a/b.\xE5\xAF", "a/|b||a/|b|.\xE5\xAF"},
    {"\xC3\xA4.\xE5\xAF\xBA/\xC3\xB6.png",
     "\xC3\xA4.\xE5\xAF\xBA/|\xC3\xB6||\xC3\xA4.\xE5\xAF\xBA/|\xC3\xB6|.png"}};

TEST(path, parts_in_every_locale) {
    for (char const* const locale : {"C", "C.UTF-8"}) {
        ASSERT_NE(std::setlocale(LC_ALL, locale), nullptr);
        for (auto const& [given, expected] : path_rows) {
            std::string const path = given, bar = "|";
            splitpath_t parts;
            split(parts, given);
            EXPECT_EQ(dirname(path) + bar + basename(path) + bar + parts.drive + bar + parts.dir +
                          bar + parts.name + bar + parts.ext,
                      expected);
            EXPECT_EQ(baseptr(given), given + dirname(path).size());
            char whole[4096];
            EXPECT_EQ(concat(whole, parts), path);
            EXPECT_EQ(delimconvert(path) + deliminvert(path), path + path);
        }
    }
    EXPECT_EQ(wstr2str(str2wstr("\xC3\xA4") + L"\U0001F408"), "\xC3\xA4\xF0\x9F\x90\x88");
    EXPECT_EQ(wstr2str(str2wstr("a\xFF") + static_cast<wchar_t>(0xD800)), "");
}

TEST(path, fixed_rooms_are_not_left) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    std::string const run(2000, 'n');
    using row_t = std::tuple<std::string, std::size_t, std::string, std::string>;
    for (auto const& [path, size, directory, stem] :
         {row_t{"/ab/cd.e", 9, "/ab/", "cd"}, row_t{"/ab/cd.e", 6, "/ab/", "cd"},
          row_t{"/ab/cd.e", 3, "/", "ab"}, row_t{"/ab/cd.e", 0, "", ""},
          row_t{"\xC3\xA4\xC3\xB6x", 3, "", "\xC3\xA4"},  // whole characters
          row_t{"d/" + run + ".e", 1023, "d/", std::string(1021, 'n')},
          row_t{run + "\xFF", 1023, "", std::string(1023, 'n')}}) {
        for (bool const base : {true, false}) {
            std::string room(size + 8, '~'), expected = base ? stem : directory;
            std::size_t const length = base ? basename(room.data(), path.c_str(), size)
                                            : dirname(room.data(), path.c_str(), size);
            expected.resize(std::min(length + 1, size), '\0');
            expected.resize(size + 8, '~');
            EXPECT_EQ(room, expected) << path << ' ' << size;
        }
    }
    splitpath_t parts;
    for (std::string const& path : {run, run + ":" + run + "/" + run + "." + run}) {
        split(parts, path.c_str());
        EXPECT_EQ(std::string(parts.name), run.substr(0, 1023));
    }
    EXPECT_EQ(strlen(parts.drive) + strlen(parts.dir) + strlen(parts.ext), 3 * 1023U);
}

TEST(path, files_beside_a_picture_keep_its_whole_directory) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    std::string const deep = std::string(1200, 'd') + ".d/", run(300, 'n');
    using row_t = std::array<std::string, 3>;  // directory, name, stem
    for (auto const& [directory, name, stem] :
         {row_t{"", "a.jpg", "a"}, row_t{"d\\", "a.b.jpg", "a.b"}, row_t{deep, "a", "a"},
          row_t{deep, run + ".jpg", run.substr(0, 255)}}) {
        EXPECT_EQ(path_beside((directory + name).c_str(), ".zvw"), directory + stem + ".zvw");
    }
}

TEST(path, searches_in_order_and_compares_ends) {
    EXPECT_TRUE(extcasecmp("a.JPG", 5, ".jpg") == 0 && extcasecmp("g", 1, ".jpg") == -1);
    EXPECT_NE(extcasecmp(std::string("picture.jpeg"), ".jpg"), 0);
    temp_dir_t const dir;
    for (std::string const name : {"one", "two"}) {
        std::filesystem::create_directory(dir.file(name));
        write_file(dir.file(name + "/a.msg"), "");
    }
    std::string const program = dir.file("two/program.x");
    ::setenv("PATH", (dir.file("no") + "::" + dir.file("one")).c_str(), 1);
    EXPECT_EQ(searchpath("a.msg", program.c_str()), dir.file("one/a.msg"));
    ::unsetenv("PATH");
    EXPECT_EQ(searchpath("a.msg", program.c_str()), dir.file("two//a.msg"));
    EXPECT_EQ(searchpath("a.msg", nullptr), "a.msg");
}

TEST(token, separates_joins_and_trims) {
    using row_t = std::tuple<std::string, char const*, list_t>;
    for (auto const& [text, delimiters, tokens] :
         {row_t{"a  b", " \t", {"x", "a", "", "b"}}, row_t{"", " ", {"x"}},
          row_t{",a,", ",", {"x", "", "a"}}, row_t{"a b", "", {"x", "a b"}},
          row_t{std::string("a\0b", 3), ",", {"x", "a", "b"}}}) {
        list_t out = {"x"};
        separate_token(out, text, delimiters);
        EXPECT_EQ(out, tokens) << text;
    }
    using pair_t = std::pair<std::string, std::string>;
    pair_t pair = {"k=v=w", "old"};
    EXPECT_TRUE(!separate_first_token(pair, "kv", '=') && pair.second == "old");
    EXPECT_TRUE(separate_first_token(pair, pair.first, '=') && pair == pair_t("k", "v=w"));
    list_t list = {"a", "b"};
    concatenate_token(pair.first, list, ", ");
    EXPECT_EQ(pair.first, "a, b");
    for (std::string text : {std::string("\r\n\r"), std::string(" a \t\r\n\0", 7)}) {
        std::string line = text;
        chop(line);
        chop2(text);
        EXPECT_EQ(line + '|' + text, line.empty() ? "|" : std::string(" a \t\r\n\0| a", 10));
    }
    EXPECT_TRUE(stringcmp("-winsize", "-win") == 0 && stringcmp("-wi", "-win") < 0);
}

TEST(diagnostics, control_characters_are_escaped_and_nothing_else) {
    using row_t = std::array<char const*, 3>;  // in UTF-8, as bytes
    for (auto const& [text, utf8, bytes] :
         {row_t{"a\\x1b \xC3\xA4", "a\\x1b \xC3\xA4", "a\\x1b \xC3\xA4"},
          row_t{"\x1b[2J\n\t\x1f\x7f", R"(\x1b[2J\x0a\x09\x1f\x7f)", R"(\x1b[2J\x0a\x09\x1f\x7f)"},
          row_t{"\xC2\x9B", R"(\xc2\x9b)", "\xC2\\x9b"},
          row_t{"\xC2\xA0\xC2", "\xC2\xA0\xC2", "\xC2\xA0\xC2"},
          row_t{"\xE6\x97\xA5", "\xE6\x97\xA5", "\xE6\\x97\xA5"}}) {
        EXPECT_EQ(escape_controls(text, false), utf8);
        EXPECT_EQ(escape_controls(text, true), bytes);
        std::ostringstream out;
        out << putname(text) << putname(nullptr);
        EXPECT_EQ(out.str(), text) << "no terminal";
    }
}

TEST(diagnostics, helpers_leave_the_stream_as_it_was) {
    std::ostringstream out;
    out.fill('*');
    out << putspace(0) << putcn('-', 0) << '[' << putspace(2) << putcn('=', 3) << _putn{"a\0b", 3}
        << _puthex<unsigned char>{'A'} << std::setw(4) << 31 << std::showbase
        << _puthex<unsigned char>{'B'} << std::setw(4) << 31;
    keepflag(out).stream << std::fixed << 0.5F << ' ';
    out << 0.5F;
    EXPECT_EQ(out.str(), std::string("[  ===a\0b0A**310x0B**310.500000 0.5", 35));
}

}  // namespace
