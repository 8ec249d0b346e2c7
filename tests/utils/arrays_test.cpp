// SPDX-License-Identifier: MIT
// Tests of the shared arrays, the owning pointers and the functions on bits and bytes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <malloc.h>
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
#include "utils/filedescriptor.h"
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
constexpr unsigned long page = 4096, mebi = 1UL << 20;

std::string text(mapped_t const& bytes) {
    return {bytes.begin(), bytes.end()};
}

template <typename array_t>
bool load(array_t& array, std::string const& path, e_prot_t prot, unsigned long number = 0,
          unsigned long offset = 0, bool keep = false) {
    return array.load(number, path.c_str(), prot, offset, keep, nullptr);
}

bytes_t filled(std::string const& bytes) {
    bytes_t array;
    EXPECT_TRUE(array.resize(bytes.size(), 0));
    std::ranges::copy(bytes, array.begin());
    return array;
}

long open_file_count() {
    std::filesystem::directory_iterator const entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

TEST(MappedArray, LoadsRangesOfFilesAndKeepsOldElementsOnRequest) {
    temp_dir_t const dir;
    write_file(dir.file("ten"), "0123456789");
    write_file(dir.file("pages"), std::string(page, 'a') + "after");
    write_file(dir.file("empty"), "");
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    long const files = open_file_count();
    using row_t = std::tuple<char const*, unsigned long, e_prot_t, unsigned long, char const*>;
    for (auto const& [name, number, prot, offset, loaded] :
         {row_t{"ten", 0, readonly, 0, "0123456789"}, row_t{"ten", 4, readonly, 0, "0123"},
          row_t{"ten", 11, readonly, 0, "fails"}, row_t{"ten", huge, readonly, 0, "fails"},
          row_t{"ten", 0, static_cast<e_prot_t>(2), 0, "fails"},
          row_t{"ten", 1, readonly, 1, "fails"}, row_t{"pages", 0, writable, page, "after"},
          row_t{"pages", 6, readonly, page, "fails"}, row_t{"pages", 0, readonly, 8192, "fails"},
          row_t{"empty", 0, readonly, 0, ""}, row_t{"pipe", 0, readonly, 0, ""},
          row_t{"missing", 0, readonly, 0, "fails"}}) {
        bytes_t array = filled("old");
        bool const is_loaded = load(array, dir.file(name), prot, number, offset);
        EXPECT_EQ(is_loaded ? text(array) : "fails", loaded) << name << number;
        EXPECT_EQ(array.is_allocated(), is_loaded) << name << number;
    }
    EXPECT_EQ(open_file_count(), files);

    std::string const ten = dir.file("ten");
    bytes_t array = filled("abc");
    EXPECT_FALSE(load(array, ten, readonly, 10, 0, true));
    EXPECT_TRUE(load(array, ten, writable, 10, 0, true));
    EXPECT_EQ(read_file(ten), "abc3456789");
    array = filled("new");
    EXPECT_TRUE(load(array, ten, writable, 0, 0, true));
    EXPECT_EQ(text(array), "abc3456789") << "a file that is loaded as a whole doesn't change";
}

TEST(MappedArray, ReadsZerosAfterTheFileWasTruncated) {
    temp_dir_t const dir;
    std::string const path = dir.file("pages");
    for (long const kept : {0L, 1L, 4096L, 5000L}) {
        write_file(path, std::string(3 * page + 100, 'a'));
        bytes_t whole, window;
        ASSERT_TRUE(load(whole, path, writable));
        ASSERT_TRUE(load(window, path, readonly, 0, page));
        ASSERT_EQ(::truncate(path.c_str(), kept), 0);
        EXPECT_EQ(std::count(window.begin(), window.end(), 'a'), std::max(0L, kept - 4096));
        EXPECT_EQ(std::count(whole.begin(), whole.end(), 'a'), kept);
        *(whole.end() - 1) = 'z';
        EXPECT_EQ(*(whole.end() - 1), 'z') << kept;
    }
}

TEST(MappedArray, LeavesOtherBusErrorsToTheirHandler) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("pages"), std::string(page, 'a'));
    bytes_t array;
    ASSERT_TRUE(load(array, path, readonly));
    file_descriptor_t const file(::open(path.c_str(), O_RDONLY));
    void* const foreign = ::mmap(nullptr, page, PROT_READ, MAP_SHARED, file.get(), 0);
    ASSERT_NE(foreign, MAP_FAILED);
    ASSERT_EQ(::truncate(path.c_str(), 0), 0);
    EXPECT_EQ(*array.begin(), 0);
    EXPECT_DEATH(::fputc(*static_cast<char volatile*>(foreign), stderr), "");
    EXPECT_DEATH(::raise(SIGBUS), "");
    ::munmap(foreign, page);
}

TEST(MappedArray, ResizeOfAWindowCopiesItsBytes) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("twelve"), "abcdefghXXXX");
    using row_t = std::tuple<unsigned long, unsigned long, unsigned long, char const*>;
    for (auto const& [offset, count, newsize, kept] :
         {row_t{0, to_end, 4, "abcd"}, row_t{3, to_end, 9, "defgh"}, row_t{3, 2, 9, "de"},
          row_t{3, 100, 9, "defgh"}, row_t{100, to_end, 3, ""}}) {
        bytes_t whole;
        ASSERT_TRUE(load(whole, path, readonly, 8));
        bytes_t window = whole;
        window.offset = offset;
        window.count = count;
        ASSERT_TRUE(window.resize(newsize, 0));
        std::string expected = kept;
        expected.resize(newsize, '\0');
        EXPECT_EQ(text(window), expected) << offset << ' ' << count;
        *window.begin() = 'X';
        EXPECT_EQ(text(whole), "abcdefgh");
        EXPECT_EQ(whole.refcount(), 1U);
    }
    bytes_t array = filled("abc");
    EXPECT_FALSE(array.resize(huge, 0));
    EXPECT_EQ(text(array), "abc");
}

