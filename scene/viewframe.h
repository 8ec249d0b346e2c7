// SPDX-License-Identifier: MIT
// The photo frame: a band around the picture, drawn anew each time under the picture's view matrix.
#pragma once

#include "geometry/constants.h"
#include "geometry/vector.h"
#include "gl/grobject.h"

namespace zanolib {

/// The looks of the photo frame, the values of the option `frametype`.
enum e_frametype_t : unsigned int {
    FRAMETYPE_NONE = 0,        ///< nothing is drawn
    FRAMETYPE_FLAT = 1,        ///< a flat band in the option `framecolor`
    FRAMETYPE_BUMP_BROWN = 2,  ///< a bump-mapped band in brown
    FRAMETYPE_BUMP_COLOR = 3,  ///< a bump-mapped band in three quarters of the option `framecolor`
    FRAMETYPE_FLOWER = 4,      ///< a blended band with the flower texture
};

/// The frame of one picture.
class ViewFrame : public libgr::grObject3D {
  public:
    ViewFrame() = default;
    ViewFrame(ViewFrame const&) = default;
    ViewFrame& operator=(ViewFrame const&) = delete;
    /// Frees nothing: what the frames share outlives them all.
    ~ViewFrame() override = default;

    /// Loads what all frames share, once; a missing file doesn't stop it. Makes no GL object.
    static void init(char const* datapath);
    /// Drops the shared images.
    static void destroy();

    void setFrameType(e_frametype_t type);
    /// Sets the picture's size and the band's width, both in picture pixels.
    void setSize(libgr::direction2_t size, unsigned int width);

    /// Creates the GL objects of this frame's look. Needs a current context.
    void make_graph(char const* datapath);
    /// Lets go of them.
    void free_graph();

    using grObject3D::Draw;
    /// Draws the band and leaves lighting, blending and texturing off. Needs a current context.
    void Draw() const override;

  private:
    e_frametype_t m_frametype = FRAMETYPE_NONE;
    libgr::direction2_t m_size{0.0f, 0.0f};
    float m_reserved = 0.046875f;
    float m_width = 0.0f;

    static bool s_inited;
};

}  // namespace zanolib
