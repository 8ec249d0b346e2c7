// SPDX-License-Identifier: MIT
// A reference-counted array for small tables, in one allocation.
#pragma once

#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>

#include "utils/allocator.h"
#include "utils/bits.h"

namespace libutils {

/// A handle on a shared array of T. The header of the array and its elements are in one allocation.
///
/// Handles share an array only by assignment: `b = a`. `resize` makes a copy for one handle. One
/// thread must use all handles on an array.
///
/// `count` is the number of elements. `size` is a number of bytes, and `end` isn't the end of the
/// elements: don't use them in a loop. Callers depend on the results of both, and on the order of
/// the virtual functions.
template <typename T, typename A>
class refvector {
    static_assert(std::is_trivially_copyable_v<T>, "elements are copied as bytes");

  public:
    refvector() = default;
    refvector(refvector const&) = delete;

    virtual bool empty() const { return m_block == nullptr || m_block->size == 0; }

    /// Returns the size of the block in bytes, including its header, or 0 without a block. It isn't
    /// the number of elements.
    virtual unsigned long size() const { return m_block != nullptr ? m_block->size : 0; }

    /// Returns the first element, or null without a block.
    virtual T* begin() { return elements(); }

    /// Returns the first element plus `size()` elements, an address after the end of the block. It
    /// isn't the end of the elements: their end is `begin() + count()`.
    virtual T* end() { return elements() + size(); }
    virtual T const* begin() const { return elements(); }
    virtual T const* end() const { return elements() + size(); }

    /// Returns element `i`. The index isn't checked.
    virtual T& operator[](unsigned long i) { return elements()[i]; }
    virtual T const& operator[](unsigned long i) const { return elements()[i]; }
    virtual T* operator->() { return elements(); }
    virtual T const* operator->() const { return elements(); }

    /// Shares the block of `other`.
    virtual refvector& operator=(refvector const& other);

    /// Moves to a new block of `n` elements. Copies the old elements that fit; the others are 0. If
    /// `n` is 0, empties the handle. Returns false if there isn't enough memory, and then nothing
    /// changes.
    virtual bool resize(unsigned long n);
    virtual void clear() { release(); }
    virtual ~refvector() { release(); }

    /// Returns the number of elements.
    unsigned long count() const {
        return m_block != nullptr ? (m_block->size - sizeof(block_t)) / sizeof(T) : 0;
    }

  private:
    struct alignas(alignof(std::max_align_t)) block_t {
        unsigned long refcount;
        unsigned long size;  ///< bytes of header and elements
        A allocator;
    };

    T* elements() const {
        return m_block != nullptr ? static_cast<T*>(static_cast<void*>(m_block + 1)) : nullptr;
    }
    void release();

    block_t* m_block = nullptr;
};

template <typename T, typename A>
refvector<T, A>& refvector<T, A>::operator=(refvector const& other) {
    if (m_block != other.m_block) {
        release();
        m_block = other.m_block;
        if (m_block != nullptr) {
            ++m_block->refcount;
        }
    }
    return *this;
}

template <typename T, typename A>
bool refvector<T, A>::resize(unsigned long n) {
    if (n == 0) {
        release();
        return true;
    }
    if (n > (std::numeric_limits<unsigned long>::max() - sizeof(block_t)) / sizeof(T)) {
        return false;
    }
    A allocator;
    unsigned long total = sizeof(block_t) + n * sizeof(T);
    void* const storage = allocator.allocate(total, nullptr, PROTECTION_READWRITE, 0, nullptr);
    if (A::failed(storage)) {
        return false;
    }
    block_t* const block = new (storage) block_t{1, total, allocator};
    unsigned long const kept = min2(n, count());
    std::memset(static_cast<void*>(block + 1), 0, n * sizeof(T));
    if (kept != 0) {
        std::memcpy(static_cast<void*>(block + 1), elements(), kept * sizeof(T));
    }
    release();
    m_block = block;
    return true;
}

template <typename T, typename A>
void refvector<T, A>::release() {
    if (m_block != nullptr && --m_block->refcount == 0) {
        A allocator = m_block->allocator;
        allocator.deallocate(m_block);
    }
    m_block = nullptr;
}

}  // namespace libutils
