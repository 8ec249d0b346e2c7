// SPDX-License-Identifier: MIT
// The message file: its directories, its names and its lines.
#include "options/message.h"

#include <gtest/gtest.h>

#include <clocale>

#include "options/option.h"
#include "tests/support/files/testfiles.h"

namespace {

/// Loads a message file. Returns its path and its lines, each followed by a bar.
std::string load(std::string const& dir, char const* prog = "p") {
    std::string text = zanolib::init_message(dir.c_str(), prog) + ": ", line;
    for (unsigned id = 0;
         (line = zanolib::getmsg(zanolib::e_message_t{id})) != "message not loaded."; ++id) {
        text += line + "|";
    }
    return text;
}

/// Has three directories: the working directory, the program's, and one in PATH.
struct Message : testing::Test {
    Message() {
        std::filesystem::current_path(working.path());
        ::setenv("LANG", "xx_YY", 1);
        ::setenv("PATH", path.path().c_str(), 1);
    }
    ~Message() override {
        std::filesystem::current_path(before);
        ::setenv("LANG", "C", 1);
        std::setlocale(LC_ALL, "C");
        zanolib::g_option = {};
    }

    std::filesystem::path const before = std::filesystem::current_path();
    temp_dir_t working, program, path;
    capture_t capture;
};

TEST_F(Message, SplitsLinesAtLfOrCrLf) {
    using row_t = std::pair<std::string, char const*>;
    for (auto const& [bytes, loaded] :
         {row_t{"one\ntwo\n", "p.msg: one|two|"}, row_t{"one\r\n\r\ntwo\r\n", "p.msg: one||two|"},
          row_t{"one\ntwo", "p.msg: one|"}, row_t{"a\rb\nc\n", "p.msg: a|b|"},
          row_t{"\n\r\r\n", "p.msg: ||"}, row_t{"\r", "p.msg: "}, row_t{"", "p.msg: "},
          row_t{std::string("a\0b\nc\n", 6), "p.msg: a|c|"}}) {
        write_file("p.msg", bytes);
        EXPECT_EQ(load(""), loaded) << bytes;
    }
    EXPECT_EQ(capture.out() + capture.err(), "");
}

TEST_F(Message, PrefersTheLanguageAndThenTheWorkingDirectory) {
    std::string const dir = program.path() + "/";
    for (std::string const& file : {dir + "p.msg", std::string("p.msg"), dir + "p.xx_YY.msg",
                                    std::string("p.xx_YY.msg"), std::string("p..msg")}) {
        write_file(file, file + "\n");
        ::setenv("LANG", file == "p..msg" ? "" : "xx_YY", 1);
        EXPECT_EQ(load(dir), file + ": " + file + "|");
    }
    ::unsetenv("LANG");
    EXPECT_EQ(load(dir), "p.msg: p.msg|");
}

TEST_F(Message, PrintsTheSearchUnderDebug) {
    zanolib::g_option.debug = true;
    write_file("p.msg", std::string((1 << 20) + 1, '\n'));
    std::filesystem::create_symlink("/dev/null", "p.xx_YY.msg");
    EXPECT_EQ(load("d/"), ": ") << "one file is too long, the other isn't a regular file";
    std::string const site = "/usr/site/share/zanolib/", failed = "can't load message file.\n";
    EXPECT_EQ(capture.out(), "d/p.xx_YY.msg: warning " + failed + "d/p.msg: warning " + failed);
    EXPECT_EQ(capture.err(), "init_message() entering.\n" + site + "p.xx_YY.msg: " + failed +
                                 "p.msg: exceeds limit small-file (1048576 bytes).\n" + site +
                                 "p.msg: " + failed);
    std::string const found = write_file(path.file("q.xx_YY.msg"), "a\n");
    EXPECT_EQ(load("", "q"), found + ": a|");
    EXPECT_EQ(capture.out() + capture.err(), ": dirpath.\ninit_message() entering.\npath: " +
                                                 found + "\ninit_message() leaving.\n");
}

}  // namespace
