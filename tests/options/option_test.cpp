// SPDX-License-Identifier: MIT
// The command line, its help and the user default file.
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

namespace {

using zanolib::g_option;

/// The built-in settings as a user default file.
std::string const built_in =
    "-h-\n-verbose-\n-debug-\n-wintype 0\n-winsize 800x600\n-resizetype 1\n"
    "-image_ratio_of_image 1065353216\n-image_ratio_of_window 1063256064\n"
    "-window_ratio_of_image 1067030938\n-resize_magnify+\n-resize_shrink-\n-sizelimit 1\n"
    "-maxmargin 10x32\n-maxsize 1280x960\n-cursor_movement 1\n-magsmooth+\n-move_limit-\n"
    "-doubleclick_interval 300\n-frametype 1\n-framewidth 32\n-framecolor \xff,\xff,\xff,\xff\n"
    "-reproduce+\n-resetview+\n-menu+\n-single-\n";

/// Starts with a table whose lengths are not filled in, and with an empty home directory.
struct Option : testing::Test {
    Option() {
        for (zanolib::option_entity_t& row : zanolib::option_entity_table) {
            row.length = 0;
        }
        ::setenv("HOME", home.path().c_str(), 1);
    }
    ~Option() override { g_option = {}; }
    /// The help ends the process with status 0. If a test calls it by mistake, the run must fail.
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

    /// Returns the settings that differ from the built-in ones, like "-winsize 7x8, -menu-".
    std::string changes() {
        std::istringstream now(saved()), before(built_in);
        std::string text, line, former;
        while (std::getline(now, line) && std::getline(before, former)) {
            text += line == former ? "" : text.empty() ? line : ", " + line;
        }
        return text;
    }

    /// Applies the words of a command line and returns those that are left. '' is an empty word.
    /// The array has an element after its end, which must not be read.
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

TEST_F(Option, AppliesAndRemovesLeadingOptions) {
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
    EXPECT_EQ(rows, 27);
}

TEST_F(Option, PrintsTheHelpAndEndsTheProcess) {
    auto const ask = [] {
        std::cout.rdbuf(std::cerr.rdbuf());  // EXPECT_EXIT checks the error stream
        enter("-h -verbose -DEBUG -menu -menu+ -menu- -wintype 1 -debug- -menu file");
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(0),
                "^option debug is set.\noption menu is set.\noption menu is '\\+'.\n"
                "option menu is '-'.\nusage: prog \\[option");
    capture_t capture;
    zanolib::option_list("./viewer");
    std::string const help = capture.out();
    EXPECT_TRUE(
        help.starts_with("usage: ./viewer [option] file...\n\n"
                         "option                 format  comment.\n"
                         "---------------------------------------\n"
                         "-h                     bool    print help and exit(if commend-line).\n"));
    for (char const* row :
         {"\n-sizelimit             enum    limitation of window size (0:screen 1:value).\n",
          "\n-winsize               XXXxYYY initial window size.\n",
          "\n-image_ratio_of_window percent   image size factor of window.\n",
          "\n-framewidth            ulong   drawing photo-frame width (in pixel).\n",
          "\n-framecolor            R,G,B   frame color.\n"}) {
        EXPECT_NE(help.find(row), std::string::npos) << row << "is not in the help:\n" << help;
    }
    EXPECT_EQ(std::count(help.begin(), help.end(), '\n'), 29);
}

TEST_F(Option, ReadsTheUserDefaultFileExceptItsColour) {
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
    g_option.h = true;  // only the command line asks for the help
    EXPECT_EXIT((enter(""), std::exit(g_option.h ? 1 : 7)), testing::ExitedWithCode(7), "");
}

TEST_F(Option, KeepsTheUserDefaultFileInHomeOrBesideTheProgram) {
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
    // A link is kept.
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

TEST_F(Option, IgnoresLinesWithoutAnOption) {
    zanolib::option_init();
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
