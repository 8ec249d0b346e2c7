// SPDX-License-Identifier: MIT
// Parses options and their values.
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "options/optionrow.h"
#include "options/trace.h"

namespace zanolib {

namespace {

constexpr int no_match = 0;
constexpr int flag_elements = 1;
constexpr int value_elements = 2;

template <typename T>
void set_field(option_entity_t const& row, T value) {
    *static_cast<T*>(row.target) = value;
}

/// Reads a list of numbers that are separated by one character each, which can be any.
class number_list_t {
  public:
    explicit number_list_t(char const* text) : m_next(text) {}

    /// Reads the next number, or 0 if the text has none at this place. Returns false at the text's
    /// end.
    bool read(long& number) {
        if (!m_is_first) {
            if (m_next[0] == '\0') {
                return false;
            }
            ++m_next;
        }
        m_is_first = false;
        char* end = nullptr;
        number = std::strtol(m_next, &end, 0);
        m_next = end;
        return true;
    }

  private:
    char const* m_next;
    bool m_is_first = true;
};

/// Sets a flag by the text after its name. Returns false if the text is not "", "+" or "-".
bool set_flag(option_entity_t const& row, char const* suffix) {
    bool const is_bare = suffix[0] == '\0';
    bool const has_sign = (suffix[0] == '+' || suffix[0] == '-') && suffix[1] == '\0';
    if (!is_bare && !has_sign) {
        return false;
    }
    set_field(row, suffix[0] != '-');
    char const* const state = is_bare ? " is set." : suffix[0] == '+' ? " is '+'." : " is '-'.";
    trace(std::cerr, "option ", row.name, state);
    return true;
}

// The fields have 32 bits. Wider numbers are cut to their low bits.

void set_pair(option_entity_t const& row, char const* text) {
    number_list_t numbers(text);
    auto* const size = static_cast<libgr::direction2l_t*>(row.target);
    long number = 0;
    for (std::int32_t* const field : {&size->x, &size->y}) {
        if (!numbers.read(number)) {
            return;
        }
        auto const value = static_cast<std::int32_t>(number);
        if (number >= 0 && value >= 0) {
            *field = value;
        }
    }
}

void set_color(option_entity_t const& row, char const* text) {
    number_list_t numbers(text);
    auto* const color = static_cast<libgr::color3aub_t*>(row.target);
    long number = 0;
    for (unsigned char* const field : {&color->r, &color->g, &color->b, &color->a}) {
        if (!numbers.read(number)) {
            return;
        }
        *field = static_cast<unsigned char>(number);
    }
}

void set_value(option_entity_t const& row, char const* text) {
    switch (row.type) {
        case OPTION_TYPE_BOOL:
            break;
        case OPTION_TYPE_ENUM:
            set_field(row, static_cast<std::uint32_t>(std::strtol(text, nullptr, 0)));
            break;
        case OPTION_TYPE_PERCENT: {
            // The number is the float's bits. Existing user default files depend on this form.
            auto const bits = static_cast<std::uint32_t>(std::strtoul(text, nullptr, 0));
            std::memcpy(row.target, &bits, sizeof bits);
            break;
        }
        case OPTION_TYPE_ULONG:
            if (auto const value = static_cast<std::uint32_t>(std::strtoul(text, nullptr, 0));
                value != 0) {
                set_field(row, value);
            }
            break;
        case OPTION_TYPE_FLOAT:
            set_field(row, std::strtof(text, nullptr));
            break;
        case OPTION_TYPE_PAIR:
            set_pair(row, text);
            break;
        case OPTION_TYPE_COLOR:
            set_color(row, text);
            break;
    }
}

/// Applies the leading options, and moves the elements after them to the front.
void option_parse_argument(int* count, char*** arguments) {
    if (*count <= 0) {
        return;
    }
    char** const begin = *arguments;
    char** const end = begin + *count;
    char** next = begin;
    while (next != end) {
        // The array need not end in a null pointer.
        char const* option[] = {next[0], end - next > 1 ? next[1] : nullptr};
        int const used = option_each_analyze(option);
        if (used == no_match) {
            break;
        }
        next += std::min<std::ptrdiff_t>(used, end - next);
    }
    *count = static_cast<int>(end - next);
    if (next != begin) {
        std::move(next, end, begin);
    }
}

}  // namespace

int option_each_analyze(char const** arguments) {
    char const* const text = arguments[0];
    if (text == nullptr || text[0] != '-') {
        return no_match;
    }
    for (option_entity_t const& row : option_entity_table) {
        if (strncasecmp(text + 1, row.name, row.length) != 0) {
            continue;
        }
        char const* const suffix = text + 1 + row.length;
        if (row.type == OPTION_TYPE_BOOL) {
            if (set_flag(row, suffix)) {
                return flag_elements;
            }
        } else if (suffix[0] == '\0') {
            if (arguments[1] != nullptr) {
                set_value(row, arguments[1]);
            }
            return value_elements;
        }
    }
    return no_match;
}

void option_enter_argument(int* argc, char*** argv) {
    option_init_once();
    // Only the command line can ask for the help, not the user default file.
    g_option.h = false;
    int count = *argc - 1;
    char** arguments = *argv + 1;
    option_parse_argument(&count, &arguments);
    *argc = count + 1;
    if (g_option.h) {
        option_list((*argv)[0]);
        std::exit(EXIT_SUCCESS);
    }
}

}  // namespace zanolib
