// SPDX-License-Identifier: MIT
// Tests of paths, tokens, stream helpers and of replacing files.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <clocale>
#include <csignal>
#include <cstring>
#include <map>
#include <tuple>

#include "tests/support/files/testfiles.h"
#include "utils/diagnostics.h"
#include "utils/path.h"
#include "utils/replacefile.h"
#include "utils/token.h"

namespace {

using namespace libutils;
namespace fs = std::filesystem;
using list_t = std::list<std::string>;

/// A path and its parts: dirname|basename|drive|dir|name|ext.
constexpr std::pair<char const*, char const*> path_rows[] = {
    {"/a/b/c.tar.gz", "/a/b/|c.tar||/a/b/|c.tar|.gz"},
    {"/a/b/", "/a/b/|||/a/b/||"},
    {"/a.d/c", "/a.d/|c||/a.d/|c|"},
    {".hidden", "|||||.hidden"},
    {"c:\\x/y.z", "c:\\x/|y|c:|\\x/|y|.z"},
    {"a:b:c.d", "|a:b:c|a:||b:c|.d"},
    {"/\xFF\xC3/\x80.jpg", "/\xFF\xC3/|\x80||/\xFF\xC3/|\x80|.jpg"}};

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
    using row_t = std::tuple<char const*, std::size_t, std::string>;
    for (auto const& [path, size, stem] :
         {row_t{"/ab/cd.e", 3, {"ab\0", 3}}, row_t{"/ab/cd.e", 0, ""},
          row_t{"/abc", 4, {"abc\0", 4}}, row_t{"abc", 3, "abc"},
          row_t{"\xC3\xA4\xC3\xB6x", 3, {"\xC3\xA4\0", 3}}}) {
        std::string buffer(12, '~');
        EXPECT_EQ(basename(buffer.data(), path, size), std::strlen(stem.c_str())) << path << size;
        EXPECT_EQ(buffer, stem + std::string(12 - stem.size(), '~')) << path << size;
    }
    splitpath_t parts;
    split(parts, (run + ":" + run + "/" + run + "." + run).c_str());
    for (char const* part : {parts.drive, parts.dir, parts.name, parts.ext}) {
        EXPECT_EQ(std::strlen(part), 1023U);
    }
    std::string const folder = run + ".d/";
    EXPECT_EQ(path_beside("d\\a.b.jpg", ".zvw"), "d\\a.b.zvw");
    EXPECT_EQ(path_beside((folder + run).c_str(), ".zvw"), folder + run.substr(0, 255) + ".zvw");
}

TEST(Path, SearchesDirectoriesInOrderAndComparesExtensions) {
    EXPECT_EQ(extcasecmp(std::string("a.JPG"), ".jpg"), 0);
    EXPECT_EQ(extcasecmp("g", 1, ".jpg"), -1);
    EXPECT_EQ(extcasecmp(".JPG", 4, ".jpg"), 0);
    temp_dir_t const dir;
    for (std::string const name : {"one", "two"}) {
        fs::create_directory(dir.file(name));
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
          row_t{",a,", ",", {"x", "", "a"}}, row_t{std::string("a\0b", 3), ",", {"x", "a", "b"}}}) {
        list_t out = {"x"};
        separate_token(out, text, delimiters);
        EXPECT_EQ(out, tokens) << text;
    }
    std::pair<std::string, std::string> pair = {"k=v=w", "old"};
    EXPECT_FALSE(separate_first_token(pair, "kv", '='));
    EXPECT_EQ(pair.second, "old");
    EXPECT_TRUE(separate_first_token(pair, pair.first, '='));
    EXPECT_EQ(pair.first + "|" + pair.second, "k|v=w");
    list_t list = {"a", "b"};
    concatenate_token(pair.first, list, ", ");
    EXPECT_EQ(pair.first, "a, b");
    std::string line = " a \t\r\n", text("\n b\0\t\r\n", 7), empty = "\r\n\r";
    chop(line);
    chop2(text);
    chop(empty);
    EXPECT_EQ(line + '|' + text + '|' + empty, " a \t|\n b|");
    EXPECT_EQ(stringcmp("-winsize", "-win"), 0);
}

