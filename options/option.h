// SPDX-License-Identifier: MIT
// The settings of the program, the table that describes them, the command line and its help.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "geometry/color.h"
#include "geometry/vector.h"

/// Reads the settings of a program at its start:
///
/// ```cpp
/// char program[] = "/usr/bin/viewer", flag[] = "-verbose", file[] = "a.jpg";
/// char* arguments[] = {program, flag, file, nullptr};
/// int count = 3;
/// char** argv = arguments;
/// zanolib::option_init();
/// zanolib::option_enter_argument(&count, &argv);  // now argv[1] is "a.jpg", and count is 2
/// bool const prints_names = zanolib::g_option.verbose;
/// ```
///
/// The user default file (options/userdefault.h) is read before the command line, which overrides
/// it. Everything here is for one thread.
namespace zanolib {

/// All settings with their built-in values, in the order of the table's rows. They can be changed
/// at any time. Values from the user are not checked against the ranges given here.
struct option_t {
    bool h = false;
    bool verbose = false;
    bool debug = false;
    std::uint32_t wintype = 0;  ///< bit 1: the window covers the work area
    libgr::direction2l_t winsize{800, 600};
    std::uint32_t resizetype = 1;          ///< 0 neither, 1 fits the picture, 2 fits the window
    float image_ratio_of_image = 1.0f;     ///< scale if `resizetype` is 0
    float image_ratio_of_window = 0.875f;  ///< side of a fitted picture, window as 1
    float window_ratio_of_image = 1.2f;    ///< side of a fitted window, picture as 1
    bool resize_magnify = true;
    bool resize_shrink = false;
    std::uint32_t sizelimit = 1;  ///< limit: 1 `maxmargin`, 2 `maxsize`, others none
    libgr::direction2l_t maxmargin{10, 32};
    libgr::direction2l_t maxsize{1280, 960};
    std::uint32_t cursor_movement = 1;  ///< an arrow key moves: 0 the picture, 1 the camera
    bool magsmooth = true;
    bool move_limit = false;
    std::uint32_t doubleclick_interval = 300;  ///< milliseconds
    std::uint32_t frametype = 1;               ///< look of the photo frame, 0 to 4
    std::uint32_t framewidth = 32;             ///< picture pixels
    libgr::color3aub_t framecolor{255, 255, 255, 255};
    bool reproduce = true;
    bool resetview = true;
    bool menu = true;
    bool single = false;
};

/// The current settings. All code reads them here.
extern option_t g_option;

/// How an option's value is written on the command line and in the user default file.
enum e_option_type_t : std::uint32_t {
    OPTION_TYPE_BOOL = 0,     ///< a flag: "-name" or "-name+" is true, "-name-" is false
    OPTION_TYPE_ENUM = 1,     ///< a signed integer
    OPTION_TYPE_PERCENT = 2,  ///< the bits of a float, as an unsigned integer
    OPTION_TYPE_ULONG = 3,    ///< an unsigned integer; 0 is ignored
    OPTION_TYPE_FLOAT = 4,    ///< a float
    OPTION_TYPE_PAIR = 5,     ///< two integers like 800x600; negative ones are ignored
    OPTION_TYPE_COLOR = 6     ///< up to four bytes like 255,0,0,255
};

/// A second column of values. Nothing reads it: the built-in values are the ones of option_t.
struct option_value_t {
    std::uint32_t number;
    float real;
    std::array<std::int32_t, 2> pair;
    std::uint32_t spare;
};

/// One row of the option table.
struct option_entity_t {
    char const* name;    ///< without the leading "-"
    std::size_t length;  ///< of `name`; 0 until `option_init`
    e_option_type_t type;
    option_value_t value;
    void* target;         ///< the field of `g_option`; its C++ type depends on `type`
    char const* comment;  ///< the description in the help
};

/// The last directory that is searched for the message file and for the photo frame's data files.
/// It ends in a slash.
inline constexpr char const* site_directory = "/usr/site/share/zanolib/";

inline constexpr std::size_t option_count = 25;

/// The option table: one row for each field of `g_option`, in the order of the fields. The parser,
/// the help, the user default file, the manual page and the completions of the shells read it.
extern std::array<option_entity_t, option_count> option_entity_table;

/// Fills in the lengths of all rows. Further calls change nothing.
void option_init();

/// Applies the leading options of a command line to `g_option`, and removes them from it.
///
/// The first element that is not an option moves to `(*argv)[1]`, and the rest follows it. `*argc`
/// becomes the number of elements that are left, with the program's name. No null pointer is
/// written after them. Names match in any case of letters. Numbers are read as by strtol() with
/// base 0, so that the characters after a number are ignored and a text without a number is 0.
/// There are no error messages.
///
/// After the option "-h", prints the help and ends the process with status 0.
void option_enter_argument(int* argc, char*** argv);

/// Prints the help on standard output: a usage line with `prog`, then one line for each option.
void option_list(char const* prog);

}  // namespace zanolib
