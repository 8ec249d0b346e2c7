// SPDX-License-Identifier: MIT
// The command line, its help and the user default file, over the one option table.
#include "options/option.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <deque>
#include <fstream>
#include <random>
#include <sstream>
#include <tuple>
#include <utility>
#include <vector>

#include "options/userdefault.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"

namespace {

using zanolib::g_option;

/// All settings as they are saved, built in.
std::string const built_in =
    "-h-\n-verbose-\n-debug-\n-wintype 0\n-winsize 800x600\n-resizetype 1\n"
    "-image_ratio_of_image 1065353216\n-image_ratio_of_window 1063256064\n"
    "-window_ratio_of_image 1067030938\n-resize_magnify+\n-resize_shrink-\n-sizelimit 1\n"
    "-maxmargin 10x32\n-maxsize 1280x960\n-cursor_movement 1\n-magsmooth+\n-move_limit-\n"
    "-doubleclick_interval 300\n-frametype 1\n-framewidth 32\n-framecolor \xff,\xff,\xff,\xff\n"
    "-reproduce+\n-resetview+\n-menu+\n-single-\n";

/// The user's home is a directory of its own.
struct Option : testing::Test {
    Option() {
        zanolib::option_init();
        ::setenv("HOME", home.path().c_str(), 1);
    }
    ~Option() override { g_option = {}; }
    /// The help ends the process with success. Where it does so unasked, the tests have failed.
    static void SetUpTestSuite() {
        static pid_t const own = ::getpid();
        std::atexit([] {
            if (::getpid() == own && testing::UnitTest::GetInstance()->current_test_info()) {
                std::_Exit(EXIT_FAILURE);
            }
        });
    }

    std::string saved() {
        EXPECT_TRUE(zanolib::option_save(path.c_str()));
        return read_file(path);
    }

    /// What is saved otherwise than built in, like "-winsize 7x8, -menu-".
    std::string changes() {
        std::istringstream now(saved()), before(built_in);
        std::string text, line, former;
        while (std::getline(now, line) && std::getline(before, former)) {
            text += line == former ? "" : text.empty() ? line : ", " + line;
        }
        return text;
    }

    /// Enters a command line behind the program's name and returns what is left of it there; ''
    /// stands for an empty word. Behind the last argument stands one that doesn't count, in place
    /// of a null.
    static std::string enter(std::string const& line) {
        std::istringstream in("prog " + line + " 77");
        std::deque<std::string> words;
        std::vector<char*> elements;
        for (std::string word; in >> word;) {
            elements.push_back(words.emplace_back(word == "''" ? "" : word).data());
        }
        int argc = static_cast<int>(elements.size()) - 1;
        char** argv = elements.data();
        zanolib::option_enter_argument(&argc, &argv);
        std::string rest;
        for (int i = 1; i < argc; ++i) {
            rest += std::string(i > 1 ? " " : "") + (*argv[i] == '\0' ? "''" : argv[i]);
        }
        return rest;
    }

    temp_dir_t home;
    std::string const path = home.file(".prog");
};

TEST_F(Option, LeadingOptionsAreAppliedAndTakenOut) {
    std::ifstream in(COMMAND_LINES);
    std::string line;
    std::getline(in, line);
    int rows = 0;
    for (std::string rest, changed; std::getline(in, line, '|'); ++rows) {
        std::getline(std::getline(in, rest, '|'), changed);
        g_option = {};
        EXPECT_EQ(enter(line), rest) << line;
        EXPECT_EQ(changes(), changed) << line;
    }
    EXPECT_EQ(rows, 31);
}

TEST_F(Option, HelpFollowsWhatDebugShowsAndEndsTheProcess) {
    auto const ask = [] {
        std::cout.rdbuf(std::cerr.rdbuf());  // the death test looks at the error stream
        enter("-h -verbose -DEBUG -menu -menu+ -menu- -wintype 1 -debug- -menu file");
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(0),
                "^option debug is set.\noption menu is set.\noption menu is '\\+'.\n"
                "option menu is '-'.\nusage: prog \\[option");
    capture_t capture;
    zanolib::option_list("./zanoview3");
    EXPECT_TRUE(matches_file(capture.out(), HELP));
}

TEST_F(Option, TheUserDefaultFileReadsBackButForTheColour) {
    enter(
        "-verbose -wintype -3 -winsize 7x8 -window_ratio_of_image 2143289344 -resize_shrink "
        "-maxmargin 0x1 -framewidth 4294967295 -menu-");
    g_option.h = true;
    std::string const changed = saved();
    g_option = {};
    EXPECT_TRUE(zanolib::option_load(path.c_str()));
    EXPECT_EQ(g_option.framecolor, libgr::color3aub(0, 0, 0, 0));
    g_option.framecolor = {255, 255, 255, 255};
    EXPECT_EQ(saved(), changed);
    for (char const byte : {'\0', '\t', '\r', ' '}) {
        auto const raw = static_cast<unsigned char>(byte);
        g_option.framecolor = {raw, 255, raw, 7};
        saved();
        g_option.framecolor = {1, 2, 3, 4};
        EXPECT_TRUE(zanolib::option_load(path.c_str()));
        EXPECT_EQ(g_option.framecolor, libgr::color3aub(0, 0, 0, 0)) << +raw;
    }
    g_option.h = true;  // no help comes from there
    EXPECT_EXIT((enter(""), std::exit(g_option.h ? 1 : 7)), testing::ExitedWithCode(7), "");
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
    // A link to a file that is kept elsewhere stays.
    g_option.verbose = false;
    ::setenv("HOME", home.path().c_str(), 1);
    std::filesystem::create_symlink("elsewhere", home.file(".prog"));
    zanolib::option_save_user_default("prog", "");
    EXPECT_TRUE(std::filesystem::is_symlink(home.file(".prog")));
    EXPECT_NE(read_file(home.file("elsewhere")).find("-verbose-\n"), std::string::npos);
    g_option.verbose = true;
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
    for (auto const& [bytes, changed] : rows) {
        g_option = {};
        EXPECT_TRUE(zanolib::option_load(write_file(path, bytes).c_str()));
        EXPECT_EQ(changes(), changed) << bytes.substr(0, 40);
    }
    EXPECT_FALSE(zanolib::option_load(write_file(path, std::string(1048577, '\n')).c_str()));
    EXPECT_TRUE(zanolib::option_load(home.path().c_str()));
    EXPECT_TRUE(zanolib::option_load("/dev/zero"));
}

}  // namespace
