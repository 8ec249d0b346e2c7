// SPDX-License-Identifier: MIT
// An owning pointer to a polymorphic object that is replaced by assignment.
#pragma once

#include <utility>

namespace libutils {

/// Owns at most one object, whose class needs a virtual destructor. It isn't copied or counted.
template <typename T>
class ptr_t {
  public:
    constexpr ptr_t() = default;
    ptr_t(ptr_t const&) = delete;
    ptr_t& operator=(ptr_t const&) = delete;
    ~ptr_t() { free(); }

    /// Destroys what is held and takes over `object`, which may be null.
    ptr_t& operator=(T* object) {
        if (object != m_object) {
            free();
            m_object = object;
        }
        return *this;
    }

    /// Destroys what is held. The pointer is null afterwards.
    void free() { delete std::exchange(m_object, nullptr); }

    bool operator!() const { return m_object == nullptr; }
    operator T*() const { return m_object; }
    T* operator->() const { return m_object; }

  private:
    T* m_object = nullptr;
};

}  // namespace libutils
