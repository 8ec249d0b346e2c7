// SPDX-License-Identifier: MIT
// The list of pictures as the window pages through it.
#include <iostream>
#include <sstream>

#include "app/nativewindow.h"
#include "app/viewwindow.h"
#include "options/message.h"
#include "options/option.h"
#include "utils/allocator.h"
#include "utils/diagnostics.h"
#include "window/glfwymgr4.h"

namespace zanoview2 {

class ViewWindow::stage_t final : public picture_stage_t {
  public:
    explicit stage_t(ViewWindow& owner) : m_owner(owner) {}

    bool add(std::string const& path) override { return m_owner.add_to_scene(path); }
    void remove() override { m_owner.scene.delImage(); }

  private:
    ViewWindow& m_owner;
};

bool ViewWindow::setImagePath(char const* path) {
    if (!append_pictures(imagelist, path)) {
        return false;
    }
    current = imagelist.begin();
    return true;
}

void ViewWindow::announce(std::string const& path) const {
    if (zanolib::g_option.verbose) {
        std::cout << "\ndisplay image: " << libutils::putname(path) << std::endl;
    }
}

/// Reports a picture that a walk skips. A walk may try a picture twice.
void ViewWindow::skip(std::string const& path) {
    if (zanolib::g_option.verbose && skipped.insert(path).second) {
        report_skipped(path);
    }
}

bool ViewWindow::add_to_scene(std::string const& path) {
    if (too_large.contains(path)) {
        return false;
    }
    libutils::clear_failure_reason();
    bool const added = scene.addImage(path.c_str(), dir.data());
    if (!added) {
        skip(path);
    }
    return added;
}

bool ViewWindow::initial_load() {
    stage_t stage(*this);
    picture_place_t place{};
    image_count = imagelist.size();
    bool const loaded = walk_initial(imagelist, place, stage);
    current = place.entry;
    current_index = place.index;
    if (loaded) {
        announce(*current);
    }
    return loaded;
}

/// Ends a walk: where nothing loaded, the old picture comes back.
bool ViewWindow::settle(walk_t walk) {
    if (walk == walk_t::refused) {
        return false;
    }
    if (current == imagelist.end()) {
        return true;
    }
    announce(*current);
    if (walk == walk_t::stranded) {
        add_to_scene(*current);
    }
    return true;
}

namespace {

/// Walks with the window's place in the list, which follows only a walk that moved.
template <typename Walk>
walk_t walk_from(picture_list_t::iterator& current, unsigned long& index, Walk walk) {
    picture_place_t place{current, index};
    walk_t const result = walk(place);
    current = place.entry;
    index = place.index;
    return result;
}

}  // namespace

bool ViewWindow::next_image(unsigned long n) {
    stage_t stage(*this);
    return settle(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_forward(imagelist, place, n, stage);
    }));
}

bool ViewWindow::back_image(unsigned long n) {
    stage_t stage(*this);
    return settle(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_backward(imagelist, place, n, stage);
    }));
}

bool ViewWindow::first_image() {
    stage_t stage(*this);
    return settle(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_first(imagelist, place, stage);
    }));
}

bool ViewWindow::last_image() {
    stage_t stage(*this);
    return settle(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_last(imagelist, place, stage);
    }));
}

/// Puts the picture that `step` leads to into the scene, adapts window and title to it and makes
/// its GL resources. If there is no memory for them, starts again without that picture. Returns
/// false if `step` does.
template <typename Step>
bool ViewWindow::change_picture(Step const& step) {
    picture_place_t const start{current, current_index};
    bool changed = false;
    while ((changed = step())) {
        residue(true);
        update_title();
        if (scene.make_graph(dir.data())) {
            break;
        }
        libutils::clear_failure_reason();
        libutils::reject("not enough texture memory");
        skip(*current);
        too_large.insert(*current);
        current = start.entry;
        current_index = start.index;
    }
    if (!changed && !too_large.empty()) {
        update_title();
    }
    too_large.clear();
    skipped.clear();
    return changed;
}

void ViewWindow::load_first_picture() {
    change_picture([this] { return initial_load(); });
}

/// Pages by `step`; the picture is on the screen when it returns.
template <typename Step>
void ViewWindow::page(Step const& step) {
    bool const changed = change_picture([&] {
        if (!step()) {
            return false;
        }
        scene.free_graph();
        return true;
    });
    if (changed) {
        display();
        wenk::glfwyMGR4::getSingleton()->SwapBuffers(this);
        libutils::release_unused_memory();
    }
}

void ViewWindow::forward(unsigned long n) {
    page([=, this] { return next_image(n); });
}

void ViewWindow::backward(unsigned long n) {
    page([=, this] { return back_image(n); });
}

/// Goes to an end of the list and has the picture there drawn with the next pass of the loop.
void ViewWindow::go_to(bool (ViewWindow::*end)()) {
    change_picture([=, this] {
        scene.free_graph();
        (this->*end)();
        return true;
    });
    request_redisplay();
    libutils::release_unused_memory();
}

void ViewWindow::first() {
    go_to(&ViewWindow::first_image);
}

void ViewWindow::last() {
    go_to(&ViewWindow::last_image);
}

void ViewWindow::reload() {
    scene.free_graph();
    native::iconify(window());
    set_shape();
    native::restore(window());
    scene.make_graph(dir.data());
}

std::string ViewWindow::getCurrentTitleName() const {
    if (current == imagelist.end()) {
        return {};
    }
    std::ostringstream name;
    name << *current << " (" << current_index + 1 << "/" << image_count << ")";
    return name.str();
}

void ViewWindow::update_title() {
    std::string const name = getCurrentTitleName();
    std::string title;
    if (name.empty()) {
        zanolib::make_title2(title, getmsg(MESSAGE_APPLICATION_NAME), getmsg(MESSAGE_NO_PICTURE));
    } else {
        zanolib::make_title2(title, name.c_str(), getmsg(MESSAGE_APPLICATION_NAME));
    }
    native::set_title(window(), title);
}

}  // namespace zanoview2
