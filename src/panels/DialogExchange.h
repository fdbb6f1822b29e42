#pragma once

#include <string>

namespace mavCycEd {

/// What the variables' commands and the variable dialog tell each other.
struct DialogExchange {
  bool editMode = false;   ///< an existing entry is being edited
  std::string editedText;  ///< the text of that entry; empty when a variable is added
  std::string resultText;  ///< the new definition text after OK; empty when the dialog was cancelled
};

}  // namespace mavCycEd
