// SPDX-License-Identifier: MIT
// A node that draws a compiled GL display list.
#pragma once

#include "gl/grobject.h"
#include "utils/refobject.h"

namespace libgr {

/// Owns one GL display list name.
class grDspListMgr {
  public:
    grDspListMgr() = default;
    grDspListMgr(grDspListMgr const&) = delete;
    grDspListMgr& operator=(grDspListMgr const&) = delete;
    /// Deletes the list. Needs a current context if `is_generated()` is true.
    ~grDspListMgr() { Release(); }

    /// Creates a list name if there is none. Needs a current context.
    void Generate();
    /// Deletes the list. Needs a current context if `is_generated()` is true. A later `Generate`
    /// creates a new name.
    void Release();
    bool is_generated() const { return m_generated; }
    /// Returns the name, or GL_INVALID_VALUE (1281) if there is none.
    unsigned int listname() const;

  private:
    unsigned int m_listname = 0;
    bool m_generated = false;
};

/// Replays the GL calls that another node made in `Preload`. gl/grobject.h has an example.
///
/// Construction and copying make no GL call. Copies made after the first `Preload` share one GL
/// list. A copy made before is empty and independent. The destructor of the last copy deletes the
/// list. It needs a current context, unless `Preload` was never called or `Unload` was called last.
class grDspList : public grObject3D {
  public:
    ~grDspList() override = default;
    using grObject3D::Draw;
    /// Draws the list. Does nothing before `Preload` and after `Unload`. Needs a current context.
    void Draw() const override;

    /// Compiles the GL calls that `object` makes in `Draw` and doesn't execute them. Errors of
    /// these calls occur in `Draw`. The list doesn't change when `object` changes: call `Preload`
    /// again. `object` may be destroyed after the call. If it is null, the list is empty. Always
    /// returns true. Needs a current context.
    bool Preload(grObject3D const* object);
    /// Deletes the GL list, also for the copies that share it. Needs a current context if there is
    /// a list.
    void Unload();

  private:
    libutils::refobject<grDspListMgr> m_list;
};

}  // namespace libgr
