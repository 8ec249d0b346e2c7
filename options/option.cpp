// SPDX-License-Identifier: MIT
// The option table and the help.
#include "options/option.h"

#include <algorithm>
#include <cstring>
#include <iostream>

#include "utils/diagnostics.h"

namespace zanolib {

constinit option_t g_option;

namespace {

constexpr option_value_t unset{};

constexpr option_value_t number(std::uint32_t value) {
    return {.number = value, .real = 0.0f, .pair = {}, .spare = 0};
}
constexpr option_value_t real(float value) {
    return {.number = 0, .real = value, .pair = {}, .spare = 0};
}
constexpr option_value_t pair(std::int32_t x, std::int32_t y) {
    return {.number = 0, .real = 0.0f, .pair = {x, y}, .spare = 0};
}

/// The help's column of formats, by `e_option_type_t`. The third one is too wide by a character.
constexpr std::array<char const*, 7> format_texts = {
    " bool   ", " enum   ", " percent  ", " ulong  ", " float  ", " XXXxYYY", " R,G,B  ",
};

}  // namespace

// clang-format off
constinit std::array<option_entity_t, option_count> option_entity_table = {{
    {"h", 0, OPTION_TYPE_BOOL, unset, &g_option.h,
     "print help and exit(if commend-line)."},
    {"verbose", 0, OPTION_TYPE_BOOL, unset, &g_option.verbose,
     "verbose print."},
    {"debug", 0, OPTION_TYPE_BOOL, unset, &g_option.debug,
     "debug print."},
    {"wintype", 0, OPTION_TYPE_ENUM, number(2), &g_option.wintype,
     "window type (0:window 1:maximize 2:fullscreen)."},
    {"winsize", 0, OPTION_TYPE_PAIR, pair(1280, 960), &g_option.winsize,
     "initial window size."},
    {"resizetype", 0, OPTION_TYPE_ENUM, number(2), &g_option.resizetype,
     "policy of resize (0:don't care 1:image 2:window)."},
    {"image_ratio_of_image", 0, OPTION_TYPE_PERCENT, real(1), &g_option.image_ratio_of_image,
     "image size factor of image."},
    {"image_ratio_of_window", 0, OPTION_TYPE_PERCENT, real(20), &g_option.image_ratio_of_window,
     "image size factor of window."},
    {"window_ratio_of_image", 0, OPTION_TYPE_PERCENT, real(1), &g_option.window_ratio_of_image,
     "window size factor of image."},
    {"resize_magnify", 0, OPTION_TYPE_BOOL, unset, &g_option.resize_magnify,
     "allow window resize (if magnify)."},
    {"resize_shrink", 0, OPTION_TYPE_BOOL, unset, &g_option.resize_shrink,
     "allow window resize (if shrink)."},
    {"sizelimit", 0, OPTION_TYPE_ENUM, number(1), &g_option.sizelimit,
     "limitation of window size (0:screen 1:value)."},
    {"maxmargin", 0, OPTION_TYPE_PAIR, pair(10, 32), &g_option.maxmargin,
     "0:screen, margin of maximum window size."},
    {"maxsize", 0, OPTION_TYPE_PAIR, pair(1280, 960), &g_option.maxsize,
     "1:value, maximum window size."},
    {"cursor_movement", 0, OPTION_TYPE_ENUM, number(1), &g_option.cursor_movement,
     "moving cursorkey direction (0:panning, 1:camera)."},
    {"magsmooth", 0, OPTION_TYPE_BOOL, unset, &g_option.magsmooth,
     "image smoother for magnify."},
    {"move_limit", 0, OPTION_TYPE_BOOL, unset, &g_option.move_limit,
     "image move limitation (not implemented yet)."},
    {"doubleclick_interval", 0, OPTION_TYPE_ULONG, number(1000), &g_option.doubleclick_interval,
     "maximum interval time(ms) of mouse double-click."},
    {"frametype", 0, OPTION_TYPE_ENUM, number(4), &g_option.frametype,
     "drawing photo-frame type (0:none - 4:max)."},
    {"framewidth", 0, OPTION_TYPE_ULONG, number(32), &g_option.framewidth,
     "drawing photo-frame width (in pixel)."},
    {"framecolor", 0, OPTION_TYPE_COLOR, unset, &g_option.framecolor,
     "frame color."},
    {"reproduce", 0, OPTION_TYPE_BOOL, unset, &g_option.reproduce,
     "reproduce angle/zoom of saved '.zvw' file."},
    {"resetview", 0, OPTION_TYPE_BOOL, unset, &g_option.resetview,
     "resetview(reproduce) on nextimage."},
    {"menu", 0, OPTION_TYPE_BOOL, unset, &g_option.menu,
     "menu on/off."},
    {"single", 0, OPTION_TYPE_BOOL, unset, &g_option.single,
     "disable double-buffer, reduce VRAM use."},
}};
// clang-format on

void option_init() {
    for (option_entity_t& row : option_entity_table) {
        row.length = std::strlen(row.name);
    }
}

void option_init_once() {
    if (option_entity_table[0].length == 0) {
        option_init();
    }
}

void option_list(char const* prog) {
    option_init_once();
    std::size_t width = 0;
    for (option_entity_t const& row : option_entity_table) {
        width = std::max(width, row.length);
    }
    std::cout << "usage: " << libutils::putname(prog) << " [option]"
              << " file..." << std::endl
              << std::endl;
    std::cout << "option" << libutils::putspace(width - 5) << " format  comment." << std::endl;
    std::cout << libutils::putcn('-', width + 18) << std::endl;
    for (option_entity_t const& row : option_entity_table) {
        std::cout << "-" << row.name << libutils::putspace(width - row.length)
                  << format_texts[row.type] << " " << row.comment << std::endl;
    }
}

}  // namespace zanolib
