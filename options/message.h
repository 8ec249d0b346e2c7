// SPDX-License-Identifier: MIT
// Texts in the user's language, from a message file.
#pragma once

#include <string>

/// Loads "viewer.<LANG>.msg" or "viewer.msg", and reads its first line:
///
/// ```cpp
/// std::string const file = zanolib::init_message("/usr/bin/", "viewer");
/// char const* const name = zanolib::getmsg(zanolib::e_message_t{0});
/// std::string const title = zanolib::make_title("a.jpg", name);  // "a.jpg - <name>"
/// ```
///
/// A message file is plain text in UTF-8, with one message per line and at most 1 MiB. Lines end in
/// LF or CR LF. The last line needs a line end, too. Everything here must be called from one
/// thread.
namespace zanolib {

/// The number of a line in the message file. The first line has the number 0.
enum e_message_t : unsigned {};

/// Loads a message file. Sets the locale of the process from the environment.
///
/// Searches for "<prog>.<LANG>.msg", with the value of the variable LANG, and then for
/// "<prog>.msg". Each is searched for in the working directory, in `dir` and in `site_directory`
/// (options/option.h). `dir` ends in a slash. If it is empty, the directories of PATH take its
/// place, between the other two.
///
/// Returns the path of the file. If there is none, prints "<path>: can't load message file." on the
/// error stream, with the last path that it tried, and returns "", and `getmsg` has no texts, not
/// even of a file loaded earlier.
std::string init_message(char const* dir, char const* prog);

/// Returns a line of the loaded file without its line end, or "message not loaded." if there is no
/// such line or no file. The text is valid until the next call of `init_message`.
char const* getmsg(e_message_t id);

/// Returns the title of a window: `a`, " - " and `b`.
std::string make_title(char const* a, char const* b);
/// Stores the same title in `out`.
void make_title2(std::string& out, char const* a, char const* b);

}  // namespace zanolib
