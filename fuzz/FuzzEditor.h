#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/HeadlessEditor.h"
#include "memory/MemoryServices.h"

namespace mavCycEd::fuzz {

/// The services of an editor in memory, at a time that stands still.
struct FuzzPlatform {
  PlatformServices services() { return {xml, messageBox, systemMessage, codePage, clock}; }

  std::vector<std::string> messages;
  libxml2::Libxml2DocumentFactory xml;
  memory::MemoryMessageBox messageBox{
      [this](std::string_view message, std::string_view, int) { messages.emplace_back(message); }};
  memory::StandardSystemMessage systemMessage;
  memory::Utf8CodePage codePage;
  memory::StandingClock clock{"2024-03-09T14:05:00"};
};

/// An editor without a window that remembers what it told the host and the operator.
class FuzzEditor {
 public:
  FuzzEditor() = default;
  FuzzEditor(std::string_view catalogue, std::string_view configuration, std::string_view cycle);
  FuzzEditor(const FuzzEditor&) = delete;
  FuzzEditor& operator=(const FuzzEditor&) = delete;

  EditorControl& control() { return headless_.control(); }
  memory::MemoryScreen& screen() { return headless_.screen(); }

  /// Whether a procedure reported an error.
  bool hasFailed(std::string_view procedure) const;
  /// The procedures that reported an error and what they said, one a line.
  std::string failures() const;

  FuzzPlatform platform;
  std::vector<CycleEditorErrorEvent> errors;

 private:
  memory::HeadlessEditor headless_{platform.services(),
                                   [this](const CycleEditorErrorEvent& event) { errors.push_back(event); }};
};

/// The bytes of an input as a text.
inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// The content of a file of the repository, which is read once; the program ends when it cannot be read.
const std::string& fileOf(const std::string& name);

/// The lines that the atom lines should be shown as, without their indents, are the lines that are shown.
void requireListShowsAtoms(const std::vector<std::string>& shown, const cAtoms& atoms);

}  // namespace mavCycEd::fuzz
