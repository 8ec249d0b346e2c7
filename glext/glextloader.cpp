// SPDX-License-Identifier: MIT
// The search for the extensions and core versions of the current context.
#include "glext/glextloader.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string_view>
#include <unordered_set>

addext_t const addexts[] = {
    {"GL_VERSION_1_2", "1.2.0"}, {"GL_VERSION_1_3", "1.3.0"}, {"GL_VERSION_1_4", "1.4.0"},
    {"GL_VERSION_1_5", "1.5.0"}, {"GL_VERSION_2_0", "2.0.0"}, {"GL_VERSION_2_1", "2.1.0"},
    {"GL_VERSION_3_0", "3.0.0"}, {"GL_VERSION_3_1", "3.1.0"}, {"GL_VERSION_3_2", "3.2.0"},
    {"GL_VERSION_3_3", "3.3.0"}, {"GL_VERSION_4_0", "4.0.0"}, {"GL_VERSION_4_1", "4.1.0"},
    {"GL_VERSION_4_2", "4.2.0"}, {"GL_VERSION_4_3", "4.3.0"}, {"GL_VERSION_4_4", "4.4.0"},
    {"GL_VERSION_4_5", "4.5.0"}, {"GL_VERSION_4_6", "4.6.0"}, {nullptr, nullptr},
};

extension_node_t* extension_linkedlist = nullptr;
std::int32_t is_gl_extloader_inited = 0;

namespace {

using name_set_t = std::unordered_set<std::string_view>;

/// The names that the driver lists, kept while gl_extloader_init runs. Without it, 633 searches
/// with some 300 calls of the driver each would take a third of the program's start.
std::optional<name_set_t> s_driver_names;
bool s_keeps_driver_names = false;

char const* driver_string(GLenum name) {
    return glGetString ? reinterpret_cast<char const*>(glGetString(name)) : nullptr;
}

GLuint driver_name_count() {
    GLint count = 0;
    if (glGetIntegerv && glGetStringi) {
        glGetIntegerv(GL_NUM_EXTENSIONS, &count);
    }
    return count > 0 ? static_cast<GLuint>(count) : 0;
}

char const* driver_name(GLuint index) {
    return reinterpret_cast<char const*>(glGetStringi(GL_EXTENSIONS, index));
}

name_set_t fetch_driver_names() {
    name_set_t names;
    GLuint const count = driver_name_count();
    names.reserve(count);
    for (GLuint i = 0; i < count; ++i) {
        if (char const* name = driver_name(i)) {
            names.insert(name);
        }
    }
    return names;
}

bool is_in_driver_names(char const* name) {
    if (s_keeps_driver_names) {
        if (!s_driver_names) {
            s_driver_names = fetch_driver_names();
        }
        return s_driver_names->contains(name);
    }
    GLuint const count = driver_name_count();
    for (GLuint i = 0; i < count; ++i) {
        char const* other = driver_name(i);
        if (other && std::strcmp(name, other) == 0) {
            return true;
        }
    }
    return false;
}

/// Returns true if `list` contains the word `name`. Words are separated by blanks. The end of a
/// rejected hit counts as the start of a word, too; the flags depend on this rule.
bool is_in_list(char const* list, char const* name) {
    std::size_t const length = std::strlen(name);
    char const* start = list;
    while (char const* hit = std::strstr(start, name)) {
        char const* end = hit + length;
        if ((hit == start || hit[-1] == ' ') && (*end == ' ' || *end == '\0')) {
            return true;
        }
        start = end;
    }
    return false;
}

bool is_in_linkedlist(char const* name) {
    for (extension_node_t const* node = extension_linkedlist; node; node = node->next) {
        if (std::strcmp(node->name, name) == 0) {
            return true;
        }
    }
    return false;
}

bool is_supported_by_driver(char const* version, char const* name) {
    // Compares bytes, so the version "10.0" uses the extension string, too.
    if (version && std::strcmp(version, "3.0") >= 0) {
        init_GL_VERSION_3_0();
        return is_in_driver_names(name);
    }
    char const* list = driver_string(GL_EXTENSIONS);
    return list && is_in_list(list, name);
}

}  // namespace

int isExtensionSupported(char const* name) {
    char const* version = driver_string(GL_VERSION);
    if (!extension_linkedlist) {
        extension_string_init(version);
    }
    if (std::strchr(name, ' ') || *name == '\0') {
        return 0;
    }
    return is_supported_by_driver(version, name) || is_in_linkedlist(name) ? 1 : 0;
}

void extension_string_init(char const* version) {
    if (!version) {
        return;
    }
    for (addext_t const* row = addexts; row->name; ++row) {
        if (numdotstrcmp(version, row->version) >= 0) {
            addlist(row->name);
        }
    }
}

int numdotstrcmp(char const* a, char const* b) {
    // strtoul needs pointers to char, but doesn't write to the text.
    char* end_a = const_cast<char*>(a);
    char* end_b = const_cast<char*>(b);
    while (*end_a && *end_b) {
        unsigned long const field_a = std::strtoul(end_a, &end_a, 10);
        unsigned long const field_b = std::strtoul(end_b, &end_b, 10);
        if (field_a != field_b) {
            return field_a > field_b ? 1 : -1;
        }
        if (!*end_a || !*end_b) {
            break;
        }
        ++end_a;
        ++end_b;
    }
    if (!*end_a) {
        return *end_b ? -1 : 0;
    }
    return 1;
}

void addlist(char const* name) {
    auto* node = static_cast<extension_node_t*>(std::malloc(sizeof(extension_node_t)));
    if (!node) {
        return;
    }
    *node = {extension_linkedlist, name};
    extension_linkedlist = node;
}

void gl_extloader_init() {
    AGL_init();
    AGL_init_additional();
    s_keeps_driver_names = true;
    init_supported_extensions();
    s_keeps_driver_names = false;
    s_driver_names.reset();
    is_gl_extloader_inited = 1;
}
