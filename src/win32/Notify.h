#pragma once

#include <functional>
#include <memory>

namespace mavCycEd::win32 {

/// Tells an owner's handler, if there is one. The handler may take the handlers back and may destroy the control that
/// raised the event: what is called is a copy, and the caller touches nothing of its own afterwards.
template <typename... Expected, typename... Given>
void tell(std::function<void(Expected...)> handler, const Given&... arguments) {
  if (handler) handler(arguments...);
}

/// Lets a member function find out whether its object has survived a call that may have destroyed it.
class Lifeline {
 public:
  class Watch {
   public:
    explicit Watch(const Lifeline& line) : life_(line.life_) {}
    /// Whether the object still lives.
    explicit operator bool() const { return !life_.expired(); }

   private:
    std::weak_ptr<int> life_;
  };

  Watch watch() const { return Watch(*this); }

 private:
  std::shared_ptr<int> life_ = std::make_shared<int>();
};

}  // namespace mavCycEd::win32
