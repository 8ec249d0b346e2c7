// SPDX-License-Identifier: MIT
// Handles keys, mouse buttons, the wheel and dropped files.
#include <algorithm>
#include <array>
#include <iostream>

#include "app/nativewindow.h"
#include "app/viewwindow.h"
#include "options/trace.h"
#include "window/glfwymgr4.h"

namespace zanoview2 {

namespace {

// The window's size and position before it covered the work area. A width or height of 0 means that
// they are not known.
int winwidth = 0;
int winheight = 0;
int winx = 0;
int winy = 0;

constexpr unsigned covering_work_area = 2;  // the bit of the option wintype

// The codes of the keys that have no character. They are GLFW's, and greater than all characters.
enum special_key_t {
    KEY_INSERT = 260,
    KEY_RIGHT = 262,
    KEY_LEFT = 263,
    KEY_DOWN = 264,
    KEY_UP = 265,
    KEY_PAGE_UP = 266,
    KEY_PAGE_DOWN = 267,
    KEY_HOME = 268,
    KEY_END = 269,
    KEY_F5 = 294
};

}  // namespace

/// A row of the key table, and the actions that are too long for a row or are used by several rows.
struct ViewWindow::key_row_t {
    using action_t = void (*)(ViewWindow& self, int key);

    static void turn_right(ViewWindow& self, int) { self.scene.Rotate(-5.0f, 0.0f); }
    static void turn_left(ViewWindow& self, int) { self.scene.Rotate(5.0f, 0.0f); }
    static void enlarge(ViewWindow& self, int) { self.scene.Zoom(0.25f, 0.0f); }
    static void shrink(ViewWindow& self, int) { self.scene.Zoom(-0.25f, 0.0f); }
    static void page_forward(ViewWindow& self, int) { self.forward(self.paging_step()); }
    static void page_backward(ViewWindow& self, int) { self.backward(self.paging_step()); }
    static void exit(ViewWindow&, int) { wenk::glfwyMGR4::getSingleton()->Exit(); }
    static void iconify(ViewWindow& self, int) {
        native::iconify(self.window());
        native::restore(self.window());
    }
    template <void (ViewWindow::*command)()>
    static void call(ViewWindow& self, int) {
        (self.*command)();
    }

