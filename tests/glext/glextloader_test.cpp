// SPDX-License-Identifier: MIT
// Tests of the loader with a driver of their own, which replaces the system's library.
#include "glext/glextloader.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using names_t = std::vector<std::string>;

std::pair<char const*, std::int32_t*> const flags[] = {
#include "flags.inc"
};

// The driver. The word "null" in the list of extensions is a null pointer in glGetStringi.
char const* s_version;
char const* s_extensions;
names_t s_extension_names;
names_t s_resolved;  // the arguments of __gl_GetProcAddress
int s_reads;         // of the list of extensions, or of its elements

char const* get_string(GLenum name) {
    s_reads += name == GL_EXTENSIONS;
    return name == GL_VERSION ? s_version : s_extensions;
}
char const* get_stringi(GLenum, GLuint index) {
    ++s_reads;
    return s_extension_names.at(index) == "null" ? nullptr : s_extension_names[index].c_str();
}
void get_integerv(GLenum, GLint* count) {
    *count = static_cast<GLint>(s_extension_names.size());
}

void create_context(char const* version, char const* extensions) {
    std::istringstream words(extensions ? extensions : "");
    s_version = version;
    s_extensions = extensions;
    s_extension_names.assign(std::istream_iterator<std::string>(words), {});
    while (extension_node_t* node = extension_linkedlist) {
        extension_linkedlist = node->next;
        std::free(node);
    }
    AGL_init();
    AGL_init_additional();
    s_resolved.clear();
    s_reads = 0;
}

/// Loads a context. Returns each name as often as its flag is, and resets the flag.
names_t load(char const* version, char const* extensions) {
    create_context(version, extensions);
    gl_extloader_init();
    names_t names;
    for (auto const& [name, flag] : flags) {
        names.insert(names.end(), static_cast<std::size_t>(std::exchange(*flag, 0)), name);
    }
    return names;
}

}  // namespace

void* __gl_GetProcAddress(char const* symbol) {
    std::string const& name = s_resolved.emplace_back(symbol);
    return name == "glGetString"     ? reinterpret_cast<void*>(get_string)
           : name == "glGetStringi"  ? reinterpret_cast<void*>(get_stringi)
           : name == "glGetIntegerv" ? reinterpret_cast<void*>(get_integerv)
                                     : nullptr;
}

// Version 3.0 and later read the elements of the list up to the name, others read the whole list.
// This test runs before the others, so it also checks the state before gl_extloader_init.
TEST(GlextLoader, FindsWholeWordsInTheListOfExtensions) {
    using row_t = std::tuple<char const*, char const*, char const*, int, int>;
    for (auto const& [version, extensions, name, supported, reads] :
         {row_t{"3.0", "AB A B", "A", 1, 2}, row_t{"3.0", "AB B", "A", 0, 2},
          row_t{"4.6", "null A B", "A", 1, 2}, row_t{"10.0", "AB B A", "A", 1, 1},
          row_t{"1.4", "AB ", "A", 0, 1}, row_t{"1.4", "BA ", "A", 0, 1},
          row_t{"1.4", "A B", "A", 1, 1}, row_t{"1.4", "ABAB", "AB", 1, 1},
          row_t{"1.4", "A", "", 0, 0}, row_t{"1.4", "A B", "A B", 0, 0}, row_t{"", "A", "A", 1, 1},
          row_t{"", nullptr, "A", 0, 1}}) {
        create_context(*version != '\0' ? version : nullptr, extensions);
        EXPECT_EQ(isExtensionSupported(name), supported) << version << ": " << name;
        EXPECT_EQ(s_reads, reads) << version << ": " << name;
    }
}

TEST(GlextLoader, SetsTheFlagsAndResolvesEachEntryPointOnce) {
    std::pair<char const*, std::size_t> const versions[] = {
        {"1.1.0 x", 0}, {"1.4 Mesa", 3},  {"2.1", 5},    {"2.1 Mesa", 6},
        {"4.4.9", 15},  {"4.5 Mesa", 16}, {"4.6.0", 17}, {"10.0", 17}};
    for (auto const& [version, count] : versions) {
        EXPECT_EQ(load(version, "").size(), count) << version;
    }
    std::string all;
    std::size_t groups = 0;
    for (auto const& row : flags) {
        EXPECT_EQ(load("1.1", row.first), names_t{row.first});
        groups += s_resolved.size() > 338;
        all.append(row.first).append(" ");
    }
    EXPECT_EQ(groups, 256U);
    EXPECT_EQ(load("4.6", all.c_str()).size(), 633U);
    EXPECT_EQ(s_reads, 633);
    EXPECT_EQ(is_gl_extloader_inited, 1);
    EXPECT_EQ(s_resolved.size(), 334U + 4 + 2090);
    EXPECT_EQ(std::set(s_resolved.begin(), s_resolved.end()).size(), s_resolved.size());
    EXPECT_EQ(isExtensionSupported(flags[0].first), 1);
    EXPECT_EQ(s_reads, 634) << "the names are kept only during gl_extloader_init";
}
