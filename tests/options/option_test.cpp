// SPDX-License-Identifier: MIT
// The command line, its help and the user default file, over the one option table.
#include "options/option.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>
#include <tuple>
#include <utility>
#include <vector>

#include "options/userdefault.h"
#include "tests/support/files/testfiles.h"

namespace {

using zanolib::g_option;

/// All settings as they are saved, built in and with one piece of that text replaced.
std::string const built_in =
    "-h-\n-verbose-\n-debug-\n-wintype 0\n-winsize 800x600\n-resizetype 1\n"
    "-image_ratio_of_image 1065353216\n-image_ratio_of_window 1063256064\n"
    "-window_ratio_of_image 1067030938\n-resize_magnify+\n-resize_shrink-\n-sizelimit 1\n"
    "-maxmargin 10x32\n-maxsize 1280x960\n-cursor_movement 1\n-magsmooth+\n-move_limit-\n"
    "-doubleclick_interval 300\n-frametype 1\n-framewidth 32\n-framecolor \xff,\xff,\xff,\xff\n"
    "-reproduce+\n-resetview+\n-menu+\n-single-\n";

using words_t = std::vector<std::string>;

/// The words of a line; '' stands for an empty one.
words_t words_of(std::string const& line) {
    words_t words;
    std::istringstream in(line);
    for (std::string word; in >> word;) {
        words.push_back(word == "''" ? "" : word);
    }
    return words;
}

/// What is saved when these settings, written like "-menu-, -winsize 7x8", have changed.
std::string with(std::string const& settings) {
    std::string all = built_in;
    for (std::size_t at = 0; at < settings.size();) {
        std::size_t const end = std::min(settings.find(", -", at), settings.size());
        std::string const setting = settings.substr(at, end - at);
        std::size_t const line = all.find(setting.substr(0, setting.find_first_of(" +-", 1)));
        all.replace(line, all.find('\n', line) - line, setting);
        at = end + 2;
    }
    return all;
}

/// The user's home is a directory of its own.
struct Option : testing::Test {
    Option() {
        zanolib::option_init();
        ::setenv("HOME", home.path().c_str(), 1);
    }
    ~Option() override { g_option = {}; }

    std::string saved() {
        EXPECT_TRUE(zanolib::option_save(path.c_str()));
        return read_file(path);
    }

    /// Enters a command line behind the program's name and returns what is left of it there. Behind
    /// the last argument stands one that doesn't count, in place of a null.
    static words_t enter(words_t words) {
        words.insert(words.begin(), "prog");
        words.emplace_back("77");
        std::vector<char*> elements;
        for (std::string& word : words) {
            elements.push_back(word.data());
        }
        int argc = static_cast<int>(elements.size()) - 1;
        char** argv = elements.data();
        zanolib::option_enter_argument(&argc, &argv);
        return {argv + 1, argv + argc};
    }

