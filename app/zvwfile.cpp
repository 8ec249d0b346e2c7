// SPDX-License-Identifier: MIT
// Reads, writes and deletes view state files.
#include "app/zvwfile.h"

#include <unistd.h>

#include <cerrno>
#include <iostream>
#include <sstream>
#include <vector>

#include "geometry/textstream.h"
#include "options/trace.h"
#include "utils/diagnostics.h"
#include "utils/path.h"
#include "utils/replacefile.h"
#include "utils/smallfile.h"

namespace zanoview2 {

std::string make_zvwpath(char const* picture) {
    return libutils::path_beside(picture, ".zvw");
}

bool zvwfile_t::load(char const* picture) {
    std::string const path = make_zvwpath(picture);
    std::vector<char> buffer;
    if (libutils::read_small_file(buffer, path.c_str()) != libutils::small_file_t::READ) {
        return false;
    }
    std::istringstream text(std::string(buffer.begin(), buffer.end()));
    text >> size >> matrix;
    zanolib::trace(std::cout, size);
    zanolib::report(libutils::putname(path), ": zvwfile loaded.");
    return true;
}

bool zvwfile_t::save(char const* picture) const {
    std::string const path = make_zvwpath(picture);
    std::ostringstream text;
    text << size << '\n' << matrix << '\n';
    if (!text) {
        errno = ENOMEM;  // the stream caught std::bad_alloc
        return false;
    }
    if (!libutils::replace_file(path, text.view())) {
        return false;
    }
    zanolib::report(libutils::putname(path), ": zvwfile saved.");
    return true;
}

bool zvwfile_t::del(char const* picture) const {
    return unlink(make_zvwpath(picture).c_str()) == 0;
}

}  // namespace zanoview2
