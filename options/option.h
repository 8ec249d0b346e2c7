// SPDX-License-Identifier: MIT
// The one record of settings, the table that describes it, the command line and its help.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "geometry/color.h"
#include "geometry/vector.h"

namespace zanolib {

/// All settings with their built-in values, in the order of the table's rows. They are layered at
/// start (built-in values, user default file, command line) and stay writable at run time. Values
/// from the user are not checked against the ranges told here.
struct option_t {
    bool h = false;
    bool verbose = false;
    bool debug = false;
    std::uint32_t wintype = 0;  ///< bit 1: the window covers the work area
    libgr::direction2l_t winsize{800, 600};
    std::uint32_t resizetype = 1;          ///< 0 neither, 1 picture follows, 2 window follows
    float image_ratio_of_image = 1.0f;     ///< scale under `resizetype` 0
    float image_ratio_of_window = 0.875f;  ///< share of the window that a fitted picture takes
    float window_ratio_of_image = 1.2f;    ///< window as a multiple of the picture
    bool resize_magnify = true;
    bool resize_shrink = false;
    std::uint32_t sizelimit = 1;  ///< 1 `maxmargin`, 2 `maxsize`, else no limit
    libgr::direction2l_t maxmargin{10, 32};
    libgr::direction2l_t maxsize{1280, 960};
    std::uint32_t cursor_movement = 1;  ///< 0 panning, 1 camera
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

/// The settings in force, read directly everywhere.
extern option_t g_option;

/// How an option's value is written on the command line and in the user default file.
enum e_option_type_t : std::uint32_t {
    OPTION_TYPE_BOOL = 0,     ///< a flag: the bare name or "+" behind it for true, "-" for false
    OPTION_TYPE_ENUM = 1,     ///< a signed integer
    OPTION_TYPE_PERCENT = 2,  ///< the bits of a float, as an unsigned integer
    OPTION_TYPE_ULONG = 3,    ///< an unsigned integer other than 0
    OPTION_TYPE_FLOAT = 4,    ///< a float
    OPTION_TYPE_PAIR = 5,     ///< two integers that aren't negative, one character between them
    OPTION_TYPE_COLOR = 6     ///< up to four bytes, one character between them
};

/// A second column of figures beside the built-in values; nothing reads it.
struct option_value_t {
    std::uint32_t number;
    float real;
    std::array<std::int32_t, 2> pair;
    std::uint32_t spare;
};

/// One row of the option table.
struct option_entity_t {
    char const* name;    ///< without the "-" in front
    std::size_t length;  ///< of `name`; 0 until `option_init`
    e_option_type_t type;
    option_value_t value;
    void* target;         ///< the field of `g_option`, of the type that goes with `type`
    char const* comment;  ///< as the help prints it
};

/// The last place where messages and the frame's data files are looked for, with its separator.
inline constexpr char const* site_directory = "/usr/site/share/zanolib/";

inline constexpr std::size_t option_count = 25;

/// One row for each field of `g_option`, in that order. The parser, the help, the user default
/// file, the manual page and the completions of the shells all come from it.
extern std::array<option_entity_t, option_count> option_entity_table;

/// Fills the lengths of all rows. It may run more than once.
void option_init();

/// Applies the leading options of a command line and takes them out: `argv[0]` stays, the first
/// element that is no known option moves to `argv[1]` with all behind it, and `*argc` counts what
/// is left. The array isn't terminated anew. A value that is no number counts as far as it is one,
/// without a message. Under "-h" prints the help and ends the process with status 0.
void option_enter_argument(int* argc, char*** argv);

/// Prints the help to standard output: a usage line with `prog`, then a line for each option.
void option_list(char const* prog);

}  // namespace zanolib
