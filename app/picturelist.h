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
    nothing_loads  ///< the old picture was unloaded, no other one loads, the place is the old one
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

/// Loads the first picture of the list that can be loaded. Returns false if there is none, and then
/// `place` is the list's end.
bool walk_initial(picture_list_t& list, picture_place_t& place, picture_loader_t& loader);

/// Moves `n` entries forward, or not at all if fewer than `n` entries follow.
///
/// Entries that don't load are skipped. If none loads up to the end of the list, tries the entries
/// before them, backward to the second one of the list. The first entry is never tried.
walk_t walk_forward(picture_list_t& list, picture_place_t& place, unsigned long n,
                    picture_loader_t& loader);

/// Moves `n` entries backward, or to the first entry if fewer precede.
///
/// Entries that don't load are skipped. If none loads down to the second one of the list, tries all
/// entries from the first one on.
walk_t walk_backward(picture_list_t& list, picture_place_t& place, unsigned long n,
                     picture_loader_t& loader);

/// Moves to the first entry, or to the last one, that loads.
walk_t walk_first(picture_list_t& list, picture_place_t& place, picture_loader_t& loader);
walk_t walk_last(picture_list_t& list, picture_place_t& place, picture_loader_t& loader);

}  // namespace zanoview2
