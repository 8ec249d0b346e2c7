// SPDX-License-Identifier: MIT
// Replaces a file by a complete new one.
#pragma once

#include <string>
#include <string_view>

namespace libutils {

/// Writes `bytes` to a new file in the directory of `path`, and renames the new file to `path` when
/// it is complete. Other programs see the old content or the new content, never a part of it.
///
/// Replaces a regular file or a symbolic link at `path`. The target of the link and other hard
/// links to the old file keep their content. To write to the target of a link, pass
/// `follow_links(path)`. The new file gets the permissions of the regular file that it replaces,
/// otherwise 0666 without the bits of the umask. Fails with EISDIR if `path` is a directory, and
/// with EEXIST if it is anything else, for example a device.
///
/// If a regular file is replaced, `bytes` are synced to the device before the rename, so that a
/// power failure doesn't leave an empty file. Otherwise nothing is synced. The directory isn't
/// synced in any case.
///
/// Returns false and sets errno on failure. `path` is then unchanged, and the new file is removed.
/// Prints nothing and records no reason; utils/diagnostics.h has an example with the reason.
///
/// SIGHUP, SIGINT and SIGTERM are blocked in the calling thread during the call, so that they don't
/// leave the new file. Two threads must not call the function at the same time, because both use
/// one counter for the names of new files.
bool replace_file(std::string const& path, std::string_view bytes);

/// Returns the target of the symbolic link at `path`, or `path` if it isn't a link. A relative
/// target is joined to the directory of its link. Follows a chain of at most 40 links and returns
/// the last target, even if it is a link. The target doesn't have to exist.
std::string follow_links(std::string path);

}  // namespace libutils
