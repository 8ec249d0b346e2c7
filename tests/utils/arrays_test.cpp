// SPDX-License-Identifier: MIT
// Tests of the shared arrays, the owning pointers and the functions on bits and bytes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <memory>
#include <tuple>

#include "tests/support/files/testfiles.h"
#include "utils/bits.h"
#include "utils/byteorder.h"
#include "utils/ofsvector.h"
#include "utils/ptr.h"
#include "utils/refobject.h"
#include "utils/refvector.h"

namespace {

using namespace libutils;

using mapped_t = refvector2<unsigned char, alloc_mmap_unix>;
using bytes_t = ofsvector<unsigned char, alloc_mmap_unix>;
constexpr e_prot_t readonly = PROTECTION_READ, writable = PROTECTION_READWRITE;
constexpr unsigned long huge = ~0UL / 2, to_end = bytes_t::to_end;

std::string text(mapped_t const& bytes) {
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
    long const files = open_files();
    using row_t = std::tuple<char const*, unsigned long, e_prot_t, unsigned long, char const*>;
    for (auto const& [name, number, prot, offset, loaded] :
         {row_t{"ten", 0, readonly, 0, "0123456789"}, row_t{"ten", 4, readonly, 0, "0123"},
          row_t{"ten", 11, readonly, 0, "-"}, row_t{"ten", huge, readonly, 0, "-"},
          row_t{"ten", 0, static_cast<e_prot_t>(2), 0, "-"}, row_t{"ten", 1, readonly, 1, "-"},
          row_t{"pages", 0, writable, 4096, "behind"}, row_t{"pages", 7, readonly, 4096, "-"},
          row_t{"pages", 0, readonly, 8192, "-"}, row_t{"empty", 0, readonly, 0, ""},
          row_t{"pipe", 0, readonly, 0, ""}, row_t{"missing", 0, readonly, 0, "-"},
          row_t{"", 0, readonly, 0, "-"}}) {
        bytes_t array = filled("old");
        bool const done = array.load(number, dir.file(name).c_str(), prot, offset, false, nullptr);
        EXPECT_EQ(done ? text(array) : "-", loaded) << name << number;
        EXPECT_EQ(array.is_allocated(), done) << name << number;
    }
    EXPECT_EQ(open_files(), files) << "each mapping closes its file";

    bytes_t array = filled("abc");
    std::string const ten = dir.file("ten");
    EXPECT_FALSE(array.load(0, dir.file("no").c_str(), readonly, 0, true, nullptr));
    EXPECT_FALSE(array.load(10, ten.c_str(), readonly, 0, true, nullptr)) << "no room to keep them";
    EXPECT_TRUE(array.load(10, ten.c_str(), writable, 0, true, nullptr));
    EXPECT_EQ(read_file(ten), "abc3456789");
    array = filled("new");
    EXPECT_TRUE(array.load(0, ten.c_str(), writable, 0, true, nullptr));
    EXPECT_EQ(text(array), "abc3456789");
    EXPECT_EQ(read_file(ten), "abc3456789") << "a whole file is not written to";
}

TEST(mapped_array, a_file_that_becomes_shorter_reads_as_0) {
    temp_dir_t const dir;
    std::string const path = dir.file("pages");
    std::string const pages(3 * 4096 + 100, 'a');
    auto const size = static_cast<long>(pages.size());
    for (long const kept : {0L, 1L, 4096L, 5000L, size}) {
        for (e_prot_t const prot : {readonly, writable}) {
            write_file(path, pages);
            bytes_t whole, window;
            ASSERT_TRUE(whole.load(0, path.c_str(), prot, 0, false, nullptr));
            ASSERT_TRUE(window.load(0, path.c_str(), prot, 4096, false, nullptr));
            ASSERT_EQ(::truncate(path.c_str(), kept), 0);
            EXPECT_EQ(window.begin()[pages.size() - 4096 - 1], kept == size ? 'a' : 0);
            EXPECT_EQ(std::count(window.begin(), window.end(), 'a'), std::max(0L, kept - 4096));
            EXPECT_EQ(std::count(whole.begin(), whole.end(), 'a'), kept) << prot;
            if (prot == writable) {
                *(whole.end() - 1) = 'z';
                EXPECT_EQ(*(whole.end() - 1), 'z') << "the zeros have the mapping's protection";
            }
        }
    }
}

TEST(mapped_array, other_bus_errors_keep_their_action) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("pages"), std::string(4096, 'a'));
    bytes_t array;
    ASSERT_TRUE(array.load(0, path.c_str(), readonly, 0, false, nullptr));
    int const fd = ::open(path.c_str(), O_RDONLY);
    void* const foreign = ::mmap(nullptr, 4096, PROT_READ, MAP_SHARED, fd, 0);
    ASSERT_NE(foreign, MAP_FAILED);
    ASSERT_EQ(::truncate(path.c_str(), 0), 0);
    EXPECT_EQ(*array.begin(), 0);
    EXPECT_DEATH(::fputc(*static_cast<char volatile*>(foreign), stderr), "");
    EXPECT_DEATH(::raise(SIGBUS), "");
    ::munmap(foreign, 4096);
    ::close(fd);
}

