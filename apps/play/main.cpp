#include <CLI/CLI.hpp>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <string>

#include "Console.h"
#include "MemoryDriver.h"
#include "Output.h"
#include "Player.h"
#include "Scenario.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/MemoryServices.h"
#ifdef MAVCYCED_WITH_QT
#include "QtEdition.h"
#endif
#ifdef MAVCYCED_WITH_WIN32
#include "Win32Edition.h"
#endif

namespace {

using namespace mavCycEd;

constexpr int unreadableScenario = 1;
constexpr int refusedStep = 2;

int playOn(play::ControlDriver& driver, const std::string& file) {
  play::Scenario scenario(file);
  return play::Player(driver, std::cout).play(scenario) ? 0 : refusedStep;
}

int playInMemory(const std::string& file, const std::string& now) {
  libxml2::Libxml2DocumentFactory xmlDocuments;
  memory::MemoryMessageBox messageBox([](std::string_view text, std::string_view title, int flags) {
    play::writeLine(std::cout, play::messageBoxLine(text, title, flags));
  });
  memory::StandardSystemMessage systemMessage;
  memory::Utf8CodePage codePage;
  memory::StandingClock clock(now);
  play::MemoryDriver driver(
      {xmlDocuments, messageBox, systemMessage, codePage, clock},
      [](const CycleEditorErrorEvent& event) { play::writeLine(std::cout, play::asLine(event)); });
  return playOn(driver, file);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app(
      "Plays a scenario against the cycle editor and writes what it shows, one JSON object per line.\n"
      "Exit code: 0 all steps ran, 1 the scenario cannot be read, 2 a step was refused.");
  app.allow_windows_style_options(false);  // a file may begin with a slash
  std::string edition = "memory";
  std::string file;
  std::string now = "2024-03-09T14:05:00";
  app.add_option("--edition", edition, "The edition of the control: memory, qt or win32")
      ->check(CLI::IsMember({"memory", "qt", "win32"}))
      ->capture_default_str();
  app.add_option("--now", now, "The local time at which the scenario's clock stands, as yyyy-mm-ddThh:mm:ss")
      ->capture_default_str();
  app.add_option("FILE", file, "The scenario")->required();
  CLI11_PARSE(app, argc, argv);
  play::writeBytesAsTheyAre();
  try {
#ifdef MAVCYCED_WITH_QT
    if (edition == "qt") {
      return play::withQtDriver(argc, argv, now, [&file](play::ControlDriver& driver) { return playOn(driver, file); });
    }
#endif
#ifdef MAVCYCED_WITH_WIN32
    if (edition == "win32") {
      return play::withWin32Driver(now, [&file](play::ControlDriver& driver) { return playOn(driver, file); });
    }
#endif
    if (edition != "memory") {
      std::cerr << "This cyced-play was built without the " << edition << " edition.\n";
      return unreadableScenario;
    }
    return playInMemory(file, now);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return unreadableScenario;
  }
}
