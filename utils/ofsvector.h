// SPDX-License-Identifier: MIT
// Reference-counted arrays that can map files, and windows of any element type into them.
#pragma once

/// Maps a file without copying it, and reads its last two bytes:
///
/// ```cpp
/// #include "utils/ofsvector.h"
///
/// using bytes_t = libutils::ofsvector<unsigned char, libutils::alloc_mmap_unix>;
/// bytes_t file;
/// bool const is_loaded = file.load(0, "a.jpg", libutils::PROTECTION_READ, 0, false, nullptr);
/// if (is_loaded && file.size() >= 2) {
///     bytes_t tail = file;  // shares the mapping
///     tail.offset = file.size() - 2;
///     bool const is_complete = tail[0] == 0xFF && tail[1] == 0xD9;
/// }
/// ```
///
/// The mapping is removed, and the file closed, with the last handle that shares it. For a new
/// array instead of a file, call `resize(number, 0)`.
///
/// Functions don't throw and print nothing: they return false on failure. The reference counts
/// aren't atomic: all handles on one block must be used by one thread. With `alloc_mmap_unix`, one
/// thread must load, resize and free all arrays of the program, because they share the list of
/// guarded mappings and a spare block.

#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "utils/allocator.h"
#include "utils/bits.h"

namespace libutils {

/// Returns the address `position` bytes after the start of `storage`, or null if `storage` is null.
void* byte_address(void* storage, unsigned long position);

/// A block of memory and the number of handles that share it. It doesn't depend on the element
/// type, so handles of different types can share one mapped file.
template <typename A>
struct shared_block_t {
    unsigned long refcount = 1;
    unsigned long size = 0;  ///< bytes
    A allocator;
    void* data = nullptr;  ///< null if `size` is 0

    shared_block_t() = default;
    shared_block_t(shared_block_t const&) = delete;
    shared_block_t& operator=(shared_block_t const&) = delete;
    ~shared_block_t() { allocator.deallocate(data); }

    /// Returns a block of `bytes` bytes from the allocator, or null on failure. With a path, 0
    /// bytes mean all bytes from `offset` to the end of the file. If the size is 0, a failed
    /// mapping counts as success, because no memory is needed.
    static std::unique_ptr<shared_block_t> make(unsigned long bytes, char const* path,
                                                e_prot_t prot, unsigned long long offset,
                                                android_app* app) {
        std::unique_ptr<shared_block_t> block(new (std::nothrow) shared_block_t);
        if (block == nullptr) {
            return nullptr;
        }
        block->size = bytes;
        void* const data = block->allocator.allocate(block->size, path, prot, offset, app);
        if (data == nullptr || (A::failed(data) && block->size != 0)) {
            return nullptr;
        }
        block->data = A::failed(data) ? nullptr : data;
        return block;
    }
};

/// A handle on a shared array of T. Copies of a handle share the block; no elements are copied.
/// Numbers and sizes are in elements, unless their comments say otherwise. New elements are 0 with
/// `alloc_mmap_unix`, and undefined with `alloc_new`.
template <typename T, typename A>
class refvector2 {
    static_assert(std::is_trivially_copyable_v<T>, "elements are copied as bytes");

  public:
    refvector2() = default;
    refvector2(refvector2 const& other) { set_block(other.m_block); }
    refvector2& operator=(refvector2 const& other) {
        set_block(other.m_block);
        return *this;
    }

    /// Returns true if there is no block or if the block has 0 bytes.
    virtual bool empty() const { return m_block == nullptr || m_block->size == 0; }

    /// Returns the number of whole elements in the block.
    virtual unsigned long size() const { return storage_bytes() / sizeof(T); }

    /// Return the range of the elements. Both are null if there is no block or if it has 0 bytes.
    virtual T* begin() { return at_byte(0); }
    virtual T* end() { return at_byte(storage_bytes() / sizeof(T) * sizeof(T)); }
    virtual T const* begin() const { return at_byte(0); }
    virtual T const* end() const { return at_byte(storage_bytes() / sizeof(T) * sizeof(T)); }

    /// Returns element `i`. The index isn't checked.
    virtual T& operator[](unsigned long i) { return at_byte(0)[i]; }
    virtual T const& operator[](unsigned long i) const { return at_byte(0)[i]; }
    virtual T* operator->() { return at_byte(0); }
    virtual T const* operator->() const { return at_byte(0); }

