// SPDX-License-Identifier: MIT
// Tests of the shared arrays on mappings and on the free store.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "tests/support/files/testfiles.h"
#include "utils/ofsvector.h"
#include "utils/refvector.h"

namespace {

using namespace libutils;

using bytes_t = ofsvector<unsigned char, alloc_mmap_unix>;
struct header_t {
    unsigned char text[14];
};
struct quad_t {
    unsigned char b, g, r, reserved;
};

constexpr auto misfit = static_cast<e_prot_t>(2);
constexpr unsigned long huge = ~0UL / 2;

template <typename A>
std::string text(refvector2<unsigned char, A> const& bytes) {
    return {bytes.begin(), bytes.end()};
}

bytes_t filled(std::string const& bytes) {
    bytes_t array;
    EXPECT_TRUE(array.resize(bytes.size(), 0));
    std::copy(bytes.begin(), bytes.end(), array.begin());
    return array;
}

long open_files() {
    std::filesystem::directory_iterator const entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

TEST(mapped_array, loads_what_a_file_holds_and_refuses_the_rest) {
    temp_dir_t const dir;
    write_file(dir.file("ten"), "0123456789");
    write_file(dir.file("pages"), std::string(4096, 'a') + "behind");
    write_file(dir.file("empty"), "");
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    struct {
        char const* name;
        unsigned long number;
        e_prot_t prot;
        unsigned long long offset;
        bool loads;
        unsigned long size;
    } const rows[] = {
        {"ten", 0, PROTECTION_READ, 0, true, 10},
        {"ten", 4, PROTECTION_READ, 0, true, 4},
        {"ten", 11, PROTECTION_READ, 0, false, 0},
        {"ten", huge, PROTECTION_READ, 0, false, 0},
        {"ten", 0, misfit, 0, false, 0},
        {"ten", 1, PROTECTION_READ, 1, false, 0},  // not at a page
        {"pages", 0, PROTECTION_READWRITE, 4096, true, 6},
        {"pages", 7, PROTECTION_READ, 4096, false, 0},
        {"pages", 0, PROTECTION_READ, 8192, false, 0},
        {"empty", 0, PROTECTION_READ, 0, true, 0},
        {"pipe", 0, PROTECTION_READ, 0, true, 0},
        {"missing", 0, PROTECTION_READ, 0, false, 0},
        {"", 0, PROTECTION_READ, 0, false, 0},  // the directory
    };
    long const files = open_files();
    for (auto const& row : rows) {
        SCOPED_TRACE(row.name + std::string(" ") + std::to_string(row.number));
        bytes_t array = filled("old");
        std::string const path = dir.file(row.name);
        EXPECT_EQ(array.load(row.number, path.c_str(), row.prot, row.offset, false, nullptr),
                  row.loads);
        EXPECT_EQ(array.is_allocated(), row.loads);
        EXPECT_EQ(array.size(), row.size);
        EXPECT_EQ(array.empty(), row.size == 0);
        EXPECT_EQ(text(array), row.size == 0 ? "" : read_file(path).substr(row.offset, row.size));
    }
    EXPECT_EQ(open_files(), files) << "each mapping closes its file";
}

TEST(mapped_array, keeps_old_bytes_in_a_load_when_asked) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("ten"), "0123456789");
    bytes_t array = filled("abc");
    EXPECT_FALSE(array.load(0, dir.file("no").c_str(), PROTECTION_READ, 0, true, nullptr));
    EXPECT_FALSE(array.load(0, path.c_str(), PROTECTION_READ, 0, true, nullptr))
        << "a read-only mapping has no room for them";
    EXPECT_EQ(text(array), "abc");
    EXPECT_TRUE(array.load(0, path.c_str(), PROTECTION_READWRITE, 0, true, nullptr));
    EXPECT_EQ(text(array), "abc3456789");
    EXPECT_EQ(read_file(path), "abc3456789");
}

TEST(mapped_array, resize_of_a_window_moves_to_a_private_copy) {
    struct {
        unsigned long offset, count, newsize;
        char const* kept;
    } const rows[] = {
        {0, bytes_t::to_end, 4, "abcd"},
        {3, bytes_t::to_end, 4, "defg"},
        {3, bytes_t::to_end, 9, "defgh"},
        {3, 2, 9, "de"},
        {3, 100, 9, "defgh"},
        {100, bytes_t::to_end, 3, ""},
    };
    for (auto const& row : rows) {
        bytes_t const whole = filled("abcdefgh");
        bytes_t window = whole;
        window.offset = row.offset;
        window.count = row.count;
        ASSERT_TRUE(window.resize(row.newsize, 0));
        std::string expected = row.kept;
        expected.resize(row.newsize, '\0');
        EXPECT_EQ(text(window), expected) << row.offset << ' ' << row.count;
        *window.begin() = 'X';
        EXPECT_EQ(text(whole), "abcdefgh");
        EXPECT_EQ(whole.refcount(), 1UL);
    }
    bytes_t array = filled("abc");
    array.offset = 1;
    EXPECT_FALSE(array.resize(huge, 0));
    EXPECT_EQ(text(array), "bc") << "a refused size changes nothing";
    EXPECT_TRUE(array.resize(0, 0));
    EXPECT_TRUE(array.empty());
}

