#pragma once

#include <memory>

namespace mavCycEd::kit {

/// A member by which an object's own functions find out whether the object has survived a call that may have destroyed
/// it, as the answer to an event may.
class Lifeline {
 public:
  Lifeline() = default;
  ~Lifeline() = default;
  Lifeline(const Lifeline&) = delete;
  Lifeline& operator=(const Lifeline&) = delete;

  /// Keeps an eye on the object; false when it is gone.
  class Watch {
   public:
    explicit Watch(const Lifeline& line) : life_(line.life_) {}
    explicit operator bool() const { return !life_.expired(); }

   private:
    std::weak_ptr<const char> life_;
  };

  Watch watch() const { return Watch(*this); }

 private:
  std::shared_ptr<const char> life_ = std::make_shared<const char>();
};

}  // namespace mavCycEd::kit
