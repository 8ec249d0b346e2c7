// SPDX-License-Identifier: MIT
// The user default file: all options, one a line, in the form of the command line.
#pragma once

namespace zanolib {

/// Reads "$HOME/.<prog>" into `g_option`, or "<dir>.<prog>" when HOME isn't set, `dir` ending in
/// its separator. A missing file is silent.
void option_load_user_default(char const* prog, char const* dir);

/// Writes the options in force to the same file, replacing it. A failure is silent.
void option_save_user_default(char const* prog, char const* dir);

/// Applies the first option of each line to `g_option`; other lines are ignored. True also when
/// there is no such file, false when it is too long for a file of options (above 1 MiB).
bool option_load(char const* path);

/// Writes one line for each row of the option table. Each of the four bytes of a colour is written
/// as one raw character, which doesn't read back. True also when the file can't be created.
bool option_save(char const* path);

}  // namespace zanolib
