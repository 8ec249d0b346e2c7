// SPDX-License-Identifier: MIT
// The one report of GL errors.
#pragma once

namespace libgr {

/// Takes one pending error from the GL and writes it to the error stream behind `label`, which may
/// be null: "after Draw(): Error 1282: invalid operation". True when there was one; without one
/// nothing is written. A further pending error stays for the next call. The code is decimal
/// whatever the stream's mode, which stays as it was. Needs a current context, and no glBegin in
/// force.
bool grPrintError(char const* label);

/// Watches for GL_OUT_OF_MEMORY among the errors that `grPrintError` takes. Uploads return no
/// result, and the error is no longer pending after they have reported it.
class grMemoryWatch {
  public:
    grMemoryWatch();

    /// Returns true if the error was reported since the construction. OpenGL's state is undefined
    /// then, and what was made meanwhile may be incomplete.
    [[nodiscard]] bool is_exhausted() const;

  private:
    unsigned long m_before;
};

}  // namespace libgr
