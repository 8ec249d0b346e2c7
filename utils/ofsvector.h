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
/// Functions don't throw and print nothing: they return false on failure. No function of this
/// library needs a GL context.
///
/// Threads: the reference counts have no lock, so one thread must use all handles on one block.
/// With `alloc_mmap_unix`, one thread must load, resize and free all arrays of the program, because
/// they share the list of mappings and a spare block. Another thread may use a pointer from `begin`
/// as long as a handle keeps the block and doesn't resize it. If the pointer is into a mapped file
/// that may become shorter, free no other mapped file meanwhile: the handler for SIGBUS searches
/// the list.

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
    /// bytes mean all bytes from `offset` to the end of the file. A block of 0 bytes needs no
    /// memory: its `data` is null if the allocator can't make one.
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
/// Numbers and sizes are in elements, unless their comments say otherwise. The table in
/// utils/allocator.h lists the values of new elements.
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

    /// Replaces the block of this handle by a new one. Other handles keep the old block. Loads
    /// `number` elements of the file at `path`, starting at byte `offset`. If `number` is 0, loads
    /// all bytes from `offset` to the end; an empty file gives an empty array. If `path` is null,
    /// allocates `number` new elements; `offset` must be 0. `app` is ignored.
    ///
    /// The table in utils/allocator.h lists, for each allocator, the effect of `prot` and `offset`,
    /// the files that make the function fail, and whether the elements are writable.
    ///
    /// If `keep` is true and `number` isn't 0, the elements of the old block are copied over the
    /// start of the new one. This changes a file that is mapped with PROTECTION_READWRITE. It fails
    /// for PROTECTION_READ with `alloc_mmap_unix`, unless there are no old elements.
    ///
    /// Returns false on failure. Then:
    ///
    ///   block, `keep` is false    the handle has none
    ///   block, `keep` is true     unchanged
    ///   window of an `ofsvector`  the whole block, for both values of `keep`
    ///   errno                     set if a system call failed, for example to EINVAL for a wrong
    ///                             `offset`; not set for a file with too few elements
    ///   message                   none; see the example in utils/diagnostics.h
    virtual bool load(unsigned long number, char const* path, e_prot_t prot,
                      unsigned long long offset, bool keep, android_app* app);

    /// Changes the number of elements for all handles on the block. Pointers and references to
    /// elements become invalid. Without a block, allocates one.
    ///
    /// A read-only file mapping becomes a writable copy in memory; the file isn't changed. For a
    /// writable file mapping, `offset` is the byte of the file at which the new mapping starts, and
    /// the old elements are copied over this part of the file. Otherwise pass 0.
    ///
    /// Returns false, and changes nothing, if there isn't enough memory or if the writable file has
    /// too few bytes after `offset`. An exception: `resize(0, 0)` of a block with `alloc_mmap_unix`
    /// empties the block but returns false, because the result is true only if there is memory.
    virtual bool resize(unsigned long number, unsigned long long offset);
    virtual void clear() { deallocate(); }
    virtual ~refvector2() { deallocate(); }

    bool is_allocated() const { return m_block != nullptr; }

    /// Returns true if the elements may be written to. Returns false for a read-only mapping, and
    /// if there is no block.
    bool is_writable() const { return m_block != nullptr && m_block->allocator.writable(); }

    /// Returns the number of handles that share the block, or 0 if there is none.
    unsigned long refcount() const { return m_block != nullptr ? m_block->refcount : 0; }

    /// Calls `refvector2::load` with `keep` false. The window of an `ofsvector` doesn't change.
    bool allocate(unsigned long number, char const* path, e_prot_t prot,
                  unsigned long long offset) {
        return refvector2::load(number, path, prot, offset, false, nullptr);
    }

    /// Empties the handle. The block is freed if no other handle shares it.
    void deallocate() { set_block(nullptr); }

    /// Shares the block of a handle with another element type. Doesn't change the window
    /// of an `ofsvector`.
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
/// call `share`, then set `offset` and `count`. Assignment copies the window; `share` doesn't.
///
/// `offset` must be a multiple of alignof(T). It needn't be a multiple of sizeof(T). `begin` and
/// `end` are always in the block or at its end. Bytes after the last whole element, counted from
/// the start of the block, are in no window. Example: a block of 10 bytes with packed elements of 4
/// bytes.
///
///   `offset`   `size()`
///   0          2
///   2          1          bytes 2 to 5: the whole elements of the block end at byte 8
///   8          0
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

    /// See `refvector2::load`. The window is the whole block afterwards, also on failure.
    bool load(unsigned long number, char const* path, e_prot_t prot, unsigned long long position,
              bool keep, android_app* app) override;

    /// Copies the window to a new, writable block of `number` elements. Other handles keep the old
    /// block. The window is the whole new block afterwards. Without a block, allocates one and
    /// doesn't change the window. `position` must be 0.
    ///
    /// Copies at most `count` bytes, not elements, because callers depend on it. For elements of
    /// several bytes, set `count` to `to_end` first if all must be kept.
    ///
    /// Returns false, and changes nothing, if there isn't enough memory. `resize(0, 0)` succeeds,
    /// unlike `refvector2::resize`.
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
