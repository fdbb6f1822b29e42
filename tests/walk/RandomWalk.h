#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <string_view>

#include "ControlDriver.h"
#include "StepSource.h"

namespace mavCycEd::walk {

/// Steps of an operator who does anything that the screen lets one do, and of a host that loads anything. The same seed
/// gives the same steps. Behind each step the screen is shown, and the dialog that is open; at the end all steps are
/// undone and done again, and the cycle is handed back.
class RandomWalk : public play::StepSource {
 public:
  /// What a walk hears and tells: the line that the player wrote last, and each of its own steps before it is taken, as
  /// a line of a scenario file.
  struct Surroundings {
    std::function<std::string()> lastLine;
    std::function<void(const std::string& line)> onStep;
  };

  /// `samples` is the folder of the sample instrument.
  RandomWalk(const play::ControlDriver& driver, Surroundings surroundings, std::filesystem::path samples, unsigned seed,
             int steps);

  bool hasNext() override { return !pending_.empty() || !handedBack_; }
  int nextLine() const override { return lines_ + 1; }
  play::Step next() override;

 private:
  std::string nextStep();
  std::string lastStep();
  std::string stepInHistory();
  bool canDo(const char* direction) const;
  void showAll();
  std::string stepOnScreen();
  std::string stepOnDisabledScreen();
  std::string stepInDialog();
  std::string stepInSettings();
  std::string stepInGrid();
  std::string stepInList();
  std::string stepOfHost();
  std::string loading();
  std::string stepInPopup(int entries);
  std::string randomValue(const play::GridRowView& row);

  int upTo(int highest);
  template <typename Items>
  const auto& oneOf(const Items& items);

  const play::ControlDriver& driver_;
  Surroundings surroundings_;
  std::filesystem::path samples_;
  std::mt19937 random_;
  int stepsLeft_;
  int stepsInDialog_ = 0;
  int lines_ = 0;
  bool loaded_ = true;               // the last step loaded a cycle
  bool goesBack_ = false;            // all steps are undone now
  bool undone_ = false;              // the walk is at its end, and all its steps are undone
  bool handedBack_ = false;          // the walk is at its end
  bool answered_ = false;            // what the last step wrote has been looked at
  std::string answer_;               // the line that the last step wrote
  std::deque<std::string> pending_;  // what is to come before the next step
};

}  // namespace mavCycEd::walk
