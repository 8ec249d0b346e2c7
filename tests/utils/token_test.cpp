// SPDX-License-Identifier: MIT
// Tests of the token and line functions.
#include "utils/token.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using namespace libutils;
using list_t = std::list<std::string>;

TEST(token, separates_at_every_delimiter) {
    struct {
        std::string text;
        char const* delimiters;
        list_t tokens;
    } const rows[] = {
        {"a  b", " \t", {"a", "", "b"}},
        {"", " ", {}},
        {",a,", ",", {"", "a"}},
        {",,", ",", {"", ""}},
        {"a b", "", {"a b"}},
        {std::string("a\0b", 3), ",", {"a", "b"}},
    };
    for (auto const& row : rows) {
        list_t out = {"first"};
        separate_token(out, row.text, row.delimiters);
        list_t expected = row.tokens;
        expected.emplace_front("first");
        EXPECT_EQ(out, expected) << row.text;
    }
    std::pair<std::string, std::string> pair = {"k=v=w", "old"};
    EXPECT_FALSE(separate_first_token(pair, "kv", '='));
    EXPECT_EQ(pair.second, "old");
    EXPECT_TRUE(separate_first_token(pair, pair.first, '='));
    EXPECT_EQ(pair, std::pair(std::string("k"), std::string("v=w")));
}

TEST(token, moves_between_lists_and_vectors) {
    list_t list = {"a", "b"};
    std::vector<std::string> strings = {"x", "y", "z"};
    cat(strings, list);
    EXPECT_EQ(strings, (std::vector<std::string>{"x", "y", "z", "a", "b"}));
    copy(strings, list);
    EXPECT_EQ(strings, (std::vector<std::string>{"a", "b"}));
    std::vector<char const*> pointers(5);
    makecharptrarray(pointers, list);
    EXPECT_EQ(pointers, (std::vector<char const*>{list.front().c_str(), list.back().c_str()}));
    std::string joined = "old";
    concatenate_token(joined, list, ", ");
    EXPECT_EQ(joined, "a, b");
}

TEST(token, trims_ends_only) {
    struct {
        std::string text, chopped, chopped2;
    } const rows[] = {
        {"\r\n\r", "", ""},
        {" a \t\r\n", " a \t", " a"},
        {std::string("a\r\nb\0 ", 6), std::string("a\r\nb\0 ", 6), "a\r\nb"},
    };
    for (auto row : rows) {
        std::string second = row.text;
        chop(row.text);
        chop2(second);
        EXPECT_EQ(row.text, row.chopped);
        EXPECT_EQ(second, row.chopped2);
    }
    EXPECT_EQ(stringcmp("-winsize", "-win"), 0);
    EXPECT_LT(stringcmp("-wi", "-win"), 0);
}

TEST(token, wide_text_follows_the_locale) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    EXPECT_EQ(str2wstr("\xC3\xA4x\xF0\x9F\x90\x88"), L"\u00E4x\U0001F408");
    EXPECT_EQ(wstr2str(L"\u00E4x\U0001F408"), "\xC3\xA4x\xF0\x9F\x90\x88");
    EXPECT_EQ(str2wstr("a\xFF"), L"");
    EXPECT_EQ(wstr2str({L'a', static_cast<wchar_t>(0xD800)}), "");
}

}  // namespace
