// SPDX-License-Identifier: MIT
// The choice of the parser for a camera maker's note.
#pragma once

#include "metadata/exif.h"

namespace libgr {

/// Reads the MakerNote of the Exif IFD with the parser for the camera's Make (see the table in
/// metadata/exif.h). `tiff_header_t::parse_0th_ifd` calls it after it has read the 0th and the Exif
/// IFD. If there is a note, `header.byteorder` must not be null.
///
/// Sets `ifd_maker_note`. Returns false if the note is invalid. Returns true and sets nothing if
/// there is no note, or if no row of the table matches.
bool read_maker_note(app1_marker_t::tiff_header_t& header);

}  // namespace libgr
