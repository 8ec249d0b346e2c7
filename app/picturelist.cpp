// SPDX-License-Identifier: MIT
// Scanning of directories, and paging over entries that may not load.
#include "app/picturelist.h"

#include <dirent.h>

#include <iostream>
#include <iterator>
#include <memory>

#include "options/option.h"
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
            if (zanolib::g_option.verbose) {
                std::cout << "skip: " << libutils::putname(name) << std::endl;
            }
            continue;
        }
        if (zanolib::g_option.debug) {
            std::cout << "file add: " << libutils::putname(name) << std::endl;
        }
        found.push_back(base + name);
    }
    return found;
}

/// Tries entries from `place` on toward the end.
bool search_up(picture_list_t& list, picture_place_t& place, picture_stage_t& stage) {
    for (; place.entry != list.end(); ++place.entry, ++place.index) {
        if (stage.add(*place.entry)) {
            return true;
        }
    }
    return false;
}

/// Tries entries from `place` on toward the beginning, the very first one excluded.
bool search_down(picture_list_t& list, picture_place_t& place, picture_stage_t& stage) {
    for (; place.entry != list.begin(); --place.entry, --place.index) {
        if (stage.add(*place.entry)) {
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
    if (zanolib::g_option.verbose) {
        std::cout << libutils::putname(path)
                  << ": skipped: " << libutils::putname(libutils::failure_reason()) << std::endl;
    }
}

bool append_pictures(picture_list_t& list, std::string const& given) {
    std::string const path = given.empty() ? "." : given;
    if (zanolib::g_option.verbose) {
        std::cout << "srchpath: " << libutils::putname(path) << std::endl;
    }
    if (directory_t const directory{opendir(path.c_str())}) {
        if (zanolib::g_option.debug) {
            std::cout << "dir: " << libutils::putname(path) << std::endl;
        }
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
    if (zanolib::g_option.debug) {
        std::cout << "file add: " << libutils::putname(path) << std::endl;
    }
    list.push_back(path);
    return true;
}

bool walk_initial(picture_list_t& list, picture_place_t& place, picture_stage_t& stage) {
    place = {list.begin(), 0};
    return search_up(list, place, stage);
}

walk_t walk_forward(picture_list_t& list, picture_place_t& place, unsigned long n,
                    picture_stage_t& stage) {
    picture_place_t working = place;
    for (; n > 0 && working.entry != list.end(); --n) {
        ++working.entry;
        ++working.index;
    }
    if (working.entry == list.end()) {
        return walk_t::refused;
    }
    stage.remove();
    if (!search_up(list, working, stage)) {
        --working.entry;
        --working.index;
        if (!search_down(list, working, stage)) {
            return walk_t::stranded;
        }
    }
    place = working;
    return walk_t::moved;
}

walk_t walk_backward(picture_list_t& list, picture_place_t& place, unsigned long n,
                     picture_stage_t& stage) {
    if (list.empty() || place.entry == list.begin()) {
        return walk_t::refused;
    }
    picture_place_t working = place;
    for (; n > 0 && working.entry != list.begin(); --n) {
        --working.entry;
        --working.index;
    }
    stage.remove();
    if (!search_down(list, working, stage)) {
        working = {list.begin(), 0};
        if (!search_up(list, working, stage)) {
            return walk_t::stranded;
        }
    }
    place = working;
    return walk_t::moved;
}

walk_t walk_first(picture_list_t& list, picture_place_t& place, picture_stage_t& stage) {
    if (list.empty()) {
        return walk_t::refused;
    }
    stage.remove();
    picture_place_t working{list.begin(), 0};
    if (!search_up(list, working, stage)) {
        return walk_t::stranded;
    }
    place = working;
    return walk_t::moved;
}

walk_t walk_last(picture_list_t& list, picture_place_t& place, picture_stage_t& stage) {
    if (list.empty()) {
        return walk_t::refused;
    }
    stage.remove();
    picture_place_t working{std::prev(list.end()), list.size() - 1};
    if (!search_down(list, working, stage) && !stage.add(*working.entry)) {
        return walk_t::stranded;
    }
    place = working;
    return walk_t::moved;
}

}  // namespace zanoview2
