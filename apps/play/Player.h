#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "ControlDriver.h"
#include "StepSource.h"

namespace mavCycEd::play {

/// Runs a scenario's steps against one control and writes what they show, one JSON object per line.
class Player {
 public:
  Player(ControlDriver& driver, std::ostream& output) : driver_(driver), output_(output) {}

  /// Runs the scenario to its end, or to the first step that is unknown or that a user could not do: that one is
  /// written as an error. True when all steps ran. A step that opens the variable dialog lasts until the dialog closes;
  /// the steps meanwhile are the user's in the dialog.
  bool play(StepSource& steps);

 private:
  class Words;
  using Action = void (Player::*)(Words&);
  enum class Reach { Control, Dialog };  // what a step works on while the dialog is open
  struct Command {
    std::string_view name;
    Action action;
    Reach reach;
  };
  static const Command commands[];

  template <typename GoOn>
  void playWhile(StepSource& steps, const GoOn& goOn);
  void playDialog(StepSource& steps);
  void run(const Step& step);
  void setConfigXML(Words& words);
  void setXMLStrings(Words& words);
  void ignoreHidden(Words& words);
  void resetCycle(Words& words);
  void cycleChanged(Words& words);
  void retrieveCycle(Words& words);
  void macroString(Words& words);
  void choose(Words& words);
  void leave(Words& words);
  void press(Words& words);
  void hover(Words& words);
  void context(Words& words);
  void menu(Words& words);
  void close(Words& words);
  void edit(Words& words);
  void type(Words& words);
  void select(Words& words);
  void doubleClick(Words& words);
  void click(Words& words);
  void undo(Words& words);
  void redo(Words& words);
  void tick(Words& words);
  void show(Words& words);

  ControlDriver& driver_;
  std::ostream& output_;
  bool refused_ = false;
};

}  // namespace mavCycEd::play
