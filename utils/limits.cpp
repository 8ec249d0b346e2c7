// SPDX-License-Identifier: MIT
// Prints the error line of an exceeded limit.
#include "utils/limits.h"

#include "utils/diagnostics.h"

namespace libutils {

bool report_limit(limit_t const& limit, char const* file) {
    reject("exceeds limit ", limit.name, " (", limit.value, " ", limit.unit, ")");
    return report_error(putname(file), file != nullptr ? ": " : "", "exceeds limit ", limit.name,
                        " (", limit.value, " ", limit.unit, ").");
}

}  // namespace libutils
