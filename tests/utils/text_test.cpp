// SPDX-License-Identifier: MIT
// Tests of paths, tokens and stream helpers, also with names that aren't valid in the locale.
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

/// A path and its parts: dirname|basename|drive|dir|name|ext.
constexpr std::pair<char const*, char const*> path_rows[] = {
    {"/a/b/c.tar.gz", "/a/b/|c.tar||/a/b/|c.tar|.gz"},
    {"/a/b/", "/a/b/|||/a/b/||"},
    {"/a.d/c", "/a.d/|c||/a.d/|c|"},
    {".hidden", "|||||.hidden"},
    {"c:\\x/y.z", "c:\\x/|y|c:|\\x/|y|.z"},
    {"a:b:c.d", "|a:b:c|a:||b:c|.d"},
    {"/\xFF\xC3/\x80.jpg", "/\xFF\xC3/|\x80||/\xFF\xC3/|\x80|.jpg"},
    {"\xC3\xA4.\xE5\xAF\xBA/\xC3\xB6.png",
     "\xC3\xA4.\xE5\xAF\xBA/|\xC3\xB6||\xC3\xA4.\xE5\xAF\xBA/|\xC3\xB6|.png"}};

TEST(Path, SplitsInEveryLocale) {
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

TEST(Path, CutsPartsToTheSizeOfTheBuffer) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    std::string const run(2000, 'n');
    using row_t = std::tuple<char const*, std::size_t, std::string, std::string>;
    for (auto const& [path, size, directory, stem] :
         {row_t{"/ab/cd.e", 9, {"/ab/\0", 5}, {"cd\0", 3}},
          row_t{"/ab/cd.e", 3, {"/\0", 2}, {"ab\0", 3}}, row_t{"/ab/cd.e", 0, "", ""},
          row_t{"/abc", 4, {"/\0", 2}, {"abc\0", 4}}, row_t{"abc", 3, {"\0", 1}, "abc"},
          row_t{"\xC3\xA4\xC3\xB6x", 3, {"\0", 1}, {"\xC3\xA4\0", 3}}}) {
        std::string buffer(12, '~');
        EXPECT_EQ(basename(buffer.data(), path, size), std::strlen(stem.c_str())) << path << size;
        EXPECT_EQ(buffer, stem + std::string(12 - stem.size(), '~')) << path << size;
        buffer.assign(12, '~');
        EXPECT_EQ(dirname(buffer.data(), path, size), std::strlen(directory.c_str()));
        EXPECT_EQ(buffer, directory + std::string(12 - directory.size(), '~')) << path << size;
    }
    splitpath_t parts;
    split(parts, (run + ":" + run + "/" + run + "." + run).c_str());
    for (char const* part : {parts.drive, parts.dir, parts.name, parts.ext}) {
        EXPECT_EQ(std::strlen(part), 1023U);
    }
}

TEST(Path, ReplacesTheExtensionAndCutsOnlyTheStem) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    std::string const deep = std::string(1200, 'd') + ".d/", run(300, 'n');
    EXPECT_EQ(path_beside("d\\a.b.jpg", ".zvw"), "d\\a.b.zvw");
    EXPECT_EQ(path_beside((deep + run + ".jpg").c_str(), ".zvw"),
              deep + run.substr(0, 255) + ".zvw");
}

TEST(Path, SearchesDirectoriesInOrderAndComparesExtensions) {
    EXPECT_EQ(extcasecmp("a.JPG", 5, ".jpg"), 0);
    EXPECT_EQ(extcasecmp("g", 1, ".jpg"), -1);
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

TEST(Token, SplitsJoinsAndTrims) {
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
    EXPECT_FALSE(separate_first_token(pair, "kv", '='));
    EXPECT_EQ(pair.second, "old");
    EXPECT_TRUE(separate_first_token(pair, pair.first, '='));
    EXPECT_EQ(pair, pair_t("k", "v=w"));
    list_t list = {"a", "b"};
    concatenate_token(pair.first, list, ", ");
    EXPECT_EQ(pair.first, "a, b");
    std::string line = " a \t\r\n", text("\n b\0\t\r\n", 7), empty = "\r\n\r";
    chop(line);
    chop2(text);
    chop(empty);
    EXPECT_EQ(line + '|' + text + '|' + empty, " a \t|\n b|");
    EXPECT_EQ(stringcmp("-winsize", "-win"), 0);
    EXPECT_LT(stringcmp("-wi", "-win"), 0);
}

TEST(Diagnostics, EscapesOnlyControlCharacters) {
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
        EXPECT_EQ(out.str(), text) << "the stream isn't a terminal";
    }
}

TEST(Diagnostics, HelpersKeepTheFlagsOfTheStream) {
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
