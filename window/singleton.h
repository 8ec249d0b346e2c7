// SPDX-License-Identifier: MIT
// A base class for classes with one global instance.
#pragma once

namespace wenk {

/// The base of a class `T` with one instance. Don't create a second one: it replaces the first in
/// `getSingleton`.
template <typename T>
class singleton {
  public:
    singleton(singleton const&) = delete;
    singleton& operator=(singleton const&) = delete;

    /// Returns the instance. Returns null before its construction and after its destruction.
    static T* getSingleton() { return ms_singleton; }

  protected:
    singleton() { ms_singleton = static_cast<T*>(this); }
    ~singleton() { ms_singleton = nullptr; }

  private:
    static inline T* ms_singleton = nullptr;
};

}  // namespace wenk
