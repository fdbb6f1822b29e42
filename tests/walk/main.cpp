// Writes a random walk as a scenario, and what the memory edition shows on it.

#include <CLI/CLI.hpp>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Console.h"
#include "MemoryDriver.h"
#include "Output.h"
#include "Player.h"
#include "RandomWalk.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/MemoryServices.h"

namespace {

using namespace mavCycEd;

// The last line that was written to a stream.
std::string lastLineOf(const std::ostringstream& output) {
  const std::string_view text = output.view();
  if (text.empty()) return {};
  const std::size_t before = text.rfind('\n', text.size() - 2);
  return std::string(text.substr(before == std::string_view::npos ? 0 : before + 1));
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Writes the steps of an operator who does anything as a scenario; shows them on the memory edition.");
  app.allow_windows_style_options(false);  // a file may begin with a slash
  unsigned seed = 1;
  int steps = 500;
  std::string samples;
  std::string file;
  app.add_option("--seed", seed, "The same seed gives the same steps");
  app.add_option("--steps", steps, "How many steps, not counting those that show the screen");
  app.add_option("--samples", samples, "The folder of the sample instrument")->required();
  app.add_option("FILE", file, "The scenario to write")->required();
  CLI11_PARSE(app, argc, argv);
  try {
    std::ostringstream output;
    libxml2::Libxml2DocumentFactory xmlDocuments;
    memory::MemoryMessageBox messageBox([&output](std::string_view text, std::string_view title, int flags) {
      play::writeLine(output, play::messageBoxLine(text, title, flags));
    });
    memory::StandardSystemMessage systemMessage;
    memory::Utf8CodePage codePage;
    memory::StandingClock clock("2024-03-09T14:05:00");
    play::MemoryDriver driver(
        {xmlDocuments, messageBox, systemMessage, codePage, clock},
        [&output](const CycleEditorErrorEvent& event) { play::writeLine(output, play::asLine(event)); });
    // Written step by step: a step that brings the program down is in the scenario.
    std::ofstream scenario(file, std::ios::binary);
    const auto writeStep = [&scenario](const std::string& line) { scenario << line << std::endl; };
    walk::RandomWalk walked(driver, {[&output] { return lastLineOf(output); }, writeStep}, samples, seed, steps);
    const bool allRan = play::Player(driver, output).play(walked);
    if (!scenario) throw std::runtime_error("The scenario " + file + " cannot be written.");
    play::writeBytesAsTheyAre();
    std::cout << output.view();
    return allRan ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