    /// Loads `number` elements of the file at `path`, starting at byte `offset`. If `number` is 0,
    /// loads all bytes from `offset` to the end; an empty file gives an empty array. If `path` is
    /// null, allocates `number` new elements.
    ///
    /// With `alloc_mmap_unix`, `offset` must be a multiple of the page size. Writing to a
    /// PROTECTION_READ mapping raises SIGSEGV; writing to a PROTECTION_READWRITE mapping changes
    /// the file. `alloc_new` accepts more; see utils/allocator.h. `app` may be null.
    ///
    /// If `keep` is false, the handle is emptied first. If `keep` is true, the old elements are
    /// copied over the start of the new block. If it maps a file, this changes the file, and fails
    /// for a read-only mapping. If `number` is 0, the old elements are dropped. With `keep`,
    /// nothing changes on failure.
    ///
    /// Returns false on failure: the file can't be opened, it has fewer elements, or there isn't
    /// enough memory. Sets errno if a system call failed, for example to EINVAL for a misaligned
    /// `offset`, but not for too few elements. Records no reason; see `reject_errno`.
    virtual bool load(unsigned long number, char const* path, e_prot_t prot,
                      unsigned long long offset, bool keep, android_app* app);

    /// Changes the number of elements for all handles on the block. Pointers and references to
    /// elements become invalid. Without a block, allocates one.
    ///
    /// A read-only file mapping becomes a writable copy in memory; the file isn't changed. For a
    /// writable file mapping, `offset` is the byte of the file at which the new mapping starts, and
    /// the old elements are copied over this part of the file. Otherwise pass 0.
    ///
    /// Returns false, and changes nothing, if there isn't enough memory or a writable file doesn't
    /// have the range. With `alloc_mmap_unix`, `resize(0, 0)` of a block also returns false, but
    /// empties the block.
    virtual bool resize(unsigned long number, unsigned long long offset);
    virtual void clear() { deallocate(); }
    virtual ~refvector2() { deallocate(); }

    bool is_allocated() const { return m_block != nullptr; }

    /// Returns true if the elements may be written to. Returns false for a read-only mapping, and
    /// if there is no block.
    bool is_writable() const { return m_block != nullptr && m_block->allocator.writable(); }

    /// Returns the number of handles that share the block, or 0 if there is none.
    unsigned long refcount() const { return m_block != nullptr ? m_block->refcount : 0; }

    /// Replaces the block by a new one. See `load`.
    bool allocate(unsigned long number, char const* path, e_prot_t prot,
                  unsigned long long offset) {
        return refvector2::load(number, path, prot, offset, false, nullptr);
    }

    /// Empties the handle. The block is freed if no other handle shares it.
    void deallocate() { set_block(nullptr); }

    /// Shares the block of a handle with another element type. Doesn't change the `offset` and the
    /// `count` of an `ofsvector`.
    template <typename U>
    void share(refvector2<U, A> const& other) {
        set_block(other.m_block);
    }

  protected:
    using block_t = shared_block_t<A>;

    /// Sets `bytes` to the size of `number` elements. Returns false if it overflows.
    static bool bytes_of(unsigned long number, unsigned long& bytes) {
        bytes = number * sizeof(T);
        return number <= std::numeric_limits<unsigned long>::max() / sizeof(T);
    }
    unsigned long storage_bytes() const { return m_block != nullptr ? m_block->size : 0; }

    T* at_byte(unsigned long position) const {
        return static_cast<T*>(
            byte_address(m_block != nullptr ? m_block->data : nullptr, position));
    }

    /// Shares `block` instead of the current block, which is freed if no other handle shares it.
    void set_block(block_t* block) {
        if (block == m_block) {
            return;
        }
        if (m_block != nullptr && --m_block->refcount == 0) {
            delete m_block;
        }
        m_block = block;
        if (m_block != nullptr) {
            ++m_block->refcount;
        }
    }

    /// Takes over a new block, which has no other handle.
    void install(std::unique_ptr<block_t> block) {
        deallocate();
        m_block = block.release();
    }

    block_t* m_block = nullptr;

    template <typename U, typename B>
    friend class refvector2;
};

/// A window into a shared block: `count` elements, starting at byte `offset`.
///
/// Several windows, also with different element types, can share one block: assign the handle, or
/// call `share`, then set `offset` and `count`. A window is clamped to the last whole element,
/// counted from the start of the block, so the range from `begin` to `end` is always valid.
template <typename T, typename A>
class ofsvector : public refvector2<T, A> {
    using base = refvector2<T, A>;
    using typename base::block_t;

  public:
    /// The value of `count` for all elements up to the end of the block.
    static constexpr unsigned long to_end = ~0UL;

