// SPDX-License-Identifier: MIT
// Texture classes, texture objects with their GL names, and texture parameters.
#pragma once

/// This example makes a texture from a picture and draws with it. The order of calls is: set the
/// images, call `Preload` once, and call `Load` before and `Unload` after each use. Keep both
/// objects between frames. From OpenGL 3.0 on, enable GL_TEXTURE_2D yourself for fixed-function
/// drawing.
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
/// gl/glformat.h lists the image descriptions that are accepted. grTexture2D::setImage
/// (gl/texture2d.h) describes the texture coordinates that a picture covers.
///
/// Context: call everything in this library from the thread of the GL context. Each function says
/// if it needs a current context. Before `gl_extloader_init` (glext/glextloader.h) the GL functions
/// are null pointers and each call of one crashes. A second context isn't supported.
///
/// Owners: a grTextureObject owns the GL texture. Keep the other objects until their last use:
///
///     Object                              Last use
///     image record                        setImage, which keeps a copy that shares its bytes
///     `store` of the image                the last upload
///     texture parameters, border colour   the last upload
///     texture class, e.g. grTexture2D     the last Preload, Reload or BindImage
///
/// An upload is a `Preload` or `Reload` of a texture object, or a `Load` or `Reload` of a texture
/// class. If you change the bytes, the next upload sends them.
///
/// Mipmaps: OpenGL's initial minfilter, GL_NEAREST_MIPMAP_LINEAR, needs all mipmap levels. Without
/// them, set GL_NEAREST or GL_LINEAR with setTextureParameter. Otherwise OpenGL draws as if the
/// texture were disabled, shaders read black, and there is no error. A texture with one image, or
/// six for a cube map, can be drawn in these cases:
///
///     Class                     Without setBuildMipmap              setBuildMipmap(true)
///     grTexture1D, grTexture2D  `size` 0, GL_NEAREST or GL_LINEAR   yes
///     grTexture3D               no                                  yes
///     grTextureCubeMap          `size` > 0, GL_NEAREST or GL_LINEAR yes
///     grTextureRectangle        yes, but without grTextureObject    -
///
/// Failures: uploads return no result. Images whose description gl/glformat.h rejects, or that have
/// fewer bytes than OpenGL would read, are reported on the error stream and skipped. If OpenGL
/// rejects a level, for example because it exceeds GL_MAX_TEXTURE_SIZE, the level doesn't change
/// and the upload prints the error or leaves it pending: call grPrintError (gl/grerror.h). Errors
/// of GLU are ignored. grMemoryWatch (gl/grerror.h) detects a lack of memory.
///
/// These functions change GL state and don't restore it:
///
///     Preload, Load, Reload         the texture binding
///     Load, Unload                  before OpenGL 3.0, the enable of the target
///     Preload, Reload               the unpack parameters: see gl/texture2d.h
///     the same for INDEX images     GL_MAP_COLOR and pixel maps: see gl/palette.h
///     GetTexImage, GetTextureImage  the pack parameters: see gl/pixelstore.h

#include "geometry/color.h"
#include "image/image.h"
#include "utils/refobject.h"

namespace libgr {

/// The base of image sets and texture objects.
class grTexturable {
  public:
    /// Returns the number of dimensions: 1, 2 or 3. Returns 6 for a cube map. Makes no GL call.
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
/// `isPreload()` is true. The other functions need a current context unless their comments say
/// otherwise. Before `Preload`, all except GetTexImage do nothing and return false or 0.
class grTextureObject : public grTexturableObject {
  public:
    /// Makes no GL call.
    grTextureObject();
    grTextureObject(grTextureObject const&) = default;
    grTextureObject& operator=(grTextureObject const&) = default;
    ~grTextureObject() override = default;

