// SPDX-License-Identifier: MIT
// Makes the manual page: a template with the option table in it.
#include <array>
#include <bit>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "options/optionrow.h"

namespace {

constexpr char const* placeholder = "@OPTIONS@\n";

/// What stands behind an option's name, by `e_option_type_t`.
constexpr std::array<char const*, 7> value_texts = {
    "[+|\\-]",
    " \\fIN\\fR",
    " \\fIBITS\\fR",
    " \\fIN\\fR",
    " \\fIFLOAT\\fR",
    " \\fIX\\fRx\\fIY\\fR",
    " \\fIR\\fR,\\fIG\\fR,\\fIB\\fR,\\fIA\\fR",
};

std::string escaped(std::string const& text) {
    std::string out;
    for (char const c : text) {
        if (c == '-') {
            out += "\\-";
        } else if (c == '\'') {
            out += "\\(aq";
        } else {
            out += c;
        }
    }
    return out;
}

void put_built_in(std::ostream& out, zanolib::option_entity_t const& row) {
    using zanolib::option_field;
    switch (row.type) {
        case zanolib::OPTION_TYPE_BOOL:
            out << (option_field<bool>(row) ? "on" : "off");
            break;
        case zanolib::OPTION_TYPE_ENUM:
        case zanolib::OPTION_TYPE_ULONG:
            out << option_field<std::uint32_t>(row);
            break;
        case zanolib::OPTION_TYPE_PERCENT:
            out << option_field<std::uint32_t>(row) << ", the float " << option_field<float>(row);
            break;
        case zanolib::OPTION_TYPE_FLOAT:
            out << option_field<float>(row);
            break;
        case zanolib::OPTION_TYPE_PAIR: {
            auto const size = option_field<libgr::direction2l_t>(row);
            out << size.x << "x" << size.y;
            break;
        }
        case zanolib::OPTION_TYPE_COLOR: {
            auto const color = option_field<libgr::color3aub_t>(row);
            out << int{color.r} << "," << int{color.g} << "," << int{color.b} << ","
                << int{color.a};
            break;
        }
    }
}

std::string option_paragraphs() {
    std::ostringstream out;
    for (zanolib::option_entity_t const& row : zanolib::option_entity_table) {
        out << ".TP\n\\fB\\-" << row.name << "\\fR" << value_texts[row.type] << "\n"
            << escaped(row.comment) << "\nBuilt in: ";
        put_built_in(out, row);
        out << ".\n";
    }
    return out.str();
}

/// False when the file can't be read.
bool read_text(std::string& text, char const* path) {
    std::ifstream const in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    text = content.str();
    return in.is_open();
}

}  // namespace

/// Writes the page to standard output, or compares it with a page that was made before: status 1
/// when they differ, 2 when a file is missing or the template has no place for the options.
int main(int argc, char** argv) {
    std::string page;
    if (argc < 2 || !read_text(page, argv[1]) || page.find(placeholder) == std::string::npos) {
        std::cerr << "usage: zv_manpage template [page to compare]" << std::endl;
        return 2;
    }
    page.replace(page.find(placeholder), std::string(placeholder).size(), option_paragraphs());
    if (argc < 3) {
        std::cout << page << std::flush;
        return 0;
    }
    std::string present;
    if (!read_text(present, argv[2])) {
        return 2;
    }
    if (present != page) {
        std::cerr << argv[2]
                  << ": not what its template and the option table make; make it again with "
                  << argv[0] << " " << argv[1] << " > " << argv[2] << std::endl;
        return 1;
    }
    return 0;
}
