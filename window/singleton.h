// SPDX-License-Identifier: MIT
// A class with one instance that can be reached from everywhere.
#pragma once

namespace wenk {

/// Base of a class `T` of which one instance exists; nothing guards against a second one.
template <typename T>
class singleton {
  public:
    singleton(singleton const&) = delete;
    singleton& operator=(singleton const&) = delete;

    /// The instance, or null outside its lifetime.
    static T* getSingleton() { return ms_singleton; }

  protected:
    singleton() { ms_singleton = static_cast<T*>(this); }
    ~singleton() { ms_singleton = nullptr; }

  private:
    static inline T* ms_singleton = nullptr;
};

}  // namespace wenk
