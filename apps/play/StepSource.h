#pragma once

#include <string>
#include <vector>

namespace mavCycEd::play {

/// One step: its line number, its words, and for each word whether it was a text.
struct Step {
  struct Word {
    std::string text;
    bool isText = false;  ///< a JSON string literal or the content of a file, not a bare word
  };
  int line = 0;
  std::vector<Word> words;
};

/// Where a player's steps come from.
class StepSource {
 public:
  virtual ~StepSource() = default;

  /// Whether there is a further step.
  virtual bool hasNext() = 0;
  /// The line number of the step that next() gives.
  virtual int nextLine() const = 0;
  /// The next step. A line that is no step is a StepRefused.
  virtual Step next() = 0;
};

}  // namespace mavCycEd::play
