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
/// #include "options/userdefault.h"
///
/// char program[] = "/usr/bin/viewer", flag[] = "-verbose", file[] = "a.jpg";
/// char* arguments[] = {program, flag, file, nullptr};
/// int count = 3;
/// char** argv = arguments;
/// zanolib::option_load_user_default("viewer", "/usr/bin/");  // sets options from $HOME/.viewer
/// zanolib::option_enter_argument(&count, &argv);  // now argv[1] is "a.jpg", and count is 2
/// bool const is_verbose = zanolib::g_option.verbose;
/// ```
///
/// In this order, the command line overrides the file. Call everything here from one thread.
namespace zanolib {

/// All settings with their built-in values. The program may change them at any time. The parser
/// accepts values outside of the ranges given here. Screen coordinates are GLFW's.
struct option_t {
    bool h = false;                          ///< print the help; only on the command line
    bool verbose = false;                    ///< print the lines of `report` (options/trace.h)
    bool debug = false;                      ///< print the lines of `trace` (options/trace.h)
    std::uint32_t wintype = 0;               ///< bit 1 (value 2): the window covers the work area
    libgr::direction2l_t winsize{800, 600};  ///< size at the start, screen coordinates
    std::uint32_t resizetype = 1;            ///< 1 fits the picture to the window, 2 the reverse
    float image_ratio_of_image = 1.0f;       ///< scale if `resizetype` is 0
    float image_ratio_of_window = 0.875f;    ///< side of a fitted picture / side of the window
    float window_ratio_of_image = 1.2f;      ///< side of a fitted window / side of the picture
    bool resize_magnify = true;              ///< a fitted window may grow
    bool resize_shrink = false;              ///< a fitted window may shrink
    /// The limit of a fitted window: 1 is its old size less `maxmargin`, in screen coordinates, 2
    /// is `maxsize`, in framebuffer pixels, and other values are no limit.
    std::uint32_t sizelimit = 1;
    libgr::direction2l_t maxmargin{10, 32};
    libgr::direction2l_t maxsize{1280, 960};
    std::uint32_t cursor_movement = 1;         ///< an arrow key moves: 0 the picture, 1 the camera
    bool magsmooth = true;                     ///< no effect
    bool move_limit = false;                   ///< no effect
    std::uint32_t doubleclick_interval = 300;  ///< milliseconds; no effect
    std::uint32_t frametype = 1;               ///< look of the photo frame, 0 (none) to 4
    std::uint32_t framewidth = 32;             ///< picture pixels
    libgr::color3aub_t framecolor{255, 255, 255, 255};
    bool reproduce = true;  ///< restore the stored view of a picture (its .zvw file)
    bool resetview = true;  ///< set the view of each new picture; if false, `reproduce` is ignored
    bool menu = true;       ///< no effect
    bool single = false;    ///< no effect
};

/// The current settings. All code reads them here.
extern option_t g_option;

/// The form of an option's value, and the C++ type of its setting.
///
/// The value is the next argument, or the next word of a line: "-framewidth 32". A flag has a sign
/// in place of a value: "-menu-". Numbers are read as by strtol() with base 0, or by strtof(): the
/// text after a number is ignored, and a text without a number is 0. There are no error messages.
enum e_option_type_t : std::uint32_t {
    OPTION_TYPE_BOOL = 0,     ///< bool: "-name" or "-name+" is true, "-name-" is false
    OPTION_TYPE_ENUM = 1,     ///< the other std::uint32_t settings: an integer
    OPTION_TYPE_PERCENT = 2,  ///< float: its bits as an integer, 1063256064 for 0.875
    OPTION_TYPE_ULONG = 3,    ///< `framewidth`, `doubleclick_interval`: an integer; 0 is ignored
    OPTION_TYPE_FLOAT = 4,    ///< float: a decimal number; no option has this type
    OPTION_TYPE_PAIR = 5,     ///< direction2l_t: two integers, 800x600; negative ones are ignored
    OPTION_TYPE_COLOR = 6     ///< color3aub_t: up to four bytes, 255,0,0,255
};

/// Unused values. The built-in values are in option_t.
struct option_value_t {
    std::uint32_t number;
    float real;
    std::array<std::int32_t, 2> pair;
    std::uint32_t spare;
};

/// One row of the option table.
struct option_entity_t {
    char const* name;    ///< without the leading "-"
    std::size_t length;  ///< the length of `name`; 0 before `option_init`
    e_option_type_t type;
    option_value_t value;
    void* target;         ///< the field of `g_option`; its C++ type is in e_option_type_t
    char const* comment;  ///< the description in the help
};

/// The directory that is searched last for the message file and for the photo frame's data files.
inline constexpr char const* site_directory = "/usr/site/share/zanolib/";

inline constexpr std::size_t option_count = 25;

/// The option table: one row for each field of `g_option`, in the order of the fields. The parser,
/// the help, the user default file, the manual page and the shell completions use it.
extern std::array<option_entity_t, option_count> option_entity_table;

/// Sets the lengths in all rows. Only `option_load` needs it; the other functions call it.
void option_init();

/// Applies the leading options of a command line to `g_option`, and removes them from it.
///
/// The options end at the first element that isn't one: a file, or an unknown "-foo". This element
/// moves to `(*argv)[1]`, and the rest follows it. `*argc` becomes the number of elements that are
/// left, with the program's name. No null pointer is written after them. An option whose value is
/// missing is removed and changes nothing. Names match in upper and lower case.
///
/// After the option "-h", prints the help and ends the process with status 0.
void option_enter_argument(int* argc, char*** argv);

/// Prints the help on standard output: a usage line with `prog`, then one line for each option.
void option_list(char const* prog);

}  // namespace zanolib
