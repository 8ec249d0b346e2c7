// SPDX-License-Identifier: MIT
// The choice of the parser for a camera maker's note.
#pragma once

#include "metadata/exif.h"

namespace libgr {

/// Reads the MakerNote of the Exif IFD with the parser for the Make of the 0th IFD (see the table
/// in metadata/exif.h). The 0th and the Exif IFD must have been read.
///
/// Sets `ifd_maker_note`. Returns false if the note is invalid. Returns true if there is no note,
/// or if the maker is unknown.
bool read_maker_note(app1_marker_t::tiff_header_t& header);

}  // namespace libgr
