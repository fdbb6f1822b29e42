#include "Data.h"

#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string_view>

namespace mavCycEd::bench {
namespace {

std::string sample(const char* name) {
  const std::string path = std::string(MAVCYCED_SAMPLES) + "/" + name;
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("The sample cannot be read: " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string repeated(std::string_view text, int times) {
  std::string result;
  result.reserve(text.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

// Repeats what stands between two texts.
void repeatInside(std::string& text, std::string_view before, std::string_view behind, int times) {
  const std::size_t start = text.find(before) + before.size();
  const std::size_t size = text.find(behind, start) - start;
  text.replace(start, size, repeated(text.substr(start, size), times));
}

std::string element(std::string_view name, std::string_view text) {
  return std::string("<").append(name).append(">").append(text).append("</").append(name).append(">");
}

std::string definition(int number) {
  const std::string name = "Parameter " + std::to_string(number);
  switch (number % 3) {
    case 0: return name + ";CLASS_B";
    case 1: return name + ";0;1000;0;5;ul";
    default: return name + "#;0;3;1;1;7";
  }
}

std::string pickedAtom() {
  std::string content = element("AtomName", "PICKED");
  for (int i = 0; i < 30; ++i) content += element("Param", definition(i));
  return element("ATOM", content);
}

}  // namespace

const Instrument& instrument() {
  static const Instrument sampleInstrument{sample("catalogue.xml"), sample("configuration.xml")};
  return sampleInstrument;
}

const std::string& cycleOf(int lines) {
  static std::map<int, std::string> cycles;
  std::string& cycle = cycles[lines];
  if (cycle.empty()) {
    constexpr int sampleLines = 1000;
    cycle = sample("cycle-1000.xml");
    repeatInside(cycle, "<CYCLEATOMS>\n", "  </CYCLEATOMS>", lines / sampleLines);
    repeatInside(cycle, "<ATOMS>\n", "    </ATOMS>", lines / sampleLines);
  }
  return cycle;
}

std::string macroOf(int lines) {
  return "[PMA]\r\n//A macro.\r\nVol (ul);10;0;100\r\n" +
         repeated("REPEAT(2)\r\nASPIRATE(10,Tray_A,1,10,30)\r\nWAIT(1.5)\r\nEND()\r\n", lines / 4);
}

std::string catalogueOf(int atoms, int objects) {
  std::string atomElements;
  for (int i = 0; i < atoms; ++i) {
    atomElements +=
        i == atoms / 2
            ? pickedAtom()
            : element("ATOM", element("AtomName", "ATOM " + std::to_string(i)) + element("Param", "P;CLASS_A"));
  }
  constexpr int fittingObjects = 10;
  std::string objectElements;
  for (int i = 0; i < objects; ++i) {
    const bool fits = i % (objects / fittingObjects) == 0;
    objectElements += element(
        "OBJECT", element("CLASS", fits ? "CLASS_B" : "CLASS_A") + element("NAME", "Object " + std::to_string(i)));
  }
  std::string lists;
  for (int i = 1; i <= 20; ++i) {
    lists += element("LIST", element("NAME", std::to_string(i)) + element("ENTRIES", "None;Low;Medium;High"));
  }
  return element("LATESTKAM", element("ATOMS", atomElements) + element("CLASSES", "") +
                                  element("OBJECTS", objectElements) + element("LISTS", lists));
}

}  // namespace mavCycEd::bench
