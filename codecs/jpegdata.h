// SPDX-License-Identifier: MIT
// A whole JPEG file in memory, under the name that messages about it bear.
#pragma once

#include "metadata/jpegcursor.h"
#include "utils/allocator.h"

namespace libgr {

/// The compressed bytes of one JPEG file: a file's mapping, or what an encoder wrote.
class jpegdata_t : public jpeg_bytes_t {
  public:
    /// The file's path, for messages; not owned, and null until a load, a save or setvector.
    char const* name = nullptr;

    /// Maps the whole file, read-only. False when it can't be mapped.
    bool load(char const* path, libutils::android_app* app);
    /// Writes the bytes to a new file that replaces the one at `path`; see libutils::replace_file.
    /// Returns false and sets errno on failure.
    bool save(char const* path, libutils::android_app* app);
    /// Shares bytes in memory, so that they can be decoded under a name of the caller's, which
    /// isn't copied.
    void setvector(jpeg_bytes_t const& bytes, char const* bytes_name);

  private:
    using jpeg_bytes_t::load;
};

}  // namespace libgr
