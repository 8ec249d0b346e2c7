// SPDX-License-Identifier: MIT
// Reports GL errors.
#pragma once

namespace libgr {

/// Gets one pending GL error and prints it on the error stream after `label`, which may be null:
/// "after Draw(): Error 1282: invalid operation". Returns true if there was an error. Otherwise
/// prints nothing. Further errors stay pending for the next call. The code is always printed in
/// decimal. The stream's mode isn't changed. Needs a current context. Must not be called between
/// glBegin and glEnd.
bool grPrintError(char const* label);

/// Detects GL_OUT_OF_MEMORY among the errors that `grPrintError` reports. Uploads return no result,
/// and they clear the error when they report it, so glGetError can't be used to detect it
/// afterwards.
class grMemoryWatch {
  public:
    /// Starts the detection. Makes no GL call.
    grMemoryWatch();

    /// Returns true if the error was reported since the construction. The GL state is undefined
    /// then, and textures that were uploaded may be incomplete. Makes no GL call.
    [[nodiscard]] bool is_exhausted() const;

  private:
    unsigned long m_before;
};

}  // namespace libgr
