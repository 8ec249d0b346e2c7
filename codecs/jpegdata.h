// SPDX-License-Identifier: MIT
// The bytes of a JPEG file.
#pragma once

#include "metadata/jpegcursor.h"
#include "utils/allocator.h"

namespace libgr {

/// The compressed bytes of one JPEG file: a mapped file, or memory that an encoder filled. Copies
/// share the bytes.
class jpegdata_t : public jpeg_bytes_t {
  public:
    /// The path of the file, for messages, as given to `load`, `save` or `setvector`. The string is
    /// not copied. It must stay valid as long as the data is used. Null before these calls.
    char const* name = nullptr;

    /// Maps the whole file, read-only. Returns false, and the data is empty, if the file cannot be
    /// mapped. `app` is ignored and may be null.
    bool load(char const* path, libutils::android_app* app);
    /// Writes the bytes to a new file, which then replaces the file at `path`
    /// (utils/replacefile.h). Returns false and sets errno on failure; the file is then unchanged.
    /// `app` is ignored.
    bool save(char const* path, libutils::android_app* app);
    /// Shares bytes in memory. `bytes_name` is not copied.
    void setvector(jpeg_bytes_t const& bytes, char const* bytes_name);

  private:
    using jpeg_bytes_t::load;
};

}  // namespace libgr
