// SPDX-License-Identifier: MIT
// A pointer that owns one object.
#pragma once

#include <utility>

namespace libutils {

/// Owns one object that was created with `new`, or is null.
///
/// ```cpp
/// #include <string>
///
/// libutils::ptr_t<std::string> text;  // null
/// text = new std::string("a");        // becomes the owner
/// std::size_t const length = text->size();
/// text.free();  // destroys the object, as the end of the block would
/// ```
///
/// There is no constructor with an object. The pointer can't be copied, moved or returned from a
/// function, and it never gives up its object. Use std::unique_ptr to transfer an object.
///
/// T needs a virtual destructor if the object is of a class derived from T.
template <typename T>
class ptr_t {
  public:
    constexpr ptr_t() = default;
    ptr_t(ptr_t const&) = delete;
    ptr_t& operator=(ptr_t const&) = delete;
    ~ptr_t() { free(); }

    /// Destroys the old object and becomes the owner of `object`, which may be null. Does nothing
    /// if it owns `object` already.
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
