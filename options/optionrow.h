// SPDX-License-Identifier: MIT
// Parses, reads and prepares single rows of the option table; private to options/.
#pragma once

#include <cstring>

#include "options/option.h"

namespace zanolib {

/// Applies the option `arguments[0]` with the value `arguments[1]`. Without a value, which is then
/// a null pointer, the setting doesn't change.
///
/// Returns the number of elements that the option takes: 1 for a flag, 2 for other options, and 0
/// if the text is not an option. Call `option_init` or `option_init_once` first.
int option_each_analyze(char const** arguments);

/// Calls `option_init` if no call has been made yet.
void option_init_once();

/// Returns the setting of a row. `T` is the C++ type of its field in option_t.
template <typename T>
T option_field(option_entity_t const& row) {
    T value;
    std::memcpy(&value, row.target, sizeof value);
    return value;
}

}  // namespace zanolib
