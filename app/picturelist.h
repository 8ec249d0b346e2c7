// SPDX-License-Identifier: MIT
// The list of picture paths: what enters it, and the rules by which paging walks it.
#pragma once

#include <list>
#include <string>

namespace zanoview2 {

/// The paths of the pictures in paging order, as the user gave them or joined from a directory.
using picture_list_t = std::list<std::string>;

/// A place in a picture_list_t: the entry, or the list's end, and its index counted from 0.
struct picture_place_t {
    picture_list_t::iterator entry;
    unsigned long index;
};

/// Where pictures are shown while paging walks the list. The application puts its scene behind
/// it; tests put numbers there.
class picture_stage_t {
  public:
    /// Tries to load one picture; true when it is on the stage now.
    virtual bool add(std::string const& path) = 0;
    /// Takes the present picture off the stage, if there is one.
    virtual void remove() = 0;

  protected:
    ~picture_stage_t() = default;
};

/// How a walk ended.
enum class walk_t {
    refused,  ///< no move that fits: neither stage nor place was touched
    moved,    ///< a picture loaded, and the place is its entry
    stranded  ///< the old picture is gone, no entry that was tried loads, the place is unchanged
};

/// Returns true if a name has the extension of a picture; see ViewObject::has_picture_extension.
bool is_picture_name(std::string const& name);

/// With the option `verbose`, prints the line "PATH: skipped: REASON" on standard output, with the
/// reason that is recorded (utils/diagnostics.h).
void report_skipped(std::string const& path);

/// Appends the pictures of the directory `path`, sorted by the bytes of their full paths, or, when
/// it is no directory, `path` itself if it has a picture's name (it need not exist). An empty
/// `path` is the current directory. Returns false, with `list` as it was, when nothing was found.
bool append_pictures(picture_list_t& list, std::string const& path);

/// Finds the first entry that loads, from the beginning on. On failure `place` is the list's end.
bool walk_initial(picture_list_t& list, picture_place_t& place, picture_stage_t& stage);

/// Moves `n` entries forward. A step that ends at or past the list's end is refused. Entries that
/// don't load are skipped forward; when the end is reached the search turns round and goes back to
/// the second entry.
walk_t walk_forward(picture_list_t& list, picture_place_t& place, unsigned long n,
                    picture_stage_t& stage);

/// Moves `n` entries back, clamped at the first one. Entries that don't load are skipped backward
/// down to the second entry; after that the search goes forward from the first entry to the end.
walk_t walk_backward(picture_list_t& list, picture_place_t& place, unsigned long n,
                     picture_stage_t& stage);

/// Goes to the first, or the last, entry that loads. An empty list is refused.
walk_t walk_first(picture_list_t& list, picture_place_t& place, picture_stage_t& stage);
walk_t walk_last(picture_list_t& list, picture_place_t& place, picture_stage_t& stage);

}  // namespace zanoview2
