// SPDX-License-Identifier: MIT
// The shared array for small tables: header and elements stand in one allocation.
#pragma once

#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>

#include "utils/allocator.h"
#include "utils/bits.h"

namespace libutils {

/// A handle on a reference-counted array of T. Handles come to share by assignment alone; a resize
/// always gives the handle a block of its own. One thread only.
template <typename T, typename A>
class refvector {
    static_assert(std::is_trivially_copyable_v<T>, "elements are copied as bytes");

  public:
    refvector() = default;
    refvector(refvector const&) = delete;

    virtual bool empty() const { return m_block == nullptr || m_block->size == 0; }

    /// The block's total in bytes, header included, and 0 without a block: users keep their own
    /// count of elements. See `count`.
    virtual unsigned long size() const { return m_block != nullptr ? m_block->size : 0; }

    /// The first element, or null without a block.
    virtual T* begin() { return elements(); }

    /// The first element plus `size()` elements, which lies behind the storage: not a bound to walk
    /// to.
    virtual T* end() { return elements() + size(); }
    virtual T const* begin() const { return elements(); }
    virtual T const* end() const { return elements() + size(); }

    /// Element `i`, with no bounds check.
    virtual T& operator[](unsigned long i) { return elements()[i]; }
    virtual T const& operator[](unsigned long i) const { return elements()[i]; }
    virtual T* operator->() { return elements(); }
    virtual T const* operator->() const { return elements(); }

    /// Shares the other's block.
    virtual refvector& operator=(refvector const& other);

    /// Takes a block of `n` elements of its own: as many old ones as fit, then zeros. False when
    /// there is no memory, and then nothing changes. With `n` 0 the handle becomes empty.
    virtual bool resize(unsigned long n);
    virtual void clear() { release(); }
    virtual ~refvector() { release(); }

    /// How many elements the storage holds.
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
