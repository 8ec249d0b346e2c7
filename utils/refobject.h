// SPDX-License-Identifier: MIT
// A reference-counted holder of one object, whose count and object stand in one record.
#pragma once

#include <utility>

namespace libutils {

/// Shares one heap record {count, T} among its copies. Null until `create`. The last holder
/// destroys the object. The count is a plain integer: one thread only.
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

    /// Lets go of the present object and holds a new one, made from `arguments`, with a count of 1.
    template <typename... Arguments>
    T& create(Arguments&&... arguments) {
        record_t* const record = new record_t{1, T(std::forward<Arguments>(arguments)...)};
        clear();
        m_record = record;
        return record->object;
    }

    /// Gives up this share. The holder is null afterwards.
    void clear() {
        record_t* const record = std::exchange(m_record, nullptr);
        if (record != nullptr && --record->refcount == 0) {
            delete record;
        }
    }

    void swap(refobject& other) noexcept { std::swap(m_record, other.m_record); }

    /// The object, or null. Constness doesn't pass through, as with a pointer.
    T* get() const { return m_record != nullptr ? &m_record->object : nullptr; }
    T* operator->() const { return get(); }
    T& operator*() const { return *get(); }
    explicit operator bool() const { return m_record != nullptr; }

    /// How many holders share the object; 0 for a null holder.
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
