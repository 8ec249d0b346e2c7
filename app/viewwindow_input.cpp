// SPDX-License-Identifier: MIT
// Keys, buttons, wheel and dropped files, each by its table.
#include <algorithm>
#include <array>
#include <iostream>

#include "app/nativewindow.h"
#include "app/viewwindow.h"
#include "options/option.h"
#include "window/glfwymgr4.h"

namespace zanoview2 {

namespace {

// The window's size and place from before it was blown up to the work area; a zero width or height
// means that nothing is kept.
int winwidth = 0;
int winheight = 0;
int winx = 0;
int winy = 0;

constexpr unsigned covering_work_area = 2;  // the bit of the option wintype

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

/// What one key does, and whether the window is to be drawn again after it.
struct ViewWindow::key_row_t {
    int first;  ///< the first and the last code of the keys that this row serves
    int last;
    void (*act)(ViewWindow& self, int key);
    bool redisplay;
};

void ViewWindow::serve_key(key_row_t const* begin, key_row_t const* end, int key) {
    auto const* const row = std::find_if(begin, end, [key](key_row_t const& candidate) {
        return candidate.first <= key && key <= candidate.last;
    });
    if (row == end) {
        return;
    }
    row->act(*this, key);
    if (row->redisplay) {
        request_redisplay();
    }
}

void ViewWindow::keyboard(unsigned char key, int, int) {
    constexpr auto turn_right = [](ViewWindow& self, int) { self.scene.Rotate(-5.0f, 0.0f); };
    constexpr auto exit = [](ViewWindow&, int) { wenk::glfwyMGR4::getSingleton()->Exit(); };
    constexpr auto delete_view = [](ViewWindow& self, int) { self.menu_edit_delete_zvwfile(); };
    static constexpr std::array<key_row_t, 19> rows{{
        {8, 8, [](ViewWindow& self, int) { self.backward(self.paging_step()); }, false},
        {13, 13, [](ViewWindow& self, int) { self.go_center(); }, true},
        {27, 27, exit, false},
        {' ', ' ', [](ViewWindow& self, int) { self.forward(self.paging_step()); }, false},
        {'*', '*', turn_right, true},
        {'-', '-', [](ViewWindow& self, int) { self.scene.clrRotate(); }, true},
        {'/', '/', [](ViewWindow& self, int) { self.scene.Rotate(5.0f, 0.0f); }, true},
        {'0', '9', [](ViewWindow& self, int digit) { self.set_zoom(digit - '0'); }, true},
        {'R', 'R',
         [](ViewWindow& self, int) {
             native::iconify(self.window());
             native::restore(self.window());
         },
         false},
        {'W', 'W', [](ViewWindow& self, int) { self.menu_edit_writedefault(); }, false},
        {'\\', '\\', turn_right, true},
        {'d', 'd', delete_view, false},
        {'f', 'f', [](ViewWindow& self, int) { self.toggle_work_area(); }, true},
        {'g', 'g', [](ViewWindow& self, int) { self.scene.toggleSmooth(); }, true},
        {'q', 'q', exit, false},
        {'r', 'r', [](ViewWindow& self, int) { self.reload(); }, false},
        {'s', 's', [](ViewWindow& self, int) { self.menu_file_savejpeg(); }, false},
        {'w', 'w', [](ViewWindow& self, int) { self.menu_edit_save_zvwfile(); }, false},
        {127, 127, delete_view, false},
    }};
    serve_key(rows.data(), rows.data() + rows.size(), key);
}

void ViewWindow::specialkey(int key, int, int) {
    constexpr auto reload_picture = [](ViewWindow& self, int) { self.reload(); };
    static constexpr std::array<key_row_t, 7> rows{{
        {KEY_INSERT, KEY_INSERT, [](ViewWindow& self, int) { self.menu_edit_save_zvwfile(); },
         false},
        {KEY_RIGHT, KEY_UP, [](ViewWindow& self, int arrow) { self.cursor_move(arrow); }, true},
        {KEY_PAGE_UP, KEY_PAGE_UP, [](ViewWindow& self, int) { self.scene.Zoom(0.25f, 0.0f); },
         true},
        {KEY_PAGE_DOWN, KEY_PAGE_DOWN, [](ViewWindow& self, int) { self.scene.Zoom(-0.25f, 0.0f); },
         true},
        {KEY_HOME, KEY_HOME, [](ViewWindow& self, int) { self.first(); }, false},
        {KEY_END, KEY_END, [](ViewWindow& self, int) { self.last(); }, false},
        {KEY_F5, KEY_F5, reload_picture, false},
    }};
    serve_key(rows.data(), rows.data() + rows.size(), key);
}

unsigned long ViewWindow::paging_step() const {
    return native::is_shift_down(window()) ? 10 : 1;
}

void ViewWindow::set_zoom(int digit) {
    float const value = static_cast<float>(digit) * 0.5f;
    if (zanolib::g_option.debug) {
        std::cout << "zoom value: " << value << std::endl;
    }
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
    if (zanolib::g_option.debug) {
        std::cout << "mouse: button=" << button << ", state=" << state << std::endl;
    }
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
    auto const serve = [&](drag_t& drag, auto&& act) {
        if (drag.active) {
            act(px - drag.x, py - drag.y);
            drag.x = px;
            drag.y = py;
            request_redisplay();
        }
    };
    // The window's y axis points down, the scene's up.
    serve(move_drag,
          [this](float dx, float dy) { scene.Move(libgr::direction3(dx, -dy, 0.0f), 0.0f); });
    serve(zoom_drag, [this](float, float dy) { scene.Zoom(dy * -0.01f, 0.0f); });
    serve(rotate_drag, [this](float dx, float) { scene.Rotate(dx * 0.25f, 0.0f); });
}

void ViewWindow::mousewheel(int wheel, int direction, int, int) {
    if (wheel != 0) {
        return;
    }
    if (zanolib::g_option.debug) {
        std::cout << "wheel: number=" << wheel << ", direction=" << direction << std::endl;
    }
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
