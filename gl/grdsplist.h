// SPDX-License-Identifier: MIT
// A node that replays a compiled GL display list.
#pragma once

#include "gl/grobject.h"
#include "utils/refobject.h"

namespace libgr {

/// The owner of one GL display list name.
class grDspListMgr {
  public:
    grDspListMgr() = default;
    grDspListMgr(grDspListMgr const&) = delete;
    grDspListMgr& operator=(grDspListMgr const&) = delete;
    /// Deletes the list if there is one, for which it needs a current context.
    ~grDspListMgr() { Release(); }

    /// Takes a list name unless there is one. Needs a current context.
    void Generate();
    /// Deletes the list, if there is one; a later `Generate` takes a new name.
    void Release();
    bool generated() const { return m_generated; }
    /// The name when generated, otherwise 1281, which no list has.
    unsigned int listname() const;

  private:
    unsigned int m_listname = 0;
    bool m_generated = false;
};

/// Draws what another node drew while it was compiled. Copies share one GL list; the last of them
/// deletes it, for which it needs a current context if a list is there. Without one nothing needs a
/// context.
class grDspList : public grObject3D {
  public:
    ~grDspList() override = default;
    using grObject3D::Draw;
    /// Calls the list; nothing before `Preload` and after `Unload`.
    void Draw() const override;

    /// Compiles what `object`, which may be null, draws. The calls are recorded and not run, so the
    /// object's own checks of the GL error state see nothing of them. A second call compiles over
    /// the same name. Always true. Needs a current context.
    bool Preload(grObject3D const* object);
    /// Deletes the GL list, for all copies.
    void Unload();

  private:
    libutils::refobject<grDspListMgr> m_list;
};

}  // namespace libgr
