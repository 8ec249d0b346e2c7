// SPDX-License-Identifier: MIT
// The choice of the reader for a camera maker's note.
#pragma once

#include "metadata/exif.h"

namespace libgr {

/// Reads the MakerNote of the Exif IFD by the reader that fits the Make of the 0th IFD, and sets
/// the view of the note's IFD. True without a note, and for a camera whose notes aren't known.
bool read_maker_note(app1_marker_t::tiff_header_t& header);

}  // namespace libgr
