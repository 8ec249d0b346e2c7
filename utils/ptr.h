// SPDX-License-Identifier: MIT
// An owning pointer to an object of a polymorphic class.
#pragma once

#include <utility>

namespace libutils {

/// Owns an object, or is null. The class needs a virtual destructor. The pointer can't be copied.
template <typename T>
class ptr_t {
  public:
    constexpr ptr_t() = default;
    ptr_t(ptr_t const&) = delete;
    ptr_t& operator=(ptr_t const&) = delete;
    ~ptr_t() { free(); }

    /// Destroys the object and becomes the owner of `object`, which may be null.
    ptr_t& operator=(T* object) {
        if (object != m_object) {
            free();
            m_object = object;
        }
        return *this;
    }

    /// Destroys the object. The pointer is null afterwards.
    void free() { delete std::exchange(m_object, nullptr); }

    bool operator!() const { return m_object == nullptr; }
    operator T*() const { return m_object; }
    T* operator->() const { return m_object; }

  private:
    T* m_object = nullptr;
};

}  // namespace libutils