TEST(mapped_array, windows_of_any_type_stay_inside_a_short_file) {
    temp_dir_t const dir;
    refvector2<unsigned char, alloc_mmap_unix> file;
    std::string const path = write_file(dir.file("short"), "BM0123456789");
    ASSERT_TRUE(file.load(0, path.c_str(), PROTECTION_READ, 0, false, nullptr));
    ofsvector<header_t, alloc_mmap_unix> header;
    ofsvector<quad_t, alloc_mmap_unix> quads;
    header.share(file);
    quads.share(file);
    file.clear();
    EXPECT_EQ(quads.refcount(), 2UL);
    EXPECT_FALSE(quads.is_writable());
    EXPECT_EQ(header.size(), 0UL);
    struct {
        unsigned long offset, count, size;
    } const rows[] = {
        {0, quads.to_end, 3}, {4, quads.to_end, 2}, {5, quads.to_end, 1}, {4, 1, 1},
        {4, huge, 2},         {12, 1, 0},           {13, 1, 0},           {~0UL, 1, 0}};
    for (auto const& row : rows) {
        quads.offset = row.offset;
        quads.count = row.count;
        EXPECT_EQ(quads.size(), row.size) << row.offset;
        EXPECT_EQ(quads.end() - quads.begin(), static_cast<long>(row.size));
    }
    quads.offset = 4;
    quads.count = 2;
    EXPECT_EQ(quads[1].g, '7');
    ASSERT_TRUE(quads.resize(3, 0));
    EXPECT_EQ(quads[0].g, '3') << "the count limits the copy as bytes";
    EXPECT_EQ(quads[0].r, 0);
}

TEST(mapped_array, base_resize_remaps_for_all_handles) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("ten"), "0123456789");
    for (e_prot_t const prot : {PROTECTION_READ, PROTECTION_READWRITE}) {
        refvector2<unsigned char, alloc_mmap_unix> array;
        ASSERT_TRUE(array.load(0, path.c_str(), prot, 0, false, nullptr));
        refvector2<unsigned char, alloc_mmap_unix> const other = array;
        bool const copied = prot == PROTECTION_READ;
        EXPECT_EQ(array.resize(12, 0), copied) << "a writable file has no 12 bytes";
        EXPECT_EQ(text(other), copied ? std::string("0123456789\0\0", 12) : "0123456789");
        EXPECT_TRUE(array.resize(3, 0));
        *array.begin() = '0';
        EXPECT_EQ(text(other), "012");
        EXPECT_FALSE(array.resize(0, 0)) << "there is no storage then";
        EXPECT_EQ(other.size(), 0UL);
    }
}

TEST(free_store_array, loads_resizes_and_gives_back) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("ten"), "0123456789");
    refvector2<unsigned char, alloc_new> array;
    EXPECT_FALSE(array.load(0, dir.file("no").c_str(), PROTECTION_READ, 0, false, nullptr));
    ASSERT_TRUE(array.load(0, path.c_str(), PROTECTION_READ, 0, false, nullptr));
    EXPECT_EQ(text(array), "0123456789");
    ASSERT_TRUE(array.resize(4, 0));
    EXPECT_EQ(text(array), "0123");
    EXPECT_FALSE(array.resize(~0UL, 0));
    EXPECT_EQ(text(array), "0123");
}

TEST(table_array, resize_is_private_and_assignment_shares) {
    using table_t = refvector<unsigned short, alloc_new>;
    table_t first;
    EXPECT_TRUE(first.empty() && first.size() == 0 && first.begin() == nullptr);
    ASSERT_TRUE(first.resize(3));
    std::fill_n(first.begin(), 3, static_cast<unsigned short>(0xABCD));
    table_t second;
    second = first;
    second[1] = 7;
    EXPECT_EQ(first[1], 7) << "assigned handles share";
    ASSERT_TRUE(second.resize(5));
    second[0] = 1;
    EXPECT_EQ(first[0], 0xABCD) << "a resize parts them";
    EXPECT_EQ(std::vector<unsigned short>(second.begin(), second.begin() + 5),
              (std::vector<unsigned short>{1, 7, 0xABCD, 0, 0}));
    EXPECT_EQ(second.count(), 5UL);
    EXPECT_EQ(second.size(), first.size() + 4) << "the size is bytes, header included";
    EXPECT_FALSE(second.resize(~0UL));
    EXPECT_EQ(second.count(), 5UL);
    second.resize(0);
    EXPECT_TRUE(second.empty() && second.size() == 0);
}

}  // namespace
