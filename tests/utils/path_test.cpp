// SPDX-License-Identifier: MIT
// Tests of the path functions, with names that aren't text in the locale among them.
#include "utils/path.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <clocale>

#include "tests/support/files/testfiles.h"

namespace {

using namespace libutils;

struct path_row_t {
    char const* path;
    char const* dirname;
    char const* basename;
    char const* parts;  ///< drive|dir|name|ext
};

constexpr path_row_t path_rows[] = {
    {"/a/b/c.tar.gz", "/a/b/", "c.tar", "|/a/b/|c.tar|.gz"},
    {"/a/b/c", "/a/b/", "c", "|/a/b/|c|"},
    {"/a", "/", "a", "|/|a|"},
    {"/a/b/", "/a/b/", "", "|/a/b/||"},
    {"/a.d/c", "/a.d/", "c", "|/a.d/|c|"},
    {".hidden", "", "", "|||.hidden"},
    {"", "", "", "|||"},
    {"c:\\x/y.z", "c:\\x/", "y", "c:|\\x/|y|.z"},
    {"x/y\\z.w", "x/y\\", "z", "|x/y\\|z|.w"},
    {"a:b:c.d", "", "a:b:c", "a:||b:c|.d"},
    {"/\xC3\xA4.\xE5\xAF\xBA/\xC3\xB6.png", "/\xC3\xA4.\xE5\xAF\xBA/", "\xC3\xB6",
     "|/\xC3\xA4.\xE5\xAF\xBA/|\xC3\xB6|.png"},
    {"/\xFF\xC3/\x80.jpg", "/\xFF\xC3/", "\x80", "|/\xFF\xC3/|\x80|.jpg"},  // no UTF-8
    {"a/b.\xE5\xAF", "a/", "b", "|a/|b|.\xE5\xAF"},                         // cut off
};

TEST(path, parts_in_every_locale) {
    for (char const* const locale : {"C", "C.UTF-8"}) {
        ASSERT_NE(std::setlocale(LC_ALL, locale), nullptr);
        for (path_row_t const& row : path_rows) {
            SCOPED_TRACE(row.path);
            std::string const path = row.path;
            EXPECT_EQ(dirname(path), row.dirname);
            EXPECT_EQ(basename(path), row.basename);
            EXPECT_EQ(baseptr(row.path), row.path + std::string(row.dirname).size());
            splitpath_t parts;
            split(parts, row.path);
            EXPECT_EQ(
                std::string(parts.drive) + '|' + parts.dir + '|' + parts.name + '|' + parts.ext,
                row.parts);
            char whole[4096];
            EXPECT_EQ(std::string(concat(whole, parts)), path);
            EXPECT_EQ(delimconvert(path), path);
            EXPECT_EQ(deliminvert(path), path);
        }
    }
}

TEST(path, char_forms_stay_inside_their_limit) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    struct {
        std::string path;
        std::size_t size;
        std::string dirname, basename;
    } const rows[] = {
        {"/ab/cd.e", 9, "/ab/", "cd"},
        {"/ab/cd.e", 6, "/ab/", "cd"},  // six characters: no "."
        {"/ab/cd.e", 3, "/", "ab"},
        {"/ab/cd.e", 0, "", ""},
        {"\xC3\xA4\xC3\xB6x", 3, "",
         "\xC3\xA4"},  // three characters, but whole ones in three bytes
        {"d/" + std::string(2000, 'n') + ".e", 1023, "d/", std::string(1021, 'n')},
        {std::string(2000, 'n') + "\xFF", 1023, "", std::string(1023, 'n')},
    };
    for (auto const& row : rows) {
        for (bool const base : {true, false}) {
            std::string const& expected = base ? row.basename : row.dirname;
            std::string room(row.size + 8, '~');
            std::size_t const length = base ? basename(room.data(), row.path.c_str(), row.size)
                                            : dirname(room.data(), row.path.c_str(), row.size);
            std::string all = expected;
            if (length < row.size) {
                all.push_back('\0');
            }
            all.resize(row.size + 8, '~');
            EXPECT_EQ(length, expected.size());
            EXPECT_EQ(room, all) << row.path << ' ' << row.size;
        }
    }
}

TEST(path, splitpath_cuts_each_part) {
    std::string const run(1500, 'x');
    splitpath_t parts;
    split(parts, (run + ":" + run + "/" + run + "." + run).c_str());
    for (char const* const part : {parts.drive, parts.dir, parts.name, parts.ext}) {
        EXPECT_EQ(std::string(part).size(), 1023U);
    }
    split(parts, run.c_str());
    EXPECT_EQ(std::string(parts.name), run.substr(0, 1023));
}

TEST(path, extcasecmp_looks_at_the_end) {
    EXPECT_EQ(extcasecmp("a.JPG", 5, ".jpg"), 0);
    EXPECT_EQ(extcasecmp("g", 1, ".jpg"), -1);
    EXPECT_NE(extcasecmp(std::string("picture.jpeg"), ".jpg"), 0);
    EXPECT_EQ(extcasecmp(std::string("x.tar.PnG"), ".png"), 0);
}

TEST(path, searchpath_goes_through_its_list_in_order) {
    temp_dir_t const dir;
    std::filesystem::create_directory(dir.file("one"));
    std::filesystem::create_directory(dir.file("two"));
    write_file(dir.file("one/a"), "");
    write_file(dir.file("two/a"), "");
    write_file(dir.file("two/b"), "");
    std::string const kept = ::getenv("PATH");
    ::setenv("PATH", (dir.file("no") + "::" + dir.file("one")).c_str(), 1);
    std::string const program = dir.file("two/program.x");
    EXPECT_EQ(searchpath(dir.file("one/a"), nullptr), dir.file("one/a"));
    EXPECT_EQ(searchpath("a", program.c_str()), dir.file("one/a"));
    EXPECT_EQ(searchpath("b", program.c_str()), dir.file("two//b"));
    EXPECT_EQ(searchpath("b", nullptr), "b");
    ::unsetenv("PATH");
    EXPECT_EQ(searchpath("a", program.c_str()), dir.file("two//a"));
    ::setenv("PATH", kept.c_str(), 1);
}

}  // namespace
