#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/ListLines.h"

namespace mavCycEd::test {

/// Lines that a test keeps, and how often they were asked for what takes a look at all of them.
class TestLines : public platform::ListLines {
 public:
  TestLines() = default;
  explicit TestLines(std::vector<std::string> lines) : texts(std::move(lines)) {}

  int count() const override { return static_cast<int>(texts.size()); }
  std::string text(int index) const override { return texts.at(static_cast<std::size_t>(index)); }
  int longest() const override {
    ++longestAsked;
    const auto found = std::ranges::max_element(texts, {}, &std::string::size);
    return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
  }

  /// Lines go and come, as the owner of lines changes them before it tells a list.
  void splice(int at, int removed, const std::vector<std::string>& added) {
    const auto place = texts.begin() + at;
    texts.insert(texts.erase(place, place + removed), added.begin(), added.end());
  }

  std::vector<std::string> texts;
  mutable int longestAsked = 0;
};

}  // namespace mavCycEd::test