TEST(mapped_array, resize_of_a_window_moves_to_a_private_copy) {
    using row_t = std::tuple<unsigned long, unsigned long, unsigned long, char const*>;
    for (auto const& [offset, count, newsize, kept] :
         {row_t{0, to_end, 4, "abcd"}, row_t{3, to_end, 4, "defg"}, row_t{3, to_end, 9, "defgh"},
          row_t{3, 2, 9, "de"}, row_t{3, 100, 9, "defgh"}, row_t{100, to_end, 3, ""}}) {
        bytes_t const whole = filled("abcdefgh");
        bytes_t window = whole;
        window.offset = offset;
        window.count = count;
        ASSERT_TRUE(window.resize(newsize, 0));
        std::string expected = kept;
        expected.resize(newsize, '\0');
        EXPECT_EQ(text(window), expected) << offset << ' ' << count;
        *window.begin() = 'X';
        EXPECT_TRUE(text(whole) == "abcdefgh" && whole.refcount() == 1);
    }
    bytes_t array = filled("abc");
    EXPECT_TRUE(!array.resize(huge, 0) && text(array) == "abc");
}

TEST(mapped_array, windows_of_any_type_stay_inside_a_short_file) {
    temp_dir_t const dir;
    mapped_t file;
    write_file(dir.file("short"), "BM0123456789");
    ASSERT_TRUE(file.load(0, dir.file("short").c_str(), readonly, 0, false, nullptr));
    ofsvector<std::array<unsigned char, 14>, alloc_mmap_unix> header;
    ofsvector<std::array<char, 4>, alloc_mmap_unix> quads;
    header.share(file);
    quads.share(file);
    file.clear();
    EXPECT_TRUE(quads.refcount() == 2 && !quads.is_writable() && header.size() == 0);
    using row_t = std::tuple<unsigned long, unsigned long, long>;
    for (auto const& [offset, count, size] :
         {row_t{0, to_end, 3}, row_t{4, to_end, 2}, row_t{5, to_end, 1}, row_t{4, 1, 1},
          row_t{4, huge, 2}, row_t{12, 1, 0}, row_t{13, 1, 0}, row_t{~0UL, 1, 0}}) {
        quads.offset = offset;
        quads.count = count;
        EXPECT_TRUE(quads.end() - quads.begin() == size && static_cast<long>(quads.size()) == size)
            << offset;
    }
    quads.offset = 4;
    quads.count = 2;
    EXPECT_TRUE(quads.resize(3, 0) && quads[0][1] == '3' && quads[0][2] == 0) << "2 bytes, not 8";
}