TEST(Diagnostics, EscapesOnlyControlCharactersAndKeepsTheFlags) {
    using row_t = std::tuple<char const*, char const*, char const*>;  // in UTF-8, as bytes
    for (auto const& [text, utf8, bytes] :
         {row_t{"\x1b[2J\n\t\x1f\x7f", R"(\x1b[2J\x0a\x09\x1f\x7f)", R"(\x1b[2J\x0a\x09\x1f\x7f)"},
          row_t{"\xC2\x9B", R"(\xc2\x9b)", "\xC2\\x9b"},
          row_t{"\xC2\xA0\xC2", "\xC2\xA0\xC2", "\xC2\xA0\xC2"},
          row_t{"\xE6\x97\xA5", "\xE6\x97\xA5", "\xE6\\x97\xA5"}}) {
        EXPECT_EQ(escape_controls(text, false), utf8);
        EXPECT_EQ(escape_controls(text, true), bytes);
    }
    std::ostringstream out;
    out.fill('*');
    out << putname(nullptr) << _putn{"a\0b", 3} << _puthex<unsigned char>{'A'} << std::setw(4) << 31
        << std::showbase << _puthex<unsigned char>{'B'} << std::setw(4) << 31;
    EXPECT_EQ(out.str(), std::string("a\0b0A**310x0B**31", 17));
}

/// Returns the files in a directory by name: the permissions and content of regular files.
std::map<std::string, std::string> listing(std::string const& directory) {
    std::map<std::string, std::string> all;
    for (fs::directory_entry const& entry : fs::directory_iterator(directory)) {
        fs::file_status const status = entry.symlink_status();
        std::string const permissions = std::to_string(static_cast<int>(status.permissions()));
        all[entry.path().filename()] =
            fs::is_regular_file(status) ? permissions + " " + read_file(entry.path()) : "special";
    }
    return all;
}

TEST(ReplaceFile, ReplacesOnlyFilesAndLinksAndOnlyByCompleteFiles) {
    temp_dir_t const dir;
    mode_t const mask = ::umask(027);
    write_file(dir.file("old"), "old");
    fs::permissions(dir.file("old"), fs::perms{0604});
    fs::create_hard_link(dir.file("old"), dir.file("other name"));
    fs::create_symlink("other name", dir.file("link"));
    fs::create_directory(dir.file("folder"));
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    using row_t = std::tuple<std::string, int, int>;
    for (auto const& [name, error, permissions] :
         {row_t{"new", 0, 0640}, row_t{"old", 0, 0604}, row_t{"link", 0, 0640},
          row_t{"folder", EISDIR, 0}, row_t{"pipe", EEXIST, 0}, row_t{"missing/new", ENOENT, 0},
          row_t{"new/new", ENOTDIR, 0}}) {
        auto expected = listing(dir.path());
        if (error == 0) {
            expected[name] = std::to_string(permissions) + " bytes";
        }
        bool const is_replaced = replace_file(dir.file(name), "bytes");
        EXPECT_EQ(is_replaced ? 0 : errno, error) << name;
        EXPECT_EQ(listing(dir.path()), expected) << name;
    }
    ::umask(mask);
    auto const before = listing(dir.path());
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    rlimit const small{4, limit.rlim_max};
    auto const handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    for (char const* name : {"old", "newer"}) {
        EXPECT_FALSE(replace_file(dir.file(name), "five!"));
        EXPECT_EQ(errno, EFBIG);
    }
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(listing(dir.path()), before);
}

TEST(FollowLinks, ReturnsTheTargetAlsoIfItIsMissing) {
    temp_dir_t const dir;
    fs::create_directory(dir.file("folder"));
    fs::create_symlink("folder/next", dir.file("first"));
    fs::create_symlink("../last", dir.file("folder/next"));
    fs::create_symlink(dir.file("first"), dir.file("absolute"));
    fs::create_symlink("circle", dir.file("circle"));
    EXPECT_EQ(fs::path(follow_links(dir.file("absolute"))).lexically_normal(), dir.file("last"));
    EXPECT_EQ(follow_links(dir.file("circle")), dir.file("circle"));
}

}  // namespace
