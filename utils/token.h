// SPDX-License-Identifier: MIT
// Functions that split, join and trim lines of text.
#pragma once

#include <list>
#include <string>
#include <utility>
#include <vector>

namespace libutils {

/// Splits `text` at each character that is in `delimiters`, and at each NUL. Appends the pieces to
/// `out`. Empty pieces are kept, but not an empty last piece: "a,,b," gives "a", "" and "b".
void separate_token(std::list<std::string>& out, std::string const& text, char const* delimiters);

/// Sets `out` to the text before and the text after the first `delimiter`: "k" and "a=b" for
/// "k=a=b" and '='. Returns false if `text` doesn't contain the delimiter. `out` is then unchanged.
bool separate_first_token(std::pair<std::string, std::string>& out, std::string const& text,
                          char delimiter);

/// Sets `out` to one text: all tokens with `separator` between each two. `tokens` doesn't change.
void concatenate_token(std::string& out, std::list<std::string>& tokens, char const* separator);

/// Replaces the strings of `out` by copies of the strings of `in`, which doesn't change.
void copy(std::vector<std::string>& out, std::list<std::string>& in);

/// Appends copies of the strings of `in` to `out`.
void cat(std::vector<std::string>& out, std::list<std::string> const& in);

/// Sets `out` to the addresses of the strings of `in`, without a null pointer at the end. They are
/// valid until a string changes or is destroyed.
void makecharptrarray(std::vector<char const*>& out, std::list<std::string> const& in);

/// Removes all CR and LF at the end.
void chop(std::string& text);

/// Removes all blanks, tabs, LF, CR and NUL at the end.
void chop2(std::string& text);

/// Returns 0 if `a` begins with `b`, otherwise the result of strncmp for the length of `b`.
int stringcmp(char const* a, char const* b);

/// Converts a text from the current locale (setlocale) to wide characters. Returns an empty text if
/// it isn't valid in the locale.
std::wstring str2wstr(std::string const& text);

/// Converts wide characters to the current locale. Returns an empty text if the locale doesn't have
/// one of the characters.
std::string wstr2str(std::wstring const& text);

}  // namespace libutils
