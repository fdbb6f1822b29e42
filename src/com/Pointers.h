#pragma once

#include <cstddef>
#include <utility>

#include "com/Com.h"

namespace mavCycEd::com {

/// Throws E_POINTER unless so many bytes can be read there, written there. Callers late-bound and from other languages
/// do hand over pointers that lead nowhere; the system is asked about the pages and none is touched.
void requireReadable(const void* memory, std::size_t size);
void requireWritable(const void* memory, std::size_t size);

/// The variable of a caller that a result goes to, empty at first.
template <typename Result>
Result& out(Result* result) {
  requireWritable(result, sizeof *result);
  *result = Result();
  return *result;
}

/// A reference to a COM object, counted.
template <typename Interface>
class ComPtr {
 public:
  ComPtr() = default;
  explicit ComPtr(Interface* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() {
    if (object_ != nullptr) object_->Release();
  }

  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Where a function puts the reference that it gives away.
  Interface** put() {
    *this = ComPtr();
    return &object_;
  }
  void** putVoid() { return reinterpret_cast<void**>(put()); }
  /// The reference for a caller, who owns it from now on.
  Interface* detach() { return std::exchange(object_, nullptr); }

  /// Another interface of the object; empty when there is no object or it does not have that one.
  template <typename Other>
  ComPtr<Other> as() const {
    ComPtr<Other> other;
    if (object_ != nullptr) object_->QueryInterface(__uuidof(Other), other.putVoid());
    return other;
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace mavCycEd::com