TEST(MappedArray, ClampsWindowsToTheBlock) {
    mapped_t const file = filled("BM0123456789");
    ofsvector<std::array<char, 4>, alloc_mmap_unix> quads;
    quads.share(file);
    using row_t = std::tuple<unsigned long, unsigned long, long>;
    for (auto const& [offset, count, size] :
         {row_t{0, to_end, 3}, row_t{4, to_end, 2}, row_t{5, to_end, 1}, row_t{4, 1, 1},
          row_t{4, huge, 2}, row_t{12, 1, 0}, row_t{13, 1, 0}, row_t{~0UL, 1, 0}}) {
        quads.offset = offset;
        quads.count = count;
        EXPECT_EQ(quads.end() - quads.begin(), size) << offset;
        EXPECT_EQ(static_cast<long>(quads.size()), size) << offset;
    }
    quads.offset = 4;
    quads.count = 2;
    EXPECT_TRUE(quads.resize(3, 0));
    EXPECT_EQ(quads[0], (std::array<char, 4>{'2', '3', 0, 0})) << "the count limits the bytes";
}

TEST(MappedArray, ReusesALargeBlockFilledWithZeros) {
    mapped_t first;
    ASSERT_TRUE(first.resize(8 * mebi, 0));
    unsigned char* const begin = first.begin();
    std::fill(begin, first.end(), 0xff);
    first.clear();
    mapped_t next;
    ASSERT_TRUE(next.resize(6 * mebi + 100, 0));
    EXPECT_EQ(next.begin(), begin);
    std::fill(next.begin(), next.end(), 0xff);
    next.clear();
    ASSERT_TRUE(next.resize(9 * mebi, 0));
    EXPECT_EQ(std::count(next.begin(), next.end(), 0), next.end() - next.begin());
}

TEST(SharedArray, ResizeChangesTheBlockForAllHandles) {
    temp_dir_t const dir;
    std::string const path = write_file(dir.file("ten"), "0123456789");
    for (e_prot_t const prot : {readonly, writable}) {
        mapped_t array;
        ASSERT_TRUE(load(array, path, prot));
        mapped_t const other = array;
        EXPECT_EQ(array.is_writable(), prot == writable);
        EXPECT_EQ(array.resize(12, 0), prot == readonly) << "a writable file isn't made longer";
        EXPECT_EQ(text(other).substr(0, 10), "0123456789");
        EXPECT_TRUE(array.resize(3, 0));
        EXPECT_EQ(text(other), "012");
        EXPECT_FALSE(array.resize(0, 0));
        EXPECT_TRUE(other.empty());
    }
    refvector2<unsigned char, alloc_new> array;
    ASSERT_TRUE(load(array, path, readonly));
    EXPECT_EQ(array.size(), 10U);
    EXPECT_FALSE(array.resize(~0UL, 0));
    std::size_t const used = ::mallinfo2().hblkhd;
    EXPECT_TRUE(array.resize(8 * mebi, 0));
    EXPECT_TRUE(array.resize(4, 0));
    EXPECT_EQ(::mallinfo2().hblkhd, used) << "the old block is freed";
    EXPECT_EQ(array[3], '3');
}

TEST(TableArray, ResizeCopiesAndAssignmentShares) {
    refvector<unsigned short, alloc_new> first, second;
    ASSERT_TRUE(first.resize(2));
    second = first;
    first[0] = first[1] = 7;
    ASSERT_TRUE(second.resize(3));
    second[0] = 1;
    EXPECT_EQ(first[0], 7);
    EXPECT_EQ(second[1], 7);
    EXPECT_EQ(second[2], 0);
    EXPECT_EQ(second.size(), first.size() + 2) << "a number of bytes";
    for (unsigned long const too_large : {~0UL, ~0UL / 2 + 1}) {
        EXPECT_FALSE(second.resize(too_large));
    }
    EXPECT_EQ(second.count(), 3U);
    EXPECT_TRUE(second.resize(0));
    EXPECT_TRUE(second.empty());
}

TEST(Pointers, DestroyTheirObjectsOnce) {
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
        EXPECT_EQ(first.refcount(), 1U);
        EXPECT_EQ(watched.use_count(), 3);
    }
    EXPECT_EQ(watched.use_count(), 1);
}

TEST(Bits, CountsAndRoundsUpToTheLastBit) {
    using row_t = std::tuple<unsigned int, unsigned int, unsigned int>;
    for (auto const& [value, top, up] : {row_t{0, 0, 0}, row_t{1, 1, 2}, row_t{5, 3, 8},
                                         row_t{256, 9, 512}, row_t{0x80000001, 32, 0}}) {
        EXPECT_EQ(Get_TopBitPos(value), top);
        EXPECT_EQ(Is_2nSize(value), value == 1 || value == 256);
        EXPECT_EQ(UpAlignBits(value, Get_TopBitPos(value)), up) << value;
    }
    EXPECT_EQ(motorola_byteorder().tohs(0x1234), 0x3412);
    EXPECT_EQ(motorola_byteorder().tohl(0x12345678), 0x78563412U);
    EXPECT_EQ(motorola_byteorder().tohll(0x0102030405060708), 0x0807060504030201U);
}

}  // namespace
