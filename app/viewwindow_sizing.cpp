// SPDX-License-Identifier: MIT
// Adapts the window and the picture to each other.
#include <iostream>
#include <optional>
#include <utility>

#include "app/nativewindow.h"
#include "app/sizing.h"
#include "app/viewwindow.h"
#include "app/zvwfile.h"
#include "geometry/textstream.h"
#include "options/trace.h"

namespace zanoview2 {

namespace {

enum resizetype_t : unsigned { RESIZE_NEITHER = 0, RESIZE_IMAGE = 1, RESIZE_WINDOW = 2 };

}  // namespace

bool ViewWindow::residue(bool resize) {
    if (!zanolib::g_option.resetview) {
        return true;
    }
    if (zanolib::g_option.reproduce && residue_resume(resize)) {
        return true;
    }
    return residue_new(resize);
}

bool ViewWindow::residue_resume(bool resize) {
    if (current == imagelist.end()) {
        return false;
    }
    zvwfile_t stored;
    if (!stored.load(current->c_str())) {
        return false;
    }
    libgr::direction2l_t const win = get_window_size();
    switch (zanolib::g_option.resizetype) {
        case RESIZE_WINDOW:
            residue_set_window_size(residue_calc_window_size(stored.size, win), win, resize);
            setMatrix(stored.matrix);
            break;
        case RESIZE_IMAGE:
            if (stored.size != 0) {
                setMatrix(stored.matrix);
                setScale(resuming_scale(stored.size, win));
            }
            break;
        case RESIZE_NEITHER:
            setMatrix(stored.matrix);
            break;
        default:
            break;
    }
    return true;
}

bool ViewWindow::residue_new(bool resize) {
    switch (zanolib::g_option.resizetype) {
        case RESIZE_WINDOW: {
            // The size in the file, before the turn by the Exif orientation.
            libgr::direction2l_t const img = scene.getCurrentImageSize();
            zanolib::report("imagesize: ", img);
            libgr::direction2l_t const target =
                wanted_window_size(img, zanolib::g_option.window_ratio_of_image);
            if (!(target != 0)) {
                return false;
            }
            libgr::direction2l_t const win = get_window_size();
            return residue_set_window_size(residue_calc_window_size(target, win), win, resize);
        }
        case RESIZE_IMAGE:
            go_center();
            return true;
        case RESIZE_NEITHER:
            setScale(zanolib::g_option.image_ratio_of_image);
            return false;
        default:
            return false;
    }
}

libgr::direction2l_t ViewWindow::residue_calc_window_size(
    libgr::direction2l_t const& target, libgr::direction2l_t const& present) const {
    return limited_window_size(target, present, native::window_size(window()), zanolib::g_option);
}

bool ViewWindow::residue_set_window_size(libgr::direction2l_t const& target,
                                         libgr::direction2l_t const& present, bool resize) {
    zanolib::report("set window size to: ", target);
    if (!(native::clamped_window_size(target) != present)) {
        set_shape();
        return false;
    }
    if (resize) {
        // The size is in pixels, but GLFW takes screen coordinates. The window becomes twice as
        // large on a display with two pixels for each screen coordinate.
        native::set_window_size(window(), target);
    }
    return true;
}

void ViewWindow::set_shape() {
    oldwinsize = get_window_size();
    scene.Reshape(static_cast<unsigned long>(oldwinsize.x),
                  static_cast<unsigned long>(oldwinsize.y));
}

void ViewWindow::go_center() {
    scene.Origin();
    std::optional<float> const scale = fitting_scale(getCurrentImageSize(), get_window_size(),
                                                     zanolib::g_option.image_ratio_of_window);
    if (scale) {
        setScale(*scale);
    }
}

libgr::direction2l_t ViewWindow::getCurrentImageSize() const {
    libgr::direction2l_t size = scene.getCurrentImageSize();
    bool const has_picture = size != 0;
    if (has_picture && scene.rightrotatecount() % 2 == 1) {
        std::swap(size.x, size.y);
    }
    return size;
}

void ViewWindow::setScale(float scale) {
    scene.Scale(scale, 0.0f);
}

void ViewWindow::setMatrix(libgr::matrix3w_t const& matrix) {
    scene.Matrix(matrix);
}

void ViewWindow::reshape(int width, int height) {
    libgr::direction2l_t size = libgr::direction2l(width, height);
    if (width != 0 && height != 0) {
        size = get_window_size();
        pixelratio = libgr::direction2l(size.x / width, size.y / height);
    }
    scene.Reshape(static_cast<unsigned long>(size.x), static_cast<unsigned long>(size.y));
    if (!(oldwinsize != 0)) {
        zanolib::trace(std::cout, "oldwinsize is ZERO.");
        // A window manager may change the start size after the first picture was fitted.
        if (zanolib::g_option.resizetype == RESIZE_IMAGE && size != 0 && startsize != 0 &&
            size != startsize) {
            residue(false);
        }
    } else if (zanolib::g_option.resizetype == RESIZE_IMAGE) {
        // The picture's scale depends on the height only. A wider window has more room beside it.
        float const scale = reshaping_scale(size.y, oldwinsize.y);
        zanolib::trace(std::cout, "re-shape scale factor is ", scale);
        scene.Scale(scale, 0.0f);
    }
    oldwinsize = size;
    startsize = libgr::datum2l;  // a window that loses its size later keeps the view
    zanolib::trace(std::cout, "newwinsize is ", oldwinsize);
}

}  // namespace zanoview2
