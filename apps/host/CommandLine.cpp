#include "CommandLine.h"

#include <CLI/CLI.hpp>

namespace mavCycEd::host {
namespace {

constexpr const char* footer = R"(
Examples:
  cyced-host
      opens the window; the instrument's catalogue is opened from the File menu
  cyced-host --catalogue catalogue.xml --config configuration.xml --cycle cycle.xml
      opens a cycle for editing
  cyced-host --catalogue catalogue.xml --cycle old.xml --out new.xml --quit
      writes an old cycle in the newest format, without a window
  cyced-host --catalogue catalogue.xml --cycle cycle.xml --screenshot editor.png --quit
      makes a picture of the editor

Exit codes:
  0  all is well
  1  the command line is wrong, or there is no display for the window
  2  a file could not be read, or the editor cannot use it
  3  --out or --screenshot could not be written
Without --quit, a file that cannot be opened is told in the window too, and the window stays open.

With --quit no display is needed; nothing is remembered for the next start.)";

}  // namespace

std::optional<int> readCommandLine(int argc, const char* const* argv, Options& options) {
  CLI::App app("Edits the cycles of an autosampler.", "cyced-host");
  app.footer(footer);
  app.set_version_flag("--version", std::string("cyced-host ") + MAVCYCED_VERSION, "Print the version and end");
  app.set_help_flag("-h,--help", "Print this help and end");
  CLI::Option* const catalogue =
      app.add_option("--catalogue", options.catalogue, "The instrument: its atoms, objects and lists");
  app.add_option("--config", options.configuration, "The configuration: units, arguments, further atoms");
  CLI::Option* const cycle = app.add_option("--cycle", options.cycle, "The cycle to edit; needs --catalogue");
  CLI::Option* const out =
      app.add_option("--out", options.out, "Write the cycle, as the editor hands it back, to this file; needs --cycle");
  app.add_option("--screenshot", options.screenshot, "Write a picture of the window to this file (.png)");
  app.add_flag("--ignore-hidden", options.ignoreHidden, "Offer also what is marked as hidden");
  app.add_flag("--quit", options.quit, "End when everything is loaded and written");
  for (CLI::Option* const option : app.get_options())
    option->type_name(option->get_items_expected_max() > 0 ? "FILE" : "");
  try {
    app.parse(argc, argv);
    if (cycle->count() > 0 && catalogue->count() == 0) throw CLI::RequiresError("--cycle", "--catalogue");
    if (out->count() > 0 && cycle->count() == 0) throw CLI::RequiresError("--out", "--cycle");
  } catch (const CLI::Success& success) {
    return app.exit(success);
  } catch (const CLI::ParseError& error) {
    app.exit(error);
    return WrongUsage;
  }
  return std::nullopt;
}

}  // namespace mavCycEd::host
