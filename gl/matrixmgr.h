// SPDX-License-Identifier: MIT
// Scope objects for glBegin, the matrix mode and the matrix stacks.
#pragma once

#include <vector>

#include "geometry/matrix.h"
#include "glext/glextloader.h"

namespace libgr {

// Constructors and destructors need a current context. Destroy the objects in the reverse order of
// their construction.

/// Calls glBegin, and glEnd in the destructor. Call only vertex, colour and texture coordinate
/// functions in between.
class grBeginner {
  public:
    explicit grBeginner(GLenum mode) { glBegin(mode); }
    grBeginner(grBeginner const&) = delete;
    grBeginner& operator=(grBeginner const&) = delete;
    ~grBeginner() { glEnd(); }
};

/// Selects a matrix mode. The destructor restores the previous mode.
class grMatrixModeKeeper {
  public:
    /// Selects `mode`. 0 keeps the current mode and makes no GL call.
    explicit grMatrixModeKeeper(GLenum mode);
    grMatrixModeKeeper(grMatrixModeKeeper const&) = delete;
    grMatrixModeKeeper& operator=(grMatrixModeKeeper const&) = delete;
    ~grMatrixModeKeeper();

  private:
    GLenum m_savedmode = 0;
};

/// Saves the current matrix of a mode. The destructor restores the matrix and then the mode.
///
/// The GL matrix stack limits the nesting depth. It often has 32 levels for GL_MODELVIEW, of which
/// the current matrix uses one. If the stack is full, OpenGL reports GL_STACK_OVERFLOW and saves
/// nothing, and the destructor restores the matrix of an outer grMatrixPusher. In enhanced mode
/// there is no limit: matrices that don't fit on the GL stack are saved in memory.
///
/// Enhanced mode, the limits and the matrices in memory are static: a second context isn't
/// supported.
class grMatrixPusher : public grMatrixModeKeeper {
  public:
    /// A matrix stack of OpenGL, and the matrices in memory that don't fit on it.
    class grMatrixManager {
      public:
        grMatrixManager(GLenum mode, GLenum maxdepth_name, GLenum depth_name, GLenum matrix_name)
            : m_mode(mode),
              m_maxdepth_name(maxdepth_name),
              m_depth_name(depth_name),
              m_matrix_name(matrix_name) {}

        GLenum mode() const { return m_mode; }
        /// In enhanced mode, returns true if the GL stack has room for one more matrix, and needs a
        /// current context. Otherwise always returns true, even if the stack is full, and makes no
        /// GL call.
        bool canPush() const;

      private:
        friend class grMatrixPusher;
        void set_limit(bool on);
        void save();
        void restore();

        GLenum m_mode;
        GLenum m_maxdepth_name;
        GLenum m_depth_name;
        GLenum m_matrix_name;
        GLint m_limit = 0;  // levels of the GL stack, or 0 for no limit
        std::vector<matrix3w_t> m_overflow;
    };

    /// Selects `mode`, or keeps the current mode if `mode` is 0, and saves the matrix. See
    /// `getMatrixManager` for the modes that are accepted.
    explicit grMatrixPusher(GLenum mode);
    ~grMatrixPusher();

    /// Switches enhanced mode on or off for all stacks. It is off at the start. Call this function
    /// when no grMatrixPusher exists. If `on` is true, it needs a current context and reads the
    /// sizes of the GL stacks. Without a colour matrix (ARB_imaging), OpenGL then reports
    /// GL_INVALID_ENUM.
    static void setEnhanceMode(bool on);
    static bool getEnhanceMode() { return g_enhance; }
    /// Returns the manager of GL_MODELVIEW, GL_PROJECTION, GL_TEXTURE or GL_COLOR. For 0, returns
    /// the manager of the current mode and needs a current context. For another value, prints a
    /// line on standard output and returns the modelview manager. Then std::cout prints integers in
    /// hexadecimal. This is kept because readers of the output depend on it.
    static grMatrixManager& getMatrixManager(GLenum mode);

  private:
    grMatrixManager* m_manager;
    bool m_pushed = false;  // true: on the GL stack, false: in memory

    static grMatrixManager g_modelview_matrix;
    static grMatrixManager g_projection_matrix;
    static grMatrixManager g_texture_matrix;
    static grMatrixManager g_color_matrix;
    static bool g_enhance;
};

}  // namespace libgr
