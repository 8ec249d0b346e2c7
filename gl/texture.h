// SPDX-License-Identifier: MIT
// Textures: the images' side and the name's side of the class family, and the texture parameters.
#pragma once

#include "geometry/color.h"
#include "image/image.h"
#include "utils/refobject.h"

namespace libgr {

/// Anything that can become the texture in force.
class grTexturable {
  public:
    /// 1, 2 or 3, and 6 for a cube map.
    virtual unsigned long Dimension() const = 0;
    virtual void Load() const = 0;
    virtual void Reload() const;
    virtual ~grTexturable() = default;
};

/// Images of a texture, without a GL name.
class grTexturableImage : public grTexturable {};

/// Images that upload themselves into whatever texture is bound to their target.
class grTexturableImageGL : public grTexturableImage {
  public:
    /// The GL internal format of the first image, GL_INVALID_VALUE if it has none.
    virtual unsigned int GetInternalFormat() const = 0;
};

/// A GL name that images can be put into.
class grTexturableObject : public grTexturable {
  public:
    virtual bool isPreload() const = 0;
    virtual void Unload() const = 0;
};

/// The owner of one GL texture name.
struct grTextureMgr {
    grTextureMgr() = default;
    grTextureMgr(grTextureMgr const&) = delete;
    grTextureMgr& operator=(grTextureMgr const&) = delete;
    /// Deletes the texture if there is one, for which it needs a current context.
    ~grTextureMgr();

    unsigned int name = 0;
    bool created = false;
};

/// A texture with its GL name. Copies share the name; the last of them deletes the texture, for
/// which it needs a current context. An object that was never preloaded needs none.
///
/// Nothing of the pixels is cached and nothing tracks their change: an upload happens exactly when
/// `Preload` or `Reload` is called. The members that make GL calls need a current context.
class grTextureObject : public grTexturableObject {
  public:
    grTextureObject();
    grTextureObject(grTextureObject const&) = default;
    grTextureObject& operator=(grTextureObject const&) = default;
    ~grTextureObject() override = default;

    /// Makes the texture, if it isn't there, binds it and uploads `image`, which isn't owned and
    /// must outlive this object. A second call keeps the name and uploads again.
    void Preload(grTexturableImageGL const* image);

    /// The dimension of the target; 0 before `Preload`.
    unsigned long Dimension() const override;
    /// Binds the texture for drawing, and enables its target before OpenGL 3.0. Uploads nothing.
    void Load() const override;
    /// Replaces the pixels of the texture, whose size must have stayed.
    void Reload() const override;
    bool isPreload() const override { return m_preloaded; }
    /// Binds nothing to the target, and disables it before OpenGL 3.0.
    void Unload() const override;
    /// Gives up this share of the texture; the object is empty afterwards.
    void clear();

    /// Whether the GL holds the texture resident (EXT_texture_object).
    bool isResident() const;
    /// Binds a level to an image unit (OpenGL 4.2); `access` as for glBindImageTexture.
    void BindImage(unsigned int unit, int level, unsigned int access) const;
    void UnbindImage(unsigned int unit) const;

    /// Reads a level of the texture that is bound to `target` into `img`, as RGBA. False when the
    /// type of the red component is unknown, in silence, and when its size is unknown or there is
    /// no memory, with a line on the error stream. `img` has at least the bytes that its
    /// description asks for, and more where the GL delivers wider components.
    bool GetTexImage(unsigned int target, int level, image2d_t& img) const;
    /// The same of this object's own texture, whatever is bound (OpenGL 4.5).
    bool GetTextureImage(int level, image2d_t& img) const;

  private:
    libutils::refobject<grTextureMgr> m_mgr;
    unsigned int m_target;
    bool m_preloaded = false;
    grTexturableImageGL const* m_image = nullptr;
};

// Texture parameters, with the values of glTexParameter. Who holds one keeps a pointer to it, so
// they are usually constants.

struct texparameter1d_t {
    unsigned int minfilter;
    unsigned int magfilter;
    unsigned int wrap_s;
};
struct texparameter2d_t {
    unsigned int minfilter;
    unsigned int magfilter;
    unsigned int wrap_s;
    unsigned int wrap_t;
    float anisotropy;  ///< 1 for none (EXT_texture_filter_anisotropic)
};
struct texparametercubemap_t {
    unsigned int minfilter;
    unsigned int magfilter;
    float anisotropy;
};
struct texparameter3d_t {
    unsigned int minfilter;
    unsigned int magfilter;
    unsigned int wrap_s;
    unsigned int wrap_t;
    unsigned int wrap_r;
    float anisotropy;
};

constexpr texparameter1d_t texparameter1d(unsigned int minfilter, unsigned int magfilter,
                                          unsigned int wrap_s) {
    return {minfilter, magfilter, wrap_s};
}
constexpr texparameter2d_t texparameter2d(unsigned int minfilter, unsigned int magfilter,
                                          unsigned int wrap_s, unsigned int wrap_t,
                                          float anisotropy) {
    return {minfilter, magfilter, wrap_s, wrap_t, anisotropy};
}
constexpr texparametercubemap_t texparametercubemap(unsigned int minfilter, unsigned int magfilter,
                                                    float anisotropy) {
    return {minfilter, magfilter, anisotropy};
}
constexpr texparameter3d_t texparameter3d(unsigned int minfilter, unsigned int magfilter,
                                          unsigned int wrap_s, unsigned int wrap_t,
                                          unsigned int wrap_r, float anisotropy) {
    return {minfilter, magfilter, wrap_s, wrap_t, wrap_r, anisotropy};
}

/// Apply a record to the texture bound now to the record's target; null does nothing. The 2-D form
/// sets the anisotropy without asking for the extension, the cube map's and the 3-D form ask.
void grTexParameter(texparameter1d_t const* parameter);
void grTexParameter(texparameter2d_t const* parameter);
void grTexParameter(texparametercubemap_t const* parameter);
void grTexParameter(texparameter3d_t const* parameter);
/// Sets the border colour of the texture bound to `target`; null does nothing.
void grTexParameter(unsigned int target, color3a_t const* color);

/// The target of textures of 1, 2 or 3 dimensions and, for 6, of cube maps; else GL_INVALID_VALUE.
unsigned int grTextureDimToEnum(unsigned long dim);
/// The inverse; 0 for any other target.
unsigned long grTextureEnumToDim(unsigned int target);

}  // namespace libgr
