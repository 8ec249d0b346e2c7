// SPDX-License-Identifier: MIT
// Texture classes, texture objects with their GL names, and texture parameters.
#pragma once

/// This example makes a texture from a picture and draws with it. The order of calls is: set the
/// images, call `Preload` once, and call `Load` before and `Unload` after each use. Keep both
/// objects between frames; this example uploads on every call. From OpenGL 3.0 on, enable
/// GL_TEXTURE_2D yourself for fixed-function drawing.
///
/// ```cpp
/// #include "gl/texture2d.h"
///
/// void draw_picture(libgr::image2d_t const& picture) {
///     libgr::grTexture2D images;
///     images.setImage(picture, 0, 0);
///     images.setBuildMipmap(true);
///     libgr::grTextureObject texture;
///     texture.Preload(&images);  // uploads the pixels
///     texture.Load();            // binds the texture
///     // ... draw ...
///     texture.Unload();
/// }
/// ```
///
/// Call everything in this library from the thread of the GL context. Each function says if it
/// needs a current context. `gl_extloader_init` (glext/glextloader.h) must have been called.
/// gl/glformat.h lists the image descriptions that are accepted.

#include "geometry/color.h"
#include "image/image.h"
#include "utils/refobject.h"

namespace libgr {

/// The base of image sets and texture objects.
class grTexturable {
  public:
    /// Returns 1, 2 or 3, and 6 for a cube map. Makes no GL call.
    virtual unsigned long Dimension() const = 0;
    /// Uploads the images, or binds the texture object. Needs a current context.
    virtual void Load() const = 0;
    /// Uploads the pixels again. Needs a current context. The default calls `Load`.
    virtual void Reload() const;
    virtual ~grTexturable() = default;
};

/// The images of a texture, without a GL name.
class grTexturableImage : public grTexturable {};

/// Images that are uploaded into the texture that is bound to their target.
class grTexturableImageGL : public grTexturableImage {
  public:
    /// Returns the GL internal format of the first image, or GL_INVALID_VALUE if there is none.
    /// Makes no GL call.
    virtual unsigned int GetInternalFormat() const = 0;
};

/// A texture with a GL name.
class grTexturableObject : public grTexturable {
  public:
    /// Returns true if the texture has been created, even if its upload failed or was skipped.
    /// Makes no GL call.
    virtual bool isPreload() const = 0;
    /// Unbinds the texture. Needs a current context.
    virtual void Unload() const = 0;
};

/// Owns one GL texture name.
struct grTextureMgr {
    grTextureMgr() = default;
    grTextureMgr(grTextureMgr const&) = delete;
    grTextureMgr& operator=(grTextureMgr const&) = delete;
    /// Deletes the texture. Needs a current context if `created` is true.
    ~grTextureMgr();

    unsigned int name = 0;
    bool created = false;
};

/// A texture object. Copies made after `Preload` share one GL name. A copy made before is empty and
/// independent. The destructor of the last copy deletes the texture and needs a current context if
/// `isPreload()` is true.
///
/// The object doesn't copy pixels and doesn't notice their change. Pixels are uploaded by `Preload`
/// and `Reload` only. Uploads return no result: failures are printed on the error stream, and
/// grMemoryWatch (gl/grerror.h) detects GL_OUT_OF_MEMORY.
class grTextureObject : public grTexturableObject {
  public:
    /// Makes no GL call.
    grTextureObject();
    grTextureObject(grTextureObject const&) = default;
    grTextureObject& operator=(grTextureObject const&) = default;
    ~grTextureObject() override = default;

    /// Creates the texture unless this object has one, binds it to the active texture unit, and
    /// uploads `image`. The texture stays bound. Its target isn't enabled. Needs a current context.
    ///
    /// `image` must not be null. It isn't owned and must outlive this object and its copies. A
    /// texture can't change its target: until `clear`, all images must have the same dimension.
    void Preload(grTexturableImageGL const* image);

    /// Returns the dimension of the target, or 0 before `Preload`. Makes no GL call.
    unsigned long Dimension() const override;
    /// Binds the texture to the active texture unit. Before OpenGL 3.0 it also enables the target.
    /// Uploads nothing. Does nothing before `Preload`. Needs a current context.
    void Load() const override;
    /// Binds the texture and uploads the pixels of the image again. The images must have the sizes
    /// that they had in `Preload`. Does nothing before `Preload`. Needs a current context.
    void Reload() const override;
    bool isPreload() const override { return m_preloaded; }
    /// Binds texture 0 to the target. Before OpenGL 3.0 it also disables the target. Does nothing
    /// before `Preload`. Needs a current context.
    void Unload() const override;
    /// Releases this object's share of the texture and empties the object. Needs a current context
    /// if this is the last copy.
    void clear();

    /// Returns true if the texture is resident (EXT_texture_object), false without the extension.
    /// Needs a current context.
    bool isResident() const;
    /// Binds a mipmap level to an image unit with the `access` of glBindImageTexture. Does nothing
    /// before OpenGL 4.2. Needs a current context.
    void BindImage(unsigned int unit, int level, unsigned int access) const;
    /// Unbinds an image unit. Does nothing before OpenGL 4.2. Needs a current context.
    void UnbindImage(unsigned int unit) const;

    /// Reads mipmap level `level` of the texture bound to `target` into `img`, row 0 at the bottom.
    /// The target is GL_TEXTURE_1D, GL_TEXTURE_2D, GL_TEXTURE_RECTANGLE or a cube map face. Needs a
    /// current context.
    ///
    /// The pixels of a floating-point texture become RGBA pixels of type GL_FLOAT. Each component
    /// takes 4 bytes, even if `img.desc` has fewer bits, so each pixel takes 16 bytes. For a
    /// normalized or integer texture OpenGL reports an error and the pixels of `img` are 0, but the
    /// function returns true: callers depend on these GL calls.
    ///
    /// Returns false if the target or the component type is not supported. Prints a line and
    /// returns false if the component size is not supported or there is no memory.
    bool GetTexImage(unsigned int target, int level, image2d_t& img) const;
    /// Does the same for this object's texture, without binding it. Returns false before `Preload`
    /// and before OpenGL 4.5. Needs a current context.
    bool GetTextureImage(int level, image2d_t& img) const;

  private:
    libutils::refobject<grTextureMgr> m_mgr;
    unsigned int m_target;
    bool m_preloaded = false;
    grTexturableImageGL const* m_image = nullptr;
};

// Texture parameters, with the values of glTexParameter. The texture classes keep a pointer to the
// record that they are given, so make it a constant or let it outlive the texture class.

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

/// Sets the parameters of the texture that is bound to the record's target. Null does nothing.
/// Needs a current context.
///
/// The 2-D function sets the anisotropy without a test for EXT_texture_filter_anisotropic; without
/// the extension OpenGL reports GL_INVALID_ENUM. The cube map and 3-D functions test for it.
void grTexParameter(texparameter1d_t const* parameter);
void grTexParameter(texparameter2d_t const* parameter);
void grTexParameter(texparametercubemap_t const* parameter);
void grTexParameter(texparameter3d_t const* parameter);
/// Sets the border colour of the texture that is bound to `target`. Null does nothing. Needs a
/// current context.
void grTexParameter(unsigned int target, color3a_t const* color);

/// Returns the target of textures of 1, 2 or 3 dimensions, or of cube maps for 6. Returns
/// GL_INVALID_VALUE for other numbers.
unsigned int grTextureDimToEnum(unsigned long dim);
/// Returns the dimensions of a target, 6 for a cube map, or 0 for any other target.
unsigned long grTextureEnumToDim(unsigned int target);

}  // namespace libgr
