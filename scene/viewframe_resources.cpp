// SPDX-License-Identifier: MIT
// Loads and releases the files, textures and programs of the photo frame.
#include <sys/stat.h>
#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "codecs/bmpimage.h"
#include "geometry/constants.h"
#include "gl/texture.h"
#include "image/normalmap.h"
#include "image/pixelconvert.h"
#include "options/option.h"
#include "scene/viewframe.h"
#include "utils/diagnostics.h"
#include "utils/smallfile.h"

namespace zanolib {

bool ViewFrame::s_inited = false;
std::string ViewFrame::s_datapath;
unsigned int ViewFrame::s_loaded_images = 0;
libgr::grTexture2D ViewFrame::s_monotex;
libgr::grTexture2D ViewFrame::s_hairlinetex;
libgr::grTexture2D ViewFrame::s_flowertex;
libgr::grTextureCubeMap ViewFrame::s_normaltex;
libgr::grTextureObject ViewFrame::s_monotexobj;
libgr::grTextureObject ViewFrame::s_hairlinetexobj;
libgr::grTextureObject ViewFrame::s_flowertexobj;
libgr::grTextureObject ViewFrame::s_normaltexobj;
GLuint ViewFrame::s_vertex_program = 0;
GLuint ViewFrame::s_fragment_program = 0;
bool ViewFrame::s_vertex_program_loaded = false;
bool ViewFrame::s_fragment_program_loaded = false;

namespace {

libgr::color3a_t const s_bordercolor = libgr::white * 0.18f;

libgr::texparameter2d_t const s_textureparameter =
    libgr::texparameter2d(GL_LINEAR_MIPMAP_LINEAR, GL_LINEAR, GL_CLAMP, GL_CLAMP, 1.0f);
libgr::texparameter2d_t const s_textureparameter_heightmap = libgr::texparameter2d(
    GL_LINEAR_MIPMAP_LINEAR, GL_LINEAR, GL_CLAMP_TO_EDGE, GL_CLAMP_TO_EDGE, 1.0f);
libgr::texparametercubemap_t const s_textureparameter_normalmap =
    libgr::texparametercubemap(GL_LINEAR, GL_LINEAR, 1.0f);

/// Returns the first path at which the file exists, or else the last one that was tried.
std::string find_data_file(char const* name, char const* datapath) {
    std::string path;
    for (std::string const& directory :
         {std::string(), std::string(datapath), std::string(site_directory)}) {
        path = directory + name;
        // Opening a pipe would block, and a directory can be opened, too.
        struct stat status {};
        if (stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
            access(path.c_str(), R_OK) == 0) {
            break;
        }
    }
    return path;
}

bool load_bmp(libgr::image2d_t& image, char const* name, char const* datapath) {
    libgr::bmpimage_t bmp;
    return bmp.load(find_data_file(name, datapath).c_str(), nullptr) && libgr::convert(image, bmp);
}

void load_image_rgb(libgr::grTexture2D& texture, char const* name, char const* datapath) {
    libgr::image2d_t image;
    if (!load_bmp(image, name, datapath)) {
        return;
    }
    if (!is_GL_EXT_bgra_supported) {
        libgr::image2d_t rgb;
        libgr::bgr2rgb(rgb, image);
        image = rgb;
    }
    texture.setImage(image, 0, 0);
    texture.setBuildMipmap(true);
    texture.setInternalCompression(false);
    texture.setBorder(false);
    texture.setTextureParameter(&s_textureparameter);
    texture.setBorderColor(&s_bordercolor);
}

void load_image_heightmap(libgr::grTexture2D& texture, char const* name, float scale,
                          char const* datapath) {
    libgr::image2d_t image;
    if (!load_bmp(image, name, datapath)) {
        return;
    }
    libgr::image2d_t normals;
    libgr::heightmap2normalmap(normals, image, scale);
    texture.setImage(normals, 0, 0);
    texture.setBuildMipmap(true);
    texture.setInternalCompression(false);
    texture.setBorder(false);
    texture.setTextureParameter(&s_textureparameter_heightmap);
}

void load_image_normalmap(libgr::grTextureCubeMap& texture) {
    libgr::image2d_t images[6];
    libgr::makenormalcubemap(images);
    texture.setImage(images, 0, 0);
    texture.setTextureParameter(&s_textureparameter_normalmap);
}

/// Loads the text of the program that is bound to `target`. Prints an error line and returns false
/// if the file can't be read or OpenGL rejects the text.
bool load_program(GLenum target, char const* name, char const* datapath) {
    std::string const path = find_data_file(name, datapath);
    std::vector<char> text;
    if (libutils::read_small_file(text, path.c_str()) != libutils::small_file_t::READ) {
        return libutils::report_error(libutils::putname(path), ": read error.");
    }
    auto const length = static_cast<GLsizei>(text.size());
    text.push_back('\0');
    glProgramStringARB(target, GL_PROGRAM_FORMAT_ASCII_ARB, length, text.data());
    if (glGetError() == GL_NO_ERROR) {
        return true;
    }
    GLint position = 0;
    glGetIntegerv(GL_PROGRAM_ERROR_POSITION_ARB, &position);
    auto const* const reason =
        reinterpret_cast<char const*>(glGetString(GL_PROGRAM_ERROR_STRING_ARB));
    libutils::error();
    std::cerr << name << ": " << position << ": " << (reason != nullptr ? reason : "") << std::endl;
    return false;
}

bool make_program(GLuint& program, GLenum target, char const* name, char const* datapath) {
    glGenProgramsARB(1, &program);
    glBindProgramARB(target, program);
    return load_program(target, name, datapath);
}

/// Deletes a program that has no text. `free_graph` deletes only programs that were loaded.
void drop_rejected(GLuint program, bool loaded) {
    if (!loaded) {
        glDeleteProgramsARB(1, &program);
    }
}

}  // namespace

void ViewFrame::init(char const* datapath) {
    if (s_inited) {
        return;
    }
    s_datapath = datapath;
    s_loaded_images = 0;
    s_inited = true;
}

void ViewFrame::load_once(image_t image) {
    unsigned int const bit = 1U << static_cast<unsigned int>(image);
    if (!s_inited || (s_loaded_images & bit) != 0) {
        return;
    }
    s_loaded_images |= bit;
    switch (image) {
        case image_t::color:
            load_image_rgb(s_monotex, "hairline.bmp", s_datapath.c_str());
            break;
        case image_t::flower:
            load_image_rgb(s_flowertex, "flower.bmp", s_datapath.c_str());
            break;
        case image_t::bumps:
            load_image_heightmap(s_hairlinetex, "hairline.bmp", 100.0f, s_datapath.c_str());
            break;
        case image_t::cube:
            load_image_normalmap(s_normaltex);
            break;
    }
}

void ViewFrame::destroy() {
    if (!s_inited) {
        return;
    }
    s_monotex.clear();
    s_flowertex.clear();
    s_hairlinetex.clear();
    s_normaltex.clear();
    s_inited = false;
}

void ViewFrame::make_graph(char const* datapath) {
    if (m_frametype == FRAMETYPE_FLOWER) {
        load_once(image_t::flower);
        s_flowertexobj.Preload(&s_flowertex);
    }
    if (!is_bump_mapped()) {
        return;
    }
    if (has_programs()) {
        load_once(image_t::bumps);
        s_hairlinetexobj.Preload(&s_hairlinetex);
        s_vertex_program_loaded =
            make_program(s_vertex_program, GL_VERTEX_PROGRAM_ARB, "bumpmapv.vp1", datapath);
        s_fragment_program_loaded =
            make_program(s_fragment_program, GL_FRAGMENT_PROGRAM_ARB, "bumpmapf.fp1", datapath);
        glBindProgramARB(GL_FRAGMENT_PROGRAM_ARB, 0);
        drop_rejected(s_vertex_program, s_vertex_program_loaded);
        drop_rejected(s_fragment_program, s_fragment_program_loaded);
        if (s_vertex_program_loaded && s_fragment_program_loaded) {
            return;
        }
    }
    if (has_combiners()) {
        load_once(image_t::bumps);
        load_once(image_t::cube);
        s_hairlinetexobj.Preload(&s_hairlinetex);
        s_normaltexobj.Preload(&s_normaltex);
    } else {
        load_once(image_t::color);
        s_monotexobj.Preload(&s_monotex);
    }
}

void ViewFrame::free_graph() {
    if (m_frametype == FRAMETYPE_FLOWER) {
        s_flowertexobj.Unload();
    }
    if (!is_bump_mapped()) {
        return;
    }
    if (has_programs()) {
        s_hairlinetexobj.Unload();
        if (s_vertex_program_loaded) {
            glDeleteProgramsARB(1, &s_vertex_program);
        }
        if (s_fragment_program_loaded) {
            glDeleteProgramsARB(1, &s_fragment_program);
        }
    }
    // The textures that the path didn't use aren't loaded, and `Unload` has no effect on them.
    if (has_combiners()) {
        s_hairlinetexobj.Unload();
        s_normaltexobj.Unload();
    } else {
        s_monotexobj.Unload();
    }
}

}  // namespace zanolib
