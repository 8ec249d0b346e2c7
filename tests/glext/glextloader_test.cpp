// SPDX-License-Identifier: MIT
// The loader against a driver of the tests' own, which stands in for the system's library.
#include "glext/glextloader.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using names_t = std::vector<std::string>;

std::pair<char const*, std::int32_t*> const g_flags[] = {
#include "flags.inc"
};

char const *g_version, *g_list;  // the list of both routes, where "null" is a null string
names_t g_names, g_asked;
int g_reads;

char const* get_string(GLenum name) {
    g_reads += name == GL_EXTENSIONS;
    return name == GL_VERSION ? g_version : g_list;
}
char const* get_stringi(GLenum, GLuint index) {
    ++g_reads;
    return g_names.at(index) == "null" ? nullptr : g_names[index].c_str();
}
void get_integerv(GLenum, GLint* count) {
    *count = static_cast<GLint>(g_names.size());
}

/// Begins anew with a context of this version.
void set_driver(char const* version, char const* list) {
    std::istringstream words(list ? list : "");
    g_version = version;
    g_list = list;
    g_names.assign(std::istream_iterator<std::string>(words), {});
    for (auto const& [name, flag] : g_flags)
        *flag = 0;
    while (extension_node_t* node = extension_linkedlist) {
        extension_linkedlist = node->next;
        std::free(node);
    }
    AGL_init();
    AGL_init_additional();
    g_asked.clear();
    g_reads = 0;
}

/// The flags that are set, in the order of loading.
names_t load(char const* version, char const* list) {
    set_driver(version, list);
    gl_extloader_init();
    names_t set;
    for (auto const& [name, flag] : g_flags)
        if (*flag == 1)
            set.emplace_back(name);
    return set;
}

}  // namespace

void* __gl_GetProcAddress(char const* symbol) {
    std::string const& name = g_asked.emplace_back(symbol);
    return name == "glGetString"     ? reinterpret_cast<void*>(get_string)
           : name == "glGetStringi"  ? reinterpret_cast<void*>(get_stringi)
           : name == "glGetIntegerv" ? reinterpret_cast<void*>(get_integerv)
                                     : nullptr;
}

TEST(glextloader, sets_the_versions_that_the_context_reaches) {
    std::pair<char const*, std::size_t> const rows[] = {
        {nullptr, 0},  {"1.1.0 x", 0},   {"1.4 Mesa", 3}, {"2.1", 5},  {"2.1 Mesa", 6},
        {"4.4.9", 15}, {"4.5 Mesa", 16}, {"4.6.0", 17},   {"10.0", 17}};
    for (auto const& [version, count] : rows) {
        names_t const set = load(version, "");
        names_t listed;
        for (extension_node_t const* node = extension_linkedlist; node; node = node->next)
            listed.insert(listed.begin(), node->name);
        EXPECT_EQ(listed.size(), count);
        EXPECT_EQ(set, listed) << "newest at the head, each once";
    }
}

TEST(glextloader, loads_all_once_in_order_from_one_reading_of_the_list) {
    std::string all;
    for (auto const& row : g_flags)
        all.append(row.first).append(" ");
    EXPECT_EQ(load("4.6", all.c_str()).size(), 633U);
    EXPECT_EQ(g_reads, 633);
    ASSERT_EQ(g_asked.size(), 334U + 4 + 2090);
    EXPECT_EQ(std::set(g_asked.begin(), g_asked.end()).size(), g_asked.size());
    EXPECT_EQ(g_asked[0] + g_asked[333] + g_asked[338], "glAccumglViewportglTbufferMask3DFX");
    g_asked.clear();
    init_GL_VERSION_1_0();
    EXPECT_EQ(g_asked.size(), 48U);
}

TEST(glextloader, a_name_sets_its_flag_and_resolves_its_own_entry_points_alone) {
    std::map<std::string, std::size_t> members;
    for (auto const& row : g_flags) {
        EXPECT_EQ(load("1.1", row.first), names_t{row.first});
        if (g_asked.size() > 338)
            members[row.first] = g_asked.size() - 338;
    }
    EXPECT_EQ(members.size(), 256U);
    EXPECT_EQ(members["GL_EXT_direct_state_access"], 255U);
    EXPECT_EQ(members["GL_VERSION_4_5"], 122U);
}

// Outside of a loading, so the list is read up to the answer.
TEST(glextloader, looks_for_whole_words_on_the_route_of_the_version) {
    struct {
        char const *version, *list, *name;
        int supported, reads;  ///< of the list or of its items
    } const rows[] = {
        {"1.4", "AB A", "A", 1, 1},     {"1.4", "AB ", "A", 0, 1},     {"1.4", "BA ", "A", 0, 1},
        {"1.4", "A B", "A", 1, 1},      {"1.4", "ABAC", "A", 0, 1},    {"1.4", "ABAB", "AB", 1, 1},
        {"1.4", "A", "", 0, 0},         {"1.4", "A B", "A B", 0, 0},   {"3.0", "AB A B", "A", 1, 2},
        {"4.6", "null A B", "A", 1, 2}, {"10.0", "AB B A", "A", 1, 1}, {nullptr, "A", "A", 1, 1},
        {nullptr, nullptr, "A", 0, 1}};
    for (auto const& [version, list, name, supported, reads] : rows) {
        set_driver(version, list);
        EXPECT_EQ(isExtensionSupported(name), supported) << (list ? list : "null");
        EXPECT_EQ(g_reads, reads) << (list ? list : "null");
    }
}
