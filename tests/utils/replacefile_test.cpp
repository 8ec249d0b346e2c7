// SPDX-License-Identifier: MIT
// Tests of replacing files: what is there before, and each way to fail.
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

/// What is in a directory: by name, the permissions and the content or the target of a link.
std::map<std::string, std::string> listing(std::string const& directory) {
    std::map<std::string, std::string> all;
    for (fs::directory_entry const& entry : fs::directory_iterator(directory)) {
        fs::file_status const status = entry.symlink_status();
        std::ostringstream text;
        text << std::oct << static_cast<unsigned>(status.permissions()) << ' ';
        all[entry.path().filename()] =
            fs::is_symlink(status)        ? "-> " + fs::read_symlink(entry).string()
            : fs::is_regular_file(status) ? text.str() + read_file(entry.path())
                                          : "special";
    }
    return all;
}

TEST(replace_file, replaces_files_and_links_and_nothing_else) {
    temp_dir_t const dir;
    mode_t const mask = ::umask(027);
    write_file(dir.file("old"), "old");
    fs::permissions(dir.file("old"), fs::perms{0604});
    fs::create_hard_link(dir.file("old"), dir.file("other name"));
    write_file(dir.file("back\\slash"), "old");
    write_file(dir.file("read-only"), "old");
    fs::permissions(dir.file("read-only"), fs::perms{0400});
    fs::create_symlink("other name", dir.file("link"));
    fs::create_symlink("missing", dir.file("dangling"));
    fs::create_directory(dir.file("folder"));
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    using row_t = std::tuple<std::string, int, std::string>;
    for (auto const& [name, error, found] :
         {row_t{"new", 0, "640 bytes"}, row_t{"old", 0, "604 bytes"},
          row_t{"back\\slash", 0, "640 bytes"}, row_t{"read-only", 0, "400 bytes"},
          row_t{"link", 0, "640 bytes"}, row_t{"dangling", 0, "640 bytes"},
          row_t{"folder", EISDIR, ""}, row_t{"pipe", EEXIST, ""}, row_t{"missing/new", ENOENT, ""},
          row_t{"new/new", ENOTDIR, ""}, row_t{std::string(256, 'n'), ENAMETOOLONG, ""}}) {
        auto expected = listing(dir.path());
        if (error == 0) {
            expected[name] = found;
        }
        errno = 0;
        EXPECT_EQ(replace_file(dir.file(name), "bytes"), error == 0) << name;
        EXPECT_TRUE(error == 0 || errno == error) << name << ": " << errno;
        EXPECT_EQ(listing(dir.path()), expected) << name;
    }
    ::umask(mask);
}

TEST(replace_file, a_file_that_grows_too_large_leaves_the_old_one) {
    temp_dir_t const dir;
    write_file(dir.file("old"), "old");
    auto const before = listing(dir.path());
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    rlimit const small{4, limit.rlim_max};
    auto const handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    for (char const* name : {"old", "new"}) {
        EXPECT_TRUE(!replace_file(dir.file(name), "five!") && errno == EFBIG);
    }
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(listing(dir.path()), before);
}

TEST(replace_file, links_are_followed_to_a_target_that_may_be_missing) {
    temp_dir_t const dir;
    fs::create_directory(dir.file("folder"));
    fs::create_symlink("folder/next", dir.file("first"));
    fs::create_symlink("../last", dir.file("folder/next"));
    fs::create_symlink(dir.file("first"), dir.file("absolute"));
    fs::create_symlink("circle", dir.file("circle"));
    for (char const* name : {"first", "absolute", "last"}) {
        EXPECT_EQ(fs::path(follow_links(dir.file(name))).lexically_normal(), dir.file("last"));
    }
    EXPECT_EQ(follow_links(dir.file("circle")), dir.file("circle"));
    EXPECT_EQ(follow_links("no/such/file"), "no/such/file");
}

}  // namespace