    temp_dir_t home;
    std::string const path = home.file(".prog");
};

TEST_F(Option, LeadingOptionsAreAppliedAndTakenOut) {
    std::ifstream in(COMMAND_LINES);
    std::string line;
    std::getline(in, line);
    int rows = 0;
    for (std::string rest, changes; std::getline(in, line, '|'); ++rows) {
        std::getline(std::getline(in, rest, '|'), changes);
        g_option = {};
        EXPECT_EQ(enter(words_of(line)), words_of(rest)) << line;
        EXPECT_EQ(saved(), with(changes)) << line;
    }
    EXPECT_EQ(rows, 28);
    enter({"-framecolor", "65,66,"});
    EXPECT_EQ(g_option.framecolor, libgr::color3aub(65, 66, 255, 255));
    enter({"-image_ratio_of_window", "1067030938"});
    EXPECT_EQ(g_option.image_ratio_of_window, 1.2f);
}

TEST_F(Option, DebugShowsTheFlagsFromThenOn) {
    capture_t capture;
    enter({"-verbose", "-DEBUG", "-menu", "-menu+", "-menu-", "-wintype", "1", "-debug-", "-menu"});
    EXPECT_EQ(capture.err(),
              "option debug is set.\noption menu is set.\noption menu is '+'.\n"
              "option menu is '-'.\n");
}

TEST_F(Option, HelpListsTheTableAndEndsTheProcess) {
    auto const ask = [] {
        std::cout.rdbuf(std::cerr.rdbuf());  // the death test looks at the error stream
        enter({"-h", "-debug", "-menu-", "file"});
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(0), "option menu is '-'.\nusage: prog \\[option");
    capture_t capture;
    zanolib::option_list("./zanoview3");
    std::string const help = capture.out();
    EXPECT_EQ(std::count(help.begin(), help.end(), '\n'), 29);
    EXPECT_TRUE(help.starts_with(
        "usage: ./zanoview3 [option] file...\n\noption                 format  comment.\n"
        "---------------------------------------\n"
        "-h                     bool    print help and exit(if commend-line).\n"));
    std::string const line = "\n-maxsize               XXXxYYY 1:value, maximum window size.\n";
    EXPECT_NE(help.find(line), std::string::npos) << help;
}

TEST_F(Option, TheUserDefaultFileReadsBackButForTheColour) {
    enter({"-verbose", "-wintype", "-3", "-winsize", "7x8", "-window_ratio_of_image", "2143289344",
           "-resize_shrink", "-maxmargin", "0x1", "-framewidth", "4294967295", "-menu-"});
    g_option.h = true;
    std::string const changed = saved();
    g_option = {};
    EXPECT_TRUE(zanolib::option_load(path.c_str()));
    EXPECT_EQ(g_option.framecolor, libgr::color3aub(0, 0, 0, 0));
    g_option.framecolor = {255, 255, 255, 255};
    EXPECT_EQ(saved(), changed);
    g_option.h = true;  // no help comes from there
    EXPECT_EXIT((enter({}), std::exit(g_option.h ? 1 : 7)), testing::ExitedWithCode(7), "");
}

TEST_F(Option, TheUserDefaultFileStandsInHomeOrBesideTheProgram) {
    std::tuple<char const*, char const*, char const*> const rows[] = {
        {"/", "/usr/bin/", "/.prog"},   {"/no\\", "", "/no\\.prog"}, {"/no", "", "/no/.prog"},
        {nullptr, "/no/", "/no/.prog"}, {nullptr, "", ".prog"},      {"", "/usr/bin/", ".prog"}};
    capture_t capture;
    g_option.verbose = true;
    for (auto const& [home_dir, dir, file] : rows) {
        home_dir != nullptr ? ::setenv("HOME", home_dir, 1) : ::unsetenv("HOME");
        zanolib::option_load_user_default("prog", dir);
        EXPECT_EQ(capture.out(), std::string("load user default: ") + file + "\n");
    }
    ::setenv("HOME", "/no/such", 1);
    zanolib::option_save_user_default("prog", "d/");
    EXPECT_EQ(capture.out() + capture.err(), "save user default: /no/such/.prog\n");
}

TEST_F(Option, LinesThatAreNoOptionsAreIgnored) {
    std::string random(100000, '\0');
    std::generate(random.begin(), random.end(), std::mt19937(1));
    std::pair<std::string, char const*> const rows[] = {
        {"", ""},
        {"# comment\r\n\n-RESIZETYPE\t2 -menu-\n", "-resizetype 2"},
        {"-single\r\n", "-single+"},
        {" -menu-\nmenu-\n-menu- -single", "-menu-"},
        {"-winsize\n-winsize", ""},
        {"-winsize  640x480\n", "-winsize 0x600"},
        {std::string("-winsize\0007x8\0\n", 14), "-winsize 7x8"},
        {"-" + random + "\n-menu-", "-menu-"},
    };
    for (auto const& [bytes, changes] : rows) {
        g_option = {};
        EXPECT_TRUE(zanolib::option_load(write_file(path, bytes).c_str()));
        EXPECT_EQ(saved(), with(changes)) << bytes.substr(0, 40);
    }
    EXPECT_FALSE(zanolib::option_load(write_file(path, std::string(1048577, '\n')).c_str()));
    EXPECT_TRUE(zanolib::option_load(home.path().c_str()));
    EXPECT_TRUE(zanolib::option_load("/dev/zero"));
}

}  // namespace
