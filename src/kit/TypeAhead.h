#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace mavCycEd::kit {

/// Finds the item of a list that begins with what is typed without a pause, in letters of either case. The same
/// character again and again goes from one item to the next.
class TypeAhead {
 public:
  using Time = std::chrono::milliseconds;

  /// The list that is searched.
  struct Items {
    int count = 0;
    int current = -1;
    std::function<std::string(int index)> text;
  };

  /// `pause`: what is typed after it begins anew.
  explicit TypeAhead(Time pause) : pause_(pause) {}

  /// A character was typed at a time. The item to select, -1 for none; it may be the current one.
  int type(std::string_view character, Time now, const Items& items);
  /// The next character begins anew: something else was done in between.
  void restart() { typed_.clear(); }

 private:
  Time pause_;
  Time last_{};
  std::string typed_;
};

}  // namespace mavCycEd::kit
