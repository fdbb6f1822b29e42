#include "FuzzEditor.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>

#include "Require.h"
#include "text/Number.h"

namespace mavCycEd::fuzz {

FuzzEditor::FuzzEditor(std::string_view catalogue, std::string_view configuration, std::string_view cycle) {
  control().SetConfigXML(std::string(configuration));
  control().SetXMLStrings(catalogue, cycle);
}

bool FuzzEditor::hasFailed(std::string_view procedure) const {
  const std::string told = std::string(procedure) + " ";
  return std::ranges::find(errors, told, &CycleEditorErrorEvent::strProcedure) != errors.end();
}

std::string FuzzEditor::failures() const {
  std::string text;
  for (const CycleEditorErrorEvent& event : errors) {
    text.append(event.strProcedure).append(": ").append(event.strError).append("\n");
  }
  return text;
}

const std::string& fileOf(const std::string& name) {
  static std::map<std::string, std::string> files;
  const auto known = files.find(name);
  if (known != files.end()) return known->second;
  std::ifstream stream(std::string(MAVCYCED_ROOT).append("/").append(name), std::ios::binary);
  require(stream.good(), "the file " + name + " cannot be read");
  return files.emplace(name, std::string(std::istreambuf_iterator<char>(stream), {})).first->second;
}

void requireListShowsAtoms(const std::vector<std::string>& shown, const cAtoms& atoms) {
  require(static_cast<int>(shown.size()) == atoms.Count(), "the list has as many lines as there are atom lines");
  int number = 0;
  for (const cAtom& atom : atoms) {
    const std::string& line = shown[static_cast<std::size_t>(number)];
    const std::string start = text::withTwoDigits(++number) + " ";
    require(line.starts_with(start) && line.ends_with(atom.AtomName()), "a line shows its number and its atom");
    const std::size_t rest = line.size() - atom.AtomName().size();
    require(line.find_first_not_of(' ', start.size()) >= rest, "nothing but blanks stands between them");
  }
}

}  // namespace mavCycEd::fuzz
