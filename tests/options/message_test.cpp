// SPDX-License-Identifier: MIT
// The search for the message file and the cut into lines.
#include "options/message.h"

#include <gtest/gtest.h>

#include <clocale>

#include "options/option.h"
#include "tests/support/files/testfiles.h"

namespace {

using zanolib::init_message;

std::string line(unsigned id) {
    return zanolib::getmsg(static_cast<zanolib::e_message_t>(id));
}

/// Three directories: the working one, the program's, and one of PATH.
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

TEST_F(Message, LinesEndInLfOrCrLf) {
    std::string const none = "message not loaded.";
    struct {
        std::string bytes;
        std::vector<std::string> lines;  // with the first that is missing
    } const rows[] = {{"one\ntwo\n", {"one", "two", none}},
                      {"one\r\n\r\ntwo\r\n", {"one", "", "two", none}},
                      {"one\ntwo", {"one", none}},
                      {"a\rb\nc\n", {"a", "b", none}},
                      {"\n\r\r\n", {"", "", none}},
                      {"\r", {none}},
                      {"", {none}},
                      {std::string("a\0b\nc\n", 6), {"a", "c", none}}};
    for (auto const& row : rows) {
        write_file("p.msg", row.bytes);
        EXPECT_EQ(init_message("", "p"), "p.msg");
        for (unsigned i = 0; i < row.lines.size(); ++i) {
            EXPECT_EQ(line(i), row.lines[i]) << testing::PrintToString(row.bytes) << i;
        }
    }
    EXPECT_EQ(line(~0U), none);
    write_file("p.msg", std::string((1 << 20) + 1, '\n'));
    std::filesystem::create_symlink("/dev/null", "p.xx_YY.msg");
    EXPECT_EQ(capture.err(), "");
    EXPECT_EQ(init_message("d/", "p"), "");
    EXPECT_EQ(line(0), none);
    EXPECT_EQ(capture.err(), "/usr/site/share/zanolib/p.msg: can't load message file.\n");
    EXPECT_EQ(capture.out(), "");
}

TEST_F(Message, SuffixedFilesAndNearPlacesWin) {
    std::string const dir = program.path() + "/";
    for (std::string const& file :
         {dir + "p.msg", std::string("p.msg"), dir + "p.xx_YY.msg", std::string("p.xx_YY.msg")}) {
        write_file(file, file + "\n");
        EXPECT_EQ(init_message(dir.c_str(), "p"), file);
        EXPECT_EQ(line(0), file);
    }
    ::setenv("LANG", "", 1);
    write_file("p..msg", "empty\n");
    EXPECT_EQ(init_message(dir.c_str(), "p"), "p..msg");
    ::unsetenv("LANG");
    EXPECT_EQ(init_message(dir.c_str(), "p"), "p.msg");
}

TEST_F(Message, DebugTellsTheSearch) {
    zanolib::g_option.debug = true;
    init_message("d/", "p");
    EXPECT_EQ(capture.out(),
              "d/p.xx_YY.msg: warning can't load message file.\n"
              "d/p.msg: warning can't load message file.\n");
    EXPECT_EQ(capture.err(),
              "init_message() entering.\n"
              "/usr/site/share/zanolib/p.xx_YY.msg: can't load message file.\n"
              "/usr/site/share/zanolib/p.msg: can't load message file.\n");
    std::string const found = write_file(path.file("p.xx_YY.msg"), "a\n");
    EXPECT_EQ(init_message("", "p"), found);
    EXPECT_EQ(capture.out(), ": dirpath.\n");
    EXPECT_EQ(capture.err(),
              "init_message() entering.\npath: " + found + "\ninit_message() leaving.\n");
}

TEST_F(Message, TheProgramsOwnFilesHoldBothTexts) {
    for (std::string const lang : {"ja_JP.UTF-8", "de_DE"}) {
        ::setenv("LANG", lang.c_str(), 1);
        EXPECT_NE(init_message(ZV_DATA_DIR "/", "zanoview3"), "");
        EXPECT_EQ(zanolib::make_title(line(0).c_str(), line(1).c_str()),
                  lang == "de_DE" ? "zanoview3 - no picture" : "zanoview3 - 画像なし");
    }
}

}  // namespace
