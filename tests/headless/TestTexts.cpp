#include "TestTexts.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace mavCycEd::test {

std::string laboratory() {
  return "<LATESTKAM><ATOMS>"
         "<ATOM><AtomName>WASH</AtomName><Param>Cycles;1;99;5;1;None</Param></ATOM>"
         "<ATOM><AtomName>ASPI!RATE</AtomName><Param>Source;TRAY</Param><Param>Volume!;10;10000;100;5;ul</Param>"
         "<Param>Speed?;0;50;0;0.5;rpm</Param></ATOM>"
         "<ATOM><AtomName>VALVE</AtomName><Param>Way#;0;1;1;1;2</Param></ATOM>"
         "<ATOM><AtomName>BROKEN</AtomName><Param>Way#;0;1;7;1;2</Param><Param>Cycles;1;9;1;1;None</Param></ATOM>"
         "<ATOM><AtomName>HOME</AtomName></ATOM>"
         "</ATOMS><CLASSES/><OBJECTS><TRAY><Class>TRAY</Class><Name>Tray1</Name></TRAY>"
         "<TRAY Hidden=\"1\"><Class>TRAY</Class><Name>Tray2</Name></TRAY></OBJECTS>"
         "<LISTS><LIST><Number>2</Number><Entries>Load;Inject</Entries></LIST></LISTS></LATESTKAM>";
}

std::string laboratoryConfiguration() {
  return "<Config><Units><UNIT><UNITNAME>ul</UNITNAME><UNITTEXT>µl</UNITTEXT><FACTOR>10</FACTOR></UNIT></Units>"
         "<Arguments><OBJECT><OBJECTNAME>FREE TEXT</OBJECTNAME><ARGUMENT>ask_operator</ARGUMENT></OBJECT></Arguments>"
         "<FurtherAtoms><ATOM><AtomName>SHAKE</AtomName><Param>Times;1;3;1;1;None</Param></ATOM></FurtherAtoms></"
         "Config>";
}

Catalogue laboratoryCatalogue() {
  const Reading<Configuration> configuration = Configuration::read(laboratoryConfiguration());
  return Catalogue::read(laboratory(), configuration.value.value()).value.value();
}

std::string cycleDocument(std::string_view atoms, std::string_view variables) {
  std::string text("<CYCLE>\n<DESCRIPTION>//First\nSecond</DESCRIPTION>\n<VARIABLES>");
  return text.append(variables)
      .append("</VARIABLES>\n<ATOMSEQUENCE><ATOMS>\n")
      .append(atoms)
      .append("</ATOMS></ATOMSEQUENCE>\n<VERSION>03</VERSION></CYCLE>");
}

std::string atom(std::string_view name, const std::vector<std::pair<std::string, std::string>>& parameters) {
  std::string text("<ATOM><ATOMNAME>");
  text.append(name).append("</ATOMNAME><PARAMETERS>");
  for (const auto& [key, value] : parameters) {
    text.append("<PARAMETER><PARAMNAME>" + key + "</PARAMNAME><PARAMVALUE>" + value + "</PARAMVALUE></PARAMETER>");
  }
  return text.append("</PARAMETERS></ATOM>\n");
}

Cycle cycleOf(const std::vector<std::pair<std::string, std::string>>& lines) {
  Cycle cycle;
  for (const auto& [name, parameters] : lines) cycle.lines.push_back({name, ParameterText(parameters)});
  return cycle;
}

std::string placeOf(const TextFault& fault) {
  return std::to_string(fault.line).append(":").append(std::to_string(fault.column));
}

std::string sample(std::string_view name) {
  std::ifstream file(std::string(SAMPLES "/").append(name), std::ios::binary);
  if (!file) throw std::runtime_error("no sample " + std::string(name));
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace mavCycEd::test
