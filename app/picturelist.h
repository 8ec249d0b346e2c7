// SPDX-License-Identifier: MIT
// The list of picture paths, and the rules for moving in it.
#pragma once

#include <list>
#include <string>

namespace zanoview2 {

/// The paths of pictures in paging order. The paths are as the user gave them, or
/// "<directory>/<name>" for the files of a directory.
using picture_list_t = std::list<std::string>;

/// A place in a picture_list_t.
struct picture_place_t {
    picture_list_t::iterator entry;  ///< the entry, or the list's end
    unsigned long index;             ///< the number of entries before it
};

/// Loads and unloads the pictures on the way through a list. At most one picture is loaded at a
/// time.
class picture_loader_t {
  public:
    /// Loads a picture. Returns false on failure, and then no picture is loaded.
    virtual bool load(std::string const& path) = 0;
    /// Unloads the picture, if one is loaded.
    virtual void unload() = 0;

  protected:
    ~picture_loader_t() = default;
};

/// The result of a walk.
enum class walk_t {
    no_move,       ///< there is nowhere to go; nothing was loaded or unloaded
    moved,         ///< the picture at the new place is loaded
    nothing_loads  ///< no entry that was tried loads; no picture is loaded, same place
};

/// Returns true if a name has the extension of a picture; see ViewObject::has_picture_extension.
bool is_picture_name(std::string const& name);

/// With the option `verbose`, prints the line "PATH: skipped: REASON" on standard output, with the
/// reason that is recorded (utils/diagnostics.h).
void report_skipped(std::string const& path);

/// Appends the pictures of the directory `path`, sorted by the bytes of their paths. If `path` is
/// not a directory, appends `path` if it has the name of a picture. The file need not exist.
/// "" is the current directory. Subdirectories are not searched.
///
/// Returns false if there was nothing to append.
bool append_pictures(picture_list_t& list, std::string const& path);

/// Loads the first picture of the list that can be loaded, and sets `place`. Returns false if there
/// is none, and then `place` is the list's end.
bool walk_initial(picture_list_t& list, picture_place_t& place, picture_loader_t& loader);

/// Moves `n` entries forward, or not at all if fewer than `n` entries follow.
///
/// Tries to load the entries from there to the end of the list, and then from the last one backward
/// to the second one. The first one that loads is the new place. The first entry of the list isn't
/// tried; users depend on this order. After `nothing_loads`, the caller loads the old picture
/// again, also if it is the first entry (`ViewWindow::next_image`).
walk_t walk_forward(picture_list_t& list, picture_place_t& place, unsigned long n,
                    picture_loader_t& loader);

/// Moves `n` entries backward, or to the first entry if there are fewer before the place.
///
/// Tries to load the entries from there backward to the second one of the list, and then from the
/// first one to the last one. The first one that loads is the new place.
walk_t walk_backward(picture_list_t& list, picture_place_t& place, unsigned long n,
                     picture_loader_t& loader);

/// Move to the first entry of the list that loads, and to the last one.
walk_t walk_first(picture_list_t& list, picture_place_t& place, picture_loader_t& loader);
walk_t walk_last(picture_list_t& list, picture_place_t& place, picture_loader_t& loader);

}  // namespace zanoview2
