// SPDX-License-Identifier: MIT
// Reads and writes the user default file.
#include "options/userdefault.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <list>
#include <sstream>
#include <string>
#include <vector>

#include "options/optionrow.h"
#include "options/trace.h"
#include "utils/diagnostics.h"
#include "utils/replacefile.h"
#include "utils/smallfile.h"
#include "utils/token.h"

namespace zanolib {

namespace {

std::string user_default_path(char const* prog, char const* dir) {
    char const* const home = std::getenv("HOME");
    std::string path = home != nullptr ? home : dir;
    if (!path.empty() && path.back() != '/' && path.back() != '\\') {
        path += '/';
    }
    return path + "." + prog;
}

/// Returns true if `words` is the colour option with a value that doesn't start with a number.
/// `option_save` writes colours in this form.
bool is_saved_color(std::vector<char const*> const& words) {
    auto const is_named = [&](option_entity_t const& row) {
        return row.type == OPTION_TYPE_COLOR && words[0][0] == '-' &&
               strcasecmp(words[0] + 1, row.name) == 0;
    };
    if (words.size() < 2 ||
        std::none_of(option_entity_table.begin(), option_entity_table.end(), is_named)) {
        return false;
    }
    char* end = nullptr;
    std::strtol(words[1], &end, 0);
    return end == words[1];
}

void apply_line(std::string line) {
    libutils::chop(line);
    std::list<std::string> tokens;
    libutils::separate_token(tokens, line, " \t");
    if (tokens.empty()) {
        return;
    }
    std::vector<char const*> arguments;
    libutils::makecharptrarray(arguments, tokens);
    if (is_saved_color(arguments)) {
        // A NUL or a blank among the four bytes cuts the value, but all four must become 0.
        arguments[1] = "0,0,0,0";
    }
    arguments.push_back(nullptr);  // in place of the value, for a line with only a name
    option_each_analyze(arguments.data());
}

/// Writes the text after the name: a sign for a flag, otherwise a blank and the value.
void put_value(std::ostream& out, option_entity_t const& row) {
    switch (row.type) {
        case OPTION_TYPE_BOOL:
            out << (option_field<bool>(row) ? "+" : "-");
            break;
        case OPTION_TYPE_ENUM:
            out << " " << option_field<std::int32_t>(row);
            break;
        case OPTION_TYPE_PERCENT:
        case OPTION_TYPE_ULONG:
            out << " " << option_field<std::uint32_t>(row);
            break;
        case OPTION_TYPE_FLOAT:
            out << " " << option_field<float>(row);
            break;
        case OPTION_TYPE_PAIR: {
            auto const size = option_field<libgr::direction2l_t>(row);
            out << " " << size.x << "x" << size.y;
            break;
        }
        case OPTION_TYPE_COLOR: {
            // Raw characters, not numbers. Reading them back gives 0,0,0,0.
            auto const color = option_field<libgr::color3aub_t>(row);
            out << " " << color.r << "," << color.g << "," << color.b << "," << color.a;
            break;
        }
    }
}

}  // namespace

void option_load_user_default(char const* prog, char const* dir) {
    option_init_once();
    std::string const path = user_default_path(prog, dir);
    report("load user default: ", libutils::putname(path));
    option_load(path.c_str());
}

void option_save_user_default(char const* prog, char const* dir) {
    trace(std::cout, "prog: ", libutils::putname(prog), ", dir: ", libutils::putname(dir));
    option_init_once();
    std::string const path = user_default_path(prog, dir);
    report("save user default: ", libutils::putname(path));
    option_save(path.c_str());
}

bool option_load(char const* path) {
    std::vector<char> buffer;
    libutils::small_file_t const outcome = libutils::read_small_file(buffer, path);
    if (outcome != libutils::small_file_t::READ) {
        return outcome != libutils::small_file_t::TOO_LONG;
    }
    std::istringstream file(std::string(buffer.begin(), buffer.end()));
    for (std::string line; std::getline(file, line);) {
        apply_line(line);
    }
    return true;
}

bool option_save(char const* path) {
    std::ostringstream text;
    for (option_entity_t const& row : option_entity_table) {
        text << "-" << row.name;
        put_value(text, row);
        text << "\n";
    }
    // The text is incomplete if the stream ran out of memory. Links are kept, since some users keep
    // the files of their home directory elsewhere.
    if (text) {
        libutils::replace_file(libutils::follow_links(path), text.view());
    }
    return true;
}

}  // namespace zanolib
