// SPDX-License-Identifier: MIT
// Writes the texts that list the options: the manual page and the completions of the shells.
#include <array>
#include <cctype>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "options/optionrow.h"

namespace {

using row_t = zanolib::option_entity_t;

/// The form of an option's value, by `e_option_type_t`. A capital letter is a placeholder.
constexpr std::array<char const*, 7> value_forms = {"",      "N",   "BITS",   "N",
                                                    "FLOAT", "XxY", "R,G,B,A"};

bool is_flag(row_t const& row) {
    return row.type == zanolib::OPTION_TYPE_BOOL;
}

/// Returns the built-in value in the form of the command line, or "on" or "off" for a flag.
std::string built_in(row_t const& row) {
    using zanolib::option_field;
    std::ostringstream out;
    switch (row.type) {
        case zanolib::OPTION_TYPE_BOOL:
            out << (option_field<bool>(row) ? "on" : "off");
            break;
        case zanolib::OPTION_TYPE_ENUM:
        case zanolib::OPTION_TYPE_ULONG:
        case zanolib::OPTION_TYPE_PERCENT:
            out << option_field<std::uint32_t>(row);
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
    return out.str();
}

/// Returns `text` with `with` in place of each `character`.
std::string replaced(std::string const& text, char character, char const* with) {
    std::string out;
    for (char const c : text) {
        out += c == character ? with : std::string(1, c);
    }
    return out;
}

/// Returns a value's form in roff(7), its capital letters in italics.
std::string roff_form(std::string const& form) {
    std::string out;
    bool is_italic = false;
    for (char const c : form + "\n") {
        bool const is_capital = std::isupper(static_cast<unsigned char>(c)) != 0;
        if (is_capital != is_italic) {
            out += is_capital ? "\\fI" : "\\fR";
            is_italic = is_capital;
        }
        out += c;
    }
    return out;
}

void put_man(std::ostream& out, row_t const& row) {
    out << ".TP\n\\fB\\-" << row.name << "\\fR";
    out << (is_flag(row) ? std::string("[+|\\-]\n")
                         : std::string(" ").append(roff_form(value_forms[row.type])));
    out << replaced(replaced(row.comment, '-', "\\-"), '\'', "\\(aq") << "\n";
    out << "Built in: " << built_in(row);
    if (row.type == zanolib::OPTION_TYPE_PERCENT) {
        out << ", the float " << zanolib::option_field<float>(row);
    }
    out << ".\n";
}

// The completions offer an option's built-in value, which shows the form of its values. They offer
// a flag with and without "-" after its name.

void put_bash(std::ostream& out, row_t const& row) {
    out << "        [-" << row.name << "]=" << (is_flag(row) ? "" : built_in(row)) << "\n";
}

void put_zsh(std::ostream& out, row_t const& row) {
    std::string const comment =
        std::string("[").append(replaced(replaced(row.comment, ':', "\\:"), '\'', "'\\''")) + "]";
    std::string const name = std::string("-") + row.name;
    if (is_flag(row)) {
        out << "    '(" << name << "-)" << name << comment << "' \\\n";
        out << "    '(" << name << ")" << name << "\\-[the same, switched off]' \\\n";
    } else {
        out << "    '" << name << comment << ":" << value_forms[row.type] << ":(" << built_in(row)
            << ")' \\\n";
    }
}

void put_fish(std::ostream& out, row_t const& row) {
    std::string const description = " -d '" + replaced(row.comment, '\'', "\\'") + "'\n";
    std::string const complete =
        std::string("complete -c zanoview3 -n __zanoview3_no_file_yet -o ") + row.name;
    if (is_flag(row)) {
        out << complete << description << complete << "- -d 'the same, switched off'\n";
    } else {
        out << complete << " -x -a '" << built_in(row) << "'" << description;
    }
}

struct kind_t {
    char const* name;
    void (*put)(std::ostream&, row_t const&);
};

constexpr std::array kinds = {kind_t{"man", put_man}, kind_t{"bash", put_bash},
                              kind_t{"zsh", put_zsh}, kind_t{"fish", put_fish}};

kind_t const* find_kind(std::string const& name) {
    for (kind_t const& kind : kinds) {
        if (kind.name == name) {
            return &kind;
        }
    }
    return nullptr;
}

/// Returns false if the file can't be read.
bool read_text(std::string& text, char const* path) {
    std::ifstream const in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    text = content.str();
    return in.is_open();
}

/// Replaces the first `mark`. Returns false if `text` has none.
bool fill_in(std::string& text, std::string const& mark, std::string const& content) {
    std::size_t const at = text.find(mark);
    if (at == std::string::npos) {
        return false;
    }
    text.replace(at, mark.size(), content);
    return true;
}

}  // namespace

/// Writes the text to standard output, or compares it with an earlier one. Returns 1 if they
/// differ, and 2 if a file is missing or the template has no place for the options. The program's
/// version takes the place of "@VERSION@".
int main(int argc, char** argv) {
    std::string text;
    kind_t const* const kind = argc > 2 ? find_kind(argv[1]) : nullptr;
    std::ostringstream rows;
    if (kind != nullptr) {
        for (row_t const& row : zanolib::option_entity_table) {
            kind->put(rows, row);
        }
    }
    if (kind == nullptr || !read_text(text, argv[2]) || !fill_in(text, "@OPTIONS@\n", rows.str())) {
        std::cerr << "usage: zv_optiontexts man|bash|zsh|fish template [text to compare]\n";
        return 2;
    }
    fill_in(text, "@VERSION@", ZV_VERSION);
    if (argc < 4) {
        std::cout << text << std::flush;
        return 0;
    }
    std::string present;
    if (!read_text(present, argv[3])) {
        std::cerr << argv[3] << ": can't be read\n";
        return 2;
    }
    if (present != text) {
        std::cerr << argv[3] << ": is not up to date with the option table; to write it again, run "
                  << argv[0] << " " << argv[1] << " " << argv[2] << " > " << argv[3] << "\n";
        return 1;
    }
    return 0;
}
