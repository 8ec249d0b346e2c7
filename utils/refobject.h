// SPDX-License-Identifier: MIT
// A reference-counted pointer to one object.
#pragma once

#include <utility>

namespace libutils {

/// A pointer whose copies share one object. The last copy destroys the object. The pointer is null
/// before `create`.
///
/// The object and its count are in one allocation. The count isn't atomic: all copies must be used
/// by one thread.
template <typename T>
class refobject {
  public:
    refobject() = default;
    refobject(refobject const& other) : m_record(other.m_record) { addref(); }
    refobject(refobject&& other) noexcept : m_record(std::exchange(other.m_record, nullptr)) {}
    ~refobject() { clear(); }

    refobject& operator=(refobject const& other) {
        refobject(other).swap(*this);
        return *this;
    }
    refobject& operator=(refobject&& other) noexcept {
        refobject(std::move(other)).swap(*this);
        return *this;
    }

    /// Replaces the object by a new one, which isn't shared. Passes `arguments` to its constructor.
    /// Throws std::bad_alloc or the exceptions of the constructor. The pointer is then unchanged.
    template <typename... Arguments>
    T& create(Arguments&&... arguments) {
        record_t* const record = new record_t{1, T(std::forward<Arguments>(arguments)...)};
        clear();
        m_record = record;
        return record->object;
    }

    /// Sets the pointer to null. The object is destroyed if this was its last pointer.
    void clear() {
        record_t* const record = std::exchange(m_record, nullptr);
        if (record != nullptr && --record->refcount == 0) {
            delete record;
        }
    }

    void swap(refobject& other) noexcept { std::swap(m_record, other.m_record); }

    /// Returns the object, or null. A const pointer doesn't make the object const.
    T* get() const { return m_record != nullptr ? &m_record->object : nullptr; }
    T* operator->() const { return get(); }
    T& operator*() const { return *get(); }
    explicit operator bool() const { return m_record != nullptr; }

    /// Returns the number of pointers that share the object, or 0 for a null pointer.
    unsigned long refcount() const { return m_record != nullptr ? m_record->refcount : 0; }

  private:
    struct record_t {
        unsigned long refcount;
        T object;
    };

    void addref() {
        if (m_record != nullptr) {
            ++m_record->refcount;
        }
    }

    record_t* m_record = nullptr;
};

}  // namespace libutils
