// SPDX-License-Identifier: MIT
// Tests of replacing files: each kind of old file, and each way to fail.
#include "utils/replacefile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <map>
#include <tuple>

#include "tests/support/files/testfiles.h"

namespace {

using namespace libutils;
namespace fs = std::filesystem;

/// Returns the files in a directory by name: the permissions and content of regular files.
std::map<std::string, std::string> listing(std::string const& directory) {
    std::map<std::string, std::string> all;
    for (fs::directory_entry const& entry : fs::directory_iterator(directory)) {
        fs::file_status const status = entry.symlink_status();
        std::ostringstream text;
        text << std::oct << static_cast<unsigned>(status.permissions()) << ' ';
        all[entry.path().filename()] =
            fs::is_regular_file(status) ? text.str() + read_file(entry.path()) : "special";
    }
    return all;
}

TEST(ReplaceFile, ReplacesOnlyRegularFilesAndLinks) {
    temp_dir_t const dir;
    mode_t const mask = ::umask(027);
    write_file(dir.file("old"), "old");
    fs::permissions(dir.file("old"), fs::perms{0604});
    fs::create_hard_link(dir.file("old"), dir.file("other name"));
    fs::create_symlink("other name", dir.file("link"));
    fs::create_directory(dir.file("folder"));
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    using row_t = std::tuple<std::string, int, std::string>;
    for (auto const& [name, error, found] :
         {row_t{"new", 0, "640 bytes"}, row_t{"old", 0, "604 bytes"}, row_t{"link", 0, "640 bytes"},
          row_t{"folder", EISDIR, ""}, row_t{"pipe", EEXIST, ""}, row_t{"missing/new", ENOENT, ""},
          row_t{"new/new", ENOTDIR, ""}}) {
        auto expected = listing(dir.path());
        if (error == 0) {
            expected[name] = found;
        }
        bool const is_replaced = replace_file(dir.file(name), "bytes");
        EXPECT_EQ(is_replaced ? 0 : errno, error) << name;
        EXPECT_EQ(listing(dir.path()), expected) << name;
    }
    ::umask(mask);
}

TEST(ReplaceFile, KeepsTheOldFileIfTheNewOneGetsTooLarge) {
    temp_dir_t const dir;
    write_file(dir.file("old"), "old");
    auto const before = listing(dir.path());
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    rlimit const small{4, limit.rlim_max};
    auto const handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    for (char const* name : {"old", "new"}) {
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
    for (char const* name : {"absolute", "last"}) {
        EXPECT_EQ(fs::path(follow_links(dir.file(name))).lexically_normal(), dir.file("last"));
    }
    EXPECT_EQ(follow_links(dir.file("circle")), dir.file("circle"));
    EXPECT_EQ(follow_links("no/such/file"), "no/such/file");
}

}  // namespace