    /// Creates the texture unless this object has one, binds it to the active texture unit, and
    /// uploads `image`. The texture stays bound. Its target isn't enabled.
    ///
    /// `image` must not be null and isn't owned. The object and its copies use it in `Reload` and
    /// `BindImage`. A texture can't change its target: until `clear`, all images must have the same
    /// dimension.
    void Preload(grTexturableImageGL const* image);

    /// Returns the `Dimension` of the image. Makes no GL call.
    unsigned long Dimension() const override;
    /// Binds the texture to the active texture unit. Before OpenGL 3.0 it also enables the target.
    /// Uploads nothing.
    void Load() const override;
    /// Binds the texture and uploads the pixels of the image again. The images must have the sizes
    /// that they had in `Preload`.
    void Reload() const override;
    bool isPreload() const override { return m_preloaded; }
    /// Binds texture 0 to the target. Before OpenGL 3.0 it also disables the target.
    void Unload() const override;
    /// Empties the object. Deletes the texture if this is the last copy. Only this needs a current
    /// context.
    void clear();

    /// Returns true if the texture is resident (EXT_texture_object), false without the extension.
    bool isResident() const;
    /// Calls glBindImageTexture for mipmap level `level`, layer 0, with the internal format of the
    /// first image. `access` is GL_READ_ONLY, GL_WRITE_ONLY or GL_READ_WRITE. OpenGL accepts
    /// GL_RGBA8, for example, but not GL_RGB8. Does nothing before OpenGL 4.2.
    void BindImage(unsigned int unit, int level, unsigned int access) const;
    /// Binds no texture to an image unit. Does nothing before OpenGL 4.2.
    void UnbindImage(unsigned int unit) const;

    /// Reads mipmap level `level` of the texture bound to `target`, which needn't be this one, into
    /// `img`. Row 0 is at t = 0. The target is GL_TEXTURE_1D, GL_TEXTURE_2D, GL_TEXTURE_RECTANGLE
    /// or a face, for example GL_TEXTURE_CUBE_MAP_POSITIVE_X.
    ///
    /// The pixels of a floating-point texture become RGBA. Each component is a float of 4 bytes,
    /// even if `img.desc` has 16 bits. For a normalized or integer texture, for example GL_RGBA8,
    /// OpenGL reports an error and the pixels of `img` are 0, but the function returns true:
    /// callers depend on these GL calls. Use glGetTexImage for these textures.
    ///
    /// Returns false if the target is another one or the level has no red component. Prints a line
    /// and returns false if no e_image_bits_t has the component size or there is no memory. After
    /// false, ignore the sizes, description and bytes of `img`; its old bytes are released. The
    /// store and window of `img` are used as in grReadPixelsRGB (gl/readpixels.h).
    bool GetTexImage(unsigned int target, int level, image2d_t& img) const;
    /// Does the same for this object's texture, without binding it. For a cube map or a volume of
    /// several pictures, OpenGL reports GL_INVALID_OPERATION and the pixels of `img` are 0, but the
    /// function returns true: call GetTexImage for each face of a cube map. No function here reads
    /// a volume. Returns false before OpenGL 4.5.
    bool GetTextureImage(int level, image2d_t& img) const;

  private:
    libutils::refobject<grTextureMgr> m_mgr;
    unsigned int m_target;
    bool m_preloaded = false;
    grTexturableImageGL const* m_image = nullptr;
};

// Texture parameters, with the values of glTexParameter. The texture classes keep a pointer to the
// record: make it a static constant.

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

/// Returns GL_TEXTURE_1D, GL_TEXTURE_2D, GL_TEXTURE_3D or GL_TEXTURE_CUBE_MAP for the results 1, 2,
/// 3 or 6 of `Dimension`. Returns GL_INVALID_VALUE for other numbers.
unsigned int grTextureDimToEnum(unsigned long dim);
/// Returns 1, 2, 3 or 6 for these four targets, and 0 for all others.
unsigned long grTextureEnumToDim(unsigned int target);

}  // namespace libgr
