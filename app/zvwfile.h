// SPDX-License-Identifier: MIT
// The view state file: how a picture was viewed, in a small text file beside it.
#pragma once

#include <string>

#include "geometry/constants.h"
#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace zanoview2 {

/// The path of a picture's view state file, which ends in ".zvw"; see libutils::path_beside.
/// Pictures of one directory that differ only in their extension share one file.
std::string make_zvwpath(char const* picture);

/// A stored view. The file holds two values in their text form, `dir2l` and `mtx3w`, in five lines;
/// what stands around the numbers is not looked at when it is read.
struct zvwfile_t {
    libgr::direction2l_t size = libgr::datum2l;  ///< the framebuffer when the view was stored
    libgr::matrix3w_t matrix = libgr::Imtx;      ///< the picture's view matrix

    /// Reads the file beside `picture`. False, with the record untouched, when it can't be opened,
    /// is no plain file or is too long for one; true otherwise, also when its content is damaged: a
    /// value that can't be read stays as it is.
    bool load(char const* picture);
    /// Writes the file beside `picture`, replacing it. Returns false and sets errno on failure, and
    /// then an old file is unchanged.
    bool save(char const* picture) const;
    /// Removes the file beside `picture`; false when it couldn't be removed.
    bool del(char const* picture) const;
};

}  // namespace zanoview2
