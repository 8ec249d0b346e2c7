// SPDX-License-Identifier: MIT
// Finds the message file and splits it into lines.
#include "options/message.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "options/option.h"
#include "options/trace.h"
#include "utils/diagnostics.h"
#include "utils/path.h"
#include "utils/smallfile.h"

namespace zanolib {

namespace {

std::vector<char> s_msgbuf;
std::vector<char const*> s_tablebuf;

bool load_message(std::vector<char>& buffer, char const* path) {
    return libutils::read_small_file(buffer, path) == libutils::small_file_t::READ;
}

unsigned long count_lines(std::vector<char> const& buffer) {
    return static_cast<unsigned long>(std::count(buffer.begin(), buffer.end(), '\n'));
}

/// Splits the text into `lines` lines, and replaces their ends with NULs. A CR without an LF ends a
/// line, too, but `lines` is the number of LFs. The last lines of a text with lone CRs are missing.
void make_message_table(std::vector<char const*>& table, std::vector<char>& buffer,
                        unsigned long lines) {
    table.resize(lines);
    auto position = buffer.begin();
    for (char const*& line : table) {
        line = &*position;
        position =
            std::find_if(position, buffer.end(), [](char c) { return c == '\r' || c == '\n'; });
        for (char const c : {'\r', '\n'}) {
            if (position != buffer.end() && *position == c) {
                *position++ = '\0';
            }
        }
    }
}

/// Loads the file from the working directory, from `dir` (from PATH if it is empty) or from the
/// site directory. On failure, `path` is the last path that was tried.
bool load_from_places(std::string& path, std::string const& name, std::string const& dir) {
    path = name;
    if (load_message(s_msgbuf, path.c_str())) {
        return true;
    }
    if (dir.empty()) {
        path = libutils::searchpath(name, nullptr);
        trace(std::cout, libutils::putname(dir), ": dirpath.");
    } else {
        path = dir + name;
    }
    if (load_message(s_msgbuf, path.c_str())) {
        return true;
    }
    trace(std::cout, libutils::putname(path), ": warning can't load message file.");
    path = site_directory + name;
    return load_message(s_msgbuf, path.c_str());
}

}  // namespace

std::string init_message(char const* dir, char const* prog) {
    std::setlocale(LC_ALL, "");
    char const* const lang = std::getenv("LANG");
    std::string const suffix = lang != nullptr ? std::string(".") + lang : "";
    trace(std::cerr, "init_message() entering.");
    s_tablebuf.clear();
    std::string path;
    if (!load_from_places(path, prog + suffix + ".msg", dir)) {
        if (g_option.debug) {
            libutils::error();
            std::cerr << libutils::putname(path) << ": can't load message file." << std::endl;
        }
        if (!load_from_places(path, prog + std::string(".msg"), dir)) {
            libutils::error();
            std::cerr << libutils::putname(path) << ": can't load message file." << std::endl;
            return "";
        }
    }
    trace(std::cerr, "path: ", libutils::putname(path));
    make_message_table(s_tablebuf, s_msgbuf, count_lines(s_msgbuf));
    trace(std::cerr, "init_message() leaving.");
    return path;
}

char const* getmsg(e_message_t id) {
    return id < s_tablebuf.size() ? s_tablebuf[id] : "message not loaded.";
}

std::string make_title(char const* a, char const* b) {
    return std::string(a) + " - " + b;
}

void make_title2(std::string& out, char const* a, char const* b) {
    out = make_title(a, b);
}

}  // namespace zanolib
