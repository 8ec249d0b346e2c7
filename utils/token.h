// SPDX-License-Identifier: MIT
// Functions that split, join and trim lines of text.
#pragma once

#include <list>
#include <string>
#include <utility>
#include <vector>

namespace libutils {

/// Appends the pieces of `text` between delimiters, empty ones too, to `out`; an empty last piece
/// is left out. Any character of `delimiters` delimits, and so does a NUL byte.
void separate_token(std::list<std::string>& out, std::string const& text, char const* delimiters);

/// Splits at the first `delimiter`. False, with `out` as it was, when there is none.
bool separate_first_token(std::pair<std::string, std::string>& out, std::string const& text,
                          char delimiter);

/// `out` becomes the tokens with `separator` between them.
void concatenate_token(std::string& out, std::list<std::string>& tokens, char const* separator);

/// `out` becomes the list's strings.
void copy(std::vector<std::string>& out, std::list<std::string>& in);

/// Appends the list's strings to `out`.
void cat(std::vector<std::string>& out, std::list<std::string> const& in);

/// `out` becomes the C pointers of the list's strings, which stay the list's; there is no null at
/// the end.
void makecharptrarray(std::vector<char const*>& out, std::list<std::string> const& in);

/// Removes CR and LF from the end.
void chop(std::string& text);

/// Removes blank, tab, LF, CR and NUL from the end.
void chop2(std::string& text);

/// 0 when `a` begins with `b`, else as strncmp over the length of `b`.
int stringcmp(char const* a, char const* b);

/// The text as wide characters of the locale that is set, or an empty one when it has bytes that
/// are no character.
std::wstring str2wstr(std::string const& text);

/// The text in the bytes of the locale that is set, or an empty one when it has characters that the
/// locale lacks.
std::string wstr2str(std::wstring const& text);

}  // namespace libutils
