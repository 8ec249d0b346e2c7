// SPDX-License-Identifier: MIT
// Reads and writes the user default file, a text file with one option per line.
#pragma once

/// Its lines have this form (see e_option_type_t in options/option.h):
///
///     -verbose-
///     -winsize 800x600
///
/// Lines that don't start with a known option, and options without their value, are ignored.
/// Exactly one blank or tab precedes the value. After two or more, the value is read as 0.
namespace zanolib {

/// Reads the user default file into `g_option`. The file is "$HOME/.<prog>", or "<dir>/.<prog>" if
/// HOME isn't set. If it can't be read, `g_option` doesn't change; see `option_load`.
void option_load_user_default(char const* prog, char const* dir);

/// Writes the settings to the same file; see `option_save`.
void option_save_user_default(char const* prog, char const* dir);

/// Applies the options of a file to `g_option`. Call `option_init` first.
///
/// Returns false, without a change of `g_option`, and prints the line of the limit `small-file`
/// (utils/limits.h) if the file has more than 1 MiB. If the file can't be read, returns true and
/// prints nothing, because most users have no such file.
bool option_load(char const* path);

/// Writes one line for each row of the option table. Replaces an old file or, if `path` is a
/// symbolic link, the file to which it leads.
///
/// Always returns true. On failure, prints nothing and leaves an old file unchanged.
///
/// The four bytes of a colour are written as raw characters, which `option_load` reads as 0,0,0,0.
/// Existing files depend on this form.
bool option_save(char const* path);

}  // namespace zanolib
