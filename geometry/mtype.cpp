// SPDX-License-Identifier: MIT
// The search for a type by its name.
#include "geometry/mtype.h"

#include <cstring>

namespace libgr {

e_mtype_t get_mtype(char const* name) {
    for (mtype_name_t const& row : mtype_table) {
        if (row.value != MTYPE_END && std::strncmp(row.name, name, max_mtype_name_length) == 0) {
            return row.value;
        }
    }
    return MTYPE_END;
}

}  // namespace libgr
