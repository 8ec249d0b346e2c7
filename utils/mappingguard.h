// SPDX-License-Identifier: MIT
// Keeps the process alive when a mapped file becomes shorter or its pages can't be read.
#pragma once

namespace libutils {

/// Guards a mapping of a file against SIGBUS. When a page of the mapping can't be read, because
/// another program truncated the file or because its device failed, the page is replaced by
/// zeros that have the protection `prot`, and the reader continues. After a truncation, all pages
/// past the file's new end are replaced at once. Pages that the file still has are not copied.
///
/// `begin` and `size` are the address and the length, in bytes, that mmap was called with. `offset`
/// is the position in the file, in bytes. `fd` must stay open until `unguard_mapping`.
///
/// The first call installs the process's handler of SIGBUS. The handler passes every fault at
/// another address on to the action that was in force before. A program with its own handler must
/// install it before it loads the first file, or must call the handler that it replaces.
///
/// Returns false if there is no memory for the registration. The guards aren't synchronised: all
/// calls must come from one thread.
bool guard_mapping(void* begin, unsigned long size, int prot, int fd, unsigned long long offset);

/// Ends the guard of the mapping at `begin`, which must not be unmapped yet. Does nothing if there
/// is none.
void unguard_mapping(void const* begin);

}  // namespace libutils
