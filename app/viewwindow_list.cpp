// SPDX-License-Identifier: MIT
// Paging: the list of pictures, the scene and the title.
#include <iostream>
#include <sstream>

#include "app/nativewindow.h"
#include "app/viewwindow.h"
#include "options/message.h"
#include "options/trace.h"
#include "utils/allocator.h"
#include "utils/diagnostics.h"
#include "window/glfwymgr4.h"

namespace zanoview2 {

class ViewWindow::scene_loader_t final : public picture_loader_t {
  public:
    explicit scene_loader_t(ViewWindow& owner) : m_owner(owner) {}

    bool load(std::string const& path) override { return m_owner.add_to_scene(path); }
    void unload() override { m_owner.scene.delImage(); }

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

void ViewWindow::report_picture(std::string const& path) const {
    zanolib::report("\ndisplay image: ", libutils::putname(path));
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
    scene_loader_t loader(*this);
    picture_place_t place{};
    image_count = imagelist.size();
    bool const loaded = walk_initial(imagelist, place, loader);
    current = place.entry;
    current_index = place.index;
    if (loaded) {
        report_picture(*current);
    }
    return loaded;
}

/// Loads the old picture again if a walk found no other. Returns false if the walk didn't move.
bool ViewWindow::finish_walk(walk_t walk) {
    if (walk == walk_t::no_move) {
        return false;
    }
    if (current == imagelist.end()) {
        return true;
    }
    report_picture(*current);
    if (walk == walk_t::nothing_loads) {
        add_to_scene(*current);
    }
    return true;
}

namespace {

/// Calls `walk` with the window's place in the list.
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
    scene_loader_t loader(*this);
    return finish_walk(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_forward(imagelist, place, n, loader);
    }));
}

bool ViewWindow::back_image(unsigned long n) {
    scene_loader_t loader(*this);
    return finish_walk(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_backward(imagelist, place, n, loader);
    }));
}

bool ViewWindow::first_image() {
    scene_loader_t loader(*this);
    return finish_walk(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_first(imagelist, place, loader);
    }));
}

bool ViewWindow::last_image() {
    scene_loader_t loader(*this);
    return finish_walk(walk_from(current, current_index, [&](picture_place_t& place) {
        return walk_last(imagelist, place, loader);
    }));
}

/// Calls `step`, which loads another picture into the scene. Then adapts the window and the title
/// to it, and makes its GL resources. If there is no memory for them, does all this again without
/// that picture. Returns false if `step` does.
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

/// Changes to the picture that `step` loads, and shows it at once.
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

/// Goes to an end of the list, and requests a redisplay.
void ViewWindow::go_to_end(bool (ViewWindow::*end)()) {
    change_picture([=, this] {
        scene.free_graph();
        (this->*end)();
        return true;
    });
    request_redisplay();
    libutils::release_unused_memory();
}

void ViewWindow::first() {
    go_to_end(&ViewWindow::first_image);
}

void ViewWindow::last() {
    go_to_end(&ViewWindow::last_image);
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
