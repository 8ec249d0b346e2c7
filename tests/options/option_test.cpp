// SPDX-License-Identifier: MIT
// The command line, its help and the user default file, over the one option table.
#include "options/option.h"

#include <gtest/gtest.h>

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

std::string with(std::string const& before, std::string const& after) {
    return std::string(built_in).replace(built_in.find(before), before.size(), after);
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

    /// Enters a command line behind the program's name and returns what is left of it. Behind the
    /// last argument stands one that doesn't count, in place of a null.
    static std::string enter(std::vector<std::string> words) {
        words.insert(words.begin(), "prog");
        words.emplace_back("77");
        std::vector<char*> elements;
        for (std::string& word : words) {
            elements.push_back(word.data());
        }
        int argc = static_cast<int>(elements.size()) - 1;
        char** argv = elements.data();
        zanolib::option_enter_argument(&argc, &argv);
        std::string rest;
        for (int i = 0; i < argc; ++i) {
            rest += std::string(argv[i]) + " ";
        }
        return rest;
    }

    temp_dir_t home;
    std::string const path = home.file(".prog");
};

TEST_F(Option, LeadingOptionsAreAppliedAndTakenOut) {
    // clang-format off
    static struct {
        std::vector<std::string> words;
        char const *rest, *before, *after;
    } const rows[] = {
        {{}, "prog ", "", ""}, {{""}, "prog  ", "", ""}, {{"+menu"}, "prog +menu ", "", ""},
        {{"-verbos", "-menu-"}, "prog -verbos -menu- ", "", ""}, {{"-hx"}, "prog -hx ", "", ""},
        {{"-menu-+"}, "prog -menu-+ ", "", ""}, {{"-VERBOSE"}, "prog ", "verbose-", "verbose+"},
        {{"-MENU-", "-single+"}, "prog ", "menu+\n-single-", "menu-\n-single+"},
        {{"-h", "-h-", "a"}, "prog a ", "", ""}, {{"a", "-menu-"}, "prog a -menu- ", "", ""},
        {{"-winsize", "1024x768", "p.jpg"}, "prog p.jpg ", "800x600", "1024x768"},
        {{"-winsize", "800,601"}, "prog ", "600", "601"}, {{"-winsize"}, "prog ", "", ""},
        {{"-winsize", "-5x601"}, "prog ", "600", "601"}, {{"-winsize", "64"}, "prog ", "800", "64"},
        {{"-winsize", "0x20x010"}, "prog ", "800x600", "32x8"},
        {{"-winsize", "640x"}, "prog ", "800", "640"}, {{"-winsize", ""}, "prog ", "800", "0"},
        {{"-winsize", "wide"}, "prog ", "800x600", "0x0"},
        {{"-winsize", "4294967295x99999999999999999999"}, "prog ", "", ""},
        {{"-winsize=640x480"}, "prog -winsize=640x480 ", "", ""},
        {{"-resizetype", "-menu-", "a"}, "prog a ", "resizetype 1", "resizetype 0"},
        {{"-frametype", "-0x9", "-FrameWidth", "0x10"}, "prog ", "1\n-framewidth 32",
         "-9\n-framewidth 16"},
        {{"-doubleclick_interval", "0"}, "prog ", "", ""},
        {{"-doubleclick_interval", "4294967297"}, "prog ", "300", "1"},
        {{"-image_ratio_of_window", "100"}, "prog ", "1063256064", "100"},
        {{"-framecolor", "65,0x42:67 324"}, "prog ", "\xff,\xff,\xff,\xff", "A,B,C,D"},
        {{"-framecolor", "65,66,"}, "prog ", "\xff,\xff,", "A,B,"},
        {{"-framecolor"}, "prog ", "", ""},
    };
    // clang-format on
    for (auto const& row : rows) {
        g_option = {};
        EXPECT_EQ(enter(row.words), row.rest);
        EXPECT_EQ(saved(), with(row.before, row.after)) << testing::PrintToString(row.words);
    }
    enter({"-image_ratio_of_window", "1067030938"});
    EXPECT_EQ(g_option.image_ratio_of_window, 1.2f);
    int argc = 0;
    char* none[] = {nullptr};
    char** argv = none;
    zanolib::option_enter_argument(&argc, &argv);
    EXPECT_EQ(argc, 0);
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
    for (char const* const piece :
         {"usage: ./zanoview3 [option] file...\n\noption                 format  comment.\n"
          "---------------------------------------\n"
          "-h                     bool    print help and exit(if commend-line).\n",
          "\n-wintype               enum    window type (0:window 1:maximize 2:fullscreen).\n",
          "\n-image_ratio_of_window percent   image size factor of window.\n",
          "\n-maxsize               XXXxYYY 1:value, maximum window size.\n",
          "\n-framewidth            ulong   drawing photo-frame width (in pixel).\n"
          "-framecolor            R,G,B   frame color.\n"}) {
        EXPECT_NE(help.find(piece), std::string::npos) << piece << help;
    }
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
    static struct {
        char const *home, *dir, *path;
    } const rows[] = {{"/", "/usr/bin/", "/.prog"}, {"/no\\", "", "/no\\.prog"},
                      {"/no", "", "/no/.prog"},     {nullptr, "/no/", "/no/.prog"},
                      {nullptr, "", ".prog"},       {"", "/usr/bin/", ".prog"}};
    capture_t capture;
    g_option.verbose = true;
    for (auto const& row : rows) {
        row.home != nullptr ? ::setenv("HOME", row.home, 1) : ::unsetenv("HOME");
        zanolib::option_load_user_default("prog", row.dir);
        EXPECT_EQ(capture.out(), std::string("load user default: ") + row.path + "\n");
    }
    g_option.debug = true;
    ::setenv("HOME", "/no/such", 1);
    zanolib::option_save_user_default("prog", "d/");
    EXPECT_EQ(capture.out(), "prog: prog, dir: d/\nsave user default: /no/such/.prog\n");
    EXPECT_EQ(capture.err(), "");
    EXPECT_TRUE(zanolib::option_save("/no/such/.prog"));
}

TEST_F(Option, LinesThatAreNoOptionsAreIgnored) {
    std::string random(100000, '\0');
    for (unsigned i = 0, state = 1; i < random.size(); ++i) {
        state = state * 1664525 + 1013904223;
        random[i] = static_cast<char>(state >> 24);
    }
    static struct {
        std::string bytes;
        char const *before, *after;
    } const rows[] = {
        {"", "", ""},
        {"# comment\r\n\n-RESIZETYPE\t2 -menu-\n", "resizetype 1", "resizetype 2"},
        {"-single\r\n", "single-", "single+"},
        {" -menu-\nmenu-\n-menu- -single", "menu+", "menu-"},
        {"-winsize\n-winsize", "", ""},
        {"-winsize  640x480\n", "800x600", "0x600"},
        {std::string("-winsize\0007x8\0\n", 14), "800x600", "7x8"},
        {"-" + random + "\n-menu-", "menu+", "menu-"},
    };
    for (auto const& row : rows) {
        g_option = {};
        EXPECT_TRUE(zanolib::option_load(write_file(path, row.bytes).c_str()));
        EXPECT_EQ(saved(), with(row.before, row.after)) << row.bytes.substr(0, 40);
    }
    EXPECT_FALSE(zanolib::option_load(write_file(path, std::string(1048577, '\n')).c_str()));
    EXPECT_TRUE(zanolib::option_load(home.path().c_str()));
    EXPECT_TRUE(zanolib::option_load("/dev/zero"));
}

}  // namespace
