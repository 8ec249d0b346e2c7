// SPDX-License-Identifier: MIT
// The report of GL errors on the error stream.
#include "gl/grerror.h"

#include <iostream>

#include "gl/glucalls.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

unsigned long g_out_of_memory = 0;  // errors GL_OUT_OF_MEMORY that were reported

}  // namespace

grMemoryWatch::grMemoryWatch() : m_before(g_out_of_memory) {}

bool grMemoryWatch::is_exhausted() const {
    return g_out_of_memory != m_before;
}

bool grPrintError(char const* label) {
    const GLenum code = glGetError();
    if (code == GL_NO_ERROR) {
        return false;
    }
    if (code == GL_OUT_OF_MEMORY) {
        ++g_out_of_memory;
    }
    if (label != nullptr) {
        std::cerr << label << ": ";
    }
    {
        const libutils::keepflag keep(std::cerr);
        std::cerr << "Error " << std::dec << code << ": ";
    }
    // A null text would put the stream out of order for good.
    GLubyte const* text = gluErrorString(code);
    std::cerr << (text != nullptr ? text : reinterpret_cast<GLubyte const*>("unknown error"));
    libutils::error();
    std::cerr << std::endl;
    return true;
}

}  // namespace libgr
