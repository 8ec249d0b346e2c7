// SPDX-License-Identifier: MIT
// The hook that failure paths call and the small stream helpers that lines are written with.
#include "utils/diagnostics.h"

namespace libutils {

void error() {}

std::ostream& operator<<(std::ostream& out, _putspace const& space) {
    return out << putcn(' ', space.n);
}

std::ostream& operator<<(std::ostream& out, _putcn const& run) {
    for (unsigned long i = 0; i < run.n; ++i) {
        out.put(run.c);
    }
    return out;
}

std::ostream& operator<<(std::ostream& out, _putn const& bytes) {
    for (unsigned long i = 0; i < bytes.n; ++i) {
        out.put(bytes.text[i]);
    }
    return out;
}

}  // namespace libutils
