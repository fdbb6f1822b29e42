#pragma once

#include <memory>

namespace mavCycEd::memory {

/// A member by which a control's own functions find out whether the control is still there after it told an event: the
/// handler may have destroyed it.
class Lifetime {
 public:
  Lifetime() = default;
  ~Lifetime() = default;
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

  /// Keeps an eye on an object; false when it is gone.
  class Watch {
   public:
    explicit Watch(const Lifetime& lifetime) : token_(lifetime.token_) {}
    explicit operator bool() const { return !token_.expired(); }

   private:
    std::weak_ptr<char> token_;
  };

 private:
  std::shared_ptr<char> token_ = std::make_shared<char>();
};

}  // namespace mavCycEd::memory
