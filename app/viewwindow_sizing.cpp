// SPDX-License-Identifier: MIT
// How window and picture adapt to each other at a change of picture and at a resize.
#include <iostream>
#include <optional>
#include <utility>

#include "app/nativewindow.h"
#include "app/sizing.h"
#include "app/viewwindow.h"
#include "app/zvwfile.h"
#include "geometry/textstream.h"
#include "options/option.h"

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
            // The stored size, not the one on the screen: a turned picture gets the window of the
            // unturned one.
            libgr::direction2l_t const img = scene.getCurrentImageSize();
            if (zanolib::g_option.verbose) {
                std::cout << "imagesize: " << img << std::endl;
            }
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
    if (zanolib::g_option.verbose) {
        std::cout << "set window size to: " << target << std::endl;
    }
    if (!(native::possible_window_size(target) != present)) {
        set_shape();
        return false;
    }
    if (resize) {
        // Pixels where the windowing library expects screen coordinates: on a display with two
        // pixels a coordinate the window comes out at double the size.
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
        if (zanolib::g_option.debug) {
            std::cout << "oldwinsize is ZERO." << std::endl;
        }
        // The window manager granted the start size after the first picture was fitted.
        if (zanolib::g_option.resizetype == RESIZE_IMAGE && size != 0 && size != startsize) {
            residue(false);
        }
    } else if (zanolib::g_option.resizetype == RESIZE_IMAGE) {
        // Only the height counts: a window that grows wider shows more of what is beside the
        // picture.
        float const scale = reshaping_scale(size.y, oldwinsize.y);
        if (zanolib::g_option.debug) {
            std::cout << "re-shape scale factor is " << scale << std::endl;
        }
        scene.Scale(scale, 0.0f);
    }
    oldwinsize = size;
    if (zanolib::g_option.debug) {
        std::cout << "newwinsize is " << oldwinsize << std::endl;
    }
}

}  // namespace zanoview2