    char const* name;  ///< in the documents; "" for a key that they don't list
    int first;         ///< the first and the last code of its keys: a character or a special_key_t
    int last;
    action_t act;
    bool redisplay;  ///< true if the window is drawn again after `act`
};

// README.md and the manual page list the same keys. keys_test compares them with this table.
constinit std::array<ViewWindow::key_row_t, 26> const ViewWindow::key_rows{{
    {"Backspace", 8, 8, key_row_t::page_backward, false},
    {"Enter", 13, 13, key_row_t::call<&ViewWindow::go_center>, true},
    {"Escape", 27, 27, key_row_t::exit, false},
    {"Space", ' ', ' ', key_row_t::page_forward, false},
    {"", '*', '*', key_row_t::turn_right, true},  // only the keypad has this key
    {"-", '-', '-', [](ViewWindow& self, int) { self.scene.clrRotate(); }, true},
    {"/", '/', '/', key_row_t::turn_left, true},
    {"0 to 9", '0', '9', [](ViewWindow& self, int digit) { self.set_zoom(digit - '0'); }, true},
    {"R", 'R', 'R', key_row_t::iconify, false},
    {"W", 'W', 'W', key_row_t::call<&ViewWindow::menu_edit_writedefault>, false},
    {"\\", '\\', '\\', key_row_t::turn_right, true},
    {"d", 'd', 'd', key_row_t::call<&ViewWindow::menu_edit_delete_zvwfile>, false},
    {"f", 'f', 'f', key_row_t::call<&ViewWindow::toggle_work_area>, true},
    {"g", 'g', 'g', [](ViewWindow& self, int) { self.scene.toggleSmooth(); }, true},
    {"q", 'q', 'q', key_row_t::exit, false},
    {"r", 'r', 'r', key_row_t::call<&ViewWindow::reload>, false},
    {"s", 's', 's', key_row_t::call<&ViewWindow::menu_file_savejpeg>, false},
    {"w", 'w', 'w', key_row_t::call<&ViewWindow::menu_edit_save_zvwfile>, false},
    {"", 127, 127, key_row_t::call<&ViewWindow::menu_edit_delete_zvwfile>, false},  // no GLFW key
    {"Insert", KEY_INSERT, KEY_INSERT, key_row_t::call<&ViewWindow::menu_edit_save_zvwfile>, false},
    {"arrows", KEY_RIGHT, KEY_UP, [](ViewWindow& self, int key) { self.cursor_move(key); }, true},
    {"Page Up", KEY_PAGE_UP, KEY_PAGE_UP, key_row_t::enlarge, true},
    {"Page Down", KEY_PAGE_DOWN, KEY_PAGE_DOWN, key_row_t::shrink, true},
    {"Home", KEY_HOME, KEY_HOME, key_row_t::call<&ViewWindow::first>, false},
    {"End", KEY_END, KEY_END, key_row_t::call<&ViewWindow::last>, false},
    {"F5", KEY_F5, KEY_F5, key_row_t::call<&ViewWindow::reload>, false},
}};

void ViewWindow::handle_key(int key) {
    auto const serves = [key](key_row_t const& row) { return row.first <= key && key <= row.last; };
    auto const* const row = std::find_if(key_rows.begin(), key_rows.end(), serves);
    if (row == key_rows.end()) {
        return;
    }
    row->act(*this, key);
    if (row->redisplay) {
        request_redisplay();
    }
}

void ViewWindow::keyboard(unsigned char key, int, int) {
    handle_key(key);
}

void ViewWindow::specialkey(int key, int, int) {
    handle_key(key);
}

unsigned long ViewWindow::paging_step() const {
    return native::is_shift_down(window()) ? 10 : 1;
}

void ViewWindow::set_zoom(int digit) {
    float const value = static_cast<float>(digit) * 0.5f;
    zanolib::trace(std::cout, "zoom value: ", value);
    scene.clrZoom();
    scene.Zoom(-value, 0.0f);
}

void ViewWindow::cursor_move(int key) {
    constexpr float step = 10.0f;
    libgr::direction3_t move = libgr::direction3(0.0f, 0.0f, 0.0f);
    switch (key) {
        case KEY_RIGHT:
            move.x = step;
            break;
        case KEY_LEFT:
            move.x = -step;
            break;
        case KEY_DOWN:
            move.y = -step;
            break;
        case KEY_UP:
            move.y = step;
            break;
        default:
            break;
    }
    if (zanolib::g_option.cursor_movement == 1) {
        move *= -1.0f;
    }
    scene.Move(move, 0.0f);
}

bool ViewWindow::covers_work_area() {
    return (zanolib::g_option.wintype & covering_work_area) != 0;
}

void ViewWindow::cover_work_area(GLFWwindow* win) {
    libgr::direction2l_t const size = native::window_size(win);
    libgr::position2l_t const position = native::window_position(win);
    libgr::direction2l_t const area = native::work_area();
    winwidth = size.x;
    winheight = size.y;
    winx = position.x;
    winy = position.y;
    native::set_window_position(win, libgr::position2l(0, 0));
    if (area != 0) {
        native::set_window_size(win, area);
    }
}

void ViewWindow::toggle_work_area() {
    GLFWwindow* const win = window();
    zanolib::g_option.wintype ^= covering_work_area;
    if (covers_work_area()) {
        cover_work_area(win);
    } else if (winwidth != 0 && winheight != 0) {
        native::set_window_size(win, libgr::direction2l(winwidth, winheight));
        native::set_window_position(win, libgr::position2l(winx, winy));
    }
}

void ViewWindow::mouse(int button, int state, int x, int y) {
    int const px = x * pixelratio.x;
    int const py = y * pixelratio.y;
    zanolib::trace(std::cout, "mouse: button=", button, ", state=", state);
    std::array<drag_t*, 3> const drags{&move_drag, &zoom_drag, &rotate_drag};
    if (button < 0 || button >= static_cast<int>(drags.size())) {
        return;
    }
    drag_t& drag = *drags[static_cast<std::size_t>(button)];
    drag.active = state == 0;
    if (drag.active) {
        drag.x = static_cast<float>(px);
        drag.y = static_cast<float>(py);
    }
}

void ViewWindow::motion(int x, int y) {
    if (!move_drag.active && !zoom_drag.active && !rotate_drag.active) {
        return;
    }
    auto const px = static_cast<float>(x * pixelratio.x);
    auto const py = static_cast<float>(y * pixelratio.y);
    auto const follow = [&](drag_t& drag, auto&& act) {
        if (drag.active) {
            act(px - drag.x, py - drag.y);
            drag.x = px;
            drag.y = py;
            request_redisplay();
        }
    };
    // The window's y axis points down, and the scene's points up.
    follow(move_drag,
           [this](float dx, float dy) { scene.Move(libgr::direction3(dx, -dy, 0.0f), 0.0f); });
    follow(zoom_drag, [this](float, float dy) { scene.Zoom(dy * -0.01f, 0.0f); });
    follow(rotate_drag, [this](float dx, float) { scene.Rotate(dx * 0.25f, 0.0f); });
}

void ViewWindow::mousewheel(int wheel, int direction, int, int) {
    if (wheel != 0) {
        return;
    }
    zanolib::trace(std::cout, "wheel: number=", wheel, ", direction=", direction);
    if (direction == 1 || direction == -1) {
        scene.Zoom(static_cast<float>(direction) * -0.25f, 0.0f);
        request_redisplay();
    }
}

void ViewWindow::drop(int count, char const** paths) {
    clear();
    for (int i = 0; i < count; ++i) {
        setImagePath(paths[i]);
    }
    if (initial_load()) {
        first();
    }
}

}  // namespace zanoview2
