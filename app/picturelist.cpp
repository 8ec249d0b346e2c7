// SPDX-License-Identifier: MIT
// Scans directories, and moves in the list of pictures.
#include "app/picturelist.h"

#include <dirent.h>

#include <iostream>
#include <iterator>
#include <memory>

#include "options/trace.h"
#include "scene/viewobj.h"
#include "utils/diagnostics.h"

namespace zanoview2 {

namespace {

struct close_directory {
    void operator()(DIR* directory) const { closedir(directory); }
};
using directory_t = std::unique_ptr<DIR, close_directory>;

picture_list_t scan(DIR* directory, std::string const& path) {
    std::string const base = path.back() == '/' ? path : path + '/';
    picture_list_t found;
    while (dirent const* entry = readdir(directory)) {
        std::string const name = entry->d_name;
        if (!is_picture_name(name)) {
            zanolib::report("skip: ", libutils::putname(name));
            continue;
        }
        zanolib::trace(std::cout, "file add: ", libutils::putname(name));
        found.push_back(base + name);
    }
    return found;
}

/// Loads the first entry that can be loaded, from `place` to the end.
bool load_forward(picture_list_t& list, picture_place_t& place, picture_loader_t& loader) {
    for (; place.entry != list.end(); ++place.entry, ++place.index) {
        if (loader.load(*place.entry)) {
            return true;
        }
    }
    return false;
}

/// Loads the first entry that can be loaded, from `place` backward to the second entry.
bool load_backward(picture_list_t& list, picture_place_t& place, picture_loader_t& loader) {
    for (; place.entry != list.begin(); --place.entry, --place.index) {
        if (loader.load(*place.entry)) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool is_picture_name(std::string const& name) {
    return zanolib::ViewObject::has_picture_extension(name);
}

void report_skipped(std::string const& path) {
    zanolib::report(libutils::putname(path),
                    ": skipped: ", libutils::putname(libutils::failure_reason()));
}

bool append_pictures(picture_list_t& list, std::string const& given) {
    std::string const path = given.empty() ? "." : given;
    zanolib::report("srchpath: ", libutils::putname(path));
    if (directory_t const directory{opendir(path.c_str())}) {
        zanolib::trace(std::cout, "dir: ", libutils::putname(path));
        picture_list_t found = scan(directory.get(), path);
        if (found.empty()) {
            return false;
        }
        found.sort();
        list.splice(list.end(), found);
        return true;
    }
    if (!is_picture_name(path)) {
        libutils::clear_failure_reason();
        libutils::reject("unknown extension");
        report_skipped(path);
        return false;
    }
    zanolib::trace(std::cout, "file add: ", libutils::putname(path));
    list.push_back(path);
    return true;
}

bool walk_initial(picture_list_t& list, picture_place_t& place, picture_loader_t& loader) {
    place = {list.begin(), 0};
    return load_forward(list, place, loader);
}

walk_t walk_forward(picture_list_t& list, picture_place_t& place, unsigned long n,
                    picture_loader_t& loader) {
    picture_place_t working = place;
    for (; n > 0 && working.entry != list.end(); --n) {
        ++working.entry;
        ++working.index;
    }
    if (working.entry == list.end()) {
        return walk_t::no_move;
    }
    loader.unload();
    if (!load_forward(list, working, loader)) {
        --working.entry;
        --working.index;
        if (!load_backward(list, working, loader)) {
            return walk_t::nothing_loads;
        }
    }
    place = working;
    return walk_t::moved;
}

walk_t walk_backward(picture_list_t& list, picture_place_t& place, unsigned long n,
                     picture_loader_t& loader) {
    if (list.empty() || place.entry == list.begin()) {
        return walk_t::no_move;
    }
    picture_place_t working = place;
    for (; n > 0 && working.entry != list.begin(); --n) {
        --working.entry;
        --working.index;
    }
    loader.unload();
    if (!load_backward(list, working, loader)) {
        working = {list.begin(), 0};
        if (!load_forward(list, working, loader)) {
            return walk_t::nothing_loads;
        }
    }
    place = working;
    return walk_t::moved;
}

walk_t walk_first(picture_list_t& list, picture_place_t& place, picture_loader_t& loader) {
    if (list.empty()) {
        return walk_t::no_move;
    }
    loader.unload();
    picture_place_t working{list.begin(), 0};
    if (!load_forward(list, working, loader)) {
        return walk_t::nothing_loads;
    }
    place = working;
    return walk_t::moved;
}

walk_t walk_last(picture_list_t& list, picture_place_t& place, picture_loader_t& loader) {
    if (list.empty()) {
        return walk_t::no_move;
    }
    loader.unload();
    picture_place_t working{std::prev(list.end()), list.size() - 1};
    if (!load_backward(list, working, loader) && !loader.load(*working.entry)) {
        return walk_t::nothing_loads;
    }
    place = working;
    return walk_t::moved;
}

}  // namespace zanoview2
