// SPDX-License-Identifier: MIT
// Reads and writes the user default file, which has one option a line.
#pragma once

namespace zanolib {

/// Reads the user default file into `g_option`. The file is "$HOME/.<prog>", or "<dir>/.<prog>" if
/// HOME isn't set. Nothing is printed if there is no file.
void option_load_user_default(char const* prog, char const* dir);

/// Replaces the same file with the current settings. Nothing is printed on failure. A symbolic link
/// is kept, and the file that it leads to is replaced.
void option_save_user_default(char const* prog, char const* dir);

/// Applies the first option of each line to `g_option`. Ignores lines without an option. Returns
/// false only if the file has more than 1 MiB, and true if it can't be opened.
bool option_load(char const* path);

/// Writes one line for each row of the option table. Always returns true, also on failure.
///
/// The four bytes of a colour are written as raw characters, which `option_load` reads as 0,0,0,0.
/// Existing files depend on this form.
bool option_save(char const* path);

}  // namespace zanolib
