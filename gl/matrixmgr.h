// SPDX-License-Identifier: MIT
// Scope objects: a primitive, a matrix mode, a saved matrix that may outgrow the GL's own stack.
#pragma once

#include <vector>

#include "geometry/matrix.h"
#include "glext/glextloader.h"

namespace libgr {

// All of these need a current context and must end in the reverse order of their start.

/// glBegin to glEnd. Only vertex, colour and texture coordinate calls may run in between.
class grBeginner {
  public:
    explicit grBeginner(GLenum mode) { glBegin(mode); }
    grBeginner(grBeginner const&) = delete;
    grBeginner& operator=(grBeginner const&) = delete;
    ~grBeginner() { glEnd(); }
};

/// Selects a matrix mode for its lifetime.
class grMatrixModeKeeper {
  public:
    /// Selects `mode`; 0 leaves the mode in force and queries nothing.
    explicit grMatrixModeKeeper(GLenum mode);
    grMatrixModeKeeper(grMatrixModeKeeper const&) = delete;
    grMatrixModeKeeper& operator=(grMatrixModeKeeper const&) = delete;
    /// Selects the former mode again, if another one was selected.
    ~grMatrixModeKeeper();

  private:
    GLenum m_savedmode = 0;
};

/// Saves the current matrix of a mode for its lifetime.
///
/// With enhancement on the nesting may go as deep as memory allows: the GL's stack is used to its
/// last level and software takes the rest. With it off, as at the start, the GL's limit holds.
class grMatrixPusher : public grMatrixModeKeeper {
  public:
    /// One matrix stack of the GL and its overflow.
    class grMatrixManager {
      public:
        grMatrixManager(GLenum mode, GLenum maxdepth_name, GLenum depth_name, GLenum matrix_name)
            : m_mode(mode),
              m_maxdepth_name(maxdepth_name),
              m_depth_name(depth_name),
              m_matrix_name(matrix_name) {}

        GLenum mode() const { return m_mode; }
        /// Whether the GL's own stack can take a further matrix. Always true, without a query,
        /// while no limit is observed.
        bool canPush() const;

      private:
        friend class grMatrixPusher;
        void observe_limit(bool on);
        void save();
        void restore();

        GLenum m_mode;
        GLenum m_maxdepth_name;
        GLenum m_depth_name;
        GLenum m_matrix_name;
        GLint m_limit = 0;  // 0: none is observed
        std::vector<matrix3w_t> m_overflow;
    };

    /// Selects `mode` and saves its matrix; 0 stands for the mode in force.
    explicit grMatrixPusher(GLenum mode);
    /// Brings the matrix back, and then the matrix mode.
    ~grMatrixPusher();

    /// On reads the four stacks' limits from the GL, off forgets them. Call it while no pusher
    /// lives.
    static void setEnhanceMode(bool on);
    static bool getEnhanceMode() { return g_enhance; }
    /// The manager of a matrix mode, of the mode in force for 0. Another value is reported on
    /// standard output, which stays in hexadecimal mode, and gives the modelview manager.
    static grMatrixManager& getMatrixManager(GLenum mode);

  private:
    grMatrixManager* m_manager;
    bool m_pushed = false;  // by the GL's stack, not by software

    static grMatrixManager g_modelview_matrix;
    static grMatrixManager g_projection_matrix;
    static grMatrixManager g_texture_matrix;
    static grMatrixManager g_color_matrix;
    static bool g_enhance;
};

}  // namespace libgr
