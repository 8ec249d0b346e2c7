// SPDX-License-Identifier: MIT
// The command line: how an option's text becomes the value of its field.
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "options/optionrow.h"

namespace zanolib {

namespace {

constexpr int no_match = 0;
constexpr int flag_elements = 1;
constexpr int value_elements = 2;

template <typename T>
void set_field(option_entity_t const& row, T value) {
    *static_cast<T*>(row.target) = value;
}

/// A list of numbers with any one character between two of them.
class number_list_t {
  public:
    explicit number_list_t(char const* text) : m_next(text) {}

    /// Reads the next number, 0 when the text has none there. False behind the text's end.
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

/// Sets a flag by what stands behind its name; false when that makes it no flag.
bool set_flag(option_entity_t const& row, char const* behind) {
    bool const is_bare = behind[0] == '\0';
    bool const has_sign = (behind[0] == '+' || behind[0] == '-') && behind[1] == '\0';
    if (!is_bare && !has_sign) {
        return false;
    }
    set_field(row, behind[0] != '-');
    if (g_option.debug) {
        char const* const state = is_bare ? " is set." : behind[0] == '+' ? " is '+'." : " is '-'.";
        std::cerr << "option " << row.name << state << std::endl;
    }
    return true;
}

// The fields have 32 bits: of wider numbers the low bits count.

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
            // The bits of the float, not its value: the user default file holds them, too.
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

/// Steps over the leading options and moves what is left to the front.
void option_parse_argument(int* count, char*** arguments) {
    if (*count <= 0) {
        return;
    }
    char** const begin = *arguments;
    char** const end = begin + *count;
    char** next = begin;
    while (next != end) {
        // Behind the last element there need not be a null.
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
        char const* const behind = text + 1 + row.length;
        if (row.type == OPTION_TYPE_BOOL) {
            if (set_flag(row, behind)) {
                return flag_elements;
            }
        } else if (behind[0] == '\0') {
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
    // The user default file must not bring the help up.
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
