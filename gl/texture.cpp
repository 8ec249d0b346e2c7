// SPDX-License-Identifier: MIT
// Texture objects: creation, binding, upload and read-back. Texture parameters.
#include "gl/texture.h"

#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <iterator>
#include <limits>

#include "gl/grerror.h"
#include "gl/pixelstore.h"
#include "glext/glextloader.h"
#include "utils/diagnostics.h"

namespace libgr {

void grTexturable::Reload() const {
    Load();
}

grTextureMgr::~grTextureMgr() {
    if (created) {
        glDeleteTextures(1, &name);
        created = false;
    }
}

grTextureObject::grTextureObject() : m_target(GL_INVALID_VALUE) {}

void grTextureObject::Preload(grTexturableImageGL const* image) {
    grTextureMgr& mgr = m_mgr ? *m_mgr : m_mgr.create();
    m_target = grTextureDimToEnum(image->Dimension());
    if (!mgr.created) {
        glGenTextures(1, &mgr.name);
        mgr.created = true;
    }
    glBindTexture(m_target, mgr.name);
    image->Load();
    m_preloaded = true;
    m_image = image;
}

unsigned long grTextureObject::Dimension() const {
    return grTextureEnumToDim(m_target);
}

void grTextureObject::Load() const {
    grTextureMgr const* const mgr = m_mgr.get();
    if (mgr == nullptr) {
        return;
    }
    grPrintError("grTextureObject::Load(0)");
    if (!is_GL_VERSION_3_0_supported) {
        glEnable(m_target);
        grPrintError("grTextureObject::Load(1)");
    }
    glBindTexture(m_target, mgr->name);
    grPrintError("grTextureObject::Load(2)");
}

void grTextureObject::Reload() const {
    grTextureMgr const* const mgr = m_mgr.get();
    if (!m_preloaded || mgr == nullptr) {
        return;
    }
    glBindTexture(m_target, mgr->name);
    m_image->Reload();
}

void grTextureObject::Unload() const {
    if (!m_mgr) {
        return;
    }
    if (!is_GL_VERSION_3_0_supported) {
        glDisable(m_target);
    }
    glBindTexture(m_target, 0);
}

void grTextureObject::clear() {
    if (m_preloaded) {
        m_mgr.clear();
        m_target = GL_INVALID_VALUE;
        m_preloaded = false;
    }
}

// Entry points that the context does not have are null.

bool grTextureObject::isResident() const {
    grTextureMgr const* const mgr = m_mgr.get();
    if (mgr == nullptr || glAreTexturesResidentEXT == nullptr) {
        return false;
    }
    // OpenGL writes the results only if one of them is false.
    GLboolean resident = GL_TRUE;
    glAreTexturesResidentEXT(1, &mgr->name, &resident);
    return resident == GL_TRUE;
}

void grTextureObject::BindImage(unsigned int unit, int level, unsigned int access) const {
    grTextureMgr const* const mgr = m_mgr.get();
    if (mgr != nullptr && glBindImageTexture != nullptr) {
        glBindImageTexture(unit, mgr->name, level, GL_FALSE, 0, access,
                           m_image->GetInternalFormat());
    }
}

void grTextureObject::UnbindImage(unsigned int unit) const {
    if (m_mgr && glBindImageTexture != nullptr) {
        glBindImageTexture(unit, 0, 0, GL_FALSE, 0, GL_READ_ONLY, GL_R8);
    }
}

namespace {

bool image_type_of(GLint componenttype, e_image_type_t& type) {
    switch (componenttype) {
        case GL_INT:
            type = IMAGE_TYPE_SINT;
            return true;
        case GL_UNSIGNED_INT:
            type = IMAGE_TYPE_UINT;
            return true;
        case GL_FLOAT:
        case GL_UNSIGNED_NORMALIZED:
        case GL_SIGNED_NORMALIZED:
            type = IMAGE_TYPE_FLOAT;
            return true;
        default:
            return false;
    }
}

bool image_bits_of(GLint componentbits, e_image_bits_t& bits) {
    auto const* const row =
        std::find_if(std::begin(s_image_bits_list), std::end(s_image_bits_list),
                     [componentbits](image_bits_t const& candidate) {
                         return static_cast<long long>(candidate.component) == componentbits;
                     });
    if (componentbits <= 0 || row == std::end(s_image_bits_list)) {
        return false;
    }
    bits = static_cast<e_image_bits_t>(row->value);
    return true;
}

/// Sets the description and size of `img` to those of a mipmap level and allocates its bytes.
/// `query` reads a parameter of the level. `redtype` receives the type of the red component.
template <typename query_t>
bool describe_level(query_t const& query, image2d_t& img, GLint& redtype) {
    auto const ask = [&query](GLenum pname, char const* label) {
        GLint value = 0;
        query(pname, &value);
        grPrintError(label);
        return value;
    };
    img.clear();
    GLint const width = ask(GL_TEXTURE_WIDTH, "get texture level parameter (width)");
    GLint const height = ask(GL_TEXTURE_HEIGHT, "get texture level parameter (height)");
    img.m_width = static_cast<unsigned int>(std::max(width, 0));
    img.m_height = static_cast<unsigned int>(std::max(height, 0));
    img.desc.format = IMAGE_FORMAT_RGBA;
    redtype = ask(GL_TEXTURE_RED_TYPE, "get texture level parameter (red_type)");
    if (!image_type_of(redtype, img.desc.type)) {
        return false;
    }
    GLint const redsize = ask(GL_TEXTURE_RED_SIZE, "get texture level parameter (red_size)");
    if (!image_bits_of(redsize, img.desc.bits)) {
        return libutils::report_error("red size is not recognized.");
    }
    img.compressed = false;
    // All component types that image_type_of accepts take 4 bytes, whatever the component size.
    if (!grAllocateForPack(img, 16)) {
        return libutils::report_error("grTextureObject::GetTextureImage() img allocate fail.");
    }
    grPixelStorePack(img.store);
    grPixelStorePack(img.window);
    return true;
}

}  // namespace

/// Returns true if a mipmap level of the target is one picture. For other targets OpenGL would
/// write several pictures, past the end of the image.
static bool is_single_picture(unsigned int target) {
    return target == GL_TEXTURE_1D || target == GL_TEXTURE_2D || target == GL_TEXTURE_RECTANGLE ||
           (target >= GL_TEXTURE_CUBE_MAP_POSITIVE_X && target <= GL_TEXTURE_CUBE_MAP_NEGATIVE_Z);
}

bool grTextureObject::GetTexImage(unsigned int target, int level, image2d_t& img) const {
    if (!is_single_picture(target)) {
        img.clear();
        return false;
    }
    auto const query = [target, level](GLenum pname, GLint* value) {
        glGetTexLevelParameteriv(target, level, pname, value);
    };
    GLint redtype = 0;
    if (!describe_level(query, img, redtype)) {
        return false;
    }
    glGetTexImage(target, level, GL_RGBA, static_cast<GLenum>(redtype), img.begin());
    return true;
}

bool grTextureObject::GetTextureImage(int level, image2d_t& img) const {
    grTextureMgr const* const mgr = m_mgr.get();
    if (mgr == nullptr || glGetTextureImage == nullptr || glGetTextureLevelParameteriv == nullptr) {
        img.clear();
        return false;
    }
    GLuint const name = mgr->name;
    auto const query = [name, level](GLenum pname, GLint* value) {
        glGetTextureLevelParameteriv(name, level, pname, value);
    };
    GLint redtype = 0;
    if (!describe_level(query, img, redtype)) {
        return false;
    }
    auto const bytes = std::min<unsigned long>(img.size(), std::numeric_limits<GLsizei>::max());
    glGetTextureImage(name, level, GL_RGBA, static_cast<GLenum>(redtype),
                      static_cast<GLsizei>(bytes), img.begin());
    return true;
}

namespace {

struct parameter_t {
    GLenum pname;
    unsigned int value;
};

void set(GLenum target, std::initializer_list<parameter_t> parameters) {
    for (parameter_t const& parameter : parameters) {
        glTexParameteri(target, parameter.pname, static_cast<GLint>(parameter.value));
    }
}

void set_anisotropy(GLenum target, float value) {
    glTexParameterf(target, GL_TEXTURE_MAX_ANISOTROPY_EXT, value);
}

}  // namespace

void grTexParameter(texparameter1d_t const* parameter) {
    if (parameter != nullptr) {
        set(GL_TEXTURE_1D, {{GL_TEXTURE_MIN_FILTER, parameter->minfilter},
                            {GL_TEXTURE_MAG_FILTER, parameter->magfilter},
                            {GL_TEXTURE_WRAP_S, parameter->wrap_s}});
    }
}

void grTexParameter(texparameter2d_t const* parameter) {
    if (parameter != nullptr) {
        set(GL_TEXTURE_2D, {{GL_TEXTURE_MIN_FILTER, parameter->minfilter},
                            {GL_TEXTURE_MAG_FILTER, parameter->magfilter},
                            {GL_TEXTURE_WRAP_S, parameter->wrap_s},
                            {GL_TEXTURE_WRAP_T, parameter->wrap_t}});
        set_anisotropy(GL_TEXTURE_2D, parameter->anisotropy);
    }
}

void grTexParameter(texparametercubemap_t const* parameter) {
    if (parameter == nullptr) {
        return;
    }
    grPrintError("grTexParameter(cubemap) start");
    set(GL_TEXTURE_CUBE_MAP, {{GL_TEXTURE_MIN_FILTER, parameter->minfilter},
                              {GL_TEXTURE_MAG_FILTER, parameter->magfilter}});
    if (is_GL_EXT_texture_filter_anisotropic_supported) {
        set_anisotropy(GL_TEXTURE_CUBE_MAP, parameter->anisotropy);
    }
    grPrintError("grTexParameter(cubemap) end");
}

void grTexParameter(texparameter3d_t const* parameter) {
    if (parameter == nullptr) {
        return;
    }
    set(GL_TEXTURE_3D, {{GL_TEXTURE_MIN_FILTER, parameter->minfilter},
                        {GL_TEXTURE_MAG_FILTER, parameter->magfilter},
                        {GL_TEXTURE_WRAP_S, parameter->wrap_s},
                        {GL_TEXTURE_WRAP_T, parameter->wrap_t},
                        {GL_TEXTURE_WRAP_R, parameter->wrap_r}});
    if (is_GL_EXT_texture_filter_anisotropic_supported) {
        set_anisotropy(GL_TEXTURE_3D, parameter->anisotropy);
    }
}

void grTexParameter(unsigned int target, color3a_t const* color) {
    if (color != nullptr) {
        glTexParameterfv(target, GL_TEXTURE_BORDER_COLOR, &color->r);
    }
}

unsigned int grTextureDimToEnum(unsigned long dim) {
    static constexpr GLenum sizetable[] = {GL_INVALID_VALUE,   GL_TEXTURE_1D,    GL_TEXTURE_2D,
                                           GL_TEXTURE_3D,      GL_INVALID_VALUE, GL_INVALID_VALUE,
                                           GL_TEXTURE_CUBE_MAP};
    return dim < std::size(sizetable) ? sizetable[dim] : GL_INVALID_VALUE;
}

unsigned long grTextureEnumToDim(unsigned int target) {
    switch (target) {
        case GL_TEXTURE_1D:
            return 1;
        case GL_TEXTURE_2D:
            return 2;
        case GL_TEXTURE_3D:
            return 3;
        case GL_TEXTURE_CUBE_MAP:
            return 6;
        default:
            return 0;
    }
}

}  // namespace libgr
