// SPDX-License-Identifier: MIT
// The instances of the arrays of bytes, which all images and parsed files use.
#include "utils/ofsvector.h"

namespace libutils {

void* byte_address(void* storage, unsigned long position) {
    return storage != nullptr ? static_cast<unsigned char*>(storage) + position : nullptr;
}

template class refvector2<unsigned char, alloc_mmap_unix>;
template class ofsvector<unsigned char, alloc_mmap_unix>;

}  // namespace libutils
