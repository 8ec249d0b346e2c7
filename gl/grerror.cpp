// SPDX-License-Identifier: MIT
// Reports GL errors on the error stream.
#include "gl/grerror.h"

#include <iostream>

#include "gl/glucalls.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

unsigned long s_out_of_memory_count = 0;  // of reported errors

}  // namespace

grMemoryWatch::grMemoryWatch() : m_before(s_out_of_memory_count) {}

bool grMemoryWatch::is_exhausted() const {
    return s_out_of_memory_count != m_before;
}

bool grPrintError(char const* label) {
    GLenum const code = glGetError();
    if (code == GL_NO_ERROR) {
        return false;
    }
    if (code == GL_OUT_OF_MEMORY) {
        ++s_out_of_memory_count;
    }
    if (label != nullptr) {
        std::cerr << label << ": ";
    }
    {
        libutils::keepflag const keep(std::cerr);
        std::cerr << "Error " << std::dec << code << ": ";
    }
    // A null text would set the bad bit of the stream.
    GLubyte const* text = gluErrorString(code);
    std::cerr << (text != nullptr ? text : reinterpret_cast<GLubyte const*>("unknown error"));
    libutils::error();
    std::cerr << std::endl;
    return true;
}

}  // namespace libgr
