#include "cycle/CycleLoader.h"

#include <string>
#include <utility>
#include <vector>

#include "cycle/CycleText.h"
#include "cycle/SequenceDisplay.h"
#include "text/LineEnds.h"
#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlNode;

namespace {

// The parameters of an ATOM element as one text: name, ";" and value for each, carriage returns between them.
std::string parameterText(const XmlNode& atom) {
  std::string parameters;
  for (const XmlNode& parameter : atom.selectNodes("PARAMETERS/PARAMETER")) {
    const std::string name = parameter.selectSingleNode("PARAMNAME").text();
    if (!parameters.empty()) parameters += '\r';
    parameters.append(name).append(";").append(parameter.selectSingleNode("PARAMVALUE").text());
  }
  if (parameters.starts_with(';')) parameters.erase(0, 1);
  return parameters;
}

// The value in a line of a parameter text: what stands behind its first ";", the whole line when it has none.
std::string_view valueOf(std::string_view parameterLine) {
  const std::size_t separator = parameterLine.find(';');
  return separator == std::string_view::npos ? parameterLine : parameterLine.substr(separator + 1);
}

}  // namespace

void CycleLoader::FillCycle() {
  guarded(errors_, "FillCycle", [this] {
    screen_.txtCycleDescription.setText("");
    screen_.lstVariables.clear();
    screen_.lstAtomSequence.clear();
    platform::XmlDocument& document = *cycle_.working;
    const XmlNode variables = document.selectSingleNode("CYCLE/VARIABLES");
    if (!variables) return;
    fillDescription(document.selectSingleNode("CYCLE/DESCRIPTION"));

    std::vector<std::string> variableTexts;
    for (const XmlNode& variable : variables.childNodes()) variableTexts.push_back(variable.text());
    screen_.lstVariables.assign(std::move(variableTexts));

    fillAtomLines(document);
    rebuildSequenceList(cycle_, screen_.lstAtomSequence);
    if (screen_.lstAtomSequence.itemCount() > 0) screen_.lstAtomSequence.setIndex(0);
  });
}

void CycleLoader::fillDescription(const XmlNode& description) {
  std::string text;
  if (description) {
    text = text::replaceAll(description.text(), descriptionMarker, "");
    text = text::replaceAll(text, "\n", text::crLf);
  }
  screen_.txtCycleDescription.setText(ReverseDescription(text));
}

void CycleLoader::fillAtomLines(platform::XmlDocument& document) {
  const XmlNode atoms = document.selectSingleNode("CYCLE/ATOMSEQUENCE/ATOMS");
  for (const XmlNode& element : atoms.selectNodes("ATOM")) {
    std::string name = element.selectSingleNode("ATOMNAME").text();
    cycle_.atoms.Add(std::move(name), {}, {}, parameterText(element));
  }
}

void CycleLoader::lstAtomSequence_Click() {
  guarded(errors_, "lstAtomSequence_Click", [this] {
    const int index = screen_.lstAtomSequence.index();
    if (index < 0) return;
    const cAtom& atom = cycle_.atoms.Item(index + 1);
    const std::string parameters = textOf(atom.AtomParameters());
    pickAtom(atom.AtomName());
    int row = 0;
    for (const std::string_view line : text::split(parameters, '\r')) grdAtom_.setValue(1, ++row, valueOf(line));
  });
}

void CycleLoader::pickAtom(std::string_view name) {
  for (int i = 0; i < cboAtom_.itemCount(); ++i) {
    if (cboAtom_.itemText(i) != name) continue;
    cboAtom_.setIndex(i);
    return;
  }
}

void CycleLoader::lstAtomSequence_DblClick() {
  guarded(errors_, "lstAtomSequence_DblClick", [this] { screen_.lstAtomSequence.setIndex(-1); });
}

}  // namespace mavCycEd
