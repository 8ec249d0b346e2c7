// SPDX-License-Identifier: MIT
// Tests of the owning pointers, the bit functions and the byte orders.
#include <gtest/gtest.h>

#include "utils/bits.h"
#include "utils/byteorder.h"
#include "utils/ptr.h"
#include "utils/refobject.h"

namespace {

using namespace libutils;

int alive = 0;

struct counted_t {
    explicit counted_t(int n = 0) : number(n) { ++alive; }
    counted_t(counted_t const& other) : number(other.number) { ++alive; }
    virtual ~counted_t() { --alive; }
    int number;
};

TEST(ptr, frees_what_it_held) {
    {
        ptr_t<counted_t> pointer;
        EXPECT_TRUE(!pointer);
        pointer = new counted_t(1);
        pointer = new counted_t(2);
        EXPECT_EQ(alive, 1);
        counted_t* const raw = pointer;
        pointer = raw;
        EXPECT_EQ(pointer->number, 2);
        pointer.free();
        EXPECT_TRUE(!pointer && alive == 0);
        pointer = new counted_t(3);
    }
    EXPECT_EQ(alive, 0);
}

TEST(refobject, last_holder_destroys) {
    refobject<counted_t> first;
    first.create(5);
    refobject<counted_t> second(first);
    EXPECT_EQ(second.refcount(), 2UL);
    second = *&second;
    first.clear();
    EXPECT_TRUE(!first && second->number == 5 && alive == 1);
    first = std::move(second);
    first.create(first->number + 1);
    EXPECT_TRUE(!second && first->number == 6 && alive == 1);
    first = refobject<counted_t>();
    EXPECT_EQ(alive, 0);
}

TEST(bits, positions_and_powers_to_the_last_bit) {
    struct {
        unsigned int value, top, up;
        bool power;
    } const rows[] = {{0, 0, 0, false},
                      {1, 1, 2, true},
                      {5, 3, 8, false},
                      {256, 9, 512, true},
                      {0x7FFFFFFF, 31, 0x80000000, false},
                      {0x80000001, 32, 0, false}};
    for (auto const& row : rows) {
        EXPECT_EQ(Get_TopBitPos(row.value), row.top);
        EXPECT_EQ(Is_2nSize(row.value), row.power);
        EXPECT_EQ(UpAlignBits(row.value, Get_TopBitPos(row.value)), row.up) << row.value;
    }
    EXPECT_EQ(Get_TopBitPos(1UL << 40), 41U);
    EXPECT_EQ(max2(2, 3) * 10 + min2(2, 3), 32);
    EXPECT_FLOAT_EQ(uc2f(255), 1.0F);
}

TEST(byteorder, motorola_swaps_and_intel_does_not) {
    motorola_byteorder const motorola;
    intel_byteorder const intel;
    EXPECT_EQ(motorola.tohs(0x1234), 0x3412);
    EXPECT_EQ(motorola.tohl(0x12345678), 0x78563412U);
    EXPECT_EQ(motorola.tohll(0x0102030405060708), 0x0807060504030201U);
    EXPECT_EQ(mtohll(0x0102030405060708), 0x0807060504030201U);
    EXPECT_EQ(intel.tohs(0x1234) + itohs(1), 0x1235);
    EXPECT_EQ(intel.tohl(0x12345678) + itohl(1), 0x12345679U);
    EXPECT_EQ(intel.tohll(0x0102030405060708) + itohll(1), 0x0102030405060709U);
}

}  // namespace
