// SPDX-License-Identifier: MIT
// Reference-counted arrays over an allocator's storage, and windows of any element type into it.
#pragma once

#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "utils/allocator.h"
#include "utils/bits.h"

namespace libutils {

/// `position` bytes behind the start of a storage, and null without one.
void* byte_address(void* storage, unsigned long position);

/// One storage and the count of the handles on it. It doesn't know the element type, so that
/// handles of different types can look into one mapped file.
template <typename A>
struct shared_block_t {
    unsigned long refcount = 1;
    unsigned long size = 0;  ///< bytes
    A allocator;
    void* data = nullptr;  ///< null where `size` is 0

    shared_block_t() = default;
    shared_block_t(shared_block_t const&) = delete;
    shared_block_t& operator=(shared_block_t const&) = delete;
    ~shared_block_t() { allocator.deallocate(data); }

    /// A block of `bytes` bytes from the allocator, or null. With a path and 0 bytes it takes the
    /// file's size. A failed mapping is refused unless it is one of 0 bytes, which needs no
    /// storage.
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

/// A handle on a shared array of T. Copies share the block, and nothing is copied until a resize.
/// Counts are in elements. Nothing throws and nothing is reported but by results. One thread only.
template <typename T, typename A>
class refvector2 {
    static_assert(std::is_trivially_copyable_v<T>, "elements are copied as bytes");

  public:
    refvector2() = default;
    refvector2(refvector2 const& other) { hold(other.m_block); }
    refvector2& operator=(refvector2 const& other) {
        hold(other.m_block);
        return *this;
    }

    /// No block, or one of 0 bytes.
    virtual bool empty() const { return m_block == nullptr || m_block->size == 0; }

    /// Whole elements that the storage holds.
    virtual unsigned long size() const { return storage_bytes() / sizeof(T); }

    /// The first element, or null where there is no storage.
    virtual T* begin() { return at_byte(0); }
    virtual T* end() { return at_byte(storage_bytes() / sizeof(T) * sizeof(T)); }
    virtual T const* begin() const { return at_byte(0); }
    virtual T const* end() const { return at_byte(storage_bytes() / sizeof(T) * sizeof(T)); }

    /// Element `i`, with no bounds check.
    virtual T& operator[](unsigned long i) { return at_byte(0)[i]; }
    virtual T const& operator[](unsigned long i) const { return at_byte(0)[i]; }
    virtual T* operator->() { return at_byte(0); }
    virtual T const* operator->() const { return at_byte(0); }

    /// Fills the handle with `number` elements of a file from byte `offset` on, or of new storage
    /// where `path` is null. A `number` of 0 with a path means the whole file; an empty file loads
    /// as an empty array. With `keep` and a `number`, the old contents overwrite the start of the
    /// new block, and of the file that it maps; a read-only mapping fails. With `keep`, a failure
    /// leaves the handle as it was. Without `keep`, the handle is emptied first. Returns false on
    /// failure.
    virtual bool load(unsigned long number, char const* path, e_prot_t prot,
                      unsigned long long offset, bool keep, android_app* app);

    /// Gives the block's storage another size, for all handles on it; without a block, takes new
    /// storage. False when it can't be had, and then nothing changes, or for a block of 0 elements.
    virtual bool resize(unsigned long number, unsigned long long offset);
    virtual void clear() { deallocate(); }
    virtual ~refvector2() { deallocate(); }

    bool is_allocated() const { return m_block != nullptr; }

    /// Whether the elements may be written to: false for a read-only mapping and without a block.
    bool is_writable() const { return m_block != nullptr && m_block->allocator.writable(); }

    /// How many handles share the block; 0 without one.
    unsigned long refcount() const { return m_block != nullptr ? m_block->refcount : 0; }

    /// Takes a new block of `number` elements in place of the present one.
    bool allocate(unsigned long number, char const* path, e_prot_t prot,
                  unsigned long long offset) {
        return refvector2::load(number, path, prot, offset, false, nullptr);
    }

    /// Gives up this handle's share. The handle is empty afterwards.
    void deallocate() { hold(nullptr); }

    /// Shares the block of a handle of another element type.
    template <typename U>
    void share(refvector2<U, A> const& other) {
        hold(other.m_block);
    }

  protected:
    using block_t = shared_block_t<A>;

    static bool bytes_of(unsigned long number, unsigned long& bytes) {
        bytes = number * sizeof(T);
        return number <= std::numeric_limits<unsigned long>::max() / sizeof(T);
    }
    unsigned long storage_bytes() const { return m_block != nullptr ? m_block->size : 0; }

    T* at_byte(unsigned long position) const {
        return static_cast<T*>(
            byte_address(m_block != nullptr ? m_block->data : nullptr, position));
    }

    /// Lets go of the present block, unless it is `block`, and shares `block`.
    void hold(block_t* block) {
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

    /// Takes over a block that has no other handle.
    void install(std::unique_ptr<block_t> block) {
        deallocate();
        m_block = block.release();
    }

    block_t* m_block = nullptr;

    template <typename U, typename B>
    friend class refvector2;
};

/// A window of `count` elements into a shared block, from byte `offset` on. Several windows, also
/// of different element types, can look into one block: assign or `share` it, then set the two
/// fields. A window that reaches beyond the block shows what is there of it.
template <typename T, typename A>
class ofsvector : public refvector2<T, A> {
    using base = refvector2<T, A>;
    using typename base::block_t;

  public:
    /// The value of `count` that means up to the end of the storage.
    static constexpr unsigned long to_end = ~0UL;

    unsigned long offset = 0;      ///< bytes from the start of the storage to element 0
    unsigned long count = to_end;  ///< elements

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

    /// As the base's, and the window then is the whole storage, on failure the old one.
    bool load(unsigned long number, char const* path, e_prot_t prot, unsigned long long position,
              bool keep, android_app* app) override;

    /// Moves to a private, writable block of `number` elements, with the window's bytes in front as
    /// far as they fit; other handles keep theirs. The window then is the whole storage. False when
    /// the storage can't be had, and then nothing changes.
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
    // A whole file is loaded for its own bytes, so the old contents must not go over them.
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
    // The window's length limits the copy as a number of bytes, whatever the element's size.
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
