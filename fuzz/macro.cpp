// Any macro text, on a laboratory's instrument. The input is the text behind its header.
#include <algorithm>
#include <string>
#include <vector>

#include "FuzzEditor.h"
#include "Require.h"
#include "text/Strings.h"

namespace mavCycEd::fuzz {
namespace {

FuzzEditor& loaded(FuzzEditor& editor, std::string_view macro) {
  editor.control().SetConfigXML(fileOf("tests/scenarios/data/laboratory-configuration.xml"));
  editor.control().SetXMLStrings(fileOf("tests/scenarios/data/laboratory.xml"), "[PMA]\r\n" + std::string(macro));
  requireSame(editor.failures(), "", "a macro text loads without an error");
  requireListShowsAtoms(editor.screen().lstAtomSequence.items(), editor.control().atoms());
  return editor;
}

// A macro text needs a value in every line of an atom's parameters, if there are several.
bool isWritable(const cAtoms& atoms) {
  for (const cAtom& atom : atoms) {
    const std::string parameters = textOf(atom.AtomParameters());
    const auto lines = text::split(parameters, '\r');
    const auto hasNoValue = [](std::string_view line) { return line.find(';') == std::string_view::npos; };
    if (lines.size() >= 2 && std::ranges::any_of(lines, hasNoValue)) return false;
  }
  return true;
}

std::vector<std::string> namesOf(const cAtoms& atoms) {
  std::vector<std::string> names;
  for (const cAtom& atom : atoms) names.push_back(atom.AtomName());
  return names;
}

bool containsInOrder(const std::vector<std::string>& all, const std::vector<std::string>& some) {
  auto next = some.begin();
  for (const std::string& each : all) {
    if (next != some.end() && each == *next) ++next;
  }
  return next == some.end();
}

// A macro text carries one line of the description; the further ones come back as something else.
bool hasLongDescription(FuzzEditor& editor) {
  const std::string description = editor.screen().txtCycleDescription.text();
  return description.find("\r\n") < std::string_view(description).find_last_not_of("\r\n");
}

// A macro text that was written loads without an error. Its atom lines and variables come back, unless a value is
// refused at another place than the one where it was.
void requireLoadsAgain(FuzzEditor& editor, const std::string& macro) {
  FuzzEditor fresh;
  loaded(fresh, macro);
  if (hasLongDescription(editor)) return;
  require(containsInOrder(fresh.screen().lstVariables.items(), editor.screen().lstVariables.items()),
          "the variables come back");
  if (!fresh.platform.messages.empty()) return;
  require(namesOf(fresh.control().atoms()) == namesOf(editor.control().atoms()), "the atom lines come back");
}

void requireHandsBack(FuzzEditor& editor) {
  const std::string cycle = editor.control().RetrieveCycle();
  if (cycle.empty() || cycle.find("<VERSION>03</VERSION>\n</CYCLE>\n") == std::string::npos) return;
  require(!editor.control().CycleChanged(), "a cycle is unchanged right behind handing it back");
}

void run(std::string_view text) {
  FuzzEditor editor;
  loaded(editor, text);
  require(editor.control().changedFlag(), "a loaded macro text counts as a change");
  const bool writable = isWritable(editor.control().atoms());
  const std::string macro = editor.control().MacroString();
  require(macro.empty() == !writable, "a macro text is written where every line has its value");
  require(editor.errors.empty() == writable, "an error tells why a macro text is not written");
  if (writable) requireLoadsAgain(editor, macro);
  requireHandsBack(editor);
}

}  // namespace
}  // namespace mavCycEd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mavCycEd::fuzz::run(mavCycEd::fuzz::asText(data, size));
  return 0;
}
