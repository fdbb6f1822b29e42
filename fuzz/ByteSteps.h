#pragma once

#include <string>
#include <string_view>

#include "ControlDriver.h"
#include "StepSource.h"

namespace mavCycEd::fuzz {

/// Player steps made from bytes. Every line is one step: a letter that says which, and its numbers and its text, with
/// commas between them. A number that picks something is taken modulo the number of things there are, so that most
/// lines are a step that a user can do.
class ByteSteps : public play::StepSource {
 public:
  ByteSteps(const play::ControlDriver& driver, std::string_view bytes) : driver_(driver), rest_(bytes) {}

  bool hasNext() override { return !rest_.empty(); }
  int nextLine() const override { return lines_ + 1; }
  play::Step next() override;

  /// The letter of the step before.
  char letter() const { return letter_; }

 private:
  play::Step stepFor(std::string_view rest) const;

  const play::ControlDriver& driver_;
  std::string_view rest_;
  int lines_ = 0;
  char letter_ = ' ';
};

}  // namespace mavCycEd::fuzz
