// SPDX-License-Identifier: MIT
// What the folder's own files do with one option.
#pragma once

#include <cstring>

#include "options/option.h"

namespace zanolib {

/// Applies the option `arguments[0]` with its value `arguments[1]`, which is null when there is
/// none; the field then stays as it was. Returns how many elements belong to the option: 0 when it
/// is none, 1 for a flag, else 2. The table's lengths must be filled.
int option_each_analyze(char const** arguments);

/// Fills the lengths of all rows where nobody has yet.
void option_init_once();

/// The field of a row, read as a value of its type.
template <typename T>
T option_field(option_entity_t const& row) {
    T value;
    std::memcpy(&value, row.target, sizeof value);
    return value;
}

}  // namespace zanolib
