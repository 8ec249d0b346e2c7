// SPDX-License-Identifier: MIT
// The view state file, which stores how a picture was viewed.
#pragma once

#include <string>

#include "geometry/constants.h"
#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace zanoview2 {

/// Returns the path of a picture's view state file: the picture's path with ".zvw" in place of its
/// extension (see `libutils::path_beside` in utils/path.h). Pictures of one directory whose names
/// differ only in the extension share one file.
std::string make_zvwpath(char const* picture);

/// The view of a picture. Its file is text (geometry/textstream.h): the size in the first line, and
/// the matrix in four lines, each with a row m[r] of matrix3w_t. The reader uses only the numbers.
///
///     dir2l(800, 600)
///     mtx3w(  1.000000, 0.000000, 0.000000, 0.000000,
///             0.000000, 1.000000, 0.000000, 0.000000,
///             0.000000, 0.000000, 1.000000, 0.000000,
///             -10.000000, 0.000000, 0.000000, 1.000000)
struct zvwfile_t {
    libgr::direction2l_t size = libgr::datum2l;  ///< size of the framebuffer, in pixels
    libgr::matrix3w_t matrix = libgr::Imtx;      ///< the view matrix

    /// Reads the view state file of `picture`. Returns false, with unchanged members, if it can't
    /// be opened, isn't a regular file or has more than 1 MiB, for which it prints an error
    /// line. Reading ends at the first text that isn't a number, and the result is then true.
    bool load(char const* picture);
    /// Replaces the view state file of `picture`. Returns false and sets errno on failure, and then
    /// an existing file doesn't change.
    bool save(char const* picture) const;
    /// Deletes the view state file of `picture`. Returns false and sets errno on failure.
    bool del(char const* picture) const;
};

}  // namespace zanoview2
