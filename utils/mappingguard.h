// SPDX-License-Identifier: MIT
// Keeps the process alive when a mapped file becomes shorter or its pages can't be read.
#pragma once

namespace libutils {

/// Guards a mapping of a file against SIGBUS. `alloc_mmap_unix` does this for its file mappings;
/// call it only for your own mappings.
///
/// If a page can't be read because another program has truncated the file, or because the device
/// has failed, the page is replaced by zeros and the read continues. After a truncation, all pages
/// after the new end of the file are replaced at once. Pages that the file still has aren't copied.
/// Bytes written to a replaced page stay in memory and never reach the file.
///
/// `begin` and `size` are the address and the length, in bytes, of the mapping. `prot` is its
/// protection; the pages of zeros get the same protection. `offset` is the position in the file, in
/// bytes. `fd` must stay open until `unguard_mapping`.
///
/// The first call installs a handler for SIGBUS; see `alloc_mmap_unix` in utils/allocator.h.
///
/// Returns false if there isn't enough memory. A load with `alloc_mmap_unix` then fails. All calls,
/// also those of `alloc_mmap_unix`, must come from one thread.
bool guard_mapping(void* begin, unsigned long size, int prot, int fd, unsigned long long offset);

/// Removes the guard of the mapping at `begin`. Call it before munmap. Does nothing if there is no
/// guard.
void unguard_mapping(void const* begin);

}  // namespace libutils
