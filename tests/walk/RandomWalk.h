#pragma once

#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "ControlDriver.h"
#include "StepSource.h"

namespace mavCycEd::walk {

/// Steps of an operator who does anything that the screen lets one do. The same seed gives the same steps. Behind each
/// step that changes something the screen is shown.
class RandomWalk : public play::StepSource {
 public:
  /// `lastLine` gives the line that the player wrote last; `samples` is the folder of the sample instrument.
  RandomWalk(const play::ControlDriver& driver, std::function<std::string()> lastLine, std::filesystem::path samples,
             unsigned seed, int steps);

  bool hasNext() override { return !pending_.empty() || stepsLeft_ > 0 || driver_.isDialogOpen(); }
  int nextLine() const override { return static_cast<int>(lines_.size()) + 1; }
  play::Step next() override;

  /// The lines of all steps so far, as a scenario file holds them.
  const std::vector<std::string>& lines() const { return lines_; }

 private:
  std::string stepOnScreen();
  std::string stepInDialog();
  std::string stepInGrid();
  std::string stepInList();
  std::string stepOfHost();
  std::string stepInPopup(int entries);
  std::string randomValue(const play::GridRowView& row);

  int upTo(int highest);
  template <typename Items>
  const auto& oneOf(const Items& items);

  const play::ControlDriver& driver_;
  std::function<std::string()> lastLine_;
  std::filesystem::path samples_;
  std::mt19937 random_;
  int stepsLeft_;
  int stepsInDialog_ = 0;
  std::vector<std::string> pending_;  // what shows the screen, last one first
  std::vector<std::string> lines_;
};

}  // namespace mavCycEd::walk
