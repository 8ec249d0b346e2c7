// SPDX-License-Identifier: MIT
// The texts that depend on the language: lines of a file beside the program, by line number.
#pragma once

#include <string>

namespace zanolib {

/// A line of the message file, counted from 0.
enum e_message_t : unsigned {};

/// Loads "<prog>.<LANG>.msg", or else "<prog>.msg", from the working directory, from `dir` (which
/// ends in its separator; when it is empty, by a search along PATH) or from the site directory.
/// Sets the locale from the environment. Returns the path of the file that was loaded; without one,
/// a line on the error stream and the empty string.
std::string init_message(char const* dir, char const* prog);

/// Line `id` of the loaded file, without its line end, or "message not loaded." when there is none.
/// Valid until a further load.
char const* getmsg(e_message_t id);

/// The form of the window's title: `a`, " - ", `b`.
std::string make_title(char const* a, char const* b);
void make_title2(std::string& out, char const* a, char const* b);

}  // namespace zanolib
