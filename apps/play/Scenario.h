#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd::play {

/// One step of a scenario: its line number, its words, and for each word whether it was a text.
struct Step {
  struct Word {
    std::string text;
    bool isText = false;  ///< a JSON string literal or the content of a file, not a bare word
  };
  int line = 0;
  std::vector<Word> words;
};

/// A scenario file: UTF-8, one step a line; blank lines and lines that start with "#" are skipped; words are separated
/// by blanks. A text is a JSON string literal, or `@NAME` for the content of a file beside the scenario, byte for byte.
class Scenario {
 public:
  /// Reads the file; std::runtime_error when it cannot be read.
  explicit Scenario(const std::filesystem::path& file);

  /// Whether there is a further line with a step.
  bool hasNext();
  /// The line number of the step that next() gives.
  int nextLine() const { return line_ + 1; }
  /// The next step. A line that is no step (a literal that does not end, a file that is not there) is a StepRefused.
  Step next();

 private:
  std::string contentOf(std::string_view name) const;

  std::filesystem::path folder_;
  std::vector<std::string> lines_;
  int line_ = 0;  // lines taken so far
};

}  // namespace mavCycEd::play