    unsigned long offset = 0;      ///< bytes from the start of the block to element 0
    unsigned long count = to_end;  ///< elements

    /// Returns true if there are no bytes in the block or `count` is 0. A window past the end of
    /// the block isn't `empty`: test `size() == 0`.
    bool empty() const override { return base::empty() || count == 0; }
    unsigned long size() const override {
        unsigned long const whole = base::size() * sizeof(T);
        return whole > offset ? min2((whole - offset) / sizeof(T), count) : 0;
    }

    T* begin() override { return first(); }
    T* end() override { return first() + size(); }
    T const* begin() const override { return first(); }
    T const* end() const override { return first() + size(); }
    T& operator[](unsigned long i) override { return begin()[i]; }
    T const& operator[](unsigned long i) const override { return begin()[i]; }
    T* operator->() override { return begin(); }
    T const* operator->() const override { return begin(); }

    /// Loads like the function of the base class. The window is the whole block afterwards, also on
    /// failure.
    bool load(unsigned long number, char const* path, e_prot_t prot, unsigned long long position,
              bool keep, android_app* app) override;

    /// Copies the window to a new, writable block of `number` elements. Other handles keep the old
    /// block. The window is the whole new block afterwards. Pass 0 as `position`: other values have
    /// no effect or fail.
    ///
    /// Copies at most `count` bytes, not elements, because callers depend on it. For elements of
    /// several bytes, set `count` to `to_end` first if all must be kept. Without a block, the
    /// function does the same as that of the base class.
    ///
    /// Returns false, and changes nothing, if there isn't enough memory. `resize(0, 0)` succeeds.
    bool resize(unsigned long number, unsigned long long position) override;
    void clear() override {
        base::clear();
        show_all();
    }

  private:
    T* first() const { return this->at_byte(min2(offset, this->storage_bytes())); }
    void show_all() {
        offset = 0;
        count = to_end;
    }
};

template <typename T, typename A>
bool refvector2<T, A>::load(unsigned long number, char const* path, e_prot_t prot,
                            unsigned long long offset, bool keep, android_app* app) {
    if (!keep) {
        deallocate();
    }
    unsigned long bytes = 0;
    auto block = bytes_of(number, bytes) ? block_t::make(bytes, path, prot, offset, app) : nullptr;
    if (block == nullptr) {
        return false;
    }
    // The old elements must not overwrite a file that is loaded as a whole.
    unsigned long const kept = number != 0 ? min2(storage_bytes(), block->size) : 0;
    if (kept != 0) {
        if (!block->allocator.writable()) {
            return false;
        }
        std::memcpy(block->data, m_block->data, kept);
    }
    install(std::move(block));
    return true;
}

template <typename T, typename A>
bool refvector2<T, A>::resize(unsigned long number, unsigned long long offset) {
    if (m_block == nullptr) {
        return allocate(number, nullptr, PROTECTION_READWRITE, 0);
    }
    unsigned long bytes = 0;
    if (!bytes_of(number, bytes)) {
        return false;
    }
    void* const data = m_block->allocator.reallocate(m_block->data, bytes, offset);
    if (A::failed(data) && bytes != 0) {
        return false;
    }
    m_block->size = bytes;
    m_block->data = A::failed(data) ? nullptr : data;
    return m_block->data != nullptr;
}

template <typename T, typename A>
bool ofsvector<T, A>::load(unsigned long number, char const* path, e_prot_t prot,
                           unsigned long long position, bool keep, android_app* app) {
    bool const loaded = base::load(number, path, prot, position, keep, app);
    show_all();
    return loaded;
}

template <typename T, typename A>
bool ofsvector<T, A>::resize(unsigned long number, unsigned long long position) {
    if (!this->is_allocated()) {
        return base::resize(number, position);
    }
    unsigned long bytes = 0;
    auto block = base::bytes_of(number, bytes)
                     ? block_t::make(bytes, nullptr, PROTECTION_READWRITE, position, nullptr)
                     : nullptr;
    if (block == nullptr) {
        return false;
    }
    // `count` is a number of bytes here; see the comment on the declaration.
    unsigned long const start = min2(offset, this->storage_bytes());
    unsigned long const kept = min2(bytes, min2(count, this->storage_bytes() - start));
    if (kept != 0) {
        std::memcpy(block->data, this->at_byte(start), kept);
    }
    this->install(std::move(block));
    show_all();
    return true;
}

extern template class refvector2<unsigned char, alloc_mmap_unix>;
extern template class ofsvector<unsigned char, alloc_mmap_unix>;

}  // namespace libutils
