// SPDX-License-Identifier: MIT
// The command line, its help and the user default file.
#include "options/option.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <tuple>
#include <vector>

#include "options/userdefault.h"
#include "tests/support/files/testfiles.h"

namespace {

using zanolib::g_option;

/// Starts with a table that is to be set up again, and with an empty home directory.
struct Option : testing::Test {
    Option() {
        zanolib::option_entity_table[0].length = 0;
        ::setenv("HOME", home.path().c_str(), 1);
    }
    ~Option() override { g_option = {}; }

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

    /// Applies the words of a command line and returns those that are left. The array has an
    /// element after its end, which must not be read.
    static std::string enter(std::string const& line) {
        std::istringstream in("prog " + line + " 77");
        std::vector<std::string> words{std::istream_iterator<std::string>(in), {}};
        std::vector<char*> elements;
        for (std::string& word : words) {
            elements.push_back(word.data());
        }
        int argc = static_cast<int>(elements.size()) - 1;
        char** argv = elements.data();
        zanolib::option_enter_argument(&argc, &argv);
        std::string rest;
        for (int i = 1; i < argc; ++i) {
            rest += std::string(i > 1 ? " " : "") + argv[i];
        }
        return rest;
    }

    temp_dir_t home;
    std::string const path = home.file("options");
    std::string const built_in = saved();
};

TEST_F(Option, AppliesAndRemovesLeadingOptions) {
    struct {
        char const *line, *rest;
        std::string changed;
    } const rows[] = {
        {"-verbos -menu-", "-verbos -menu-", ""},
        {"-hx", "-hx", ""},
        {"-menu-+", "-menu-+", ""},
        {"-VERBOSE -MENU- -single+", "", "-verbose+, -menu-, -single+"},
        {"-h -h- a", "a", ""},
        {"a -menu-", "a -menu-", ""},
        {"-winsize", "", ""},
        {"-winsize -5,601", "", "-winsize 800x601"},
        {"-winsize 64", "", "-winsize 64x600"},
        {"-winsize 0x20x010", "", "-winsize 32x8"},
        {"-winsize 4294967295x99999999999999999999", "", ""},
        {"-winsize=640x480", "-winsize=640x480", ""},
        {"-resizetype -menu- a", "a", "-resizetype 0"},
        {"-frametype -0x9 -FrameWidth 4294967312", "", "-frametype -9, -framewidth 16"},
        {"-image_ratio_of_window 100 -doubleclick_interval 0", "", "-image_ratio_of_window 100"},
        {"-framecolor x,65,66,67", "", std::string("-framecolor \0,\0,A,B", 19)},
        {"-framecolor 65,66:67_324 -framecolor 0x45,70", "", "-framecolor E,F,C,D"},
    };
    for (auto const& row : rows) {
        g_option = {};
        EXPECT_EQ(enter(row.line), row.rest) << row.line;
        EXPECT_EQ(changes(), row.changed) << row.line;
    }
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
    EXPECT_NE(help.find("\n-image_ratio_of_window percent   image size factor of window.\n"),
              std::string::npos)
        << help;
    EXPECT_EQ(std::count(help.begin(), help.end(), '\n'), 29);
}

TEST_F(Option, ReadsTheUserDefaultFileExceptItsColour) {
    for (char const byte : {'\0', '\t', '\r', ' ', 'x'}) {
        libgr::color3aub_t const color = {static_cast<unsigned char>(byte), 255, 0, 7};
        enter(
            "-verbose -wintype -3 -winsize 7x8 -window_ratio_of_image 2143289344 "
            "-maxmargin 0x1 -framewidth 4294967295 -menu-");
        g_option.framecolor = color;
        std::string const changed = saved();
        g_option = {};
        EXPECT_TRUE(zanolib::option_load(path.c_str()));
        EXPECT_EQ(g_option.framecolor, libgr::color3aub(0, 0, 0, 0)) << +byte;
        g_option.framecolor = color;
        EXPECT_EQ(saved(), changed);
    }
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
    ::setenv("HOME", home.path().c_str(), 1);
    std::filesystem::create_symlink("elsewhere", home.file(".prog"));
    zanolib::option_save_user_default("prog", "");
    EXPECT_EQ(capture.out() + capture.err(), "save user default: " + home.file(".prog") + "\n");
    EXPECT_TRUE(std::filesystem::is_symlink(home.file(".prog")));
    EXPECT_NE(read_file(home.file("elsewhere")).find("-verbose+\n"), std::string::npos);
}

TEST_F(Option, IgnoresLinesWithoutAnOption) {
    zanolib::option_init();
    std::pair<std::string, char const*> const rows[] = {
        {"# comment\r\n\n-RESIZETYPE\t2 -menu-\n-single\r\n", "-resizetype 2, -single+"},
        {" -menu-\nmenu-\n-menu- -single\n-winsize\n-winsize", "-menu-"},
        {"-winsize  640x480\n", "-winsize 0x600"},
        {std::string("-winsize\0007x8\0\n", 14), "-winsize 7x8"},
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
