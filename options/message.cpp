// SPDX-License-Identifier: MIT
// The search for the message file, and its lines.
#include "options/message.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "options/option.h"
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

/// Ends each line with a NUL, in place of CR, LF or CR LF. A lone CR ends a line that `lines` does
/// not count, so that the last lines are then missing.
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

/// Tries the working directory, then the program's directory or, when it is empty, the search along
/// PATH, then the site directory. True with the file's path; else `path` is the one last tried.
bool load_from_places(std::string& path, std::string const& name, std::string const& dir) {
    path = name;
    if (load_message(s_msgbuf, path.c_str())) {
        return true;
    }
    if (dir.empty()) {
        path = libutils::searchpath(name, nullptr);
        if (g_option.debug) {
            std::cout << libutils::putname(dir) << ": dirpath." << std::endl;
        }
    } else {
        path = dir + name;
    }
    if (load_message(s_msgbuf, path.c_str())) {
        return true;
    }
    if (g_option.debug) {
        std::cout << libutils::putname(path) << ": warning can't load message file." << std::endl;
    }
    path = site_directory + name;
    return load_message(s_msgbuf, path.c_str());
}

}  // namespace

std::string init_message(char const* dir, char const* prog) {
    std::setlocale(LC_ALL, "");
    char const* const lang = std::getenv("LANG");
    std::string const suffix = lang != nullptr ? std::string(".") + lang : "";
    if (g_option.debug) {
        std::cerr << "init_message() entering." << std::endl;
    }
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
    if (g_option.debug) {
        std::cerr << "path: " << libutils::putname(path) << std::endl;
    }
    make_message_table(s_tablebuf, s_msgbuf, count_lines(s_msgbuf));
    if (g_option.debug) {
        std::cerr << "init_message() leaving." << std::endl;
    }
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
