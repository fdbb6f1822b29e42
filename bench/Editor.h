#pragma once

#include <memory>
#include <string>

#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/HeadlessEditor.h"
#include "memory/MemoryServices.h"

namespace mavCycEd::bench {

/// An editor without a window, with all it needs.
class Editor {
 public:
  EditorControl& control() { return editor_.control(); }
  memory::MemoryScreen& screen() { return editor_.screen(); }

 private:
  libxml2::Libxml2DocumentFactory xmlDocuments_;
  memory::MemoryMessageBox messageBox_;
  memory::StandardSystemMessage systemMessage_;
  memory::Utf8CodePage codePage_;
  memory::StandingClock clock_{"2024-03-09T14:05:00"};
  memory::HeadlessEditor editor_{{xmlDocuments_, messageBox_, systemMessage_, codePage_, clock_}};
};

/// An editor with the sample instrument and a cycle.
std::unique_ptr<Editor> loadedEditor(const std::string& cycle);

/// How long libxml2 takes to parse a text, blanks dropped, and how long to write the document out again.
double secondsToParse(const std::string& text);
double secondsToSerialise(const std::string& text);

}  // namespace mavCycEd::bench