TEST(mapped_array, a_large_block_is_used_again_and_reads_as_0) {
    constexpr unsigned long mebi = 1UL << 20;
    mapped_t first;
    ASSERT_TRUE(first.resize(8 * mebi, 0));
    unsigned char* const begin = first.begin();
    std::fill(begin, first.end(), 0xff);
    first.clear();
    mapped_t next;
    mapped_t beside;
    ASSERT_TRUE(next.resize(6 * mebi + 100, 0) && beside.resize(6 * mebi, 0));
    EXPECT_TRUE(next.begin() == begin && beside.begin() != begin);
    std::fill(next.begin(), next.end(), 0xff);
    next.clear();
    ASSERT_TRUE(next.resize(9 * mebi, 0));
    for (mapped_t const* array : {&next, &beside}) {
        EXPECT_EQ(std::count(array->begin(), array->end(), 0), array->end() - array->begin());
    }
}

TEST(shared_array, base_resize_changes_the_block_for_all_handles) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("ten"), "0123456789");
    for (e_prot_t const prot : {readonly, writable}) {
        mapped_t array;
        ASSERT_TRUE(array.load(0, path.c_str(), prot, 0, false, nullptr));
        mapped_t const other = array;
        EXPECT_EQ(array.resize(12, 0), prot == readonly) << "a writable file has no 12 bytes";
        EXPECT_EQ(text(other).substr(0, 10), "0123456789");
        EXPECT_TRUE(array.resize(3, 0) && text(other) == "012");
        EXPECT_FALSE(array.resize(0, 0) || other.size() != 0) << "there is no storage then";
    }
    refvector2<unsigned char, alloc_new> array;
    ASSERT_TRUE(array.load(0, path.c_str(), readonly, 0, false, nullptr));
    EXPECT_TRUE(array.size() == 10 && array.resize(4, 0) && !array.resize(~0UL, 0));
    EXPECT_EQ(array[3], '3');
}

TEST(table_array, resize_is_private_and_assignment_shares) {
    refvector<unsigned short, alloc_new> first, second;
    ASSERT_TRUE(first.resize(2));
    second = first;
    first[0] = first[1] = 7;
    ASSERT_TRUE(second.resize(3));
    second[0] = 1;
    EXPECT_TRUE(first[0] == 7 && second[0] == 1 && second[1] == 7 && second[2] == 0);
    EXPECT_EQ(second.size(), first.size() + 2) << "bytes, header included";
    EXPECT_TRUE(!second.resize(~0UL) && second.count() == 3 && second.resize(0) && second.empty());
}

TEST(pointers, destroy_what_nobody_holds) {
    using watch_t = std::shared_ptr<int>;
    watch_t const watched = std::make_shared<int>(5);
    {
        ptr_t<watch_t> pointer;
        pointer = new watch_t(watched);
        pointer = new watch_t(watched);
        pointer = static_cast<watch_t*>(pointer);
        refobject<watch_t> first, second;
        first.create(watched);
        second = first;
        first.clear();
        first = std::move(second);
        first.create(*first);
        EXPECT_TRUE(!second && first.refcount() == 1 && watched.use_count() == 3);
    }
    EXPECT_EQ(watched.use_count(), 1);
}

TEST(bits, positions_and_powers_to_the_last_bit) {
    using row_t = std::tuple<unsigned int, unsigned int, unsigned int>;
    for (auto const& [value, top, up] : {row_t{0, 0, 0}, row_t{1, 1, 2}, row_t{5, 3, 8},
                                         row_t{256, 9, 512}, row_t{0x80000001, 32, 0}}) {
        EXPECT_EQ(Get_TopBitPos(value), top);
        EXPECT_EQ(Is_2nSize(value), value == 1 || value == 256);
        EXPECT_EQ(UpAlignBits(value, Get_TopBitPos(value)), up) << value;
    }
    motorola_byteorder const motorola;
    EXPECT_TRUE(motorola.tohs(0x1234) == 0x3412 && motorola.tohl(0x12345678) == 0x78563412);
    EXPECT_EQ(motorola.tohll(0x0102030405060708), 0x0807060504030201U);
}

}  // namespace
