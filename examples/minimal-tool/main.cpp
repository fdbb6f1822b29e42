// The editor without a window: writes a cycle (a cycle document of any version, or a macro text) in the newest format.
//   minimal-tool CONFIGURATION CATALOGUE CYCLE

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/HeadlessEditor.h"
#include "memory/MemoryServices.h"

static std::string contentOf(const char* fileName) {
  std::ifstream file(fileName, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

int main(int argc, char** argv) {
  using namespace mavCycEd;
  if (argc != 4) {
    std::cerr << "Usage: minimal-tool CONFIGURATION CATALOGUE CYCLE\n";
    return 1;
  }

  // What the editor needs of a platform. Its messages to an operator go to standard error here.
  libxml2::Libxml2DocumentFactory xmlDocuments;
  memory::MemoryMessageBox messageBox([](std::string_view text, std::string_view, int) { std::cerr << text << '\n'; });
  memory::StandardSystemMessage systemMessage;
  memory::Utf8CodePage codePage;
  memory::SystemClock clock;
  bool failed = false;
  memory::HeadlessEditor editor({xmlDocuments, messageBox, systemMessage, codePage, clock},
                                [&failed](const CycleEditorErrorEvent& event) {
                                  failed = true;
                                  std::cerr << event.lngError << ": " << event.strError << '\n';
                                });

  editor.control().SetConfigXML(contentOf(argv[1]));
  editor.control().SetXMLStrings(contentOf(argv[2]), contentOf(argv[3]));
  // The catalogue or the cycle was unusable, or only a part of the cycle was loaded.
  if (failed) return 1;
  std::cout << editor.control().RetrieveCycle();
  return 0;
}
