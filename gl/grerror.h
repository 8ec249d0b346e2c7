// SPDX-License-Identifier: MIT
// Reports GL errors.
#pragma once

namespace libgr {

/// Reads one pending GL error and prints a line on the error stream:
///
///     after Draw(): Error 1282: invalid operation
///
/// The line begins with `label` and ": ", unless `label` is null. Returns true if there was an
/// error. Otherwise prints nothing and returns false. Further errors stay pending for the next
/// call. Needs a current context. Must not be called between glBegin and glEnd.
bool grPrintError(char const* label);

/// Detects uploads that fail with GL_OUT_OF_MEMORY:
///
/// ```cpp
/// #include "gl/grerror.h"
/// #include "gl/texture.h"
///
/// bool upload(libgr::grTextureObject& texture, libgr::grTexturableImageGL const& images) {
///     libgr::grMemoryWatch const watch;
///     texture.Preload(&images);
///     libgr::grPrintError("upload");  // reads an error that is still pending
///     return !watch.is_exhausted();
/// }
/// ```
///
/// Only errors that grPrintError prints are detected. Uploads call grPrintError, too, and this
/// removes the error: glGetError can miss it.
class grMemoryWatch {
  public:
    /// Starts the detection. Makes no GL call.
    grMemoryWatch();

    /// Returns true if grPrintError has printed GL_OUT_OF_MEMORY since the construction. After this
    /// error OpenGL doesn't define its state: delete the textures that were uploaded. Makes no GL
    /// call.
    [[nodiscard]] bool is_exhausted() const;

  private:
    unsigned long m_before;
};

}  // namespace libgr
