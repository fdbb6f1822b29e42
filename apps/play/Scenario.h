#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "StepSource.h"

namespace mavCycEd::play {

/// A scenario file: UTF-8, one step a line; blank lines and lines that start with "#" are skipped; words are separated
/// by blanks. A text is a JSON string literal, or `@NAME` for the content of a file beside the scenario, byte for byte.
class Scenario : public StepSource {
 public:
  /// Reads the file; std::runtime_error when it cannot be read.
  explicit Scenario(const std::filesystem::path& file);

  bool hasNext() override;
  int nextLine() const override { return line_ + 1; }
  /// The next step. A line that is no step (a literal that does not end, a file that is not there) is a StepRefused.
  Step next() override;

  /// The step that a line holds; files are looked for in `folder`.
  static Step parsed(std::string_view line, const std::filesystem::path& folder = {});

 private:
  std::filesystem::path folder_;
  std::vector<std::string> lines_;
  int line_ = 0;  // lines taken so far
};

}  // namespace mavCycEd::play
