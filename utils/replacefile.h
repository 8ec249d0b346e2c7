// SPDX-License-Identifier: MIT
// Writing a file as a whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace libutils {

/// Writes `bytes` to a new file in the directory of `path` and renames that file to `path` when it
/// is complete.
///
/// A regular file or a symbolic link at `path` is replaced. The target of the link and other hard
/// links to the old file keep their content. The new file has the permissions of the regular file
/// that it replaces, otherwise those that the umask leaves. Anything else at `path`, such as a
/// directory or a device, is an error.
///
/// Returns false and sets errno on failure. `path` is then unchanged and the new file is removed.
/// SIGHUP, SIGINT and SIGTERM are delivered after the function has finished or cleaned up.
bool replace_file(std::string const& path, std::string_view bytes);

/// Returns the path that is reached by following the symbolic links at `path`. The target need not
/// exist. Following ends after 40 links.
std::string follow_links(std::string path);

}  // namespace libutils
