// SPDX-License-Identifier: MIT
// Functions that split, join and trim lines of text.
#include "utils/token.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

namespace libutils {

namespace {

void trim_end(std::string& text, std::string_view characters) {
    text.resize(text.find_last_not_of(characters) + 1);  // npos + 1 is 0
}

}  // namespace

void separate_token(std::list<std::string>& out, std::string const& text, char const* delimiters) {
    std::string_view const set(delimiters, std::strlen(delimiters) + 1);  // includes the NUL
    std::size_t start = 0;
    for (std::size_t end = text.find_first_of(set); end != std::string::npos;
         end = text.find_first_of(set, start)) {
        out.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    if (start < text.size()) {
        out.push_back(text.substr(start));
    }
}

bool separate_first_token(std::pair<std::string, std::string>& out, std::string const& text,
                          char delimiter) {
    char const* const found = std::strchr(text.c_str(), delimiter);
    if (found == nullptr) {
        return false;
    }
    auto const position = static_cast<std::size_t>(found - text.c_str());
    out = {text.substr(0, position), position < text.size() ? text.substr(position + 1) : ""};
    return true;
}

void concatenate_token(std::string& out, std::list<std::string>& tokens, char const* separator) {
    out.clear();
    char const* before = "";
    for (std::string const& token : tokens) {
        out.append(before).append(token);
        before = separator;
    }
}

void copy(std::vector<std::string>& out, std::list<std::string>& in) {
    out.assign(in.begin(), in.end());
}

void cat(std::vector<std::string>& out, std::list<std::string> const& in) {
    out.insert(out.end(), in.begin(), in.end());
}

void makecharptrarray(std::vector<char const*>& out, std::list<std::string> const& in) {
    out.clear();
    for (std::string const& text : in) {
        out.push_back(text.c_str());
    }
}

void chop(std::string& text) {
    trim_end(text, "\r\n");
}

void chop2(std::string& text) {
    trim_end(text, std::string_view(" \t\n\r\0", 5));
}

int stringcmp(char const* a, char const* b) {
    return std::strncmp(a, b, std::strlen(b));
}

std::wstring str2wstr(std::string const& text) {
    std::wstring wide(text.size(), L'\0');
    std::size_t const length = std::mbstowcs(wide.data(), text.c_str(), wide.size());
    wide.resize(length != static_cast<std::size_t>(-1) ? length : 0);
    return wide;
}

std::string wstr2str(std::wstring const& text) {
    std::string narrow(text.size() * 4, '\0');
    std::size_t const length = std::wcstombs(narrow.data(), text.c_str(), narrow.size());
    narrow.resize(length != static_cast<std::size_t>(-1) ? length : 0);
    return narrow;
}

}  // namespace libutils
