// SPDX-License-Identifier: MIT
// Type names to type numbers.
#include "geometry/mtype.h"

#include <cstring>

namespace libgr {

e_mtype_t get_mtype(char const* name) {
    for (mtype_name_t const& row : mtype_table)
        if (row.value != MTYPE_END && std::strncmp(row.name, name, MTYPE_NAME_LENGTH) == 0)
            return row.value;
    return MTYPE_END;
}

}  // namespace libgr
