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
constexpr unsigned long huge = ~0UL / 2, to_end = bytes_t::to_end, page = 4096, mebi = 1UL << 20;

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

TEST(MappedArray, LoadsRangesOfFilesAndKeepsOldElementsOnRequest) {
    temp_dir_t const dir;
    write_file(dir.file("ten"), "0123456789");
    write_file(dir.file("pages"), std::string(page, 'a') + "after");
    write_file(dir.file("empty"), "");
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    using entries_t = std::filesystem::directory_iterator;
    long const files = std::distance(entries_t("/proc/self/fd"), {});
    using row_t = std::tuple<char const*, unsigned long, e_prot_t, unsigned long, char const*>;
    for (auto const& [name, number, prot, offset, loaded] :
         {row_t{"ten", 0, readonly, 0, "0123456789"}, row_t{"ten", 4, readonly, 0, "0123"},
          row_t{"ten", 11, readonly, 0, "fails"},
          row_t{"ten", 0, static_cast<e_prot_t>(2), 0, "fails"},
          row_t{"pages", 0, writable, page, "after"}, row_t{"pages", 6, readonly, page, "fails"},
          row_t{"pages", 0, readonly, 8192, "fails"}, row_t{"empty", 0, readonly, 0, ""},
          row_t{"pipe", 0, readonly, 0, ""}, row_t{"missing", 0, readonly, 0, "fails"}}) {
        bytes_t array = filled("old");
        bool const is_loaded = load(array, dir.file(name), prot, number, offset);
        EXPECT_EQ(is_loaded ? text(array) : "fails", loaded) << name << number;
        EXPECT_EQ(array.is_allocated(), is_loaded) << name << number;
    }
    EXPECT_EQ(std::distance(entries_t("/proc/self/fd"), {}), files);

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
    std::string const path = write_file(dir.file("pages"), std::string(page, 'a'));
    file_descriptor_t const file(::open(path.c_str(), O_RDONLY));
    void* const foreign = ::mmap(nullptr, page, PROT_READ, MAP_SHARED, file.get(), 0);
    for (long const kept : {5000L, 4096L, 1L, 0L}) {
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
    EXPECT_DEATH(::fputc(*static_cast<char volatile*>(foreign), stderr), "");
    EXPECT_DEATH(::raise(SIGBUS), "");
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
        EXPECT_FALSE(window.resize(huge, 0));
        ASSERT_TRUE(window.resize(newsize, 0));
        EXPECT_STREQ(text(window).c_str(), kept) << offset << ' ' << count;
        EXPECT_EQ(window.size(), newsize);
        *window.begin() = 'X';
        EXPECT_EQ(text(whole), "abcdefgh");
        EXPECT_EQ(whole.refcount(), 1U);
    }
}

TEST(MappedArray, ClampsWindowsToTheBlock) {
    mapped_t const file = filled("BM0123456789");
    ofsvector<std::array<char, 4>, alloc_mmap_unix> quads;
    quads.share(file);
    using row_t = std::tuple<unsigned long, unsigned long, long>;
    for (auto const& [offset, count, size] :
         {row_t{0, to_end, 3}, row_t{4, to_end, 2}, row_t{5, to_end, 1}, row_t{4, 1, 1},
          row_t{4, huge, 2}, row_t{12, 1, 0}, row_t{13, 1, 0}}) {
        quads.offset = offset;
        quads.count = count;
        EXPECT_EQ(quads.end() - quads.begin(), size) << offset;
    }
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
        EXPECT_TRUE(array.resize(3, 0));
        EXPECT_EQ(text(other), "012");
        EXPECT_FALSE(array.resize(0, 0));
        EXPECT_TRUE(other.empty());
    }
    refvector2<unsigned char, alloc_new> array;
    ASSERT_TRUE(load(array, path, readonly));
    EXPECT_FALSE(array.resize(~0UL, 0));
    EXPECT_TRUE(array.resize(4, 0));
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
    EXPECT_FALSE(second.resize(~0UL / 2 + 1));
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
        EXPECT_EQ(watched.use_count(), 3);
    }
    EXPECT_EQ(watched.use_count(), 1);
}

TEST(Bits, RoundsUpToZeroAfterTheLastBit) {
    EXPECT_EQ(UpAlignBits(0x80000001U, Get_TopBitPos(0x80000001U)), 0U);
    EXPECT_EQ(UpAlignBits(0x40000001U, 31), 0x80000000U);
    EXPECT_EQ(motorola_byteorder().tohll(0x0102030405060708), 0x0807060504030201U);
}

}  // namespace
