// SPDX-License-Identifier: MIT
// Start, drawing, and the commands that write files.
#include "app/viewwindow.h"

#include <cerrno>
#include <cstring>

#include "app/nativewindow.h"
#include "app/zvwfile.h"
#include "glext/glextloader.h"
#include "options/option.h"
#include "options/userdefault.h"
#include "utils/diagnostics.h"
#include "utils/path.h"
#include "window/glfwymgr4.h"

namespace zanoview2 {

namespace {

void cut_exe_suffix(char* name) {
    std::size_t const length = std::strlen(name);
    if (libutils::extcasecmp(name, length, ".exe") == 0) {
        name[length - 4] = '\0';
    }
}

/// Prints why a file was not saved. `error` is a value of errno.
void report_unsaved(std::string const& path, int error) {
    libutils::report_error(libutils::putname(path), ": can't be saved: ", std::strerror(error));
}

}  // namespace

char const* getmsg(e_message_local_t id) {
    return zanolib::getmsg(static_cast<zanolib::e_message_t>(id));
}

ViewWindow::ViewWindow(int* argc, char** argv) {
    char const* const self = *argc > 0 ? argv[0] : "";
    libutils::basename(prog.data(), self, prog.size());
    libutils::dirname(dir.data(), self, dir.size());
    prog.back() = '\0';
    cut_exe_suffix(prog.data());
    dir.back() = '\0';

    zanolib::init_message(dir.data(), prog.data());
    zanolib::option_init();
    zanolib::option_load_user_default(prog.data(), dir.data());
    zanolib::option_enter_argument(argc, &argv);

    if (*argc < 2) {
        setImagePath(".");
    }
    for (int i = 1; i < *argc; ++i) {
        setImagePath(argv[i]);
    }
}

void ViewWindow::init() {
    gl_extloader_init();
    scene.Init(dir.data());

    GLFWwindow* const win = window();
    native::set_title(
        win, zanolib::make_title(getmsg(MESSAGE_APPLICATION_NAME), getmsg(MESSAGE_NO_PICTURE)));
    native::set_window_size(win, zanolib::g_option.winsize);
    native::await_window_size(win, zanolib::g_option.winsize);
    if (covers_work_area()) {
        cover_work_area(win);
        native::await_window_size(win, native::work_area());
    }

    startsize = get_window_size();
    load_first_picture();
    // There is no size event if the window has kept the size that it was created with, so that the
    // scene needs its projection from here. `oldwinsize` stays 0: if there is an event, it must not
    // scale the picture, which is fitted already.
    scene.Reshape(static_cast<unsigned long>(startsize.x), static_cast<unsigned long>(startsize.y));
    wenk::glfwyMGR4::getSingleton()->KeyRepeat(true);
}

void ViewWindow::display() {
    scene.Display();
}

void ViewWindow::clear() {
    scene.setCurrent(0);
    while (scene.delImage()) {
    }
    imagelist.clear();
    skipped.clear();
    current = imagelist.end();
    current_index = 0;
    request_redisplay();
}

GLFWwindow* ViewWindow::window() const {
    return wenk::glfwyMGR4::getSingleton()->win(const_cast<ViewWindow*>(this));
}

libgr::direction2l_t ViewWindow::get_window_size() const {
    return native::framebuffer_size(window());
}

libgr::matrix3w_t const& ViewWindow::getMatrix() const {
    return scene.getMatrix();
}

void ViewWindow::request_redisplay() const {
    wenk::glfwyMGR4::getSingleton()->PostRedisplay();
}

void ViewWindow::menu_edit_save_zvwfile() {
    if (current == imagelist.end()) {
        return;
    }
    if (!zvwfile_t{get_window_size(), getMatrix()}.save(current->c_str())) {
        int const error = errno;
        report_unsaved(make_zvwpath(current->c_str()), error);
    }
}

void ViewWindow::menu_edit_delete_zvwfile() {
    if (current != imagelist.end()) {
        zvwfile_t{}.del(current->c_str());
    }
}

void ViewWindow::menu_file_savejpeg() {
    if (current == imagelist.end()) {
        return;
    }
    // The snapshot reads the back buffer if the front buffer can't be read.
    display();
    if (!scene.saveImage(current->c_str())) {
        int const error = errno;
        report_unsaved(zanolib::make_snapshotpath(current->c_str()), error);
    }
}

void ViewWindow::menu_edit_writedefault() {
    zanolib::option_save_user_default(prog.data(), dir.data());
}

}  // namespace zanoview2
