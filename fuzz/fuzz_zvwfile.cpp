// SPDX-License-Identifier: MIT
// Fuzzes the reader of view state files. A view that was read must come back after it was saved.
#include "app/zvwfile.h"
#include "fuzz/fuzzinput.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    scratch_file("picture.zvw", input_t(data, size).rest());
    std::string const picture = scratch_path("picture.bmp");
    zanoview2::zvwfile_t view;
    require(view.load(picture.c_str()) == (size <= std::size_t{1} << 20));
    require(view.save(picture.c_str()));
    std::string const saved = content_of(scratch_path("picture.zvw"));
    require(view.load(picture.c_str()) && view.save(picture.c_str()));
    require(content_of(scratch_path("picture.zvw")) == saved);
    return 0;
}
