#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace mavCycEd::text {

/// Finds the first item of exactly a text in a list that mostly grows at its end, without looking through it. It costs
/// nothing until it is asked, and a copy of the items' texts from then on.
class FirstIndex {
 public:
  /// The index of the first item that is the text, -1 when there is none. The items are those of the last call, perhaps
  /// with more at the end; forget() comes between when they are not.
  int of(std::string_view text, const std::vector<std::string>& items);
  /// The items are others from now on.
  void forget();

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };

  std::unordered_map<std::string, int, Hash, std::equal_to<>> first_;
  std::size_t known_ = 0;  // so many items are in it
};

}  // namespace mavCycEd::text
